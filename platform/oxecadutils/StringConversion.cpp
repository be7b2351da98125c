#include <oxecadutils/StringConversion.h>

#include <utf8.h>

#include <cstdint>
#include <iterator>

namespace oxecadutils {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// The bytes that may follow a lead byte directly, and how long its sequence is. A length of 0: no lead byte.
struct Lead {
  int length;
  std::uint8_t lowest;
  std::uint8_t highest;
};

Lead LeadOf(std::uint8_t byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return {2, 0x80, 0xBF};
  if (byte == 0xE0) return {3, 0xA0, 0xBF};
  if (byte == 0xED) return {3, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {3, 0x80, 0xBF};
  if (byte == 0xF0) return {4, 0x90, 0xBF};
  if (byte >= 0xF1 && byte <= 0xF3) return {4, 0x80, 0xBF};
  if (byte == 0xF4) return {4, 0x80, 0x8F};
  return {0, 0, 0};
}

/// The end of the maximal ill-formed part at `from`, where the library found that no well-formed sequence stands.
std::string::const_iterator EndOfIllFormed(std::string::const_iterator from, std::string::const_iterator end) {
  const auto byteAt = [](std::string::const_iterator at) { return static_cast<std::uint8_t>(*at); };
  const Lead lead = LeadOf(byteAt(from));
  ++from;
  if (lead.length < 3 || from == end || byteAt(from) < lead.lowest || byteAt(from) > lead.highest) return from;
  ++from;
  if (lead.length == 4 && from != end && utf8::internal::is_trail(*from)) ++from;
  return from;
}

bool IsHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

std::wstring Utf8ToWideStr(const std::string& text) {
  std::wstring wide;
  wide.reserve(text.size());  // no sequence has more code units than bytes
  for (auto at = text.begin(); at != text.end();) {
    const auto wellFormedEnd = utf8::find_invalid(at, text.end());
    utf8::unchecked::utf8to16(at, wellFormedEnd, std::back_inserter(wide));
    if (wellFormedEnd == text.end()) break;
    wide.push_back(static_cast<wchar_t>(kReplacement));
    at = EndOfIllFormed(wellFormedEnd, text.end());
  }
  return wide;
}

std::string WideStrToUtf8(const std::wstring& text) {
  std::string narrow;
  narrow.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto unit = static_cast<std::uint32_t>(text[at]);
    std::uint32_t character = unit;
    if (IsHighSurrogate(unit) && at + 1 < text.size() && IsLowSurrogate(static_cast<std::uint32_t>(text[at + 1]))) {
      ++at;
      character = 0x10000 + ((unit - 0xD800) << 10) + (static_cast<std::uint32_t>(text[at]) - 0xDC00);
    } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit) || unit > 0xFFFF) {
      character = kReplacement;
    }
    utf8::unchecked::append(character, std::back_inserter(narrow));
  }
  return narrow;
}

std::wstring StringToWString(const std::string& text) { return Utf8ToWideStr(text); }

}  // namespace oxecadutils
