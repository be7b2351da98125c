// How a number is put behind a branch's label.
#include <tests/support/Check.h>
#include <tests/support/DecimalComma.h>
#include <tests/support/Quoted.h>
#include <tests/uicomps/userdata/UserDataTreeTest.h>

namespace oxecad_ui {
namespace {

/// Labels are seen through the operation that writes them.
class BranchLabel : public UserDataTreeTest {
 protected:
  BranchLabel() {
    toolkit.When(Doing(2202, "leaf").With(283)).Give(283, "a");
    toolkit.When(Doing(2201, "a")).Run([this](const uiox::Call& call) { written_ = call.Find(2)->value.Wide(); });
  }

  /// The label with `number` behind it.
  std::wstring Counted(const std::wstring& label, std::uint32_t number) {
    toolkit.When(Doing(2202, "a").With(2)).Give(2, label.c_str()).Once();
    toolkit.When(Doing(2202, "a").With(260)).Give(260, Word(std::uint32_t{number - 1})).Once();
    tree.OnLeafAdded("leaf");
    toolkit.TakeLines();
    return written_;
  }

 private:
  std::wstring written_;
};

struct LabelRow {
  const char* name;
  const wchar_t* before;
  const wchar_t* after;  ///< with the number 4
};
void PrintTo(const LabelRow& row, std::ostream* out) { *out << test_support::Quoted(row.before); }

class BranchLabelOf : public BranchLabel, public testing::WithParamInterface<LabelRow> {};

TEST_P(BranchLabelOf, GainsTheNumber) {
  EXPECT_EQ(test_support::Quoted(Counted(GetParam().before, 4).c_str()), test_support::Quoted(GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(
    Plain, BranchLabelOf,
    testing::Values(
        LabelRow{"no_number_yet", L"Parts", L"Parts (4)"}, LabelRow{"old_number_goes", L"Parts (3)", L"Parts (4)"},
        LabelRow{"longer_number_goes", L"Parts (4294967295)", L"Parts (4)"},
        LabelRow{"negative_number_goes", L"Parts (-1)", L"Parts (4)"},
        LabelRow{"own_bracket_goes_too", L"Wire (A)", L"Wire (4)"},
        LabelRow{"cut_at_the_last_bracket", L"A (B) (3)", L"A (B) (4)"},
        LabelRow{"text_behind_the_bracket_goes", L"A (3) rest", L"A (4)"},
        LabelRow{"open_bracket_at_the_end", L"A (", L"A (4)"}, LabelRow{"only_a_bracket", L" (", L" (4)"},
        LabelRow{"only_a_number", L" (3)", L" (4)"}, LabelRow{"bracket_without_a_blank_stays", L"A(3)", L"A(3) (4)"},
        LabelRow{"bracket_at_the_start_stays", L"(A)", L"(A) (4)"},
        LabelRow{"two_blanks_keep_one", L"A  (3)", L"A  (4)"}, LabelRow{"tab_is_no_blank", L"A\t(3)", L"A\t(3) (4)"},
        LabelRow{"empty", L"", L" (4)"}, LabelRow{"one_bracket", L"(", L"( (4)"}, LabelRow{"one_blank", L" ", L"  (4)"},
        LabelRow{"surrogates_stay", L"\xD83D\xDD0C \xD83D (3)", L"\xD83D\xDD0C \xD83D (4)"}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(Bold, BranchLabelOf,
                         testing::Values(LabelRow{"no_number_yet", L"<b>Parts</b>", L"<b>Parts (4)</b>"},
                                         LabelRow{"old_number_goes", L"<b>Parts (3)</b>", L"<b>Parts (4)</b>"},
                                         LabelRow{"unclosed_is_closed", L"<b>Parts", L"<b>Parts (4)</b>"},
                                         LabelRow{"unopened_loses_its_end", L"Parts</b>", L"Parts (4)"},
                                         LabelRow{"text_behind_the_end_goes", L"<b>A</b> tail", L"<b>A (4)</b>"},
                                         LabelRow{"cut_at_the_last_end", L"<b>A</b><b>B</b>", L"<b>A</b><b>B (4)</b>"},
                                         LabelRow{"opened_anywhere", L"A <b>B</b>", L"A <b>B (4)</b>"},
                                         LabelRow{"number_behind_the_end", L"<b>A</b> (3)", L"<b>A (4)</b>"},
                                         LabelRow{"bracket_around_the_end", L"<b>A (x</b> y)", L"<b>A (4)</b>"},
                                         LabelRow{"bracket_before_the_end_is_cut_once", L"A (1)</b> (2)", L"A (1) (4)"},
                                         LabelRow{"tag_lost_with_the_bracket", L"A (<b>3</b>)", L"A (4)"},
                                         LabelRow{"opened_behind_the_end_only", L"A</b><b>", L"A (4)"},
                                         LabelRow{"only_an_end", L"</b>", L" (4)"},
                                         LabelRow{"only_a_start", L"<b>", L"<b> (4)</b>"},
                                         LabelRow{"both_and_nothing", L"<b></b>", L"<b> (4)</b>"},
                                         LabelRow{"capital_tags_are_text", L"<B>A</B>", L"<B>A</B> (4)"},
                                         LabelRow{"cut_short_tags_are_text", L"<b A</b", L"<b A</b (4)"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(BranchLabel, GrowsWithItsNumberAndNothingElse) {
  std::wstring label = L"<b>Parts</b>";
  for (const std::uint32_t number : {1u, 9u, 10u, 999u, 1000u, 1234567u, 4294967295u}) {
    label = Counted(label, number);
    EXPECT_EQ(label, L"<b>Parts (" + std::to_wstring(number) + L")</b>");
  }
}

TEST_F(BranchLabel, IsTheSameWithADecimalComma) {
  const test_support::DecimalComma locale;
  EXPECT_EQ(Counted(L"Parts", 1234567), L"Parts (1234567)") << "no grouping";
  GiveChildren("a", {"b"});
  toolkit.When(Doing(2202, "b").With(260)).Give(260, Word(0xFFED2979));
  tree.UpdateParentTotals("leaf");
  EXPECT_TRUE(toolkit.Took("...\ndo dev:tree 2201 SetNode \"a\" | 2=L\" (-1234567)\" 260=0xffed2979 | 0\n..."));
}

/// The rules once more, straight from their words.
std::wstring ByTheRules(std::wstring label, const std::wstring& number) {
  const auto cut_at_last = [&label](const std::wstring& mark, std::size_t shortest) {
    if (label.size() < shortest) return;
    for (std::size_t at = label.size() - mark.size() + 1; at-- > 0;) {
      if (label.compare(at, mark.size(), mark) == 0) return label.resize(at);
    }
  };
  cut_at_last(L" (", 2);
  cut_at_last(L"</b>", 4);
  const bool bold = label.size() >= 3 && label.find(L"<b>") != std::wstring::npos;
  return label + L" (" + number + L")" + (bold ? L"</b>" : L"");
}

TEST_F(BranchLabel, FollowsTheRulesForAnyText) {
  const auto piece = rc::gen::weightedOneOf<std::wstring>(
      {{3, rc::gen::elementOf(std::vector<std::wstring>{L" (", L"</b>", L"<b>", L")", L" ", L"(", L"<", L"b>", L"/"})},
       {1, test_support::TextOf(L"aB1\x00E9\xD83D\xDD0C<>()/ ")}});
  rc::check("any label, any number", [&](std::uint32_t number) {
    const auto pieces = *rc::gen::container<std::vector<std::wstring>>(piece);
    std::wstring label;
    for (const std::wstring& part : pieces) label += part;
    RC_ASSERT(Counted(label, number) == ByTheRules(label, std::to_wstring(number)));
  });
}

}  // namespace
}  // namespace oxecad_ui
