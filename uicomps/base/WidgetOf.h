/// \file
/// Where a component meets the wire.
#ifndef OXECAD_UI_BASE_WIDGETOF_H
#define OXECAD_UI_BASE_WIDGETOF_H

#include <uicomps/base/Component.h>
#include <uicomps/toolkit/Slot.h>

namespace oxecad_ui {

/// The wire's address of a component's widget; good for as long as the component keeps its names.
inline wire::Widget WidgetOf(const Component& component) { return {component.GetDevice(), component.GetName()}; }

}  // namespace oxecad_ui

#endif
