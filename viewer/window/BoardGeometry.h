/// \file
/// A board as it is drawn.
#ifndef OXECAD_VIEWER_WINDOW_BOARDGEOMETRY_H
#define OXECAD_VIEWER_WINDOW_BOARDGEOMETRY_H

#include <viewer/board/Board.h>
#include <viewer/window/SpatialGrid.h>

#include <QLineF>
#include <QPainterPath>
#include <QRectF>

#include <cstdint>
#include <memory>
#include <vector>

namespace oxviewer {

/// What an item is; within a layer the later ones lie on top.
enum class ItemKind : std::uint8_t { Zone, Drawing, Track, Pad, Via };

/// What an item belongs to, and where it stands in the board's vector of its kind.
struct ItemOrigin {
  ItemKind kind = ItemKind::Drawing;
  std::uint32_t index = 0;
  NetId net = kNoNet;
  ComponentId component = kNoComponent;
};

/// A straight line with round ends.
struct LineItem {
  QLineF line;
  double width = 0;
  ItemOrigin origin;
};

/// A filled area. A large one is in several pieces that overlap a little: then a picture of a part of it costs a part
/// of the time.
struct AreaItem {
  QPainterPath path;
  QRectF box;
  ItemOrigin origin;
};

/// Where a layer lies among the others, from the back of the board to the eye.
enum class LayerRank : std::uint8_t { Behind, Copper, InFront, Notes, Outline };

/// One layer. In the grid lines come first, and areas follow.
struct LayerGeometry {
  LayerRank rank = LayerRank::Notes;
  std::vector<LineItem> lines;
  std::vector<AreaItem> areas;
  SpatialGrid grid;
};

/// Everything there is to draw, in millimetres, y down. Does not change once it is made: threads may share it.
struct BoardGeometry {
  std::vector<LayerGeometry> layers;   ///< by LayerId
  std::vector<LayerId> backToFront;    ///< all layers in the order in which they are painted
  LayerGeometry holes;                 ///< of pads and vias, through whatever is there
  QRectF bounds;                       ///< of the outline or, without one, of all items; never empty
  std::vector<QRectF> componentBoxes;  ///< of the pads of each component; null without pads

  /// Linear in the items of the board; arcs become lines that leave the true curve by 2 micrometres at most.
  static std::shared_ptr<const BoardGeometry> Make(const Board& board);
};

constexpr double kMillimetresPerNm = 1e-6;
inline QPointF ToMillimetres(Point point) { return {point.x * kMillimetresPerNm, point.y * kMillimetresPerNm}; }

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_BOARDGEOMETRY_H
