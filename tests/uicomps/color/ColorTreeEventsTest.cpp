#include <tests/uicomps/VirtualSlot.h>
#include <tests/uicomps/color/ColorTreeWire.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace color_tests {
namespace {

// Its own overrides, not inherited ones.
static_assert(std::is_same_v<decltype(&ColorTree::OnActivate), void (ColorTree::*)(const char*)>);
static_assert(std::is_same_v<decltype(&ColorTree::OnCollapse), void (ColorTree::*)(const char*)>);
static_assert(std::is_same_v<decltype(&ColorTree::OnExpand), void (ColorTree::*)(const char*)>);
static_assert(std::is_same_v<decltype(&ColorTree::OnSelect), void (ColorTree::*)(int, char**, int)>);
static_assert(std::is_same_v<decltype(&ColorTree::OnCheck), void (ColorTree::*)(const char*)>);
static_assert(std::has_virtual_destructor_v<ColorTree>);
static_assert(std::has_virtual_destructor_v<ColorTree::ColorNodeInfo>);

using oxecad_ui::VirtualSlot;

TEST(ColorTreeSlots, StandInTheOrderOfTheInterface) {
  EXPECT_EQ(VirtualSlot(static_cast<void (ColorTree::*)()>(&ColorTree::Init)), 1);
  EXPECT_EQ(VirtualSlot(&ColorTree::Clear), 2);
  EXPECT_EQ(VirtualSlot(&ColorTree::OnActivate), 3);
  EXPECT_EQ(VirtualSlot(&ColorTree::OnCollapse), 4);
  EXPECT_EQ(VirtualSlot(&ColorTree::OnExpand), 5);
  EXPECT_EQ(VirtualSlot(&ColorTree::OnSelect), 6);
  EXPECT_EQ(VirtualSlot(&ColorTree::OnCheck), 7);
  EXPECT_EQ(VirtualSlot(static_cast<bool (Tree::*)(const Tree::NodeInfo&)>(&Tree::AddNode)), 8);
  EXPECT_EQ(VirtualSlot(static_cast<bool (Tree::*)(const char*, Tree::NodeInfo&) const>(&Tree::GetNodeInfo)), 9);
  EXPECT_EQ(VirtualSlot(static_cast<Tree::NodeInfo* (ColorTree::*)(const char*) const>(&ColorTree::GetNodeInfo)), 10);
  EXPECT_EQ(VirtualSlot(static_cast<void (ColorTree::*)(const char*)>(&ColorTree::ChangeNodeColor)), 11);
}

TEST(ColorTreeSlots, HoldNothingElse) {
  EXPECT_EQ(VirtualSlot(static_cast<void (ColorTree::*)(oxcore::Mainframe*)>(&ColorTree::Init)), -1);
  EXPECT_EQ(VirtualSlot(static_cast<bool (ColorTree::*)(const ColorTree::ColorNodeInfo&)>(&ColorTree::AddNode)), -1);
  EXPECT_EQ(VirtualSlot(static_cast<void (ColorTree::*)(const char*, unsigned)>(&ColorTree::ChangeNodeColor)), -1);
  EXPECT_EQ(VirtualSlot(static_cast<void (ColorTree::*)(const Names&)>(&ColorTree::ChangeNodeColor)), -1);
}

class ColorTreeEvents : public ColorTreeWire {};

TEST_F(ColorTreeEvents, AreRegisteredByInitAndRemovedAtTheEnd) {
  auto another = std::make_unique<ColorTree>("dev", "another");
  toolkit.NamePointer(another.get(), "&another");
  EXPECT_TRUE(toolkit.Took("")) << "a new tree asks nothing";
  another->Init(mainframe);
  EXPECT_TRUE(toolkit.Took(R"(
    add_action dev:another 4 Activate f1 &another 0
    add_action dev:another 30 Collapse f2 &another 0
    add_action dev:another 29 Expand f3 &another 0
    add_action dev:another 3 Select f4 &another 0
    add_action dev:another 7 Check f5 &another 0
  )"));
  another.reset();
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:another 7 Check f5
    remove_action dev:another 3 Select f4
    remove_action dev:another 29 Expand f3
    remove_action dev:another 30 Collapse f2
    remove_action dev:another 4 Activate f1
  )"));
}

class AskedTree : public ColorTree {
 public:
  using ColorTree::ColorTree;
  void ChangeNodeColor(const char* node) override { asked.emplace_back(node); }
  Names asked;
};

TEST_F(ColorTreeEvents, ActivationAsksForAColorThroughTheVirtualOperation) {
  AskedTree asked("dev", "asked");
  asked.OnActivate("n");
  EXPECT_EQ(asked.asked, Names{"n"}) << "activation is allowed at first";
  asked.SetAllowActivate(false);
  asked.OnActivate("n");
  EXPECT_EQ(asked.asked, Names{"n"});
  asked.SetAllowActivate(true);
  asked.OnActivate("m");
  EXPECT_EQ(asked.asked, (Names{"n", "m"}));
}

TEST_F(ColorTreeEvents, ActivationThatIsNotAllowedDoesNothing) {
  tree.SetAllowActivate(false);
  ListenToChanges();
  tree.OnActivate("n");
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ColorTreeEvents, ExpansionAndCollapseTellTheNode) {
  ListenToChanges();
  changed = {"x", "y"};
  spy.action = [this] { EXPECT_EQ(changed, Names{"n"}); };
  tree.OnExpand("n");
  EXPECT_EQ(spy.TakeReasons(), Reasons{4});
  changed = {"x", "y"};
  tree.OnCollapse("n");
  EXPECT_EQ(spy.TakeReasons(), Reasons{5});
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorTreeEvents, ExpansionAndCollapseNeedNoListener) {
  tree.OnExpand("n");
  tree.OnCollapse("n");
  tree.SetOnDirtyHandler(nullptr, nullptr, &changed);
  changed = {"before"};
  tree.OnExpand("n");
  tree.OnCollapse("n");
  EXPECT_EQ(changed, Names{"before"});
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  tree.OnExpand("n");
  tree.OnCollapse("n");
  EXPECT_EQ(spy.TakeReasons(), (Reasons{4, 5}));
}

TEST_F(ColorTreeEvents, ExpansionKeepsANameThatPointsIntoTheList) {
  ListenToChanges();
  changed = {"a-name-that-is-too-long-for-a-small-string"};
  tree.OnExpand(changed[0].c_str());
  EXPECT_EQ(changed, Names{"a-name-that-is-too-long-for-a-small-string"});
  tree.OnCollapse(changed[0].c_str());
  EXPECT_EQ(changed, Names{"a-name-that-is-too-long-for-a-small-string"});
}

TEST_F(ColorTreeEvents, SelectionTellsTheNamesInOrder) {
  ListenToChanges();
  changed = {"before"};
  std::string names[] = {"b", "a", "b"};
  char* nodes[] = {names[0].data(), names[1].data(), names[2].data()};
  tree.OnSelect(3, nodes, 2);
  EXPECT_EQ(changed, (Names{"b", "a", "b"}));
  EXPECT_EQ(spy.TakeReasons(), Reasons{3});
  tree.OnSelect(0, nullptr, 0);
  EXPECT_EQ(changed, Names{});
  EXPECT_EQ(spy.TakeReasons(), Reasons{3});
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(ColorTreeEvents, SelectionWithoutListTellsAllTheSame) {
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  std::string name = "a";
  char* nodes[] = {name.data()};
  tree.OnSelect(1, nodes, 0);
  EXPECT_EQ(spy.TakeReasons(), Reasons{3});
}

TEST_F(ColorTreeEvents, SelectionPassesNullsOver) {
  ListenToChanges();
  changed = {"before"};
  tree.OnSelect(3, nullptr, 0);
  EXPECT_EQ(changed, Names{}) << "a count without an array";
  std::string name = "a";
  char* nodes[] = {nullptr, name.data(), nullptr};
  tree.OnSelect(3, nodes, 0);
  EXPECT_EQ(changed, Names{"a"});
}

TEST_F(ColorTreeEvents, SelectionKeepsNamesThatPointIntoTheList) {
  ListenToChanges();
  changed = {"first-name-that-is-too-long-for-a-small-string", "second-name-that-is-too-long-for-a-small-string"};
  const Names before = changed;
  char* nodes[] = {changed[1].data(), changed[0].data()};
  tree.OnSelect(2, nodes, 0);
  EXPECT_EQ(changed, (Names{before[1], before[0]}));
}

TEST_F(ColorTreeEvents, ReachTheTreeThroughTheCallbacks) {
  tree.Init(mainframe);
  ListenToChanges();
  toolkit.When(Retrieving(72)).Give(72, {"a", "b"}).Give(267, 2);
  toolkit.When(Retrieving(175)).Give(175, "e");
  toolkit.When(Retrieving(53)).Give(53, "c");
  toolkit.Fire("tree", 3);
  EXPECT_EQ(changed, (Names{"a", "b"}));
  toolkit.Fire("tree", 29);
  EXPECT_EQ(changed, Names{"e"});
  toolkit.Fire("tree", 30);
  oxcore::QueueColorAnswer(7);
  toolkit.Fire("tree", 4);
  EXPECT_EQ(changed, Names{"c"});
  EXPECT_EQ(spy.TakeReasons(), (Reasons{3, 4, 5, 1}));
}

/// A handler may end the tree as the last thing that is done with it.
class EndedByItsHandler : public ColorTreeWire {
 protected:
  EndedByItsHandler() {
    mortal = std::make_unique<ColorTree>("dev", "mortal");
    mortal->SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed);
    spy.action = [this] { mortal.reset(); };
  }
  std::unique_ptr<ColorTree> mortal;
};

TEST_F(EndedByItsHandler, OnExpansion) { mortal->OnExpand("n"); }
TEST_F(EndedByItsHandler, OnCollapse) { mortal->OnCollapse("n"); }
TEST_F(EndedByItsHandler, OnSelection) { mortal->OnSelect(0, nullptr, 0); }
TEST_F(EndedByItsHandler, OnCheck) { mortal->OnCheck("n"); }
TEST_F(EndedByItsHandler, OnActivation) {
  oxcore::QueueColorAnswer(7);
  mortal->OnActivate("n");
  EXPECT_EQ(mortal, nullptr);
}
TEST_F(EndedByItsHandler, OnAColorForSeveral) {
  oxcore::QueueColorAnswer(7);
  mortal->ChangeNodeColor(Names{"n"});
  EXPECT_EQ(mortal, nullptr);
}

}  // namespace
}  // namespace color_tests
