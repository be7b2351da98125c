#include <fuzz/Input.h>
#include <uicomps/tree/Comparators.h>

#include <utility>

// Both orders are strict weak orders, whatever the labels hold: any three of them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const oxecad_ui::CAlphaNumericWStringComparator plain;
  const oxecad_ui::CAlphaNumericWStringEcadComparator ecad;
  const std::size_t length = size / 6;
  const std::wstring labels[] = {input.Units(length), input.Units(length), input.Units(length)};
  for (const oxecad_ui::CComparator<std::wstring>* order :
       {static_cast<const oxecad_ui::CComparator<std::wstring>*>(&plain),
        static_cast<const oxecad_ui::CComparator<std::wstring>*>(&ecad)}) {
    const auto before = [&](int a, int b) { return order->Compare(labels[a], labels[b]); };
    const auto equal = [&](int a, int b) { return !before(a, b) && !before(b, a); };
    for (int a = 0; a < 3; ++a) {
      fuzz::Require(!before(a, a));
      for (int b = 0; b < 3; ++b) {
        fuzz::Require(!(before(a, b) && before(b, a)));
        for (int c = 0; c < 3; ++c) {
          if (before(a, b) && before(b, c)) fuzz::Require(before(a, c));
          if (equal(a, b) && equal(b, c)) fuzz::Require(equal(a, c));
        }
      }
    }
  }
  return 0;
}
