/// \file
/// Values of a node that are numbers or the application's pointer: they are answered without memory.
#ifndef OXECAD_UIOX_DETAIL_WIRE_PLAINVALUES_H
#define OXECAD_UIOX_DETAIL_WIRE_PLAINVALUES_H

#include <uiox/TreeStore.h>
#include <uiox/detail/CodeIndex.h>
#include <uiox/detail/wire/Handlers.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace uiox::wire {

/// The number of an attribute's row, from 1; 0 for a code that is none.
constexpr std::size_t AttributeRow(int code) { return detail::IndexOf(CodeGroup::NodeAttribute).NumberOf(code); }
constexpr std::size_t AttributeRow(oxecad_ui::toolkit::NodeAttribute attribute) {
  return AttributeRow(static_cast<int>(attribute));
}

/// Attributes by their rows, one bit for each.
class AttributeRows {
 public:
  /// Those whose values have one of these letters.
  constexpr explicit AttributeRows(std::string_view letters) {
    std::uint32_t bit = 1;
    for (const CodeInfo& row : detail::kNodeAttributes) {
      bit <<= 1;
      if (letters.find(row.shape[0]) != letters.npos) bits_ |= bit;
    }
    static_assert(std::size(detail::kNodeAttributes) < 32);
  }
  constexpr bool Has(std::size_t row) const { return (bits_ >> row & 1) != 0; }

 private:
  std::uint32_t bits_ = 0;
};
inline constexpr AttributeRows kPlainAttributes{"iup"};
inline constexpr AttributeRows kTextAttributes{"sw"};

/// Writes a plain value of a node to its place.
inline void AnswerPlain(const TreeStore& store, NodeId node, std::size_t row, Slot place) {
  using oxecad_ui::toolkit::NodeAttribute;
  const auto answer = [place](auto value) { Answer<std::uint32_t>(place, static_cast<std::uint32_t>(value)); };
  switch (row) {
    case AttributeRow(NodeAttribute::UserData):
      return Answer<void*>(place, store.Table().UserData(node));
    case AttributeRow(NodeAttribute::CheckState):
      return answer(store.CheckState(node));
    case AttributeRow(NodeAttribute::PartlyChecked):
      return answer(store.PartlyChecked(node) ? 1 : 0);
    case AttributeRow(NodeAttribute::CheckSensitive):
      return answer(store.CheckSensitive(node) ? 1 : 0);
    case AttributeRow(NodeAttribute::FirstInt):
      return answer(store.FirstInt(node));
    case AttributeRow(NodeAttribute::Expanded):
      return answer(store.Expanded(node));
    case AttributeRow(NodeAttribute::ThirdInt):
      return answer(store.ThirdInt(node));
    default:
      break;  // texts and lists
  }
}

}  // namespace uiox::wire

#endif
