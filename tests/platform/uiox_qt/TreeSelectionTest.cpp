#include "TreeFixture.h"

namespace uiox_qt_tests {
namespace {

class TreeSelectionTest : public TreeFixture {
 protected:
  /// root with a, b and c.
  void Plant(const std::string& style = {}) {
    Make(style);
    Add("root");
    for (const char* name : {"a", "b", "c"}) Add(name, "root");
    Store().SetExpanded(Id("root"), 1);
    Show();
  }
};

TEST_F(TreeSelectionTest, SelectsANodeByAClick) {
  Plant();
  Click("b");
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), Words{"b"});
  EXPECT_EQ(Tree().SelectionKind(), uiox::user::kNewSelection);
  EXPECT_EQ(Tree().ActivatedNode(), Id("b"));
  Click("c");
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), Words{"c"});
}

TEST_F(TreeSelectionTest, SaysNothingWhenTheSelectionStaysAsItIs) {
  Plant();
  Click("b");
  Heard();
  Click("b");
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeSelectionTest, TakesSingleNodesInAndOutWithControl) {
  Plant();
  Click("c");
  Click("a", Qt::ControlModifier);
  EXPECT_EQ(Heard(), (Words{"select", "select"}));
  EXPECT_EQ(Selected(), (Words{"c", "a"}));
  EXPECT_EQ(Tree().SelectionKind(), uiox::user::kOneAtATime);
  EXPECT_EQ(Tree().ActivatedNode(), Id("a"));
  Click("c", Qt::ControlModifier);
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), Words{"a"});
  EXPECT_EQ(Tree().SelectionKind(), uiox::user::kOneAtATime);
  EXPECT_EQ(Tree().ActivatedNode(), Id("c"));
}

TEST_F(TreeSelectionTest, SelectsARangeWithShift) {
  Plant();
  Click("a");
  Heard();
  Click("c", Qt::ShiftModifier);
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), (Words{"a", "b", "c"}));
  EXPECT_EQ(Tree().SelectionKind(), uiox::user::kExtended);
  EXPECT_EQ(Tree().ActivatedNode(), Id("c"));
}

TEST_F(TreeSelectionTest, SelectsWithTheKeyboard) {
  Plant();
  Click("a");
  Heard();
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), Words{"b"});
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), (Words{"b", "c"}));
  EXPECT_EQ(Tree().SelectionKind(), uiox::user::kExtended);
  EXPECT_EQ(Heard(), (Words{"select", "select"}));
  Press(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Heard(), Words{});
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), Words{"c"});
  EXPECT_EQ(Tree().SelectionKind(), uiox::user::kOneAtATime);
}

TEST_F(TreeSelectionTest, SelectsAllInTheOrderOfTheRows) {
  Plant();
  Click("c");
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Selected(), (Words{"c", "root", "a", "b"}));
}

TEST_F(TreeSelectionTest, SelectsNothingByAClickOnTheGround) {
  Plant();
  Click("c");
  Heard();
  Click(QPoint(100, 380));
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), Words{});
}

TEST_F(TreeSelectionTest, ClickOnTheGroundIsToldAlsoWhereNothingIsMarked) {
  Plant();
  Click(QPoint(100, 380));
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), Words{});
}

TEST_F(TreeSelectionTest, FollowsAProgramThatSelectsWithoutTellingItBack) {
  Plant();
  Store().Select({Id("a"), Id("c")});
  EXPECT_EQ(SelectedInView(), (Words{"a", "c"}));
  Store().SetThirdInt(Id("a"), 0);
  EXPECT_EQ(SelectedInView(), Words{"c"});
  Store().Select({});
  EXPECT_EQ(SelectedInView(), Words{});
  Settle();
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeSelectionTest, ShowsWhatACallbackMakesOfTheSelection) {
  Plant();
  on_hear_ = [this](const std::string&) { Store().SetThirdInt(Id("b"), 0); };
  Click("b");
  EXPECT_EQ(Heard(), Words{"select"});
  EXPECT_EQ(Selected(), Words{});
  EXPECT_EQ(SelectedInView(), Words{});
}

TEST_F(TreeSelectionTest, TakesOneNodeAtMostWhereTheTreeSaysSo) {
  Plant(R"("selection": "single")");
  Click("a");
  Click("b", Qt::ControlModifier);
  EXPECT_EQ(Selected(), Words{"b"});
  EXPECT_EQ(SelectedInView(), Words{"b"});
  Heard();
  Store().Remove(Id("b"));
  EXPECT_EQ(Selected(), Words{});
  EXPECT_EQ(SelectedInView(), Words{});
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(TreeSelectionTest, SelectsNothingWhereTheTreeSaysSo) {
  Plant(R"("selection": "none")");
  Click("a");
  EXPECT_EQ(Selected(), Words{});
  EXPECT_EQ(Heard(), Words{});
}

}  // namespace
}  // namespace uiox_qt_tests
