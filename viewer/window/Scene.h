/// \file
/// What a view of the board shows.
#ifndef OXECAD_VIEWER_WINDOW_SCENE_H
#define OXECAD_VIEWER_WINDOW_SCENE_H

#include <viewer/window/Viewport.h>

#include <QPainter>
#include <QRectF>

#include <functional>
#include <memory>

namespace oxviewer {

/// Asked while a picture is painted; true: the picture is not wanted any more.
using IsStale = std::function<bool()>;

/// Something that can be painted. A scene does not change once it is made, so that any thread may paint it; a change of
/// colours makes a new one over the same geometry.
class Scene {
 public:
  virtual ~Scene() = default;

  /// Paints the board on a painter whose unit is the device-independent pixel. Ends early when the picture is stale.
  virtual void Paint(QPainter& painter, const Viewport& viewport, const IsStale& isStale) const = 0;
  /// What there is to see.
  virtual QRectF Bounds() const = 0;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_SCENE_H
