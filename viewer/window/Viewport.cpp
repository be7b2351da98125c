#include <viewer/window/Viewport.h>

#include <algorithm>

namespace oxviewer {
namespace {

constexpr double kRoomAround = 0.04;

}  // namespace

QTransform Viewport::ToPixels() const {
  QTransform transform = QTransform::fromTranslate(size.width() / 2.0, size.height() / 2.0);
  transform.scale(fromBack ? -pixelsPerMm : pixelsPerMm, pixelsPerMm);
  transform.translate(-center.x(), -center.y());
  return transform;
}

QPointF Viewport::ToBoard(QPointF pixel) const { return ToPixels().inverted().map(pixel); }

QRectF Viewport::Area() const {
  const double width = size.width() / pixelsPerMm;
  const double height = size.height() / pixelsPerMm;
  return {center.x() - width / 2, center.y() - height / 2, width, height};
}

void Viewport::Fit(const QRectF& area) {
  const double horizontal = size.width() * (1 - 2 * kRoomAround) / std::max(area.width(), 1e-3);
  const double vertical = size.height() * (1 - 2 * kRoomAround) / std::max(area.height(), 1e-3);
  pixelsPerMm = std::clamp(std::min(horizontal, vertical), kSmallestScale, kLargestScale);
  center = area.center();
}

void Viewport::ZoomAt(QPointF pixel, double factor) {
  const QPointF fixed = ToBoard(pixel);
  pixelsPerMm = std::clamp(pixelsPerMm * factor, kSmallestScale, kLargestScale);
  center += fixed - ToBoard(pixel);
}

void Viewport::Pan(QPointF pixels) { center -= QPointF(pixels.x() * (fromBack ? -1 : 1), pixels.y()) / pixelsPerMm; }

}  // namespace oxviewer
