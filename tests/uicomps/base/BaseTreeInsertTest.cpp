// Insertion at a chosen place, on the wire.
#include <tests/uicomps/base/BaseTreeTest.h>

#include <cstring>
#include <string>
#include <vector>

namespace oxecad_ui {
namespace {

using BaseTreeInsert = BaseTreeTest;

TEST_F(BaseTreeInsert, NamesTheSiblingFirstAndGivesEightOptions) {
  EXPECT_TRUE(tree.InsertNode("n1", L"Label", "root", Word(0xff), "n0", "net", L"second", -1, 2, 3));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2331 InsertNode "n0" "n1" | 2=L"Label" 283="root" 282="net" 25=L"second" 3=-1 4=2 516=3 260=0xff | 0)"));
}

TEST_F(BaseTreeInsert, GivesANullSiblingForTheEnd) {
  EXPECT_TRUE(tree.InsertNode("n1", L"", "root", nullptr, nullptr, "net", L"", 0, 0, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2331 InsertNode null "n1" | 2=L"" 283="root" 282="net" 25=L"" 3=0 4=0 516=0 260=null | 0)"));
}

TEST_F(BaseTreeInsert, SucceedsForANameThatIsUnderTheParentAlready) {
  toolkit.When(Doing(2331)).Refuse();
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"a", "n1"});
  EXPECT_TRUE(tree.InsertNode("n1", L"", "root", nullptr, nullptr, "net", L"", 0, 0, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2331 InsertNode null "n1" | 2=L"" 283="root" 282="net" 25=L"" 3=0 4=0 516=0 260=null | 0 => 1
    do dev:tree 2202 GetNode "root" | 284->["a" "n1"] | 0
    free 284 ["a" "n1"] | 0)"));
}

TEST_F(BaseTreeInsert, FailsForANameThatIsElsewhere) {
  toolkit.When(Doing(2331)).Refuse();
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"N1", "n", "n11"});
  EXPECT_FALSE(tree.InsertNode("n1", L"", "root", nullptr, nullptr, "net", L"", 0, 0, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2202 GetNode "root" | 284->["N1" "n" "n11"] | 0
    free 284 ["N1" "n" "n11"] | 0)"));
}

TEST_F(BaseTreeInsert, ReleasesItsListAfterAFailedReadToo) {
  toolkit.When(Doing(2331)).Refuse();
  toolkit.When(Doing(2202)).Refuse().Scribble();
  EXPECT_FALSE(tree.InsertNode("n1", L"", "root", nullptr, nullptr, "net", L"", 0, 0, 0));
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2202 GetNode "root" | 284=? | 0 => 1
    free 284 [] | 0)"));
}

TEST_F(BaseTreeInsert, PassesOverNullNamesAndNullArrays) {
  toolkit.When(Doing(2331)).Refuse();
  toolkit.When(Doing(2202)).Give(284, {nullptr, "n1"}).Once();
  EXPECT_TRUE(tree.InsertNode("n1", L"", "root", nullptr, nullptr, "net", L"", 0, 0, 0));
  toolkit.When(Doing(2202)).GiveNullArray(284, 5);
  EXPECT_FALSE(tree.InsertNode("n1", L"", "root", nullptr, nullptr, "net", L"", 0, 0, 0));
}

// --- InsertNodeSortByName --------------------------------------------------------------------------------------------

struct PlacerCall {
  std::string name;
  int count = -1;
  std::vector<std::string> children;
  bool before_was_null = false;
};
PlacerCall g_placer_call;
const char* g_before = nullptr;

bool Place(const char* name, int count, const char** children, const char*& before) {
  g_placer_call = {name, count, {}, before == nullptr};
  for (int i = 0; i < count; ++i) g_placer_call.children.emplace_back(children[i]);
  before = g_before;
  return true;
}
bool PlaceFirst(const char* name, int count, const char** children, const char*& before) {
  Place(name, count, children, before);
  before = count > 0 ? children[0] : nullptr;
  return true;
}
bool Decline(const char* name, int count, const char** children, const char*& before) {
  Place(name, count, children, before);
  before = "ignored";
  return false;
}

