#include <oxg/LengthUnit.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

using oxg::LengthUnit;

namespace {

constexpr unsigned char kUnits[] = {LengthUnit::Millimetre, LengthUnit::Micrometre, LengthUnit::Inch, LengthUnit::Mil,
                                    LengthUnit::Nanometre,  LengthUnit::Centimetre, LengthUnit::Metre};
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::uint64_t BitsOf(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

struct Row {
  const char* name;
  unsigned char from;
  unsigned char to;
  double value;
  int exponent;
  double result;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class Conversion : public testing::TestWithParam<Row> {};

std::string RowName(const testing::TestParamInfo<Row>& info) { return info.param.name; }

rc::Gen<unsigned char> AnyUnit() {
  return rc::gen::elementOf(std::vector<unsigned char>(std::begin(kUnits), std::end(kUnits)));
}

/// Numbers with up to seven digits after the point, as people write them on boards.
rc::Gen<double> AnyLength() {
  return rc::gen::map(rc::gen::inRange<std::int64_t>(-100'000'000'000, 100'000'000'000),
                      [](std::int64_t number) { return static_cast<double>(number) / 1e7; });
}

}  // namespace

// The results are exact, not nearly right: the tests compare them bit by bit.
TEST_P(Conversion, IsExact) {
  const Row& row = GetParam();
  const double result = LengthUnit::Convert(row.from, row.to, row.value, row.exponent);
  EXPECT_EQ(BitsOf(result), BitsOf(row.result)) << result << " instead of " << row.result;
}

INSTANTIATE_TEST_SUITE_P(
    LengthUnit, Conversion,
    testing::Values(Row{"mm_to_inch", LengthUnit::Millimetre, LengthUnit::Inch, 25.4, 1, 1},
                    Row{"inch_to_mm", LengthUnit::Inch, LengthUnit::Millimetre, 1, 1, 25.4},
                    Row{"inch_to_mil", LengthUnit::Inch, LengthUnit::Mil, 1, 1, 1000},
                    Row{"mil_to_inch", LengthUnit::Mil, LengthUnit::Inch, 1000, 1, 1},
                    Row{"mil_to_mm", LengthUnit::Mil, LengthUnit::Millimetre, 10, 1, 0.254},
                    Row{"mil_to_um", LengthUnit::Mil, LengthUnit::Micrometre, 1, 1, 25.4},
                    Row{"mil_to_nm", LengthUnit::Mil, LengthUnit::Nanometre, 1, 1, 25400},
                    Row{"mm_to_um", LengthUnit::Millimetre, LengthUnit::Micrometre, 0.15, 1, 150},
                    Row{"um_to_mm", LengthUnit::Micrometre, LengthUnit::Millimetre, 150, 1, 0.15},
                    Row{"nm_to_mm", LengthUnit::Nanometre, LengthUnit::Millimetre, 1, 1, 0.000001},
                    Row{"cm_to_inch", LengthUnit::Centimetre, LengthUnit::Inch, 2.54, 1, 1},
                    Row{"cm_to_mm", LengthUnit::Centimetre, LengthUnit::Millimetre, 1.5, 1, 15},
                    Row{"m_to_inch", LengthUnit::Metre, LengthUnit::Inch, 0.0254, 1, 1},
                    Row{"m_to_nm", LengthUnit::Metre, LengthUnit::Nanometre, 1, 1, 1e9},
                    Row{"square_inch_to_square_mm", LengthUnit::Inch, LengthUnit::Millimetre, 1, 2, 645.16},
                    Row{"square_mm_to_square_inch", LengthUnit::Millimetre, LengthUnit::Inch, 645.16, 2, 1},
                    Row{"square_cm_to_square_mm", LengthUnit::Centimetre, LengthUnit::Millimetre, 1, 2, 100},
                    Row{"cubic_inch_to_cubic_mil", LengthUnit::Inch, LengthUnit::Mil, 1, 3, 1e9},
                    Row{"per_mm_to_per_inch", LengthUnit::Millimetre, LengthUnit::Inch, 1, -1, 25.4},
                    Row{"per_square_m_to_per_square_mm", LengthUnit::Metre, LengthUnit::Millimetre, 1e6, -2, 1},
                    Row{"zeroth_power_has_no_unit", LengthUnit::Millimetre, LengthUnit::Inch, 0.1, 0, 0.1},
                    Row{"zero", LengthUnit::Millimetre, LengthUnit::Inch, 0, 1, 0},
                    Row{"minus_zero", LengthUnit::Millimetre, LengthUnit::Inch, -0.0, 1, -0.0},
                    Row{"infinity", LengthUnit::Metre, LengthUnit::Mil, -kInfinity, 1, -kInfinity},
                    Row{"largest_to_a_larger_unit", LengthUnit::Nanometre, LengthUnit::Metre, 1e308, 1, 1e299},
                    Row{"beyond_the_largest", LengthUnit::Metre, LengthUnit::Nanometre, 1e308, 1, kInfinity}),
    RowName);

TEST(LengthUnit, LargestValuesNeedNoLargerOnes) {
  const double largest = std::numeric_limits<double>::max();
  EXPECT_DOUBLE_EQ(LengthUnit::Convert(LengthUnit::Millimetre, LengthUnit::Inch, largest, 1), largest / 25.4);
}

TEST(LengthUnit, UnknownCodesGiveNoNumber) {
  EXPECT_TRUE(std::isnan(LengthUnit::Convert(7, LengthUnit::Inch, 1, 1)));
  EXPECT_TRUE(std::isnan(LengthUnit::Convert(LengthUnit::Inch, 7, 1, 1)));
  EXPECT_TRUE(std::isnan(LengthUnit::Convert(255, 254, 1, 1)));
}

TEST(LengthUnit, NoNumberStaysNoNumber) {
  EXPECT_TRUE(std::isnan(LengthUnit::Convert(LengthUnit::Inch, LengthUnit::Mil, std::nan(""), 1)));
}

RC_GTEST_PROP(LengthUnit, SameUnitChangesNothing, (unsigned char unit, double value, int exponent)) {
  RC_ASSERT(BitsOf(LengthUnit::Convert(unit, unit, value, exponent)) == BitsOf(value));
}

RC_GTEST_PROP(LengthUnit, ThereAndBackIsTheSame, ()) {
  const unsigned char from = *AnyUnit();
  const unsigned char to = *AnyUnit();
  const int exponent = *rc::gen::inRange(-3, 4);
  const double value = *AnyLength();
  const double back = LengthUnit::Convert(to, from, LengthUnit::Convert(from, to, value, exponent), exponent);
  // Two roundings each way.
  RC_ASSERT(std::abs(back - value) <= 4 * std::numeric_limits<double>::epsilon() * std::abs(value));
}

RC_GTEST_PROP(LengthUnit, WholeNanometresSurviveEveryUnit, ()) {
  const unsigned char unit = *AnyUnit();
  const auto nanometres = *rc::gen::inRange<std::int64_t>(-2'000'000'000, 2'000'000'001);
  const double value = LengthUnit::Convert(LengthUnit::Nanometre, unit, static_cast<double>(nanometres), 1);
  RC_ASSERT(std::llround(LengthUnit::Convert(unit, LengthUnit::Nanometre, value, 1)) == nanometres);
}

RC_GTEST_PROP(LengthUnit, AreaIsALengthConvertedTwice, ()) {
  const unsigned char from = *AnyUnit();
  const unsigned char to = *AnyUnit();
  const double value = *AnyLength();
  const double twice = LengthUnit::Convert(from, to, LengthUnit::Convert(from, to, value, 1), 1);
  RC_ASSERT(std::abs(LengthUnit::Convert(from, to, value, 2) - twice) <=
            8 * std::numeric_limits<double>::epsilon() * std::abs(twice));
}

RC_GTEST_PROP(LengthUnit, KeepsTheOrderOfLengths, ()) {
  const unsigned char from = *AnyUnit();
  const unsigned char to = *AnyUnit();
  const double a = *AnyLength();
  const double b = *AnyLength();
  RC_PRE(a < b);
  RC_ASSERT(LengthUnit::Convert(from, to, a, 1) <= LengthUnit::Convert(from, to, b, 1));
}
