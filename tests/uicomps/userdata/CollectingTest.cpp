// Which nodes' data is collected, in which order, and what the toolkit is asked for it.
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/userdata/UserDataTreeTest.h>

#include <functional>

namespace oxecad_ui {
namespace {

using Names = std::vector<std::string>;
using Data = std::vector<void*>;

class CollectingUserData : public UserDataTreeTest {
 protected:
  CollectingUserData() {
    //   root =0x1
    //     a  =0x2
    //       a1 =0x3
    //       a2 =0x4
    //     b  =0x5
    //       b1 =0x6
    //     c  =0x7
    toolkit.When(Retrieving(54)).Give(54, "root");
    GiveChildren("root", {"a", "b", "c"});
    GiveChildren("a", {"a1", "a2"});
    GiveChildren("b", {"b1"});
    std::uintptr_t word = 0;
    for (const char* name : {"root", "a", "a1", "a2", "b", "b1", "c"}) {
      toolkit.When(Doing(2202, name).With(260)).Give(260, Word(++word));
    }
  }

  Data Collected(const Tree::NodeFilter& filter, void* ignore = nullptr, bool unique = false) const {
    Data out;
    tree.GetData(out, ignore, unique, filter);
    return out;
  }
};

Data Words(std::initializer_list<std::uintptr_t> words) {
  Data data;
  for (const std::uintptr_t word : words) data.push_back(Word(word));
  return data;
}

TEST_F(CollectingUserData, AsksTheFilterAboutEachNodeBeforeItsDataAndChildren) {
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"a", "c"});
  const Answers all;
  EXPECT_EQ(Collected(all), Words({1, 2, 3, 4, 7}));
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2202 GetNode "root" | 260->0x1 | 0
    do dev:tree 2202 GetNode "root" | 284->["a" "c"] | 0
    free 284 ["a" "c"] | 0
    do dev:tree 2202 GetNode "a" | 260->0x2 | 0
    do dev:tree 2202 GetNode "a" | 284->["a1" "a2"] | 0
    free 284 ["a1" "a2"] | 0
    do dev:tree 2202 GetNode "a1" | 260->0x3 | 0
    do dev:tree 2202 GetNode "a1" | 284->[] | 0
    do dev:tree 2202 GetNode "a2" | 260->0x4 | 0
    do dev:tree 2202 GetNode "a2" | 284->[] | 0
    do dev:tree 2202 GetNode "c" | 260->0x7 | 0
    do dev:tree 2202 GetNode "c" | 284->[] | 0)"));
  EXPECT_EQ(all.asked, (Names{"root", "a", "a1", "a2", "c"}));
  EXPECT_EQ(all.asked_by, &tree);
}

struct FilterRow {
  const char* name;
  std::map<std::string, int> answers;
  Names asked;
  Data collected;
};
void PrintTo(const FilterRow& row, std::ostream* out) { *out << row.name; }

class CollectingBy : public CollectingUserData, public testing::WithParamInterface<FilterRow> {};

TEST_P(CollectingBy, TakesWhatTheFilterTakes) {
  const Answers filter(GetParam().answers);
  EXPECT_EQ(Collected(filter), GetParam().collected);
  EXPECT_EQ(filter.asked, GetParam().asked);
}

constexpr int kSkipNode = 1, kSkipBranch = 2, kStop = 3, kUnknown = 4, kNegative = -1;

