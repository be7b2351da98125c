/// \file
/// Natural order: runs of digits compare by value, all else character by character without regard to ASCII case.
#ifndef OXECAD_UI_TREE_STRINGCOMPARATORS_H
#define OXECAD_UI_TREE_STRINGCOMPARATORS_H

#include <cstdint>
#include <string>

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// Compares two values. A comparator itself always compares ascending; `IsAscending` tells its user in which order to
/// hand over the two values.
template <class T>
class CComparator {
 public:
  CComparator() = default;
  CComparator(const CComparator&) = default;
  CComparator& operator=(const CComparator&) = default;
  virtual ~CComparator() = default;

  /// Sets what `IsAscending` tells; `Compare` stays as it is.
  virtual void SetAscending(bool value) { ascending = value; }
  /// Whether smaller values go first.
  virtual bool IsAscending() const { return ascending; }
  /// Whether `a` sorts strictly before `b`.
  virtual bool Compare(const T& a, const T& b) const = 0;

  bool ascending = true;  ///< what `IsAscending` tells
};

/// Natural order over a string type `S` of characters `C`, written once in terms of virtual slots: a derived comparator
/// changes the digits, the terminator, the folding of case or the sign by overriding a slot.
///
/// A run of digits is a signed 32-bit number that wraps; of equal numbers the one with fewer leading zeros sorts first.
/// With signed numbers, a minus sign before digits on both sides turns the order of the numbers round. Characters
/// compare as unsigned 16-bit values. A proper prefix sorts first. Linear in the length of the shorter string; compares
/// in place.
template <class S, class C>
class CAlphaNumericComparator : public CComparator<S> {
 public:
  /// Compares the characters that `Chars` gives, with regard to the sign of numbers.
  bool Compare(const S& a, const S& b) const override { return CompareCharacters(Chars(a), Chars(b), true); }

  /// For a derived comparator's own use; nothing calls it.
  virtual void Hook() {}
  /// Folds a character for the comparison; one that is not folded is given back.
  virtual C ToUpper(C c) const = 0;
  /// The characters of a string, up to and including the terminator. May be null.
  virtual const C* Chars(const S& s) const = 0;
  /// The first of the consecutive digits, the one that counts as zero.
  virtual C DigitLow() const = 0;
  /// The last of the consecutive digits.
  virtual C DigitHigh() const = 0;
  /// The character that ends a string.
  virtual C Terminator() const = 0;
  /// Whether a minus sign before digits on both sides turns the order of the numbers round.
  virtual bool SignedNumbers() const = 0;
  /// The sign that `SignedNumbers` is about.
  virtual C MinusSign() const = 0;

 protected:
  /// The comparison, with or without regard to the sign of numbers.
  bool CompareCharacters(const C* a, const C* b, bool withSign) const;

 private:
  struct Number {
    std::int32_t value;
    std::size_t zeros;
  };

  bool IsDigit(C c) const { return DigitLow() <= c && c <= DigitHigh(); }
  Number TakeNumber(const C*& text) const;
};

template <class S, class C>
bool CAlphaNumericComparator<S, C>::CompareCharacters(const C* a, const C* b, bool withSign) const {
  if (a == nullptr) return b != nullptr && *b != Terminator();
  if (b == nullptr) return false;
  bool negative = false;
  for (;;) {
    if (*a == Terminator()) return *b != Terminator();
    if (*b == Terminator()) return false;
    if (IsDigit(*a) && IsDigit(*b)) {
      const Number left = TakeNumber(a);
      const Number right = TakeNumber(b);
      if (left.value != right.value) return (left.value < right.value) != negative;
      if (left.zeros != right.zeros) return (left.zeros < right.zeros) != negative;
      negative = false;
      continue;
    }
    const auto left = static_cast<std::uint16_t>(ToUpper(*a));
    const auto right = static_cast<std::uint16_t>(ToUpper(*b));
    if (left != right) return left < right;
    if (withSign && SignedNumbers() && *a == MinusSign() && IsDigit(a[1]) && IsDigit(b[1])) negative = true;
    ++a;
    ++b;
  }
}

template <class S, class C>
typename CAlphaNumericComparator<S, C>::Number CAlphaNumericComparator<S, C>::TakeNumber(const C*& text) const {
  std::size_t zeros = 0;
  for (; *text == DigitLow(); ++text) ++zeros;
  std::uint32_t value = 0;  // wraps without being undefined
  for (; *text != Terminator() && IsDigit(*text); ++text) {
    value = value * 10u + static_cast<std::uint32_t>(*text - DigitLow());
  }
  return {static_cast<std::int32_t>(value), zeros};
}

/// Natural order of wide strings, numbers with their sign: "x-5" before "x-3".
class OXECAD_UI_EXPORT CAlphaNumericWStringComparator : public CAlphaNumericComparator<std::wstring, wchar_t> {
 public:
  bool Compare(const std::wstring& a, const std::wstring& b) const override;
  /// Folds 'a' to 'z' and nothing else.
  wchar_t ToUpper(wchar_t c) const override;
  const wchar_t* Chars(const std::wstring& s) const override;
  wchar_t DigitLow() const override;
  wchar_t DigitHigh() const override;
  wchar_t Terminator() const override;
  bool SignedNumbers() const override;
  wchar_t MinusSign() const override;
};

/// Natural order of wide strings as names of an electronic design need it: a minus sign is a character like any other,
/// so "x-3" sorts before "x-5".
class OXECAD_UI_EXPORT CAlphaNumericWStringEcadComparator : public CAlphaNumericWStringComparator {
 public:
  bool Compare(const std::wstring& a, const std::wstring& b) const override;
};

}  // namespace oxecad_ui

#endif
