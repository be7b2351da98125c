/// \file
/// Painting many items at once.
#ifndef OXECAD_VIEWER_WINDOW_BRUSHWORK_H
#define OXECAD_VIEWER_WINDOW_BRUSHWORK_H

#include <viewer/window/BoardGeometry.h>
#include <viewer/window/Scene.h>

#include <QColor>
#include <QImage>

#include <functional>
#include <map>
#include <tuple>
#include <vector>

namespace oxviewer {

/// The colour of an item; one without any opacity leaves the item out.
using ColorOfItem = std::function<QRgb(const ItemOrigin&)>;

/// Gathers items by what they are painted with, and paints each lot in one go: zones first, vias last. Zones of one
/// colour become one area before they are painted, so that the seams of their pieces and their overlaps do not show.
class Brushwork {
 public:
  /// No line is painted thinner than `thinnest` millimetres, nor than one pixel.
  Brushwork(const Viewport& viewport, double thinnest);

  /// Adds the items of a layer that can be seen.
  void Add(const LayerGeometry& layer, const ColorOfItem& colorOf);
  /// Paints what was added; `painter` has the viewport's transform. False when it was cut short.
  bool Paint(QPainter& painter, const IsStale& isStale) const;

 private:
  using LineKey = std::tuple<ItemKind, QRgb, double>;
  using AreaKey = std::pair<ItemKind, QRgb>;

  bool PaintAreas(QPainter& painter, ItemKind kind, const IsStale& isStale) const;
  bool PaintLines(QPainter& painter, ItemKind kind, const IsStale& isStale) const;
  bool PaintZones(QPainter& painter, const IsStale& isStale) const;

  Viewport viewport_;
  double thinnest_;
  double smallest_;
  std::map<LineKey, std::vector<QLineF>> lines_;
  std::map<AreaKey, std::vector<const AreaItem*>> areas_;
  std::vector<std::uint32_t> found_;
};

/// A transparent picture of a viewport in the resolution of a device.
QImage EmptyImage(const QPaintDevice& device, const Viewport& viewport);

/// A colour on its way from one to another: `share` of 0 gives `from`, 1 gives `to`. The opacity of `from` stays.
QRgb Blended(QRgb from, QRgb to, double share);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_BRUSHWORK_H
