// The check callback, the dirty handler, registration and removal.
#include <tests/support/DirtySpy.h>
#include <tests/uicomps/tree/TreeTest.h>

#include <memory>

namespace oxecad_ui {
namespace {

using test_support::DirtySpy;
using TreeEvents = TreeTest;
using Reasons = std::vector<std::intptr_t>;

TEST_F(TreeEvents, ConstructionCallsNothing) { EXPECT_TRUE(toolkit.Took("")); }

TEST_F(TreeEvents, InitRegistersTheBaseEventsAndThenCheck) {
  tree.Init();
  EXPECT_TRUE(toolkit.Took(R"(
    add_action dev:tree 4 Activate f1 &tree 0
    add_action dev:tree 30 Collapse f2 &tree 0
    add_action dev:tree 29 Expand f3 &tree 0
    add_action dev:tree 3 Select f4 &tree 0
    add_action dev:tree 7 Check f5 &tree 0)"));
}

TEST(TreeLife, DestructionRemovesCheckFirst) {
  RecordingToolkit toolkit;
  {
    Tree tree("dev", "tree");
    tree.Init();
    toolkit.TakeLines();
  }
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:tree 7 Check f5
    remove_action dev:tree 3 Select f4
    remove_action dev:tree 29 Expand f3
    remove_action dev:tree 30 Collapse f2
    remove_action dev:tree 4 Activate f1)"));
}

class CheckTree : public Tree {
 public:
  using Tree::Tree;
  void OnCheck(const char* node) override { checked.push_back(node ? node : "null"); }
  Names checked;
};

TEST(TreeCheck, HandsTheNodeOnAndGivesTheRetrievalsResult) {
  RecordingToolkit toolkit;
  CheckTree tree("dev", "tree");
  tree.Init();
  toolkit.TakeLines();
  toolkit.When(Retrieving(346)).Give(346, "n1");
  EXPECT_EQ(toolkit.Fire("tree", 7), 0);
  EXPECT_EQ(tree.checked, Names{"n1"});
  EXPECT_TRUE(toolkit.Took(R"(retrieve dev:tree | 346->"n1" | 0)"));
}

TEST(TreeCheck, CallsNothingWithoutANode) {
  RecordingToolkit toolkit;
  CheckTree tree("dev", "tree");
  EXPECT_EQ(Tree::CheckCB(&tree), 0);
  toolkit.When(Retrieving(346)).Refuse(7).Give(346, "n1");
  EXPECT_EQ(Tree::CheckCB(&tree), 7);
  EXPECT_EQ(tree.checked, Names{});
  toolkit.When(Retrieving(346)).Give(346, "");
  EXPECT_EQ(Tree::CheckCB(&tree), 0);
  EXPECT_EQ(tree.checked, Names{""}) << "only null is no node";
}

TEST(TreeCheck, GivesMinus1ForNoTree) {
  RecordingToolkit toolkit;
  EXPECT_EQ(Tree::CheckCB(nullptr), -1);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(TreeEvents, ACheckTellsTheHandlerReason1) {
  DirtySpy spy;
  spy.result = 5;
  int second = 0;
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &second);
  tree.OnCheck("n1");
  tree.OnCheck(nullptr);
  EXPECT_EQ(spy.TakeReasons(), (Reasons{1, 1}));
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(TreeEvents, ACheckWithoutAHandlerDoesNothing) {
  tree.OnCheck("n1");
  toolkit.When(Retrieving(346)).Give(346, "n1");
  EXPECT_EQ(Tree::CheckCB(&tree), 0);
  EXPECT_TRUE(toolkit.Took(R"(retrieve dev:tree | 346->"n1" | 0)"));
}

TEST_F(TreeEvents, TheHandlerMayBeTakenAway) {
  DirtySpy spy;
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  tree.SetOnDirtyHandler(nullptr, nullptr, nullptr);
  tree.OnCheck("n1");
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST(TreeCheck, LetsTheHandlerEndTheTree) {
  RecordingToolkit toolkit;
  toolkit.When(Retrieving(346)).Give(346, "n1");
  auto tree = std::make_unique<Tree>("dev", "tree");
  tree->Init();
  DirtySpy spy;
  spy.action = [&] { tree.reset(); };
  tree->SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  EXPECT_EQ(toolkit.Fire("tree", 7), 0);
  EXPECT_EQ(spy.reasons, Reasons{1});
  EXPECT_TRUE(toolkit.Registered().empty());
}

TEST_F(TreeEvents, AChangedNodeStandsAloneInTheListBeforeTheHandlerIsCalled) {
  struct Seen {
    Names changed{"before", "a name that is too long for a small string"};
    std::vector<Names> calls;
    static int Look(void* self, void* reason) {
      EXPECT_EQ(reason, reinterpret_cast<void*>(std::intptr_t{4}));
      static_cast<Seen*>(self)->calls.push_back(static_cast<Seen*>(self)->changed);
      return 0;
    }
  } seen;
  tree.SetOnDirtyHandler(Seen::Look, &seen, &seen.changed);
  tree.NotifyNode(seen.changed[1], OpenTree::NodeExpanded);
  EXPECT_EQ(seen.calls, std::vector<Names>{{"a name that is too long for a small string"}});
  tree.SetOnDirtyHandler(Seen::Look, &seen, nullptr);
  tree.NotifyNode("n", OpenTree::NodeExpanded);
  EXPECT_EQ(seen.calls.size(), 2u) << "without a list, too";
  tree.SetOnDirtyHandler(nullptr, nullptr, &seen.changed);
  tree.NotifyNode("n", OpenTree::NodeExpanded);
  EXPECT_EQ(seen.changed.size(), 1u) << "without a handler the list is nobody's";
}

}  // namespace
}  // namespace oxecad_ui
