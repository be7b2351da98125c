#include <gtest/gtest.h>
#include <tests/support/Check.h>
#include <tests/uicomps/color/ImageShop.h>

#include <locale>
#include <ostream>
#include <string>

namespace color_tests {
namespace {

using oxecad_ui::ColorIconBag;
using test_support::RecordingToolkit;

constexpr const char* kBase = "color_square.png";
constexpr unsigned int kNone = 0xFFFFFFFFu;

struct NameRow {
  const char* name;
  const char* icon;
  unsigned int color;
  friend void PrintTo(const NameRow& row, std::ostream* out) { *out << row.name; }
};

class ColorOfAnIconName : public testing::TestWithParam<NameRow> {};

TEST_P(ColorOfAnIconName, IsTheNumberBehindTheBase) {
  RecordingToolkit toolkit;
  EXPECT_EQ(ColorIconBag::Get().GetColorFromIcon(GetParam().icon, kBase), GetParam().color);
  EXPECT_TRUE(toolkit.Took("")) << "a name is read without the toolkit";
}

constexpr NameRow kNames[] = {
    {"plain", "color_square.png_255", 255},
    {"black", "color_square.png_0", 0},
    {"orange", "color_square.png_16744448", 0xFF8000},
    {"largest", "color_square.png_4294967294", 0xFFFFFFFEu},
    {"no_color_as_a_number", "color_square.png_4294967295", kNone},
    {"too_large", "color_square.png_4294967296", kNone},
    {"much_too_large", "color_square.png_99999999999999999999999999", kNone},
    {"no_number", "color_square.png_", kNone},
    {"no_separator", "color_square.png", kNone},
    {"too_short", "color", kNone},
    {"empty", "", kNone},
    {"letter_behind_the_number", "color_square.png_12x", kNone},
    {"blank_behind_the_number", "color_square.png_12 ", kNone},
    {"letter_before_the_number", "color_square.png_x12", kNone},
    {"hexadecimal", "color_square.png_0x12", kNone},
    {"fraction", "color_square.png_12.5", kNone},
    {"grouped", "color_square.png_1.234", kNone},
    {"grouped_with_commas", "color_square.png_1,234", kNone},
    {"two_numbers", "color_square.png_1_2", kNone},
    {"sign_alone", "color_square.png_-", kNone},
    {"leading_zeros", "color_square.png_0042", 42},
    {"blank_before_the_number", "color_square.png_ 42", 42},
    {"plus_sign", "color_square.png_+42", 42},
    {"any_prefix_of_the_length", "seventeen letters42", 42},
    {"digits_in_the_prefix", "1234567890123456742", 42},
    {"other_separator", "color_square.png!42", 42},
};
INSTANTIATE_TEST_SUITE_P(Names, ColorOfAnIconName, testing::ValuesIn(kNames),
                         [](const auto& one) { return std::string(one.param.name); });

TEST(IconName, IsTheBaseAnUnderscoreAndTheDecimalNumber) {
  EXPECT_EQ(ColorIconBag::GetIconName(kBase, 255), "color_square.png_255");
  EXPECT_EQ(ColorIconBag::GetIconName(kBase, 0), "color_square.png_0");
  EXPECT_EQ(ColorIconBag::GetIconName(kBase, 0xFF8000), "color_square.png_16744448");
  EXPECT_EQ(ColorIconBag::GetIconName(kBase, kNone), "color_square.png_4294967295");
  EXPECT_EQ(ColorIconBag::GetIconName("", 7), "_7");
}

RC_GTEST_PROP(IconName, GivesItsColorBack, ()) {
  const auto base = *rc::gen::container<std::string>(rc::gen::inRange('!', '~'));
  const auto color = *rc::gen::arbitrary<unsigned int>();
  const std::string icon = ColorIconBag::GetIconName(base.c_str(), color);
  RC_ASSERT(icon == base + '_' + std::to_string(color));
  RC_ASSERT(ColorIconBag::Get().GetColorFromIcon(icon.c_str(), base.c_str()) == color);
}

/// A country that writes 16.744.448,5 and says "ja" and "nein".
template <class Char>
class Grouping : public std::numpunct<Char> {
  Char do_thousands_sep() const override { return Char('.'); }
  Char do_decimal_point() const override { return Char(','); }
  std::string do_grouping() const override { return "\3"; }
};

class UnderAForeignLocale : public testing::Test {
 protected:
  UnderAForeignLocale() {
    const std::locale narrow(std::locale::classic(), new Grouping<char>);
    std::locale::global(std::locale(narrow, new Grouping<wchar_t>));
  }
  ~UnderAForeignLocale() override { std::locale::global(before_); }

 private:
  const std::locale before_;
};

TEST_F(UnderAForeignLocale, TheLocaleIsForeign) {
  std::ostringstream out;
  out << 16744448;
  ASSERT_EQ(out.str(), "16.744.448");
}

TEST_F(UnderAForeignLocale, IconsAreNamedAsEver) {
  RecordingToolkit toolkit;
  ImageShop shop(toolkit);
  shop.Stock(kBase, 3, 3);
  ColorIconBag bag;
  EXPECT_STREQ(bag.GetColorIcon(kBase, 16744448), "color_square.png_16744448");
  EXPECT_EQ(ColorIconBag::GetIconName(kBase, 4294967294u), "color_square.png_4294967294");
}

TEST_F(UnderAForeignLocale, NamesAreReadAsEver) {
  const ColorIconBag& bag = ColorIconBag::Get();
  EXPECT_EQ(bag.GetColorFromIcon("color_square.png_16744448", kBase), 16744448u);
  EXPECT_EQ(bag.GetColorFromIcon("color_square.png_16.744.448", kBase), kNone);
  EXPECT_EQ(bag.GetColorFromIcon("color_square.png_16,5", kBase), kNone);
}

}  // namespace
}  // namespace color_tests
