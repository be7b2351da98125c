/// \file
/// Natural order of zero-terminated wide strings, in one loop without virtual slots: what the library's own comparators
/// say, at the speed of the memory.
#ifndef OXECAD_UI_TREE_NATURALORDER_H
#define OXECAD_UI_TREE_NATURALORDER_H

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace oxecad_ui {

/// Without a branch: whether a letter is small is what a processor can not foretell.
constexpr wchar_t FoldCase(wchar_t c) {
  const std::uint32_t small = static_cast<std::uint32_t>(c) - U'a' <= 25u;
  return static_cast<wchar_t>(static_cast<std::uint32_t>(c) - (small << 5));
}

/// What the digit counts; more than 9 for any other character.
constexpr std::uint32_t DigitValue(wchar_t c) { return static_cast<std::uint32_t>(c) - U'0'; }

constexpr bool IsDecimalDigit(wchar_t c) { return DigitValue(c) <= 9u; }

namespace detail {

/// Compares two runs of digits and moves both texts behind them: negative, 0 or positive as the left number is smaller,
/// the same with as many leading zeros, or greater. Values wrap at 32 bits.
constexpr int CompareNumbers(const wchar_t*& a, const wchar_t*& b) {
  std::ptrdiff_t moreZeros = 0;  // in the left text
  for (; *a == L'0'; ++a) ++moreZeros;
  for (; *b == L'0'; ++b) --moreZeros;
  std::uint32_t valueOfA = 0;
  std::uint32_t valueOfB = 0;
  // Numbers beside each other in an order are mostly of one length, and are read in one go.
  for (; IsDecimalDigit(*a) && IsDecimalDigit(*b); ++a, ++b) {
    valueOfA = valueOfA * 10u + DigitValue(*a);
    valueOfB = valueOfB * 10u + DigitValue(*b);
  }
  for (; IsDecimalDigit(*a); ++a) valueOfA = valueOfA * 10u + DigitValue(*a);
  for (; IsDecimalDigit(*b); ++b) valueOfB = valueOfB * 10u + DigitValue(*b);
  if (valueOfA != valueOfB) {
    return static_cast<std::int32_t>(valueOfA) < static_cast<std::int32_t>(valueOfB) ? -1 : 1;
  }
  return moreZeros == 0 ? 0 : (moreZeros < 0 ? -1 : 1);
}

}  // namespace detail

/// Whether `a` sorts strictly before `b`. With `Signed`, a minus sign before digits on both sides turns the order of
/// the numbers round.
template <bool Signed>
constexpr bool IsNaturallyBefore(const wchar_t* a, const wchar_t* b) {
  [[maybe_unused]] wchar_t before = L'\0';  // what both texts have before the place that is looked at
  for (;;) {
    const wchar_t left = *a;
    const wchar_t right = *b;
    if (left == right && !IsDecimalDigit(left)) {
      if (left == L'\0') return false;
    } else if (std::max(DigitValue(left), DigitValue(right)) <= 9u) {
      const bool negative = Signed && before == L'-';
      const int order = detail::CompareNumbers(a, b);
      if (order != 0) return (order < 0) != negative;
      continue;
    } else {
      const auto upperLeft = static_cast<std::uint16_t>(FoldCase(left));
      const auto upperRight = static_cast<std::uint16_t>(FoldCase(right));
      if (upperLeft != upperRight) return upperLeft < upperRight;
      // The end is less than anything else, but as 16 bits it may look the same.
      if (left == L'\0' || right == L'\0') return left == L'\0';
    }
    if constexpr (Signed) before = left;
    ++a;
    ++b;
  }
}

}  // namespace oxecad_ui

#endif
