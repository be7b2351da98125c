/// \file
/// Reads of one node, answered at once.
#ifndef OXECAD_UIOX_DETAIL_WIRE_QUICKREAD_H
#define OXECAD_UIOX_DETAIL_WIRE_QUICKREAD_H

#include <uiox/detail/CodeIndex.h>
#include <uiox/detail/FoundComponent.h>
#include <uiox/detail/Watchers.h>
#include <uiox/detail/wire/PlainValues.h>

#include <cstdarg>

namespace uiox::wire {

/// Whoever summarises or searches a tree asks each node for a number or two, or for a copy of a text: most calls there
/// are. A record of the call (Call.h) costs more than such an answer. This one reads the variable list itself and
/// answers when the list holds nothing else, with what the decoded call would be answered; the list of any other call is
/// read again from its start.
class QuickRead {
 public:
  /// Whether an operation reads `NodeAttribute`s. Where somebody watches the calls, each is decoded.
  static bool CanBe(int operation) {
    return (operation == kInquire || operation == kCopy) && detail::g_watchers.AreNone();
  }

  /// Reads what stands behind the operation.
  [[gnu::always_inline]] QuickRead(int operation, va_list* slots) : node_{va_arg(*slots, std::intptr_t)} {
    const detail::GroupIndex& attributes = detail::IndexOf(CodeGroup::NodeAttribute);
    for (int code = va_arg(*slots, int); code != 0; code = va_arg(*slots, int)) {
      const char letter = attributes.letters[attributes.NumberOf(code)];
      is_text_ = operation == kCopy && (letter == 's' || letter == 'w');
      if (count_ == kMost || !(is_text_ || IsPlain(letter))) return;
      values_[count_++] = {code, letter, {va_arg(*slots, std::intptr_t)}};
    }
    is_quick_ = count_ < 2 || (IsPlain(values_[0].letter) && !is_text_);
  }

  /// Whether there was nothing but plain values, or one text.
  bool IsQuick() const { return is_quick_; }

  [[gnu::always_inline]] int Answer(const char* device, const char* component) const {
    const Widget* widget = detail::g_found_component.Find(device, component);
    if (!widget) return kNoComponent;
    if (widget->Class() != WidgetClass::Tree) return kWrongComponent;
    const auto& tree = static_cast<const TreeWidget&>(*widget);
    const NodeId node = FindNode(tree, node_);
    if (node == kNoNode) return kUnknownNode;
    for (std::size_t i = 0; i < count_; ++i) {
      if (values_[i].place.word == 0) return kNoPlace;
    }
    if (is_text_) return HandCopy(tree, node, values_[0].code, values_[0].place);
    for (std::size_t i = 0; i < count_; ++i) {
      const auto attribute = static_cast<oxecad_ui::toolkit::NodeAttribute>(values_[i].code);
      AnswerPlain(values_[i].letter, values_[i].place, PlainValue(tree.Store(), node, attribute));
    }
    return kOk;
  }

 private:
  static constexpr int kInquire = static_cast<int>(oxecad_ui::toolkit::Operation::InquireNode);
  static constexpr int kCopy = static_cast<int>(oxecad_ui::toolkit::Operation::GetNode);
  static constexpr std::size_t kMost = 2;

  struct Value {
    int code;
    char letter;
    Slot place;
  };

  Slot node_;
  Value values_[kMost];
  std::size_t count_ = 0;
  bool is_text_ = false;
  bool is_quick_ = false;
};

}  // namespace uiox::wire

#endif
