#include <viewer/trees/Markup.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <ostream>
#include <string>

namespace oxviewer {
namespace {

struct MarkupRow {
  const char* fact;
  const wchar_t* markup;
  const wchar_t* text;
};

void PrintTo(const MarkupRow& row, std::ostream* out) { *out << row.fact; }

const MarkupRow kRows[] = {
    {"TagsAreLeftOut", L"<b>Resistors</b> (3)", L"Resistors (3)"},
    {"AttributesMayHoldTheirEnd", L"<img src=\"a>b\">x", L"x"},
    {"LineBreakIsABlank", L"a<br>b<BR/>c", L"a b c"},
    {"NamedEntities", L"&lt;&amp;&gt;&quot;&apos;", L"<&>\"'"},
    {"NoBreakSpace", L"a&nbsp;b", L"a\u00A0b"},
    {"NumericEntities", L"&#65;&#x42;&#X43;", L"ABC"},
    {"BeyondTheBasicPlane", L"&#x1F600;", L"\xD83D\xDE00"},
    {"SurrogateEntityStays", L"&#xD800;", L"&#xD800;"},
    {"ZeroEntityStays", L"&#0;", L"&#0;"},
    {"TooLargeEntityStays", L"&#x110000;", L"&#x110000;"},
    {"UnknownEntityStays", L"R&D; &x", L"R&D; &x"},
    {"ComparisonStays", L"a < b > c", L"a < b > c"},
    {"LessThanAtTheEndStays", L"a<", L"a<"},
    {"UnclosedTagStays", L"a<b", L"a<b"},
    {"UnclosedQuoteStays", L"<img src=\"a>b", L"<img src=\"a>b"},
};

class Markup : public ::testing::TestWithParam<MarkupRow> {};

TEST_P(Markup, ReadsAsText) { EXPECT_EQ(TextOfMarkup(GetParam().markup), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(Rows, Markup, ::testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.fact); });

RC_GTEST_PROP(MarkupEscaping, GivesTheTextBack, ()) {
  const auto units = *rc::gen::container<std::vector<int>>(rc::gen::weightedOneOf<int>(
      {{3, rc::gen::element<int>('<', '>', '&', '"', '/', 'b', ';', '#')}, {1, rc::gen::inRange(1, 0x10000)}}));
  const std::wstring text(units.begin(), units.end());
  RC_ASSERT(TextOfMarkup(EscapedMarkup(text)) == text);
}

}  // namespace
}  // namespace oxviewer
