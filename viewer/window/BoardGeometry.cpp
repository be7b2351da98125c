#include <viewer/board/Geometry.h>
#include <viewer/window/BoardGeometry.h>
#include <viewer/window/Shapes.h>

#include <algorithm>
#include <utility>

namespace oxviewer {
namespace {

constexpr double kSmallestBoard = 1;       // mm
constexpr double kZoneOutlineWidth = 0.0;  // drawn as thin as the view draws anything

LayerRank RankOf(const Layer& layer) {
  if (layer.copper) return LayerRank::Copper;
  if (layer.name == "Edge.Cuts" || layer.name == "Margin") return LayerRank::Outline;
  if (layer.name.starts_with("B.")) return LayerRank::Behind;
  return layer.name.starts_with("F.") ? LayerRank::InFront : LayerRank::Notes;
}

// A line cannot be narrower than a hair, whatever its file says.
double LineWidth(Nm width) { return std::max<Nm>(width, 0) * kMillimetresPerNm; }

QRectF BoxOf(const LineItem& item) {
  const double reach = item.width / 2;
  return QRectF(item.line.p1(), item.line.p2()).normalized().adjusted(-reach, -reach, reach, reach);
}

// Spreads a board's items over its layers.
class Maker {
 public:
  explicit Maker(const Board& board) : board_(board), geometry_(std::make_shared<BoardGeometry>()) {
    geometry_->layers.resize(board.layers.size());
    geometry_->componentBoxes.resize(board.components.size());
  }

  std::shared_ptr<const BoardGeometry> Make() {
    AddZones();
    AddDrawings();
    AddTracks();
    AddPads();
    AddVias();
    for (LayerGeometry& layer : geometry_->layers) MakeGrid(layer);
    MakeOrder();
    MakeGrid(geometry_->holes);
    MakeBounds();
    return std::move(geometry_);
  }

 private:
  LayerGeometry* LayerOf(LayerId layer) {
    return layer == kNoLayer ? nullptr : &geometry_->layers[static_cast<std::size_t>(layer)];
  }

  static void AddArea(LayerGeometry& layer, QPainterPath path, const ItemOrigin& origin) {
    const QRectF box = path.boundingRect();
    layer.areas.push_back({std::move(path), box, origin});
  }

  static void AddLines(LayerGeometry& layer, const std::vector<QPointF>& points, double width,
                       const ItemOrigin& origin) {
    for (std::size_t i = 1; i < points.size(); ++i) {
      layer.lines.push_back({QLineF(points[i - 1], points[i]), width, origin});
    }
  }

  template <class Visit>
  void ForEachLayer(const LayerSet& layers, Visit visit) {
    for (std::size_t i = 0; i < geometry_->layers.size(); ++i) {
      if (layers.test(i)) visit(geometry_->layers[i]);
    }
  }

  void AddZones() {
    for (std::size_t i = 0; i < board_.zones.size(); ++i) {
      const Zone& zone = board_.zones[i];
      const ItemOrigin origin{ItemKind::Zone, static_cast<std::uint32_t>(i), zone.net, zone.component};
      for (const ZoneFill& fill : zone.fills) {
        LayerGeometry* layer = LayerOf(fill.layer);
        if (!layer) continue;
        for (QPainterPath& piece : PiecesOf(fill.polygon)) AddArea(*layer, std::move(piece), origin);
      }
      if (!zone.fills.empty()) continue;
      for (const Polygon& outline : zone.outlines) {
        std::vector<QPointF> points;
        for (const Point point : Flattened(outline, 2000)) points.push_back(ToMillimetres(point));
        if (!points.empty()) points.push_back(points.front());
        ForEachLayer(zone.layers, [&](LayerGeometry& layer) { AddLines(layer, points, kZoneOutlineWidth, origin); });
      }
    }
  }

  void AddDrawings() {
    for (std::size_t i = 0; i < board_.drawings.size(); ++i) {
      const Drawing& drawing = board_.drawings[i];
      LayerGeometry* layer = LayerOf(drawing.layer);
      if (!layer) continue;
      const ItemOrigin origin{ItemKind::Drawing, static_cast<std::uint32_t>(i), drawing.net, drawing.component};
      const std::vector<QPointF> points = DrawingPoints(drawing);
      if (drawing.filled && points.size() > 2) {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList<QPointF>(points.begin(), points.end())));
        AddArea(*layer, std::move(path), origin);
      }
      if (!drawing.filled || drawing.width > 0) AddLines(*layer, points, LineWidth(drawing.width), origin);
    }
  }

