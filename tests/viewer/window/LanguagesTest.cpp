#include <viewer/trees/PartKinds.h>
#include <viewer/trees/TreeTexts.h>
#include <viewer/window/History.h>
#include <viewer/window/Languages.h>

#include <QAbstractButton>
#include <QAction>
#include <QColorDialog>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>

#include <set>
#include <string>
#include <vector>

#include <uiox_qt/Icons.h>
#include <uiox_qt/ImageWords.h>
#include <uiox_qt/NodeWords.h>

namespace oxviewer::testing {
namespace {

constexpr QChar kOpen(0x27E6);
constexpr QChar kClose(0x27E7);

/// Puts each text that is to be translated in brackets, and remembers it.
class BracketTranslator : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    const std::string owner(context);
    if (owner.rfind("oxviewer", 0) != 0 && owner.rfind("uiox_qt", 0) != 0 && owner != "resources") return {};
    asked_.insert(text);
    return kOpen + QString::fromUtf8(text) + kClose;
  }
  const std::set<std::string>& Asked() const { return asked_; }

 private:
  mutable std::set<std::string> asked_;
};

class LanguagesTest : public WindowFixture {
 protected:
  void SetUp() override {
    QCoreApplication::installTranslator(&brackets_);
    WindowFixture::SetUp();
    Compare(SmallBoard(kWindowBoard), SmallBoard("(net 0 \"\") (net 1 \"GND\")"));
  }
  void TearDown() override {
    WindowFixture::TearDown();
    QCoreApplication::removeTranslator(&brackets_);
    SetTreeTexts({});
  }

  /// Brings up what is not there from the beginning.
  void ShowEverything() {
    for (std::size_t kind = 0; kind < PartKindCount(); ++kind) TreeText(PartKindName(kind));
    for (const Finding finding :
         {Finding::Renamed, Finding::Type, Finding::Moved, Finding::Rotated, Finding::Side, Finding::Value,
          Finding::Footprint, Finding::Pads, Finding::Tracks, Finding::Width, Finding::Vias, Finding::Zones}) {
      TreeText(NameOf(finding));
    }
    for (QAction* action : Window().findChildren<QAction*>()) {
      if (action->text().contains("Legend")) action->trigger();
    }
    Soon([] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
    QTest::keyClick(&Window(), Qt::Key_F1);
    Settle();
    for (int i = 0; i < 0x1000000; i += 0x2F353) uiox_qt::ColorWord(static_cast<QRgb>(i));
    for (TreePanel* panel : {&Window().LayersPanel(), &Window().Comparison().Panel()}) {
      const uiox_qt::TreeModel& model = panel->View().Model();
      const QModelIndex top = model.index(0, 0);
      for (int column = 0; column < model.columnCount(); ++column) {
        for (const QModelIndex& row : {top, model.index(0, 0, top)}) {
          uiox_qt::ItemTip(model, row.siblingAtColumn(column), true);
          uiox_qt::ItemFacts(model, row.siblingAtColumn(column));
        }
      }
    }
  }

  BracketTranslator brackets_;
};

TEST_F(LanguagesTest, EveryTextOfTheWindowIsTranslated) {
  ShowEverything();
  const auto expect = [](const QString& text, const char* what) {
    QString shown = text;
    shown.remove('&');
    const bool words = std::any_of(shown.begin(), shown.end(), [](QChar c) { return c.isLetter(); });
    if (!words) return;
    EXPECT_TRUE(shown.contains(kOpen)) << what << ": " << shown.toStdString();
  };
  for (const QAction* action : Window().findChildren<QAction*>()) expect(action->text(), "action");
  for (const QMenu* menu : Window().findChildren<QMenu*>()) expect(menu->title(), "menu");
  for (const QAbstractButton* button : Window().findChildren<QAbstractButton*>()) expect(button->text(), "button");
  for (const QLineEdit* line : Window().findChildren<QLineEdit*>()) expect(line->placeholderText(), "placeholder");
  for (const QTabBar* tabs : Window().findChildren<QTabBar*>()) {
    for (int i = 0; i < tabs->count(); ++i) expect(tabs->tabText(i), "tab");
  }
  for (const QLabel* label : Window().findChildren<QLabel*>()) {
    if (label->text() != "%" && label->text() != "mm") expect(label->text(), "label");
  }
  for (TreePanel* panel : {&Window().LayersPanel(), &Window().NetsPanel(), &Window().ComponentsPanel(),
                           &Window().PartsPanel(), &Window().Comparison().Panel()}) {
    expect(panel->View().accessibleName(), "name of a tree");
  }
  expect(View().accessibleName(), "name of the board");
  for (const char* node : {"layers:copper", "layers:technical", "layers:active"}) {
    expect(IndexOf(Window().LayersPanel(), node).data().toString(), node);
  }
  expect(IndexOf(Window().Comparison().Panel(), "nets", 6).data().toString(), "summary");
  expect(IndexOf(Window().Comparison().Panel(), "nets/net:VCC", 6).data().toString(), "difference");
  expect(IndexOf(Window().PartsPanel(), "kind:3").data().toString(), "kind");
  const QAbstractItemModel& compare = Window().Comparison().Panel().View().Model();
  for (int i = 0; i < compare.columnCount(); ++i) expect(compare.headerData(i, Qt::Horizontal).toString(), "column");
}

TEST_F(LanguagesTest, GermanHasEveryTextThatIsAskedFor) {
  ShowEverything();
  const auto german = TranslatorFor("de");
  ASSERT_TRUE(german);
  EXPECT_GT(brackets_.Asked().size(), 120u);
  for (const std::string& text : brackets_.Asked()) {
    EXPECT_TRUE(text.empty() || german->Has(QString::fromStdString(text))) << text;
  }
}

/// Collects what the dialogs of Qt itself say.
class QtTexts : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    if (std::string(context) != "QGuiApplication") asked_.insert(text);
    return {};
  }
  const std::set<std::string>& Asked() const { return asked_; }

 private:
  mutable std::set<std::string> asked_;
};

