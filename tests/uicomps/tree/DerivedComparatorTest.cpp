// A class derived from a comparator changes the order through the virtual slots, without writing `Compare` again.
#include <gtest/gtest.h>
#include <uicomps/tree/Comparators.h>
#include <uicomps/tree/Tree.h>

#include <string>

namespace oxecad_ui {
namespace {

using Plain = CAlphaNumericWStringComparator;
using Ecad = CAlphaNumericWStringEcadComparator;

template <class Base>
struct OctalDigits : Base {
  wchar_t DigitHigh() const override { return L'7'; }
};

TEST(DerivedComparator, ChangesTheDigitRange) {
  EXPECT_FALSE(Plain().Compare(L"10", L"9"));
  EXPECT_TRUE(OctalDigits<Plain>().Compare(L"10", L"9")) << "9 is no digit: '1' stands before '9'";
  EXPECT_TRUE(OctalDigits<Plain>().Compare(L"7", L"10")) << "7 still is one";
  EXPECT_TRUE(OctalDigits<Ecad>().Compare(L"10", L"9"));
  EXPECT_TRUE(OctalDigits<Ecad>().Compare(L"7", L"10"));
}

template <class Base>
struct LetterDigits : Base {
  wchar_t DigitLow() const override { return L'a'; }
  wchar_t DigitHigh() const override { return L'j'; }
};

TEST(DerivedComparator, CountsFromTheLowestDigit) {
  EXPECT_TRUE(LetterDigits<Plain>().Compare(L"c", L"ba")) << "2 before 10";
  EXPECT_FALSE(LetterDigits<Plain>().Compare(L"ba", L"c"));
  EXPECT_TRUE(LetterDigits<Plain>().Compare(L"b", L"ab")) << "1 before 01";
  EXPECT_TRUE(LetterDigits<Plain>().Compare(L"-f", L"-d")) << "-5 before -3";
  EXPECT_TRUE(LetterDigits<Ecad>().Compare(L"c", L"ba"));
  EXPECT_TRUE(LetterDigits<Ecad>().Compare(L"-d", L"-f"));
}

template <class Base>
struct NoDigits : Base {
  wchar_t DigitLow() const override { return L'1'; }
  wchar_t DigitHigh() const override { return L'0'; }
};

TEST(DerivedComparator, MayHaveNoDigitsAtAll) {
  EXPECT_TRUE(NoDigits<Plain>().Compare(L"item10", L"item9"));
  EXPECT_TRUE(NoDigits<Ecad>().Compare(L"item10", L"item9"));
  EXPECT_TRUE(NoDigits<Plain>().Compare(L"-3", L"-5")) << "no digits behind the minus";
}

template <class Base>
struct EndsAtSemicolon : Base {
  wchar_t Terminator() const override { return L';'; }
};

TEST(DerivedComparator, ChangesTheTerminator) {
  EXPECT_FALSE(EndsAtSemicolon<Plain>().Compare(L"a;x", L"a;y"));
  EXPECT_FALSE(EndsAtSemicolon<Plain>().Compare(L"a;y", L"a;x"));
  EXPECT_TRUE(EndsAtSemicolon<Plain>().Compare(L"a;", L"aa;"));
  EXPECT_TRUE(EndsAtSemicolon<Plain>().Compare(L"x9;9", L"x10;"));
  EXPECT_FALSE(EndsAtSemicolon<Ecad>().Compare(L"a;x", L"a;y"));
  EXPECT_TRUE(EndsAtSemicolon<Ecad>().Compare(L"x9;9", L"x10;"));
}

template <class Base>
struct EndsAtFive : Base {
  wchar_t Terminator() const override { return L'5'; }
};

TEST(DerivedComparator, EndsANumberAtATerminatorThatIsADigit) {
  EXPECT_FALSE(EndsAtFive<Plain>().Compare(L"159", L"158"));
  EXPECT_FALSE(EndsAtFive<Plain>().Compare(L"158", L"159"));
  EXPECT_TRUE(EndsAtFive<Plain>().Compare(L"159", L"25"));
  EXPECT_FALSE(EndsAtFive<Plain>().Compare(L"0059", L"0058"));
  EXPECT_FALSE(EndsAtFive<Ecad>().Compare(L"159", L"158"));
}

template <class Base>
struct KeepsCase : Base {
  wchar_t ToUpper(wchar_t c) const override { return c; }
};

TEST(DerivedComparator, ChangesCaseFolding) {
  EXPECT_FALSE(Plain().Compare(L"B", L"a"));
  EXPECT_TRUE(KeepsCase<Plain>().Compare(L"B", L"a"));
  EXPECT_TRUE(KeepsCase<Ecad>().Compare(L"A", L"a"));
  EXPECT_FALSE(KeepsCase<Ecad>().Compare(L"a", L"A"));
}

struct Unsigned : Plain {
  bool SignedNumbers() const override { return false; }
};
struct TildeSign : Plain {
  wchar_t MinusSign() const override { return L'~'; }
};
struct SignedEcad : Ecad {
  bool SignedNumbers() const override { return true; }
};

TEST(DerivedComparator, ChangesTheSign) {
  EXPECT_TRUE(Plain().Compare(L"-5", L"-3"));
  EXPECT_TRUE(Unsigned().Compare(L"-3", L"-5"));
  EXPECT_TRUE(TildeSign().Compare(L"-3", L"-5"));
  EXPECT_TRUE(TildeSign().Compare(L"~5", L"~3"));
  EXPECT_TRUE(SignedEcad().Compare(L"-3", L"-5")) << "the ECAD comparison has no step for signs";
}

/// Reads from a place of its own; "none" has no characters.
template <class Base>
struct OwnCharacters : Base {
  const wchar_t* Chars(const std::wstring& s) const override {
    if (s == L"none") return nullptr;
    return s == L"other" ? L"zz" : s.c_str();
  }
};

template <class Base>
class DerivedComparatorChars : public testing::Test {};
using BothComparators = testing::Types<Plain, Ecad>;
TYPED_TEST_SUITE(DerivedComparatorChars, BothComparators);

TYPED_TEST(DerivedComparatorChars, AreReadWhereTheSlotSays) {
  const OwnCharacters<TypeParam> comparator;
  EXPECT_TRUE(comparator.Compare(L"x", L"other"));
  EXPECT_FALSE(comparator.Compare(L"other", L"x"));
}

TYPED_TEST(DerivedComparatorChars, NullStandsBeforeAllButTheEmptyText) {
  const OwnCharacters<TypeParam> comparator;
  EXPECT_TRUE(comparator.Compare(L"none", L"a"));
  EXPECT_FALSE(comparator.Compare(L"none", L""));
  EXPECT_FALSE(comparator.Compare(L"none", L"none"));
  EXPECT_FALSE(comparator.Compare(L"a", L"none"));
  EXPECT_FALSE(comparator.Compare(L"", L"none"));
}

/// The template for other strings: narrow ones.
struct NarrowComparator : CAlphaNumericComparator<std::string, char> {
  char ToUpper(char c) const override { return c; }
  const char* Chars(const std::string& s) const override { return s.c_str(); }
  char DigitLow() const override { return '0'; }
  char DigitHigh() const override { return '9'; }
  char Terminator() const override { return 0; }
  bool SignedNumbers() const override { return true; }
  char MinusSign() const override { return '-'; }
};

TEST(DerivedComparator, MayCompareNarrowStrings) {
  const NarrowComparator comparator;
  EXPECT_TRUE(comparator.Compare("item2", "item10"));
  EXPECT_FALSE(comparator.Compare("item10", "item2"));
  EXPECT_TRUE(comparator.Compare("x-5", "x-3"));
  EXPECT_TRUE(comparator.Compare("B", "a"));
  EXPECT_TRUE(comparator.Compare("a", "\xC3\xA4")) << "bytes compare unsigned";
}

TEST(DerivedComparator, WorksInsideTheComparatorOfRecords) {
  const Tree::NodeInfoLabelComperator<KeepsCase<Plain>> comparator;
  Tree::NodeInfo upper;
  Tree::NodeInfo lower;
  upper.label = L"B";
  lower.label = L"a";
  EXPECT_TRUE(comparator.Compare(upper, lower));
}

TEST(DerivedComparator, MayCallItsHookWhichDoesNothing) {
  CAlphaNumericWStringComparator order;
  order.Hook();
  EXPECT_TRUE(order.Compare(L"R9", L"R10"));
}

}  // namespace
}  // namespace oxecad_ui
