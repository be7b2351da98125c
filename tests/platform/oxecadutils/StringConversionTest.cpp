#include <oxecadutils/StringConversion.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <ostream>
#include <set>
#include <string>
#include <vector>

using oxecadutils::StringToWString;
using oxecadutils::Utf8ToWideStr;
using oxecadutils::WideStrToUtf8;
using namespace std::string_literals;

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsSurrogate(std::uint32_t value) { return value >= 0xD800 && value <= 0xDFFF; }

// The encodings by their definition: the expected values of the properties below.
std::string Utf8Of(char32_t c) {
  const auto byte = [](char32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
  if (c < 0x80) return {byte(c)};
  if (c < 0x800) return {byte(0xC0 | c >> 6), byte(0x80 | (c & 0x3F))};
  if (c < 0x10000) return {byte(0xE0 | c >> 12), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F))};
  return {byte(0xF0 | c >> 18), byte(0x80 | (c >> 12 & 0x3F)), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F))};
}

std::wstring WideOf(char32_t c) {
  if (c < 0x10000) return {static_cast<wchar_t>(c)};
  const char32_t rest = c - 0x10000;
  return {static_cast<wchar_t>(0xD800 + (rest >> 10)), static_cast<wchar_t>(0xDC00 + (rest & 0x3FF))};
}

rc::Gen<char32_t> Character() {
  const auto inRange = [](std::uint32_t from, std::uint32_t to) { return rc::gen::inRange(from, to); };
  return rc::gen::cast<char32_t>(
      rc::gen::oneOf(inRange(0, 0x80), inRange(0x80, 0x800), inRange(0x800, 0xD800), inRange(0xE000, 0x10000),
                     inRange(0x10000, 0x110000),
                     rc::gen::element<std::uint32_t>(0, 0x7F, 0x80, 0x7FF, 0x800, 0xD7FF, 0xE000, 0xFFFD, 0xFFFE,
                                                     0xFFFF, 0x10000, 0x10FFFF)));
}

/// What the standard says of any bytes: a well-formed sequence is its character; otherwise the longest part that begins
/// one, or else a single byte, is one replacement. Found by look-up among all well-formed sequences.
class Utf8Definition {
 public:
  Utf8Definition() {
    for (char32_t c = 0x80; c <= 0x10FFFF; c += 0x40) {  // the last byte alone tells these from the next ones
      if (IsSurrogate(c)) continue;
      const std::string sequence = Utf8Of(c);
      for (std::size_t size = 1; size < sequence.size(); ++size) m_beginnings.insert(sequence.substr(0, size));
    }
  }

  std::wstring Decode(const std::string& text) const {
    std::wstring wide;
    for (std::size_t at = 0; at < text.size();) {
      if (static_cast<unsigned char>(text[at]) < 0x80) {
        wide += static_cast<wchar_t>(text[at++]);
        continue;
      }
      std::size_t size = 0;
      while (at + size < text.size() && m_beginnings.count(text.substr(at, size + 1))) ++size;
      // A beginning and one byte more may be whole.
      const std::string candidate = text.substr(at, size + 1);
      const char32_t c = candidate.size() == size + 1 ? Whole(candidate) : 0;
      wide += WideOf(c ? c : kReplacement);
      at += c ? size + 1 : std::max<std::size_t>(size, 1);
    }
    return wide;
  }

 private:
  static char32_t Whole(const std::string& sequence) {
    static constexpr std::array<char32_t, 5> kLeadBits = {0, 0, 0x1F, 0x0F, 0x07};
    if (sequence.size() < 2 || sequence.size() > 4) return 0;
    char32_t c = static_cast<unsigned char>(sequence[0]) & kLeadBits[sequence.size()];
    for (std::size_t i = 1; i < sequence.size(); ++i) c = c << 6 | (static_cast<unsigned char>(sequence[i]) & 0x3F);
    return c <= 0x10FFFF && !IsSurrogate(c) && Utf8Of(c) == sequence ? c : 0;
  }

