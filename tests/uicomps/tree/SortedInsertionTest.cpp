// AddEcadNode, its memory of inserted names, and whose memory that is.
#include <tests/uicomps/tree/TreeTest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <set>

namespace oxecad_ui {
namespace {

class SortedInsertion : public TreeTest {
 protected:
  /// Adds a node whose label the toolkit then knows; gives the sibling that it was added before ("end": none).
  std::string Add(Tree& target, const std::string& name, const wchar_t* label, const char* parent = "root",
                  Tree::NodeComparableType order = Tree::ByLabel) {
    GiveLabel(name, label);
    std::string before;
    toolkit.When(Doing(2030)).Once().Run([&](const uiox::Call& call) {
      const char* const sibling = call.positional[3].Text();
      before = sibling ? sibling : "end";
    });
    EXPECT_TRUE(target.AddEcadNode(name.c_str(), label, parent, order, "net", L"", 1, 0, 0, nullptr));
    return before;
  }
};

TEST_F(SortedInsertion, ReadsTheSiblingsThatItNeedsAndAddsBeforeOne) {
  GiveLabel("n10", L"item10");
  GiveLabel("n9", L"item9");
  EXPECT_TRUE(tree.AddEcadNode("n10", L"item10", "root", Tree::ByLabel, "net", L"second", 1, 2, 3,
                               reinterpret_cast<void*>(0xff)));
  EXPECT_TRUE(tree.AddEcadNode("n9", L"item9", "root", Tree::ByLabel, "net", L"", 0, 0, 0, nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "n10" L"item10" "root" null "net" | 2=L"second" 128=1 256=2 512=3 1024=0xff | 0
    do dev:tree 2202 GetNode "n10" | 2->L"item10" | 0
    free 2 L"item10" | 0
    do dev:tree 2203 InquireNode "n10" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "n10" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "n10" | 4->0 | 0
    do dev:tree 2030 AddNodeBefore "n9" L"item9" "root" "n10" "net" | 2=L"" 128=0 256=0 512=0 1024=null | 0)"));
}

TEST_F(SortedInsertion, PutsNumbersInTheirOrder) {
  EXPECT_EQ(Add(tree, "n10", L"item10"), "end");
  EXPECT_EQ(Add(tree, "n9", L"item9"), "n10");
  EXPECT_EQ(Add(tree, "n1", L"item1"), "n9");
  EXPECT_EQ(Add(tree, "n11", L"item11"), "end");
  EXPECT_EQ(Add(tree, "n5", L"item5"), "n9");
}

TEST_F(SortedInsertion, UsesTheEcadOrder) {
  EXPECT_EQ(Add(tree, "five", L"-5"), "end");
  EXPECT_EQ(Add(tree, "three", L"-3"), "five");
}

TEST_F(SortedInsertion, PutsAnEqualLabelBeforeThoseThatAreThere) {
  EXPECT_EQ(Add(tree, "a1", L"a"), "end");
  EXPECT_EQ(Add(tree, "a2", L"A"), "a1");
  EXPECT_EQ(Add(tree, "a3", L"a"), "a2");
  EXPECT_EQ(Add(tree, "b", L"b"), "end");
  EXPECT_EQ(Add(tree, "a4", L"a"), "a3");
}

TEST_F(SortedInsertion, KeepsEachParentApart) {
  EXPECT_EQ(Add(tree, "b", L"b", "p"), "end");
  EXPECT_EQ(Add(tree, "a", L"a", "q"), "end");
  EXPECT_EQ(Add(tree, "a0", L"a", "p"), "b");
  EXPECT_EQ(Add(tree, "c0", L"c", ""), "end") << "an empty name is a parent too";
  EXPECT_EQ(Add(tree, "b0", L"b", ""), "c0");
}

TEST_F(SortedInsertion, LooksOnlyAtNodesThatItAdded) {
  GiveChildren("root", {"x", "y"});
  EXPECT_EQ(Add(tree, "a", L"a"), "end");
  tree.AddNode("aa", L"aa", "root", "", L"", 1, 0, 0, nullptr);
  EXPECT_EQ(Add(tree, "ab", L"ab"), "end");
}

TEST_F(SortedInsertion, ForgetsNothingWhenAnAddFails) {
  Add(tree, "a", L"a");
  Add(tree, "c", L"c");
  toolkit.When(Doing(2030)).Refuse().Once();
  EXPECT_FALSE(tree.AddEcadNode("b", L"b", "root", Tree::ByLabel, "", L"", 0, 0, 0, nullptr));
  EXPECT_EQ(Add(tree, "b1", L"b"), "c") << "b is not remembered";
  EXPECT_EQ(Add(tree, "b0", L"a5"), "b1");
}

TEST_F(SortedInsertion, ANullParentEmptiesTheMemoryAndAddsAtTheEnd) {
  Add(tree, "b", L"b");
  toolkit.TakeLines();
  EXPECT_TRUE(tree.AddEcadNode("x", L"x", nullptr, Tree::ByLabel, "", L"", 0, 0, 0, nullptr));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "x" L"x" null null "" | 2=L"" 128=0 256=0 512=0 1024=null | 0)"));
  EXPECT_EQ(Add(tree, "a", L"a"), "end") << "b is forgotten";
  EXPECT_EQ(Add(tree, "a0", L"a"), "a");
}

TEST_F(SortedInsertion, ATreeOfAnotherNameEmptiesTheMemoryOfTheFirst) {
  OpenTree other("dev", "other");
  EXPECT_EQ(Add(tree, "b", L"b"), "end");
  EXPECT_EQ(Add(other, "x", L"x"), "end");
  EXPECT_EQ(Add(tree, "a", L"a"), "end") << "b is forgotten";
  EXPECT_EQ(Add(tree, "a0", L"a"), "a");
}

TEST_F(SortedInsertion, TheOtherTreeKeepsItsMemoryUntilItInsertsAgain) {
  OpenTree other("dev", "other");
  Add(other, "b", L"b");
  Add(tree, "x", L"x");
  EXPECT_EQ(Add(other, "a", L"a"), "end");
}

TEST_F(SortedInsertion, ATreeOfTheSameNameOnAnotherDeviceLeavesTheMemoryAlone) {
  OpenTree twin("dev2", "tree");
  EXPECT_EQ(Add(tree, "b", L"b"), "end");
  EXPECT_EQ(Add(twin, "c", L"c"), "end") << "a memory of its own";
  EXPECT_EQ(Add(tree, "a", L"a"), "b");
  EXPECT_EQ(Add(twin, "b2", L"b"), "c");
}

TEST_F(SortedInsertion, TheOwnersNameOutlivesTheOwner) {
  {
    auto owner = std::make_unique<OpenTree>("dev", "a tree with a name that is longer than a short string");
    Add(*owner, "x", L"x");
  }
  EXPECT_EQ(Add(tree, "b", L"b"), "end");
  EXPECT_EQ(Add(tree, "a", L"a"), "b");
}

TEST_F(SortedInsertion, AssigningAnotherNameMakesItAnotherTree) {
  Add(tree, "b", L"b");
  OpenTree renamed("dev", "renamed");
  Add(renamed, "y", L"y");
  tree = renamed;
  EXPECT_EQ(Add(tree, "x", L"x"), "y") << "the memory came along, and the name is the owner's";
}

TEST_F(SortedInsertion, AnUnsupportedOrderAddsAtTheEndWithAMessageOnceThereIsAList) {
  const auto other = static_cast<Tree::NodeComparableType>(1);
  testing::internal::CaptureStdout();
  EXPECT_EQ(Add(tree, "b", L"b", "root", other), "end");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << "an empty list is not searched";
  testing::internal::CaptureStdout();
  EXPECT_EQ(Add(tree, "a", L"a", "root", other), "end");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), kNotSupported);
  testing::internal::CaptureStdout();
  EXPECT_TRUE(tree.AddEcadNode("n", L"n", nullptr, other, "", L"", 0, 0, 0, nullptr));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "") << "no parent, no list";
}

