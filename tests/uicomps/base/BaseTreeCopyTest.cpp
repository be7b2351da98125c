#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/base/BaseTree.h>

#include <optional>

namespace oxecad_ui {
namespace {

using test_support::RecordingToolkit;

TEST(BaseTreeCopy, WorksOnTheSameComponentAndCallsNothing) {
  RecordingToolkit toolkit;
  BaseTree tree("dev", "tree");
  BaseTree copy(tree);
  EXPECT_TRUE(toolkit.Took(""));
  copy.DeleteNode("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2031 DeleteNode "n" | 0)"));
}

TEST(BaseTreeCopy, RemovesTheCallbacksAgain) {
  RecordingToolkit toolkit;
  BaseTree tree("dev", "tree");
  tree.Init();
  toolkit.TakeLines();
  { const BaseTree copy(tree); }
  EXPECT_TRUE(toolkit.Registered().empty()) << "the copy's end removed the functions that the tree had registered";
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:tree 3 Select f4
    remove_action dev:tree 29 Expand f3
    remove_action dev:tree 30 Collapse f2
    remove_action dev:tree 4 Activate f1)"));
}

TEST(BaseTreeCopy, AssignmentTakesTheNamesAndCallsNothing) {
  RecordingToolkit toolkit;
  BaseTree tree("dev", "tree");
  const BaseTree other("device2", "list");
  tree = other;
  EXPECT_STREQ(tree.GetDevice(), "device2");
  EXPECT_STREQ(tree.GetName(), "list");
  const BaseTree& same = tree;
  tree = same;
  EXPECT_STREQ(tree.GetName(), "list");
  EXPECT_TRUE(toolkit.Took(""));
}

TEST(BaseTreeCopy, OutlivesItsOriginal) {
  RecordingToolkit toolkit;
  std::optional<BaseTree> tree(std::in_place, "dev", "tree");
  BaseTree copy(*tree);
  tree.reset();
  toolkit.TakeLines();
  copy.DeleteNode("n");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2031 DeleteNode "n" | 0)"));
}

}  // namespace
}  // namespace oxecad_ui
