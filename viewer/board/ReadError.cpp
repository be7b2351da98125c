#include <utf8.h>

#include <viewer/board/Result.h>

#include <cstdint>
#include <string_view>

namespace oxviewer {

namespace {

void AppendEscaped(std::string& line, unsigned char byte) {
  constexpr const char* kDigits = "0123456789abcdef";
  line += "\\x";
  line += kDigits[byte >> 4];
  line += kDigits[byte & 15];
}

// Control characters, the line and paragraph separators, and the marks that turn the direction of writing.
bool DisturbsLine(std::uint32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0) || (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

void AppendBytes(std::string& line, std::string_view bytes) {
  for (const char byte : bytes) AppendEscaped(line, static_cast<unsigned char>(byte));
}

void AppendValid(std::string& line, std::string_view text) {
  for (auto at = text.begin(); at != text.end();) {
    auto after = at;
    const std::uint32_t c = utf8::unchecked::next(after);
    if (c == '\n' || c == '\t') {
      line += c == '\n' ? "\\n" : "\\t";
    } else if (DisturbsLine(c)) {
      AppendBytes(line, std::string_view(at, after));
    } else {
      line.append(at, after);
    }
    at = after;
  }
}

void AppendText(std::string& line, std::string_view text) {
  for (auto at = text.begin(); at != text.end();) {
    const auto invalid = utf8::find_invalid(at, text.end());
    AppendValid(line, std::string_view(at, invalid));
    at = invalid;
    if (at == text.end()) return;
    AppendBytes(line, std::string_view(at, at + 1));
    ++at;
  }
}

}  // namespace

std::string ReadError::ToLine() const {
  std::string text;
  AppendText(text, file);
  if (line > 0) text += ':' + std::to_string(line) + ':' + std::to_string(column);
  text += ": ";
  AppendText(text, message);
  return text;
}

}  // namespace oxviewer
