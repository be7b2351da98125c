#include <tests/support/Quoted.h>

#include <charconv>
#include <cstdint>

namespace test_support {
namespace {

void AppendUtf8(std::string& out, std::uint32_t code) {
  const auto put = [&](std::uint32_t byte) { out += static_cast<char>(byte); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | code >> 6);
    put(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    put(0xE0 | code >> 12);
    put(0x80 | (code >> 6 & 0x3F));
    put(0x80 | (code & 0x3F));
  } else {
    put(0xF0 | code >> 18);
    put(0x80 | (code >> 12 & 0x3F));
    put(0x80 | (code >> 6 & 0x3F));
    put(0x80 | (code & 0x3F));
  }
}

/// True when the character has an escape, which is then appended.
bool AppendEscape(std::string& out, std::uint32_t c) {
  switch (c) {
    case '"':
      out += "\\\"";
      return true;
    case '\\':
      out += "\\\\";
      return true;
    case '\n':
      out += "\\n";
      return true;
    case '\t':
      out += "\\t";
      return true;
    default:
      break;
  }
  if (c >= 0x20 && c != 0x7F) return false;
  constexpr char kDigits[] = "0123456789abcdef";
  out += "\\x";
  out += kDigits[c >> 4 & 15];
  out += kDigits[c & 15];
  return true;
}

bool IsHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void AppendUnits(std::wstring& out, std::uint32_t code) {
  if (code < 0x10000) {
    out += static_cast<wchar_t>(code);
    return;
  }
  out += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
  out += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
}

/// Reads one UTF-8 sequence; a byte that begins none stands for itself.
std::uint32_t TakeUtf8(std::string_view text, std::size_t& at) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i])); };
  const std::uint32_t first = byte(at++);
  const std::size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
  if (more == 0 || at + more > text.size()) return first;
  std::uint32_t code = first & (0x3Fu >> more);
  for (std::size_t i = 0; i < more; ++i) code = code << 6 | (byte(at++) & 0x3F);
  return code;
}

std::uint32_t TakeHex(std::string_view text, std::size_t& at, std::size_t digits) {
  std::uint32_t value = 0;
  const char* const first = text.data() + at;
  const char* const last = text.data() + std::min(text.size(), at + digits);
  at = static_cast<std::size_t>(std::from_chars(first, last, value, 16).ptr - text.data());
  return value;
}

}  // namespace

std::string Hex(unsigned long long value) {
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof digits, value, 16).ptr;
  return "0x" + std::string(digits, end);
}

std::string Escaped(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (!AppendEscape(out, static_cast<unsigned char>(c))) out += c;
  }
  return out;
}

std::string Escaped(std::wstring_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto unit = static_cast<std::uint32_t>(text[i]);
    const std::uint32_t next = i + 1 < text.size() ? static_cast<std::uint32_t>(text[i + 1]) : 0;
    if (IsHighSurrogate(unit) && IsLowSurrogate(next)) {
      AppendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
      ++i;
    } else if (unit > 0xFFFF || IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
      out += "\\u{" + Hex(unit).substr(2) + "}";
    } else if (!AppendEscape(out, unit)) {
      AppendUtf8(out, unit);
    }
  }
  return out;
}

std::wstring Unescaped(std::string_view text) {
  std::wstring out;
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      AppendUnits(out, TakeUtf8(text, i));
      continue;
    }
    const char kind = text[i + 1];
    i += 2;
    if (kind == 'x') {
      AppendUnits(out, TakeHex(text, i, 2));
    } else if (kind == 'u' && i < text.size() && text[i] == '{') {
      ++i;
      out += static_cast<wchar_t>(TakeHex(text, i, 8));
      ++i;
    } else {
      out += static_cast<wchar_t>(kind == 'n' ? '\n' : kind == 't' ? '\t' : kind);
    }
  }
  return out;
}

std::string Quoted(const char* text) { return text ? '"' + Escaped(std::string_view(text)) + '"' : "null"; }

std::string Quoted(const wchar_t* text) { return text ? "L\"" + Escaped(std::wstring_view(text)) + '"' : "null"; }

}  // namespace test_support
