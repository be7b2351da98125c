/// \file
/// The operations on the nodes of a tree.
#ifndef OXECAD_UI_TOOLKIT_NODECALLS_H
#define OXECAD_UI_TOOLKIT_NODECALLS_H

#include <uicomps/toolkit/Answer.h>

namespace oxecad_ui::wire {

using toolkit::Operation;

/// Performs an operation with its positional slots and an option list.
template <class... Positional, class... Options>
Result Perform(const Widget& widget, Operation operation, const std::tuple<Positional...>& positional,
               const Options&... options) {
  return {std::apply(
      [&](auto... slots) {
        return ui_do_operation(widget.device, widget.name, static_cast<int>(operation), slots..., kEnd);
      },
      std::tuple_cat(positional, options.Slots()...))};
}

/// What a new node carries beside its name, label, parent and type.
struct NodeExtras {
  const wchar_t* text2;
  int firstInt;
  int expanded;
  int thirdInt;
  void* data;
};

inline Result AddNode(const Widget& tree, const char* node, const wchar_t* label, const char* parent, const char* type,
                      const NodeExtras& extras) {
  return Perform(tree, Operation::AddNode, std::make_tuple(Slot(node), Slot(label), Slot(parent), Slot(type)),
                 kAddSecondText(extras.text2), kAddFirstInt(extras.firstInt), kAddExpanded(extras.expanded),
                 kAddThirdInt(extras.thirdInt), kAddUserData(extras.data));
}

inline Result AddNodeBefore(const Widget& tree, const char* node, const wchar_t* label, const char* parent,
                            const char* before, const char* type, const NodeExtras& extras) {
  return Perform(tree, Operation::AddNodeBefore,
                 std::make_tuple(Slot(node), Slot(label), Slot(parent), Slot(before), Slot(type)),
                 kAddSecondText(extras.text2), kAddFirstInt(extras.firstInt), kAddExpanded(extras.expanded),
                 kAddThirdInt(extras.thirdInt), kAddUserData(extras.data));
}

inline Result InsertNode(const Widget& tree, const char* node, const wchar_t* label, const char* parent,
                         const char* before, const char* type, const NodeExtras& extras) {
  return Perform(tree, Operation::InsertNode, std::make_tuple(Slot(before), Slot(node)), kNodeLabel(label),
                 kNodeParent(parent), kNodeType(type), kNodeSecondText(extras.text2), kNodeFirstInt(extras.firstInt),
                 kNodeExpanded(extras.expanded), kNodeHighlighted(extras.thirdInt), kNodeUserData(extras.data));
}

inline Result DeleteNode(const Widget& tree, const char* node) {
  return Perform(tree, Operation::DeleteNode, std::make_tuple(Slot(node)));
}

/// The one operation without an end: its three positional arguments are all there is.
inline Result MoveNode(const Widget& tree, const char* node, const char* parent, const char* before) {
  return {ui_do_operation(tree.device, tree.name, static_cast<int>(Operation::MoveNode), Slot(node), Slot(parent),
                          Slot(before))};
}

enum class ExpandDepth : int { Node = 0, Subtree = 1 };

inline Result ExpandNode(const Widget& tree, const char* node, ExpandDepth depth) {
  return Perform(tree, Operation::ExpandNode, std::make_tuple(Slot(node), Slot(depth)));
}

inline Result CollapseNode(const Widget& tree, const char* node) {
  return Perform(tree, Operation::CollapseNode, std::make_tuple(Slot(node)));
}

/// Sets attributes of a node, given as `attribute(value)`.
template <class... Options>
Result SetNode(const Widget& tree, const char* node, const Options&... options) {
  static_assert(kAreOf<NodeAttribute, Options...>, "an attribute of another table");
  return Perform(tree, Operation::SetNode, std::make_tuple(Slot(node)), options...);
}

/// Changes options of a node, given as `option(value)`.
template <class... Options>
Result ChangeNode(const Widget& tree, const char* node, const Options&... options) {
  static_assert(kAreOf<NodeOption, Options...>, "an attribute of another table");
  return Perform(tree, Operation::ChangeNode, std::make_tuple(Slot(node)), options...);
}

namespace detail {

template <class... Attributes>
auto AskNode(const Widget& tree, Operation operation, const char* node, Attributes... attributes) {
  return Ask(
      [&](auto... slots) {
        return ui_do_operation(tree.device, tree.name, static_cast<int>(operation), Slot(node), slots..., kEnd);
      },
      attributes...);
}

template <class Attribute>
Result GetNodeInto(typename Attribute::Value& place, const Widget& tree, const char* node, Attribute attribute) {
  return AskInto(
      place,
      [&](auto... slots) {
        return ui_do_operation(tree.device, tree.name, static_cast<int>(Operation::GetNode), Slot(node), slots...,
                               kEnd);
      },
      attribute);
}

template <class Attribute>
constexpr bool kNeedsRelease =
    !std::is_arithmetic_v<typename Attribute::Value> && !std::is_same_v<typename Attribute::Value, void*>;

}  // namespace detail

/// Reads plain values of a node. Strings and lists are lent as copies: read those with `LentText` and `LentNames`.
template <class... Attributes>
auto GetNode(const Widget& tree, const char* node, Attributes... attributes) {
  static_assert(kAreOf<NodeAttribute, Attributes...>, "an attribute of another table");
  static_assert((!detail::kNeedsRelease<Attributes> && ...), "a lent copy must be released");
  return detail::AskNode(tree, Operation::GetNode, node, attributes...);
}

/// Reads values of a node; strings and lists stay the toolkit's and are good until the node changes.
template <class... Attributes>
auto InquireNode(const Widget& tree, const char* node, Attributes... attributes) {
  static_assert(kAreOf<NodeAttribute, Attributes...>, "an attribute of another table");
  return detail::AskNode(tree, Operation::InquireNode, node, attributes...);
}

/// Reads options of a node.
template <class... Attributes>
auto QueryNode(const Widget& tree, const char* node, Attributes... attributes) {
  static_assert(kAreOf<NodeOption, Attributes...>, "an attribute of another table");
  return detail::AskNode(tree, Operation::QueryNode, node, attributes...);
}

/// The number of a node's children; 0 when it cannot be read. No list is handed out, so none is released.
inline int ChildCount(const Widget& tree, const char* node) {
  int count = 0;
  const Result read{ui_do_operation(tree.device, tree.name, static_cast<int>(Operation::GetNode), Slot(node),
                                    kNodeChildren.code, Slot(&count), Slot(nullptr), kEnd)};
  return read ? count : 0;
}

}  // namespace oxecad_ui::wire

#endif
