// Which texts are numbers while they are typed, and what they become when the field is left.
#include <gtest/gtest.h>
#include <tests/support/Check.h>
#include <tests/support/DecimalComma.h>
#include <tests/support/Quoted.h>
#include <uicomps/input/InputTest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace oxecad_ui {
namespace {

using test_support::DecimalComma;
using test_support::Quoted;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Shows what derived tests may use.
struct OpenNumericTest : NumericInputTest<double> {
  using NumericInputTest::GetInput;
  using NumericInputTest::NumericInputTest;
};
const OpenNumericTest kAnyNumber(-kInfinity, kInfinity, false);

bool IsTyped(const wchar_t* text, double min, double max, bool allow_empty = false) {
  return NumericInputTest<double>(min, max, allow_empty).CanBeAPartOfValidInput(text);
}

/// The text that is left behind, or "refused".
std::wstring Left(const wchar_t* text, double min = -kInfinity, double max = kInfinity, bool allow_empty = false) {
  std::wstring out = L"untouched";
  return NumericInputTest<double>(min, max, allow_empty).GetValidInput(text, out) ? out : L"refused";
}

struct NumberRow {
  const char* name;
  const wchar_t* text;
  bool is_number;
  double value = 0;
};
void PrintTo(const NumberRow& row, std::ostream* out) { *out << Quoted(row.text); }

class NumberText : public testing::TestWithParam<NumberRow> {};

void ExpectNumber(const NumberRow& row) {
  double value = -77;
  EXPECT_EQ(kAnyNumber.GetInput(row.text, value), row.is_number);
  if (row.is_number) {
    EXPECT_EQ(value, row.value);
  }
  EXPECT_EQ(kAnyNumber.CanBeAPartOfValidInput(row.text), row.is_number) << "the range is not looked at while typing";
  EXPECT_EQ(Left(row.text) == L"refused", !row.is_number);
}

TEST_P(NumberText, IsANumberOrNot) { ExpectNumber(GetParam()); }

TEST_P(NumberText, IsTheSameWithADecimalComma) {
  const DecimalComma locale;
  ExpectNumber(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, NumberText,
    testing::Values(NumberRow{"digit", L"7", true, 7}, NumberRow{"digits", L"1234567", true, 1234567},
                    NumberRow{"fraction", L"2.5", true, 2.5}, NumberRow{"point_at_the_end", L"1.", true, 1},
                    NumberRow{"point_at_the_start", L".5", true, 0.5}, NumberRow{"minus", L"-3", true, -3},
                    NumberRow{"minus_and_point", L"-.5", true, -0.5}, NumberRow{"plus", L"+3", true, 3},
                    NumberRow{"leading_zeros", L"007", true, 7}, NumberRow{"exponent", L"1e5", true, 1e5},
                    NumberRow{"capital_exponent", L"1E5", true, 1e5}, NumberRow{"signed_exponent", L"1e-5", true, 1e-5},
                    NumberRow{"exponent_behind_point", L"1.e+2", true, 100}, NumberRow{"leading_blank", L" 5", true, 5},
                    NumberRow{"leading_space_of_any_kind", L"\t\n 5", true, 5},
                    NumberRow{"more_digits_than_fit", L"0.1000000000000000055511151231257827", true, 0.1}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Refused, NumberText,
    testing::Values(NumberRow{"nothing", L"", false}, NumberRow{"blanks_alone", L"  ", false},
                    NumberRow{"trailing_blank", L"5 ", false}, NumberRow{"letter_behind", L"12a", false},
                    NumberRow{"letter", L"a", false}, NumberRow{"open_exponent", L"1e", false},
                    NumberRow{"open_signed_exponent", L"1e-", false}, NumberRow{"point_alone", L".", false},
                    NumberRow{"minus_and_point_alone", L"-.", false}, NumberRow{"two_points", L"1.2.3", false},
                    NumberRow{"two_numbers", L"1 2", false}, NumberRow{"two_signs", L"--1", false},
                    NumberRow{"sign_behind", L"1-", false}, NumberRow{"blank_behind_the_sign", L"- 1", false},
                    NumberRow{"decimal_comma", L"1,5", false}, NumberRow{"grouping", L"1,000", false},
                    NumberRow{"hexadecimal", L"0x10", false}, NumberRow{"infinity", L"inf", false},
                    NumberRow{"not_a_number", L"nan", false}, NumberRow{"beyond_the_range", L"1e999", false},
                    NumberRow{"digits_of_another_script", L"\x0661\x0662", false},
                    NumberRow{"unit_whose_low_byte_is_a_digit", L"\x0135", false},
                    NumberRow{"wide_minus",
                              L"\x2212"
                              L"5",
                              false},
                    NumberRow{"no_break_space",
                              L"\x00A0"
                              L"5",
                              false},
                    NumberRow{"surrogates", L"\xD83D\xDD0C", false}, NumberRow{"unit_behind", L"5mm", false}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(NumericTyping, NullIsAnEmptyText) {
  double value = -77;
  EXPECT_FALSE(kAnyNumber.GetInput(nullptr, value));
  EXPECT_FALSE(IsTyped(nullptr, 0, 10, false));
  EXPECT_TRUE(IsTyped(nullptr, 0, 10, true));
}

TEST(NumericTyping, AnEmptyTextIsAcceptedWhereItIsAllowedWhateverTheRange) {
  EXPECT_TRUE(IsTyped(L"", 0, 10, true));
  EXPECT_TRUE(IsTyped(L"", 5, 10, true));
  EXPECT_TRUE(IsTyped(L"", -10, -5, true));
  EXPECT_FALSE(IsTyped(L"", 0, 10, false));
}

TEST(NumericTyping, ALoneMinusIsAcceptedWhereTheRangeHoldsZero) {
  EXPECT_TRUE(IsTyped(L"-", 0, 10));
  EXPECT_TRUE(IsTyped(L"-", -10, 0));
  EXPECT_TRUE(IsTyped(L"-", -5, 5));
  EXPECT_TRUE(IsTyped(L"-", -0.0, 0.0));
  EXPECT_FALSE(IsTyped(L"-", -10, -1)) << "such a number is typed digits first";
  EXPECT_FALSE(IsTyped(L"-", 1, 10));
  EXPECT_FALSE(IsTyped(L"-", 1, 10, true));
}

TEST(NumericTyping, OtherSignsAloneAreRefused) {
  for (const wchar_t* const text : {L"+", L" -", L"- ", L"--", L"-e", L"\x2212"}) {
    EXPECT_FALSE(IsTyped(text, -5, 5, true)) << Quoted(text);
  }
}

TEST(NumericTyping, TheRangeIsNotLookedAt) {
  EXPECT_TRUE(IsTyped(L"15", 0, 10));
  EXPECT_TRUE(IsTyped(L"-3", 0, 10));
  EXPECT_TRUE(IsTyped(L"3", -10, -1));
}

TEST(NumericLeaving, ANumberBeyondTheRangeBecomesTheNearestLimit) {
  EXPECT_EQ(Left(L"15", 0, 10), L"10");
  EXPECT_EQ(Left(L"-3", 0, 10), L"0");
  EXPECT_EQ(Left(L"10", 0, 10), L"10");
  EXPECT_EQ(Left(L"10.00001", 0, 10), L"10");
  EXPECT_EQ(Left(L"7", 0, 10), L"7");
  EXPECT_EQ(Left(L"1e300", 0.25, 2.5), L"2.5");
}

TEST(NumericLeaving, ANumberEqualToALimitStays) {
  EXPECT_EQ(Left(L"0", -1, -0.0), L"0") << "the limit would be written as -0";
  EXPECT_EQ(Left(L"0", -0.0, 1), L"0");
}

TEST(NumericLeaving, TheLowerLimitIsAppliedFirst) {
  EXPECT_EQ(Left(L"7", 10, 5), L"5") << "7 becomes 10, and 10 becomes 5";
  EXPECT_EQ(Left(L"20", 10, 5), L"5");
}

TEST(NumericLeaving, NumbersAreWrittenWithSixSignificantDigits) {
  EXPECT_EQ(Left(L"2.5"), L"2.5");
  EXPECT_EQ(Left(L"1234567"), L"1.23457e+06");
  EXPECT_EQ(Left(L"0.00001"), L"1e-05");
  EXPECT_EQ(Left(L"0.0001"), L"0.0001");
  EXPECT_EQ(Left(L"1e3"), L"1000");
  EXPECT_EQ(Left(L"100000"), L"100000");
  EXPECT_EQ(Left(L"1000000"), L"1e+06");
  EXPECT_EQ(Left(L"999999.7"), L"1e+06");
  EXPECT_EQ(Left(L"123456.7"), L"123457");
  EXPECT_EQ(Left(L"0.1234567"), L"0.123457");
  EXPECT_EQ(Left(L"1.50"), L"1.5");
  EXPECT_EQ(Left(L"1."), L"1");
  EXPECT_EQ(Left(L" +007"), L"7");
  EXPECT_EQ(Left(L"1e100"), L"1e+100");
  EXPECT_EQ(Left(L"-0.5"), L"-0.5");
}

TEST(NumericLeaving, NumbersAreWrittenTheSameWithADecimalComma) {
  const DecimalComma locale;
  std::wostringstream check;
  check << 1234.5;
  ASSERT_EQ(check.str(), L"1.234,5") << "the locale is not the one meant";
  EXPECT_EQ(Left(L"2.5"), L"2.5");
  EXPECT_EQ(Left(L"12345"), L"12345");
  EXPECT_EQ(Left(L"1234567"), L"1.23457e+06");
  EXPECT_EQ(Left(L"2,5"), L"refused");
  EXPECT_EQ(Left(L"1.234"), L"1.234");
}

TEST(NumericLeaving, WhatIsNoNumberIsRefused) {
  for (const wchar_t* const text : {L"-", L"abc", L" ", L"1e", L"12a"}) {
    EXPECT_EQ(Left(text, -5, 5, true), L"refused") << Quoted(text);
  }
}

TEST(NumericLeaving, AnEmptyTextIsValidWhereItIsAllowedAndTheRangeHoldsZero) {
  for (const wchar_t* const text : {L"", static_cast<const wchar_t*>(nullptr)}) {
    EXPECT_EQ(Left(text, -5, 5, true), L"");
    EXPECT_EQ(Left(text, 0, 5, true), L"");
    EXPECT_EQ(Left(text, -5, 0, true), L"");
    EXPECT_EQ(Left(text, 1, 5, true), L"refused");
    EXPECT_EQ(Left(text, -5, -1, true), L"refused");
    EXPECT_EQ(Left(text, -5, 5, false), L"refused");
  }
}

TEST(NumericLeaving, CopiesHaveTheSameRangeAndRule) {
  const NumericInputTest<double> original(1, 2, true);
  const NumericInputTest<double> copy(original);
  NumericInputTest<double> assigned(-100, 100, false);
  assigned = original;
  for (const NumericInputTest<double>* const test : {&copy, &std::as_const(assigned)}) {
    std::wstring out;
    EXPECT_TRUE(test->GetValidInput(L"0", out));
    EXPECT_EQ(out, L"1");
    EXPECT_TRUE(test->GetValidInput(L"3", out));
    EXPECT_EQ(out, L"2");
    EXPECT_TRUE(test->CanBeAPartOfValidInput(L""));
  }
}

/// What a stream of the classic locale makes of a text.
bool StreamReads(const std::wstring& text, double& value) {
  std::wistringstream in(text);
  in.imbue(std::locale::classic());
  in >> value;
  return !in.fail() && in.peek() == std::wistringstream::traits_type::eof();
}

TEST(NumericProperty, AnyTextIsReadAsAStreamReadsIt) {
  const auto unit = rc::gen::weightedOneOf<wchar_t>(
      {{12, rc::gen::elementOf(std::wstring(L"0123456789"))},
       {6, rc::gen::elementOf(std::wstring(L"+-.eE"))},
       {2, rc::gen::elementOf(std::wstring(L" \t,xXpPinfa'"))},
       {1, rc::gen::map(rc::gen::inRange(1, 0x10000), [](int code) { return static_cast<wchar_t>(code); })}});
  rc::check("any text", [&] {
    const auto text = *rc::gen::scale(0.2, rc::gen::container<std::wstring>(unit));
    double expected = 0;
    const bool is_number = StreamReads(text, expected);
    double value = 0;
    RC_ASSERT(kAnyNumber.GetInput(text.c_str(), value) == is_number);
    if (is_number) RC_ASSERT(value == expected);
  });
}

TEST(NumericProperty, AnyNumberIsLeftInsideItsRange) {
  rc::check("any number, any range", [](double number, double limit1, double limit2) {
    std::wostringstream typed;
    typed.imbue(std::locale::classic());
    typed.precision(17);
    typed << number;
    const double min = std::min(limit1, limit2);
    const double max = std::max(limit1, limit2);
    std::wostringstream expected;
    expected.imbue(std::locale::classic());
    expected << std::min(std::max(number, min), max);
    RC_ASSERT(Left(typed.str().c_str(), min, max) == expected.str());
  });
}

}  // namespace
}  // namespace oxecad_ui
