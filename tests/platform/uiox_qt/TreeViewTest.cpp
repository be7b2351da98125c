#include "TreeFixture.h"

namespace uiox_qt_tests {
namespace {

using uiox::kNoNode;

constexpr char kPlain[] = R"("rootShown": true)";
constexpr char kBoxes[] = R"("checkBoxes": true)";

class TreeViewTest : public TreeFixture {
 protected:
  /// root (expanded) with a, b (with b1 and b2), c.
  void Plant(const std::string& style = kPlain) {
    Make(style);
    Add("root");
    Add("a", "root");
    Add("b", "root");
    Add("c", "root");
    Add("b1", "b");
    Add("b2", "b");
    Store().SetExpanded(Id("root"), 1);
    Show();
  }

  QPoint Arrow(const std::string& name) {
    const QRect item = View().visualRect(Index(name));
    return {item.left() - View().indentation() / 2, item.center().y()};
  }
};

// --- Expansion -------------------------------------------------------------------------------------------------------

TEST_F(TreeViewTest, ShowsNodesThatWereExpandedBeforeItWasMade) {
  Plant();
  EXPECT_EQ(Rows(), "root a b c");
}

TEST_F(TreeViewTest, FollowsAProgramThatExpandsAndCollapsesWithoutTellingItBack) {
  Plant();
  Store().SetExpanded(Id("b"), 1);
  EXPECT_EQ(Rows(), "root a b b1 b2 c");
  Store().SetExpanded(Id("b"), 0);
  EXPECT_EQ(Rows(), "root a b c");
  Store().SetBranchExpanded(Id("root"), true);
  EXPECT_EQ(Rows(), "root a b b1 b2 c");
  Store().SetBranchExpanded(Id("root"), false);
  EXPECT_EQ(Rows(), "root");
  Settle();
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeViewTest, TellsAnExpansionByTheArrowOnce) {
  Plant();
  Click(Arrow("b"));
  EXPECT_EQ(Heard(), Words{"expand"});
  EXPECT_EQ(Tree().ToggledNode(), Id("b"));
  EXPECT_EQ(Store().Expanded(Id("b")), 1);
  EXPECT_EQ(Rows(), "root a b b1 b2 c");
  Click(Arrow("b"));
  EXPECT_EQ(Heard(), Words{"collapse"});
  EXPECT_EQ(Store().Expanded(Id("b")), 0);
  EXPECT_EQ(Rows(), "root a b c");
}

TEST_F(TreeViewTest, ExpandsAndCollapsesWithTheKeyboard) {
  Plant();
  Click("b");
  Heard();
  Press(Qt::Key_Right);
  EXPECT_EQ(Heard(), Words{"expand"});
  Press(Qt::Key_Left);
  EXPECT_EQ(Heard(), Words{"collapse"});
  Press(Qt::Key_Plus);
  EXPECT_EQ(Heard(), Words{"expand"});
  Press(Qt::Key_Minus);
  EXPECT_EQ(Heard(), Words{"collapse"});
}

TEST_F(TreeViewTest, ExpandsTheWholeBranchWithTheAsterisk) {
  Plant();
  Add("b21", "b2");
  Click("b");
  Heard();
  Press(Qt::Key_Asterisk);
  EXPECT_EQ(Heard(), (Words{"expand", "expand"}));
  EXPECT_EQ(Rows(), "root a b b1 b2 b21 c");
}

TEST_F(TreeViewTest, KeepsTheExpansionOfNodesBelowACollapsedOne) {
  Plant();
  Add("b21", "b2");
  Store().SetExpanded(Id("b2"), 1);
  EXPECT_EQ(Rows(), "root a b c");
  Click(Arrow("b"));
  EXPECT_EQ(Rows(), "root a b b1 b2 b21 c");
}

TEST_F(TreeViewTest, OpensANodeThatWasAddedExpandedWhenItGetsItsFirstChild) {
  Plant();
  uiox::NewNode node;
  node.name = "d";
  node.label = L"d";
  node.expanded = 1;
  Store().Add(node, Id("root"));
  Add("d1", "d");
  EXPECT_EQ(Rows(), "root a b c d d1");
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeViewTest, TakesAnExpansionBackThatTheTreeRefuses) {
  Plant();
  Tree().SetSensitive(false);
  View().setExpanded(Index("b"), true);
  EXPECT_EQ(Heard(), Words{});
  EXPECT_EQ(Rows(), "root a b c");
}

TEST_F(TreeViewTest, HidesTheRootOnRequest) {
  Plant(R"("rootShown": false)");
  EXPECT_EQ(Rows(), "a b c");
  Store().Remove(Id("root"));
  EXPECT_EQ(Rows(), "");
  Add("again");
  Add("x", "again");
  Settle();
  EXPECT_EQ(Rows(), "x");
}

TEST_F(TreeViewTest, HasItsStateBackAfterALoadWithoutRedraw) {
  Plant();
  Store().SetExpanded(Id("b"), 1);
  Click("b2");
  Heard();
  Tree().SetRedraw(false);
  for (int i = 0; i < 200; ++i) Add("n" + std::to_string(i), "a");
  Tree().SetRedraw(true);
  View().FollowWidget();
  EXPECT_EQ(Rows(), "root a b b1 b2 c");
  EXPECT_EQ(SelectedInView(), Words{"b2"});
  EXPECT_EQ(View().CurrentNode(), Id("b2"));
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeViewTest, ShowsANodeByExpandingWhatIsAboveIt) {
  Plant();
  View().ShowNode(Id("b2"));
  EXPECT_EQ(Rows(), "root a b b1 b2 c");
  EXPECT_EQ(View().CurrentNode(), Id("b2"));
  EXPECT_EQ(Heard(), Words{"expand"});
  EXPECT_EQ(Selected(), Words{});
}

// --- Activation ------------------------------------------------------------------------------------------------------

TEST_F(TreeViewTest, ActivatesByADoubleClickOnce) {
  Plant();
  DoubleClick(Middle("b"));
  EXPECT_EQ(Heard(), (Words{"select", "activate"}));
  EXPECT_EQ(Tree().ActivatedNode(), Id("b"));
  EXPECT_EQ(Rows(), "root a b c");
}

TEST_F(TreeViewTest, ActivatesByEnter) {
  Plant();
  Click("c");
  Heard();
  Press(Qt::Key_Return);
  Press(Qt::Key_Enter);
  EXPECT_EQ(Heard(), (Words{"activate", "activate"}));
  EXPECT_EQ(Tree().ActivatedNode(), Id("c"));
}

TEST_F(TreeViewTest, DoesNothingWhileItIsNotSensitive) {
  Plant(kBoxes);
  Tree().SetSensitive(false);
  View().FollowWidget();
  Click("b");
  Click(Box("b"));
  Press(Qt::Key_Return);
  EXPECT_EQ(Heard(), Words{});
}

// --- Check boxes -----------------------------------------------------------------------------------------------------

TEST_F(TreeViewTest, ShowsTheThreeStatesOfCheckBoxes) {
  Plant(kBoxes);
  EXPECT_EQ(Index("a").data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  Store().SetCheckState(Id("a"), 1);
  EXPECT_EQ(Index("a").data(Qt::CheckStateRole).toInt(), Qt::Checked);
  Store().SetPartlyChecked(Id("a"), true);
  EXPECT_EQ(Index("a").data(Qt::CheckStateRole).toInt(), Qt::PartiallyChecked);
}

TEST_F(TreeViewTest, HasNoCheckBoxesWhereTheTreeHasNone) {
  Plant();
  EXPECT_FALSE(Index("a").data(Qt::CheckStateRole).isValid());
  EXPECT_TRUE(View().CheckBoxRect(Index("a")).isEmpty());
}

TEST_F(TreeViewTest, TogglesACheckBoxByAClickAndLeavesTheSelectionAlone) {
  Plant(kBoxes);
  Click("a");
  Click("c", Qt::ControlModifier);
  Heard();
  Click(Box("b"));
  EXPECT_EQ(Heard(), Words{"check"});
  EXPECT_EQ(Tree().CheckedNode(), Id("b"));
  EXPECT_EQ(Store().CheckState(Id("b")), 1u);
  EXPECT_EQ(Selected(), (Words{"a", "c"}));
  Click(Box("b"));
  EXPECT_EQ(Store().CheckState(Id("b")), 0u);
}

TEST_F(TreeViewTest, TogglesACheckBoxTwiceByADoubleClick) {
  Plant(kBoxes);
  const QPoint box = Box("b");
  DoubleClick(box);
  EXPECT_EQ(Heard(), (Words{"check", "check"}));
}

TEST_F(TreeViewTest, TogglesNothingWhereTheMouseIsReleasedElsewhere) {
  Plant(kBoxes);
  QTest::mousePress(View().viewport(), Qt::LeftButton, Qt::NoModifier, Box("b"));
  QTest::mouseRelease(View().viewport(), Qt::LeftButton, Qt::NoModifier, Box("c"));
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeViewTest, TogglesTheCurrentNodeBySpace) {
  Plant(kBoxes);
  Click("b");
  Heard();
  Press(Qt::Key_Space);
  EXPECT_EQ(Heard(), Words{"check"});
  EXPECT_EQ(Store().CheckState(Id("b")), 1u);
  EXPECT_EQ(Selected(), Words{"b"});
}

TEST_F(TreeViewTest, LeavesALockedCheckBoxAlone) {
  Plant(kBoxes);
  Store().SetCheckSensitive(Id("b"), false);
  EXPECT_FALSE(Index("b").flags() & Qt::ItemIsUserCheckable);
  Click(Box("b"));
  EXPECT_EQ(Heard(), Words{});
  EXPECT_EQ(Store().CheckState(Id("b")), 0u);
}

// --- Callbacks that change everything
// ----------------------------------------------------------------------------------

TEST_F(TreeViewTest, OutlivesACallbackThatRemovesTheNode) {
  Plant(kBoxes);
  on_hear_ = [this](const std::string&) {
    if (Id("b") != kNoNode) Store().Remove(Id("b"));
  };
  DoubleClick(Middle("b"));
  Settle();
  EXPECT_EQ(Rows(), "root a c");
}

TEST_F(TreeViewTest, OutlivesACallbackThatClearsTheTree) {
  Plant(kBoxes);
  for (const char* word : {"select", "activate", "check", "expand"}) {
    on_hear_ = [this, word](const std::string& heard) {
      if (heard == word) Store().Clear();
    };
    Click(Arrow("b"));
    if (Id("b") != kNoNode) Click(Box("b"));
    if (Id("b") != kNoNode) DoubleClick(Middle("b"));
    Settle();
    EXPECT_EQ(Rows(), "") << word;
    on_hear_ = nullptr;
    Add("root");
    Add("a", "root");
    Add("b", "root");
    Add("b1", "b");
    Store().SetExpanded(Id("root"), 1);
    Settle();
  }
}

// --- Size
// --------------------------------------------------------------------------------------------------------------

TEST_F(TreeViewTest, HoldsAHundredThousandSiblings) {
  Make(kBoxes);
  Add("root");
  Store().SetExpanded(Id("root"), 1);
  view_without_tester_ = true;
  Show();
  for (int i = 0; i < 100'000; ++i) Add("n" + std::to_string(i), "root");
  Settle();
  EXPECT_EQ(Model().rowCount(Index("root")), 100'000);
  View().scrollToBottom();
  Click("n99999");
  EXPECT_EQ(Selected(), Words{"n99999"});
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Store().SelectionSize(), 100'001u);
  for (int i = 0; i < 100'000; ++i) Store().SetLabel(Id("n" + std::to_string(i)), L"x");
  Settle();
  EXPECT_EQ(Index("n99999").data().toString(), QStringLiteral("x"));
}

}  // namespace
}  // namespace uiox_qt_tests
