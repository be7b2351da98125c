// The search for a node's place among sorted children.
#include <tests/uicomps/tree/TreeTest.h>

#include <map>

namespace oxecad_ui {
namespace {

using LabelOrder = Tree::NodeInfoLabelComperator<CAlphaNumericWStringComparator>;

/// Gives records from a table; each may refuse a number of reads first.
class TableTree : public OpenTree {
 public:
  using OpenTree::GetNodeInfo;
  using OpenTree::OpenTree;
  bool GetNodeInfo(const char* node, NodeInfo& info) const override {
    reads.push_back(node);
    EXPECT_EQ(info.name, "") << "each read gets a fresh default record";
    EXPECT_EQ(info.label, L"");
    EXPECT_EQ(info.type, "");
    EXPECT_EQ(info.state, Tree::Unchecked);
    EXPECT_FALSE(info.expanded);
    info.name = info.type = "touched";
    info.state = Tree::PartlyChecked;
    info.expanded = true;
    int& refusals = refuse[node];
    if (refusals != 0) {
      if (refusals > 0) --refusals;
      return false;
    }
    info.label = std::wstring(node, node + std::char_traits<char>::length(node));
    return true;
  }
  mutable Names reads;
  mutable std::map<std::string, int> refuse;  // -1: always
};

class BinarySearch : public testing::Test {
 protected:
  int Place(Names children, const wchar_t* label, bool ascending = true) {
    LabelOrder order;
    order.SetAscending(ascending);
    Tree::NodeInfo node = Record("new", label);
    tree.reads.clear();
    return tree.BinarySearchNodeLocation(children, &order, node);
  }
  RecordingToolkit toolkit;
  TableTree tree{"dev", "tree"};
};

TEST_F(BinarySearch, OfNoChildrenGives0AndReadsNothing) {
  EXPECT_EQ(Place({}, L"a"), 0);
  EXPECT_TRUE(tree.reads.empty());
}

TEST_F(BinarySearch, OfNoChildrenNeedsNoComparator) {
  Names none;
  Tree::NodeInfo node = Record("new", L"a");
  EXPECT_EQ(tree.BinarySearchNodeLocation(none, nullptr, node), 0);
}

TEST_F(BinarySearch, GivesTheFirstChildThatIsNotBefore) {
  const Names children{"b", "d", "d", "f"};
  EXPECT_EQ(Place(children, L"a"), 0);
  EXPECT_EQ(Place(children, L"b"), 0);
  EXPECT_EQ(Place(children, L"c"), 1);
  EXPECT_EQ(Place(children, L"d"), 1);
  EXPECT_EQ(Place(children, L"e"), 3);
  EXPECT_EQ(Place(children, L"f"), 3);
  EXPECT_EQ(Place(children, L"g"), 4);
}

TEST_F(BinarySearch, ReadsTheLowerMiddleFirst) {
  Place({"a", "b", "c", "d"}, L"a");
  EXPECT_EQ(tree.reads, (Names{"b", "a"}));
  Place({"a", "b", "c", "d"}, L"z");
  EXPECT_EQ(tree.reads, (Names{"b", "c", "d"}));
  Place({"a", "b", "c", "d", "e", "f", "g"}, L"d5");
  EXPECT_EQ(tree.reads, (Names{"d", "f", "e"}));
}

TEST_F(BinarySearch, AsksTheOtherWayRoundWhenDescending) {
  const Names children{"f", "d", "d", "b"};
  EXPECT_EQ(Place(children, L"g", false), 0);
  EXPECT_EQ(Place(children, L"f", false), 0);
  EXPECT_EQ(Place(children, L"e", false), 1);
  EXPECT_EQ(Place(children, L"d", false), 1);
  EXPECT_EQ(Place(children, L"c", false), 3);
  EXPECT_EQ(Place(children, L"a", false), 4);
}

TEST_F(BinarySearch, TriesAChildAgainThatCannotBeRead) {
  tree.refuse["b"] = 9999;
  EXPECT_EQ(Place({"a", "b", "c"}, L"b5"), 2);
  EXPECT_EQ(tree.reads.size(), 10000u + 1u);
}

TEST_F(BinarySearch, EndsAfterTenThousandFailedReadsInARow) {
  tree.refuse["b"] = -1;
  EXPECT_EQ(Place({"a", "b", "c"}, L"a"), 3) << "at the end";
  EXPECT_EQ(tree.reads, Names(10000, "b"));
}

TEST_F(BinarySearch, CountsTheFailuresOfEachChildByThemselves) {
  tree.refuse["b"] = 9999;
  tree.refuse["c"] = 9999;
  EXPECT_EQ(Place({"a", "b", "c"}, L"b5"), 2);
  EXPECT_EQ(tree.reads.size(), 20000u);
  tree.refuse["c"] = -1;
  EXPECT_EQ(Place({"a", "b", "c", "d"}, L"b5"), 4);
}

/// Takes only records of its own, as trees with further fields do: a plain one is refused, always.
class RefusingTree : public OpenTree {
 public:
  using OpenTree::GetNodeInfo;
  using OpenTree::OpenTree;
  bool GetNodeInfo(const char*, NodeInfo&) const override { return false; }
};

TEST(SortedInsertionOfARefusingTree, AddsEachNodeAtTheEnd) {
  RecordingToolkit toolkit;
  RefusingTree tree("dev", "refusing");
  for (const char* name : {"c", "b", "a"}) {
    EXPECT_TRUE(tree.AddEcadNode(name, L"x", "root", Tree::ByLabel, "t", L"", 0, 0, 0, nullptr));
  }
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:refusing 2030 AddNodeBefore "c" L"x" "root" null "t" | 2=L"" 128=0 256=0 512=0 1024=null | 0
    do dev:refusing 2030 AddNodeBefore "b" L"x" "root" null "t" | 2=L"" 128=0 256=0 512=0 1024=null | 0
    do dev:refusing 2030 AddNodeBefore "a" L"x" "root" null "t" | 2=L"" 128=0 256=0 512=0 1024=null | 0)"));
}

TEST(SortedInsertionOfATable, ReadsRecordsThroughTheVirtualSlot) {
  RecordingToolkit toolkit;
  TableTree tree("dev", "table");
  tree.AddEcadNode("10", L"10", "root", Tree::ByLabel, "t", L"", 0, 0, 0, nullptr);
  tree.AddEcadNode("9", L"9", "root", Tree::ByLabel, "t", L"", 0, 0, 0, nullptr);
  EXPECT_EQ(tree.reads, Names{"10"});
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:table 2030 AddNodeBefore "10" L"10" "root" null "t" | 2=L"" 128=0 256=0 512=0 1024=null | 0
    do dev:table 2030 AddNodeBefore "9" L"9" "root" "10" "t" | 2=L"" 128=0 256=0 512=0 1024=null | 0)"));
}

}  // namespace
}  // namespace oxecad_ui