TEST_F(BaseTreeInsert, SortByNameAsksThePlacerWithTheChildren) {
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"a", "c"});
  g_before = "c";
  EXPECT_EQ(tree.InsertNodeSortByName("b", L"B", "root", Place, Word(0xff), "net", L"second", 1, 2, 3),
            BaseTree::Inserted);
  EXPECT_EQ(g_placer_call.name, "b");
  EXPECT_EQ(g_placer_call.count, 2);
  EXPECT_EQ(g_placer_call.children, (std::vector<std::string>{"a", "c"}));
  EXPECT_TRUE(g_placer_call.before_was_null);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->["a" "c"] | 0
    do dev:tree 2331 InsertNode "c" "b" | 2=L"B" 283="root" 282="net" 25=L"second" 3=1 4=2 516=3 260=0xff | 0
    free 284 ["a" "c"] | 0)"));
}

TEST_F(BaseTreeInsert, SortByNameMayPlaceBeforeANameOfTheListItself) {
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"a", "c"});
  EXPECT_EQ(tree.InsertNodeSortByName("b", L"B", "root", PlaceFirst, nullptr, "net", L"", 0, 0, 0), BaseTree::Inserted);
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2331 InsertNode "a" "b" | 2=L"B" 283="root" 282="net" 25=L"" 3=0 4=0 516=0 260=null | 0
    free 284 ["a" "c"] | 0)"));
}

TEST_F(BaseTreeInsert, SortByNameInsertsNothingWhenThePlacerDeclines) {
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"a"});
  EXPECT_EQ(tree.InsertNodeSortByName("b", L"B", "root", Decline, nullptr, "net", L"", 0, 0, 0), BaseTree::Declined);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->["a"] | 0
    free 284 ["a"] | 0)"));
}

TEST_F(BaseTreeInsert, SortByNameNeitherAsksNorReleasesAfterAFailedRead) {
  toolkit.When(Doing(2202)).Refuse().Scribble();
  g_placer_call.count = -1;
  EXPECT_EQ(tree.InsertNodeSortByName("b", L"B", "root", Place, nullptr, "net", L"", 0, 0, 0), BaseTree::NotInserted);
  EXPECT_EQ(g_placer_call.count, -1);
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2202 GetNode "root" | 284=? | 0 => 1)"));
}

TEST_F(BaseTreeInsert, SortByNameGivesWhatInsertNodeGives) {
  toolkit.When(Doing(2331)).Refuse();
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"a", "b"});
  g_before = nullptr;
  EXPECT_EQ(tree.InsertNodeSortByName("b", L"B", "root", Place, nullptr, "net", L"", 0, 0, 0), BaseTree::Inserted);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "root" | 284->["a" "b"] | 0
    do dev:tree 2331 InsertNode null "b" | 2=L"B" 283="root" 282="net" 25=L"" 3=0 4=0 516=0 260=null | 0 => 1
    do dev:tree 2202 GetNode "root" | 284->["a" "b"] | 0
    free 284 ["a" "b"] | 0
    free 284 ["a" "b"] | 0)"));
  EXPECT_EQ(tree.InsertNodeSortByName("x", L"X", "root", Place, nullptr, "net", L"", 0, 0, 0), BaseTree::NotInserted);
}

TEST_F(BaseTreeInsert, SortByNameGivesAnEmptyListToThePlacer) {
  g_before = nullptr;
  EXPECT_EQ(tree.InsertNodeSortByName("b", L"B", "root", Place, nullptr, "net", L"", 0, 0, 0), BaseTree::Inserted);
  EXPECT_EQ(g_placer_call.count, 0);
  toolkit.When(Doing(2202)).GiveNullArray(284, 4);
  EXPECT_EQ(tree.InsertNodeSortByName("b", L"B", "root", Place, nullptr, "net", L"", 0, 0, 0), BaseTree::Inserted);
  EXPECT_EQ(g_placer_call.count, 0) << "a count without an array is an empty list";
}

TEST(InsertNodeResult, HasTheNumbersOfTheInterface) {
  EXPECT_EQ(BaseTree::NotInserted, 0);
  EXPECT_EQ(BaseTree::Inserted, 1);
  EXPECT_EQ(BaseTree::Declined, 2);
}

}  // namespace
}  // namespace oxecad_ui
