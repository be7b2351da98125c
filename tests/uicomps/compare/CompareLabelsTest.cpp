#include <tests/support/Check.h>
#include <tests/uicomps/compare/CompareWire.h>

#include <locale>
#include <ostream>

namespace compare_tests {
namespace {

using C = CompareColorTree;

TEST(CompareNames, AreThoseOfTheInterface) {
  EXPECT_STREQ(C::s_compareType, "colorvis");
  EXPECT_STREQ(C::s_showModeColumn, "showMode");
  EXPECT_STREQ(C::s_dimColumn, "dimOverlap");
  EXPECT_STREQ(C::s_colorAColumn, "a");
  EXPECT_STREQ(C::s_colorBColumn, "b");
  EXPECT_STREQ(C::s_overlapColumn, "overlap");
  EXPECT_STREQ(C::s_showModeMenu, "ShowModeOM");
  EXPECT_STREQ(C::s_noShowMode, "none");
  EXPECT_STREQ(C::s_imgOpen, L"<img src=\"");
  EXPECT_STREQ(C::s_imgClose, L"\">");
  EXPECT_EQ(std::wstring(C::s_imgOpen).size(), 10u);
  EXPECT_EQ(std::wstring(C::s_imgClose).size(), 2u);
}

TEST(CompareNames, DesignFlagsAreBits) {
  static_assert(sizeof(C::DesignFlag) == 4);
  EXPECT_EQ(C::DesignNone, 0u);
  EXPECT_EQ(C::DesignA, 1u);
  EXPECT_EQ(C::DesignB, 2u);
  EXPECT_EQ(C::DesignBoth, 3u);
}

TEST(CompareNames, ARecordIsByDefaultOfNoDesign) {
  const C::CompareNodeInfo info;
  EXPECT_EQ(info.colorA, kNone);
  EXPECT_EQ(info.colorB, kNone);
  EXPECT_EQ(info.colorOverlap, kNone);
  EXPECT_EQ(info.showMode, ShowMode::Both);
  EXPECT_EQ(info.dim, Tree::Unchecked);
  EXPECT_EQ(info.designFlag, C::DesignNone);
  EXPECT_EQ(info.name, "");
  EXPECT_EQ(info.type, "");
}

struct ModeRow {
  const char* name;
  int value;
  const wchar_t* label;
  const char* option;
  friend void PrintTo(const ModeRow& row, std::ostream* out) { *out << row.name; }
};

class CompareShowMode : public testing::TestWithParam<ModeRow> {};

TEST_P(CompareShowMode, HasItsLabelAndItsOption) {
  const ModeRow& row = GetParam();
  const auto mode = static_cast<ShowMode>(row.value);
  EXPECT_STREQ(C::ShowModeToLabel(mode), row.label);
  EXPECT_EQ(C::LabelToShowMode(row.label), mode);
  EXPECT_EQ(C::ShowModeNameToValue(row.option), mode);
  EXPECT_STREQ(C::LabelToShowModeName(row.label), row.value < 0 ? "none" : row.option);
}

constexpr ModeRow kModes[] = {
    {"mixed", -1, L"<mix_show>", "mix_show"},
    {"both", 0, L"<both_show>", "both_show"},
    {"only_a", 1, L"<a_show>", "a_show"},
    {"only_b", 2, L"<b_show>", "b_show"},
    {"a_minus_b", 3, L"<a-b_show>", "a-b_show"},
    {"b_minus_a", 4, L"<b-a_show>", "b-a_show"},
    {"overlap", 5, L"<overlap_show>", "overlap_show"},
    {"diff", 6, L"<diff_show>", "diff_show"},
};
INSTANTIATE_TEST_SUITE_P(Modes, CompareShowMode, testing::ValuesIn(kModes),
                         [](const auto& one) { return std::string(one.param.name); });

TEST(CompareShowModes, AreTheEnumeratorsOfTheKernel) {
  EXPECT_EQ(static_cast<int>(ShowMode::Mixed), -1);
  EXPECT_EQ(static_cast<int>(ShowMode::Both), 0);
  EXPECT_EQ(static_cast<int>(ShowMode::OnlyA), 1);
  EXPECT_EQ(static_cast<int>(ShowMode::OnlyB), 2);
  EXPECT_EQ(static_cast<int>(ShowMode::AMinusB), 3);
  EXPECT_EQ(static_cast<int>(ShowMode::BMinusA), 4);
  EXPECT_EQ(static_cast<int>(ShowMode::Overlap), 5);
  EXPECT_EQ(static_cast<int>(ShowMode::Diff), 6);
}

TEST(CompareShowModes, BeyondTheTableHaveNoLabel) {
  for (const int value : {-2, 7, 100, -0x7FFFFFFF}) {
    EXPECT_STREQ(C::ShowModeToLabel(static_cast<ShowMode>(value)), L"") << value;
  }
}

TEST(CompareShowModes, OfUnknownLabelsAreMixedAndNone) {
  for (const wchar_t* label :
       {L"", L"both_show", L"<both_show", L"<BOTH_SHOW>", L"<both_show> ", L"<none>", L"<mix>"}) {
    EXPECT_EQ(C::LabelToShowMode(label), ShowMode::Mixed);
    EXPECT_STREQ(C::LabelToShowModeName(label), "none");
  }
}

TEST(CompareShowModes, OfUnknownOptionsAreMixed) {
  for (const char* option : {"none", "", "BOTH_SHOW", "<both_show>", "both_show ", "diff"}) {
    EXPECT_EQ(C::ShowModeNameToValue(option), ShowMode::Mixed) << option;
  }
}

TEST(CompareDim, HasALabelForEachState) {
  EXPECT_STREQ(C::DimToLabel(Tree::Unchecked), L"<off>");
  EXPECT_STREQ(C::DimToLabel(Tree::Checked), L"<on>");
  EXPECT_STREQ(C::DimToLabel(Tree::PartlyChecked), L"<mix>");
  EXPECT_STREQ(C::DimToLabel(static_cast<Tree::NodeState>(3)), L"");
  EXPECT_STREQ(C::DimToLabel(static_cast<Tree::NodeState>(0xFFFFFFFFu)), L"");
}

TEST(CompareDim, IsMixedForEveryOtherLabel) {
  EXPECT_EQ(C::LabelToDim(L"<off>"), Tree::Unchecked);
  EXPECT_EQ(C::LabelToDim(L"<on>"), Tree::Checked);
  for (const wchar_t* label : {L"<mix>", L"", L"<ON>", L"on", L"<on> ", L"<of"}) {
    EXPECT_EQ(C::LabelToDim(label), Tree::PartlyChecked);
  }
}

class CompareColorLabel : public CompareWire {};

TEST_F(CompareColorLabel, HoldsTheIconOfTheColor) {
  EXPECT_EQ(C::ColorToLabel(5), L"<img src=\"color_square.png_5\">");
  EXPECT_EQ(C::ColorToLabel(0), L"<img src=\"color_square.png_0\">");
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(C::ColorToLabel(0xFF8000), L"<img src=\"color_square.png_16744448\">");
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "color_square.png" image{23 3x3} | 0
    global_do 6031 DefineImage "color_square.png_16744448" image{23 3x3} | 0
    relmem &pixels
  )"));
}

TEST_F(CompareColorLabel, IsMixedForNoColorAndWithoutAnIcon) {
  EXPECT_EQ(C::ColorToLabel(kNone), L"<mix>");
  EXPECT_TRUE(toolkit.Took(""));
  toolkit.When(test_support::DoingGlobally(6030)).Refuse();
  EXPECT_EQ(C::ColorToLabel(77), L"<mix>");
}

TEST_F(CompareColorLabel, IsReadWithoutALookAtWhatStandsAround) {
  EXPECT_EQ(C::LabelToColor(L"<img src=\"color_square.png_5\">"), 5u);
  EXPECT_EQ(C::LabelToColor(L"<img src=\"color_square.png_0\">"), 0u);
  EXPECT_EQ(C::LabelToColor(L"ten units!color_square.png_16744448??"), 16744448u);
  EXPECT_EQ(C::LabelToColor(L"0123456789seventeen letters42<>"), 42u);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(CompareColorLabel, IsNoneWhereItHoldsNoColor) {
  for (const wchar_t* label :
       {L"", L"<mix>", L"x", L"<img src=\"\">", L"123456789012", L"1234567890123", L"<img src=\"color_square.png_\">",
        L"<img src=\"color_square.png_5x\">", L"<img src=\"color_square.png_5>", L"<img src=\"color_square.png\">"}) {
    EXPECT_EQ(C::LabelToColor(label), kNone);
  }
}

TEST_F(CompareColorLabel, MayHoldAnyUnits) {
  const std::wstring odd{
      L'<', L'i', L'm', L'g', L' ', L's', L'r', L'c', L'=', L'"', wchar_t(0xD83D), wchar_t(0xDE00), wchar_t(0xDC00),
      L'x', L'"', L'>'};
  EXPECT_EQ(C::LabelToColor(odd), kNone);
}

TEST_F(CompareColorLabel, GivesEveryColorBack) {
  rc::check("a colour survives its label", [] {
    const auto color = *rc::gen::weightedOneOf<unsigned int>(
        {{3, rc::gen::arbitrary<unsigned int>()}, {1, rc::gen::inRange(0u, 10u)}, {1, rc::gen::just(kNone)}});
    RC_ASSERT(C::LabelToColor(C::ColorToLabel(color)) == color);
  });
}

template <class Char>
class Grouping : public std::numpunct<Char> {
  Char do_thousands_sep() const override { return Char('.'); }
  Char do_decimal_point() const override { return Char(','); }
  std::string do_grouping() const override { return "\3"; }
};

TEST_F(CompareColorLabel, IsTheSameUnderALocaleThatGroupsDigits) {
  const std::locale narrow(std::locale::classic(), new Grouping<char>);
  const std::locale before = std::locale::global(std::locale(narrow, new Grouping<wchar_t>));
  EXPECT_EQ(C::ColorToLabel(16744448), L"<img src=\"color_square.png_16744448\">");
  EXPECT_EQ(C::LabelToColor(L"<img src=\"color_square.png_16744448\">"), 16744448u);
  EXPECT_EQ(C::LabelToColor(L"<img src=\"color_square.png_16.744.448\">"), kNone);
  std::locale::global(before);
}

}  // namespace
}  // namespace compare_tests
