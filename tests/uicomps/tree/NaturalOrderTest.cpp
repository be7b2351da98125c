// Named rows of the natural order, for both comparators.
#include <gtest/gtest.h>
#include <uicomps/tree/Comparators.h>
#include <uicomps/tree/Tree.h>

#include <iostream>
#include <sstream>
#include <string>

namespace oxecad_ui {
namespace {

struct OrderRow {
  const char* fact;
  std::wstring a;
  std::wstring b;
  int plain;  // -1: a before b; 0: neither before the other; 1: b before a
  int ecad;
};
std::ostream& operator<<(std::ostream& out, const OrderRow& row) { return out << row.fact; }

template <class Comparator>
int Order(const Comparator& comparator, const std::wstring& a, const std::wstring& b) {
  const bool before = comparator.Compare(a, b);
  const bool after = comparator.Compare(b, a);
  EXPECT_FALSE(before && after) << "both before each other";
  return before ? -1 : after ? 1 : 0;
}

class NaturalOrder : public testing::TestWithParam<OrderRow> {};

TEST_P(NaturalOrder, OfThePlainComparator) {
  EXPECT_EQ(Order(CAlphaNumericWStringComparator(), GetParam().a, GetParam().b), GetParam().plain);
}

TEST_P(NaturalOrder, OfTheEcadComparator) {
  EXPECT_EQ(Order(CAlphaNumericWStringEcadComparator(), GetParam().a, GetParam().b), GetParam().ecad);
}

TEST_P(NaturalOrder, OfRecordsByLabel) {
  Tree::NodeInfo a;
  Tree::NodeInfo b;
  a.label = GetParam().a;
  b.label = GetParam().b;
  const Tree::NodeInfoLabelComperator<CAlphaNumericWStringComparator> plain;
  const Tree::NodeInfoLabelComperator<CAlphaNumericWStringEcadComparator> ecad;
  EXPECT_EQ(plain.Compare(a, b), GetParam().plain < 0);
  EXPECT_EQ(plain.Compare(b, a), GetParam().plain > 0);
  EXPECT_EQ(ecad.Compare(a, b), GetParam().ecad < 0);
  EXPECT_EQ(ecad.Compare(b, a), GetParam().ecad > 0);
}

std::wstring Unit(int code) { return std::wstring(1, static_cast<wchar_t>(code)); }
std::wstring WithEnd(const wchar_t* before, const wchar_t* behind) { return std::wstring(before) + Unit(0) + behind; }

std::string FactOf(const testing::TestParamInfo<OrderRow>& row) { return row.param.fact; }

INSTANTIATE_TEST_SUITE_P(
    Numbers, NaturalOrder,
    testing::Values(
        OrderRow{"by_value_behind_letters", L"item2", L"item10", -1, -1},
        OrderRow{"by_value_whatever_is_asked_first", L"item10", L"item9", 1, 1},
        OrderRow{"by_value_alone", L"9", L"10", -1, -1}, OrderRow{"fewer_leading_zeros_first", L"a01", L"a1", 1, 1},
        OrderRow{"leading_zeros_after_the_plain_number", L"007", L"7", 1, 1},
        OrderRow{"one_before_zero_one", L"1", L"01", -1, -1}, OrderRow{"zero_before_two_zeros", L"0", L"00", -1, -1},
        OrderRow{"value_before_zeros", L"002", L"1", 1, 1},
        OrderRow{"zeros_decide_before_what_follows", L"007a", L"7b", 1, 1},
        OrderRow{"zeros_alone_decide_before_what_follows", L"a00b", L"a0c", 1, 1},
        OrderRow{"equal_numbers_go_on", L"7a", L"7b", -1, -1},
        OrderRow{"second_number_decides", L"a1b2", L"a1b10", -1, -1},
        OrderRow{"number_before_longer_name", L"a1", L"a1b", -1, -1},
        OrderRow{"letters_behind_equal_numbers", L"10a", L"10B", -1, -1}, OrderRow{"equal", L"R10", L"R10", 0, 0},
        OrderRow{"largest_value", L"2147483646", L"2147483647", -1, -1},
        OrderRow{"wraps_to_the_smallest_value", L"2147483648", L"0", -1, -1},
        OrderRow{"wraps_to_minus_one", L"4294967295", L"0", -1, -1},
        OrderRow{"wraps_to_zero_without_leading_zeros", L"4294967296", L"0", -1, -1},
        OrderRow{"wraps_to_one_and_is_equivalent", L"4294967297", L"1", 0, 0},
        OrderRow{"eleven_nines_wrap", L"99999999999", L"1215752191", 0, 0},
        OrderRow{"eleven_nines_wrap_below_the_next", L"99999999999", L"1215752192", -1, -1},
        OrderRow{"a_thousand_digits_wrap", std::wstring(1000, L'0') + L"1", L"1", 1, 1}),
    FactOf);

INSTANTIATE_TEST_SUITE_P(Signs, NaturalOrder,
                         testing::Values(OrderRow{"minus_makes_negative", L"-5", L"-3", -1, 1},
                                         OrderRow{"minus_behind_a_letter_makes_negative", L"x-5", L"x-3", -1, 1},
                                         OrderRow{"minus_behind_a_number_makes_negative", L"5-3", L"5-4", 1, -1},
                                         OrderRow{"minus_before_one_number_only_is_a_character", L"x-5", L"x5", -1, -1},
                                         OrderRow{"minus_before_no_number_on_one_side", L"-5", L"-a", -1, -1},
                                         OrderRow{"minus_turns_zeros_around", L"-05", L"-5", -1, 1},
                                         OrderRow{"minus_turns_zeros_of_nothing_around", L"-0", L"-00", 1, -1},
                                         OrderRow{"equal_negative_number_ends_the_sign", L"-5 3", L"-5 4", -1, -1},
                                         OrderRow{"second_minus_makes_negative_again", L"-5-3", L"-5-4", 1, -1},
                                         OrderRow{"second_of_two_minuses_counts", L"--5", L"--3", -1, 1},
                                         OrderRow{"minus_is_followed_at_once", L"- 5", L"- 3", 1, 1},
                                         OrderRow{"minus_alone", L"-", L"-", 0, 0},
                                         OrderRow{"minus_at_the_end_is_a_prefix", L"-", L"-5", -1, -1},
                                         OrderRow{"wrapped_negative_numbers", L"-2147483648", L"-0", 1, -1}),
                         FactOf);

INSTANTIATE_TEST_SUITE_P(
    Characters, NaturalOrder,
    testing::Values(
        OrderRow{"ascii_case_is_ignored", L"A", L"a", 0, 0},
        OrderRow{"ascii_case_is_ignored_in_words", L"Net_Vcc", L"nET_vCC", 0, 0},
        OrderRow{"other_case_counts", L"\u00c4", L"\u00e4", -1, -1}, OrderRow{"empty_before_all", L"", L"a", -1, -1},
        OrderRow{"empty_is_empty", L"", L"", 0, 0}, OrderRow{"prefix_first", L"abc", L"abcd", -1, -1},
        OrderRow{"underscore_after_upper_z", L"_", L"Z", 1, 1}, OrderRow{"underscore_after_lower_z", L"_", L"z", 1, 1},
        OrderRow{"bracket_after_a_letter", L"[", L"a", 1, 1}, OrderRow{"at_before_a_letter", L"@", L"a", -1, -1},
        OrderRow{"backquote_is_not_folded", L"`", L"@", 1, 1}, OrderRow{"brace_after_a_letter", L"{", L"z", 1, 1},
        OrderRow{"digit_before_a_letter", L"5", L"A", -1, -1}, OrderRow{"slash_before_a_digit", L"/", L"5", -1, -1},
        OrderRow{"colon_after_a_digit", L":", L"5", 1, 1},
        OrderRow{"units_compare_unsigned", Unit(0x8000), Unit(0x7FFF), 1, 1},
        OrderRow{"last_unit_after_a_letter", Unit(0xFFFF), L"a", 1, 1},
        OrderRow{"surrogates_before_the_last_units", Unit(0xD83D) + Unit(0xDE00), Unit(0xFFFD), -1, -1},
        OrderRow{"second_surrogate_decides", Unit(0xD83D) + Unit(0xDE00), Unit(0xD83D) + Unit(0xDE01), -1, -1},
        OrderRow{"other_digits_are_characters", L"\u0665", L"\u06611", 1, 1},
        OrderRow{"nothing_counts_behind_the_end", WithEnd(L"a", L"b"), WithEnd(L"a", L"c"), 0, 0},
        OrderRow{"numbers_end_at_the_end", WithEnd(L"1", L"9"), L"1", 0, 0},
        OrderRow{"end_before_what_looks_like_it_in_16_bits", L"a", L"a" + Unit(0x10000), -1, -1},
        OrderRow{"equal_in_16_bits", L"Cb", Unit(0x10043) + L"b", 0, 0},
        OrderRow{"end_before_a_character", WithEnd(L"a", L"z"), L"a!", -1, -1}),
    FactOf);

TEST(NaturalOrderOfUnits, FoldsTheTwentySixAsciiLettersOnly) {
  const CAlphaNumericWStringComparator comparator;
  const auto folded = [](int c) { return c >= 'a' && c <= 'z' ? c - 32 : c; };
  for (int a = 1; a < 0x180; ++a) {
    for (int b = 1; b < 0x180; ++b) {
      ASSERT_EQ(comparator.Compare(Unit(a), Unit(b)), folded(a) < folded(b)) << a << ' ' << b;
    }
  }
}

// --- Factories -------------------------------------------------------------------------------------------------------

template <class Factory>
std::string MessageOf(Factory factory, const CComparator<Tree::NodeInfo>*& comparator) {
  testing::internal::CaptureStdout();
  comparator = factory();
  return testing::internal::GetCapturedStdout();
}

TEST(ComparatorFactory, SaysItWhereTheProgramHasSentItsOutput) {
  std::ostringstream output;
  std::streambuf* const before = std::cout.rdbuf(output.rdbuf());
  std::cout.width(40);
  EXPECT_EQ(Tree::GenerateComperatorByType(static_cast<Tree::NodeComparableType>(1)), nullptr);
  std::cout.rdbuf(nullptr);
  EXPECT_EQ(Tree::GenerateEcadComperatorByType(static_cast<Tree::NodeComparableType>(2)), nullptr);
  std::cout.rdbuf(before);
  std::cout.width(0);
  EXPECT_EQ(output.str(), "Not supported type..\n");
}

TEST(ComparatorFactory, GivesAscendingComparatorsOfRecords) {
  Tree::NodeInfo five;
  Tree::NodeInfo three;
  five.label = L"x-5";
  three.label = L"x-3";
  const CComparator<Tree::NodeInfo>* plain = nullptr;
  const CComparator<Tree::NodeInfo>* ecad = nullptr;
  EXPECT_EQ(MessageOf([] { return Tree::GenerateComperatorByType(Tree::ByLabel); }, plain), "");
  EXPECT_EQ(MessageOf([] { return Tree::GenerateEcadComperatorByType(Tree::ByLabel); }, ecad), "");
  ASSERT_TRUE(plain);
  ASSERT_TRUE(ecad);
  EXPECT_TRUE(plain->IsAscending());
  EXPECT_TRUE(ecad->IsAscending());
  EXPECT_TRUE(plain->Compare(five, three));
  EXPECT_FALSE(plain->Compare(three, five));
  EXPECT_TRUE(ecad->Compare(three, five));
  EXPECT_FALSE(ecad->Compare(five, three));
  EXPECT_TRUE(dynamic_cast<const Tree::NodeInfoLabelComperator<CAlphaNumericWStringComparator>*>(plain));
  EXPECT_TRUE(dynamic_cast<const Tree::NodeInfoLabelComperator<CAlphaNumericWStringEcadComparator>*>(ecad));
  delete plain;
  delete ecad;
}

TEST(ComparatorFactory, GivesNullAndAMessageForOtherTypes) {
  for (const unsigned type : {1u, 2u, 0xFFFFFFFFu}) {
    const auto other = static_cast<Tree::NodeComparableType>(type);
    const CComparator<Tree::NodeInfo>* comparator = nullptr;
    EXPECT_EQ(MessageOf([&] { return Tree::GenerateComperatorByType(other); }, comparator), "Not supported type..\n");
    EXPECT_EQ(comparator, nullptr);
    EXPECT_EQ(MessageOf([&] { return Tree::GenerateEcadComperatorByType(other); }, comparator),
              "Not supported type..\n");
    EXPECT_EQ(comparator, nullptr);
  }
}

TEST(Comparator, RemembersItsDirectionAndComparesAscendingAllTheSame) {
  CAlphaNumericWStringComparator comparator;
  EXPECT_TRUE(comparator.IsAscending());
  comparator.SetAscending(false);
  EXPECT_FALSE(comparator.IsAscending());
  EXPECT_TRUE(comparator.Compare(L"a", L"b"));
  EXPECT_FALSE(comparator.Compare(L"b", L"a"));
}

}  // namespace
}  // namespace oxecad_ui
