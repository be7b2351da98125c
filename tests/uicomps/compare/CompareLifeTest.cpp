#include <tests/uicomps/VirtualSlot.h>
#include <tests/uicomps/compare/CompareWire.h>

#include <type_traits>

namespace compare_tests {
namespace {

using C = CompareColorTree;
using oxecad_ui::VirtualSlot;

// Its own overrides, not inherited ones.
static_assert(std::is_same_v<decltype(&C::OnActivate), void (C::*)(const char*)>);
static_assert(std::is_same_v<decltype(&C::OnCollapse), void (C::*)(const char*)>);
static_assert(std::is_same_v<decltype(&C::OnExpand), void (C::*)(const char*)>);
static_assert(std::is_same_v<decltype(&C::OnSelect), void (C::*)(int, char**, int)>);
static_assert(std::is_same_v<decltype(&C::OnCheck), void (C::*)(const char*)>);
static_assert(std::has_virtual_destructor_v<C::CompareNodeInfo>);
static_assert(std::is_base_of_v<Tree::NodeFilter, C::ColorNodeFilter>);
static_assert(std::is_copy_constructible_v<C::ColorNodeFilter> && std::is_copy_assignable_v<C::ColorNodeFilter>);
static_assert(std::is_default_constructible_v<C::ColorNodeFilter> && std::is_move_assignable_v<C::ColorNodeFilter>);

TEST(CompareSlots, StandInTheOrderOfTheInterface) {
  EXPECT_EQ(VirtualSlot(static_cast<void (C::*)()>(&C::Init)), 1);
  EXPECT_EQ(VirtualSlot(&C::Clear), 2);
  EXPECT_EQ(VirtualSlot(&C::OnActivate), 3);
  EXPECT_EQ(VirtualSlot(&C::OnCollapse), 4);
  EXPECT_EQ(VirtualSlot(&C::OnExpand), 5);
  EXPECT_EQ(VirtualSlot(&C::OnSelect), 6);
  EXPECT_EQ(VirtualSlot(&C::OnCheck), 7);
  EXPECT_EQ(VirtualSlot(static_cast<bool (C::*)(const Tree::NodeInfo&)>(&C::AddNode)), 8);
  EXPECT_EQ(VirtualSlot(static_cast<bool (Tree::*)(const char*, Tree::NodeInfo&) const>(&Tree::GetNodeInfo)), 9);
  EXPECT_EQ(VirtualSlot(static_cast<Tree::NodeInfo* (C::*)(const char*) const>(&C::GetNodeInfo)), 10);
}

TEST(CompareSlots, HoldNothingElse) {
  EXPECT_EQ(VirtualSlot(static_cast<void (C::*)(oxcore::Mainframe*)>(&C::Init)), -1);
  EXPECT_EQ(VirtualSlot(static_cast<bool (C::*)(const C::CompareNodeInfo&)>(&C::AddNode)), -1);
  EXPECT_EQ(VirtualSlot(static_cast<void (C::*)(const Names&)>(&C::ChangeNodeInfo)), -1);
  EXPECT_EQ(VirtualSlot(&C::ChildInfoChanged), -1);
}

TEST(CompareSlots, OfTheFilterStandInTheOrderOfTheInterface) {
  using F = C::ColorNodeFilter;
  EXPECT_EQ(VirtualSlot(static_cast<F::Result (F::*)(const Tree*, const char*) const>(&F::operator())), 1);
  EXPECT_EQ(VirtualSlot(static_cast<F::Result (F::*)(const Tree::NodeInfo&) const>(&F::operator())), 2);
}

class CompareLife : public CompareWire {
 protected:
  CompareLife() { toolkit.NamePointer(&*another, "&another"); }
  std::unique_ptr<C> another = std::make_unique<C>("dev", "another");
};

TEST_F(CompareLife, BeginsWithoutACall) { EXPECT_TRUE(toolkit.Took("")); }

TEST_F(CompareLife, InitMakesTheMenuAndRegisters) {
  another->Init(mainframe);
  EXPECT_TRUE(toolkit.Took(
      "add_action dev:another 4 Activate f1 &another 0\n"
      "add_action dev:another 30 Collapse f2 &another 0\n"
      "add_action dev:another 29 Expand f3 &another 0\n"
      "add_action dev:another 3 Select f4 &another 0\n"
      "add_action dev:another 7 Check f5 &another 0\n"
      "do dev:another 2053 CreateControl \"ShowModeOM\" \"OptionMenu\" |"
      " 67=[\"none\" \"both_show\" \"a_show\" \"b_show\" \"a-b_show\" \"b-a_show\" \"diff_show\" \"overlap_show\"]"
      " 87=[\"\" \"ecad_compare_show_both.png\" \"ecad_compare_show_a.png\" \"ecad_compare_show_b.png\""
      " \"ecad_compare_show_a-b.png\" \"ecad_compare_show_b-a.png\" \"ecad_compare_show_diff.png\""
      " \"ecad_compare_show_overlap.png\"] 32=8 | 0\n"
      "add_action dev:another 35 CellSelect f6 &another 0"));
}

TEST_F(CompareLife, InitGoesOnWhenTheMenuCannotBeMade) {
  toolkit.When(Doing(2053)).Refuse();
  another->Init(mainframe);
  EXPECT_TRUE(toolkit.Took("...\nadd_action dev:another 35 CellSelect f6 &another 0"));
}

TEST_F(CompareLife, TheInheritedInitMakesNoMenu) {
  another->Init();
  EXPECT_EQ(toolkit.TakeLines().size(), 5u);
}

TEST_F(CompareLife, EndsInTheOppositeOrderControlsByTheNamesOfTheirNodes) {
  another->Init(mainframe);
  for (const char* node : {"root", "a_b", "B", "a/b", "b"}) another->GetDimCheckCtrl(node);
  toolkit.TakeLines();
  another.reset();
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:another 35 CellSelect f6
    do dev:another 2085 DestroyControl "ShowModeOM" | 0
    do dev:another 2085 DestroyControl "B_dim" | 0
    do dev:another 2085 DestroyControl "a_b_dim" | 0
    do dev:another 2085 DestroyControl "a_b_dim" | 0
    do dev:another 2085 DestroyControl "b_dim" | 0
    do dev:another 2085 DestroyControl "root_dim" | 0
    remove_action dev:another 7 Check f5
    remove_action dev:another 3 Select f4
    remove_action dev:another 29 Expand f3
    remove_action dev:another 30 Collapse f2
    remove_action dev:another 4 Activate f1
  )"));
}

TEST_F(CompareLife, EndsTheSameWayWithoutInit) {
  another.reset();
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:another 35 CellSelect f1
    do dev:another 2085 DestroyControl "ShowModeOM" | 0
    remove_action dev:another 7 Check f2
    remove_action dev:another 3 Select f3
    remove_action dev:another 29 Expand f4
    remove_action dev:another 30 Collapse f5
    remove_action dev:another 4 Activate f6
  )"));
}

