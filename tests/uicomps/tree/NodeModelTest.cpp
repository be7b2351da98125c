// Records, collections of records, filters.
#include <tests/uicomps/tree/TreeTest.h>

#include <type_traits>

namespace oxecad_ui {
namespace {

TEST(NodeInfo, IsEmptyUncheckedAndCollapsedByDefault) {
  const Tree::NodeInfo info;
  EXPECT_EQ(info.name, "");
  EXPECT_EQ(info.label, L"");
  EXPECT_EQ(info.type, "");
  EXPECT_EQ(info.state, Tree::Unchecked);
  EXPECT_FALSE(info.expanded);
}

TEST(NodeInfo, IsCopiedWithAllFiveFields) {
  Tree::NodeInfo info = Record("a/b", L"B", Tree::PartlyChecked);
  info.type = "net";
  info.expanded = true;
  const Tree::NodeInfo copy(info);
  Tree::NodeInfo assigned;
  assigned = info;
  for (const Tree::NodeInfo* other : {&copy, static_cast<const Tree::NodeInfo*>(&assigned)}) {
    EXPECT_EQ(other->name, "a/b");
    EXPECT_EQ(other->label, L"B");
    EXPECT_EQ(other->type, "net");
    EXPECT_EQ(other->state, Tree::PartlyChecked);
    EXPECT_TRUE(other->expanded);
  }
}

TEST(NodeInfo, HasAVirtualDestructorAndNoOtherVirtualOperation) {
  EXPECT_TRUE(std::has_virtual_destructor_v<Tree::NodeInfo>);
  EXPECT_FALSE(std::is_abstract_v<Tree::NodeInfo>);
}

TEST(NodeInfo, KeepsItsFieldsInTheirOrder) {
  const Tree::NodeInfo info;
  const auto place = [&](const auto& field) {
    return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&info);
  };
  EXPECT_LT(place(info.name), place(info.label));
  EXPECT_LT(place(info.label), place(info.type));
  EXPECT_LT(place(info.type), place(info.state));
  EXPECT_LT(place(info.state), place(info.expanded));
  EXPECT_EQ(sizeof info.state, 4u);
}

TEST(NodeState, HasTheNumbersOfTheInterface) {
  EXPECT_EQ(Tree::Unchecked, 0u);
  EXPECT_EQ(Tree::Checked, 1u);
  EXPECT_EQ(Tree::PartlyChecked, 2u);
  EXPECT_EQ(sizeof(Tree::NodeState), 4u);
  EXPECT_EQ(sizeof(Tree::NodeComparableType), 4u);
  EXPECT_EQ(Tree::ByLabel, 0u);
  EXPECT_EQ(Tree::NodeFilter::Accept, 0);
  EXPECT_EQ(Tree::NodeFilter::SkipNode, 1);
  EXPECT_EQ(Tree::NodeFilter::SkipBranch, 2);
  EXPECT_EQ(Tree::NodeFilter::StopSiblings, 3);
}

/// Counts the records that live.
struct CountedInfo : Tree::NodeInfo {
  CountedInfo() { ++alive; }
  CountedInfo(const CountedInfo& other) : Tree::NodeInfo(other) { ++alive; }
  CountedInfo& operator=(const CountedInfo&) = default;
  ~CountedInfo() override { --alive; }
  static int alive;
};
int CountedInfo::alive = 0;

TEST(TreeInfo, OwnsItsRecordsByDefaultAndDeletesThemVirtually) {
  {
    Tree::TreeInfo info;
    EXPECT_TRUE(info.ownsRecords);
    info.records.push_back(new CountedInfo);
    info.records.push_back(nullptr);
    info.records.push_back(new CountedInfo);
    EXPECT_EQ(CountedInfo::alive, 2);
  }
  EXPECT_EQ(CountedInfo::alive, 0);
}

TEST(TreeInfo, DeletesOwnedRecordsWhenItIsCleared) {
  Tree::TreeInfo info;
  info.records.push_back(new CountedInfo);
  info.Clear();
  EXPECT_EQ(CountedInfo::alive, 0);
  EXPECT_TRUE(info.records.empty());
  info.Clear();
}

TEST(TreeInfo, OnlyDropsRecordsThatItDoesNotOwn) {
  CountedInfo record;
  {
    Tree::TreeInfo info;
    info.ownsRecords = false;
    info.records.push_back(&record);
    info.Clear();
    EXPECT_TRUE(info.records.empty());
    info.records.push_back(&record);
  }
  EXPECT_EQ(CountedInfo::alive, 1);
}

TEST(TreeInfo, IsCopiedWithoutOwnership) {
  Tree::TreeInfo info;
  info.records.push_back(new CountedInfo);
  {
    const Tree::TreeInfo copy(info);
    EXPECT_EQ(copy.records, info.records);
    EXPECT_FALSE(copy.ownsRecords);
    EXPECT_TRUE(info.ownsRecords);
  }
  EXPECT_EQ(CountedInfo::alive, 1);
}

TEST(TreeInfo, LosesWhatItOwnedWhenAnotherIsAssigned) {
  Tree::TreeInfo source;
  source.records.push_back(new CountedInfo);
  {
    Tree::TreeInfo target;
    target.records.push_back(new CountedInfo);
    target = source;
    EXPECT_EQ(CountedInfo::alive, 1);
    EXPECT_EQ(target.records, source.records);
    EXPECT_FALSE(target.ownsRecords);
  }
  EXPECT_EQ(CountedInfo::alive, 1);
}

TEST(TreeInfo, SurvivesAssignmentToItself) {
  Tree::TreeInfo info;
  info.records.push_back(new CountedInfo);
  const Tree::TreeInfo& same = info;
  info = same;
  EXPECT_EQ(info.records.size(), 1u);
  EXPECT_EQ(CountedInfo::alive, 1);
  EXPECT_TRUE(info.ownsRecords);
}

using Filters = TreeTest;

TEST_F(Filters, EverythingAcceptsAllAndReadsNothing) {
  const Tree::Everything everything;
  for (const unsigned state : {0u, 1u, 2u, 9u}) {
    EXPECT_EQ(everything(Record("n", L"", static_cast<Tree::NodeState>(state))), Tree::NodeFilter::Accept);
  }
  EXPECT_EQ(everything(&tree, "n"), Tree::NodeFilter::Accept);
  EXPECT_EQ(everything(nullptr, nullptr), Tree::NodeFilter::Accept);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(Filters, CheckedOnlyTakesCheckedRecordsAndPassesThroughPartlyCheckedOnes) {
  const Tree::CheckedOnly checked;
  EXPECT_EQ(checked(Record("n", L"", Tree::Checked)), Tree::NodeFilter::Accept);
  EXPECT_EQ(checked(Record("n", L"", Tree::Unchecked)), Tree::NodeFilter::SkipBranch);
  EXPECT_EQ(checked(Record("n", L"", Tree::PartlyChecked)), Tree::NodeFilter::SkipNode);
  EXPECT_EQ(checked(Record("n", L"", static_cast<Tree::NodeState>(3))), Tree::NodeFilter::SkipNode);
  EXPECT_EQ(checked(Record("n", L"", static_cast<Tree::NodeState>(0xFFFFFFFFu))), Tree::NodeFilter::SkipNode);
}

TEST_F(Filters, CheckedOnlyReadsTheStateOfANode) {
  const Tree::CheckedOnly checked;
  GiveState("on", 1);
  GiveState("partly", 2);
  EXPECT_EQ(checked(&tree, "on"), Tree::NodeFilter::Accept);
  EXPECT_EQ(checked(&tree, "off"), Tree::NodeFilter::SkipBranch);
  EXPECT_EQ(checked(&tree, "partly"), Tree::NodeFilter::SkipNode);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "on" | 177->0 31->1 | 0
    do dev:tree 2203 InquireNode "off" | 177->0 31->0 | 0
    do dev:tree 2203 InquireNode "partly" | 177->1 31->0 | 0)"));
}

TEST_F(Filters, CheckedOnlySkipsANodeOfNoTree) {
  EXPECT_EQ(Tree::CheckedOnly()(nullptr, "n"), Tree::NodeFilter::SkipNode);
  EXPECT_TRUE(toolkit.Took(""));
}

struct NamesRow {
  const char* fact;
  const char* name;
  const wchar_t* label;
  const char* parent;
  const wchar_t* shown;
};
class NodeInfoToNames : public testing::TestWithParam<NamesRow> {};

TEST_P(NodeInfoToNames, GivesTheParentAndTheLabelShown) {
  const NamesRow& row = GetParam();
  std::string parent = "before";
  std::wstring label = L"before";
  Tree::NodeInfoToNames(Record(row.name, row.label), parent, label);
  EXPECT_EQ(parent, row.parent);
  EXPECT_EQ(label, row.shown);
}

INSTANTIATE_TEST_SUITE_P(Names, NodeInfoToNames,
                         testing::Values(NamesRow{"divided_name_is_shown_by_its_rest", "a/b", L"", "a", L"b"},
                                         NamesRow{"plain_name_lives_under_root", "x", L"", "root", L"x"},
                                         NamesRow{"label_is_shown_when_there_is_one", "a/b", L"Label", "a", L"Label"},
                                         NamesRow{"groups_name", "groups/g", L"", "groups", L"g"},
                                         NamesRow{"root_has_no_parent", "root", L"", "", L"root"},
                                         NamesRow{"deeper_name_keeps_its_slashes", "a/b/c", L"", "a", L"b/c"},
                                         NamesRow{"empty_name", "", L"", "root", L""},
                                         NamesRow{"rest_is_read_as_utf8", "a/\xC3\xA4", L"", "a", L"\u00e4"}),
                         [](const testing::TestParamInfo<NamesRow>& row) { return row.param.fact; });

TEST(NodeInfoToNamesWide, MakesTwoUnitsOfACharacterBeyondFFFF) {
  std::string parent;
  std::wstring label;
  Tree::NodeInfoToNames(Record("a/\xF0\x9F\x98\x80", L""), parent, label);
  EXPECT_EQ(label, (std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)}));
}

}  // namespace
}  // namespace oxecad_ui
