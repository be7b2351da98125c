#include <uiox_qt/BalloonShape.h>

#include <uitoolsox/BalloonStyle.h>

#include <QPolygonF>

#include <algorithm>

namespace uiox_qt {
namespace {

constexpr int kArrowHeight = 14;
constexpr int kArrowHalfWidth = 9;
constexpr int kRadius = 8;

/// The styles of suites that name the quadrant itself.
constexpr std::uintptr_t kGreatestQuadrant = 9;

}  // namespace

bool FindBalloonArrow(std::uintptr_t style, BalloonArrow& arrow) {
  if (style == 0) return false;
  if (style <= kGreatestQuadrant) {
    arrow.at_top = style <= 3;
    arrow.at_left = style == 1 || style == 7;
    return true;
  }
  const auto* given = reinterpret_cast<const uitoolsox::BalloonStyle*>(style);
  arrow = {given->arrowAtTop, given->arrowAtLeft, given->arrowInset};
  return true;
}

QMargins BalloonMargins(const BalloonArrow& arrow) {
  constexpr int kBorder = 2;
  return {kBorder, kBorder + (arrow.at_top ? kArrowHeight : 0), kBorder, kBorder + (arrow.at_top ? 0 : kArrowHeight)};
}

QPainterPath BalloonPath(QSize size, const BalloonArrow& arrow) {
  constexpr qreal kHalf = 0.5;
  const qreal width = size.width();
  const qreal height = size.height();
  const qreal top = kHalf + (arrow.at_top ? kArrowHeight : 0);
  const qreal bottom = height - kHalf - (arrow.at_top ? 0 : kArrowHeight);
  QPainterPath body;
  body.addRoundedRect(QRectF(QPointF(kHalf, top), QPointF(width - kHalf, bottom)), kRadius, kRadius);

  const qreal nearest = kHalf + kRadius + kArrowHalfWidth;
  const qreal wanted = arrow.at_left ? arrow.inset : width - arrow.inset;
  const qreal x = std::clamp(wanted, nearest, std::max(nearest, width - nearest));
  const qreal root = arrow.at_top ? top + 1 : bottom - 1;
  const qreal tip = arrow.at_top ? kHalf : height - kHalf;
  QPainterPath point;
  point.addPolygon(
      QPolygonF({QPointF(x - kArrowHalfWidth, root), QPointF(x, tip), QPointF(x + kArrowHalfWidth, root)}));
  point.closeSubpath();
  return body.united(point);
}

}  // namespace uiox_qt
