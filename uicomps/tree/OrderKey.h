/// \file
/// The beginning of a label as bytes whose order is the natural order, so that most comparisons of a sort look at two
/// numbers and not at the labels.
#ifndef OXECAD_UI_TREE_ORDERKEY_H
#define OXECAD_UI_TREE_ORDERKEY_H

#include <array>
#include <cstddef>
#include <cstdint>

#include <uicomps/tree/NaturalOrder.h>

namespace oxecad_ui {

/// The first 16 bytes of a label's order. Of labels whose keys differ, the one with the smaller key sorts first; equal
/// keys say nothing, and the labels must be compared.
struct OrderKey {
  std::uint64_t high = 0;
  std::uint64_t low = 0;

  friend constexpr bool operator==(const OrderKey& a, const OrderKey& b) { return a.high == b.high && a.low == b.low; }
  friend constexpr bool operator<(const OrderKey& a, const OrderKey& b) {
    return a.high != b.high ? a.high < b.high : a.low < b.low;
  }
};

namespace detail {

/// Collects the bytes of a key, the most significant first. What does not fit is dropped.
class OrderKeyBytes {
 public:
  static constexpr unsigned kSize = 16;

  constexpr bool IsFull() const { return m_count >= kSize; }
  constexpr void Put(std::uint32_t byte) {
    if (IsFull()) return;
    std::uint64_t& half = m_count < kSize / 2 ? m_key.high : m_key.low;
    half |= static_cast<std::uint64_t>(byte & 0xFFu) << (56u - 8u * (m_count % 8u));
    ++m_count;
  }
  constexpr OrderKey Key() const { return m_key; }

 private:
  OrderKey m_key;
  unsigned m_count = 0;
};

/// A number sorts among characters as its digits do: its first byte lies between '0' and '9'. That byte tells negative
/// values (numbers wrap) and the length of the others; the value follows, then the count of leading zeros. Under a
/// minus sign that counts, all of it is turned round. Gives false when nothing behind it can be told any more.
constexpr bool PutNumber(OrderKeyBytes& bytes, const wchar_t*& text, bool reversed) {
  const wchar_t* const start = text;
  while (*text == L'0') ++text;
  const auto zeros = text - start;
  std::uint32_t value = 0;
  for (; IsDecimalDigit(*text); ++text) value = value * 10u + DigitValue(*text);

  const bool negative = (value & 0x80000000u) != 0;
  std::uint32_t size = 0;
  for (std::uint32_t rest = value; rest != 0; rest >>= 8) ++size;
  const std::uint32_t rank = negative ? 0u : 1u + size;
  const std::uint32_t flip = reversed ? 0xFFu : 0u;
  bytes.Put(reversed ? U'9' - rank : U'0' + rank);
  for (std::uint32_t index = size; index > 0; --index) bytes.Put((value >> (8u * (index - 1u))) ^ flip);
  constexpr std::ptrdiff_t kMostZeros = 0xFF;
  bytes.Put(static_cast<std::uint32_t>(zeros < kMostZeros ? zeros : kMostZeros) ^ flip);
  return zeros < kMostZeros;
}

}  // namespace detail

/// The key of a label in the order of `IsNaturallyBefore<Signed>`. Holds for UTF-16 code units; a character beyond
/// U+FFFF in one element, which a label should not have, ends the key and clears `holds`: such a key tells nothing.
template <bool Signed>
constexpr OrderKey MakeOrderKey(const wchar_t* text, bool* holds = nullptr) {
  constexpr std::uint32_t kWide = 0x80u;  // stands before the two bytes of what is no ASCII character
  detail::OrderKeyBytes bytes;
  bool afterSign = false;
  while (*text != L'\0' && !bytes.IsFull()) {
    if (IsDecimalDigit(*text)) {
      if (!detail::PutNumber(bytes, text, afterSign)) break;
      afterSign = false;
      continue;
    }
    const auto unit = static_cast<std::uint32_t>(FoldCase(*text));
    if (unit > 0xFFFFu) {
      if (holds != nullptr) *holds = false;
      break;
    }
    if (unit >= kWide) {
      bytes.Put(kWide);
      bytes.Put(unit >> 8);
    }
    bytes.Put(unit);
    if constexpr (Signed) afterSign = *text == L'-';
    ++text;
  }
  return bytes.Key();
}

}  // namespace oxecad_ui

#endif
