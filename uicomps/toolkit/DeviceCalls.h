/// \file
/// Devices: creating, showing, placing and running dialogs, and the places of their components on the screen.
#ifndef OXECAD_UI_TOOLKIT_DEVICECALLS_H
#define OXECAD_UI_TOOLKIT_DEVICECALLS_H

#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui::wire {

using toolkit::Reason;

/// Creates the device of a resource, found on the search path of a context or, where there is none, by its name alone.
/// The two ways say success with opposite numbers.
inline bool CreateDevice(const char* resource, const char* context) {
  const int path = ui_create_search_path(toolkit::kResourceSearchPath, context);
  if (path == toolkit::kNoSearchPath) return ui_create_device(resource, resource) == 0;
  return ui_create_device_ext(resource, resource, path) != 0;
}

inline Result ShowDevice(const char* device) { return {ui_manage_device(device)}; }
inline void HideDevice(const char* device) { ui_unmanage_device(device); }

/// Runs a device modally; gives the value that ended the run.
inline int RunDevice(const char* device) { return ui_activate_device(device); }

/// Lets an event of a component end its device's run with a value.
inline Result EndRunOn(const Widget& widget, Reason reason, std::uint32_t value) {
  return {ui_set_action(widget.device, widget.name, static_cast<int>(reason), &ui_exit_device,
                        const_cast<char*>(widget.device), Slot(value))};
}

inline void DoNotEndRunOn(const Widget& widget, Reason reason) {
  ui_remove_action(widget.device, widget.name, static_cast<int>(reason), &ui_exit_device);
}

struct Position {
  int x = 0;
  int y = 0;
};
struct Size {
  int width = 0;
  int height = 0;
};

/// The position of a component on the screen, in pixels. Without one both are 0.
inline Result GetPosition(const Widget& widget, Position& position) {
  position = {};
  const Result read = Perform(widget, Operation::GetPosition, std::make_tuple(Slot(&position.x), Slot(&position.y)));
  if (!read) position = {};
  return read;
}

/// The size of a component, in pixels. Without one both are 0.
inline Result GetSize(const Widget& widget, Size& size) {
  size = {};
  const Result read = Perform(widget, Operation::GetSize, std::make_tuple(Slot(&size.width), Slot(&size.height)));
  if (!read) size = {};
  return read;
}

/// Moves a device; its size stays.
inline Result MoveDevice(const Widget& device, const Position& position) {
  return Perform(
      device, Operation::MoveAndResize,
      std::make_tuple(Slot(position.x), Slot(position.y), Slot(toolkit::kKeepSize), Slot(toolkit::kKeepSize)));
}

inline Result UpdateLayout(const Widget& device) { return Perform(device, Operation::UpdateLayout, std::make_tuple()); }

/// The skin's balloon style for a quadrant of the screen; null when there is none.
inline Result BalloonStyle(unsigned char quadrant, void*& style) {
  style = nullptr;
  const Result read{uit_SkinGetBalloonDlgStyle(quadrant, &style, 0)};
  if (!read) style = nullptr;
  return read;
}

/// Selects all the text of an entry field.
inline void SelectAllText(const Widget& field) {
  Perform(field, Operation::SelectText, std::make_tuple(Slot(0), Slot(toolkit::kEndOfText)));
}

inline void Beep() { ui_beep(); }

}  // namespace oxecad_ui::wire

#endif
