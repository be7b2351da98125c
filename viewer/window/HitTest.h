/// \file
/// What lies at a place of the board.
#ifndef OXECAD_VIEWER_WINDOW_HITTEST_H
#define OXECAD_VIEWER_WINDOW_HITTEST_H

#include <viewer/window/BoardGeometry.h>

#include <QPointF>

#include <functional>
#include <optional>

namespace oxviewer {

struct Hit {
  ItemOrigin origin;
  LayerId layer = kNoLayer;
};

/// The item on top at a place, at most `tolerance` away; all in millimetres. Layers that `isVisible` refuses are passed
/// over, and areas only count where nothing smaller is hit. Nothing when there is none.
std::optional<Hit> HitTest(const BoardGeometry& geometry, QPointF place, double tolerance,
                           const std::function<bool(LayerId)>& isVisible);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_HITTEST_H
