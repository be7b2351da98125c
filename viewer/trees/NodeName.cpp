#include <viewer/trees/NodeName.h>

namespace oxviewer {
namespace {

constexpr char kEscape = '%';
constexpr char kKindEnd = ':';
constexpr char kDigits[] = "0123456789ABCDEF";

bool StaysAsItIs(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::string EscapedName(std::string_view text) {
  if (text.empty()) return std::string(1, kEscape);
  std::string name;
  name.reserve(text.size());
  for (const char c : text) {
    if (StaysAsItIs(c)) {
      name += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      name += kEscape;
      name += kDigits[byte >> 4];
      name += kDigits[byte & 0xF];
    }
  }
  return name;
}

std::optional<std::string> UnescapedName(std::string_view name) {
  if (name.empty()) return std::nullopt;
  std::string text;
  if (name.size() == 1 && name[0] == kEscape) return text;
  text.reserve(name.size());
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (StaysAsItIs(name[i])) {
      text += name[i];
      continue;
    }
    if (name[i] != kEscape || name.size() - i < 3) return std::nullopt;
    const int high = HexValue(name[i + 1]);
    const int low = HexValue(name[i + 2]);
    if (high < 0 || low < 0) return std::nullopt;
    const char byte = static_cast<char>(high * 16 + low);
    if (StaysAsItIs(byte)) return std::nullopt;
    text += byte;
    i += 2;
  }
  return text;
}

std::string NodeName(std::string_view kind, std::string_view text) {
  std::string name(kind);
  name += kKindEnd;
  name += EscapedName(text);
  return name;
}

std::optional<std::string> TextOfNode(std::string_view kind, std::string_view node) {
  if (node.size() <= kind.size() || node.substr(0, kind.size()) != kind || node[kind.size()] != kKindEnd) {
    return std::nullopt;
  }
  return UnescapedName(node.substr(kind.size() + 1));
}

}  // namespace oxviewer
