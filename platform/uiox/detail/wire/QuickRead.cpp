#include <uiox/detail/FoundComponent.h>
#include <uiox/detail/wire/QuickRead.h>

namespace uiox::wire {

namespace {

/// Finds the tree and the node, and has `answer` called with them.
template <class Answer>
[[gnu::always_inline]] inline int OfNode(const char* device, const char* component, Slot named, const Answer& answer) {
  const Widget* widget = detail::g_found_component.Find(device, component);
  if (!widget) return kNoComponent;
  if (widget->Class() != WidgetClass::Tree) return kWrongComponent;
  const auto& tree = static_cast<const TreeWidget&>(*widget);
  const NodeId node = FindNode(tree, named);
  return node != kNoNode ? answer(tree, node) : kUnknownNode;
}

}  // namespace

int AnswerPlainValue(const char* device, const char* component, Slot named, std::size_t row, Slot place) {
  return OfNode(device, component, named, [=](const TreeWidget& tree, NodeId node) {
    if (place.word == 0) return kNoPlace;
    AnswerPlain(tree.Store(), node, row, place);
    return kOk;
  });
}

int AnswerPlainValues(const char* device, const char* component, Slot named, std::size_t first_row, Slot first_place,
                      std::size_t second_row, Slot second_place) {
  return OfNode(device, component, named, [=](const TreeWidget& tree, NodeId node) {
    if (first_place.word == 0 || second_place.word == 0) return kNoPlace;
    AnswerPlain(tree.Store(), node, first_row, first_place);
    AnswerPlain(tree.Store(), node, second_row, second_place);
    return kOk;
  });
}

int AnswerText(const char* device, const char* component, Slot named, std::size_t row, Slot place) {
  return OfNode(device, component, named, [=](const TreeWidget& tree, NodeId node) {
    return place.word != 0 ? HandCopy(tree, node, row, place) : kNoPlace;
  });
}

}  // namespace uiox::wire