TEST_F(CompareLife, EmptyHandlersDoNothing) {
  ListenToChanges();
  changed = {"before"};
  tree.OnActivate("n");
  tree.OnCollapse("n");
  tree.OnExpand("n");
  std::string name = "n";
  char* nodes[] = {name.data()};
  tree.OnSelect(1, nodes, 2);
  tree.ChangeNodeInfo(Names{"n"});
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
  EXPECT_EQ(changed, Names{"before"});
}

TEST_F(CompareLife, ClearKeepsIndicesAndControls) {
  toolkit.When(Retrieving(54)).Give(54, "root");
  ASSERT_TRUE(tree.OnNodeAdded(Record("n")));
  tree.Clear();
  toolkit.TakeLines();
  EXPECT_EQ(tree.GetIndex("n"), 0u);
  EXPECT_STREQ(tree.GetDimCheckCtrl("n"), "n_dim");
  EXPECT_TRUE(toolkit.Took("")) << "the control is there";
  ASSERT_TRUE(tree.OnNodeAdded(Record("n")));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2201 SetNode "n" | 260=0x1 | 0
    do dev:tree 2160 SetCell "n" "dimOverlap" | 140="n_dim" | 0
    ...
  )"));
}

class CompareCopies : public CompareWire {
 protected:
  CompareCopies() {
    tree.Init(mainframe);
    ListenToChanges();
    tree.GetDimCheckCtrl("n");
    Known({"m", "n"});
    toolkit.TakeLines();
  }
  static void* ParentOfThePicker(C& one) {
    oxcore::TakeColorPickerRequests();
    one.AskForColor("n", "a");
    return oxcore::TakeColorPickerRequests().at(0).parent;
  }
  void ExpectLike(C& one) {
    EXPECT_STREQ(one.GetDevice(), "dev");
    EXPECT_STREQ(one.GetName(), "tree");
    EXPECT_EQ(one.GetIndex("n"), 1u);
    EXPECT_STREQ(one.GetDimCheckCtrl("n"), "n_dim");
    EXPECT_TRUE(toolkit.Took("")) << "the control is known, and copying asks nothing";
    EXPECT_EQ(ParentOfThePicker(one), mainframe);
    EXPECT_EQ(spy.TakeReasons(), Reasons{1});
    toolkit.TakeLines();
  }
};

TEST_F(CompareCopies, HaveIndicesControlsMainFrameAndListener) {
  C copy(tree);
  ExpectLike(copy);
}

TEST_F(CompareCopies, AreMadeByAssignmentThatForgetsWhatWasThere) {
  C other("other", "other");
  other.GetDimCheckCtrl("old");
  toolkit.TakeLines();
  other = tree;
  ExpectLike(other);
  EXPECT_EQ(other.m_dimControls.count("old"), 0u);
}

TEST_F(CompareCopies, OfItselfKeepEverything) {
  C& itself = tree;
  tree = itself;
  ExpectLike(tree);
}

TEST_F(CompareCopies, AreIndependentAfterwards) {
  C copy(tree);
  copy.GetDimCheckCtrl("x");
  copy.OnNodeAdded(Record("x"));
  EXPECT_EQ(copy.GetIndex("x"), 2u);
  EXPECT_EQ(tree.GetIndex("x"), ~0ull);
  EXPECT_EQ(tree.m_dimControls.count("x"), 0u);
}

TEST_F(CompareCopies, DestroyTheControlsEachForItself) {
  { C copy(tree); }
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:tree 35 CellSelect f6
    do dev:tree 2085 DestroyControl "ShowModeOM" | 0
    do dev:tree 2085 DestroyControl "n_dim" | 0
    ...
  )"));
}

}  // namespace
}  // namespace compare_tests
