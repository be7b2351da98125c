#include <tests/uicomps/compare/CompareWire.h>

namespace compare_tests {
namespace {

using C = CompareColorTree;

class DimControl : public CompareWire {};

TEST_F(DimControl, IsNamedForItsNodeAndMadeOnce) {
  const char* const control = tree.GetDimCheckCtrl("groups/top/net1");
  EXPECT_STREQ(control, "groups_top_net1_dim");
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2053 CreateControl "groups_top_net1_dim" "CheckButton" | | 0)"));
  EXPECT_EQ(tree.GetDimCheckCtrl("groups/top/net1"), control);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(DimControl, StaysWhereItIs) {
  const char* const control = tree.GetDimCheckCtrl("n");
  for (int i = 0; i < 1000; ++i) tree.GetDimCheckCtrl(std::to_string(i).c_str());
  EXPECT_STREQ(control, "n_dim");
  EXPECT_EQ(tree.GetDimCheckCtrl("n"), control);
}

TEST_F(DimControl, IsTriedAgainWhenItCannotBeMade) {
  toolkit.When(Doing(2053)).Refuse().Times(2);
  EXPECT_EQ(tree.GetDimCheckCtrl("n"), nullptr);
  EXPECT_EQ(tree.GetDimCheckCtrl("n"), nullptr);
  EXPECT_STREQ(tree.GetDimCheckCtrl("n"), "n_dim");
  EXPECT_EQ(toolkit.TakeLines().size(), 3u);
}

TEST_F(DimControl, MayHaveAnyNode) {
  EXPECT_STREQ(tree.GetDimCheckCtrl("///"), "____dim");
  EXPECT_STREQ(tree.GetDimCheckCtrl("100%s"), "100%s_dim");
  const std::string long_name(100000, 'n');
  EXPECT_EQ(tree.GetDimCheckCtrl(long_name.c_str()), long_name + "_dim");
}

TEST_F(DimControl, OfTwoNodesMayHaveOneName) {
  EXPECT_STREQ(tree.GetDimCheckCtrl("a/b"), "a_b_dim");
  EXPECT_STREQ(tree.GetDimCheckCtrl("a_b"), "a_b_dim");
  EXPECT_EQ(toolkit.TakeLines().size(), 2u);
}

class CompareAdd : public CompareWire {};

TEST_F(CompareAdd, SetsTheNodeUpWritesItsCellsAndSumsUp) {
  Node("p/n", "p", {});
  Node("p", "", {"p/n"});
  Cells("p/n", "<diff_show>", 1, "5", "6", "7");
  Cells("p", "<diff_show>", 1, "5", "6", "7");
  C::CompareNodeInfo info = Record("p/n");
  info.state = Tree::Checked;
  info.expanded = true;
  EXPECT_TRUE(tree.AddNode(info));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "p/n" L"n" "p" "colorvis" | 2=L"" 128=1 256=1 512=0 1024=null | 0
    do dev:tree 2201 SetNode "p/n" | 31=1 | 0
    do dev:tree 2201 SetNode "p/n" | 260=null | 0
    do dev:tree 2053 CreateControl "p_n_dim" "CheckButton" | | 0
    do dev:tree 2160 SetCell "p/n" "dimOverlap" | 140="p_n_dim" | 0
    set_action dev:p_n_dim 4 Activate f1 &tree 0
    do dev:tree 2202 GetNode "p/n" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2202 GetNode "p/n" | 284->[] | 0
    do dev:tree 2160 SetCell "p/n" "showMode" | 2=L"<diff_show>" | 0
    do dev:tree 2163 SetCellControl "p/n" "dimOverlap" | 31=1 | 0
    do dev:tree 2160 SetCell "p/n" "a" | 2=L"<img src=\"color_square.png_5\">" | 0
    do dev:tree 2160 SetCell "p/n" "b" | 2=L"<img src=\"color_square.png_6\">" | 0
    do dev:tree 2160 SetCell "p/n" "overlap" | 2=L"<img src=\"color_square.png_7\">" | 0
    do dev:tree 2202 GetNode "p/n" | 283->"p" | 0
    free 283 "p" | 0
    do dev:tree 2202 GetNode "p" | 284->["p/n"] | 0
    free 284 ["p/n"] | 0
    do dev:tree 2202 GetNode "p/n" | 282->"colorvis" | 0
    free 282 "colorvis" | 0
    do dev:tree 2162 GetCell "p/n" "showMode" | 2->L"<diff_show>" | 0
    do dev:tree 2165 GetCellControl "p/n" "dimOverlap" | 31->1 | 0
    do dev:tree 2162 GetCell "p/n" "a" | 2->L"<img src=\"color_square.png_5\">" | 0
    do dev:tree 2162 GetCell "p/n" "b" | 2->L"<img src=\"color_square.png_6\">" | 0
    do dev:tree 2162 GetCell "p/n" "overlap" | 2->L"<img src=\"color_square.png_7\">" | 0
    do dev:tree 2162 GetCell "p" "showMode" | 2->L"<diff_show>" | 0
    do dev:tree 2165 GetCellControl "p" "dimOverlap" | 31->1 | 0
    do dev:tree 2162 GetCell "p" "a" | 2->L"<img src=\"color_square.png_5\">" | 0
    do dev:tree 2162 GetCell "p" "b" | 2->L"<img src=\"color_square.png_6\">" | 0
    do dev:tree 2162 GetCell "p" "overlap" | 2->L"<img src=\"color_square.png_7\">" | 0
  )"));
}

TEST_F(CompareAdd, BeforeASiblingDoesTheSame) {
  EXPECT_TRUE(tree.AddNodeBefore(Record("p/n"), "p/m"));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2030 AddNodeBefore "p/n" L"n" "p" "p/m" "colorvis" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "p/n" | 31=0 | 0
    do dev:tree 2201 SetNode "p/n" | 260=null | 0
    do dev:tree 2053 CreateControl "p_n_dim" "CheckButton" | | 0
    do dev:tree 2160 SetCell "p/n" "dimOverlap" | 140="p_n_dim" | 0
    set_action dev:p_n_dim 4 Activate f1 &tree 0
    do dev:tree 2202 GetNode "p/n" | 282->null | 0
    free 282 null | 0
  )")) << "a node of another type gets no cells";
}

