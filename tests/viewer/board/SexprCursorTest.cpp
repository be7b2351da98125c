#include <gtest/gtest.h>
#include <viewer/board/SexprCursor.h>

#include <functional>
#include <string>

namespace oxviewer {
namespace {

// Stands behind the keyword of "(x ...)".
SexprCursor CursorIn(const std::string& text) {
  SexprCursor cursor(SexprLexer(text, 16, 1000));
  cursor.EnterRoot("x");
  return cursor;
}

Nm LengthOf(const std::string& number) {
  const std::string text = "(x " + number + ")";
  return CursorIn(text).ReadLength();
}

MicroDegrees AngleOf(const std::string& number) {
  const std::string text = "(x " + number + ")";
  return CursorIn(text).ReadAngle();
}

std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const SyntaxError& error) {
    return error.message;
  }
  return "none";
}

TEST(ReadLength, TakesEverySpellingOfOneNumber) {
  for (const char* spelling : {"1", "1.0", "1.000000", "+1", "1e0", "0.1e1", "10E-1", "1.", "01", "1.0000004"}) {
    EXPECT_EQ(LengthOf(spelling), 1'000'000) << spelling;
  }
  EXPECT_EQ(LengthOf(".5"), 500'000);
  EXPECT_EQ(LengthOf("-0"), 0);
}

TEST(ReadLength, RoundsToWholeNanometres) {
  EXPECT_EQ(LengthOf("0.0000016"), 2);
  EXPECT_EQ(LengthOf("-0.0000016"), -2);
  EXPECT_EQ(LengthOf("0.0000004"), 0);
  EXPECT_EQ(LengthOf("147.360912"), 147'360'912);
}

TEST(ReadLength, TakesWhatIsTooSmallForADoubleAsNothing) {
  const std::string zeros(400, '0');
  for (const std::string& spelling :
       {std::string("1e-400"), std::string("-1E-400"), "0." + zeros + "1", "-." + zeros + "1", "0." + zeros + "1e5",
        "1" + zeros + "e-900", std::string("1e-99999999999999999999"), std::string("+12.5e-0400")}) {
    EXPECT_EQ(LengthOf(spelling), 0) << spelling;
  }
  EXPECT_EQ(LengthOf("0." + zeros + "1e402"), 10'000'000);
  for (const std::string& spelling :
       {std::string("1e400"), "-1" + zeros, "0." + zeros + "1e900", std::string("1e99999999999999999999")}) {
    EXPECT_EQ(FailureOf([&] { LengthOf(spelling); }).substr(0, 24), "expected a number, found") << spelling;
  }
}

TEST(ReadLength, AcceptsTheOutermostValuesAndNothingBeyond) {
  EXPECT_EQ(LengthOf("2147.483647"), 2147483647);
  EXPECT_EQ(LengthOf("-2147.483647"), -2147483647);
  const std::string refusal = "expected a length within +-2147.483647 mm";
  EXPECT_EQ(FailureOf([] { LengthOf("2147.483648"); }), refusal);
  EXPECT_EQ(FailureOf([] { LengthOf("-2147.483648"); }), refusal);
  EXPECT_EQ(FailureOf([] { LengthOf("1e300"); }), refusal);
}

TEST(ReadNumber, RefusesWhatIsNoFiniteNumber) {
  for (const char* text : {"abc", "1,5", "0x10", "nan", "inf", "-inf", "1e999", "1mm", "--1", "+-1", "+", "-", "."}) {
    EXPECT_EQ(FailureOf([text] { LengthOf(text); }), std::string("expected a number, found \"") + text + '"') << text;
  }
  EXPECT_EQ(FailureOf([] { LengthOf("\"1\""); }), "expected a number, found \"1\"");
  EXPECT_EQ(FailureOf([] { LengthOf("(a)"); }), "expected a number, found \"(\"");
  EXPECT_EQ(FailureOf([] { LengthOf(""); }), "expected a number, found \")\"");
}

TEST(ReadAngle, BringsAnglesIntoOneTurn) {
  EXPECT_EQ(AngleOf("0"), 0);
  EXPECT_EQ(AngleOf("360"), 0);
  EXPECT_EQ(AngleOf("-90"), 270'000'000);
  EXPECT_EQ(AngleOf("450.5"), 90'500'000);
  EXPECT_EQ(AngleOf("-0.0000001"), 0);
  EXPECT_EQ(AngleOf("359.9999999"), 0);
  EXPECT_EQ(AngleOf("1e9"), 280'000'000);
  EXPECT_EQ(FailureOf([] { AngleOf("1.1e9"); }), "expected an angle within +-1000000000 degrees");
}

TEST(Cursor, WalksListsAndPassesOverWhatNobodyReads) {
  SexprCursor cursor(SexprLexer("(x word (a 1 (deep (er))) \"more\" (b 2) () (3) tail)", 16, 100));
  cursor.EnterRoot("x");
  ASSERT_TRUE(cursor.NextChild());
  EXPECT_EQ(cursor.Keyword(), "a");
  EXPECT_EQ(cursor.Offset(), 8u);
  cursor.Leave();
  ASSERT_TRUE(cursor.NextChild());
  EXPECT_EQ(cursor.Keyword(), "b");
  EXPECT_EQ(cursor.ReadNumber(), 2);
  cursor.Leave();
  ASSERT_TRUE(cursor.NextChild());
  EXPECT_EQ(cursor.Keyword(), "");
  cursor.Leave();
  ASSERT_TRUE(cursor.NextChild());
  EXPECT_EQ(cursor.Keyword(), "3");
  cursor.Leave();
  EXPECT_FALSE(cursor.NextChild());
  cursor.Leave();
  cursor.ExpectEnd();
}

TEST(Cursor, LeavesAListFromWithinItsWords) {
  SexprCursor cursor(SexprLexer("(x (a one two (b)) (c))", 16, 100));
  cursor.EnterRoot("x");
  ASSERT_TRUE(cursor.NextChild());
  EXPECT_EQ(cursor.TryAtom(), "one");
  cursor.Leave();
  ASSERT_TRUE(cursor.NextChild());
  EXPECT_EQ(cursor.Keyword(), "c");
}

TEST(Cursor, TellsQuotedFromPlainWords) {
  SexprCursor cursor(SexprLexer("(x a \"b\")", 16, 100));
  cursor.EnterRoot("x");
  bool quoted = true;
  EXPECT_EQ(cursor.Atom("a word", &quoted), "a");
  EXPECT_FALSE(quoted);
  EXPECT_EQ(cursor.TryAtom(&quoted), "b");
  EXPECT_TRUE(quoted);
  EXPECT_EQ(cursor.TryAtom(), std::nullopt);
  EXPECT_EQ(FailureOf([&cursor] { cursor.Atom("a word"); }), "expected a word, found \")\"");
}

TEST(Cursor, RefusesAnotherRoot) {
  const auto enter = [](const std::string& text) {
    return FailureOf([&text] { SexprCursor(SexprLexer(text, 16, 100)).EnterRoot("x"); });
  };
  EXPECT_EQ(enter(""), "expected \"(x\", found the end of the file");
  EXPECT_EQ(enter("x"), "expected \"(x\", found \"x\"");
  EXPECT_EQ(enter("(y)"), "expected \"x\", found \"y\"");
  EXPECT_EQ(enter("((x))"), "expected \"x\", found \"(\"");
}

TEST(Cursor, RefusesWhatFollowsTheRoot) {
  SexprCursor cursor(SexprLexer("(x) (y)", 16, 100));
  cursor.EnterRoot("x");
  cursor.Leave();
  EXPECT_EQ(FailureOf([&cursor] { cursor.ExpectEnd(); }), "expected the end of the file, found \"(\"");
}

}  // namespace
}  // namespace oxviewer
