// Every call of every operation goes wrong in every way.
#include <tests/uicomps/tree/TreeTest.h>

#include <memory>

namespace oxecad_ui {
namespace {

using test_support::ForEachFailure;

void GiveSmallTree(RecordingToolkit& toolkit) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  toolkit.When(Retrieving(346)).Give(346, "a");
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"a", "b"});
  toolkit.When(Doing(2202, "a").With(284)).Give(284, {"a1"});
  for (const char* node : {"root", "a", "a1", "b"}) {
    toolkit.When(Doing(2202, node).With(2)).Give(2, L"label 10");
    toolkit.When(Doing(2202, node).With(282)).Give(282, "net");
    toolkit.When(Doing(2203, node)).Give(31, 1);
  }
}

TEST(TreeFailure, NoReadingOperationMindsAFailedCall) {
  ForEachFailure(RecordingToolkit::Nobody, GiveSmallTree, [](RecordingToolkit&) {
    OpenTree tree("dev", "tree");
    Tree::NodeInfo info;
    EXPECT_TRUE(tree.GetNodeInfo("a", info));
    EXPECT_TRUE(std::unique_ptr<Tree::NodeInfo>(tree.GetNodeInfo("a")));
    EXPECT_GE(tree.GetNoOfChildren(), 0);
    Names names;
    tree.GetChildren("root", names);
    EXPECT_LE(names.size(), 2u);
    std::vector<Tree::NodeInfo> infos;
    EXPECT_TRUE(tree.GetChildren("root", infos));
    tree.GetLeaves(nullptr, names);
    Tree::TreeInfo records;
    tree.GetBranchInfo("root", records, Tree::Everything());
    tree.GetTreeInfo(records, Tree::Everything(), true);
    tree.GetTreeInfo(records, Tree::CheckedOnly(), false);
    tree.GetCheckedNodes(records);
    for (const Tree::NodeInfo* record : records.records) EXPECT_TRUE(record);
    EXPECT_LE(tree.GetNodeState("a"), 2u);
    Tree::CheckCB(&tree);
  });
}

TEST(TreeFailure, NoChangingOperationMindsAFailedCall) {
  ForEachFailure(RecordingToolkit::Nobody, GiveSmallTree, [](RecordingToolkit&) {
    OpenTree tree("dev", "tree");
    tree.Init();
    tree.AddNode(Record("x/y", L"", Tree::Checked));
    tree.AddNodeBefore(Record("x/z", L"z", Tree::Checked), "x/y");
    for (const char* name : {"a", "b", "a1"}) {
      tree.AddEcadNode(name, L"label 9", "root", Tree::ByLabel, "net", L"", 1, 0, 0, nullptr);
    }
    EXPECT_TRUE(tree.SortNodesByType("root", Tree::ByLabel));
    tree.SetNodeState("a", Tree::PartlyChecked);
    tree.SetCheckSensitive("a", false);
    tree.SetChildrenCheckSensitive("a", true);
  });
}

TEST(TreeFailure, NothingIsThereWhenTheToolkitRefusesAll) {
  for (const Failure failure : {Failure::Refused, Failure::Scribbled}) {
    SCOPED_TRACE(Name(failure));
    RecordingToolkit toolkit;
    OpenTree tree("dev", "tree");
    toolkit.FailAll(failure);
    Names names;
    Tree::TreeInfo info;
    EXPECT_FALSE(tree.AddNode(Record("x", L"x")));
    EXPECT_FALSE(tree.AddNodeBefore(Record("x", L"x"), nullptr));
    EXPECT_FALSE(tree.AddEcadNode("x", L"x", "root", Tree::ByLabel, "", L"", 0, 0, 0, nullptr));
    EXPECT_FALSE(tree.SetNodeState("x", Tree::Checked));
    EXPECT_FALSE(tree.SetCheckSensitive("x", true));
    EXPECT_EQ(tree.GetNodeState("x"), Tree::Unchecked);
    EXPECT_EQ(tree.GetNoOfChildren(), 0);
    EXPECT_EQ(tree.GetChildren("x", names), 0);
    EXPECT_EQ(tree.GetLeaves(nullptr, names), 0);
    tree.GetTreeInfo(info, Tree::Everything(), true);
    tree.GetBranchInfo("x", info, Tree::Everything());
    tree.GetCheckedNodes(info);
    EXPECT_TRUE(info.records.empty());
    EXPECT_TRUE(names.empty());
  }
}

}  // namespace
}  // namespace oxecad_ui
