#include <viewer/trees/LengthExpression.h>

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <ostream>
#include <string>

namespace oxviewer {
namespace {

struct ValueRow {
  const char* fact;
  const char* text;
  double millimetres;
};
void PrintTo(const ValueRow& row, std::ostream* out) { *out << row.fact; }

class LengthValue : public ::testing::TestWithParam<ValueRow> {};

TEST_P(LengthValue, IsReckonedInMillimetres) {
  const std::optional<double> value = ValueOfLength(GetParam().text);
  ASSERT_TRUE(value);
  EXPECT_NEAR(*value, GetParam().millimetres, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LengthValue,
    ::testing::Values(ValueRow{"SumOfTwoUnits", "1.5mm + 20mil", 2.008}, ValueRow{"NumberAlone", "3", 3},
                      ValueRow{"Inches", "0.1in", 2.54}, ValueRow{"Micrometres", "250 um", 0.25},
                      ValueRow{"ProductBeforeSum", "1mm+2*3mm", 7}, ValueRow{"Parentheses", "(3 - 1) * 0.1in", 5.08},
                      ValueRow{"FromTheLeft", "8mm/2/2", 2}, ValueRow{"DifferencesFromTheLeft", "5-2-1", 2},
                      ValueRow{"RatioOfLengthsIsAFactor", "25.4mm/1in * 4mm", 4}, ValueRow{"MinusOfMinus", "2--1", 3},
                      ValueRow{"NumberBesideALengthIsMillimetres", "1 + 1in", 26.4},
                      ValueRow{"PointInFront", ".5mm", 0.5}),
    [](const auto& row) { return std::string(row.param.fact); });

TEST(LengthExpression, WithoutSenseHasNoValue) {
  for (const char* text : {"", " ", "1mm*1mm", "1/0", "1/1mm", "(1", "1)", "1+", "*1", "1 2", "1km", "mm", "1..2",
                           "1e3", "1,5", "0.1.2mm", "()", "nan"}) {
    EXPECT_EQ(ValueOfLength(text), std::nullopt) << text;
  }
  EXPECT_EQ(ValueOfLength(std::string(201, '1')), std::nullopt);
}

TEST(LengthExpression, TakesAsManyParenthesesAsItSays) {
  EXPECT_EQ(ValueOfLength(std::string(32, '(') + "1" + std::string(32, ')')), 1);
  EXPECT_EQ(ValueOfLength(std::string(33, '(') + "1" + std::string(33, ')')), std::nullopt);
}

TEST(LengthExpressionTest, LetsEverythingBeTypedThatMayBecomeALength) {
  const LengthExpressionTest test(0, 10);
  std::wstring typed;
  for (const wchar_t c : std::wstring(L"(1.5mm + 20mil) * 2 / 3 - .1in")) {
    typed += c;
    EXPECT_TRUE(test.CanBeAPartOfValidInput(typed.c_str())) << std::string(typed.begin(), typed.end());
  }
  EXPECT_TRUE(test.CanBeAPartOfValidInput(nullptr));
  for (const wchar_t* wrong : {L"x", L"1k", L"mmm", L"1.2.3", L"1,5", L"1\t", L"\x00B5m"}) {
    EXPECT_FALSE(test.CanBeAPartOfValidInput(wrong));
  }
}

TEST(LengthExpressionTest, LeavesTheResultWithinItsLimits) {
  const LengthExpressionTest test(1, 10);
  std::wstring out = L"before";
  EXPECT_TRUE(test.GetValidInput(L"1.5mm + 20mil", out));
  EXPECT_EQ(out, L"2.008");
  EXPECT_TRUE(test.GetValidInput(L"1in", out));
  EXPECT_EQ(out, L"10");
  EXPECT_TRUE(test.GetValidInput(L"-3", out));
  EXPECT_EQ(out, L"1");
  EXPECT_FALSE(test.GetValidInput(L"1mm +", out));
  EXPECT_FALSE(test.GetValidInput(nullptr, out));
  EXPECT_EQ(out, L"1");
}

}  // namespace
}  // namespace oxviewer
