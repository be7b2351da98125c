#include <QAbstractItemView>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>

#include <string>
#include <vector>

#include <uiox/UserEvents.h>

namespace oxviewer::testing {
namespace {

constexpr QRgb kA = 0xD97706;
constexpr QRgb kB = 0x3B8BE8;
constexpr QRgb kBothHave = 0x6F747A;
constexpr QRgb kBackground = 0x161B21;

enum Column { kColumnShow = 1, kColumnA, kColumnB, kColumnOverlap, kColumnDim };

// Level tracks on the front: A alone has one at y = 5, both have one at y = 10, B alone has one at y = 15.
Board BoardWith(const std::string& tracks) {
  return SmallBoard(
      "(net 0 \"\") (net 1 \"N\") (net 2 \"SAME\") (gr_rect (start 0 0) (end 40 20) (layer \"Edge.Cuts\") (width "
      "0.2))" +
      tracks);
}
std::string TrackAt(int y, int net) {
  const std::string level = std::to_string(y);
  return "(segment (start 2 " + level + ") (end 28 " + level + ") (width 2) (layer \"F.Cu\") (net " +
         std::to_string(net) + "))";
}

class CompareWindowTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    Compare(BoardWith(TrackAt(5, 1) + TrackAt(10, 1) + TrackAt(18, 2)),
            BoardWith(TrackAt(10, 1) + TrackAt(15, 1) + TrackAt(18, 2)));
  }
  TreePanel& Panel() { return Window().Comparison().Panel(); }
  CompareTree& Tree() { return *Session().Trees().Compare(); }

  void ChooseMode(const char* node, const char* mode) {
    uiox::TreeWidget& tree = *Panel().View().Tree();
    const uiox::CellPlace cell{tree.Store().Find(node), tree.FindColumn("showMode")};
    ASSERT_TRUE(uiox::user::ClickCell(tree, cell));
    ASSERT_TRUE(uiox::user::ChooseCellOption(tree, cell, mode));
    Settle();
  }

  void ClickCell(const char* node, int column) {
    QTest::mouseClick(Panel().View().viewport(), Qt::LeftButton, {}, RowOf(Panel(), node, column).center());
    Settle();
  }

  void ChooseColor(const char* node, int column, QRgb before, QRgb chosen) {
    Soon([before, chosen] {
      auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      EXPECT_EQ(dialog->currentColor().rgb() & 0xFFFFFF, before);
      dialog->setCurrentColor(QColor(chosen));
      dialog->accept();
    });
    ClickCell(node, column);
  }

  /// Null while there is none in the node's cell.
  QComboBox* MenuIn(const char* node) {
    return qobject_cast<QComboBox*>(Panel().View().indexWidget(IndexOf(Panel(), node, kColumnShow)));
  }
  /// Goes to an entry with the keyboard and takes it.
  void Choose(QComboBox& menu, const char* mode) {
    QAbstractItemView& entries = *menu.view();
    const int row = menu.findData(QString(mode));
    ASSERT_GE(row, 0) << mode;
    QTest::keyClick(&entries, Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(&entries, Qt::Key_Down);
    QTest::keyClick(&entries, Qt::Key_Return);
    Settle();
  }

  /// On the three tracks, off the grid's points.
  std::vector<QRgb> Colors() { return {ColorAt(10.3, 5.3), ColorAt(10.3, 10.3), ColorAt(10.3, 15.3)}; }
};

TEST_F(CompareWindowTest, ShowsWhatOnlyOneBoardHasAndWhatBothHave) {
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, kBothHave, kB}));
}

TEST_F(CompareWindowTest, ShowModesLetTheirPartsThrough) {
  const struct {
    const char* mode;
    std::vector<QRgb> colors;
  } rows[] = {{"a_show", {kA, kBothHave, kBackground}},
              {"b_show", {kBackground, kBothHave, kB}},
              {"a-b_show", {kA, kBackground, kBackground}},
              {"b-a_show", {kBackground, kBackground, kB}},
              {"overlap_show", {kBackground, kBothHave, kBackground}},
              {"diff_show", {kA, kBackground, kB}},
              {"both_show", {kA, kBothHave, kB}}};
  for (const auto& row : rows) {
    ChooseMode("nets/net:N", row.mode);
    EXPECT_EQ(Colors(), row.colors) << row.mode;
  }
}

