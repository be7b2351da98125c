// From construction to destruction: slots, callbacks, copies.
#include <tests/uicomps/VirtualSlot.h>
#include <tests/uicomps/userdata/UserDataTreeTest.h>

#include <memory>
#include <set>
#include <type_traits>

namespace oxecad_ui {
namespace {

using UserDataTreeLife = UserDataTreeTest;

TEST_F(UserDataTreeLife, HasTheSlotsOfATree) {
  using ByReference = bool (UserDataTree::*)(const char*, Tree::NodeInfo&) const;
  using ByPointer = Tree::NodeInfo* (UserDataTree::*)(const char*) const;
  EXPECT_EQ(VirtualSlot(&UserDataTree::Init), 1);
  EXPECT_EQ(VirtualSlot(&UserDataTree::Clear), 2);
  EXPECT_EQ(VirtualSlot(&UserDataTree::OnActivate), 3);
  EXPECT_EQ(VirtualSlot(&UserDataTree::OnCollapse), 4);
  EXPECT_EQ(VirtualSlot(&UserDataTree::OnExpand), 5);
  EXPECT_EQ(VirtualSlot(&UserDataTree::OnSelect), 6);
  EXPECT_EQ(VirtualSlot(&UserDataTree::OnCheck), 7);
  EXPECT_EQ(VirtualSlot(static_cast<bool (UserDataTree::*)(const Tree::NodeInfo&)>(&UserDataTree::AddNode)), 8);
  EXPECT_EQ(VirtualSlot(static_cast<ByReference>(&OpenUserDataTree::GetNodeInfo)), 9);
  EXPECT_EQ(VirtualSlot(static_cast<ByPointer>(&OpenUserDataTree::GetNodeInfo)), 10);
}

TEST_F(UserDataTreeLife, AddsNoVirtualOperation) {
  using Adding = bool (UserDataTree::*)(const UserDataTree::DataNodeInfo&);
  EXPECT_EQ(VirtualSlot(static_cast<Adding>(&UserDataTree::AddNode)), -1);
  EXPECT_EQ(VirtualSlot(&UserDataTree::Set), -1);
  EXPECT_EQ(VirtualSlot(&UserDataTree::GetData), -1);
  EXPECT_EQ(VirtualSlot(&OpenUserDataTree::GetBranchData), -1);
  EXPECT_EQ(VirtualSlot(&UserDataTree::OnLeafAdded), -1);
  EXPECT_EQ(VirtualSlot(&UserDataTree::UpdateParentTotals), -1);
}

/// The entries of an object's virtual table behind the two of the destructor.
std::vector<const void*> Slots(const Tree& object) {
  const void* const* table = nullptr;
  std::memcpy(&table, static_cast<const void*>(&object), sizeof table);
  return std::vector<const void*>(table + 2, table + 12);
}

TEST_F(UserDataTreeLife, OverridesTheReadingOfRecordsAlone) {
  const Tree plain("dev", "tree");
  const UserDataTree user_data("dev", "tree", "leaf");
  const std::vector<const void*> before = Slots(plain);
  const std::vector<const void*> after = Slots(user_data);
  std::set<std::size_t> differing;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i] != after[i]) differing.insert(i + 1);
  }
  EXPECT_EQ(differing, (std::set<std::size_t>{9, 10}));
}

TEST_F(UserDataTreeLife, RegistersAndRemovesWhatATreeDoes) {
  auto another = std::make_unique<UserDataTree>("dev", "other", "leaf");
  toolkit.NamePointer(another.get(), "&other");
  EXPECT_TRUE(toolkit.Took("")) << "construction calls nothing";
  another->Init();
  EXPECT_TRUE(toolkit.Took(R"(
    add_action dev:other 4 Activate f1 &other 0
    add_action dev:other 30 Collapse f2 &other 0
    add_action dev:other 29 Expand f3 &other 0
    add_action dev:other 3 Select f4 &other 0
    add_action dev:other 7 Check f5 &other 0)"));
  another.reset();
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:other 7 Check f5
    remove_action dev:other 3 Select f4
    remove_action dev:other 29 Expand f3
    remove_action dev:other 30 Collapse f2
    remove_action dev:other 4 Activate f1)"));
}

