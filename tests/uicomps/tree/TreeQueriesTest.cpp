// Children, counts and leaves, on the wire.
#include <tests/uicomps/tree/TreeTest.h>

namespace oxecad_ui {
namespace {

using TreeQueries = TreeTest;

TEST_F(TreeQueries, NoOfChildrenCountsThoseOfTheRoot) {
  GiveRoot("root");
  GiveChildren("root", {"a", "b", "c"});
  EXPECT_EQ(tree.GetNoOfChildren(), 3);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2202 GetNode "root" | 284->count 3 | 0)"));
}

TEST_F(TreeQueries, NoOfChildrenIs0WithoutARoot) {
  EXPECT_EQ(tree.GetNoOfChildren(), 0);
  GiveRoot("");
  EXPECT_EQ(tree.GetNoOfChildren(), 0);
  toolkit.When(Retrieving(54)).Refuse().Give(54, "root");
  EXPECT_EQ(tree.GetNoOfChildren(), 0);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->null | 0
    retrieve dev:tree | 54->"" | 0
    retrieve dev:tree | 54=? | 0 => 1)"));
}

TEST_F(TreeQueries, NoOfChildrenTakesARootThatBeginsWithABlank) {
  GiveRoot(" root");
  GiveChildren(" root", {"a"});
  EXPECT_EQ(tree.GetNoOfChildren(), 1);
}

TEST_F(TreeQueries, ChildrenByNameAreCopiedAndReleased) {
  GiveChildren("root", {"a", "b"});
  Names names{"from", "before", "and more"};
  EXPECT_EQ(tree.GetChildren("root", names), 2);
  EXPECT_EQ(names, (Names{"a", "b"}));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->["a" "b"] | 0
    free 284 ["a" "b"] | 0)"));
}

TEST_F(TreeQueries, ChildrenByNameReleaseNothingWithoutChildren) {
  Names names{"before"};
  EXPECT_EQ(tree.GetChildren("leaf", names), 0);
  EXPECT_EQ(names, Names{});
  names = {"before"};
  toolkit.When(Doing(2202, "odd")).GiveNullArray(284, -2);
  EXPECT_EQ(tree.GetChildren("odd", names), -2);
  EXPECT_EQ(names, Names{});
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "leaf" | 284->[] | 0
    do dev:tree 2202 GetNode "odd" | 284->-2 null | 0)"));
}

TEST_F(TreeQueries, ChildrenByNameAreNoneAfterAFailedRead) {
  toolkit.When(Doing(2202)).Refuse().Scribble();
  Names names{"before"};
  EXPECT_EQ(tree.GetChildren("root", names), 0);
  EXPECT_EQ(names, Names{});
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2202 GetNode "root" | 284=? | 0 => 1)"));
}

TEST_F(TreeQueries, ChildrenByNamePassOverNulls) {
  toolkit.When(Doing(2202, "root")).Give(284, {"a", nullptr, "b"});
  Names names;
  tree.GetChildren("root", names);
  EXPECT_EQ(names, (Names{"a", "b"}));
  toolkit.When(Doing(2202, "root")).GiveNullArray(284, 3);
  tree.GetChildren("root", names);
  EXPECT_EQ(names, Names{});
}

TEST_F(TreeQueries, ChildrenAsRecordsReplaceTheVector) {
  GiveChildren("root", {"b", "a"});
  GiveLabel("a", L"A");
  GiveLabel("b", L"B");
  GiveState("b", 1);
  std::vector<Tree::NodeInfo> infos{Record("before", L"before")};
  EXPECT_TRUE(tree.GetChildren("root", infos));
  ASSERT_EQ(infos.size(), 2u);
  EXPECT_EQ(infos[0].name, "b");
  EXPECT_EQ(infos[0].label, L"B");
  EXPECT_EQ(infos[0].state, Tree::Checked);
  EXPECT_EQ(infos[1].name, "a");
  EXPECT_EQ(infos[1].label, L"A");
  EXPECT_EQ(infos[1].state, Tree::Unchecked);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->["b" "a"] | 0
    free 284 ["b" "a"] | 0
    do dev:tree 2202 GetNode "b" | 2->L"B" | 0
    free 2 L"B" | 0
    do dev:tree 2203 InquireNode "b" | 177->0 31->1 | 0
    do dev:tree 2202 GetNode "b" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "b" | 4->0 | 0
    do dev:tree 2202 GetNode "a" | 2->L"A" | 0
    free 2 L"A" | 0
    do dev:tree 2203 InquireNode "a" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "a" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "a" | 4->0 | 0)"));
}

