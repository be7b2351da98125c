#include <tests/uicomps/compare/CompareWire.h>

#include <ostream>

namespace compare_tests {
namespace {

using C = CompareColorTree;

class CompareDownward : public CompareWire {
 protected:
  CompareDownward() {
    Node("p", "root", {"a", "h"});
    Node("a", "p", {"a1"});
    Node("h", "p", {}, "heading");
    Node("a1", "a", {});
    BeBrief();
  }
};

TEST_F(CompareDownward, WritesTheLeavesFirst) {
  tree.ParentInfoChanged("p", 5, 6, 7, ShowMode::OnlyA, Tree::Checked, C::DesignBoth);
  EXPECT_EQ(brief.Take(), Lined(R"(
    children p
    type a
    children a
    type a1
    children a1
    write a1: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    write a: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    children h
    write h: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    write p: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7)"))
      << "the first child alone decides what compare children are";
}

TEST_F(CompareDownward, SparesChildrenBehindOneOfAnotherType) {
  Node("p", "root", {"h", "a"});
  tree.ParentInfoChanged("p", 5, 6, 7, ShowMode::OnlyA, Tree::Checked, C::DesignBoth);
  EXPECT_EQ(brief.Take(), Lined(R"(
    children p
    type h
    write p: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7)"));
}

TEST_F(CompareDownward, FillsTheColorsOfTheDesignsAlone) {
  const auto write = [&](C::DesignFlag flag) {
    tree.SetNodeInfo("a1", 5, 6, 7, ShowMode::Both, Tree::PartlyChecked, flag);
    return brief.Take();
  };
  EXPECT_EQ(write(C::DesignNone), "write a1: showMode=<both_show> dimOverlap=2 a= b= overlap=\n");
  EXPECT_EQ(write(C::DesignA), "write a1: showMode=<both_show> dimOverlap=2 a=5 b= overlap=\n");
  EXPECT_EQ(write(C::DesignB), "write a1: showMode=<both_show> dimOverlap=2 a= b=6 overlap=\n");
  EXPECT_EQ(write(C::DesignBoth), "write a1: showMode=<both_show> dimOverlap=2 a=5 b=6 overlap=7\n");
  EXPECT_EQ(write(static_cast<C::DesignFlag>(7)), "write a1: showMode=<both_show> dimOverlap=2 a=5 b=6 overlap=\n");
}

TEST_F(CompareDownward, WritesMixedAndUnknownValues) {
  tree.SetNodeInfo("a1", kNone, kNone, kNone, ShowMode::Mixed, static_cast<Tree::NodeState>(kNone), C::DesignBoth);
  EXPECT_EQ(brief.Take(), "write a1: showMode=<mix_show> dimOverlap=4294967295 a=<mix> b=<mix> overlap=<mix>\n");
  tree.SetNodeInfo("a1", 5, 6, 7, static_cast<ShowMode>(7), Tree::Unchecked, C::DesignNone);
  EXPECT_EQ(brief.Take(), "write a1: showMode= dimOverlap=0 a= b= overlap=\n");
}

TEST_F(CompareDownward, MakesAnIconWhenItsLabelIsWritten) {
  tree.SetNodeInfo("a1", 101, 102, 103, ShowMode::Both, Tree::Unchecked, C::DesignA);
  EXPECT_EQ(brief.Take(), Lined(R"(
    write a1: showMode=<both_show> dimOverlap=0
    icon color_square.png_101
    write a1: a=101 b= overlap=)"));
  tree.SetNodeInfo("a1", 101, 102, 103, ShowMode::Both, Tree::Unchecked, C::DesignBoth);
  EXPECT_EQ(brief.Take(), Lined(R"(
    write a1: showMode=<both_show> dimOverlap=0 a=101
    icon color_square.png_102
    write a1: b=102
    icon color_square.png_103
    write a1: overlap=103)"));
}

TEST_F(CompareDownward, GoesOnWhenACellRefuses) {
  toolkit.When(Doing(2160)).Refuse();
  toolkit.When(Doing(2163)).Refuse();
  tree.ParentInfoChanged("a", 5, 6, 7, ShowMode::OnlyA, Tree::Checked, C::DesignBoth);
  EXPECT_EQ(brief.Take(), Lined(R"(
    children a
    type a1
    children a1
    write a1: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    write a: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7)"));
}

TEST_F(CompareDownward, OfOneValueWritesThatCell) {
  tree.ParentColorChanged("a", 5, "overlap");
  EXPECT_EQ(brief.Take(), "children a\ntype a1\nchildren a1\nwrite a1: overlap=5\nwrite a: overlap=5\n");
  tree.ParentColorChanged("a1", kNone, "a");
  EXPECT_EQ(brief.Take(), "children a1\nwrite a1: a=<mix>\n");
  tree.ParentDimChanged("a", Tree::Checked);
  EXPECT_EQ(brief.Take(), "children a\ntype a1\nchildren a1\nwrite a1: dimOverlap=1\nwrite a: dimOverlap=1\n");
  tree.ParentShowModeChanged("a", ShowMode::Diff);
  EXPECT_EQ(brief.Take(),
            "children a\ntype a1\nchildren a1\nwrite a1: showMode=<diff_show>\nwrite a: showMode=<diff_show>\n");
}

TEST_F(CompareDownward, WithoutANameIsNothing) {
  for (const char* node : {static_cast<const char*>(nullptr), ""}) {
    tree.ParentInfoChanged(node, 5, 6, 7, ShowMode::Both, Tree::Checked, C::DesignBoth);
    tree.ParentColorChanged(node, 5, "a");
    tree.ParentDimChanged(node, Tree::Checked);
    tree.ParentShowModeChanged(node, ShowMode::Both);
  }
  EXPECT_EQ(brief.Take(), "");
}

/// top - p - c1, c2
class CompareUpward : public CompareWire {
 protected:
  CompareUpward() {
    Node("top", "", {"p"});
    Node("p", "top", {"c1", "c2"});
    Node("c1", "p", {});
    Node("c2", "p", {});
    Cells("c1", "<a_show>", 1, "5", "6", "7");
    Cells("c2", "<a_show>", 1, "5", "6", "7");
    BeBrief();
  }
  static constexpr const char* kSummary = R"(
    children p
    type c1
    read c1: showMode dimOverlap a b overlap
    read c2: showMode dimOverlap a b overlap
    read p: showMode dimOverlap a b overlap)";
};

TEST_F(CompareUpward, StopsAtANodeThatDoesNotChange) {
  Cells("p", "<a_show>", 1, "5", "6", "7");
  tree.ChildInfoChanged("p");
  EXPECT_EQ(brief.Take(), Lined(kSummary));
}

struct DifferenceRow {
  const char* name;
  const char* show;
  unsigned dim;
  const char* a;
  const char* b;
  const char* overlap;
  friend void PrintTo(const DifferenceRow& row, std::ostream* out) { *out << row.name; }
};

class CompareDifference : public CompareUpward, public testing::WithParamInterface<DifferenceRow> {};

TEST_P(CompareDifference, OfAnyValueWritesAllAndClimbs) {
  const DifferenceRow& row = GetParam();
  Cells("p", row.show, row.dim, row.a, row.b, row.overlap);
  Node("p", "", {"c1", "c2"});
  tree.ChildInfoChanged("p");
  EXPECT_EQ(brief.Take(), Lined(std::string(kSummary) + R"(
    write p: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    parent p)"));
}

INSTANTIATE_TEST_SUITE_P(Values, CompareDifference,
                         testing::Values(DifferenceRow{"show_mode", "<b_show>", 1, "5", "6", "7"},
                                         DifferenceRow{"dim", "<a_show>", 2, "5", "6", "7"},
                                         DifferenceRow{"color_a", "<a_show>", 1, "8", "6", "7"},
                                         DifferenceRow{"color_b", "<a_show>", 1, "5", "8", "7"},
                                         DifferenceRow{"overlap", "<a_show>", 1, "5", "6", "8"},
                                         DifferenceRow{"missing_a", "<a_show>", 1, "", "6", "7"},
                                         DifferenceRow{"missing_b", "<a_show>", 1, "5", "", "7"}),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(CompareUpward, TellsAFlagFromTheColors) {
  Cells("c1", "<a_show>", 1, "<mix>", "", "");
  Cells("c2", "<a_show>", 1, "<mix>", "", "");
  Cells("p", "<a_show>", 1, "", "", "");
  Node("p", "", {"c1", "c2"});
  tree.ChildInfoChanged("p");
  EXPECT_EQ(brief.Take(), Lined(R"(
    children p
    type c1
    read c1: showMode dimOverlap a b overlap
    read c2: showMode dimOverlap b overlap
    read p: showMode dimOverlap a b overlap
    write p: showMode=<a_show> dimOverlap=1 a=<mix> b= overlap=
    parent p)"))
      << "both colours read as none, but the design is new";
}

TEST_F(CompareUpward, ClimbsAsLongAsSomethingChanges) {
  Cells("p", "<b_show>", 1, "5", "6", "7");
  Cells("top", "<b_show>", 1, "5", "6", "7");
  toolkit.When(Doing(2160, "p").Second("overlap")).Run([this](const uiox::Call&) {
    Cells("p", "<a_show>", 1, "5", "6", "7");
  });
  tree.ChildInfoChanged("p");
  EXPECT_EQ(brief.Take(), Lined(std::string(kSummary) + R"(
    write p: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    parent p
    children top
    type p
    read p: showMode dimOverlap a b overlap
    read top: showMode dimOverlap a b overlap
    write top: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    parent top)"));
}

TEST_F(CompareUpward, WithoutCompareChildrenIsNothing) {
  tree.ChildInfoChanged("c1");
  EXPECT_EQ(brief.Take(), "children c1\n");
  Node("p", "top", {"h", "c1"});
  Node("h", "p", {}, "heading");
  tree.ChildInfoChanged("p");
  tree.ChildColorChanged("p", "a");
  tree.ChildDimChanged("p");
  tree.ChildShowModeChanged("p");
  EXPECT_EQ(brief.Take(), "children p\ntype h\nchildren p\ntype h\nchildren p\ntype h\nchildren p\ntype h\n");
}

TEST_F(CompareUpward, WithoutANameIsNothing) {
  for (const char* node : {static_cast<const char*>(nullptr), ""}) {
    tree.ChildInfoChanged(node);
    tree.ChildColorChanged(node, "a");
    tree.ChildDimChanged(node);
    tree.ChildShowModeChanged(node);
  }
  EXPECT_EQ(brief.Take(), "");
}

TEST_F(CompareUpward, OfOneColorComparesLabels) {
  Cells("p", "", 0, "5", "", "");
  tree.ChildColorChanged("p", "a");
  EXPECT_EQ(brief.Take(), "children p\ntype c1\nread c1: a a\nread c2: a\nread p: a\n");
  Cells("p", "", 0, "8", "", "");
  Node("p", "", {"c1", "c2"});
  tree.ChildColorChanged("p", "a");
  EXPECT_EQ(brief.Take(), Lined(R"(
    children p
    type c1
    read c1: a a
    read c2: a
    read p: a
    write p: a=5
    parent p)"));
}

TEST_F(CompareUpward, OfOneColorTellsMixedFromEmpty) {
  Node("p", "", {"c1"});
  Cells("c1", "", 0, "", "<mix>", "");
  Cells("p", "", 0, "<mix>", "", "");
  tree.ChildColorChanged("p", "a");
  EXPECT_EQ(brief.Take(), "children p\ntype c1\nread c1: a\nread p: a\nwrite p: a=\nparent p\n");
  tree.ChildColorChanged("p", "b");
  EXPECT_EQ(brief.Take(), "children p\ntype c1\nread c1: b\nread p: b\nwrite p: b=<mix>\nparent p\n");
}

TEST_F(CompareUpward, OfDimComparesStates) {
  Cells("p", "", 1, "", "", "");
  tree.ChildDimChanged("p");
  EXPECT_EQ(brief.Take(), "children p\ntype c1\nread c1: dimOverlap\nread c2: dimOverlap\nread p: dimOverlap\n");
  Cells("c2", "", 0, "", "", "");
  Node("p", "", {"c1", "c2"});
  tree.ChildDimChanged("p");
  EXPECT_EQ(brief.Take(), Lined(R"(
    children p
    type c1
    read c1: dimOverlap
    read c2: dimOverlap
    read p: dimOverlap
    write p: dimOverlap=2
    parent p)"));
}

TEST_F(CompareUpward, OfShowModeComparesModes) {
  Cells("p", "<a_show>", 0, "", "", "");
  tree.ChildShowModeChanged("p");
  EXPECT_EQ(brief.Take(), "children p\ntype c1\nread c1: showMode showMode\nread c2: showMode\nread p: showMode\n");
  Cells("c2", "<b_show>", 0, "", "", "");
  Cells("p", "?", 0, "", "", "");
  tree.ChildShowModeChanged("p");
  EXPECT_EQ(brief.Take(), "children p\ntype c1\nread c1: showMode showMode\nread c2: showMode\nread p: showMode\n")
      << "an unknown label is mixed already";
  Cells("p", "<a_show>", 0, "", "", "");
  Node("p", "", {"c1", "c2"});
  tree.ChildShowModeChanged("p");
  EXPECT_EQ(brief.Take(), Lined(R"(
    children p
    type c1
    read c1: showMode showMode
    read c2: showMode
    read p: showMode
    write p: showMode=<mix_show>
    parent p)"));
}

class CompareChange : public CompareWire {};

TEST_F(CompareChange, GoesDownAndThenUp) {
  Node("p", "", {"n"});
  Node("n", "p", {"c"});
  Node("c", "n", {});
  Cells("n", "<a_show>", 1, "5", "6", "7");
  Cells("p", "<a_show>", 1, "5", "6", "7");
  BeBrief();
  tree.ChangeNodeInfo("n", 5, 6, 7, ShowMode::OnlyA, Tree::Checked, C::DesignBoth);
  EXPECT_EQ(brief.Take(), Lined(R"(
    type n
    children n
    type c
    children c
    write c: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    write n: showMode=<a_show> dimOverlap=1 a=5 b=6 overlap=7
    parent n
    children p
    type n
    read n: showMode dimOverlap a b overlap
    read p: showMode dimOverlap a b overlap)"));
}

TEST_F(CompareChange, OfAnotherNodeIsNothing) {
  Node("h", "p", {}, "heading");
  tree.ChangeNodeInfo("h", 5, 6, 7, ShowMode::OnlyA, Tree::Checked, C::DesignBoth);
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "h" | 282->"heading" | 0
    free 282 "heading" | 0
  )"));
  tree.ChangeNodeInfo(nullptr, 5, 6, 7, ShowMode::OnlyA, Tree::Checked, C::DesignBoth);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(CompareChange, TellsNobody) {
  Node("n", "", {});
  ListenToChanges();
  changed = {"before"};
  tree.ChangeNodeInfo("n", 5, 6, 7, ShowMode::OnlyA, Tree::Checked, C::DesignBoth);
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
  EXPECT_EQ(changed, Names{"before"});
}

}  // namespace
}  // namespace compare_tests
