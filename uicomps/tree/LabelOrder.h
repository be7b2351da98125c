/// \file
/// Sorting many labels at once.
#ifndef OXECAD_UI_TREE_LABELORDER_H
#define OXECAD_UI_TREE_LABELORDER_H

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include <uicomps/tree/NaturalOrder.h>
#include <uicomps/tree/OrderKey.h>

namespace oxecad_ui {

/// Sorts elements by label in the order of `IsNaturallyBefore<Signed>`; those of equal labels stay in their order.
/// `labelOf(element)` gives a label that stays where it is meanwhile.
template <bool Signed, class Element, class LabelOf>
void SortByLabel(std::vector<Element>& elements, const LabelOf& labelOf) {
  struct Entry {
    OrderKey key;
    const wchar_t* label;
    std::size_t index;
  };
  std::vector<Entry> entries;
  entries.reserve(elements.size());
  bool keysHold = true;
  constexpr std::size_t kAhead = 8;  // labels lie anywhere in the memory, which takes its time
  for (std::size_t index = 0; index < elements.size(); ++index) {
    if (index + kAhead < elements.size()) __builtin_prefetch(labelOf(elements[index + kAhead]));
    const wchar_t* const label = labelOf(elements[index]);
    entries.push_back({MakeOrderKey<Signed>(label, &keysHold), label, index});
  }
  if (!keysHold) {
    for (Entry& entry : entries) entry.key = OrderKey();
  }
  std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
    return a.key == b.key ? IsNaturallyBefore<Signed>(a.label, b.label) : a.key < b.key;
  });
  std::vector<Element> sorted;
  sorted.reserve(elements.size());
  for (const Entry& entry : entries) sorted.push_back(std::move(elements[entry.index]));
  elements.swap(sorted);
}

}  // namespace oxecad_ui

#endif
