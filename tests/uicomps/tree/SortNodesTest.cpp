// Sorting the children that are there.
#include <tests/uicomps/tree/TreeTest.h>

namespace oxecad_ui {
namespace {

class SortNodes : public TreeTest {
 protected:
  SortNodes() {
    GiveChildren("root", {"n10", "n9", "n1"});
    GiveLabel("n10", L"item10");
    GiveLabel("n9", L"item9");
    GiveLabel("n1", L"item1");
  }
  static constexpr auto kOther = static_cast<Tree::NodeComparableType>(1);
};

TEST_F(SortNodes, ReadsAllChildrenAndMovesEachToTheEndInOrder) {
  EXPECT_TRUE(tree.SortNodesByType("root", Tree::ByLabel));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->["n10" "n9" "n1"] | 0
    free 284 ["n10" "n9" "n1"] | 0
    do dev:tree 2202 GetNode "n10" | 2->L"item10" | 0
    free 2 L"item10" | 0
    do dev:tree 2203 InquireNode "n10" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "n10" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "n10" | 4->0 | 0
    do dev:tree 2202 GetNode "n9" | 2->L"item9" | 0
    free 2 L"item9" | 0
    do dev:tree 2203 InquireNode "n9" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "n9" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "n9" | 4->0 | 0
    do dev:tree 2202 GetNode "n1" | 2->L"item1" | 0
    free 2 L"item1" | 0
    do dev:tree 2203 InquireNode "n1" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "n1" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "n1" | 4->0 | 0
    do dev:tree 2032 MoveNode "n1" "root" null
    do dev:tree 2032 MoveNode "n9" "root" null
    do dev:tree 2032 MoveNode "n10" "root" null)"));
}

TEST_F(SortNodes, UsesThePlainOrder) {
  GiveChildren("root", {"three", "five"});
  GiveLabel("three", L"-3");
  GiveLabel("five", L"-5");
  WriteChangesOnly();
  EXPECT_TRUE(tree.SortNodesByType("root", Tree::ByLabel));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2032 MoveNode "five" "root" null
    do dev:tree 2032 MoveNode "three" "root" null)"));
}

TEST_F(SortNodes, FailsForNullOnly) {
  EXPECT_FALSE(tree.SortNodesByType(nullptr, Tree::ByLabel));
  EXPECT_TRUE(toolkit.Took(""));
  toolkit.When(Doing(2202)).Refuse();
  EXPECT_TRUE(tree.SortNodesByType("root", Tree::ByLabel));
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2202 GetNode "root" | 284=? | 0 => 1)"));
}

TEST_F(SortNodes, SucceedsWhateverTheMovesGive) {
  toolkit.When(Doing(2032)).Refuse();
  WriteChangesOnly();
  EXPECT_TRUE(tree.SortNodesByType("root", Tree::ByLabel));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2032 MoveNode "n1" "root" null => 1
    do dev:tree 2032 MoveNode "n9" "root" null => 1
    do dev:tree 2032 MoveNode "n10" "root" null => 1)"));
}

TEST_F(SortNodes, AnUnsupportedOrderMovesTheChildrenInTheirOldOrder) {
  WriteChangesOnly();
  testing::internal::CaptureStdout();
  EXPECT_TRUE(tree.SortNodesByType("root", kOther));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), kNotSupported);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2032 MoveNode "n10" "root" null
    do dev:tree 2032 MoveNode "n9" "root" null
    do dev:tree 2032 MoveNode "n1" "root" null)"));
}

TEST_F(SortNodes, AnUnsupportedOrderAlwaysGivesItsMessage) {
  std::vector<Tree::NodeInfo> none;
  testing::internal::CaptureStdout();
  tree.SortChildrenByType(none, kOther);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), kNotSupported);
  testing::internal::CaptureStdout();
  tree.SortChildrenByType(none, Tree::ByLabel);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(SortNodes, RecordsAreSortedWhole) {
  std::vector<Tree::NodeInfo> records;
  for (int i = 0; i < 40; ++i) {
    records.push_back(Record("n" + std::to_string(i * 17 % 40), L"R" + std::to_wstring(i * 17 % 40)));
  }
  tree.SortChildrenByType(records, Tree::ByLabel);
  for (int i = 0; i < 40; ++i) {
    EXPECT_EQ(records[static_cast<std::size_t>(i)].name, "n" + std::to_string(i));
    EXPECT_EQ(records[static_cast<std::size_t>(i)].label, L"R" + std::to_wstring(i));
  }
}

TEST_F(SortNodes, AnUnsupportedOrderLeavesRecordsAsTheyAre) {
  std::vector<Tree::NodeInfo> records{Record("b", L"b"), Record("a", L"a")};
  testing::internal::CaptureStdout();
  tree.SortChildrenByType(records, kOther);
  testing::internal::GetCapturedStdout();
  EXPECT_EQ(records[0].name, "b");
  EXPECT_EQ(records[1].name, "a");
}

}  // namespace
}  // namespace oxecad_ui
