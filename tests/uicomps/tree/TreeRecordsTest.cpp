// Records to nodes and nodes to records, on the wire.
#include <tests/uicomps/tree/TreeTest.h>

#include <memory>

namespace oxecad_ui {
namespace {

using TreeRecords = TreeTest;

TEST_F(TreeRecords, AddNodeAddsAtTheEndAndSetsTheCheckState) {
  Tree::NodeInfo info = Record("a/b", L"B", Tree::PartlyChecked);
  info.type = "net";
  info.expanded = true;
  EXPECT_TRUE(tree.AddNode(info));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "a/b" L"B" "a" "net" | 2=L"" 128=1 256=1 512=0 1024=null | 0
    do dev:tree 2201 SetNode "a/b" | 31=2 | 0)"));
}

TEST_F(TreeRecords, AddNodeShowsTheRestOfTheNameWithoutALabel) {
  EXPECT_TRUE(tree.AddNode(Record("a/b", L"")));
  EXPECT_TRUE(tree.AddNode(Record("x", L"")));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "a/b" L"b" "a" "" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "a/b" | 31=0 | 0
    do dev:tree 2029 AddNode "x" L"x" "root" "" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "x" | 31=0 | 0)"));
}

TEST_F(TreeRecords, AddNodeSetsNoStateAfterAFailedAdd) {
  toolkit.When(Doing(2029)).Refuse();
  EXPECT_FALSE(tree.AddNode(Record("x", L"", Tree::Checked)));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "x" L"x" "root" "" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1)"));
}

TEST_F(TreeRecords, AddNodeGivesTheResultOfTheAddAlone) {
  toolkit.When(Doing(2201)).Refuse();
  EXPECT_TRUE(tree.AddNode(Record("x", L"", Tree::Checked)));
  EXPECT_TRUE(tree.AddNodeBefore(Record("x", L"", Tree::Checked), "y"));
}

TEST_F(TreeRecords, AddNodeBeforeNamesTheSibling) {
  Tree::NodeInfo info = Record("a/b", L"B", Tree::Checked);
  info.type = "net";
  EXPECT_TRUE(tree.AddNodeBefore(info, "a/c"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "a/b" L"B" "a" "a/c" "net" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "a/b" | 31=1 | 0)"));
  toolkit.When(Doing(2030)).Refuse();
  EXPECT_FALSE(tree.AddNodeBefore(info, nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "a/b" L"B" "a" null "net" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1)"));
}

TEST_F(TreeRecords, TheOperationsWithSeparateValuesAreStillThere) {
  EXPECT_TRUE(tree.AddNode("n", L"N", "root", "t", L"", 1, 0, 0, nullptr));
  EXPECT_TRUE(tree.AddNodeBefore("n", L"N", "root", nullptr, "t", L"", 1, 0, 0, nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"N" "root" "t" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2030 AddNodeBefore "n" L"N" "root" null "t" | 2=L"" 128=1 256=0 512=0 1024=null | 0)"));
}

constexpr const char* kRecordRead = R"(
    do dev:tree 2202 GetNode "n1" | 2->L"N 1" | 0
    free 2 L"N 1" | 0
    do dev:tree 2203 InquireNode "n1" | 177->1 31->0 | 0
    do dev:tree 2202 GetNode "n1" | 282->"net" | 0
    free 282 "net" | 0
    do dev:tree 2202 GetNode "n1" | 4->1 | 0)";

TEST_F(TreeRecords, GetNodeInfoReadsLabelStateTypeAndExpansion) {
  GiveLabel("n1", L"N 1");
  GiveState("n1", 2);
  toolkit.When(Doing(2202, "n1").With(282)).Give(282, "net");
  toolkit.When(Doing(2202, "n1").With(4)).Give(4, 1);
  Tree::NodeInfo info;
  EXPECT_TRUE(tree.GetNodeInfo("n1", info));
  EXPECT_EQ(info.name, "n1");
  EXPECT_EQ(info.label, L"N 1");
  EXPECT_EQ(info.state, Tree::PartlyChecked);
  EXPECT_EQ(info.type, "net");
  EXPECT_TRUE(info.expanded);
  EXPECT_TRUE(toolkit.Took(kRecordRead));

  const std::unique_ptr<Tree::NodeInfo> record(tree.GetNodeInfo("n1"));
  ASSERT_TRUE(record);
  EXPECT_EQ(record->name, "n1");
  EXPECT_EQ(record->label, L"N 1");
  EXPECT_EQ(record->state, Tree::PartlyChecked);
  EXPECT_EQ(record->type, "net");
  EXPECT_TRUE(record->expanded);
  EXPECT_TRUE(toolkit.Took(kRecordRead));
}

TEST_F(TreeRecords, GetNodeInfoLeavesTheRecordAloneForNoName) {
  Tree::NodeInfo info = Record("kept", L"kept", Tree::Checked);
  EXPECT_FALSE(tree.GetNodeInfo(nullptr, info));
  EXPECT_FALSE(tree.GetNodeInfo("", info));
  EXPECT_EQ(info.name, "kept");
  EXPECT_EQ(info.label, L"kept");
  EXPECT_EQ(info.state, Tree::Checked);
  EXPECT_EQ(tree.GetNodeInfo(nullptr), nullptr);
  EXPECT_EQ(tree.GetNodeInfo(""), nullptr);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(TreeRecords, AMissingNodeReadsAsEmptyUncheckedAndCollapsed) {
  toolkit.FailAll(Failure::Scribbled);
  Tree::NodeInfo info = Record("before", L"before", Tree::Checked);
  info.type = "before";
  info.expanded = true;
  EXPECT_TRUE(tree.GetNodeInfo("gone", info));
  EXPECT_EQ(info.name, "gone");
  EXPECT_EQ(info.label, L"");
  EXPECT_EQ(info.type, "");
  EXPECT_EQ(info.state, Tree::Unchecked);
  EXPECT_FALSE(info.expanded);
  const std::unique_ptr<Tree::NodeInfo> record(tree.GetNodeInfo("gone"));
  ASSERT_TRUE(record);
  EXPECT_EQ(record->name, "gone");
  EXPECT_EQ(record->label, L"");
}

/// Refuses plain records, as derived trees with records of their own do.
class ChoosyTree : public Tree {
 public:
  using Tree::GetNodeInfo;
  using Tree::Tree;
  bool GetNodeInfo(const char*, NodeInfo&) const override { return false; }
};

TEST(TreeRecordsOfHeirs, TheRecordGivingFormDoesNotGoThroughTheOtherSlot) {
  RecordingToolkit toolkit;
  toolkit.When(Doing(2202).With(2)).Give(2, L"N");
  const ChoosyTree tree("dev", "tree");
  const std::unique_ptr<Tree::NodeInfo> record(tree.GetNodeInfo("n"));
  ASSERT_TRUE(record);
  EXPECT_EQ(record->label, L"N");
}

}  // namespace
}  // namespace oxecad_ui
