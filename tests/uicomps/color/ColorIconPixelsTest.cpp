#include <gtest/gtest.h>
#include <tests/uicomps/color/ImageShop.h>

#include <ostream>

namespace color_tests {
namespace {

using oxecad_ui::ColorIconBag;
using test_support::RecordingToolkit;

constexpr std::uint32_t kColor = 0x00C0B0A0;

struct SizeRow {
  const char* name;
  std::int32_t width;
  std::int32_t height;
  const char* drawing;
  friend void PrintTo(const SizeRow& row, std::ostream* out) { *out << row.name; }
};

class ColorIconPixels : public testing::TestWithParam<SizeRow> {};

TEST_P(ColorIconPixels, AreTheLoadedFrameAroundTheColor) {
  const SizeRow& row = GetParam();
  RecordingToolkit toolkit;
  ImageShop shop(toolkit);
  shop.Stock("base.png", row.width, row.height);
  shop.Expect(kColor);
  ColorIconBag bag;
  ASSERT_STREQ(bag.GetColorIcon("base.png", kColor), "base.png_12628128");
  const auto defined = shop.TakeDefined();
  ASSERT_EQ(defined.size(), 1u);
  EXPECT_EQ(defined[0].name, "base.png_12628128");
  EXPECT_EQ(defined[0].drawing, row.drawing);
}

constexpr SizeRow kSizes[] = {
    {"one_pixel", 1, 1, "00\n"},
    {"two_by_two", 2, 2,
     "00 01\n"
     "10 11\n"},
    {"three_by_three", 3, 3,
     "00 01 02\n"
     "10 ## 12\n"
     "20 21 22\n"},
    {"one_high", 4, 1, "00 01 02 03\n"},
    {"two_high_has_its_last_row_painted", 4, 2,
     "00 01 02 03\n"
     "10 ## ## 13\n"},
    {"three_high_has_its_middle_row_painted", 5, 3,
     "00 01 02 03 04\n"
     "10 ## ## ## 14\n"
     "20 21 22 23 24\n"},
    {"one_wide_repeats_row_1", 1, 5, "00\n10\n10\n10\n40\n"},
    {"two_wide_repeats_row_1", 2, 4,
     "00 01\n"
     "10 11\n"
     "10 11\n"
     "30 31\n"},
    {"tall", 4, 6,
     "00 01 02 03\n"
     "10 ## ## 13\n"
     "10 ## ## 13\n"
     "10 ## ## 13\n"
     "10 ## ## 13\n"
     "50 51 52 53\n"},
    {"wide", 6, 4,
     "00 01 02 03 04 05\n"
     "10 ## ## ## ## 15\n"
     "10 ## ## ## ## 15\n"
     "30 31 32 33 34 35\n"},
    {"sixteen_by_sixteen", 16, 16,
     "00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "10 ## ## ## ## ## ## ## ## ## ## ## ## ## ## 1f\n"
     "f0 f1 f2 f3 f4 f5 f6 f7 f8 f9 fa fb fc fd fe ff\n"},
};
INSTANTIATE_TEST_SUITE_P(Sizes, ColorIconPixels, testing::ValuesIn(kSizes),
                         [](const auto& one) { return std::string(one.param.name); });

struct ColorRow {
  const char* name;
  std::uint32_t color;
  std::uint32_t painted;
  const char* icon;
  friend void PrintTo(const ColorRow& row, std::ostream* out) { *out << row.name; }
};

class ColorIconPaint : public testing::TestWithParam<ColorRow> {};

TEST_P(ColorIconPaint, IsTheLowThreeBytesInOrder) {
  RecordingToolkit toolkit;
  ImageShop shop(toolkit);
  shop.Stock("base.png", 3, 3);
  shop.Expect(GetParam().painted);
  ColorIconBag bag;
  ASSERT_STREQ(bag.GetColorIcon("base.png", GetParam().color), GetParam().icon);
  const auto defined = shop.TakeDefined();
  ASSERT_EQ(defined.size(), 1u);
  EXPECT_EQ(defined[0].name, GetParam().icon);
  EXPECT_EQ(defined[0].drawing, "00 01 02\n10 ## 12\n20 21 22\n");
}

constexpr ColorRow kColors[] = {
    {"black", 0, 0, "base.png_0"},
    {"low_byte", 0xFF, 0xFF, "base.png_255"},
    {"middle_byte", 0xFF00, 0xFF00, "base.png_65280"},
    {"high_byte", 0xFF0000, 0xFF0000, "base.png_16711680"},
    {"two_bytes", 0xFF8000, 0xFF8000, "base.png_16744448"},
    {"top_byte_is_named_and_not_painted", 0xAB123456, 0x123456, "base.png_2870096982"},
    {"last_color", 0xFFFFFFFE, 0xFFFFFE, "base.png_4294967294"},
};
INSTANTIATE_TEST_SUITE_P(Colors, ColorIconPaint, testing::ValuesIn(kColors),
                         [](const auto& one) { return std::string(one.param.name); });

struct OddRow {
  const char* name;
  std::int32_t width;
  std::int32_t height;
  bool with_pixels;
  friend void PrintTo(const OddRow& row, std::ostream* out) { *out << row.name; }
};

class ColorIconOfOddImage : public testing::TestWithParam<OddRow> {};

TEST_P(ColorIconOfOddImage, IsDefinedUnpaintedAndReleased) {
  RecordingToolkit toolkit;
  ImageShop shop(toolkit);
  shop.Stock("base.png", GetParam().width, GetParam().height, GetParam().with_pixels);
  ColorIconBag bag;
  EXPECT_STREQ(bag.GetColorIcon("base.png", 7), "base.png_7");
  EXPECT_EQ(shop.TakeDefined().size(), 1u);
  EXPECT_EQ(shop.Releases(), 1);
}

constexpr OddRow kOdd[] = {
    {"no_pixels", 3, 3, false},      {"no_pixels_of_a_huge_image", 0x7FFFFFFF, 0x7FFFFFFF, false},
    {"no_width", 0, 3, true},        {"no_height", 3, 0, true},
    {"negative_width", -3, 3, true}, {"negative_height", 3, -3, true},
    {"nothing_at_all", 0, 0, false},
};
INSTANTIATE_TEST_SUITE_P(Images, ColorIconOfOddImage, testing::ValuesIn(kOdd),
                         [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace color_tests
