#include <tests/uicomps/compare/CompareWire.h>

#include <ostream>

namespace compare_tests {
namespace {

using C = CompareColorTree;

constexpr const char* kChildren[] = {"c1", "c2", "c3", "c4"};

/// One letter or number a child: colours as `ColorLabel` takes them.
class CompareAggregate : public CompareWire {
 protected:
  CompareAggregate() { BeBrief(); }

  /// Children with these labels in the column; all else is the same.
  Names Column(const char* column, const Names& labels) {
    Names children;
    for (std::size_t i = 0; i < labels.size(); ++i) {
      children.push_back(kChildren[i]);
      toolkit.When(Doing(2162, kChildren[i]).Second(column)).Give(2, ColorLabel(labels[i]).c_str());
    }
    return children;
  }
  Names Dims(const std::vector<unsigned>& states) {
    Names children;
    for (std::size_t i = 0; i < states.size(); ++i) {
      children.push_back(kChildren[i]);
      toolkit.When(Doing(2165, kChildren[i]).Second("dimOverlap")).Give(31, states[i]);
    }
    return children;
  }
  Names Children(std::size_t count) {
    const Names all(std::begin(kChildren), std::end(kChildren));
    return {all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count)};
  }
  struct Values {
    unsigned a = 90;
    unsigned b = 91;
    unsigned overlap = 92;
    ShowMode show = ShowMode::BMinusA;
    Tree::NodeState dim = Tree::Checked;
    C::DesignFlag flag = C::DesignNone;
  };
  Values All(const Names& children) {
    Values v;
    tree.Aggregate(children, v.a, v.b, v.overlap, v.show, v.dim, v.flag);
    return v;
  }
};

struct ColorRow {
  const char* name;
  Names children;
  const char* summary;
  const char* reads;
  friend void PrintTo(const ColorRow& row, std::ostream* out) { *out << row.name; }
};

class CompareColorSummary : public CompareAggregate, public testing::WithParamInterface<ColorRow> {};

TEST_P(CompareColorSummary, IsTheCommonLabel) {
  const ColorRow& row = GetParam();
  EXPECT_EQ(tree.AggregateColor(Column("a", row.children), "a"), ColorLabel(row.summary));
  EXPECT_EQ(brief.Take(), Lined(row.reads));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CompareColorSummary,
    testing::Values(
        ColorRow{"one_child_as_it_is", {"5"}, "5", "read c1: a"},
        ColorRow{"one_child_without_label", {""}, "", "read c1: a"},
        ColorRow{"one_mixed_child", {"<mix>"}, "<mix>", "read c1: a"},
        ColorRow{"one_child_with_any_label", {"?"}, "?", "read c1: a"},
        ColorRow{"all_the_same", {"5", "5", "5"}, "5", "read c1: a a\nread c2: a\nread c3: a"},
        ColorRow{"empty_ones_do_not_count", {"5", "", "5"}, "5", "read c1: a a\nread c2: a\nread c3: a"},
        ColorRow{"an_empty_first_does_not_count", {"", "", "6"}, "6", "read c1: a a\nread c2: a\nread c3: a"},
        ColorRow{"all_empty", {"", "", ""}, "", "read c1: a a\nread c2: a\nread c3: a"},
        ColorRow{"a_difference_ends_it", {"5", "6", "5"}, "<mix>", "read c1: a a\nread c2: a"},
        ColorRow{"a_late_difference", {"", "5", "", "6"}, "<mix>", "read c1: a a\nread c2: a\nread c3: a\nread c4: a"},
        ColorRow{"a_mixed_first_ends_it", {"<mix>", "5"}, "<mix>", "read c1: a"},
        ColorRow{"a_mixed_other_differs", {"5", "<mix>", "5"}, "<mix>", "read c1: a a\nread c2: a"},
        ColorRow{"a_mixed_other_after_empties", {"", "<mix>", ""}, "<mix>", "read c1: a a\nread c2: a\nread c3: a"}),
    [](const auto& one) { return std::string(one.param.name); });

TEST_F(CompareAggregate, OfAnyColumnReadsThatColumn) {
  EXPECT_EQ(tree.AggregateColor(Column("overlap", {"5", "6"}), "overlap"), L"<mix>");
  EXPECT_EQ(brief.Take(), "read c1: overlap overlap\nread c2: overlap\n");
}

struct ShowRow {
  const char* name;
  Names children;
  int summary;
  const char* reads;
  friend void PrintTo(const ShowRow& row, std::ostream* out) { *out << row.name; }
};

class CompareShowSummary : public CompareAggregate, public testing::WithParamInterface<ShowRow> {};

TEST_P(CompareShowSummary, IsTheCommonMode) {
  const ShowRow& row = GetParam();
  ShowMode mode = ShowMode::Overlap;
  tree.AggregateShowMode(Column("showMode", row.children), mode);
  EXPECT_EQ(static_cast<int>(mode), row.summary);
  EXPECT_EQ(brief.Take(), Lined(row.reads));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CompareShowSummary,
    testing::Values(
        ShowRow{"one_child", {"<a-b_show>"}, 3, "read c1: showMode"},
        ShowRow{"one_mixed_child", {"<mix_show>"}, -1, "read c1: showMode"},
        ShowRow{"one_unknown_child", {"?"}, -1, "read c1: showMode"},
        ShowRow{"all_the_same", {"<diff_show>", "<diff_show>"}, 6, "read c1: showMode showMode\nread c2: showMode"},
        ShowRow{"a_difference_ends_it",
                {"<diff_show>", "<a_show>", "<diff_show>"},
                -1,
                "read c1: showMode showMode\nread c2: showMode"},
        ShowRow{"a_mixed_first_ends_it", {"<mix_show>", "<a_show>"}, -1, "read c1: showMode"},
        ShowRow{"an_empty_label_differs", {"<a_show>", ""}, -1, "read c1: showMode showMode\nread c2: showMode"},
        ShowRow{"all_empty", {"", ""}, -1, "read c1: showMode showMode\nread c2: showMode"}),
    [](const auto& one) { return std::string(one.param.name); });

struct DimRow {
  const char* name;
  std::vector<unsigned> children;
  unsigned summary;
  const char* reads;
  friend void PrintTo(const DimRow& row, std::ostream* out) { *out << row.name; }
};

class CompareDimSummary : public CompareAggregate, public testing::WithParamInterface<DimRow> {};

TEST_P(CompareDimSummary, IsTheCommonState) {
  const DimRow& row = GetParam();
  Tree::NodeState dim = Tree::Unchecked;
  tree.AggregateDim(Dims(row.children), dim);
  EXPECT_EQ(static_cast<unsigned>(dim), row.summary);
  EXPECT_EQ(brief.Take(), Lined(row.reads));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CompareDimSummary,
    testing::Values(DimRow{"one_child", {1}, 1, "read c1: dimOverlap"},
                    DimRow{"one_mixed_child", {2}, 2, "read c1: dimOverlap"},
                    DimRow{"all_on", {1, 1, 1}, 1, "read c1: dimOverlap\nread c2: dimOverlap\nread c3: dimOverlap"},
                    DimRow{"all_off", {0, 0}, 0, "read c1: dimOverlap\nread c2: dimOverlap"},
                    DimRow{"a_difference_ends_it", {0, 1, 0}, 2, "read c1: dimOverlap\nread c2: dimOverlap"},
                    DimRow{"a_mixed_first_ends_it", {2, 1}, 2, "read c1: dimOverlap"},
                    DimRow{"a_mixed_other_differs", {1, 2, 1}, 2, "read c1: dimOverlap\nread c2: dimOverlap"}),
    [](const auto& one) { return std::string(one.param.name); });

TEST_F(CompareAggregate, TakesAStateThatCannotBeReadAsItIs) {
  toolkit.When(Doing(2165)).Refuse().Scribble();
  Tree::NodeState dim = Tree::Unchecked;
  tree.AggregateDim({"c1"}, dim);
  EXPECT_EQ(static_cast<unsigned>(dim), kNone);
  dim = Tree::Unchecked;
  tree.AggregateDim({"c1", "c2"}, dim);
  EXPECT_EQ(static_cast<unsigned>(dim), kNone) << "all agree";
}

TEST_F(CompareAggregate, TakesALabelThatCannotBeReadAsEmpty) {
  toolkit.FailAll(Failure::Scribbled);
  EXPECT_EQ(tree.AggregateColor({"c1", "c2"}, "a"), L"");
  ShowMode mode = ShowMode::Overlap;
  tree.AggregateShowMode({"c1", "c2"}, mode);
  EXPECT_EQ(mode, ShowMode::Mixed);
}

TEST_F(CompareAggregate, OfAllSixReadsOneChildWhole) {
  Cells("c1", "<a_show>", 1, "5", "", "");
  const Values v = All({"c1"});
  EXPECT_EQ(brief.Take(), "read c1: showMode dimOverlap a b overlap\n");
  EXPECT_EQ(v.a, 5u);
  EXPECT_EQ(v.b, kNone);
  EXPECT_EQ(v.overlap, kNone);
  EXPECT_EQ(v.show, ShowMode::OnlyA);
  EXPECT_EQ(v.dim, Tree::Checked);
  EXPECT_EQ(v.flag, C::DesignA);
}

TEST_F(CompareAggregate, OfAllSixReadsOnlyWhatIsStillUniform) {
  Cells("c1", "<a_show>", 1, "5", "6", "7");
  Cells("c2", "<b_show>", 1, "5", "6", "7");  // the show mode differs
  Cells("c3", "<a_show>", 0, "5", "", "8");   // dim and overlap differ
  Cells("c4", "<a_show>", 1, "5", "6", "7");
  const Values v = All(Children(4));
  EXPECT_EQ(brief.Take(), Lined(R"(
    read c1: showMode dimOverlap a b overlap
    read c2: showMode dimOverlap a b overlap
    read c3: dimOverlap a b overlap
    read c4: a b)"));
  EXPECT_EQ(v.show, ShowMode::Mixed);
  EXPECT_EQ(v.dim, Tree::PartlyChecked);
  EXPECT_EQ(v.a, 5u);
  EXPECT_EQ(v.b, 6u);
  EXPECT_EQ(v.overlap, kNone);
  EXPECT_EQ(v.flag, C::DesignBoth);
}

TEST_F(CompareAggregate, OfAllSixStopsWhenAllIsMixed) {
  Cells("c1", "<mix_show>", 2, "<mix>", "6", "7");
  Cells("c2", "<a_show>", 1, "5", "8", "9");
  const Values v = All(Children(4));
  EXPECT_EQ(brief.Take(), Lined(R"(
    read c1: showMode dimOverlap a b overlap
    read c2: b overlap)"));
  EXPECT_EQ(v.show, ShowMode::Mixed);
  EXPECT_EQ(v.dim, Tree::PartlyChecked);
  EXPECT_EQ(v.a, kNone);
  EXPECT_EQ(v.b, kNone);
  EXPECT_EQ(v.overlap, kNone);
  EXPECT_EQ(v.flag, C::DesignBoth);
}

TEST_F(CompareAggregate, OfAllSixReadsTheFirstAloneWhenItIsMixedThroughout) {
  Cells("c1", "<mix_show>", 2, "<mix>", "<mix>", "<mix>");
  All(Children(3));
  EXPECT_EQ(brief.Take(), "read c1: showMode dimOverlap a b overlap\n");
}

TEST_F(CompareAggregate, OfAllSixTakesTheDesignsTogether) {
  Cells("c1", "<both_show>", 0, "", "", "");
  Cells("c2", "<both_show>", 0, "5", "", "");
  Cells("c3", "<both_show>", 0, "", "6", "");
  Cells("c4", "<both_show>", 0, "5", "6", "");
  EXPECT_EQ(All({"c1", "c1"}).flag, C::DesignNone);
  EXPECT_EQ(All({"c1", "c2"}).flag, C::DesignA);
  EXPECT_EQ(All({"c3", "c1"}).flag, C::DesignB);
  const Values v = All({"c1", "c2", "c3", "c4"});
  EXPECT_EQ(v.flag, C::DesignBoth);
  EXPECT_EQ(v.a, 5u);
  EXPECT_EQ(v.b, 6u);
  EXPECT_EQ(v.overlap, kNone);
  EXPECT_EQ(v.show, ShowMode::Both);
  EXPECT_EQ(v.dim, Tree::Unchecked);
}

TEST_F(CompareAggregate, OfAllSixTakesAnOverlapOverEmptyOnes) {
  Cells("c1", "<both_show>", 0, "5", "", "");
  Cells("c2", "<both_show>", 0, "5", "6", "7");
  Cells("c3", "<both_show>", 0, "5", "6", "7");
  const Values v = All(Children(3));
  EXPECT_EQ(v.a, 5u);
  EXPECT_EQ(v.b, 6u);
  EXPECT_EQ(v.overlap, 7u);
}

TEST_F(CompareAggregate, OfNoChildrenLeavesEverythingAlone) {
  const Values v = All({});
  EXPECT_EQ(v.a, 90u);
  EXPECT_EQ(v.b, 91u);
  EXPECT_EQ(v.overlap, 92u);
  EXPECT_EQ(v.show, ShowMode::BMinusA);
  EXPECT_EQ(v.dim, Tree::Checked);
  EXPECT_EQ(v.flag, C::DesignNone);
  Tree::NodeState dim = Tree::Checked;
  tree.AggregateDim({}, dim);
  EXPECT_EQ(dim, Tree::Checked);
  ShowMode mode = ShowMode::Overlap;
  tree.AggregateShowMode({}, mode);
  EXPECT_EQ(mode, ShowMode::Overlap);
  tree.AggregateColor({}, "a");
  EXPECT_EQ(brief.Take(), "");
}

}  // namespace
}  // namespace compare_tests
