/// \file
/// Natural order of zero-terminated wide strings, in one loop without virtual slots: what the library's own comparators
/// say, at the speed of the memory.
#ifndef OXECAD_UI_TREE_NATURALORDER_H
#define OXECAD_UI_TREE_NATURALORDER_H

#include <cstdint>

namespace oxecad_ui {

constexpr wchar_t FoldCase(wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c; }

constexpr bool IsDecimalDigit(wchar_t c) { return static_cast<std::uint32_t>(c) - U'0' <= 9u; }

namespace detail {

/// Compares two runs of digits and moves both texts behind them: negative, 0 or positive as the left number is smaller,
/// the same with as many leading zeros, or greater. Values wrap at 32 bits.
constexpr int CompareNumbers(const wchar_t*& a, const wchar_t*& b) {
  const wchar_t* const startOfA = a;
  const wchar_t* const startOfB = b;
  while (*a == L'0') ++a;
  while (*b == L'0') ++b;
  const auto zerosOfA = a - startOfA;
  const auto zerosOfB = b - startOfB;
  std::uint32_t valueOfA = 0;
  std::uint32_t valueOfB = 0;
  for (; IsDecimalDigit(*a); ++a) valueOfA = valueOfA * 10u + (static_cast<std::uint32_t>(*a) - U'0');
  for (; IsDecimalDigit(*b); ++b) valueOfB = valueOfB * 10u + (static_cast<std::uint32_t>(*b) - U'0');
  if (valueOfA != valueOfB) {
    return static_cast<std::int32_t>(valueOfA) < static_cast<std::int32_t>(valueOfB) ? -1 : 1;
  }
  return zerosOfA == zerosOfB ? 0 : (zerosOfA < zerosOfB ? -1 : 1);
}

}  // namespace detail

/// Whether `a` sorts strictly before `b`. With `Signed`, a minus sign before digits on both sides turns the order of
/// the numbers round.
template <bool Signed>
constexpr bool IsNaturallyBefore(const wchar_t* a, const wchar_t* b) {
  for (;;) {
    const wchar_t left = *a;
    const wchar_t right = *b;
    bool negative = false;
    if (!IsDecimalDigit(left) || !IsDecimalDigit(right)) {
      if (left != right) {
        const auto upperLeft = static_cast<std::uint16_t>(FoldCase(left));
        const auto upperRight = static_cast<std::uint16_t>(FoldCase(right));
        // The end is less than anything else, but as 16 bits it may look the same.
        if (upperLeft != upperRight) return upperLeft < upperRight;
        if (left == L'\0' || right == L'\0') return left == L'\0';
      } else if (left == L'\0') {
        return false;
      }
      ++a;
      ++b;
      // A sign counts only for the number right behind it, so it never has to be remembered any further.
      if constexpr (Signed) negative = left == L'-';
      if (!negative || !IsDecimalDigit(*a) || !IsDecimalDigit(*b)) continue;
    }
    const int order = detail::CompareNumbers(a, b);
    if (order != 0) return (order < 0) != negative;
  }
}

}  // namespace oxecad_ui

#endif
