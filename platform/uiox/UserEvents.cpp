#include <uiox/Suite.h>
#include <uiox/UserEvents.h>

#include <algorithm>

namespace uiox::user {

namespace {

using oxecad_ui::toolkit::Reason;

bool CanUse(const Widget& widget) {
  for (const Widget* up = &widget; up; up = up->ControlOf() ? up->ControlOf() : up->Parent()) {
    if (!up->Sensitive()) return false;
  }
  return true;
}

bool CanUse(const TreeWidget& tree, NodeId node) { return tree.Store().Has(node) && CanUse(tree); }

/// The user works in this component from now on.
void WorkIn(const Widget& widget) {
  Suite& suite = widget.Owner().Host();
  suite.SetCurrent(widget.Owner().Name(), widget.Name());
  suite.Tell(&SuiteObserver::UserActed);
}

std::size_t Call(const Widget& widget, Reason reason) { return widget.Actions().Call(static_cast<int>(reason)); }

bool EndSelection(TreeWidget& tree, int kind, NodeId current) {
  tree.SetSelectionKind(kind);
  if (current != kNoNode) tree.SetActivatedNode(current);
  Call(tree, Reason::Select);
  return true;
}

bool Toggle(TreeWidget& tree, NodeId node, bool expand) {
  if (!CanUse(tree, node) || (tree.Store().Expanded(node) != 0) == expand) return false;
  WorkIn(tree);
  tree.Store().SetExpanded(node, expand ? 1 : 0);
  tree.SetToggledNode(node);
  Call(tree, expand ? Reason::Expand : Reason::Collapse);
  return true;
}

bool IsCell(const TreeWidget& tree, CellPlace cell) {
  return CanUse(tree, cell.node) && cell.column < tree.Style().columns.size();
}

}  // namespace

// --- Trees -----------------------------------------------------------------------------------------------------------

bool Activate(TreeWidget& tree, NodeId node) {
  if (!CanUse(tree, node)) return false;
  WorkIn(tree);
  tree.SetActivatedNode(node);
  Call(tree, Reason::Activate);
  return true;
}

bool Select(TreeWidget& tree, const std::vector<NodeId>& nodes, int kind, NodeId current) {
  const auto usable = [&](NodeId node) { return CanUse(tree, node); };
  if (!CanUse(tree) || !std::all_of(nodes.begin(), nodes.end(), usable)) return false;
  if (current != kNoNode && !usable(current)) return false;
  const SelectionMode mode = tree.Style().selection;
  if (nodes.size() > (mode == SelectionMode::Multiple ? nodes.size() : mode == SelectionMode::Single ? 1 : 0))
    return false;
  WorkIn(tree);
  tree.Store().Select(nodes);
  if (current == kNoNode && !nodes.empty()) current = nodes.back();
  return EndSelection(tree, kind, current);
}

bool ToggleSelected(TreeWidget& tree, NodeId node) {
  if (!CanUse(tree, node) || tree.Style().selection == SelectionMode::None) return false;
  WorkIn(tree);
  const bool selected = tree.Store().IsSelected(node);
  if (!selected && tree.Style().selection == SelectionMode::Single) tree.Store().Select({});
  tree.Store().SetThirdInt(node, selected ? 0 : 1);
  return EndSelection(tree, kOneAtATime, node);
}

bool Expand(TreeWidget& tree, NodeId node) { return Toggle(tree, node, true); }

bool Collapse(TreeWidget& tree, NodeId node) { return Toggle(tree, node, false); }

bool Check(TreeWidget& tree, NodeId node) {
  return CanUse(tree, node) && SetChecked(tree, node, tree.Store().CheckState(node) != 1);
}

bool SetChecked(TreeWidget& tree, NodeId node, bool checked) {
  if (!CanUse(tree, node) || !tree.Store().CheckSensitive(node)) return false;
  const unsigned state = checked ? 1 : 0;
  if (tree.Store().CheckState(node) == state) return false;
  WorkIn(tree);
  tree.Store().SetCheckState(node, state);
  tree.SetCheckedNode(node);
  Call(tree, Reason::Check);
  return true;
}

bool ClickCell(TreeWidget& tree, CellPlace cell) {
  if (!IsCell(tree, cell)) return false;
  WorkIn(tree);
  tree.SetSelectedCell(cell);
  Call(tree, Reason::CellSelect);
  return true;
}

bool ToggleCellCheck(TreeWidget& tree, CellPlace cell) {
  if (!IsCell(tree, cell)) return false;
  Widget* control = tree.ControlIn(cell);
  return control && control->Class() == WidgetClass::CheckButton && Press(*control);
}

bool ChooseCellOption(TreeWidget& tree, CellPlace cell, std::string_view item) {
  if (!IsCell(tree, cell)) return false;
  Widget* control = tree.ControlIn(cell);
  return control && ChooseOption(*control, item);
}

// --- Other components ------------------------------------------------------------------------------------------------

bool Press(Widget& button) {
  const bool is_check = button.Class() == WidgetClass::CheckButton;
  if ((!is_check && button.Class() != WidgetClass::PushButton) || !CanUse(button)) return false;
  WorkIn(button);
  if (is_check) button.SetCheckState(button.CheckState() == 1 ? 0 : 1);
  Call(button, Reason::Activate);
  return true;
}

bool ChooseOption(Widget& menu, std::string_view item) {
  if (menu.Class() != WidgetClass::OptionMenu || !CanUse(menu) || !menu.SetSelectedItem(item)) return false;
  WorkIn(menu);
  Call(menu, Reason::Select);
  return true;
}

bool EnterText(Widget& field, std::wstring_view text) {
  if (field.Class() != WidgetClass::InputPanel && field.Class() != WidgetClass::OptionMenu) return false;
  if (!CanUse(field) || field.Text() == text) return false;
  WorkIn(field);
  field.SetText(text);
  Call(field, Reason::Input);
  return true;
}

bool FocusIn(Widget& widget) {
  Device& device = widget.Owner();
  if (!CanUse(widget) || device.UserFocus() == widget.Name()) return false;
  // The callbacks of the component that loses the focus may end everything.
  Suite& suite = device.Host();
  const std::string device_name = device.Name();
  const std::string name = widget.Name();
  if (Widget* before = device.Find(device.UserFocus())) FocusOut(*before);
  Widget* now = suite.Find(device_name, name);
  if (!now) return false;
  WorkIn(*now);
  now->Owner().SetUserFocus(name);
  now->Owner().SetFocus(name);
  Call(*now, Reason::FocusIn);
  return true;
}

bool FocusOut(Widget& widget) {
  Device& device = widget.Owner();
  if (device.UserFocus() != widget.Name()) return false;
  device.Host().Tell(&SuiteObserver::UserActed);
  device.SetUserFocus({});
  if (device.Focus() == widget.Name()) device.SetFocus({});
  Call(widget, Reason::FocusOut);
  return true;
}

// --- Devices ---------------------------------------------------------------------------------------------------------

bool Close(Device& device) {
  device.Host().Tell(&SuiteObserver::UserActed);
  return Call(device, Reason::Close) > 0;
}

bool PressDefault(Device& device) {
  Widget* button = device.DefaultButton().empty() ? nullptr : device.Find(device.DefaultButton());
  return button && button->Shown() && Press(*button);
}

}  // namespace uiox::user