  void AddTracks() {
    for (std::size_t i = 0; i < board_.tracks.size(); ++i) {
      const Track& track = board_.tracks[i];
      LayerGeometry* layer = LayerOf(track.layer);
      if (!layer) continue;
      const ItemOrigin origin{ItemKind::Track, static_cast<std::uint32_t>(i), track.net, kNoComponent};
      const double width = LineWidth(track.width);
      if (track.arc) {
        AddLines(*layer, ArcPoints(track.start, track.mid, track.end), width, origin);
      } else {
        layer->lines.push_back({QLineF(ToMillimetres(track.start), ToMillimetres(track.end)), width, origin});
      }
    }
  }

  void AddPads() {
    for (std::size_t i = 0; i < board_.pads.size(); ++i) {
      const Pad& pad = board_.pads[i];
      const ItemOrigin origin{ItemKind::Pad, static_cast<std::uint32_t>(i), pad.net, pad.component};
      const QPainterPath path = PadPath(pad);
      ForEachLayer(pad.layers, [&](LayerGeometry& layer) { AddArea(layer, path, origin); });
      if (QPainterPath hole = HolePath(pad); !hole.isEmpty()) AddArea(geometry_->holes, std::move(hole), origin);
      if (pad.component != kNoComponent) {
        QRectF& box = geometry_->componentBoxes[static_cast<std::size_t>(pad.component)];
        box = box.united(path.boundingRect());
      }
    }
  }

  // The first and the last layer of a via in the stack, in this order.
  std::pair<std::size_t, std::size_t> SpanOf(const Via& via) const {
    if (via.type == ViaType::Through || via.firstLayer == kNoLayer || via.lastLayer == kNoLayer) {
      return {0, board_.layers.size()};
    }
    const auto [low, high] = std::minmax(via.firstLayer, via.lastLayer);
    return {static_cast<std::size_t>(low), static_cast<std::size_t>(high) + 1};
  }

  void AddVias() {
    for (std::size_t i = 0; i < board_.vias.size(); ++i) {
      const Via& via = board_.vias[i];
      const ItemOrigin origin{ItemKind::Via, static_cast<std::uint32_t>(i), via.net, kNoComponent};
      const QPainterPath path = CirclePath(via.position, via.size);
      const auto [from, to] = SpanOf(via);
      for (std::size_t layer = from; layer < to; ++layer) {
        if (board_.layers[layer].copper) AddArea(geometry_->layers[layer], path, origin);
      }
      if (via.drill > 0) AddArea(geometry_->holes, CirclePath(via.position, via.drill), origin);
    }
  }

  static void MakeGrid(LayerGeometry& layer) {
    std::vector<QRectF> boxes;
    boxes.reserve(layer.lines.size() + layer.areas.size());
    for (const LineItem& line : layer.lines) boxes.push_back(BoxOf(line));
    for (const AreaItem& area : layer.areas) boxes.push_back(area.box);
    layer.grid = SpatialGrid(boxes);
  }

  // The board's own order runs from the front to the back.
  void MakeOrder() {
    std::vector<LayerId>& order = geometry_->backToFront;
    for (std::size_t i = board_.layers.size(); i-- > 0;) {
      geometry_->layers[i].rank = RankOf(board_.layers[i]);
      order.push_back(static_cast<LayerId>(i));
    }
    std::stable_sort(order.begin(), order.end(),
                     [this](LayerId a, LayerId b) { return LayerOf(a)->rank < LayerOf(b)->rank; });
  }

  void MakeBounds() {
    QRectF bounds(0, 0, kSmallestBoard, kSmallestBoard);
    if (const auto outline = Outline(board_)) {
      bounds = QRectF(ToMillimetres(outline->low), ToMillimetres(outline->high));
      const double wider = std::max(0.0, kSmallestBoard - bounds.width()) / 2;
      const double higher = std::max(0.0, kSmallestBoard - bounds.height()) / 2;
      bounds.adjust(-wider, -higher, wider, higher);
    }
    geometry_->bounds = bounds;
  }

  const Board& board_;
  std::shared_ptr<BoardGeometry> geometry_;
};

}  // namespace

std::shared_ptr<const BoardGeometry> BoardGeometry::Make(const Board& board) { return Maker(board).Make(); }

}  // namespace oxviewer
