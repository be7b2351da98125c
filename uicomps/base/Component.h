/// \file
/// The base of every widget wrapper.
#ifndef OXECAD_UI_BASE_COMPONENT_H
#define OXECAD_UI_BASE_COMPONENT_H

#include <string>

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// Names one widget of the toolkit: a component of a device. Life of every component: construct it with both names (no
/// toolkit call), `Init` it once the device exists, use it, destroy it (its callbacks are removed).
///
/// A copy names the same widget; it shares the widget and does not duplicate it. Only what was initialised hears
/// events: a copy does not, until it is initialised itself.
///
/// Two components that were initialised on one widget, copies or not, both hear each event, in the order of their
/// `Init`. The toolkit is asked to remove a callback by its widget, its reason and its function, and cannot tell whose
/// it is: of several it removes the one that was registered first. So the destructor of any component, initialised or
/// not, ends the callbacks of the one that was initialised first. Destroy a copy that was not initialised, and the
/// original hears nothing more until it is initialised again; destroy the later one of two that were, and the first
/// hears nothing more, while the next event reaches the one that is gone. Initialise one for each widget, or destroy
/// them in the order of their `Init`.
///
/// A handler may destroy the component as the last thing that it does. Where the component goes on afterwards it must
/// not be destroyed: in a placer, in a filter, and while its colour picker is open. Debug builds assert that.
class OXECAD_UI_EXPORT Component {
 public:
  /// Copies both names; a null pointer is an empty name.
  Component(const char* device, const char* name);
  /// The copy works on the same widget.
  Component(const Component&);
  /// Works on the widget of the other from now on.
  Component& operator=(const Component&);
  virtual ~Component();

  /// Registers the component's callbacks. The device must exist.
  virtual void Init() = 0;

  /// The device's name; owned by the component, good until it is assigned to or destroyed.
  const char* GetDevice() const { return m_device.c_str(); }
  /// The component's name within its device; owned by the component, good until it is assigned to or destroyed.
  const char* GetName() const { return m_name.c_str(); }

 private:
  std::string m_device;
  std::string m_name;
};

}  // namespace oxecad_ui

#endif
