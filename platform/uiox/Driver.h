/// \file
/// Plays the user by names, for tests and scripts.
#ifndef OXECAD_UIOX_DRIVER_H
#define OXECAD_UIOX_DRIVER_H

#include <uiox/Export.h>
#include <uiox/UserEvents.h>

#include <string>
#include <string_view>
#include <vector>

namespace uiox {

/// The user in front of one device. Every action gives false where there is no such device, component, node, column or
/// item, or where the user could not do it (UserEvents.h).
class OXECAD_UIOX_API Driver {
 public:
  /// Speaks of a device by name; it is looked up for each action, so that it may come and go.
  explicit Driver(std::string_view device) : device_(device) {}

  /// Double click on a node, or Enter.
  bool Activate(std::string_view tree, std::string_view node) const;
  /// Makes these nodes the selection; `current` is the node that was clicked last, empty: the last of them.
  bool Select(std::string_view tree, const std::vector<std::string>& nodes, int kind = user::kNewSelection,
              std::string_view current = {}) const;
  /// Takes one node into the selection or out of it, as a click with Ctrl.
  bool ToggleSelected(std::string_view tree, std::string_view node) const;
  /// Opens a node. False when it is open.
  bool Expand(std::string_view tree, std::string_view node) const;
  /// Closes a node. False when it is closed.
  bool Collapse(std::string_view tree, std::string_view node) const;
  /// Toggles the check box of a node.
  bool Check(std::string_view tree, std::string_view node) const;
  /// Clicks a cell, which becomes the selected one.
  bool ClickCell(std::string_view tree, std::string_view node, std::string_view column) const;
  /// Toggles the check button in a cell.
  bool ToggleCellCheck(std::string_view tree, std::string_view node, std::string_view column) const;
  /// Chooses an entry, by its name, of the option menu in a cell.
  bool ChooseCellOption(std::string_view tree, std::string_view node, std::string_view column,
                        std::string_view item) const;

  /// Presses a push button or toggles a check button.
  bool Press(std::string_view button) const;
  /// Chooses an entry of an option menu by its name.
  bool ChooseOption(std::string_view menu, std::string_view item) const;
  /// One keystroke for each unit of `text`, at the end of what is there (marked text goes with the first).
  bool Type(std::string_view field, std::wstring_view text) const;
  /// The whole text at once, as a paste over everything.
  bool SetText(std::string_view field, std::wstring_view text) const;
  /// Brings the keyboard focus to a component.
  bool FocusIn(std::string_view component) const;
  /// Takes the keyboard focus away from a component.
  bool FocusOut(std::string_view component) const;

  /// Closes the device through its window.
  bool Close() const;
  /// Presses Enter in the device.
  bool PressDefault() const;

 private:
  std::string device_;
};

}  // namespace uiox

#endif