  std::set<std::string> m_beginnings;
};

struct Row {
  const char* name;
  std::string utf8;
  std::wstring wide;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class WellFormed : public testing::TestWithParam<Row> {};
class IllFormed : public testing::TestWithParam<Row> {};

std::string RowName(const testing::TestParamInfo<Row>& info) { return info.param.name; }

}  // namespace

TEST_P(WellFormed, ConvertsBothWays) {
  EXPECT_EQ(Utf8ToWideStr(GetParam().utf8), GetParam().wide);
  EXPECT_EQ(StringToWString(GetParam().utf8), GetParam().wide);
  EXPECT_EQ(WideStrToUtf8(GetParam().wide), GetParam().utf8);
}

INSTANTIATE_TEST_SUITE_P(StringConversion, WellFormed,
                         testing::Values(Row{"empty", "", L""}, Row{"ascii", "N$123", L"N$123"},
                                         Row{"two_bytes", "\xC2\xB5\x48", L"\u00B5H"},
                                         Row{"three_bytes", "10 k\xE2\x84\xA6", L"10 k\u2126"},
                                         Row{"four_bytes_are_two_units", "\xF0\x9F\x98\x80", {0xD83D, 0xDE00}},
                                         Row{"last_character", "\xF4\x8F\xBF\xBF", {0xDBFF, 0xDFFF}},
                                         Row{"first_of_two_units", "\xF0\x90\x80\x80", {0xD800, 0xDC00}},
                                         Row{"noncharacters", "\xEF\xBF\xBE\xEF\xBF\xBF", {0xFFFE, 0xFFFF}},
                                         Row{"replacement_itself", "\xEF\xBF\xBD", {0xFFFD}},
                                         Row{"byte_order_mark_is_kept", "\xEF\xBB\xBF\x41", {0xFEFF, 'A'}},
                                         Row{"zero_inside", "a\0b"s, std::wstring(L"a\0b", 3)}),
                         RowName);

TEST_P(IllFormed, BecomesReplacements) {
  EXPECT_EQ(Utf8ToWideStr(GetParam().utf8), GetParam().wide);
  EXPECT_EQ(StringToWString(GetParam().utf8), GetParam().wide);
}