TEST_F(CompareWindowTest, DimBoxDimsTheOverlap) {
  ClickCell("nets/net:N", 5);
  EXPECT_EQ(ColorAt(10, 5), kA);
  EXPECT_LT(qRed(ColorAt(10, 10)), qRed(kBothHave) / 2);
}

TEST_F(CompareWindowTest, SelectedLayerStandsOutWithAllThatLiesOnIt) {
  ClickNode(Panel(), "layers/layer:F.Cu");
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, kBothHave, kB}));
  ClickNode(Panel(), "layers/layer:B.Cu");
  const std::vector<QRgb> dimmed = Colors();
  EXPECT_LT(qRed(dimmed[0]), qRed(kA) / 2);
  EXPECT_LT(qRed(dimmed[1]), qRed(kBothHave) / 2);
  EXPECT_LT(qBlue(dimmed[2]), qBlue(kB) / 2);
}

TEST_F(CompareWindowTest, ChosenColourOfAShowsAtOnce) {
  ChooseColor("nets/net:N", kColumnA, kA, 0x00FF00);
  EXPECT_EQ(Colors(), (std::vector<QRgb>{0x00FF00, kBothHave, kB}));
}

TEST_F(CompareWindowTest, ChosenColourOfBShowsAtOnce) {
  ChooseColor("nets/net:N", kColumnB, kB, 0x00FF00);
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, kBothHave, 0x00FF00}));
}

TEST_F(CompareWindowTest, ChosenColourOfTheOverlapShowsAtOnce) {
  ChooseColor("nets/net:N", kColumnOverlap, kBothHave, 0x00FF00);
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, 0x00FF00, kB}));
}

TEST_F(CompareWindowTest, CancelledColoursChangeNothing) {
  for (const int column : {kColumnA, kColumnB, kColumnOverlap}) {
    Soon([] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
    ClickCell("nets/net:N", column);
  }
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, kBothHave, kB}));
}

TEST_F(CompareWindowTest, ColourOfAHeadingGoesDownToAllBelow) {
  ChooseColor("nets", kColumnA, kA, 0x00FF00);
  EXPECT_EQ(Colors(), (std::vector<QRgb>{0x00FF00, kBothHave, kB}));
}

// --- The menu of show modes ------------------------------------------------------------------------------------------

TEST_F(CompareWindowTest, ClickedShowModeCellOpensItsMenuAndTakesTheChoice) {
  ClickCell("nets/net:N", kColumnShow);
  QComboBox* menu = MenuIn("nets/net:N");
  ASSERT_TRUE(menu);
  EXPECT_EQ(menu->count(), 8);
  EXPECT_TRUE(menu->view()->isVisible());
  Choose(*menu, "a-b_show");
  EXPECT_EQ(MenuIn("nets/net:N"), nullptr);
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, kBackground, kBackground}));
}

TEST_F(CompareWindowTest, NoChoiceLeavesTheShowModeAndTakesTheMenuAway) {
  ClickCell("nets/net:N", kColumnShow);
  ASSERT_TRUE(MenuIn("nets/net:N"));
  Choose(*MenuIn("nets/net:N"), "none");
  EXPECT_EQ(MenuIn("nets/net:N"), nullptr);
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, kBothHave, kB}));
}