TEST_F(CompareAdd, GivesEveryNodeTheNextIndex) {
  for (const char* node : {"a", "b", "a"}) EXPECT_TRUE(tree.AddNode(Record(node)));
  EXPECT_EQ(tree.GetIndex("a"), 0u) << "the first of two";
  EXPECT_EQ(tree.GetIndex("b"), 1u);
  EXPECT_EQ(tree.GetIndex("c"), ~0ull);
  EXPECT_EQ(tree.GetIndex(""), ~0ull);
  EXPECT_EQ(tree.GetIndex("A"), ~0ull);
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    do dev:tree 2201 SetNode "a" | 260=null | 0
    ...
    set_action dev:a_dim 4 Activate f1 &tree 0
    ...
    do dev:tree 2201 SetNode "b" | 260=0x1 | 0
    ...
    set_action dev:b_dim 4 Activate f1 &tree 1
    ...
    do dev:tree 2201 SetNode "a" | 260=0x2 | 0
    do dev:tree 2160 SetCell "a" "dimOverlap" | 140="a_dim" | 0
    set_action dev:a_dim 4 Activate f1 &tree 2
    ...
  )"));
}

TEST_F(CompareAdd, ThatIsRefusedDoesNothingMore) {
  toolkit.When(Doing(2029)).Refuse();
  toolkit.When(Doing(2030)).Refuse();
  EXPECT_FALSE(tree.AddNode(Record("n")));
  EXPECT_FALSE(tree.AddNodeBefore(Record("n"), "m"));
  EXPECT_EQ(tree.GetIndex("n"), ~0ull);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"n" "root" "colorvis" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1
    do dev:tree 2030 AddNodeBefore "n" L"n" "root" "m" "colorvis" | 2=L"" 128=1 256=0 512=0 1024=null | 0 => 1
  )"));
}

TEST_F(CompareAdd, GoesOnWhenTheCheckStateIsRefused) {
  toolkit.When(Doing(2201).With(31)).Refuse();
  EXPECT_TRUE(tree.AddNode(Record("n")));
}

/// Each step of the set-up fails: the node stays, keeps its index, and nothing more is asked.
class CompareAddFails : public CompareWire {
 protected:
  void ExpectStopped(std::string_view last_line) {
    EXPECT_FALSE(tree.AddNode(Record("n")));
    EXPECT_TRUE(toolkit.Took("...\n" + std::string(last_line)));
    EXPECT_EQ(tree.GetIndex("n"), 0u) << "the name stays in the list";
  }
};

TEST_F(CompareAddFails, WhenTheIndexIsRefused) {
  toolkit.When(Doing(2201).With(260)).Refuse();
  ExpectStopped("do dev:tree 2201 SetNode \"n\" | 260=null | 0 => 1");
}

TEST_F(CompareAddFails, WhenTheControlIsRefused) {
  toolkit.When(Doing(2053)).Refuse();
  ExpectStopped("do dev:tree 2053 CreateControl \"n_dim\" \"CheckButton\" | | 0 => 1");
}

TEST_F(CompareAddFails, WhenTheCellIsRefused) {
  toolkit.When(Doing(2160)).Refuse();
  ExpectStopped("do dev:tree 2160 SetCell \"n\" \"dimOverlap\" | 140=\"n_dim\" | 0 => 1");
}

TEST_F(CompareAddFails, WhenTheCallbackIsRefused) {
  toolkit.When(test_support::Calling(uiox::Function::SetAction)).Refuse();
  ExpectStopped("set_action dev:n_dim 4 Activate f1 &tree 0 => 1");
}

class PlainAdd : public CompareWire {};

TEST_F(PlainAdd, LocksTheCheckBoxAndNothingMore) {
  Tree::NodeInfo info;
  info.name = "heading";
  info.type = "group";
  info.state = Tree::Checked;
  EXPECT_TRUE(tree.AddNode(info));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "heading" L"heading" "root" "group" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "heading" | 31=1 | 0
    do dev:tree 2201 SetNode "heading" | 544=0 | 0
  )"));
}

TEST_F(PlainAdd, IsWhatACompareRecordGetsThroughThePlainInterface) {
  Tree& plain = tree;
  EXPECT_TRUE(plain.AddNode(Record("n")));
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2029 AddNode "n" L"n" "root" "colorvis" | 2=L"" 128=1 256=0 512=0 1024=null | 0
    do dev:tree 2201 SetNode "n" | 31=0 | 0
    do dev:tree 2201 SetNode "n" | 544=0 | 0
  )"));
  EXPECT_EQ(tree.GetIndex("n"), ~0ull);
}

TEST_F(PlainAdd, FailsWhenTheNodeOrTheLockIsRefused) {
  Tree::NodeInfo info;
  info.name = "heading";
  toolkit.When(Doing(2201).With(544)).Refuse();
  EXPECT_FALSE(tree.AddNode(info));
  toolkit.TakeLines();
  toolkit.When(Doing(2029)).Refuse();
  EXPECT_FALSE(tree.AddNode(info));
  EXPECT_EQ(toolkit.TakeLines().size(), 1u) << "a refused node is not locked";
}

}  // namespace
}  // namespace compare_tests
