// What the two ways of counting ask and tell the toolkit, level by level.
#include <tests/uicomps/userdata/UserDataTreeTest.h>

namespace oxecad_ui {
namespace {

class UserDataTotals : public UserDataTreeTest {
 protected:
  UserDataTotals() { toolkit.When(Doing(2202, "leaf 1").With(283)).Give(283, "a"); }

  /// The value written as the total of "a" after its data was `data`, and the label it got.
  std::string AfterLeaf(void* data) {
    GiveBranch("a", L"A", nullptr, data);
    tree.OnLeafAdded("leaf 1");
    return Written();
  }
  std::string AfterUpdate(const std::vector<void*>& children) {
    GiveBranch("a", L"A", nullptr);
    std::vector<std::string> names;
    for (void* const child : children) {
      names.push_back("child " + std::to_string(names.size()));
      GiveType(names.back(), "branch");
      toolkit.When(Doing(2202, names.back()).With(260)).Give(260, child);
    }
    GiveChildren("a", names);
    tree.UpdateParentTotals("leaf 1");
    return Written();
  }

 private:
  std::string Written() {
    const std::string start = "do dev:tree 2201 SetNode \"a\" | ";
    for (const std::string& line : toolkit.TakeLines()) {
      if (line.starts_with(start)) return line.substr(start.size());
    }
    return "nothing";
  }
};

TEST_F(UserDataTotals, ALeafAddsOneToEachAncestor) {
  GiveBranch("a", L"<b>A (2)</b>", "root", Word(2));
  GiveBranch("root", L"All", "", Word(8));
  tree.OnLeafAdded("leaf 1");
  EXPECT_TRUE(toolkit.Took(R"_(
    do dev:tree 2202 GetNode "leaf 1" | 283->"a" | 0
    free 283 "a" | 0
    do dev:tree 2202 GetNode "a" | 260->0x2 | 0
    do dev:tree 2202 GetNode "a" | 2->L"<b>A (2)</b>" | 0
    free 2 L"<b>A (2)</b>" | 0
    do dev:tree 2201 SetNode "a" | 2=L"<b>A (3)</b>" 260=0x3 | 0
    do dev:tree 2202 GetNode "a" | 283->"root" | 0
    free 283 "root" | 0
    do dev:tree 2202 GetNode "root" | 260->0x8 | 0
    do dev:tree 2202 GetNode "root" | 2->L"All" | 0
    free 2 L"All" | 0
    do dev:tree 2201 SetNode "root" | 2=L"All (9)" 260=0x9 | 0
    do dev:tree 2202 GetNode "root" | 283->"" | 0
    free 283 "" | 0)_"));
}

TEST_F(UserDataTotals, AnUpdateCountsTheChildrenOfEachAncestor) {
  GiveBranch("a", L"A (9)", "root");
  GiveBranch("root", L"All", nullptr);
  GiveChildren("a", {"leaf 1", "b", "leaf 2"});
  GiveChildren("root", {"a"});
  GiveType("leaf 1", "leaf");
  GiveType("leaf 2", "leaf");
  GiveType("b", "branch");
  GiveType("a", "");
  toolkit.When(Doing(2202, "b").With(260)).Give(260, Word(5));
  toolkit.When(Doing(2202, "a").With(260)).Give(260, Word(7));
  tree.UpdateParentTotals("leaf 1");
  EXPECT_TRUE(toolkit.Took(R"_(
    do dev:tree 2202 GetNode "leaf 1" | 283->"a" | 0
    free 283 "a" | 0
    do dev:tree 2203 InquireNode "a" | 284->["leaf 1" "b" "leaf 2"] | 0
    do dev:tree 2202 GetNode "leaf 1" | 282->"leaf" | 0
    free 282 "leaf" | 0
    do dev:tree 2202 GetNode "b" | 282->"branch" | 0
    free 282 "branch" | 0
    do dev:tree 2202 GetNode "b" | 260->0x5 | 0
    do dev:tree 2202 GetNode "leaf 2" | 282->"leaf" | 0
    free 282 "leaf" | 0
    do dev:tree 2202 GetNode "a" | 2->L"A (9)" | 0
    free 2 L"A (9)" | 0
    do dev:tree 2201 SetNode "a" | 2=L"A (7)" 260=0x7 | 0
    do dev:tree 2202 GetNode "a" | 283->"root" | 0
    free 283 "root" | 0
    do dev:tree 2203 InquireNode "root" | 284->["a"] | 0
    do dev:tree 2202 GetNode "a" | 282->"" | 0
    free 282 "" | 0
    do dev:tree 2202 GetNode "a" | 260->0x7 | 0
    do dev:tree 2202 GetNode "root" | 2->L"All" | 0
    free 2 L"All" | 0
    do dev:tree 2201 SetNode "root" | 2=L"All (7)" 260=0x7 | 0
    do dev:tree 2202 GetNode "root" | 283->null | 0
    free 283 null | 0)_"));
}

TEST_F(UserDataTotals, ANodeWithoutAParentChangesNothing) {
  for (const auto climb : {&UserDataTree::OnLeafAdded, &UserDataTree::UpdateParentTotals}) {
    (tree.*climb)("root");
    EXPECT_TRUE(toolkit.Took(R"(
      do dev:tree 2202 GetNode "root" | 283->null | 0
      free 283 null | 0)"));
  }
}

TEST_F(UserDataTotals, AnUnreadableParentEndsTheClimb) {
  toolkit.When(Doing(2202, "leaf 1").With(283)).Scribble().Refuse();
  for (const auto climb : {&UserDataTree::OnLeafAdded, &UserDataTree::UpdateParentTotals}) {
    (tree.*climb)("leaf 1");
    EXPECT_TRUE(toolkit.Took(R"(
      do dev:tree 2202 GetNode "leaf 1" | 283=? | 0 => 1
      free 283 null | 0)"));
  }
}

TEST_F(UserDataTotals, ALeafCountIsUnsignedAndWraps) {
  EXPECT_EQ(AfterLeaf(nullptr), "2=L\"A (1)\" 260=0x1 | 0");
  EXPECT_EQ(AfterLeaf(Word(0x7FFFFFFE)), "2=L\"A (2147483647)\" 260=0x7fffffff | 0");
  EXPECT_EQ(AfterLeaf(Word(0x7FFFFFFF)), "2=L\"A (2147483648)\" 260=0x80000000 | 0");
  EXPECT_EQ(AfterLeaf(Word(0xFFFFFFFE)), "2=L\"A (4294967295)\" 260=0xffffffff | 0");
  EXPECT_EQ(AfterLeaf(Word(0xFFFFFFFF)), "2=L\"A (0)\" 260=null | 0");
  EXPECT_EQ(AfterLeaf(Word(0x1'FFFFFFFF)), "2=L\"A (0)\" 260=null | 0");
  EXPECT_EQ(AfterLeaf(Word(0x7F00'00000029)), "2=L\"A (42)\" 260=0x2a | 0");
  EXPECT_EQ(AfterLeaf(Word(~std::uintptr_t{0})), "2=L\"A (0)\" 260=null | 0");
}

TEST_F(UserDataTotals, ACountedTotalIsShownSignedAndWraps) {
  EXPECT_EQ(AfterUpdate({}), "2=L\"A (0)\" 260=null | 0");
  EXPECT_EQ(AfterUpdate({Word(0x7FFFFFFF)}), "2=L\"A (2147483647)\" 260=0x7fffffff | 0");
  EXPECT_EQ(AfterUpdate({Word(0x7FFFFFFF), Word(1)}), "2=L\"A (-2147483648)\" 260=0x80000000 | 0");
  EXPECT_EQ(AfterUpdate({Word(0xFFFFFFFF)}), "2=L\"A (-1)\" 260=0xffffffff | 0");
  EXPECT_EQ(AfterUpdate({Word(0xFFFFFFFF), Word(2)}), "2=L\"A (1)\" 260=0x1 | 0");
  EXPECT_EQ(AfterUpdate({Word(0x1'00000005), nullptr, Word(0x7F00'00000003)}), "2=L\"A (8)\" 260=0x8 | 0");
}

TEST_F(UserDataTotals, ALeafsPointerIsNotCounted) {
  GiveBranch("a", L"A", nullptr);
  GiveChildren("a", {"leaf 1"});
  GiveType("leaf 1", "leaf");
  toolkit.When(Doing(2202, "leaf 1").With(260)).Give(260, Word(77));
  tree.UpdateParentTotals("leaf 1");
  EXPECT_TRUE(toolkit.Took(R"_(
    ...
    do dev:tree 2201 SetNode "a" | 2=L"A (1)" 260=0x1 | 0
    ...)_"));
}

TEST_F(UserDataTotals, ALeafTypeIsComparedByteForByte) {
  GiveBranch("a", L"A", nullptr);
  GiveChildren("a", {"c0", "c1", "c2", "c3", "c4"});
  const char* const types[] = {"Leaf", "leaf ", "lea", "", "leaf"};
  for (int i = 0; i < 5; ++i) GiveType("c" + std::to_string(i), types[i]);
  tree.UpdateParentTotals("leaf 1");
  EXPECT_TRUE(toolkit.Took("...\ndo dev:tree 2201 SetNode \"a\" | 2=L\"A (1)\" 260=0x1 | 0\n..."));
}

TEST_F(UserDataTotals, AnEmptyLeafTypeCountsNodesWithoutAType) {
  const UserDataTree untyped("dev", "tree", "");
  GiveBranch("a", L"A", nullptr);
  GiveChildren("a", {"c", "d"});
  GiveType("d", "branch");
  untyped.UpdateParentTotals("leaf 1");
  EXPECT_TRUE(toolkit.Took("...\ndo dev:tree 2201 SetNode \"a\" | 2=L\"A (1)\" 260=0x1 | 0\n..."));
}

TEST_F(UserDataTotals, WhatCannotBeReadCountsAsNothingAndTheClimbGoesOn) {
  GiveBranch("root", L"All", nullptr, Word(4));
  toolkit.When(Doing(2202, "a").With(283)).Give(283, "root");
  toolkit.When(Doing(2202, "a").With(260)).Scribble().Refuse();
  toolkit.When(Doing(2202, "a").With(2)).Scribble().Refuse();
  toolkit.When(Doing(2201, "a")).Refuse();
  tree.OnLeafAdded("leaf 1");
  EXPECT_TRUE(toolkit.Took(R"_(
    ...
    do dev:tree 2202 GetNode "a" | 260=? | 0 => 1
    do dev:tree 2202 GetNode "a" | 2=? | 0 => 1
    free 2 null | 0
    do dev:tree 2201 SetNode "a" | 2=L" (1)" 260=0x1 | 0 => 1
    ...
    do dev:tree 2201 SetNode "root" | 2=L"All (5)" 260=0x5 | 0
    ...)_"));
}

TEST_F(UserDataTotals, UnreadableChildrenGiveATotalOfNothing) {
  GiveBranch("a", L"A (3)", nullptr);
  toolkit.When(Doing(2203, "a").With(284)).Scribble().Refuse();
  tree.UpdateParentTotals("leaf 1");
  EXPECT_TRUE(toolkit.Took(R"_(
    ...
    do dev:tree 2203 InquireNode "a" | 284=? | 0 => 1
    do dev:tree 2202 GetNode "a" | 2->L"A (3)" | 0
    free 2 L"A (3)" | 0
    do dev:tree 2201 SetNode "a" | 2=L"A (0)" 260=null | 0
    ...)_"));
}

TEST_F(UserDataTotals, AChildWhoseTypeOrDataCannotBeReadAddsNothing) {
  GiveBranch("a", L"A", nullptr);
  GiveChildren("a", {"b", "c", "leaf 1"});
  GiveType("leaf 1", "leaf");
  toolkit.When(Doing(2202, "b").With(282)).Scribble().Refuse();
  toolkit.When(Doing(2202, "b").With(260)).Scribble().Refuse();
  toolkit.When(Doing(2202, "c").With(260)).Give(260, Word(2));
  tree.UpdateParentTotals("leaf 1");
  EXPECT_TRUE(toolkit.Took("...\ndo dev:tree 2201 SetNode \"a\" | 2=L\"A (3)\" 260=0x3 | 0\n..."));
}

TEST_F(UserDataTotals, NullNamesAndAMissingArrayAreNoChildren) {
  GiveBranch("a", L"A", nullptr);
  GiveType("leaf 1", "leaf");
  toolkit.When(Doing(2203, "a").With(284)).Give(284, {nullptr, "leaf 1"});
  tree.UpdateParentTotals("leaf 1");
  for (const std::string& line : toolkit.Lines()) EXPECT_EQ(line.find("GetNode null"), std::string::npos) << line;
  EXPECT_TRUE(toolkit.Took("...\ndo dev:tree 2201 SetNode \"a\" | 2=L\"A (1)\" 260=0x1 | 0\n..."));
  toolkit.When(Doing(2203, "a").With(284)).GiveNullArray(284, 3);
  tree.UpdateParentTotals("leaf 1");
  EXPECT_TRUE(toolkit.Took("...\ndo dev:tree 2201 SetNode \"a\" | 2=L\"A (0)\" 260=null | 0\n..."));
}

}  // namespace
}  // namespace oxecad_ui