TEST_F(SortedInsertion, ANodeAddedInAnUnsupportedOrderIsRememberedAtTheEnd) {
  Add(tree, "b", L"b");
  testing::internal::CaptureStdout();
  Add(tree, "d", L"d", "root", static_cast<Tree::NodeComparableType>(7));
  testing::internal::GetCapturedStdout();
  EXPECT_EQ(Add(tree, "c", L"c"), "d");
}

TEST_F(SortedInsertion, AnEmptyNameMakesNoListButUsesOne) {
  EXPECT_EQ(Add(tree, "", L"x"), "end");
  EXPECT_EQ(Add(tree, "b", L"b"), "end") << "nothing was remembered";
  EXPECT_EQ(Add(tree, "", L"a"), "b");
}

TEST_F(SortedInsertion, ARememberedNodeWithoutARecordSendsOthersToTheEnd) {
  Add(tree, "b", L"b");
  Add(tree, "", L"a");  // the base tree has no record for an empty name
  Add(tree, "c", L"c");
  EXPECT_EQ(Add(tree, "d", L"d"), "end");
}

TEST_F(SortedInsertion, NullLabelsAreEmpty) {
  EXPECT_TRUE(tree.AddEcadNode("a", nullptr, "root", Tree::ByLabel, "", L"", 0, 0, 0, nullptr));
}

