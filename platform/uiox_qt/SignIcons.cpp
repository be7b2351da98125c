#include <uiox_qt/SignIcons.h>

#include <QPainterPath>
#include <QPolygonF>

namespace uiox_qt {
namespace {

/// Signs are drawn in a square of this side and scaled.
constexpr qreal kSide = 32;

void PaintGround(QPainter& painter, const QPainterPath& shape, QRgb color) {
  painter.setPen(QPen(QColor(color).darker(130), 1));
  painter.setBrush(QColor(color));
  painter.drawPath(shape);
}

QPainterPath Disc() {
  QPainterPath path;
  path.addEllipse(QRectF(2, 2, 28, 28));
  return path;
}

QPainterPath Octagon() {
  constexpr qreal kCut = 9;
  QPolygonF corners;
  corners << QPointF(2 + kCut, 2) << QPointF(30 - kCut, 2) << QPointF(30, 2 + kCut) << QPointF(30, 30 - kCut)
          << QPointF(30 - kCut, 30) << QPointF(2 + kCut, 30) << QPointF(2, 30 - kCut) << QPointF(2, 2 + kCut);
  QPainterPath path;
  path.addPolygon(corners);
  path.closeSubpath();
  return path;
}

QPainterPath Triangle() {
  QPainterPath path;
  path.addPolygon(QPolygonF({QPointF(16, 2.5), QPointF(30.5, 28.5), QPointF(1.5, 28.5)}));
  path.closeSubpath();
  return path;
}

QPainterPath Bubble() {
  QPainterPath body;
  body.addRoundedRect(QRectF(2, 2, 28, 22), 6, 6);
  QPainterPath tail;
  tail.addPolygon(QPolygonF({QPointF(8, 22), QPointF(8, 30), QPointF(17, 22)}));
  tail.closeSubpath();
  return body.united(tail);
}

void PaintBar(QPainter& painter, const QLineF& bar, const QPointF& dot, QRgb color) {
  painter.setPen(QPen(QColor(color), 3.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(bar);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(color));
  painter.drawEllipse(dot, 2.2, 2.2);
}

void PaintQuestionMark(QPainter& painter) {
  QPainterPath hook;
  hook.moveTo(11.6, 9.6);
  hook.cubicTo(11.8, 4.6, 20.4, 4.6, 20.4, 9.4);
  hook.cubicTo(20.4, 12.2, 16, 12.4, 16, 15.6);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(hook);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawEllipse(QPointF(16, 20.2), 1.9, 1.9);
}

}  // namespace

bool IsSign(std::string_view word) {
  return word == "warning" || word == "info" || word == "question" || word == "error";
}

void PaintSign(QPainter& painter, const QRectF& rect, std::string_view word) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(rect.topLeft());
  painter.scale(rect.width() / kSide, rect.height() / kSide);
  if (word == "warning") {
    PaintGround(painter, Triangle(), 0xF5B400);
    PaintBar(painter, {16, 11.5, 16, 19}, {16, 24.2}, 0x202020);
  } else if (word == "info") {
    PaintGround(painter, Disc(), 0x1F6FC4);
    PaintBar(painter, {16, 15.5, 16, 23}, {16, 9.2}, 0xFFFFFF);
  } else if (word == "question") {
    PaintGround(painter, Bubble(), 0x3C7A3C);
    PaintQuestionMark(painter);
  } else {
    PaintGround(painter, Octagon(), 0xC62828);
    painter.setPen(QPen(Qt::white, 3.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QLineF(11, 11, 21, 21));
    painter.drawLine(QLineF(21, 11, 11, 21));
  }
  painter.restore();
}

}  // namespace uiox_qt