INSTANTIATE_TEST_SUITE_P(
    StringConversion, IllFormed,
    testing::Values(
        Row{"lone_continuation", "a\x80z", L"a\uFFFDz"}, Row{"two_continuations", "\x80\xBF", L"\uFFFD\uFFFD"},
        Row{"never_a_byte", "\xFF\xFE", L"\uFFFD\uFFFD"},
        Row{"latin_1",
            "Stra\xDF"
            "e",
            L"Stra\uFFFDe"},
        Row{"cut_two", "a\xC3", L"a\uFFFD"}, Row{"cut_three", "a\xE2\x84", L"a\uFFFD"},
        Row{"cut_four", "a\xF0\x9F\x98", L"a\uFFFD"}, Row{"cut_four_before_text", "\xF0\x9F\x98z", L"\uFFFDz"},
        Row{"cut_before_a_whole_one", "\xE2\x84\xE2\x84\xA6", L"\uFFFD\u2126"},
        Row{"overlong_two", "\xC0\xAF", L"\uFFFD\uFFFD"}, Row{"overlong_three", "\xE0\x80\xAF", L"\uFFFD\uFFFD\uFFFD"},
        Row{"overlong_four", "\xF0\x8F\xBF\xBF", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        Row{"surrogate", "\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},
        Row{"beyond_the_last", "\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
        Row{"five_byte_form", "\xF8\x88\x80\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
        // The example that the Unicode Standard gives for the number of replacements.
        Row{"standards_example", "\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64",
            L"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd"}),
    RowName);

TEST(StringConversion, ReplacesWideElementsThatEncodeNothing) {
  const auto utf8Of = [](std::wstring wide) { return WideStrToUtf8(wide); };
  EXPECT_EQ(utf8Of({0xD83D}), "\xEF\xBF\xBD");
  EXPECT_EQ(utf8Of({0xDE00}), "\xEF\xBF\xBD");
  EXPECT_EQ(utf8Of({0xDE00, 0xD83D}), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(utf8Of({0xD83D, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
  EXPECT_EQ(utf8Of({0xD83D, 'x'}), "\xEF\xBF\xBDx");
  if constexpr (sizeof(wchar_t) > 2) {
    EXPECT_EQ(utf8Of({static_cast<wchar_t>(0x1F600), 'x'}), "\xEF\xBF\xBDx");
    EXPECT_EQ(utf8Of({static_cast<wchar_t>(-1)}), "\xEF\xBF\xBD");
    EXPECT_EQ(utf8Of({0xD83D, static_cast<wchar_t>(0x1DE00)}), "\xEF\xBF\xBD\xEF\xBF\xBD");
  }
}

TEST(StringConversion, FollowsTheStandardForAllBytesThatMatter) {
  // One byte from each class of the standard's table of well-formed sequences, and its borders.
  const std::string bytes =
      "\x41\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4\xF5\xFF";
  const Utf8Definition definition;
  std::vector<std::string> texts = {""};
  for (std::size_t size = 1; size <= 4; ++size) {
    std::vector<std::string> longer;
    for (const std::string& text : texts) {
      // Four bytes say more than the shorter texts before only where the first one leads four.
      if (size == 4 && static_cast<unsigned char>(text[0]) < 0xF0) continue;
      for (const char byte : bytes) longer.push_back(text + byte);
    }
    for (const std::string& text : longer)
      ASSERT_EQ(Utf8ToWideStr(text), definition.Decode(text)) << testing::PrintToString(text);
    texts = std::move(longer);
  }
}

RC_GTEST_PROP(StringConversion, KeepsEveryCharacter, ()) {
  const auto characters = *rc::gen::container<std::vector<char32_t>>(Character());
  std::string utf8;
  std::wstring wide;
  for (const char32_t c : characters) {
    utf8 += Utf8Of(c);
    wide += WideOf(c);
  }
  RC_ASSERT(Utf8ToWideStr(utf8) == wide);
  RC_ASSERT(WideStrToUtf8(wide) == utf8);
}

RC_GTEST_PROP(StringConversion, FollowsTheStandardForAnyBytes, (const std::vector<std::uint8_t>& bytes)) {
  static const Utf8Definition definition;
  const std::string text(bytes.begin(), bytes.end());
  const std::wstring wide = Utf8ToWideStr(text);
  RC_ASSERT(wide == definition.Decode(text));
  RC_ASSERT(Utf8ToWideStr(WideStrToUtf8(wide)) == wide);
}

RC_GTEST_PROP(StringConversion, ReplacesLoneSurrogatesOnly, ()) {
  const auto units = *rc::gen::container<std::vector<std::uint32_t>>(
      rc::gen::oneOf(rc::gen::inRange<std::uint32_t>(0xD800, 0xE000), rc::gen::inRange<std::uint32_t>(0, 0x10000)));
  std::wstring wide;
  std::wstring expected;
  for (std::size_t i = 0; i < units.size(); ++i) {
    wide += static_cast<wchar_t>(units[i]);
    const bool pair = units[i] < 0xDC00 && IsSurrogate(units[i]) && i + 1 < units.size() && units[i + 1] >= 0xDC00 &&
                      IsSurrogate(units[i + 1]);
    const bool second =
        i > 0 && units[i] >= 0xDC00 && IsSurrogate(units[i]) && units[i - 1] < 0xDC00 && IsSurrogate(units[i - 1]);
    expected +=
        IsSurrogate(units[i]) && !pair && !second ? static_cast<wchar_t>(kReplacement) : static_cast<wchar_t>(units[i]);
  }
  RC_ASSERT(Utf8ToWideStr(WideStrToUtf8(wide)) == expected);
}
