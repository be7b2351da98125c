// Every call of every operation goes wrong in every way: nothing is followed that was not answered, nothing is kept,
// nothing is released twice, and the tree can be used afterwards.
#include <tests/uicomps/userdata/UserDataTreeTest.h>

#include <memory>

namespace oxecad_ui {
namespace {

void GiveSmallTree(RecordingToolkit& toolkit) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  for (const int operation : {2202, 2203}) {
    toolkit.When(Doing(operation, "root").With(284)).Give(284, {"a"});
    toolkit.When(Doing(operation, "a").With(284)).Give(284, {"b", "leaf"});
  }
  toolkit.When(Doing(2202).With(2)).Give(2, L"<b>A (1)</b>");
  toolkit.When(Doing(2202).With(260)).Give(260, Word(3));
  toolkit.When(Doing(2202).With(282)).Give(282, "branch");
  toolkit.When(Doing(2202, "leaf").With(282)).Give(282, "leaf");
  toolkit.When(Doing(2202, "leaf").With(283)).Give(283, "a");
  toolkit.When(Doing(2202, "a").With(283)).Give(283, "root");
}

void UseEverything(RecordingToolkit&) {
  OpenUserDataTree tree("dev", "tree", "leaf");
  tree.Init();
  Tree::TreeInfo info;
  info.records.push_back(new auto(Record("root", L"", "branch")));
  info.records.push_back(new auto(Record("a", L"", "branch")));
  tree.Set(info);
  tree.AddNode(Record("n", L"", "leaf", Word(1)));
  tree.AddNodeBefore(Record("m", L"", "leaf", Word(2)), "n");
  tree.OnLeafAdded("leaf");
  tree.UpdateParentTotals("leaf");
  std::vector<void*> data;
  tree.GetData(data, nullptr, true, Answers());
  tree.GetBranchData("a", data, nullptr, Answers());
  for (void* const value : data) EXPECT_LT(reinterpret_cast<std::uintptr_t>(value), 4u) << "a value nobody answered";
  UserDataTree::DataNodeInfo record;
  EXPECT_TRUE(tree.GetNodeInfo("leaf", record));
  const std::unique_ptr<Tree::NodeInfo> made(tree.GetNodeInfo("leaf"));
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->name, "leaf");
  tree.Clear();
}

TEST(UserDataTreeFailure, NoOperationMindsAFailedCall) {
  ForEachFailure(RecordingToolkit::Nobody, GiveSmallTree, UseEverything);
}

TEST(UserDataTreeFailure, NoOperationMindsThatEverythingFails) {
  for (const Failure failure : test_support::kAllFailures) {
    if (failure == Failure::NullNames) continue;  // every node would have children, without end
    SCOPED_TRACE(Name(failure));
    RecordingToolkit toolkit;
    toolkit.FailAll(failure);
    UseEverything(toolkit);
  }
}

TEST(UserDataTreeFailure, RefusalsAreToldByTheResults) {
  for (const Failure failure : {Failure::Refused, Failure::Scribbled}) {
    RecordingToolkit toolkit;
    OpenUserDataTree tree("dev", "tree", "leaf");
    toolkit.FailAll(failure);
    EXPECT_FALSE(tree.AddNode(Record("n", L"", "leaf")));
    EXPECT_FALSE(tree.AddNodeBefore(Record("n", L"", "leaf"), "m"));
    std::vector<void*> data;
    tree.GetData(data, Word(1), false, Answers());
    EXPECT_TRUE(data.empty());
    toolkit.FailCall(2, failure);
    EXPECT_FALSE(tree.AddNode(Record("n", L"", "leaf"))) << "the state was refused";
  }
}

}  // namespace
}  // namespace oxecad_ui