TEST(Languages, DialogsOfQtAndTheNamesOfKeysAreGermanToo) {
  QtTexts texts;
  QCoreApplication::installTranslator(&texts);
  QColorDialog color;
  color.setOption(QColorDialog::DontUseNativeDialog);
  color.show();
  QMessageBox message(QMessageBox::Warning, "title", "text", QMessageBox::Ok);
  message.show();
  QFileDialog open;
  open.setOption(QFileDialog::DontUseNativeDialog);
  open.show();
  QFileDialog save(nullptr, "title");
  save.setOption(QFileDialog::DontUseNativeDialog);
  save.setAcceptMode(QFileDialog::AcceptSave);
  save.show();
  QLineEdit line;
  const std::unique_ptr<QMenu> menu(line.createStandardContextMenu());
  for (const auto key : {Qt::Key_F1, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_Down}) {
    QKeySequence(Qt::CTRL | Qt::SHIFT | key).toString(QKeySequence::NativeText);
  }
  QCoreApplication::processEvents();
  QCoreApplication::removeTranslator(&texts);
  const auto german = TranslatorFor("de");
  EXPECT_GT(texts.Asked().size(), 50u);
  for (const std::string& text : texts.Asked()) EXPECT_TRUE(german->Has(QString::fromStdString(text))) << text;
}

class LanguageChangeTest : public WindowFixture {
 protected:
  void TearDown() override {
    UseLanguage("en");
    WindowFixture::TearDown();
    SetTreeTexts({});
  }

  /// Chooses an entry of the menu of languages, as the user does.
  void Choose(const QString& language) {
    for (QAction* action : Window().findChildren<QAction*>()) {
      if (action->text().remove('&') != language) continue;
      action->trigger();
      Settle();
      return;
    }
    ADD_FAILURE() << "no entry " << language.toStdString();
  }

  QString LabelOf(TreePanel& panel, const char* node) { return IndexOf(panel, node).data().toString(); }
  QStringList MenuTitles() {
    QStringList titles;
    for (const QAction* action : Window().menuBar()->actions()) titles += action->text().remove('&');
    return titles;
  }
};

TEST_F(LanguageChangeTest, ShowsAtOnceAndBackAgain) {
  Show(SmallBoard(kWindowBoard));
  const QStringList english = MenuTitles();
  Choose("German");
  EXPECT_EQ(MenuTitles().at(1), "Bearbeiten");
  EXPECT_EQ(QKeySequence(QKeySequence::Open).toString(QKeySequence::NativeText), "Strg+O");
  EXPECT_EQ(LabelOf(Window().PartsPanel(), "kind:3"), "Widerstände (1)");
  EXPECT_EQ(ReadPreferences().language, "de");
  Choose("Englisch");
  EXPECT_EQ(MenuTitles(), english);
  EXPECT_EQ(LabelOf(Window().PartsPanel(), "kind:3"), "Resistors (1)");
}

