/// \file
/// The built-in toolkit's answers, by function and operation. Each checks everything first: a refused call has changed
/// nothing and has written nothing.
#ifndef OXECAD_UIOX_DETAIL_WIRE_HANDLERS_H
#define OXECAD_UIOX_DETAIL_WIRE_HANDLERS_H

#include <uiox/Call.h>
#include <uiox/Suite.h>
#include <uiox/detail/NodeTable.h>
#include <uiox/detail/wire/Status.h>

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace uiox::wire {

/// What the built-in toolkit answers to any call.
int Handle(Call& call);

int Operate(Widget& widget, const Call& call);

Status MoveAndResize(Widget& widget, const Call& call);
Status GetSize(Widget& widget, const Call& call);
Status GetPosition(Widget& widget, const Call& call);
Status UpdateLayout(Widget& widget);
Status SelectText(Widget& widget, const Call& call);

Status AddNode(TreeWidget& tree, const Call& call);
Status InsertNode(TreeWidget& tree, const Call& call);
Status DeleteNode(TreeWidget& tree, const Call& call);
Status MoveNode(TreeWidget& tree, const Call& call);
Status ExpandNode(TreeWidget& tree, const Call& call);
Status CollapseNode(TreeWidget& tree, const Call& call);

Status ChangeNode(TreeWidget& tree, const Call& call);
Status QueryNode(TreeWidget& tree, const Call& call);
Status SetNode(TreeWidget& tree, const Call& call);
Status InquireNode(TreeWidget& tree, const Call& call);
Status GetNode(TreeWidget& tree, const Call& call);
/// A copy of a text of a node, to be owned by the caller.
Status HandCopy(const TreeWidget& tree, NodeId node, std::size_t row, Slot place);
/// Frees what a node attribute handed out.
Status Release(const Option& option);

Status CreateControl(TreeWidget& tree, const Call& call);
Status DestroyControl(TreeWidget& tree, const Call& call);
Status SetCell(TreeWidget& tree, const Call& call);
Status GetCell(TreeWidget& tree, const Call& call);
Status SetCellControl(TreeWidget& tree, const Call& call);
Status GetCellControl(TreeWidget& tree, const Call& call);

Status DefineNodeType(TreeWidget& tree, const Call& call);
Status NodeTypeExists(TreeWidget& tree, const Call& call);

Status Retrieve(Widget& widget, const Call& call);
Status Modify(Widget& widget, const Call& call);

int HandleDevice(const Call& call);
Status HandleAction(Widget& widget, const Call& call);
Status GlobalInquire(const Call& call);
Status LoadImage(const Call& call);
Status DefineImage(const Call& call);

// --- What they share -------------------------------------------------------------------------------------------------

/// The node that a slot names, or `kNoNode`.
inline NodeId FindNode(const TreeWidget& tree, Slot slot) {
  return slot.Text() ? tree.Store().Table().FindAgain(slot.Text()) : kNoNode;
}
/// The parent that a slot names; null and the empty name mean the top level.
NodeId FindParent(const TreeWidget& tree, Slot slot);

inline std::wstring_view WideOf(Slot slot) {
  return slot.Wide() ? std::wstring_view(slot.Wide()) : std::wstring_view();
}
inline std::string_view TextOf(Slot slot) { return slot.Text() ? std::string_view(slot.Text()) : std::string_view(); }
/// The number of the node type that a slot names.
inline TypeId TypeOf(Slot slot) { return Suite::Get().Types().Intern(TextOf(slot)); }

/// Whether every answer has a place to go to. A list's array may be left out.
inline bool HasPlaces(const Call& call) {
  for (const Option& option : call) {
    if (option.value.word == 0) return false;
  }
  return true;
}
/// A list that the caller gives. False for a negative count, a missing array or a null in it.
bool ReadNames(const Option& option, std::vector<std::string>& names);

/// Writes an answer; the address has been checked. The place may be of another pointer or integer type of that size.
template <class T>
void Answer(Slot place, T value) {
  std::memcpy(place.Pointer(), &value, sizeof value);
}

}  // namespace uiox::wire

#endif
