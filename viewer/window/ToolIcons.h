/// \file
/// The signs on the program's buttons.
#ifndef OXECAD_VIEWER_WINDOW_TOOLICONS_H
#define OXECAD_VIEWER_WINDOW_TOOLICONS_H

#include <QIcon>

namespace oxviewer {

enum class ToolSign { Open, Fit, ZoomIn, ZoomOut, Highlight, Isolate, Clear, Flip, Next, Previous };

/// A sign in the program's text colour at the time that it is shown, crisp at any size.
QIcon ToolIcon(ToolSign sign);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_TOOLICONS_H