INSTANTIATE_TEST_SUITE_P(
    Filter, CollectingBy,
    testing::Values(
        FilterRow{"everything", {}, {"root", "a", "a1", "a2", "b", "b1", "c"}, Words({1, 2, 3, 4, 5, 6, 7})},
        FilterRow{"root_skipped",
                  {{"root", kSkipNode}},
                  {"root", "a", "a1", "a2", "b", "b1", "c"},
                  Words({2, 3, 4, 5, 6, 7})},
        FilterRow{"root_branch_skipped", {{"root", kSkipBranch}}, {"root"}, {}},
        FilterRow{"root_stops", {{"root", kStop}}, {"root"}, {}},
        FilterRow{"root_unknown_answer", {{"root", kUnknown}}, {"root"}, {}},
        FilterRow{"branch_left_out_and_walked",
                  {{"a", kSkipNode}},
                  {"root", "a", "a1", "a2", "b", "b1", "c"},
                  Words({1, 3, 4, 5, 6, 7})},
        FilterRow{"branch_skipped", {{"a", kSkipBranch}}, {"root", "a", "b", "b1", "c"}, Words({1, 5, 6, 7})},
        FilterRow{
            "unknown_answer_skips_the_branch", {{"a", kUnknown}}, {"root", "a", "b", "b1", "c"}, Words({1, 5, 6, 7})},
        FilterRow{
            "negative_answer_skips_the_branch", {{"a", kNegative}}, {"root", "a", "b", "b1", "c"}, Words({1, 5, 6, 7})},
        FilterRow{"second_child_stops", {{"b", kStop}}, {"root", "a", "a1", "a2", "b"}, Words({1, 2, 3, 4})},
        FilterRow{
            "stop_ends_one_level_only", {{"a1", kStop}}, {"root", "a", "a1", "b", "b1", "c"}, Words({1, 2, 5, 6, 7})}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(CollectingUserData, LeavesTheIgnoredValueOut) {
  toolkit.When(Doing(2202, "b").With(260)).Give(260, Word(3));
  EXPECT_EQ(Collected(Answers(), Word(3)), Words({1, 2, 4, 6, 7}));
  toolkit.When(Doing(2202, "b").With(260)).Give(260, nullptr);
  EXPECT_EQ(Collected(Answers(), nullptr), Words({1, 2, 3, 4, 6, 7}));
  EXPECT_EQ(Collected(Answers(), Word(9)), Words({1, 2, 3, 4, 0, 6, 7})) << "null counts unless it is ignored";
}

TEST_F(CollectingUserData, TakesNoDataThatCannotBeReadAndWalksOn) {
  for (const bool garbage : {false, true}) {
    auto& rule = toolkit.When(Doing(2202, "a").With(260)).Refuse();
    if (garbage) rule.Scribble();
    EXPECT_EQ(Collected(Answers(), Word(9)), Words({1, 3, 4, 5, 6, 7}));
  }
}

TEST_F(CollectingUserData, AppendsInTheOrderOfTheWalk) {
  toolkit.When(Doing(2202, "a").With(260)).Give(260, Word(6));
  Data out = Words({8, 8});
  tree.GetData(out, nullptr, false, Answers());
  EXPECT_EQ(out, Words({8, 8, 1, 6, 3, 4, 5, 6, 7}));
}

TEST_F(CollectingUserData, SortsAndUnifiesWhatWasThereBeforeToo) {
  toolkit.When(Doing(2202, "a").With(260)).Give(260, Word(6));
  Data out = Words({~std::uintptr_t{0}, 8, 4, 8});
  tree.GetData(out, nullptr, true, Answers());
  EXPECT_EQ(out, Words({1, 3, 4, 5, 6, 7, 8, ~std::uintptr_t{0}})) << "by unsigned address";
}

TEST_F(CollectingUserData, SortsAndUnifiesAlsoWhenTheRootIsRefused) {
  for (const int refusal : {kSkipBranch, kStop, kUnknown}) {
    Data out = Words({5, 2, 5});
    tree.GetData(out, nullptr, true, Answers({{"root", refusal}}));
    EXPECT_EQ(out, Words({2, 5}));
    tree.GetData(out, nullptr, false, Answers({{"root", refusal}}));
    EXPECT_EQ(out, Words({2, 5}));
  }
}

TEST_F(CollectingUserData, WalksABranchWithoutItsOwnNode) {
  Data out = Words({9, 6, 9});
  const Answers all;
  tree.GetBranchData("b", out, nullptr, all);
  EXPECT_EQ(out, Words({9, 6, 9, 6})) << "never sorted";
  EXPECT_EQ(all.asked, (Names{"b1"}));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "b" | 284->["b1"] | 0
    free 284 ["b1"] | 0
    do dev:tree 2202 GetNode "b1" | 260->0x6 | 0
    do dev:tree 2202 GetNode "b1" | 284->[] | 0)"));
}

TEST_F(CollectingUserData, AsksNothingBelowNull) {
  Data out;
  const Answers all;
  tree.GetBranchData(nullptr, out, nullptr, all);
  EXPECT_TRUE(out.empty());
  EXPECT_TRUE(all.asked.empty());
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(CollectingUserData, FindsNothingWithoutARoot) {
  for (const bool refused : {false, true}) {
    auto& rule = toolkit.When(Retrieving(54));
    if (refused) rule.Scribble().Refuse();
    toolkit.When(Doing(2202).With(260)).Refuse();
    EXPECT_TRUE(Collected(Answers()).empty());
    toolkit.Took("...");
    EXPECT_TRUE(Collected(Answers({}, kSkipNode)).empty());
    EXPECT_TRUE(toolkit.Took(refused ? "retrieve dev:tree | 54=? | 0 => 1" : "retrieve dev:tree | 54->null | 0"));
  }
}

TEST_F(CollectingUserData, PassesNullNamesOver) {
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {nullptr, "c", nullptr});
  EXPECT_EQ(Collected(Answers()), Words({1, 7}));
  toolkit.When(Doing(2202, "root").With(284)).GiveNullArray(284, 2);
  EXPECT_EQ(Collected(Answers()), Words({1}));
}

TEST_F(CollectingUserData, CollectsCheckedNodesOnly) {
  toolkit.When(Doing(2203, "root").With(31)).Give(177, 1);
  toolkit.When(Doing(2203, "a").With(31)).Give(31, 1);
  toolkit.When(Doing(2203, "a2").With(31)).Give(31, 1);
  toolkit.When(Doing(2203, "b1").With(31)).Give(31, 1);
  EXPECT_EQ(Collected(Tree::CheckedOnly()), Words({2, 4})) << "an unchecked branch hides its checked nodes";
}

}  // namespace
}  // namespace oxecad_ui