/// Whether the tree counts nodes of this type as leaves.
bool CountsAsLeaf(RecordingToolkit& toolkit, const UserDataTree& tree, const char* type) {
  toolkit.When(Doing(2202, "n").With(283)).Give(283, "parent");
  toolkit.When(Doing(2203, "parent").With(284)).Give(284, {"n"});
  toolkit.When(Doing(2202, "n").With(282)).Give(282, type);
  toolkit.TakeLines();
  tree.UpdateParentTotals("n");
  bool counted = false;
  for (const std::string& line : toolkit.TakeLines()) counted = counted || line.find("260=0x1 ") != std::string::npos;
  return counted;
}

TEST_F(UserDataTreeLife, KeepsACopyOfTheLeafType) {
  char type[] = "part";
  const UserDataTree parts("dev", "tree", type);
  type[0] = 'X';
  EXPECT_TRUE(CountsAsLeaf(toolkit, parts, "part"));
  EXPECT_FALSE(CountsAsLeaf(toolkit, parts, "Xart"));
}

TEST_F(UserDataTreeLife, CopiesNamesHandlerAndLeafType) {
  int notified = 0;
  const auto handler = [](void* client, void*) { return ++*static_cast<int*>(client); };
  UserDataTree original("dev", "parts", "part");
  original.SetOnDirtyHandler(handler, &notified, nullptr);
  UserDataTree copy(original);
  UserDataTree assigned("other", "nets", "net");
  assigned = original;
  EXPECT_TRUE(toolkit.Took("")) << "copying calls nothing";
  for (UserDataTree* tree_copy : {&copy, &assigned}) {
    EXPECT_STREQ(tree_copy->GetDevice(), "dev");
    EXPECT_STREQ(tree_copy->GetName(), "parts");
    EXPECT_NE(tree_copy->GetName(), original.GetName());
    EXPECT_TRUE(CountsAsLeaf(toolkit, *tree_copy, "part"));
    EXPECT_FALSE(CountsAsLeaf(toolkit, *tree_copy, "net"));
    tree_copy->OnCheck("n");
  }
  EXPECT_EQ(notified, 2);
}

TEST_F(UserDataTreeLife, SurvivesAssignmentToItself) {
  UserDataTree& same = tree;
  tree = static_cast<const OpenUserDataTree&>(same);
  EXPECT_STREQ(tree.GetName(), "tree");
  EXPECT_TRUE(CountsAsLeaf(toolkit, tree, "leaf"));
}

TEST_F(UserDataTreeLife, ACopyRemovesTheCallbacksAgain) {
  const auto count_removals = [this] {
    std::size_t removals = 0;
    for (const std::string& line : toolkit.TakeLines()) removals += line.starts_with("remove_action dev:tree") ? 1 : 0;
    return removals;
  };
  { const UserDataTree copy(tree); }
  EXPECT_EQ(count_removals(), 5u);
}

TEST_F(UserDataTreeLife, HandlesEventsAsATreeDoes) {
  tree.Init();
  toolkit.When(Retrieving(53)).Give(53, "n");
  toolkit.When(Retrieving(346)).Give(346, "n");
  toolkit.TakeLines();
  EXPECT_EQ(toolkit.Fire("tree", 4), 0);
  EXPECT_EQ(toolkit.Fire("tree", 7), 0);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 53->"n" | 0
    retrieve dev:tree | 346->"n" | 0)"));
}

TEST_F(UserDataTreeLife, RecordsAreDeletedThroughTheirBase) {
  static_assert(std::has_virtual_destructor_v<UserDataTree::DataNodeInfo>);
  static_assert(std::is_copy_constructible_v<UserDataTree> && std::is_copy_assignable_v<UserDataTree>);
  static_assert(std::is_base_of_v<Tree, UserDataTree> && std::is_base_of_v<Tree::NodeInfo, UserDataTree::DataNodeInfo>);
  Tree::TreeInfo info;
  info.records.push_back(new auto(Record("a name that is too long to lie in the record itself", L"", "leaf")));
  info.Clear();
  EXPECT_TRUE(info.records.empty()) << "the leak checker sees the rest";
}

}  // namespace
}  // namespace oxecad_ui
