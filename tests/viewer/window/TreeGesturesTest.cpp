#include <QAction>
#include <QColorDialog>
#include <QComboBox>
#include <QMenu>
#include <QToolButton>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>

#include <string>
#include <vector>

#include <oxk/PreferencesFolder.h>

namespace oxviewer::testing {
namespace {

constexpr QRgb kFront = 0xD6453A;
constexpr QRgb kBack = 0x3E7DD8;
constexpr QRgb kBackground = 0x161B21;

using Names = std::vector<std::string>;

class TreeGesturesTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    Show(SmallBoard(kWindowBoard));
  }
  TreePanel& Layers() { return Window().LayersPanel(); }
  TreePanel& Nets() { return Window().NetsPanel(); }

  static Qt::CheckState StateOf(TreePanel& panel, const std::string& node) {
    return static_cast<Qt::CheckState>(IndexOf(panel, node).data(Qt::CheckStateRole).toInt());
  }
  bool IsVisible(const char* layer) { return StateOf(Layers(), std::string("layer:") + layer) == Qt::Checked; }

  std::size_t SelectedNetCount() { return Session().SelectedNets().size(); }

  QAction* ActionNamed(const QString& text) {
    for (QAction* action : Window().findChildren<QAction*>()) {
      if (QString(action->text()).remove('&').startsWith(text)) return action;
    }
    ADD_FAILURE() << text.toStdString();
    return nullptr;
  }
};

// --- Checks ----------------------------------------------------------------------------------------------------------

TEST_F(TreeGesturesTest, CheckOfASingleCheckBranchMovesToTheNodeThatIsClicked) {
  EXPECT_EQ(StateOf(Layers(), "active:F.Cu"), Qt::Checked);
  ClickCheckBox(Layers(), "active:B.Cu");
  EXPECT_EQ(StateOf(Layers(), "active:F.Cu"), Qt::Unchecked);
  EXPECT_EQ(StateOf(Layers(), "active:B.Cu"), Qt::Checked);
  EXPECT_EQ(Session().A().layers[static_cast<std::size_t>(Session().Trees().Layers().ActiveLayer())].name, "B.Cu");
}

TEST_F(TreeGesturesTest, BoxOfOneOfSeveralSelectedLayersTogglesThemAll) {
  ClickNode(Layers(), "layer:F.Cu");
  ClickNode(Layers(), "layer:B.Cu", Qt::ControlModifier);
  ClickCheckBox(Layers(), "layer:B.Cu");
  EXPECT_FALSE(IsVisible("F.Cu"));
  EXPECT_FALSE(IsVisible("B.Cu"));
  EXPECT_EQ(ColorAt(10.3, 5.3), kBackground);
  EXPECT_EQ(ColorAt(10.3, 10.3), kBackground);
}

TEST_F(TreeGesturesTest, BoxOfALayerOutsideTheSelectionTogglesItAlone) {
  ClickNode(Layers(), "layer:F.Cu");
  ClickNode(Layers(), "layer:F.SilkS", Qt::ControlModifier);
  ClickCheckBox(Layers(), "layer:B.Cu");
  EXPECT_TRUE(IsVisible("F.Cu"));
  EXPECT_FALSE(IsVisible("B.Cu"));
}

TEST_F(TreeGesturesTest, ShiftClickTogglesARangeOfLayersAndLeavesTheSelection) {
  ClickNode(Layers(), "active:F.Cu");
  ClickCheckBox(Layers(), "layer:F.Cu");
  RowOf(Layers(), "layer:B.Cu");
  const QRect box = Layers().View().CheckBoxRect(IndexOf(Layers(), "layer:B.Cu"));
  QTest::mouseClick(Layers().View().viewport(), Qt::LeftButton, Qt::ShiftModifier, box.center());
  EXPECT_FALSE(IsVisible("F.Cu"));
  EXPECT_FALSE(IsVisible("B.Cu"));
  EXPECT_EQ(Session().Trees().Layers().Selection(), Names{"active:F.Cu"});
  EXPECT_EQ(StateOf(Layers(), "layers:copper"), Qt::Unchecked);
}

