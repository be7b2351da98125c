// Tags that colour the text and the background of labels.
#include <gtest/gtest.h>
#include <tests/support/Check.h>
#include <tests/support/DecimalComma.h>
#include <uicomps/dialogs/MarkupTags.h>

#include <string>

namespace oxecad_ui {
namespace {

constexpr unsigned kNoColor = 0xFFFFFFFF;

struct ColorRow {
  const char* name;
  unsigned color;
  const char* digits;
};
void PrintTo(const ColorRow& row, std::ostream* out) { *out << row.name; }

std::wstring Wide(const std::string& text) { return {text.begin(), text.end()}; }

void ExpectTags(unsigned color, const std::string& digits) {
  const std::string font = "<font color=#" + digits + ">";
  const std::string background = "<span style=\"background:" + digits + "\">";
  std::string opening = "old";
  std::string closing = "old";
  std::wstring wide_opening = L"old";
  std::wstring wide_closing = L"old";
  GetFontColorTags(color, opening, closing);
  EXPECT_EQ(opening, font);
  EXPECT_EQ(closing, "</font>");
  GetFontColorTags(color, wide_opening, wide_closing);
  EXPECT_EQ(wide_opening, Wide(font));
  EXPECT_EQ(wide_closing, L"</font>");
  EXPECT_EQ(GetFontColorOpeningTag(color), Wide(font));
  GetBgColorTags(color, opening, closing);
  EXPECT_EQ(opening, background);
  EXPECT_EQ(closing, "</span>");
  GetBgColorTags(color, wide_opening, wide_closing);
  EXPECT_EQ(wide_opening, Wide(background));
  EXPECT_EQ(wide_closing, L"</span>");
}

class MarkupTags : public testing::TestWithParam<ColorRow> {};

TEST_P(MarkupTags, HoldRedGreenBlueAsTwoDigitsEach) { ExpectTags(GetParam().color, GetParam().digits); }

TEST_P(MarkupTags, AreTheSameWithADecimalComma) {
  const test_support::DecimalComma locale;
  ExpectTags(GetParam().color, GetParam().digits);
}

INSTANTIATE_TEST_SUITE_P(
    Color, MarkupTags,
    testing::Values(ColorRow{"black", 0x00000000, "000000"}, ColorRow{"white", 0x00FFFFFF, "ffffff"},
                    ColorRow{"red_is_the_low_byte", 0x000000FF, "ff0000"},
                    ColorRow{"green_is_the_middle_byte", 0x0000FF00, "00ff00"},
                    ColorRow{"blue_is_the_third_byte", 0x00FF0000, "0000ff"},
                    ColorRow{"three_bytes", 0x00336699, "996633"}, ColorRow{"leading_zeros", 0x000A0B0C, "0c0b0a"},
                    ColorRow{"top_byte_ignored", 0xFF123456, "563412"},
                    ColorRow{"without_the_top_byte", 0x00123456, "563412"},
                    ColorRow{"nearly_no_color", 0xFFFFFFFE, "feffff"}, ColorRow{"lower_case", 0x00EFCDAB, "abcdef"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(MarkupTagsOfNoColor, LeaveFilledStringsAlone) {
  std::string opening = "before";
  std::string closing = "after";
  std::wstring wide_opening = L"before";
  std::wstring wide_closing = L"after";
  GetFontColorTags(kNoColor, opening, closing);
  GetBgColorTags(kNoColor, opening, closing);
  GetFontColorTags(kNoColor, wide_opening, wide_closing);
  GetBgColorTags(kNoColor, wide_opening, wide_closing);
  EXPECT_EQ(opening, "before");
  EXPECT_EQ(closing, "after");
  EXPECT_EQ(wide_opening, L"before");
  EXPECT_EQ(wide_closing, L"after");
}

TEST(MarkupTagsOfNoColor, AreWhiteForTheOpeningTagAlone) {
  EXPECT_EQ(GetFontColorOpeningTag(kNoColor), L"<font color=#ffffff>");
}

TEST(MarkupTagsAlone, HaveOneClosingTag) { EXPECT_EQ(GetFontColorClosingTag(), L"</font>"); }

TEST(MarkupTagsProperty, AnyColorComesBackFromItsDigits) {
  rc::check("any color", [](unsigned color) {
    RC_PRE(color != kNoColor);
    std::string opening;
    std::string closing;
    GetFontColorTags(color, opening, closing);
    RC_ASSERT(opening.size() == 20u);
    const unsigned shown = static_cast<unsigned>(std::stoul(opening.substr(13, 6), nullptr, 16));
    RC_ASSERT(shown == ((color & 0xFFu) << 16 | (color & 0xFF00u) | (color >> 16 & 0xFFu)));
    std::wstring wide_opening;
    std::wstring wide_closing;
    GetFontColorTags(color, wide_opening, wide_closing);
    RC_ASSERT(wide_opening == Wide(opening));
    RC_ASSERT(wide_opening == GetFontColorOpeningTag(color));
    GetBgColorTags(color, wide_opening, wide_closing);
    RC_ASSERT(wide_opening == L"<span style=\"background:" + Wide(opening.substr(13, 6)) + L"\">");
  });
}

}  // namespace
}  // namespace oxecad_ui