TEST_F(LanguageChangeTest, LeavesAllThatIsSeenButTheWords) {
  Compare(SmallBoard(kWindowBoard), SmallBoard("(net 0 \"\") (net 1 \"GND\")"));
  ClickNode(Window().NetsPanel(), "SelAll_Default");
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  ClickNode(Window().Comparison().Panel(), "nets/net:VCC");
  Window().Comparison().SetDifferencesOnly(true);
  Window().PartsPanel().Filter().setText("R");
  Session().Trees().Parts().RestoreSelection({"kind:3"});
  View().ZoomBy(2);
  Settle();
  const Viewport viewport = View().CurrentViewport();
  const std::set<void*> nets = Session().Trees().Nets().SelectedObjects();
  ASSERT_EQ(nets.size(), 2u);
  Choose("German");
  EXPECT_EQ(Session().Trees().Nets().SelectedObjects(), nets);
  EXPECT_FALSE(Session().Trees().Layers().IsVisible(0));
  EXPECT_EQ(Session().Trees().Compare()->Selected().size(), 1u);
  EXPECT_TRUE(Window().Comparison().ShowsDifferencesOnly());
  EXPECT_EQ(Window().PartsPanel().Filter().text(), "R");
  EXPECT_EQ(Session().Trees().Parts().SelectedNodes(), std::vector<std::string>{"kind:3"});
  EXPECT_EQ(View().CurrentViewport().center, viewport.center);
  EXPECT_EQ(View().CurrentViewport().pixelsPerMm, viewport.pixelsPerMm);
  EXPECT_FALSE(Window().Steps().CanUndo());
}

TEST_F(LanguageChangeTest, WhatWasKeptBeforeDoesNotComeBack) {
  const QString file = QString::fromStdString(PreferencesFolder()) + "/trees.json";
  Window().KeepTreesIn(file);
  Show(SmallBoard(kWindowBoard));
  const Color first = Session().Trees().Layers().ColorOfLayer(0);
  Session().Trees().Layers().SetColor(0, ColorOf(1, 2, 3));
  Show(SmallBoard(kWindowBoard));
  ASSERT_EQ(Session().Trees().Layers().ColorOfLayer(0), ColorOf(1, 2, 3));
  Session().Trees().Layers().SetColor(0, first);
  Choose("German");
  EXPECT_EQ(Session().Trees().Layers().ColorOfLayer(0), first);
  Show(SmallBoard(kWindowBoard));
  EXPECT_EQ(Session().Trees().Layers().ColorOfLayer(0), first) << "and it is kept";
}

TEST_F(LanguageChangeTest, WindowWithoutABoardChangesToo) {
  Choose("German");
  EXPECT_EQ(MenuTitles().at(1), "Bearbeiten");
  Show(SmallBoard(kWindowBoard));
  EXPECT_EQ(LabelOf(Window().LayersPanel(), "layers:copper"), "Kupfer");
}

TEST_F(LanguageChangeTest, LettersInSquaresAreThoseOfTheLanguage) {
  Show(SmallBoard(kWindowBoard));
  Session().Trees().Layers().SetColor(0, ColorOf(0x90, 0xCA, 0xF0));  // light blue, "hellblau"
  Choose("Letters in colour squares");
  const auto square = [] { return uiox_qt::ImagePixmap("color_square.png_15780496", 16, 2).toImage(); };
  const QImage english = square();
  Choose("German");
  const QImage german = square();
  uiox_qt::ShowLettersInSquares(false);
  ASSERT_FALSE(english.isNull());
  EXPECT_NE(german, english);
  EXPECT_NE(square(), german);
}

TEST_F(LanguageChangeTest, EveryActionIsThereOnce) {
  Show(SmallBoard(kWindowBoard));
  const auto count = [this] { return Window().findChildren<QAction*>().size(); };
  Choose("German");
  const auto before = count();
  for (const char* language : {"Englisch", "German", "Englisch", "German"}) Choose(language);
  EXPECT_EQ(count(), before);
  const QRgb shown = ColorAt(10.3, 5.3);
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  EXPECT_NE(ColorAt(10.3, 5.3), shown);
  QTest::keyClick(&Window(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ColorAt(10.3, 5.3), shown);
}

TEST(Languages, EnglishNeedsNoTable) {
  EXPECT_EQ(TranslatorFor("en"), nullptr);
  EXPECT_EQ(TranslatorFor("xx"), nullptr);
}

TEST(Languages, TextThatTheTableDoesNotHaveStays) {
  const TableTranslator table(R"({"Nets": "Netze"})");
  EXPECT_EQ(table.translate("any", "Nets", nullptr, -1), "Netze");
  EXPECT_TRUE(table.translate("any", "Grid", nullptr, -1).isNull());
}

}  // namespace
}  // namespace oxviewer::testing
