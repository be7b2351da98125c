#include <gtest/gtest.h>
#include <viewer/board/SexprLexer.h>

#include <string>

namespace oxviewer {
namespace {

// All tokens of a text in one line: ( ) for lists, words as they are, <...> for quoted texts; an error ends it.
std::string Tokens(std::string_view text, std::uint32_t nesting = 8, std::uint32_t stringBytes = 100) {
  SexprLexer lexer(text, nesting, stringBytes);
  std::string line;
  try {
    for (;;) {
      const Token token = lexer.Next();
      if (token.kind == Token::Kind::End) return line;
      if (!line.empty()) line += ' ';
      if (token.kind == Token::Kind::Open) line += '(';
      if (token.kind == Token::Kind::Close) line += ')';
      if (token.kind == Token::Kind::Atom) {
        line += token.quoted ? '<' + std::string(token.text) + '>' : std::string(token.text);
      }
    }
  } catch (const SyntaxError& error) {
    return line + " !" + std::to_string(error.offset) + ' ' + error.message;
  }
}

TEST(SexprLexer, CutsListsWordsAndQuotedTexts) {
  EXPECT_EQ(Tokens("(at 1.5 -2)(net 3 \"GND\")"), "( at 1.5 -2 ) ( net 3 <GND> )");
  EXPECT_EQ(Tokens("  \t\r\n\v\f(a)\n"), "( a )");
  EXPECT_EQ(Tokens(""), "");
}

TEST(SexprLexer, AWordEndsAtABlankOrParenthesisOnly) {
  EXPECT_EQ(Tokens("(a{b}[c]'d\"e|f#g ~{RESET})"), "( a{b}[c]'d\"e|f#g ~{RESET} )");
  EXPECT_EQ(Tokens("(\"a\"b)"), "( <a> b )");
}

TEST(SexprLexer, QuotedTextKeepsBlanksParenthesesAndLineEnds) {
  EXPECT_EQ(Tokens("(\"Net-(R1-Pad2)\" \"a b\" \"\" \"x\ny\")"), "( <Net-(R1-Pad2)> <a b> <> <x\ny> )");
}

TEST(SexprLexer, EscapesAreResolved) {
  EXPECT_EQ(Tokens(R"("a\"b\\c\n\t\r\x41\x4a7\101\0601")"), "<a\"b\\c\n\t\rAJ7A01>");
  EXPECT_EQ(Tokens(R"("\q\x")"), "<qx>");
  EXPECT_EQ(Tokens(R"("\a\b\f\v")"), "<\a\b\f\v>");
}

TEST(SexprLexer, ALineThatBeginsWithAHashIsAComment) {
  EXPECT_EQ(Tokens("# one (\n(a\n  # two )\n#b)"),
            "( a !24 expected \")\" to close the list that line 2 opens, found the "
            "end of the file");
  EXPECT_EQ(Tokens("(a #PWR01)"), "( a #PWR01 )");
  EXPECT_EQ(Tokens("#"), "");
}

TEST(SexprLexer, AByteOrderMarkIsPassedOver) { EXPECT_EQ(Tokens("\xEF\xBB\xBF(a)"), "( a )"); }

TEST(SexprLexer, AnOpenListAtTheEndNamesTheLineThatOpensIt) {
  EXPECT_EQ(Tokens("(a\n (b\n c"),
            "( a ( b c !9 expected \")\" to close the list that line 2 opens, found the end of the "
            "file");
}

TEST(SexprLexer, AClosingParenthesisTooManyIsRefused) {
  EXPECT_EQ(Tokens("(a))"), "( a ) !3 expected no \")\" without its \"(\"");
}

TEST(SexprLexer, AnOpenQuoteIsRefusedWhereItStands) {
  EXPECT_EQ(Tokens("(a \"b"), "( a !3 expected a closing quote for this one, found the end of the file");
  EXPECT_EQ(Tokens("\"a\\"), " !0 expected a closing quote for this one, found the end of the file");
  EXPECT_EQ(Tokens("\"a\\\""), " !0 expected a closing quote for this one, found the end of the file");
}

TEST(SexprLexer, NulIsRefusedEverywhere) {
  using namespace std::string_literals;
  EXPECT_EQ(Tokens("(a\0b)"s), "( !2 expected text, found a NUL byte");
  EXPECT_EQ(Tokens("(\"a\0b\")"s), "( !3 expected text, found a NUL byte");
  EXPECT_EQ(Tokens("(\"a\\x00\")"s), "( !3 expected text, found a NUL byte");
  EXPECT_EQ(Tokens("(\"a\\0\")"s), "( !3 expected text, found a NUL byte");
}

TEST(SexprLexer, NestingIsLimited) {
  EXPECT_EQ(Tokens("((()))", 3), "( ( ( ) ) )");
  EXPECT_EQ(Tokens("(((())))", 3), "( ( ( !3 expected at most 3 nested lists");
}

TEST(SexprLexer, TextLengthIsLimitedAfterEscapes) {
  EXPECT_EQ(Tokens("abcd \"abcd\" \"abc\\n\"", 3, 4), "abcd <abcd> <abc\n>");
  EXPECT_EQ(Tokens("abcde", 3, 4), " !0 expected a text of at most 4 bytes");
  EXPECT_EQ(Tokens("\"abcde\"", 3, 4), " !0 expected a text of at most 4 bytes");
  EXPECT_EQ(Tokens("\"abcd\\n\"", 3, 4), " !0 expected a text of at most 4 bytes");
}

TEST(SexprLexer, TheEndStaysTheEnd) {
  SexprLexer lexer("a", 1, 1);
  EXPECT_EQ(lexer.Next().kind, Token::Kind::Atom);
  EXPECT_EQ(lexer.Next().kind, Token::Kind::End);
  EXPECT_EQ(lexer.Next().kind, Token::Kind::End);
}

TEST(PlaceOfAByte, CountsLinesAndCharactersFromOne) {
  const std::string text = "ab\n\xC3\xA4\xE2\x82\xAC!\n";  // a umlaut, euro sign
  const auto place = [&text](std::size_t offset) {
    const TextPlace found = PlaceOf(text, offset);
    return std::to_string(found.line) + ':' + std::to_string(found.column);
  };
  EXPECT_EQ(place(0), "1:1");
  EXPECT_EQ(place(2), "1:3");
  EXPECT_EQ(place(3), "2:1");
  EXPECT_EQ(place(5), "2:2");
  EXPECT_EQ(place(8), "2:3");
  EXPECT_EQ(place(text.size()), "3:1");
}

TEST(DescribedToken, CutsLongTextsBetweenCharacters) {
  Token token;
  token.kind = Token::Kind::Atom;
  const std::string longText = std::string(39, 'a') + "\xC3\xA4" + "zzz";
  token.text = longText;
  EXPECT_EQ(Described(token), '"' + std::string(39, 'a') + "...\"");
}

}  // namespace
}  // namespace oxviewer
