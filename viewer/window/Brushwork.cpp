#include <viewer/window/Brushwork.h>

#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>

namespace oxviewer {
namespace {

constexpr double kThinnestInPixels = 1.0;
constexpr double kInvisibleInPixels = 0.2;
constexpr std::size_t kLot = 512;  // between two questions whether the picture is still wanted
constexpr std::array kKinds{ItemKind::Zone, ItemKind::Drawing, ItemKind::Track, ItemKind::Pad, ItemKind::Via};

int BlendedChannel(int from, int to, double share) { return static_cast<int>(std::lround(from + (to - from) * share)); }

}  // namespace

QImage EmptyImage(const QPaintDevice& device, const Viewport& viewport) {
  const double ratio = device.devicePixelRatioF();
  QImage image((QSizeF(viewport.size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  return image;
}

QRgb Blended(QRgb from, QRgb to, double share) {
  return qRgba(BlendedChannel(qRed(from), qRed(to), share), BlendedChannel(qGreen(from), qGreen(to), share),
               BlendedChannel(qBlue(from), qBlue(to), share), qAlpha(from));
}

Brushwork::Brushwork(const Viewport& viewport, double thinnest)
    : viewport_(viewport),
      thinnest_(std::max(thinnest, kThinnestInPixels / viewport.pixelsPerMm)),
      smallest_(kInvisibleInPixels / viewport.pixelsPerMm) {}

void Brushwork::Add(const LayerGeometry& layer, const ColorOfItem& colorOf) {
  layer.grid.Find(viewport_.Area(), found_);
  for (const std::uint32_t found : found_) {
    if (found < layer.lines.size()) {
      const LineItem& item = layer.lines[found];
      const QRgb color = colorOf(item.origin);
      if (qAlpha(color) != 0) lines_[{item.origin.kind, color, std::max(item.width, thinnest_)}].push_back(item.line);
    } else {
      const AreaItem& item = layer.areas[found - layer.lines.size()];
      if (item.box.width() < smallest_ && item.box.height() < smallest_) continue;
      const QRgb color = colorOf(item.origin);
      if (qAlpha(color) != 0) areas_[{item.origin.kind, color}].push_back(&item);
    }
  }
}

bool Brushwork::PaintAreas(QPainter& painter, ItemKind kind, const IsStale& isStale) const {
  painter.setPen(Qt::NoPen);
  std::size_t painted = 0;
  for (const auto& [key, items] : areas_) {
    if (key.first != kind) continue;
    painter.setBrush(QColor::fromRgba(key.second));
    for (const AreaItem* item : items) {
      if (++painted % kLot == 0 && isStale()) return false;
      painter.drawPath(item->path);
    }
  }
  return true;
}

// Coverages are added up: what two pieces cover of a pixel makes the whole of it at most. The colour comes last, since
// it would be added up as well.
bool Brushwork::PaintZones(QPainter& painter, const IsStale& isStale) const {
  for (const auto& [key, items] : areas_) {
    if (key.first != ItemKind::Zone) continue;
    const QColor color = QColor::fromRgba(key.second);
    QImage mask = EmptyImage(*painter.device(), viewport_);
    {
      QPainter filler(&mask);
      filler.setRenderHint(QPainter::Antialiasing);
      filler.setTransform(viewport_.ToPixels(), true);
      filler.setCompositionMode(QPainter::CompositionMode_Plus);
      filler.setPen(Qt::NoPen);
      filler.setBrush(Qt::white);
      for (const AreaItem* item : items) {
        if (isStale()) return false;
        filler.drawPath(item->path);
      }
      filler.resetTransform();
      filler.setCompositionMode(QPainter::CompositionMode_SourceIn);
      filler.fillRect(QRect(QPoint(0, 0), viewport_.size), QColor(color.rgb()));
    }
    painter.save();
    painter.resetTransform();
    painter.setOpacity(color.alphaF());
    painter.drawImage(QPointF(0, 0), mask);
    painter.restore();
  }
  return true;
}

bool Brushwork::PaintLines(QPainter& painter, ItemKind kind, const IsStale& isStale) const {
  painter.setBrush(Qt::NoBrush);
  for (const auto& [key, lines] : lines_) {
    if (std::get<0>(key) != kind) continue;
    painter.setPen(QPen(QColor::fromRgba(std::get<1>(key)), std::get<2>(key), Qt::SolidLine, Qt::RoundCap));
    for (std::size_t first = 0; first < lines.size(); first += kLot) {
      if (isStale()) return false;
      painter.drawLines(lines.data() + first, static_cast<int>(std::min(kLot, lines.size() - first)));
    }
  }
  return true;
}

bool Brushwork::Paint(QPainter& painter, const IsStale& isStale) const {
  for (const ItemKind kind : kKinds) {
    const bool areas = kind == ItemKind::Zone ? PaintZones(painter, isStale) : PaintAreas(painter, kind, isStale);
    if (!areas || !PaintLines(painter, kind, isStale)) return false;
  }
  return true;
}

}  // namespace oxviewer
