#include <viewer/trees/Markup.h>

#include <array>
#include <cstdint>
#include <utility>

namespace oxviewer {
namespace {

using NamedEntity = std::pair<std::wstring_view, wchar_t>;
constexpr std::array<NamedEntity, 6> kEntities{
    {{L"amp", L'&'}, {L"lt", L'<'}, {L"gt", L'>'}, {L"quot", L'"'}, {L"apos", L'\''}, {L"nbsp", wchar_t{0xA0}}}};

constexpr std::size_t kLongestEntity = 10;  // between '&' and ';'

bool IsLetter(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }

// A '<' begins a tag when a name or a closing mark follows at once; so "a < b" stays a comparison.
bool BeginsTag(std::wstring_view markup, std::size_t at) {
  if (at + 1 >= markup.size()) return false;
  const wchar_t next = markup[at + 1];
  return IsLetter(next) || next == L'/' || next == L'!' || next == L'?';
}

// The place behind the tag that begins at `at`, quoted attributes skipped; npos when it never ends.
std::size_t EndOfTag(std::wstring_view markup, std::size_t at) {
  wchar_t quote = 0;
  for (std::size_t i = at + 1; i < markup.size(); ++i) {
    const wchar_t c = markup[i];
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == L'"' || c == L'\'') {
      quote = c;
    } else if (c == L'>') {
      return i + 1;
    }
  }
  return std::wstring_view::npos;
}

bool IsLineBreak(std::wstring_view tag) {
  return tag.size() >= 4 && (tag[1] == L'b' || tag[1] == L'B') && (tag[2] == L'r' || tag[2] == L'R') &&
         !IsLetter(tag[3]);
}

bool AppendCodePoint(std::uint32_t code, std::wstring& text) {
  if (code == 0 || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return false;
  if (code < 0x10000) {
    text += static_cast<wchar_t>(code);
  } else {
    text += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
    text += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
  }
  return true;
}

bool AppendNumber(std::wstring_view digits, std::wstring& text) {
  std::uint32_t base = 10;
  if (!digits.empty() && (digits[0] == L'x' || digits[0] == L'X')) {
    base = 16;
    digits.remove_prefix(1);
  }
  if (digits.empty()) return false;
  std::uint32_t code = 0;
  for (const wchar_t c : digits) {
    std::uint32_t digit = 16;
    if (c >= L'0' && c <= L'9') digit = static_cast<std::uint32_t>(c - L'0');
    if (c >= L'a' && c <= L'f') digit = static_cast<std::uint32_t>(c - L'a') + 10;
    if (c >= L'A' && c <= L'F') digit = static_cast<std::uint32_t>(c - L'A') + 10;
    if (digit >= base) return false;
    code = code * base + digit;
    if (code > 0x10FFFF) return false;
  }
  return AppendCodePoint(code, text);
}

bool AppendEntity(std::wstring_view name, std::wstring& text) {
  if (!name.empty() && name[0] == L'#') return AppendNumber(name.substr(1), text);
  for (const auto& [known, character] : kEntities) {
    if (name == known) {
      text += character;
      return true;
    }
  }
  return false;
}

// Resolves the entity at `at` and gives the place behind it; `at` itself when there is none.
std::size_t TakeEntity(std::wstring_view markup, std::size_t at, std::wstring& text) {
  const std::size_t end = markup.substr(at, kLongestEntity + 2).find(L';');
  if (end == std::wstring_view::npos || !AppendEntity(markup.substr(at + 1, end - 1), text)) return at;
  return at + end + 1;
}

}  // namespace

std::wstring EscapedMarkup(std::wstring_view text) {
  std::wstring markup;
  markup.reserve(text.size());
  for (const wchar_t c : text) {
    switch (c) {
      case L'&':
        markup += L"&amp;";
        break;
      case L'<':
        markup += L"&lt;";
        break;
      case L'>':
        markup += L"&gt;";
        break;
      case L'"':
        markup += L"&quot;";
        break;
      default:
        markup += c;
    }
  }
  return markup;
}

std::wstring TextOfMarkup(std::wstring_view markup) {
  std::wstring text;
  text.reserve(markup.size());
  bool tagsEnd = true;  // an unclosed tag leaves all later '<' as they are: the rest is not searched again
  for (std::size_t i = 0; i < markup.size();) {
    std::size_t next = i;
    if (markup[i] == L'<' && tagsEnd && BeginsTag(markup, i)) {
      const std::size_t end = EndOfTag(markup, i);
      tagsEnd = end != std::wstring_view::npos;
      if (tagsEnd) next = end;
      if (tagsEnd && IsLineBreak(markup.substr(i, end - i))) text += L' ';
    } else if (markup[i] == L'&') {
      next = TakeEntity(markup, i, text);
    }
    if (next == i) text += markup[next++];
    i = next;
  }
  return text;
}

}  // namespace oxviewer