TEST_F(CompareWindowTest, SecondShowModeCellTakesTheMenuFromTheFirst) {
  ClickCell("nets/net:SAME", kColumnShow);
  ASSERT_TRUE(MenuIn("nets/net:SAME"));
  MenuIn("nets/net:SAME")->hidePopup();  // as the click outside does
  ClickCell("nets/net:N", kColumnShow);
  EXPECT_EQ(MenuIn("nets/net:SAME"), nullptr);
  ASSERT_TRUE(MenuIn("nets/net:N"));
  Choose(*MenuIn("nets/net:N"), "diff_show");
  EXPECT_EQ(Colors(), (std::vector<QRgb>{kA, kBackground, kB}));
  const auto& subjects = Tree().Subjects();
  for (std::size_t i = 0; i < subjects.size(); ++i) {
    if (subjects[i].node != "nets/net:SAME") continue;
    EXPECT_EQ(Tree().LookOf(i).showMode, oxk::ecad::CompareColorVis::Both);
  }
}

// --- Dimming ---------------------------------------------------------------------------------------------------------

TEST_F(CompareWindowTest, DimBoxOfAHeadingShowsThreeStatesAndTogglesAllBelow) {
  const auto state = [this](const char* node) {
    return IndexOf(Panel(), node, kColumnDim).data(Qt::CheckStateRole).toInt();
  };
  EXPECT_EQ(state("nets"), Qt::Unchecked);
  ClickCell("nets/net:N", kColumnDim);
  EXPECT_EQ(state("nets/net:N"), Qt::Checked);
  EXPECT_EQ(state("nets"), Qt::PartiallyChecked);
  ClickCell("nets", kColumnDim);
  EXPECT_EQ(state("nets"), Qt::Checked);
  EXPECT_EQ(state("nets/net:SAME"), Qt::Checked);
  ClickCell("nets", kColumnDim);
  EXPECT_EQ(state("nets"), Qt::Unchecked);
  EXPECT_EQ(ColorAt(10.3, 10.3), kBothHave);
}

TEST_F(CompareWindowTest, KeyGoesFromDifferenceToDifference) {
  QTest::keyClick(&Window(), Qt::Key_F3);
  Settle();
  ASSERT_EQ(Tree().Selected().size(), 1u);
  EXPECT_EQ(Tree().Subjects()[Tree().Selected()[0]].node, "nets/net:N");
  EXPECT_TRUE(View().CurrentViewport().Area().contains(QRectF(2, 5, 26, 10)));
  QTest::keyClick(&Window(), Qt::Key_F3, Qt::ShiftModifier);
  Settle();
  EXPECT_EQ(Tree().Subjects()[Tree().Selected().at(0)].node, "nets/net:N");
}

TEST_F(CompareWindowTest, SelectedNetStandsOut) {
  ClickNode(Panel(), "nets/net:SAME");
  EXPECT_EQ(ColorAt(10, 18), kBothHave);
  EXPECT_LT(qRed(ColorAt(10, 10)), qRed(kBothHave));
}

TEST_F(CompareWindowTest, FilterAndBoxLeaveDifferencesOnly) {
  for (QCheckBox* box : Window().Comparison().findChildren<QCheckBox*>())
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
  EXPECT_TRUE(IsHidden(Panel(), "nets/net:SAME"));
  EXPECT_FALSE(IsHidden(Panel(), "nets/net:N"));
  EXPECT_TRUE(IsHidden(Panel(), "layers"));
  QTest::keyClicks(&Panel().Filter(), "no such name");
  EXPECT_TRUE(IsHidden(Panel(), "nets/net:N"));
}

TEST_F(CompareWindowTest, HiddenLayerIsGoneFromBothBoards) {
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  EXPECT_EQ(ColorAt(10.3, 5.3), kBackground);
  EXPECT_EQ(ColorAt(10.3, 15.3), kBackground);
}

TEST_F(CompareWindowTest, OneBoardAfterwardsHasNoComparison) {
  Show(SmallBoard(kWindowBoard));
  EXPECT_FALSE(Window().Comparison().isVisible());
  QTest::keyClick(&Window(), Qt::Key_F3);
  EXPECT_FALSE(Session().IsComparing());
}

}  // namespace
}  // namespace oxviewer::testing
