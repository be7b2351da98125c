// Every call of every operation goes wrong in every way: nothing is followed that was not answered, nothing is kept,
// nothing is released twice, and the operation says what it says on failure.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/base/BaseTree.h>

#include <string>
#include <vector>

namespace oxecad_ui {
namespace {

using test_support::Doing;
using test_support::Failure;
using test_support::ForEachFailure;
using test_support::RecordingToolkit;
using test_support::Retrieving;

void GiveSmallTree(RecordingToolkit& toolkit) {
  toolkit.When(Doing(2202).With(2)).Give(2, L"label");
  toolkit.When(Doing(2202).With(282)).Give(282, "type");
  toolkit.When(Doing(2202).With(283)).Give(283, "root");
  toolkit.When(Doing(2202).With(284)).Give(284, {"a", "b"});
  toolkit.When(Doing(2203).With(284)).Give(284, {"a", "b"});
  toolkit.When(Retrieving(53)).Give(53, "a");
  toolkit.When(Retrieving(54)).Give(54, "root");
  toolkit.When(Retrieving(72)).Give(72, {"a", "b"});
  toolkit.When(Retrieving(175)).Give(175, "a");
}

bool PlaceLast(const char*, int, const char**, const char*& before) {
  before = nullptr;
  return true;
}

TEST(BaseTreeFailure, NoOperationMindsAFailedCall) {
  ForEachFailure(RecordingToolkit::Nobody, GiveSmallTree, [](RecordingToolkit&) {
    BaseTree tree("dev", "tree");
    tree.Init();
    void* data = nullptr;
    int count = 0;
    char** children = nullptr;
    tree.HasRoot();
    tree.AddNode("n", L"n", "root", "t", L"", 0, 0, 0, nullptr);
    tree.AddNodeBefore("n", L"n", "root", "a", "t", L"", 0, 0, 0, nullptr);
    tree.InsertNode("n", L"n", "root", nullptr, "a", "t", L"", 0, 0, 0);
    tree.InsertNodeSortByName("n", L"n", "root", PlaceLast, nullptr, "t", L"", 0, 0, 0);
    tree.MoveNodeBefore("n", "root", nullptr);
    tree.ModifyNodeLabel("n", L"m");
    tree.GetNodeLabel("n");
    tree.GetNodeType("n");
    tree.GetParent("n", nullptr);
    tree.GetNodeChildCount("n");
    tree.GetNodeChildren("n", &count, &children);
    tree.GetNodeData("n", data);
    tree.GetNodeExpanded("n");
    tree.DoesNotExist("root", "b");
    tree.ExpandAll();
    tree.CollapseAll();
    tree.Enable(true);
    tree.SetRedraw(true);
    tree.GetBackgroundColor();
    BaseTree::ActivateCB(&tree);
    BaseTree::ExpandCB(&tree);
    BaseTree::CollapseCB(&tree);
    BaseTree::SelectCB(&tree);
    tree.DeleteNode("n");
    tree.Clear();
  });
}

TEST(BaseTreeFailure, EveryOperationGivesItsPresetWhenTheToolkitRefusesAll) {
  for (const Failure failure : {Failure::Refused, Failure::Scribbled}) {
    SCOPED_TRACE(Name(failure));
    RecordingToolkit toolkit;
    BaseTree tree("dev", "tree");
    toolkit.FailAll(failure);
    void* data = &data;
    int status = 0;
    EXPECT_FALSE(tree.HasRoot());
    EXPECT_FALSE(tree.AddNode("n", L"n", "root", "t", L"", 0, 0, 0, nullptr));
    EXPECT_FALSE(tree.AddNodeBefore("n", L"n", "root", "a", "t", L"", 0, 0, 0, nullptr));
    EXPECT_FALSE(tree.InsertNode("n", L"n", "root", nullptr, "a", "t", L"", 0, 0, 0));
    EXPECT_EQ(tree.InsertNodeSortByName("n", L"n", "root", PlaceLast, nullptr, "t", L"", 0, 0, 0),
              BaseTree::NotInserted);
    EXPECT_FALSE(tree.DeleteNode("n"));
    EXPECT_FALSE(tree.MoveNodeBefore("n", "root", nullptr));
    EXPECT_FALSE(tree.ModifyNodeLabel("n", L"m"));
    EXPECT_EQ(tree.GetNodeLabel("n"), L"");
    EXPECT_EQ(tree.GetNodeType("n"), "");
    EXPECT_EQ(tree.GetParent("n", &status), "");
    EXPECT_NE(status, 0);
    EXPECT_EQ(tree.GetNodeChildCount("n"), 0);
    EXPECT_FALSE(tree.GetNodeData("n", data));
    EXPECT_EQ(data, &data);
    EXPECT_FALSE(tree.GetNodeExpanded("n"));
    EXPECT_TRUE(tree.DoesNotExist("root", "b"));
    EXPECT_EQ(tree.GetBackgroundColor(), 0xFFFFFFFFu);
  }
}

}  // namespace
}  // namespace oxecad_ui
