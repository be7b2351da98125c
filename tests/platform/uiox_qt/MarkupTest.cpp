#include <uiox_qt/Markup.h>
#include <uiox_qt/Text.h>

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace uiox_qt_tests {
namespace {

using uiox_qt::EscapeMarkup;
using uiox_qt::FromWide;
using uiox_qt::MarkupRun;
using uiox_qt::ParseMarkup;
using uiox_qt::PlainText;
using uiox_qt::ToWide;

std::string Plain(const char* label) { return PlainText(QString::fromUtf8(label)).toStdString(); }

/// One word for each run: text, then what is special about it.
std::string Drawn(const char* label) {
  std::string runs;
  for (const MarkupRun& run : ParseMarkup(QString::fromUtf8(label))) {
    runs += '[' + (run.image.isEmpty() ? run.text : QLatin1String("img ") + run.image).toStdString();
    if (run.bold) runs += "|b";
    if (run.italic) runs += "|i";
    if (run.underline) runs += "|u";
    if (run.color.isValid()) runs += '|' + run.color.name().toStdString();
    if (run.background.isValid()) runs += "|on " + run.background.name().toStdString();
    runs += ']';
  }
  return runs;
}

struct MarkupRow {
  const char* name;
  const char* label;
  const char* runs;
};
void PrintTo(const MarkupRow& row, std::ostream* out) { *out << row.name; }

class Markup : public ::testing::TestWithParam<MarkupRow> {};

TEST_P(Markup, IsTakenApart) { EXPECT_EQ(Drawn(GetParam().label), GetParam().runs); }

constexpr MarkupRow kRows[] = {
    {"plain_text", "R10", "[R10]"},
    {"nothing", "", ""},
    {"bold", "<b>R</b>10", "[R|b][10]"},
    {"any_case", "<B>R</B>", "[R|b]"},
    {"within_each_other", "<b>a<i>b<u>c</u></i></b>", "[a|b][b|b|i][c|b|i|u]"},
    {"crossing", "<b>a<i>b</b>c</i>", "[a|b][b|b|i][c|i]"},
    {"never_closed", "<b>R10", "[R10|b]"},
    {"never_opened", "R10</b>", "[R10]"},
    {"font_colour", "<font color=#ff8000>x</font>", "[x|#ff8000]"},
    {"font_colour_in_quotes", "<font size='9' color=\"#ff8000\">x</font>", "[x|#ff8000]"},
    {"font_colour_name", "<font color=red>x</font>", "[x|#ff0000]"},
    {"no_colour", "<font color=#12>x</font>", "[x]"},
    {"background_without_hash", "<span style=\"background:ff0000\">x</span>", "[x|on #ff0000]"},
    {"background_and_colour", "<span style=\"color: #00ff00; background-color: #0000ff\">x</span>",
     "[x|#00ff00|on #0000ff]"},
    {"image", "<img src=\"color_square.png_255\">", "[img color_square.png_255]"},
    {"image_in_text", "a<img src='x.png'/>b", "[a][img x.png][b]"},
    {"image_without_a_name", "<img>", ""},
    {"mix", "<mix>", "[img mix.png]"},
    {"mixed_show_mode", "<mix_show>", "[img mix.png]"},
    {"show_mode", "<a-b_show>", "[img ecad_compare_show_a-b.png]"},
    {"line_break", "a<br>b", "[a b]"},
    {"unknown_tag", "<script>x</script>", "[x]"},
    {"link", "<a href=\"http://x\">y</a>", "[y]"},
    {"less_than", "a < b", "[a < b]"},
    {"less_than_a_digit", "x<5", "[x<5]"},
    {"less_than_at_the_end", "x<", "[x<]"},
    {"tag_without_an_end", "x<b", "[x<b]"},
    {"tag_within_a_tag", "<b<i>x", "[<b][x|i]"},
    {"greater_than_in_quotes", "<img src=\"a>b\">", "[img a>b]"},
    {"entities", "&lt;b&gt; &amp; &quot;&apos;", "[<b> & \"']"},
    {"numbered_characters", "&#65;&#x42;", "[AB]"},
    {"beyond_the_first_plane", "&#x1F600;", "[\xF0\x9F\x98\x80]"},
    {"no_character", "&#0;&#xD800;&#x110000;", "[&#0;&#xD800;&#x110000;]"},
    {"unknown_entity", "&copy;", "[&copy;]"},
    {"ampersand", "A & B &", "[A & B &]"},
};
INSTANTIATE_TEST_SUITE_P(Rows, Markup, ::testing::ValuesIn(kRows),
                         [](const ::testing::TestParamInfo<MarkupRow>& row) { return std::string(row.param.name); });

TEST(MarkupTest, GivesBackAnyTextThatWasEscaped) {
  for (const char* text : {"<b>", "a & b", "&lt;", "Net-(R1-Pad2)", "/sheet/{slash}", "\"'", "<", "&", "&#65;"}) {
    EXPECT_EQ(PlainText(EscapeMarkup(QString::fromUtf8(text))).toStdString(), text);
  }
}

TEST(MarkupTest, ReadsAsAPersonDoes) {
  EXPECT_EQ(Plain("<b>Resistors</b> (3)"), "Resistors (3)");
  EXPECT_EQ(Plain("<font color=#ff0000>A</font>&amp;<img src=\"x\">B"), "A&B");
}

TEST(MarkupTest, TakesLinearTimeForHostileLabels) {
  for (const QString& part : {QStringLiteral("<"), QStringLiteral("<b>"), QStringLiteral("<a\""), QStringLiteral("&"),
                              QStringLiteral("</b>"), QStringLiteral("<b>x<i>y")}) {
    const QString label = part.repeated(100'000);
    QElapsedTimer time;
    time.start();
    ParseMarkup(label);
    EXPECT_LT(time.elapsed(), 10'000) << part.toStdString();  // the square of its length would take an hour
  }
}

TEST(TextTest, KeepsUnitsAsTheyAre) {
  const std::wstring units = {L'a', wchar_t(0xD83D), wchar_t(0xDE00), wchar_t(0xDC00), wchar_t(0xFFFF)};
  EXPECT_EQ(ToWide(FromWide(units)), units);
}

TEST(TextTest, SplitsUnitsBeyondTheFirstPlane) {
  EXPECT_EQ(ToWide(FromWide(std::wstring(1, wchar_t(0x1F600)))), (std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)}));
  EXPECT_EQ(ToWide(FromWide(std::wstring(1, wchar_t(0x7FFFFFFF)))), std::wstring(1, wchar_t(0xFFFD)));
}

}  // namespace
}  // namespace uiox_qt_tests
