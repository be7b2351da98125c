#include <viewer/window/TextMatcher.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include <uiox_qt/Text.h>

namespace oxviewer {
namespace {

struct MatchRow {
  const char* fact;
  SearchSyntax syntax;
  const char* text;
  const char* name;
  bool matches;
};
void PrintTo(const MatchRow& row, std::ostream* out) { *out << row.fact; }

class Matching : public ::testing::TestWithParam<MatchRow> {};

TEST_P(Matching, IsTheSameForAllKindsOfNames) {
  const TextMatcher matcher(QString::fromUtf8(GetParam().text), GetParam().syntax);
  const QString name = QString::fromUtf8(GetParam().name);
  EXPECT_EQ(matcher.Matches(name), GetParam().matches);
  EXPECT_EQ(matcher.MatchesWide(uiox_qt::ToWide(name)), GetParam().matches);
  EXPECT_EQ(matcher.MatchesUtf8(GetParam().name), GetParam().matches);
}

constexpr auto kText = SearchSyntax::Text;
constexpr auto kWildcards = SearchSyntax::Wildcards;
constexpr auto kExpression = SearchSyntax::Expression;

INSTANTIATE_TEST_SUITE_P(Rows, Matching,
                         ::testing::Values(MatchRow{"NothingMatchesAll", kText, "", "GND", true},
                                           MatchRow{"NothingMatchesAllInWildcards", kWildcards, "", "GND", true},
                                           MatchRow{"TextAnywhereInAnyCase", kText, "cc3", "VCC3V3", true},
                                           MatchRow{"TextIsNoPattern", kText, "V*", "VCC", false},
                                           MatchRow{"TextLongerThanTheName", kText, "VCCX", "VCC", false},
                                           MatchRow{"TextBeyondAscii", kText,
                                                    "\xC3\x9C"
                                                    "B",
                                                    "\xC3\xBC"
                                                    "ber",
                                                    true},
                                           MatchRow{"AsciiInANameBeyondAscii", kText, "BER",
                                                    "\xC3\xBC"
                                                    "ber",
                                                    true},
                                           MatchRow{"WildcardsForTheWholeName", kWildcards, "v?c*", "VCC3V3", true},
                                           MatchRow{"WildcardsNotForAPart", kWildcards, "CC", "VCC", false},
                                           MatchRow{"BracketIsACharacter", kWildcards, "D[0]", "D[0]", true},
                                           MatchRow{"WildcardCrossesSlashes", kWildcards, "/a*c", "/a/b/c", true},
                                           MatchRow{"ExpressionAnywhere", kExpression, "D[0-3]$", "DDR_d2", true},
                                           MatchRow{"ExpressionThatDoesNotFit", kExpression, "^D", "/D", false},
                                           MatchRow{"WrongExpressionMatchesNothing", kExpression, "(", "(", false}),
                         [](const auto& row) { return std::string(row.param.fact); });

TEST(TextMatcher, SaysWhatIsWrongWithAnExpression) {
  EXPECT_NE(TextMatcher("(", kExpression).Error(), "");
  EXPECT_EQ(TextMatcher("(", kText).Error(), "");
  EXPECT_EQ(TextMatcher("(", kWildcards).Error(), "");
}

TEST(TextMatcher, SyntaxIsKeptByItsName) {
  for (const SearchSyntax syntax : {kText, kWildcards, kExpression}) EXPECT_EQ(SyntaxNamed(NameOf(syntax)), syntax);
  EXPECT_EQ(SyntaxNamed("other"), kText);
}

}  // namespace
}  // namespace oxviewer
