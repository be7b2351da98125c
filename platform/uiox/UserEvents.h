/// \file
/// What a user does, as changes of state followed by the callbacks: the one way in for fronts and tests.
///
/// Each function sets what the event sets (the attributes of the current event, the state), tells the observers, and
/// then calls the callbacks of its reason with their client data and value, in the order of registration. It gives
/// false and does nothing where the user could not have done it: the component is not sensitive, the node or cell is
/// not there, the check box is locked. Visibility is not asked for. Callbacks may change anything, the component's end
/// included: touch nothing by pointer or id afterwards that a callback may have ended.
#ifndef OXECAD_UIOX_USEREVENTS_H
#define OXECAD_UIOX_USEREVENTS_H

#include <uiox/Export.h>
#include <uiox/NodeId.h>
#include <uiox/TreeWidget.h>
#include <uiox/Widget.h>

#include <string_view>
#include <vector>

namespace uiox::user {

/// Attribute 267 while a select callback runs.
enum SelectionKind : int {
  kNewSelection = 0,  ///< a new selection replaces the old one
  kExtended = 1,      ///< a range
  kOneAtATime = 2     ///< one node was taken in or out; the current node (53) is that node
};

// --- Trees -----------------------------------------------------------------------------------------------------------

/// Double click or Enter: 53, reason 4.
OXECAD_UIOX_API bool Activate(TreeWidget& tree, NodeId node);
/// Makes these nodes the selection: 72, 267, 53 (`current`; `kNoNode`: the last of them, unchanged when there is none),
/// reason 3. A tree with single selection takes one node at most.
OXECAD_UIOX_API bool Select(TreeWidget& tree, const std::vector<NodeId>& nodes, int kind = kNewSelection,
                            NodeId current = kNoNode);
/// Takes one node into the selection or out of it, with kind 2: 72, 267, 53, reason 3.
OXECAD_UIOX_API bool ToggleSelected(TreeWidget& tree, NodeId node);
/// 175, reason 29. False when the node already is so.
OXECAD_UIOX_API bool Expand(TreeWidget& tree, NodeId node);
/// The other way: 175, reason 30. False when the node already is so.
OXECAD_UIOX_API bool Collapse(TreeWidget& tree, NodeId node);
/// Toggles the check box (checked becomes unchecked, anything else checked): 346, reason 7.
OXECAD_UIOX_API bool Check(TreeWidget& tree, NodeId node);
/// Gives the check box this state (0 or 1) and is else like `Check`. False when it has it.
OXECAD_UIOX_API bool SetChecked(TreeWidget& tree, NodeId node, bool checked);
/// 232 and 233, reason 35.
OXECAD_UIOX_API bool ClickCell(TreeWidget& tree, CellPlace cell);
/// Toggles the check button in a cell (on becomes off, anything else on): reason 4 of the control.
OXECAD_UIOX_API bool ToggleCellCheck(TreeWidget& tree, CellPlace cell);
/// Chooses an entry of the option menu in a cell: reason 3 of the control.
OXECAD_UIOX_API bool ChooseCellOption(TreeWidget& tree, CellPlace cell, std::string_view item);

// --- Other components ------------------------------------------------------------------------------------------------

/// A push button: reason 4. A check button is toggled first.
OXECAD_UIOX_API bool Press(Widget& button);
/// An entry of an option menu: reason 3 (also when it was chosen already).
OXECAD_UIOX_API bool ChooseOption(Widget& menu, std::string_view item);
/// The text of an entry field after one keystroke or one paste: reason 8. False when it is the same.
OXECAD_UIOX_API bool EnterText(Widget& field, std::wstring_view text);
/// The keyboard focus comes to the component: the component that had it loses it first (reason 32), then reason 31.
/// Also after the program has moved the focus there (attribute 29), which calls nothing by itself. False when it is
/// there.
OXECAD_UIOX_API bool FocusIn(Widget& widget);
/// The keyboard focus leaves the component: reason 32. False when it is not there.
OXECAD_UIOX_API bool FocusOut(Widget& widget);

// --- Devices ---------------------------------------------------------------------------------------------------------

/// Closing through the window: reason 5. False when no callback was there to be called; the device stays as it is.
OXECAD_UIOX_API bool Close(Device& device);
/// Enter in a dialog: presses the default button.
OXECAD_UIOX_API bool PressDefault(Device& device);

}  // namespace uiox::user

#endif
