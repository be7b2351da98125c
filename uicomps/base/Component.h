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
/// A copy names the same widget; it shares the widget and does not duplicate it.
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
