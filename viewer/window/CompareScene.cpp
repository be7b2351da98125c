#include <viewer/window/CompareScene.h>

#include <QImage>

#include <algorithm>
#include <utility>

namespace oxviewer {
namespace {

using ShowMode = oxk::ecad::CompareColorVis::ShowMode;
constexpr QRgb kSolid = qRgba(0xFF, 0xFF, 0xFF, 0xFF);
constexpr double kZoneOpacity = 0.2;

QRgb ToRgb(Color color) { return qRgb(RedOf(color), GreenOf(color), BlueOf(color)); }

// What is in `shape`, without or within `other`, in one colour.
QImage Part(const QImage& shape, const QImage& other, QPainter::CompositionMode mode, QRgb color) {
  QImage part = shape;
  QPainter painter(&part);
  painter.setCompositionMode(mode);
  painter.drawImage(0, 0, other);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(QRectF(0, 0, part.width(), part.height()), QColor(color));
  return part;
}

}  // namespace

ShownParts PartsOf(ShowMode mode) {
  switch (mode) {
    case ShowMode::OnlyA:
      return {true, false, true};
    case ShowMode::OnlyB:
      return {false, true, true};
    case ShowMode::AMinusB:
      return {true, false, false};
    case ShowMode::BMinusA:
      return {false, true, false};
    case ShowMode::Overlap:
      return {false, false, true};
    case ShowMode::Diff:
      return {true, true, false};
    case ShowMode::Both:
    case ShowMode::Mixed:
      break;
  }
  return {true, true, true};
}

std::uint32_t LookTable::LookOf(const ItemOrigin& origin, LayerId layer) const {
  const bool selected = selectedLayers[static_cast<std::size_t>(layer)];
  if (origin.net != kNoNet) return (selected ? netsOnSelected : nets)[static_cast<std::size_t>(origin.net)];
  if (origin.component != kNoComponent) {
    return (selected ? componentsOnSelected : components)[static_cast<std::size_t>(origin.component)];
  }
  return layers[static_cast<std::size_t>(layer)];
}

CompareScene::CompareScene(std::shared_ptr<const BoardGeometry> a, std::shared_ptr<const BoardGeometry> b,
                           CompareStyle style)
    : a_(std::move(a)), b_(std::move(b)), style_(std::move(style)) {}

QRectF CompareScene::Bounds() const { return a_->bounds.united(b_->bounds); }

// The looks of what can be seen, each once.
std::vector<std::uint32_t> CompareScene::LooksOn(const LayerPair& pair, const QRectF& area, bool zones) const {
  std::vector<bool> seen(style_.looks.size(), false);
  std::vector<std::uint32_t> found;
  const auto collect = [&](const BoardGeometry& geometry, const LookTable& table, LayerId id) {
    if (id == kNoLayer) return;
    const LayerGeometry& layer = geometry.layers[static_cast<std::size_t>(id)];
    layer.grid.Find(area, found);
    for (const std::uint32_t item : found) {
      const ItemOrigin& origin =
          item < layer.lines.size() ? layer.lines[item].origin : layer.areas[item - layer.lines.size()].origin;
      if ((origin.kind == ItemKind::Zone) == zones) seen[table.LookOf(origin, id)] = true;
    }
  };
  collect(*a_, style_.a, pair.a);
  collect(*b_, style_.b, pair.b);
  std::vector<std::uint32_t> looks;
  for (std::uint32_t look = 0; look < seen.size(); ++look) {
    if (seen[look]) looks.push_back(look);
  }
  return looks;
}

bool CompareScene::MakeMask(QImage& mask, const Viewport& viewport, const BoardGeometry& geometry,
                            const LookTable& table, LayerId layer, std::uint32_t look, bool zones,
                            const IsStale& isStale) const {
  mask.fill(Qt::transparent);
  if (layer == kNoLayer) return true;
  Brushwork work(viewport, style_.view.thinnestLine);
  work.Add(geometry.layers[static_cast<std::size_t>(layer)], [&](const ItemOrigin& origin) {
    return (origin.kind == ItemKind::Zone) == zones && table.LookOf(origin, layer) == look ? kSolid : QRgb{0};
  });
  QPainter painter(&mask);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(viewport.ToPixels(), true);
  return work.Paint(painter, isStale);
}

bool CompareScene::PaintLayer(QPainter& painter, const Viewport& viewport, const LayerPair& layer,
                              const IsStale& isStale) const {
  QImage a = EmptyImage(*painter.device(), viewport);
  QImage b = EmptyImage(*painter.device(), viewport);
  for (const bool zones : {true, false}) {
    for (const std::uint32_t number : LooksOn(layer, viewport.Area(), zones)) {
      if (isStale() || !MakeMask(a, viewport, *a_, style_.a, layer.a, number, zones, isStale) ||
          !MakeMask(b, viewport, *b_, style_.b, layer.b, number, zones, isStale)) {
        return false;
      }
      const CompareLook& look = style_.looks[number];
      const ShownParts shown = PartsOf(look.showMode);
      const auto paint = [&](bool wanted, const QImage& shape, const QImage& other, QPainter::CompositionMode mode,
                             QRgb color) {
        if (wanted) painter.drawImage(QPointF(0, 0), Part(shape, other, mode, color));
      };
      QRgb overlap = ToRgb(look.colorOverlap == kNoColor ? look.colorA : look.colorOverlap);
      if (look.dimOverlap) overlap = Blended(overlap, style_.view.background, style_.view.dim);
      painter.setOpacity(zones ? kZoneOpacity : 1);
      paint(shown.overlap, a, b, QPainter::CompositionMode_DestinationIn, overlap);
      paint(shown.onlyA, a, b, QPainter::CompositionMode_DestinationOut, ToRgb(look.colorA));
      paint(shown.onlyB, b, a, QPainter::CompositionMode_DestinationOut, ToRgb(look.colorB));
      painter.setOpacity(1);
    }
  }
  return true;
}

void CompareScene::Paint(QPainter& painter, const Viewport& viewport, const IsStale& isStale) const {
  PaintBackground(painter, viewport, style_.view);
  for (const LayerPair& layer : style_.layers) {
    if (!PaintLayer(painter, viewport, layer, isStale)) return;
  }
}

}  // namespace oxviewer
