#include <uicomps/tree/StringComparators.h>

#include <typeinfo>

#include <uicomps/tree/NaturalOrder.h>

namespace oxecad_ui {

namespace {

// A derived comparator may have overridden any slot; only of the library's own classes is it known what the slots say.
// Their type is asked for by its address: where it has a second one, the slots say the same, only slower.
template <class Comparator>
bool IsItself(const Comparator& comparator) {
  return &typeid(comparator) == &typeid(Comparator);
}

}  // namespace

bool CAlphaNumericWStringComparator::Compare(const std::wstring& a, const std::wstring& b) const {
  if (IsItself(*this)) [[likely]]
    return IsNaturallyBefore<true>(a.c_str(), b.c_str());
  return CompareCharacters(Chars(a), Chars(b), true);
}

wchar_t CAlphaNumericWStringComparator::ToUpper(wchar_t c) const { return FoldCase(c); }

const wchar_t* CAlphaNumericWStringComparator::Chars(const std::wstring& s) const { return s.c_str(); }

wchar_t CAlphaNumericWStringComparator::DigitLow() const { return L'0'; }

wchar_t CAlphaNumericWStringComparator::DigitHigh() const { return L'9'; }

wchar_t CAlphaNumericWStringComparator::Terminator() const { return L'\0'; }

bool CAlphaNumericWStringComparator::SignedNumbers() const { return true; }

wchar_t CAlphaNumericWStringComparator::MinusSign() const { return L'-'; }

bool CAlphaNumericWStringEcadComparator::Compare(const std::wstring& a, const std::wstring& b) const {
  if (IsItself(*this)) [[likely]]
    return IsNaturallyBefore<false>(a.c_str(), b.c_str());
  return CompareCharacters(Chars(a), Chars(b), false);
}

}  // namespace oxecad_ui
