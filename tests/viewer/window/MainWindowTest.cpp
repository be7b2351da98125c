#include <QAccessible>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>

#include <string>
#include <vector>

#include <uicomps/dialogs/DefaultActions.h>

namespace oxviewer::testing {
namespace {

constexpr QRgb kFront = 0xD6453A;
constexpr QRgb kBack = 0x3E7DD8;
constexpr QRgb kBackground = 0x161B21;

class MainWindowTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    Show(SmallBoard(kWindowBoard));
  }

  void Choose(const QColor& color) {
    Soon([color] {
      auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      dialog->setCurrentColor(color);
      dialog->accept();
    });
  }

  std::vector<std::string> SelectedNets() {
    std::vector<std::string> names;
    for (const NetId net : Session().SelectedNets()) {
      names.push_back(Session().A().nets[static_cast<std::size_t>(net)].name);
    }
    return names;
  }

  void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&Window(), key, modifiers);
    Settle();
  }
};

using Names = std::vector<std::string>;

TEST_F(MainWindowTest, UncheckedLayerIsGoneFromTheBoardAtOnce) {
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  EXPECT_EQ(ColorAt(10.3, 5.3), kBackground);
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  EXPECT_EQ(ColorAt(10.3, 5.3), kFront);
}

TEST_F(MainWindowTest, SpaceTogglesTheCurrentLayer) {
  ClickNode(Window().LayersPanel(), "layer:B.Cu");
  QTest::keyClick(&Window().LayersPanel().View(), Qt::Key_Space);
  EXPECT_EQ(ColorAt(10.3, 10.3), kBackground);
}

TEST_F(MainWindowTest, ChosenColourShowsOnTheBoardAtOnce) {
  Choose(QColor(0x12, 0x34, 0x56));
  DoubleClickNode(Window().LayersPanel(), "layer:F.Cu");
  EXPECT_EQ(ColorAt(10, 5), 0x123456u);
  EXPECT_EQ(ColorAt(10, 10), kBack);
}

