#include <tests/support/DirtySpy.h>
#include <tests/uicomps/tree/TreeTest.h>

#include <memory>

namespace oxecad_ui {
namespace {

using test_support::DirtySpy;

class TreeCopy : public TreeTest {
 protected:
  /// The sibling that a node with this label is added before ("end": none).
  std::string Add(Tree& target, const std::string& name, const wchar_t* label) {
    GiveLabel(name, label);
    std::string before;
    toolkit.When(Doing(2030)).Once().Run([&](const uiox::Call& call) {
      before = call.positional[3].Text() ? call.positional[3].Text() : "end";
    });
    EXPECT_TRUE(target.AddEcadNode(name.c_str(), label, "root", Tree::ByLabel, "", L"", 0, 0, 0, nullptr));
    return before;
  }
};

TEST_F(TreeCopy, CallsNothingAndWorksOnTheSameComponent) {
  OpenTree copy(tree);
  OpenTree assigned("x", "y");
  assigned = tree;
  EXPECT_TRUE(toolkit.Took(""));
  copy.SetNodeState("n", Tree::Checked);
  assigned.SetNodeState("m", Tree::Checked);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "n" | 31=1 | 0
    do dev:tree 2201 SetNode "m" | 31=1 | 0)"));
}

TEST_F(TreeCopy, HasAMemoryOfItsOwnWithTheSameEntries) {
  Add(tree, "b", L"b");
  OpenTree copy(tree);
  EXPECT_EQ(Add(copy, "a", L"a"), "b");
  EXPECT_EQ(Add(tree, "a0", L"a"), "b") << "the original does not know of the copy's a";
  EXPECT_EQ(Add(copy, "a1", L"a"), "a");
}

TEST_F(TreeCopy, AssignmentReplacesTheMemory) {
  OpenTree source(tree);
  Add(source, "m", L"m");
  Add(tree, "b", L"b");
  tree = source;
  EXPECT_EQ(Add(tree, "a", L"a"), "m");
  EXPECT_EQ(Add(source, "c", L"c"), "m");
}

TEST_F(TreeCopy, AssignmentToItselfKeepsTheMemory) {
  Add(tree, "b", L"b");
  const OpenTree& same = tree;
  tree = same;
  EXPECT_EQ(Add(tree, "a", L"a"), "b");
  EXPECT_STREQ(tree.GetName(), "tree");
}

TEST_F(TreeCopy, MemoryOutlivesTheOriginal) {
  auto original = std::make_unique<OpenTree>("dev", "tree");
  Add(*original, "b", L"b");
  OpenTree copy(*original);
  original.reset();
  EXPECT_EQ(Add(copy, "a", L"a"), "b");
}

TEST_F(TreeCopy, HasTheSameHandlerAndClients) {
  DirtySpy spy;
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  OpenTree copy(tree);
  OpenTree assigned("x", "y");
  assigned = tree;
  copy.OnCheck("n");
  assigned.OnCheck("n");
  EXPECT_EQ(spy.reasons.size(), 2u);
}

TEST_F(TreeCopy, RemovesTheCallbacksAgain) {
  tree.Init();
  toolkit.TakeLines();
  { const OpenTree copy(tree); }
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:tree 7 Check f5
    remove_action dev:tree 3 Select f4
    remove_action dev:tree 29 Expand f3
    remove_action dev:tree 30 Collapse f2
    remove_action dev:tree 4 Activate f1)"));
  EXPECT_TRUE(toolkit.Registered().empty());
}

}  // namespace
}  // namespace oxecad_ui