TEST_F(TreeQueries, ChildrenAsRecordsFailForNullOnly) {
  std::vector<Tree::NodeInfo> infos;
  EXPECT_FALSE(tree.GetChildren(nullptr, infos));
  EXPECT_TRUE(toolkit.Took(""));
  toolkit.When(Doing(2202)).Refuse();
  infos = {Record("before", L"")};
  EXPECT_TRUE(tree.GetChildren("gone", infos));
  EXPECT_TRUE(infos.empty());
}

TEST_F(TreeQueries, AChildWithoutARecordStandsAsADefaultOne) {
  GiveChildren("root", {"a", "", "b"});
  std::vector<Tree::NodeInfo> infos;
  EXPECT_TRUE(tree.GetChildren("root", infos));
  ASSERT_EQ(infos.size(), 3u);
  EXPECT_EQ(infos[0].name, "a");
  EXPECT_EQ(infos[1].name, "");
  EXPECT_EQ(infos[1].label, L"");
  EXPECT_EQ(infos[2].name, "b");
}

TEST_F(TreeQueries, LeavesAreFoundDepthFirstAndListsReleasedAfterTheWalk) {
  GiveChildren("root", {"a", "b"});
  GiveChildren("a", {"a1", "a2"});
  Names leaves{"kept"};
  EXPECT_EQ(tree.GetLeaves("root", leaves), 3);
  EXPECT_EQ(leaves, (Names{"kept", "a1", "a2", "b"}));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->["a" "b"] | 0
    do dev:tree 2202 GetNode "a" | 284->["a1" "a2"] | 0
    do dev:tree 2202 GetNode "a1" | 284->[] | 0
    do dev:tree 2202 GetNode "a2" | 284->[] | 0
    free 284 ["a1" "a2"] | 0
    do dev:tree 2202 GetNode "b" | 284->[] | 0
    free 284 ["a" "b"] | 0)"));
}

TEST_F(TreeQueries, ANodeWithoutChildrenIsItsOwnLeaf) {
  Names leaves;
  EXPECT_EQ(tree.GetLeaves("n", leaves), 1);
  EXPECT_EQ(leaves, Names{"n"});
  toolkit.When(Doing(2202)).Refuse().Scribble();
  EXPECT_EQ(tree.GetLeaves("gone", leaves), 1);
  EXPECT_EQ(leaves, (Names{"n", "gone"}));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "n" | 284->[] | 0
    do dev:tree 2202 GetNode "gone" | 284=? | 0 => 1)"));
}

TEST_F(TreeQueries, LeavesOfNullAreThoseOfTheRoot) {
  Names leaves;
  EXPECT_EQ(tree.GetLeaves(nullptr, leaves), 0);
  EXPECT_EQ(leaves, Names{});
  GiveRoot("");
  EXPECT_EQ(tree.GetLeaves(nullptr, leaves), 0);
  GiveRoot("root");
  GiveChildren("root", {"a"});
  EXPECT_EQ(tree.GetLeaves(nullptr, leaves), 1);
  EXPECT_EQ(leaves, Names{"a"});
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->null | 0
    retrieve dev:tree | 54->"" | 0
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2202 GetNode "root" | 284->["a"] | 0
    do dev:tree 2202 GetNode "a" | 284->[] | 0
    free 284 ["a"] | 0)"));
}

TEST_F(TreeQueries, LeavesPassOverNullNames) {
  toolkit.When(Doing(2202, "root")).Give(284, {nullptr, "a"});
  Names leaves;
  EXPECT_EQ(tree.GetLeaves("root", leaves), 1);
  EXPECT_EQ(leaves, Names{"a"});
}

}  // namespace
}  // namespace oxecad_ui
