#include "TreeFixture.h"

#include <uiox_qt/Icons.h>
#include <uiox_qt/ImageWords.h>
#include <uiox_qt/NodeWords.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace uiox_qt_tests {
namespace {

TEST(ColorWord, IsWhatAPersonCallsTheColour) {
  const struct {
    QRgb color;
    const char* word;
  } rows[] = {{0xFF0000, "red"},        {0xD6453A, "red"},      {0x3E7DD8, "blue"},    {0xFFFFFF, "white"},
              {0x000000, "black"},      {0x808080, "grey"},     {0x00FF00, "green"},   {0xFFFF00, "yellow"},
              {0xFFA500, "orange"},     {0x8B4513, "brown"},    {0xFF00FF, "magenta"}, {0x000080, "dark blue"},
              {0x90CAF0, "light blue"}, {0x404040, "dark grey"}};
  for (const auto& row : rows)
    EXPECT_EQ(uiox_qt::ColorWord(row.color).toStdString(), row.word) << std::hex << row.color;
}

TEST(ImageWords, AreThoseOfTheImage) {
  EXPECT_EQ(uiox_qt::ImageWords("color_square.png_255"), "colour red");
  EXPECT_EQ(uiox_qt::ImageWords("mix.png"), "mixed");
  EXPECT_EQ(uiox_qt::ImageWords("ecad_compare_show_a-b.png"), "A without B");
  EXPECT_EQ(uiox_qt::ImageWords("color_square.png_x"), "");
  EXPECT_EQ(uiox_qt::ImageWords("other.png"), "");
  EXPECT_EQ(uiox_qt::LabelWords("<b>Resistors (2)</b> <mix>", true), "Resistors (2) mixed");
  EXPECT_EQ(uiox_qt::LabelWords("a < b", false), "a < b");
}

class WordsTest : public TreeFixture {
 protected:
  /// Copper (mixed) with F.Cu (red, checked) and B.Cu.
  void Plant() {
    Make(R"("checkBoxes": true, "columns": [{"name": "a", "title": "A"}], "label": {"markup": true})");
    auto& types = uiox::Suite::Get().Types();
    types.Define("mix", "mix.png", "");
    types.Define("red", "color_square.png_255", "");
    uiox::Image square;
    square.width = square.height = 2;
    square.pixels = {255, 0, 0, 1, 255, 0, 0, 1, 255, 0, 0, 1, 255, 0, 0, 1};
    uiox::Suite::Get().Images().Define("color_square.png_255", square);
    Add("copper", "", L"<b>Copper (2)</b>");
    Add("F.Cu", "copper", L"F.Cu");
    Add("B.Cu", "copper", L"B.Cu");
    Store().SetType(Id("copper"), types.Intern("mix"));
    Store().SetType(Id("F.Cu"), types.Intern("red"));
    Store().SetCheckState(Id("F.Cu"), 1);
    Store().SetCheckState(Id("copper"), 2);
    Store().SetExpanded(Id("copper"), 1);
    Store().SetCellLabel({Id("F.Cu"), 0}, L"<img src=\"color_square.png_255\">");
    Show();
  }

  QAccessibleInterface* Row(const std::string& name, int column = 0) {
    QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&View());
    const QModelIndex index = Index(name, column);
    const QRect place = View().visualRect(index);
    const QPoint at = View().viewport()->mapToGlobal(place.center());
    return tree->childAt(at.x(), at.y());
  }
};

TEST_F(WordsTest, ScreenReaderHearsRoleNameColourCheckCountsAndLevel) {
  Plant();
  QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&View());
  ASSERT_TRUE(tree);
  EXPECT_EQ(tree->role(), QAccessible::Tree);
  QAccessibleInterface* copper = Row("copper");
  ASSERT_TRUE(copper);
  EXPECT_EQ(copper->role(), QAccessible::TreeItem);
  EXPECT_EQ(copper->text(QAccessible::Name), "Copper (2)");
  EXPECT_EQ(copper->text(QAccessible::Description),
            "mixed, partly checked, 2 below, 1 of them checked, level 1, expanded");
  EXPECT_TRUE(copper->state().expandable);
  EXPECT_TRUE(copper->state().expanded);
  QAccessibleInterface* front = Row("F.Cu");
  ASSERT_TRUE(front);
  EXPECT_EQ(front->text(QAccessible::Name), "F.Cu");
  EXPECT_EQ(front->text(QAccessible::Description), "colour red, checked, level 2");
  EXPECT_FALSE(front->state().expandable);
  EXPECT_FALSE(front->state().selected);
  Click("F.Cu");
  EXPECT_TRUE(front->state().selected);
}

TEST_F(WordsTest, ScreenReaderHearsTheColourOfACellAndItsColumn) {
  Plant();
  QAccessibleInterface* cell = Row("F.Cu", 1);
  ASSERT_TRUE(cell);
  EXPECT_EQ(cell->text(QAccessible::Name), "colour red");
  EXPECT_EQ(cell->text(QAccessible::Description), "A");
}

TEST_F(WordsTest, TooltipSaysNameColourAndCounts) {
  Plant();
  EXPECT_EQ(uiox_qt::ItemTip(Model(), Index("F.Cu"), false), "F.Cu\ncolour red (#ff0000)");
  EXPECT_EQ(uiox_qt::ItemTip(Model(), Index("copper"), false), "Copper (2)\nmixed\n2 below, 1 of them checked");
  EXPECT_EQ(uiox_qt::ItemTip(Model(), Index("F.Cu", 1), false), "A: colour red");
  EXPECT_EQ(uiox_qt::ItemTip(Model(), Index("B.Cu"), false), "");
  EXPECT_EQ(uiox_qt::ItemTip(Model(), Index("B.Cu"), true), "B.Cu");
}

TEST_F(WordsTest, RestingOnANodeShowsItsTooltip) {
  Plant();
  const QPoint at = Middle("F.Cu");
  QHelpEvent rest(QEvent::ToolTip, at, View().viewport()->mapToGlobal(at));
  QCoreApplication::sendEvent(View().viewport(), &rest);
  EXPECT_TRUE(QToolTip::text().contains("colour red")) << QToolTip::text().toStdString();
}

TEST_F(WordsTest, CopyGivesTheSelectedNamesWithoutMarkupInTheOrderOfTheRows) {
  Plant();
  Click("B.Cu");
  Click("copper", Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "Copper (2)\nB.Cu");
}

TEST_F(WordsTest, LettersInSquaresAreThoseOfTheColours) {
  Plant();
  const QImage plain = uiox_qt::ImagePixmap("color_square.png_255", 16, 2).toImage();
  uiox_qt::ShowLettersInSquares(true);
  const QImage lettered = uiox_qt::ImagePixmap("color_square.png_255", 16, 2).toImage();
  EXPECT_NE(plain, lettered);
  uiox_qt::ShowLettersInSquares(false);
  EXPECT_EQ(uiox_qt::ImagePixmap("color_square.png_255", 16, 2).toImage(), plain);
}

}  // namespace
}  // namespace uiox_qt_tests
