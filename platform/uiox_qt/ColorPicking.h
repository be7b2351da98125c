/// \file
/// The colour picker as a window.
#ifndef OXECAD_UIOX_QT_COLORPICKING_H
#define OXECAD_UIOX_QT_COLORPICKING_H

#include <oxcore/ColorPicker.h>

class QWidget;

namespace uiox_qt {

/// Runs a colour dialog on a window (null: none), opened at the request's colour, and gives what the user chose.
unsigned int PickColor(QWidget* window, const oxcore::ColorPickerRequest& request);

}  // namespace uiox_qt

#endif
