// Filtered walks that collect records.
#include <tests/uicomps/tree/TreeTest.h>

#include <map>

namespace oxecad_ui {
namespace {

/// Gives what the test says for a name, else `Accept`, and notes whom it was asked about.
class ScriptedFilter : public Tree::NodeFilter {
 public:
  explicit ScriptedFilter(std::map<std::string, int> results) : results_(std::move(results)) {}
  Result operator()(const Tree*, const char* node) const override {
    asked.push_back(std::string("by name ") + node);
    return Accept;
  }
  Result operator()(const Tree::NodeInfo& info) const override {
    asked.push_back(info.name);
    const auto found = results_.find(info.name);
    return found == results_.end() ? Accept : static_cast<Result>(found->second);
  }
  mutable Names asked;

 private:
  std::map<std::string, int> results_;
};

class TreeWalks : public TreeTest {
 protected:
  // root ( a ( a1 a2 ( a21 ) ) b ( b1 ) c )
  TreeWalks() {
    GiveRoot("root");
    GiveChildren("root", {"a", "b", "c"});
    GiveChildren("a", {"a1", "a2"});
    GiveChildren("a2", {"a21"});
    GiveChildren("b", {"b1"});
  }
  Names Branch(const char* node, std::map<std::string, int> results) {
    const ScriptedFilter filter(std::move(results));
    Tree::TreeInfo info;
    tree.GetBranchInfo(node, info, filter);
    asked = filter.asked;
    return NamesOf(info);
  }
  Names Whole(bool include_root, std::map<std::string, int> results) {
    const ScriptedFilter filter(std::move(results));
    Tree::TreeInfo info;
    tree.GetTreeInfo(info, filter, include_root);
    asked = filter.asked;
    return NamesOf(info);
  }
  Names asked;
  static constexpr int kSkipNode = Tree::NodeFilter::SkipNode;
  static constexpr int kSkipBranch = Tree::NodeFilter::SkipBranch;
  static constexpr int kStop = Tree::NodeFilter::StopSiblings;
};

TEST_F(TreeWalks, BranchIsCollectedInPreOrderWithoutItsTop) {
  EXPECT_EQ(Branch("root", {}), (Names{"a", "a1", "a2", "a21", "b", "b1", "c"}));
  EXPECT_EQ(Branch("a", {}), (Names{"a1", "a2", "a21"}));
  EXPECT_EQ(Branch("c", {}), Names{});
}

TEST_F(TreeWalks, BranchOfNullIsNothing) {
  EXPECT_EQ(Branch(nullptr, {}), Names{});
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(TreeWalks, BranchListsChildrenFirstAndThenWalks) {
  GiveChildren("x", {"x1", "x2"});
  Branch("x", {{"x1", kSkipBranch}, {"x2", kSkipBranch}});
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "x" | 284->["x1" "x2"] | 0
    free 284 ["x1" "x2"] | 0
    do dev:tree 2202 GetNode "x1" | 2->null | 0
    free 2 null | 0
    do dev:tree 2203 InquireNode "x1" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "x1" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "x1" | 4->0 | 0
    do dev:tree 2202 GetNode "x2" | 2->null | 0
    free 2 null | 0
    do dev:tree 2203 InquireNode "x2" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "x2" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "x2" | 4->0 | 0)"));
}

TEST_F(TreeWalks, SkippedNodesAreLeftOutAndWalked) {
  EXPECT_EQ(Branch("root", {{"a", kSkipNode}, {"a2", kSkipNode}}), (Names{"a1", "a21", "b", "b1", "c"}));
}

TEST_F(TreeWalks, SkippedBranchesAreNotWalked) {
  EXPECT_EQ(Branch("root", {{"a", kSkipBranch}}), (Names{"b", "b1", "c"}));
  EXPECT_EQ(asked, (Names{"a", "b", "b1", "c"}));
}

TEST_F(TreeWalks, AnyOtherResultSkipsTheBranch) {
  EXPECT_EQ(Branch("root", {{"a", 4}, {"b", -1}}), Names{"c"});
  EXPECT_EQ(asked, (Names{"a", "b", "c"}));
}

TEST_F(TreeWalks, StopEndsTheSiblingsAndTheWalkGoesOnAbove) {
  EXPECT_EQ(Branch("root", {{"a1", kStop}}), (Names{"a", "b", "b1", "c"}));
  EXPECT_EQ(asked, (Names{"a", "a1", "b", "b1", "c"}));
  EXPECT_EQ(Branch("root", {{"b", kStop}}), (Names{"a", "a1", "a2", "a21"}));
}

TEST_F(TreeWalks, RecordsAreAppended) {
  Tree::TreeInfo info;
  info.records.push_back(new Tree::NodeInfo(Record("kept", L"")));
  tree.GetBranchInfo("b", info, Tree::Everything());
  EXPECT_EQ(NamesOf(info), (Names{"kept", "b1"}));
}

TEST_F(TreeWalks, WholeTreeWithoutItsRootDoesNotAskAboutTheRoot) {
  EXPECT_EQ(Whole(false, {{"root", kSkipBranch}}), (Names{"a", "a1", "a2", "a21", "b", "b1", "c"}));
  EXPECT_EQ(asked.front(), "a");
}

TEST_F(TreeWalks, WholeTreeWithItsRootBeginsThere) {
  EXPECT_EQ(Whole(true, {}), (Names{"root", "a", "a1", "a2", "a21", "b", "b1", "c"}));
}

TEST_F(TreeWalks, ASkippedRootIsLeftOutAndWalked) {
  EXPECT_EQ(Whole(true, {{"root", kSkipNode}, {"a", kSkipBranch}}), (Names{"b", "b1", "c"}));
}

TEST_F(TreeWalks, AnyOtherResultForTheRootEndsTheWalk) {
  for (const int result : {kSkipBranch, kStop, 4, -1}) {
    EXPECT_EQ(Whole(true, {{"root", result}}), Names{});
    EXPECT_EQ(asked, Names{"root"});
  }
}

TEST_F(TreeWalks, ATreeWithoutARootLeavesTheCollectionAsItIs) {
  for (const char* root : {static_cast<const char*>(nullptr), ""}) {
    toolkit.When(Retrieving(54)).Give(54, root);
    Tree::TreeInfo info;
    info.records.push_back(new Tree::NodeInfo(Record("kept", L"")));
    tree.GetTreeInfo(info, Tree::Everything(), true);
    tree.GetTreeInfo(info, Tree::Everything(), false);
    tree.GetCheckedNodes(info);
    EXPECT_EQ(NamesOf(info), Names{"kept"});
  }
  toolkit.When(Retrieving(54)).Refuse().Scribble();
  Tree::TreeInfo info;
  tree.GetTreeInfo(info, Tree::Everything(), true);
  EXPECT_TRUE(info.records.empty());
}

TEST_F(TreeWalks, CheckedNodesAreThoseBelowTheRoot) {
  GiveState("a", 1);
  GiveState("a2", 1);
  GiveState("a21", 1);
  GiveState("b1", 1);  // below an unchecked one
  Tree::TreeInfo info;
  tree.GetCheckedNodes(info);
  EXPECT_EQ(NamesOf(info), (Names{"a", "a2", "a21"}));
}

TEST_F(TreeWalks, CheckedNodesBelowAPartlyCheckedOneAreListedWithoutIt) {
  GiveState("root", 0);
  GiveState("a", 2);
  GiveState("a1", 1);
  GiveState("b", 2);
  GiveState("b1", 1);
  Tree::TreeInfo info;
  tree.GetCheckedNodes(info);
  EXPECT_EQ(NamesOf(info), (Names{"a1", "b1"}));
}

TEST_F(TreeWalks, CheckedNodesNeitherReadNorFilterTheRoot) {
  toolkit.When(Doing(2202, "root").With(284)).Give(284, {"c"});
  Tree::TreeInfo info;
  tree.GetCheckedNodes(info);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 54->"root" | 0
    do dev:tree 2202 GetNode "root" | 284->["c"] | 0
    free 284 ["c"] | 0
    do dev:tree 2202 GetNode "c" | 2->null | 0
    free 2 null | 0
    do dev:tree 2203 InquireNode "c" | 177->0 31->0 | 0
    do dev:tree 2202 GetNode "c" | 282->null | 0
    free 282 null | 0
    do dev:tree 2202 GetNode "c" | 4->0 | 0)"));
}

/// Records of its own, none for names that begin with "b".
class HeirTree : public Tree {
 public:
  struct HeirInfo : NodeInfo {
    HeirInfo() { ++alive; }
    HeirInfo(const HeirInfo&) = delete;
    HeirInfo& operator=(const HeirInfo&) = delete;
    ~HeirInfo() override { --alive; }
  };
  using Tree::GetNodeInfo;
  using Tree::Tree;
  NodeInfo* GetNodeInfo(const char* node) const override {
    if (node[0] == 'b') return nullptr;
    auto* const record = new HeirInfo;
    record->name = node;
    most = std::max(most, alive);
    return record;
  }
  static int alive;
  static int most;
};
int HeirTree::alive = 0;
int HeirTree::most = 0;

TEST_F(TreeWalks, RecordsComeThroughTheVirtualSlotAndUntakenOnesAreDeletedAtOnce) {
  const HeirTree heir("dev", "tree");
  {
    Tree::TreeInfo info;
    heir.GetTreeInfo(info, ScriptedFilter({{"root", kSkipNode}, {"a", kSkipNode}, {"a1", kSkipBranch}, {"c", kStop}}),
                     true);
    EXPECT_EQ(NamesOf(info), (Names{"a2", "a21"}));
    EXPECT_EQ(HeirTree::alive, 2);
  }
  EXPECT_EQ(HeirTree::alive, 0);
  EXPECT_EQ(HeirTree::most, 4) << "a skipped node's record, the root's too, lives while its subtree is walked";
}

TEST_F(TreeWalks, ChildrenWithoutARecordArePassedOver) {
  const HeirTree heir("dev", "tree");
  Tree::TreeInfo info;
  const ScriptedFilter filter({});
  heir.GetTreeInfo(info, filter, false);
  EXPECT_EQ(NamesOf(info), (Names{"a", "a1", "a2", "a21", "c"}));
  EXPECT_EQ(filter.asked, (Names{"a", "a1", "a2", "a21", "c"}));
}

TEST_F(TreeWalks, ARootWithoutARecordIsNoWalk) {
  GiveRoot("b");
  const HeirTree heir("dev", "tree");
  Tree::TreeInfo info;
  heir.GetTreeInfo(info, ScriptedFilter({}), true);
  EXPECT_EQ(NamesOf(info), Names{});
}

TEST(TreeFilters, CopiesTakeTheSame) {
  const Tree::CheckedOnly original;
  Tree::CheckedOnly copy(original);
  copy = original;
  EXPECT_EQ(copy(Record("n", L"", Tree::Checked)), Tree::NodeFilter::Accept);
  EXPECT_EQ(copy(Record("n", L"", Tree::PartlyChecked)), Tree::NodeFilter::SkipNode);
}

}  // namespace
}  // namespace oxecad_ui
