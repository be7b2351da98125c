#include <uiox/detail/WideCodec.h>

#include <cstring>

namespace uiox::detail {

namespace {

constexpr unsigned kLong = 3;  // in place of the kind: kind and length stand behind the head
constexpr std::size_t kShortest = (1u << 14) - 1;

/// What the head of a block says.
struct Head {
  unsigned kind;
  std::size_t length;
  const unsigned char* units;

  explicit Head(const void* block) {
    const auto* bytes = static_cast<const unsigned char*>(block);
    std::uint16_t head = 0;
    std::memcpy(&head, bytes, 2);
    kind = head & 3u;
    length = head >> 2;
    units = bytes + (kind == 2 ? 4 : 2);
    if (kind == kLong) {
      std::uint32_t long_length = 0;
      std::memcpy(&long_length, bytes + 4, 4);
      kind = bytes[2];
      length = long_length;
      units = bytes + 8;
    }
  }
};

std::size_t HeadBytes(unsigned kind, std::size_t length) {
  if (length >= kShortest) return 8;
  return kind == 2 ? 4 : 2;
}

template <class Unit>
void WriteUnits(std::wstring_view text, unsigned char* to) {
  Unit* units = reinterpret_cast<Unit*>(to);
  for (std::size_t i = 0; i < text.size(); ++i) units[i] = static_cast<Unit>(text[i]);
}

template <class Unit>
void ReadUnits(const unsigned char* from, std::size_t length, wchar_t* text) {
  const Unit* units = reinterpret_cast<const Unit*>(from);
  for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<wchar_t>(units[i]);
}

template <class Unit>
bool SameUnits(const unsigned char* from, std::wstring_view text) {
  const Unit* units = reinterpret_cast<const Unit*>(from);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (static_cast<wchar_t>(units[i]) != text[i]) return false;
  }
  return true;
}

}  // namespace

WideCodec::WideCodec(std::wstring_view text) : text_(text) {
  if (text.empty()) return;
  std::uint32_t all = 0;
  for (const wchar_t unit : text) all |= static_cast<std::uint32_t>(unit);
  kind_ = all < 0x100 ? 0 : all < 0x10000 ? 1 : 2;
  bytes_ = HeadBytes(kind_, text.size()) + (text.size() << kind_);
}

void WideCodec::Write(void* block) const {
  if (text_.empty()) return;
  auto* bytes = static_cast<unsigned char*>(block);
  const bool is_long = text_.size() >= kShortest;
  const auto head = static_cast<std::uint16_t>(is_long ? kLong : kind_ | text_.size() << 2);
  std::memcpy(bytes, &head, 2);
  if (is_long) {
    const auto length = static_cast<std::uint32_t>(text_.size());
    bytes[2] = static_cast<unsigned char>(kind_);
    std::memcpy(bytes + 4, &length, 4);
  }
  unsigned char* units = bytes + HeadBytes(kind_, text_.size());
  if (kind_ == 0) return WriteUnits<std::uint8_t>(text_, units);
  if (kind_ == 1) return WriteUnits<std::uint16_t>(text_, units);
  WriteUnits<std::uint32_t>(text_, units);
}

std::size_t WideCodec::Bytes(const void* block) {
  const Head head(block);
  return HeadBytes(head.kind, head.length) + (head.length << head.kind);
}

std::size_t WideCodec::Length(const void* block) { return Head(block).length; }

void WideCodec::Read(const void* block, wchar_t* text) {
  const Head head(block);
  if (head.kind == 0) return ReadUnits<std::uint8_t>(head.units, head.length, text);
  if (head.kind == 1) return ReadUnits<std::uint16_t>(head.units, head.length, text);
  ReadUnits<std::uint32_t>(head.units, head.length, text);
}

bool WideCodec::Equals(const void* block, std::wstring_view text) {
  const Head head(block);
  if (head.length != text.size()) return false;
  if (head.kind == 0) return SameUnits<std::uint8_t>(head.units, text);
  if (head.kind == 1) return SameUnits<std::uint16_t>(head.units, text);
  return SameUnits<std::uint32_t>(head.units, text);
}

}  // namespace uiox::detail
