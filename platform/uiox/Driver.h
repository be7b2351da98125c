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
  explicit Driver(std::string_view device) : device_(device) {}

  bool Activate(std::string_view tree, std::string_view node) const;
  bool Select(std::string_view tree, const std::vector<std::string>& nodes, int kind = user::kNewSelection,
              std::string_view current = {}) const;
  bool ToggleSelected(std::string_view tree, std::string_view node) const;
  bool Expand(std::string_view tree, std::string_view node) const;
  bool Collapse(std::string_view tree, std::string_view node) const;
  bool Check(std::string_view tree, std::string_view node) const;
  bool ClickCell(std::string_view tree, std::string_view node, std::string_view column) const;
  bool ToggleCellCheck(std::string_view tree, std::string_view node, std::string_view column) const;
  bool ChooseCellOption(std::string_view tree, std::string_view node, std::string_view column,
                        std::string_view item) const;

  bool Press(std::string_view button) const;
  bool ChooseOption(std::string_view menu, std::string_view item) const;
  /// One keystroke for each unit of `text`, at the end of what is there (marked text goes with the first).
  bool Type(std::string_view field, std::wstring_view text) const;
  /// The whole text at once, as a paste over everything.
  bool SetText(std::string_view field, std::wstring_view text) const;
  bool FocusIn(std::string_view component) const;
  bool FocusOut(std::string_view component) const;

  bool Close() const;
  bool PressDefault() const;

 private:
  std::string device_;
};

}  // namespace uiox

#endif
