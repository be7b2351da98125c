#include <viewer/window/HitTest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace oxviewer {
namespace {

double DistanceTo(const QLineF& line, QPointF place) {
  const QPointF along = line.p2() - line.p1();
  const QPointF to = place - line.p1();
  const double square = QPointF::dotProduct(along, along);
  const double share = square > 0 ? std::clamp(QPointF::dotProduct(to, along) / square, 0.0, 1.0) : 0.0;
  return QLineF(place, line.p1() + share * along).length();
}

bool Touches(const AreaItem& area, QPointF place, double tolerance) {
  if (!area.box.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(place)) return false;
  return area.path.contains(place) ||
         area.path.intersects(QRectF(place.x() - tolerance, place.y() - tolerance, 2 * tolerance, 2 * tolerance));
}

// Keeps what is better: what carries a net before a mere drawing, a small thing before a zone, and among equals the one
// that comes later, which lies above.
class Best {
 public:
  void Offer(const ItemOrigin& origin, LayerId layer) {
    const int value = ValueOf(origin);
    if (hit_ && value < value_) return;
    hit_ = Hit{origin, layer};
    value_ = value;
  }
  const std::optional<Hit>& Get() const { return hit_; }

 private:
  static int ValueOf(const ItemOrigin& origin) {
    switch (origin.kind) {
      case ItemKind::Via:
        return 5;
      case ItemKind::Pad:
        return 4;
      case ItemKind::Track:
        return 3;
      case ItemKind::Drawing:
        return origin.component != kNoComponent ? 2 : 1;
      case ItemKind::Zone:
        break;
    }
    return 0;
  }

  std::optional<Hit> hit_;
  int value_ = 0;
};

}  // namespace

std::optional<Hit> HitTest(const BoardGeometry& geometry, QPointF place, double tolerance,
                           const std::function<bool(LayerId)>& isVisible) {
  const QRectF around(place.x() - tolerance, place.y() - tolerance, 2 * tolerance, 2 * tolerance);
  std::vector<std::uint32_t> found;
  Best best;
  for (const LayerId id : geometry.backToFront) {
    if (!isVisible(id)) continue;
    const LayerGeometry& layer = geometry.layers[static_cast<std::size_t>(id)];
    layer.grid.Find(around, found);
    for (const std::uint32_t item : found) {
      if (item < layer.lines.size()) {
        const LineItem& line = layer.lines[item];
        if (DistanceTo(line.line, place) <= line.width / 2 + tolerance) best.Offer(line.origin, id);
      } else if (const AreaItem& area = layer.areas[item - layer.lines.size()]; Touches(area, place, tolerance)) {
        best.Offer(area.origin, id);
      }
    }
  }
  return best.Get();
}

}  // namespace oxviewer