TEST_F(MainWindowTest, CancelledColourChangesNothing) {
  Soon([] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
  DoubleClickNode(Window().LayersPanel(), "layer:F.Cu");
  EXPECT_EQ(ColorAt(10, 5), kFront);
}

TEST_F(MainWindowTest, ActiveLayerLiesOnTop) {
  Show(SmallBoard(R"((net 0 "")
      (segment (start 2 5) (end 28 5) (width 2) (layer "F.Cu") (net 0))
      (segment (start 2 5) (end 28 5) (width 2) (layer "B.Cu") (net 0)))"));
  EXPECT_EQ(ColorAt(10, 5), kFront);
  ClickCheckBox(Window().LayersPanel(), "active:B.Cu");
  EXPECT_EQ(ColorAt(10, 5), kBack);
}

TEST_F(MainWindowTest, SelectedNetStandsOut) {
  ClickNode(Window().NetsPanel(), "net:GND");
  EXPECT_EQ(SelectedNets(), Names{"GND"});
  const QRgb selected = ColorAt(10, 5);
  const QRgb other = ColorAt(10, 10);
  EXPECT_GT(qRed(selected), qRed(kFront));
  EXPECT_LT(qBlue(other), qBlue(kBack));
  EXPECT_NE(other, kBackground);
}

TEST_F(MainWindowTest, SelectedClassStandsForItsNets) {
  ClickNode(Window().NetsPanel(), "SelAll_Default");
  EXPECT_EQ(SelectedNets().size(), 2u);
  EXPECT_GT(qBlue(ColorAt(10, 10)), qBlue(kBack));
}

TEST_F(MainWindowTest, ClickOnATrackSelectsItsNet) {
  ClickBoard(10, 10);
  EXPECT_EQ(SelectedNets(), Names{"VCC"});
  EXPECT_TRUE(Window().NetsPanel().View().selectionModel()->isSelected(IndexOf(Window().NetsPanel(), "net:VCC")));
  ClickBoard(10, 5, Qt::ControlModifier);
  EXPECT_EQ(SelectedNets().size(), 2u);
  ClickBoard(10, 15);
  EXPECT_EQ(SelectedNets(), Names{});
}

TEST_F(MainWindowTest, ClickOnAPadWithoutANetSelectsItsComponent) {
  ClickBoard(30, 15);
  EXPECT_EQ(SelectedNets(), Names{});
  EXPECT_TRUE(Session().Selection().Has({ItemKind::Pad, 0, kNoNet, 0}));
  EXPECT_EQ(Session().FramesOfSelection().size(), 1u);
}

TEST_F(MainWindowTest, ClickMissesHiddenLayers) {
  ClickCheckBox(Window().LayersPanel(), "layer:B.Cu");
  ClickBoard(10, 10);
  EXPECT_EQ(SelectedNets(), Names{});
}

TEST_F(MainWindowTest, IsolatedNetIsAloneUntilEscape) {
  ClickNode(Window().NetsPanel(), "net:VCC");
  PressKey(Qt::Key_I);
  EXPECT_EQ(ColorAt(10.3, 5.3), kBackground);
  EXPECT_NE(ColorAt(10, 10), kBackground);
  PressKey(Qt::Key_Escape);
  EXPECT_EQ(ColorAt(10, 5), kFront);
  EXPECT_EQ(SelectedNets(), Names{});
}

TEST_F(MainWindowTest, HighlightedNetStaysSoWhenAnotherIsSelected) {
  ClickNode(Window().NetsPanel(), "net:GND");
  PressKey(Qt::Key_H);
  ClickNode(Window().NetsPanel(), "net:VCC");
  EXPECT_GT(qRed(ColorAt(10, 5)), qRed(kFront));
  EXPECT_GT(qBlue(ColorAt(10, 10)), qBlue(kBack));
}

TEST_F(MainWindowTest, DefaultActionSaysWhetherHighlightingAdds) {
  ClickNode(Window().NetsPanel(), "net:GND");
  PressKey(Qt::Key_H);
  ClickNode(Window().NetsPanel(), "net:VCC");
  PressKey(Qt::Key_H);
  EXPECT_FALSE(Session().Highlighted().Has({ItemKind::Track, 0, 0, kNoComponent}));
  oxecad_ui::SetHighlightDefaultAction("add_highlight");
  ClickNode(Window().NetsPanel(), "net:GND");
  PressKey(Qt::Key_H);
  EXPECT_TRUE(Session().Highlighted().Has({ItemKind::Track, 0, 0, kNoComponent}));
  EXPECT_TRUE(Session().Highlighted().Has({ItemKind::Track, 0, 1, kNoComponent}));
}

TEST_F(MainWindowTest, NetGetsAColourOfItsOwnAndLosesItAgain) {
  ClickNode(Window().NetsPanel(), "net:GND");
  Choose(QColor(1, 0xFE, 2));
  PressKey(Qt::Key_L, Qt::ControlModifier);
  ClickBoard(10, 15);
  EXPECT_EQ(ColorAt(10, 5), 0x01FE02u);
  EXPECT_FALSE(IndexOf(Window().NetsPanel(), "net:GND").data(Qt::DecorationRole).isNull());
  Session().SetNetColors({0}, kNoColor);
  EXPECT_TRUE(IndexOf(Window().NetsPanel(), "net:GND").data(Qt::DecorationRole).isNull());
}

TEST_F(MainWindowTest, FilterHidesWhatItDoesNotFindAndKeepsTheRest) {
  ClickNode(Window().NetsPanel(), "net:GND");
  QTest::keyClicks(&Window().NetsPanel().Filter(), "vc");
  EXPECT_TRUE(IsHidden(Window().NetsPanel(), "net:GND"));
  EXPECT_FALSE(IsHidden(Window().NetsPanel(), "net:VCC"));
  EXPECT_FALSE(IsHidden(Window().NetsPanel(), "SelAll_Default"));
  Window().NetsPanel().Filter().clear();
  EXPECT_FALSE(IsHidden(Window().NetsPanel(), "net:GND"));
  EXPECT_EQ(SelectedNets(), Names{"GND"});
}

TEST_F(MainWindowTest, FilterOfPartsCounts) {
  QTest::keyClicks(&Window().PartsPanel().Filter(), "nosuch");
  Settle();
  EXPECT_EQ(IndexOf(Window().PartsPanel(), "root").data().toString(), "Components (0)");
  Window().PartsPanel().Filter().clear();
  Settle();
  EXPECT_EQ(IndexOf(Window().PartsPanel(), "root").data().toString(), "Components (1)");
}

TEST_F(MainWindowTest, PointerTellsPlaceAndThing) {
  QTest::mouseMove(&View(), PixelOf(10, 5));
  Settle();
  EXPECT_TRUE(Window().statusBar()->currentMessage().contains("net GND"))
      << qPrintable(Window().statusBar()->currentMessage());
  EXPECT_TRUE(Window().statusBar()->currentMessage().contains("Track 2 mm"));
  QTest::mouseMove(&View(), PixelOf(10, 15));
  Settle();
  EXPECT_EQ(Window().statusBar()->currentMessage(), "");
}

TEST_F(MainWindowTest, AnotherBoardReplacesEverything) {
  ClickNode(Window().NetsPanel(), "net:GND");
  QTest::keyClicks(&Window().NetsPanel().Filter(), "G");
  Show(SmallBoard("(net 0 \"\") (net 1 \"OTHER\")"));
  EXPECT_EQ(SelectedNets(), Names{});
  EXPECT_EQ(Window().NetsPanel().Filter().text(), "");
  EXPECT_FALSE(IndexOf(Window().NetsPanel(), "net:GND").isValid());
  EXPECT_FALSE(IsHidden(Window().NetsPanel(), "net:OTHER"));
}

TEST_F(MainWindowTest, BoardThatCannotBeOpenedLeavesTheWindowAsItIs) {
  Soon([] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
  Window().OpenBoards("/no/such/board.kicad_pcb", std::nullopt);
  EXPECT_EQ(Session().A().nets.size(), 2u);
}

// --- Fields ----------------------------------------------------------------------------------------------------------

class SettingsTest : public MainWindowTest {
 protected:
  template <class Widget>
  Widget& Field(const char* accessibleName) {
    for (Widget* widget : Window().findChildren<Widget*>()) {
      if (widget->accessibleName() == accessibleName) {
        for (auto* tab : Window().findChildren<QTabWidget*>()) {
          for (int i = 0; i < tab->count(); ++i) {
            if (tab->widget(i)->isAncestorOf(widget)) tab->setCurrentIndex(i);
          }
        }
        return *widget;
      }
    }
    throw std::runtime_error(accessibleName);
  }

  void Enter(QLineEdit& field, const QString& text) {
    field.setFocus();
    Settle();
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Tab);
    Settle();
  }
};

TEST_F(SettingsTest, FieldRefusesWhatIsNoNumber) {
  auto& field = Field<QLineEdit>("Grid");
  Enter(field, "2x5");
  EXPECT_EQ(field.text(), "25");
}

TEST_F(SettingsTest, EnterTakesALineWidthAtOnce) {
  Show(SmallBoard(R"((net 0 "") (gr_rect (start 0 0) (end 40 20) (layer "Edge.Cuts") (width 0.2))
                     (segment (start 2 10) (end 38 10) (width 0.01) (layer "F.Cu") (net 0)))"));
  auto& field = Field<QLineEdit>("Line width");
  field.setFocus();
  field.selectAll();
  QTest::keyClicks(&field, "2");
  EXPECT_EQ(ColorAt(10.3, 10.8), kBackground);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(ColorAt(10.3, 10.8), kFront);
  EXPECT_TRUE(field.hasFocus());
  QTest::keyClicks(&field, "0.1");
  EXPECT_EQ(field.text(), "0.1");
  QTest::keyClick(&field, Qt::Key_Enter);
  EXPECT_EQ(ColorAt(10.3, 10.8), kBackground);
}

TEST_F(SettingsTest, LineWidthRefusesLettersAndKeepsToItsRange) {
  auto& field = Field<QLineEdit>("Line width");
  Enter(field, "wide");
  EXPECT_EQ(field.text(), "0.05");
  Enter(field, "-1");
  EXPECT_EQ(field.text(), "0");
  Enter(field, "0.3mm");
  EXPECT_EQ(field.text(), "0.3");
  Enter(field, "70");
  EXPECT_EQ(field.text(), "5");
}

TEST_F(SettingsTest, LineWidthFollowsItsUnit) {
  Enter(Field<QLineEdit>("Line width"), "0.254");
  auto& unit = Field<QComboBox>("Unit of the line width");
  unit.setFocus();
  for (const char* name : {"um", "mil"}) {
    QTest::keyClick(&unit, Qt::Key_Down);
    Settle();
    EXPECT_EQ(unit.currentText(), name);
  }
  EXPECT_EQ(Field<QLineEdit>("Line width").text(), "10");
  EXPECT_EQ(Field<QLineEdit>("Grid").text(), "1");
  Enter(Field<QLineEdit>("Line width"), "20");
  QTest::keyClick(&unit, Qt::Key_Home);
  Settle();
  EXPECT_EQ(Field<QLineEdit>("Line width").text(), "0.508");
}

TEST_F(SettingsTest, RoomIsReckonedWithUnits) {
  auto& field = Field<QLineEdit>("Room around what is shown");
  EXPECT_TRUE(field.toolTip().contains("1.5mm + 20mil"));
  field.setFocus();
  field.selectAll();
  QTest::keyClicks(&field, "1.5mm + 20mil");
  EXPECT_EQ(field.text(), "1.5mm + 20mil");
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(field.text(), "2.008");
  QTest::keyClicks(&field, "2 furlongs");
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(field.text(), "2.008");
}

TEST_F(SettingsTest, DimStrengthShowsOnTheBoard) {
  ClickNode(Window().NetsPanel(), "net:GND");
  Enter(Field<QLineEdit>("Dim strength in percent"), "100");
  EXPECT_EQ(ColorAt(10.3, 10.3), kBackground);
  Enter(Field<QLineEdit>("Dim strength in percent"), "0");
  EXPECT_EQ(ColorAt(10.3, 10.3), kBack);
}

TEST_F(SettingsTest, AreThereAgainInTheNextWindow) {
  auto& unit = Field<QComboBox>("Unit of the grid");
  unit.setCurrentIndex(unit.findText("mil"));
  Q_EMIT unit.activated(unit.currentIndex());
  Enter(Field<QLineEdit>("Grid"), "50");
  MakeWindow();
  EXPECT_EQ(Field<QLineEdit>("Grid").text(), "50");
  EXPECT_EQ(Field<QComboBox>("Unit of the grid").currentText(), "mil");
}

// --- Screen readers --------------------------------------------------------------------------------------------------

TEST_F(MainWindowTest, EverythingThatTakesTheKeyboardHasAName) {
  Compare(SmallBoard(kWindowBoard), SmallBoard(kWindowBoard));
  int named = 0;
  for (QWidget* widget : Window().findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || !widget->isEnabled() || widget->focusProxy()) continue;
    const QAccessibleInterface* said = QAccessible::queryAccessibleInterface(widget);
    // Of a button with a sign the tooltip is said.
    const QString name = said ? said->text(QAccessible::Name) + said->text(QAccessible::Description) : QString();
    EXPECT_FALSE(name.isEmpty()) << widget->metaObject()->className() << " of "
                                 << widget->parentWidget()->metaObject()->className();
    ++named;
  }
  EXPECT_GT(named, 10);
}

// --- Renaming --------------------------------------------------------------------------------------------------------

TEST_F(MainWindowTest, GroupIsRenamedAndAClashIsRefusedInABalloon) {
  ClickNode(Window().LayersPanel(), "layers:copper");
  std::vector<std::string> steps;
  const auto type = [](QWidget* dialog, const QString& text) {
    auto* name = dialog->findChild<QLineEdit*>();
    ASSERT_TRUE(name);
    name->selectAll();
    QTest::keyClicks(name, text);
    QTest::keyClick(name, Qt::Key_Return);
  };
  Soon([&] {
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_TRUE(dialog);
    Soon([&, dialog] {
      QWidget* balloon = QApplication::activeModalWidget();
      ASSERT_TRUE(balloon);
      EXPECT_NE(balloon, dialog);
      steps.push_back("balloon");
      QTest::keyClick(balloon, Qt::Key_Return);
    });
    type(dialog, "Technical");
    Settle();
    EXPECT_EQ(QApplication::activeModalWidget(), dialog);
    type(dialog, "Signal layers");
    steps.push_back("renamed");
  });
  PressKey(Qt::Key_F2);
  EXPECT_EQ(steps, (std::vector<std::string>{"balloon", "renamed"}));
  EXPECT_EQ(IndexOf(Window().LayersPanel(), "layers:copper").data().toString(), "Signal layers");
  EXPECT_EQ(IndexOf(Window().LayersPanel(), "layers:technical").data().toString(), "Technical");
}

TEST_F(MainWindowTest, LayerItselfCannotBeRenamed) {
  ClickNode(Window().LayersPanel(), "layer:F.Cu");
  PressKey(Qt::Key_F2);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace oxviewer::testing
