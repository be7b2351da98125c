#include <viewer/window/BoardScene.h>
#include <viewer/window/Brushwork.h>

#include <QPen>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace oxviewer {
namespace {

constexpr int kZoneOpacity = 96;
constexpr double kPadLight = 0.14;
constexpr double kViaLight = 0.38;
constexpr double kMarkLight = 0.35;
constexpr double kClosestGridPoints = 9;  // pixels
constexpr QRgb kWhite = qRgb(0xFF, 0xFF, 0xFF);

QRgb Shaded(QRgb color, ItemKind kind) {
  switch (kind) {
    case ItemKind::Zone:
      return qRgba(qRed(color), qGreen(color), qBlue(color), kZoneOpacity);
    case ItemKind::Pad:
      return Blended(color, kWhite, kPadLight);
    case ItemKind::Via:
      return Blended(color, kWhite, kViaLight);
    case ItemKind::Drawing:
    case ItemKind::Track:
      break;
  }
  return color;
}

bool Contains(const std::vector<bool>& marks, std::int32_t id) {
  return id >= 0 && static_cast<std::size_t>(id) < marks.size() && marks[static_cast<std::size_t>(id)];
}

void AddAll(const std::vector<bool>& from, std::vector<bool>& to) {
  if (to.size() < from.size()) to.resize(from.size(), false);
  for (std::size_t i = 0; i < from.size(); ++i) {
    if (from[i]) to[i] = true;
  }
}

bool HasAny(const std::vector<bool>& marks) { return std::find(marks.begin(), marks.end(), true) != marks.end(); }

}  // namespace

void PaintBackground(QPainter& painter, const Viewport& viewport, const ViewStyle& style) {
  painter.fillRect(QRect(QPoint(0, 0), viewport.size), QColor(style.background));
  if (style.grid <= 0) return;
  double step = style.grid;
  while (step * viewport.pixelsPerMm < kClosestGridPoints) step *= 10;
  const QRectF area = viewport.Area();
  const QTransform toPixels = viewport.ToPixels();
  QPolygonF points;
  for (double x = std::ceil(area.left() / step); x <= area.right() / step; ++x) {
    for (double y = std::ceil(area.top() / step); y <= area.bottom() / step; ++y) {
      points << toPixels.map(QPointF(x * step, y * step));
    }
  }
  painter.setPen(QPen(QColor(style.gridColor), 1));
  painter.drawPoints(points);
}

bool Marks::Any() const { return HasAny(nets) || HasAny(components); }

bool Marks::Has(const ItemOrigin& origin) const {
  return Contains(nets, origin.net) || Contains(components, origin.component);
}

void Marks::Add(const Marks& other) {
  AddAll(other.nets, nets);
  AddAll(other.components, components);
}

BoardScene::BoardScene(std::shared_ptr<const BoardGeometry> geometry, BoardStyle style)
    : geometry_(std::move(geometry)),
      style_(std::move(style)),
      marking_(style_.marked.Any()),
      isolating_(style_.isolated.Any()) {}

QRgb BoardScene::ColorOf(const ItemOrigin& origin, QRgb layerColor, LayerRank rank, bool markedPass) const {
  const bool marked = marking_ && style_.marked.Has(origin);
  if (marked != markedPass) return 0;
  if (isolating_ && rank != LayerRank::Outline && !style_.isolated.Has(origin)) return 0;
  QRgb color = layerColor;
  if (origin.net != kNoNet && style_.netColors[static_cast<std::size_t>(origin.net)] != 0) {
    color = style_.netColors[static_cast<std::size_t>(origin.net)];
  }
  color = Shaded(color, origin.kind);
  if (marked) return Blended(color, kWhite, kMarkLight);
  return marking_ && rank != LayerRank::Outline ? Blended(color, style_.view.background, style_.view.dim) : color;
}

bool BoardScene::PaintLayer(QPainter& painter, const Viewport& viewport, LayerId id, const IsStale& isStale) const {
  const LayerStyle& look = style_.layers[static_cast<std::size_t>(id)];
  if (!look.visible) return true;
  const LayerGeometry& layer = geometry_->layers[static_cast<std::size_t>(id)];
  for (const bool markedPass : {false, true}) {
    if (markedPass && !marking_) break;
    Brushwork work(viewport, style_.view.thinnestLine);
    work.Add(layer, [&](const ItemOrigin& origin) { return ColorOf(origin, look.color, layer.rank, markedPass); });
    if (!work.Paint(painter, isStale)) return false;
  }
  return true;
}

bool BoardScene::PaintHoles(QPainter& painter, const Viewport& viewport, const IsStale& isStale) const {
  Brushwork work(viewport, style_.view.thinnestLine);
  work.Add(geometry_->holes, [&](const ItemOrigin& origin) {
    return isolating_ && !style_.isolated.Has(origin) ? 0 : style_.view.background;
  });
  return work.Paint(painter, isStale);
}

bool BoardScene::ShowsCopper() const {
  for (std::size_t i = 0; i < geometry_->layers.size(); ++i) {
    if (geometry_->layers[i].rank == LayerRank::Copper && style_.layers[i].visible) return true;
  }
  return false;
}

std::vector<LayerId> BoardScene::Order() const {
  std::vector<LayerId> order = geometry_->backToFront;
  const auto active = std::find(order.begin(), order.end(), style_.activeLayer);
  if (active == order.end()) return order;
  const auto above = std::find_if(active, order.end(), [this](LayerId layer) {
    return geometry_->layers[static_cast<std::size_t>(layer)].rank > LayerRank::Copper;
  });
  std::rotate(active, active + 1, above);
  return order;
}

void BoardScene::Paint(QPainter& painter, const Viewport& viewport, const IsStale& isStale) const {
  PaintBackground(painter, viewport, style_.view);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(viewport.ToPixels(), true);
  bool holesPainted = !ShowsCopper();
  for (const LayerId layer : Order()) {
    const bool aboveCopper = geometry_->layers[static_cast<std::size_t>(layer)].rank > LayerRank::Copper;
    if (aboveCopper && !std::exchange(holesPainted, true) && !PaintHoles(painter, viewport, isStale)) break;
    if (isStale() || !PaintLayer(painter, viewport, layer, isStale)) break;
  }
  if (!holesPainted) PaintHoles(painter, viewport, isStale);
  painter.restore();
}

}  // namespace oxviewer
