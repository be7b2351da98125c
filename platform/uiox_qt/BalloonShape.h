/// \file
/// The outline of a balloon.
#ifndef OXECAD_UIOX_QT_BALLOONSHAPE_H
#define OXECAD_UIOX_QT_BALLOONSHAPE_H

#include <uiox_qt/Export.h>

#include <QMargins>
#include <QPainterPath>
#include <QSize>

#include <cstdint>

namespace uiox_qt {

/// Where a balloon's arrow is. Its tip is on the balloon's edge, so that a window that touches its anchor points at it.
struct BalloonArrow {
  bool at_top = true;
  bool at_left = true;
  int inset = 24;  ///< from that edge to the tip
};

/// What a style handle (attribute 519) says; false for 0, which is no style.
OXECAD_UIOX_QT_API bool FindBalloonArrow(std::uintptr_t style, BalloonArrow& arrow);

/// What of a window is not for its contents.
OXECAD_UIOX_QT_API QMargins BalloonMargins(const BalloonArrow& arrow);

/// The outline within a window of this size, half a pixel inside its edges, where a line is crisp.
OXECAD_UIOX_QT_API QPainterPath BalloonPath(QSize size, const BalloonArrow& arrow);

}  // namespace uiox_qt

#endif