TEST_F(TreeGesturesTest, MenuChecksAllNoneTheOthersOrOnlyTheSelection) {
  ClickNode(Layers(), "layer:B.Cu");
  ActionNamed("Show only these")->trigger();
  EXPECT_FALSE(IsVisible("F.Cu"));
  EXPECT_TRUE(IsVisible("B.Cu"));
  EXPECT_FALSE(IsVisible("Edge.Cuts"));
  ActionNamed("Invert what is shown")->trigger();
  EXPECT_TRUE(IsVisible("F.Cu"));
  EXPECT_FALSE(IsVisible("B.Cu"));
  EXPECT_EQ(ColorAt(10.3, 5.3), kFront);
  ActionNamed("Show all layers")->trigger();
  EXPECT_TRUE(IsVisible("B.Cu"));
  EXPECT_EQ(StateOf(Layers(), "layers:technical"), Qt::Checked);
  ActionNamed("Show no layer")->trigger();
  EXPECT_FALSE(IsVisible("F.Cu"));
  EXPECT_EQ(StateOf(Layers(), "layers:technical"), Qt::Unchecked);
  EXPECT_EQ(StateOf(Layers(), "active:F.Cu"), Qt::Checked);
}

// --- Selection -------------------------------------------------------------------------------------------------------

TEST_F(TreeGesturesTest, NodeOfAClassStandsForItsNetsAndIsNeverSelectedItself) {
  ClickNode(Nets(), "SelAll_Default");
  EXPECT_EQ(SelectedNetCount(), 2u);
  EXPECT_FALSE(Nets().View().selectionModel()->isSelected(IndexOf(Nets(), "SelAll_Default")));
  QTest::mouseClick(Nets().View().viewport(), Qt::LeftButton, {}, Nets().View().viewport()->rect().bottomRight());
  EXPECT_EQ(SelectedNetCount(), 0u);
  EXPECT_EQ(ColorAt(10, 10), kBack);
}

TEST_F(TreeGesturesTest, NodeOfAClassWhoseNetsAreAllSelectedTakesThemOutAgain) {
  ClickNode(Nets(), "SelAll_Default", Qt::ControlModifier);
  EXPECT_EQ(SelectedNetCount(), 2u);
  ClickNode(Nets(), "SelAll_Default", Qt::ControlModifier);
  EXPECT_EQ(SelectedNetCount(), 0u);
  EXPECT_FALSE(Nets().View().selectionModel()->hasSelection());
  EXPECT_EQ(ColorAt(10.3, 10.3), kBack);
}

TEST_F(TreeGesturesTest, NodeOfAClassIsTakenInWithControl) {
  Show(SmallBoard(R"((net 0 "") (net 1 "A") (net 2 "B"))"));
  ClickNode(Nets(), "net:A");
  ClickNode(Nets(), "SelAll_Default", Qt::ControlModifier);
  EXPECT_EQ(SelectedNetCount(), 2u);
  ClickNode(Nets(), "net:A", Qt::ControlModifier);
  EXPECT_EQ(SelectedNetCount(), 1u);
}

TEST_F(TreeGesturesTest, ClickOnOneNetEndsTheSelectionOfItsClass) {
  ClickNode(Nets(), "SelAll_Default");
  ClickNode(Nets(), "net:GND");
  EXPECT_EQ(SelectedNetCount(), 1u);
}

// --- Searching -------------------------------------------------------------------------------------------------------

TEST_F(TreeGesturesTest, LetterTypedInATreeNarrowsItAndEscapeBringsItBack) {
  ClickNode(Nets(), "net:GND");
  QTest::keyClick(&Nets().View(), Qt::Key_V);
  Settle();
  EXPECT_TRUE(Nets().Filter().hasFocus());
  EXPECT_EQ(Nets().Filter().text(), "v");
  EXPECT_TRUE(IsHidden(Nets(), "net:GND"));
  QTest::keyClick(&Nets().Filter(), Qt::Key_Escape);
  Settle();
  EXPECT_TRUE(Nets().View().hasFocus());
  EXPECT_FALSE(IsHidden(Nets(), "net:GND"));
  EXPECT_EQ(SelectedNetCount(), 1u);
}

