/// \file
/// The natural order written down a third time, as plainly as it can be said: a label is cut into tokens, tokens are
/// compared one by one. It shares neither structure nor code with the library.
#ifndef OXECAD_TESTS_UICOMPS_TREE_REFERENCEORDER_H
#define OXECAD_TESTS_UICOMPS_TREE_REFERENCEORDER_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace oxecad_ui {

struct ReferenceNumber {
  std::size_t zeros = 0;
  std::int32_t value = 0;
  std::size_t length = 0;
};

inline bool IsReferenceDigit(const std::wstring& text, std::size_t at) {
  return at < text.size() && text[at] >= L'0' && text[at] <= L'9';
}

inline ReferenceNumber ReferenceNumberAt(const std::wstring& text, std::size_t at) {
  std::size_t end = at;
  while (IsReferenceDigit(text, end)) ++end;
  const std::wstring digits = text.substr(at, end - at);
  ReferenceNumber number;
  number.length = digits.size();
  number.zeros = digits.find_first_not_of(L'0');
  if (number.zeros == std::wstring::npos) number.zeros = digits.size();
  std::uint64_t value = 0;
  for (const wchar_t digit : digits) value = (value * 10 + static_cast<std::uint64_t>(digit - L'0')) % (1ull << 32);
  number.value = static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
  return number;
}

/// Whether `a` stands before `b`. Texts end at their first zero unit.
inline bool ReferenceBefore(std::wstring a, std::wstring b, bool signed_numbers) {
  a.resize(std::min(a.size(), a.find(L'\0')));
  b.resize(std::min(b.size(), b.find(L'\0')));
  std::size_t i = 0;
  std::size_t j = 0;
  bool behind_minus = false;
  while (i < a.size() && j < b.size()) {
    if (IsReferenceDigit(a, i) && IsReferenceDigit(b, j)) {
      const ReferenceNumber x = ReferenceNumberAt(a, i);
      const ReferenceNumber y = ReferenceNumberAt(b, j);
      if (x.value != y.value) return (x.value < y.value) != behind_minus;
      if (x.zeros != y.zeros) return (x.zeros < y.zeros) != behind_minus;
      i += x.length;
      j += y.length;
      behind_minus = false;
      continue;
    }
    const auto folded = [](wchar_t c) { return c >= L'a' && c <= L'z' ? c - (L'a' - L'A') : c; };
    if (folded(a[i]) != folded(b[j])) return folded(a[i]) < folded(b[j]);
    behind_minus = signed_numbers && a[i] == L'-' && IsReferenceDigit(a, i + 1) && IsReferenceDigit(b, j + 1);
    ++i;
    ++j;
  }
  return i == a.size() && j < b.size();
}

}  // namespace oxecad_ui

#endif
