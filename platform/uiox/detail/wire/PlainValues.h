/// \file
/// Values of a node that are numbers or the application's pointer: they are answered without memory.
#ifndef OXECAD_UIOX_DETAIL_WIRE_PLAINVALUES_H
#define OXECAD_UIOX_DETAIL_WIRE_PLAINVALUES_H

#include <uiox/TreeStore.h>
#include <uiox/detail/wire/Handlers.h>

#include <cstdint>

namespace uiox::wire {

/// Whether a letter of the shapes, in either case, is that of a plain value.
inline bool IsPlain(char letter) {
  const int lower_case = letter | 0x20;
  return lower_case == 'i' || lower_case == 'u' || lower_case == 'p';
}

/// A plain value of a node, as it fills a slot; 0 for texts and lists.
inline std::intptr_t PlainValue(const TreeStore& store, NodeId node, oxecad_ui::toolkit::NodeAttribute attribute) {
  using oxecad_ui::toolkit::NodeAttribute;
  switch (attribute) {
    case NodeAttribute::UserData:
      return reinterpret_cast<std::intptr_t>(store.Table().UserData(node));
    case NodeAttribute::CheckState:
      return store.CheckState(node);
    case NodeAttribute::PartlyChecked:
      return store.PartlyChecked(node) ? 1 : 0;
    case NodeAttribute::CheckSensitive:
      return store.CheckSensitive(node) ? 1 : 0;
    case NodeAttribute::FirstInt:
      return store.FirstInt(node);
    case NodeAttribute::Expanded:
      return store.Expanded(node);
    case NodeAttribute::ThirdInt:
      return store.ThirdInt(node);
    default:
      return 0;
  }
}

/// Writes it to where a letter of that kind wants it.
inline void AnswerPlain(char letter, Slot place, std::intptr_t value) {
  if ((letter | 0x20) == 'p') return Answer<std::intptr_t>(place, value);
  Answer<std::uint32_t>(place, static_cast<std::uint32_t>(value));
}

}  // namespace uiox::wire

#endif