TEST_F(TreeGesturesTest, FilterIsReadInTheSyntaxThatTheBoxNames) {
  Show(SmallBoard(R"((net 0 "") (net 1 "A.C") (net 2 "ABC") (net 3 "XABC"))"));
  QTest::keyClicks(&Nets().Filter(), "a?c");
  EXPECT_TRUE(IsHidden(Nets(), "net:ABC"));
  for (QAction* action : Nets().Filter().SyntaxMenu().actions()) {
    if (action->text().contains("Wildcards")) action->trigger();
  }
  EXPECT_EQ(Nets().Filter().SyntaxButton().accessibleName(), "Wildcards");
  EXPECT_FALSE(IsHidden(Nets(), "net:ABC"));
  EXPECT_TRUE(IsHidden(Nets(), "net:XABC"));
  Nets().Filter().setText("a.c");
  EXPECT_TRUE(IsHidden(Nets(), "net:ABC"));
  Nets().Filter().SetSyntax(SearchSyntax::Expression);
  EXPECT_FALSE(IsHidden(Nets(), "net:XABC"));
}

TEST_F(TreeGesturesTest, SyntaxIsChosenWithTheKeyboard) {
  FilterLine& filter = Nets().Filter();
  filter.setFocus();
  QTest::keyClick(&filter, Qt::Key_Down, Qt::AltModifier);
  Settle();
  ASSERT_TRUE(filter.SyntaxMenu().isVisible());
  QTest::keyClick(&filter.SyntaxMenu(), Qt::Key_Down);
  QTest::keyClick(&filter.SyntaxMenu(), Qt::Key_Down);
  QTest::keyClick(&filter.SyntaxMenu(), Qt::Key_Return);
  EXPECT_EQ(filter.Syntax(), SearchSyntax::Wildcards);
  QTest::keyClick(&filter, Qt::Key_Down);
  EXPECT_TRUE(Nets().View().hasFocus());
}

TEST_F(TreeGesturesTest, WrongExpressionIsSaidAndLeavesWhatWasShown) {
  Nets().Filter().SetSyntax(SearchSyntax::Expression);
  Nets().Filter().setText("GND");
  Nets().Filter().setText("GND(");
  EXPECT_FALSE(Nets().Filter().toolTip().isEmpty());
  EXPECT_EQ(Nets().Filter().accessibleDescription(), Nets().Filter().toolTip());
  EXPECT_FALSE(IsHidden(Nets(), "net:GND"));
  EXPECT_TRUE(IsHidden(Nets(), "net:VCC"));
  Nets().Filter().clear();
  EXPECT_TRUE(Nets().Filter().toolTip().isEmpty());
  EXPECT_FALSE(IsHidden(Nets(), "net:VCC"));
}

// --- Default actions -------------------------------------------------------------------------------------------------

TEST_F(TreeGesturesTest, DefaultActionsAreThereAgainAfterARestart) {
  ActionNamed("Highlighting adds")->trigger();
  ActionNamed("Isolating adds")->trigger();
  oxk::UsePreferencesFolder(PreferencesFolder());  // what is in memory is forgotten
  MakeWindow();
  Show(SmallBoard(kWindowBoard));
  EXPECT_TRUE(ActionNamed("Highlighting adds")->isChecked());
  for (const char* net : {"net:GND", "net:VCC"}) {
    ClickNode(Nets(), net);
    QTest::keyClick(&Window(), Qt::Key_I, Qt::ControlModifier);
    QTest::keyClick(&Window(), Qt::Key_H, Qt::ControlModifier);
  }
  for (const NetId net : {0, 1}) {
    EXPECT_TRUE(Session().Isolated().Has({ItemKind::Track, 0, net, kNoComponent}));
    EXPECT_TRUE(Session().Highlighted().Has({ItemKind::Track, 0, net, kNoComponent}));
  }
}

}  // namespace
}  // namespace oxviewer::testing