TEST_F(SortedInsertion, FindsThePlaceOfEachOfManySiblings) {
  // 0, 7, 14 … modulo 101 in that order: every place is asked for.
  std::vector<int> sorted;
  for (int i = 0; i < 101; ++i) {
    const int number = i * 7 % 101;
    const std::string name = "n" + std::to_string(number);
    const std::wstring label = L"R" + std::to_wstring(number);
    const auto place = std::lower_bound(sorted.begin(), sorted.end(), number);
    const std::string expected = place == sorted.end() ? "end" : "n" + std::to_string(*place);
    sorted.insert(place, number);
    ASSERT_EQ(Add(tree, name, label.c_str()), expected) << i;
  }
}

/// Knows each node's label without asking the toolkit: it is the name.
class NamedTree : public Tree {
 public:
  using Tree::GetNodeInfo;
  using Tree::Tree;
  bool GetNodeInfo(const char* node, NodeInfo& info) const override {
    info.label.assign(node, node + std::char_traits<char>::length(node));
    return true;
  }
};

TEST_F(SortedInsertion, FindsThePlaceOfEachOfThousandsOfSiblings) {
  constexpr int kCount = 3001;  // a prime, so that a step of 1009 comes by every number
  NamedTree named("dev", "named");
  std::string before;
  toolkit.When(Doing(2030)).Run([&](const uiox::Call& call) {
    before = call.positional[3].Text() ? call.positional[3].Text() : "end";
  });
  std::set<int> there;
  for (int i = 0; i < kCount; ++i) {
    const int number = i * 1009 % kCount;
    const std::string name = "R" + std::to_string(number);
    const auto next = there.insert(number).first;
    const std::string expected = std::next(next) == there.end() ? "end" : "R" + std::to_string(*std::next(next));
    const std::wstring label(name.begin(), name.end());
    ASSERT_TRUE(named.AddEcadNode(name.c_str(), label.c_str(), "root", Tree::ByLabel, "", L"", 0, 0, 0, nullptr));
    ASSERT_EQ(before, expected) << "number " << i << ": " << name;
  }
}

TEST_F(SortedInsertion, ReadsNoMoreSiblingsThanABinarySearchNeeds) {
  for (int i = 0; i < 64; ++i) Add(tree, "n" + std::to_string(i), (L"R" + std::to_wstring(i)).c_str());
  toolkit.TakeLines();
  std::size_t records = 0;
  toolkit.WriteOnly([&](const uiox::Call& call) {
    records += call.function == uiox::Function::DoOperation && call.code == 2203 ? 1 : 0;
    return false;
  });
  Add(tree, "x", L"R31a");
  EXPECT_LE(records, 7u);
}

}  // namespace
}  // namespace oxecad_ui
