// What holds for all labels: the in-place loop, the walk through the virtual slots and a third, plain implementation
// agree, and the order is one that sorting may rely on.
#include <tests/support/Check.h>
#include <tests/uicomps/tree/ReferenceOrder.h>
#include <uicomps/tree/Comparators.h>

#include <algorithm>
#include <string>
#include <vector>

namespace oxecad_ui {
namespace {

using test_support::NaturalText;
using test_support::TextOf;

/// Changes nothing, but is derived: compared through the virtual slots.
struct SlotComparator : CAlphaNumericWStringComparator {
  wchar_t ToUpper(wchar_t c) const override { return CAlphaNumericWStringComparator::ToUpper(c); }
};
struct SlotEcadComparator : CAlphaNumericWStringEcadComparator {
  wchar_t ToUpper(wchar_t c) const override { return CAlphaNumericWStringEcadComparator::ToUpper(c); }
};

/// Two labels that have much in common, as labels side by side do.
rc::Gen<std::pair<std::wstring, std::wstring>> Neighbours() {
  return rc::gen::apply([](const std::wstring& common, const std::wstring& a,
                           const std::wstring& b) { return std::make_pair(common + a, common + b); },
                        TextOf(L"aA1-"), NaturalText(), NaturalText());
}

rc::Gen<std::wstring> SmallLabel() { return TextOf(L"0019-aAZ_/"); }

RC_GTEST_PROP(ComparatorProperties, SlotsAndInPlaceLoopAgree, ()) {
  const auto [a, b] = *Neighbours();
  RC_ASSERT(CAlphaNumericWStringComparator().Compare(a, b) == SlotComparator().Compare(a, b));
  RC_ASSERT(CAlphaNumericWStringEcadComparator().Compare(a, b) == SlotEcadComparator().Compare(a, b));
}

RC_GTEST_PROP(ComparatorProperties, BothAgreeWithThePlainImplementation, ()) {
  const auto [a, b] = *Neighbours();
  RC_ASSERT(CAlphaNumericWStringComparator().Compare(a, b) == ReferenceBefore(a, b, true));
  RC_ASSERT(CAlphaNumericWStringEcadComparator().Compare(a, b) == ReferenceBefore(a, b, false));
  RC_ASSERT(SlotComparator().Compare(a, b) == ReferenceBefore(a, b, true));
  RC_ASSERT(SlotEcadComparator().Compare(a, b) == ReferenceBefore(a, b, false));
}

RC_GTEST_PROP(ComparatorProperties, NothingIsBeforeItself, ()) {
  const auto a = *NaturalText();
  RC_ASSERT(!CAlphaNumericWStringComparator().Compare(a, a));
  RC_ASSERT(!CAlphaNumericWStringEcadComparator().Compare(a, a));
}

RC_GTEST_PROP(ComparatorProperties, OfTwoLabelsOneAtMostIsFirst, ()) {
  const auto [a, b] = *Neighbours();
  RC_ASSERT(!(CAlphaNumericWStringComparator().Compare(a, b) && CAlphaNumericWStringComparator().Compare(b, a)));
  RC_ASSERT(
      !(CAlphaNumericWStringEcadComparator().Compare(a, b) && CAlphaNumericWStringEcadComparator().Compare(b, a)));
}

template <class Comparator>
void CheckTransitivity() {
  const Comparator comparator;
  const auto a = *SmallLabel();
  const auto b = *SmallLabel();
  const auto c = *SmallLabel();
  const auto equivalent = [&](const std::wstring& x, const std::wstring& y) {
    return !comparator.Compare(x, y) && !comparator.Compare(y, x);
  };
  if (comparator.Compare(a, b) && comparator.Compare(b, c)) RC_ASSERT(comparator.Compare(a, c));
  if (equivalent(a, b) && equivalent(b, c)) RC_ASSERT(equivalent(a, c));
  if (equivalent(a, b) && comparator.Compare(b, c)) RC_ASSERT(comparator.Compare(a, c));
}

RC_GTEST_PROP(ComparatorProperties, PlainOrderIsTransitive, ()) { CheckTransitivity<CAlphaNumericWStringComparator>(); }
RC_GTEST_PROP(ComparatorProperties, EcadOrderIsTransitive, ()) {
  CheckTransitivity<CAlphaNumericWStringEcadComparator>();
}

RC_GTEST_PROP(ComparatorProperties, AsciiCaseMakesNoDifference, ()) {
  const auto [a, b] = *Neighbours();
  std::wstring upper = a;
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](wchar_t c) { return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c; });
  RC_ASSERT(CAlphaNumericWStringComparator().Compare(a, b) == CAlphaNumericWStringComparator().Compare(upper, b));
  RC_ASSERT(CAlphaNumericWStringComparator().Compare(b, a) == CAlphaNumericWStringComparator().Compare(b, upper));
}

RC_GTEST_PROP(ComparatorProperties, SortingGivesWhatEveryPairSays, ()) {
  auto labels = *rc::gen::container<std::vector<std::wstring>>(SmallLabel());
  const CAlphaNumericWStringComparator comparator;
  std::sort(labels.begin(), labels.end(), [&](const auto& a, const auto& b) { return comparator.Compare(a, b); });
  for (std::size_t i = 0; i < labels.size(); ++i) {
    for (std::size_t j = i + 1; j < labels.size(); ++j) RC_ASSERT(!comparator.Compare(labels[j], labels[i]));
  }
}

}  // namespace
}  // namespace oxecad_ui
