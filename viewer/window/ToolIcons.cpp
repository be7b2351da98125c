#include <viewer/window/ToolIcons.h>

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace oxviewer {
namespace {

// Signs are drawn on a field of 16 by 16.
constexpr double kField = 16;
constexpr double kStroke = 1.4;

void DrawLens(QPainter& painter) {
  painter.drawEllipse(QPointF(6.8, 6.8), 4.6, 4.6);
  painter.drawLine(QPointF(10.2, 10.2), QPointF(14, 14));
}

void DrawChevron(QPainter& painter, double from, double to) {
  painter.drawPolyline(QPolygonF({QPointF(3, from), QPointF(8, to), QPointF(13, from)}));
}

void DrawCorners(QPainter& painter) {
  for (const double x : {2.5, 13.5}) {
    for (const double y : {2.5, 13.5}) {
      const double inwardX = x < 8 ? 3.5 : -3.5;
      const double inwardY = y < 8 ? 3.5 : -3.5;
      painter.drawPolyline(QPolygonF({QPointF(x + inwardX, y), QPointF(x, y), QPointF(x, y + inwardY)}));
    }
  }
}

void DrawFolder(QPainter& painter) {
  painter.drawPolygon(
      QPolygonF({QPointF(2, 4), QPointF(6, 4), QPointF(7.5, 5.8), QPointF(14, 5.8), QPointF(14, 13), QPointF(2, 13)}));
}

void DrawSun(QPainter& painter) {
  painter.setBrush(painter.pen().color());
  painter.drawEllipse(QPointF(8, 8), 2.6, 2.6);
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i < 8; ++i) {
    painter.save();
    painter.translate(8, 8);
    painter.rotate(i * 45);
    painter.drawLine(QPointF(4.8, 0), QPointF(6.6, 0));
    painter.restore();
  }
}

void DrawFlip(QPainter& painter) {
  painter.drawPolygon(QPolygonF({QPointF(6, 3.5), QPointF(6, 12.5), QPointF(1.8, 12.5)}));
  painter.setBrush(painter.pen().color());
  painter.drawPolygon(QPolygonF({QPointF(10, 3.5), QPointF(10, 12.5), QPointF(14.2, 12.5)}));
}

void Draw(QPainter& painter, ToolSign sign) {
  switch (sign) {
    case ToolSign::Open:
      return DrawFolder(painter);
    case ToolSign::Fit:
      return DrawCorners(painter);
    case ToolSign::ZoomIn:
      painter.drawLine(QPointF(6.8, 4.6), QPointF(6.8, 9));
      [[fallthrough]];
    case ToolSign::ZoomOut:
      painter.drawLine(QPointF(4.6, 6.8), QPointF(9, 6.8));
      return DrawLens(painter);
    case ToolSign::Highlight:
      return DrawSun(painter);
    case ToolSign::Isolate:
      painter.setBrush(painter.pen().color());
      painter.drawEllipse(QPointF(8, 8), 2.2, 2.2);
      painter.setBrush(Qt::NoBrush);
      return DrawCorners(painter);
    case ToolSign::Clear:
      painter.drawLine(QPointF(4, 4), QPointF(12, 12));
      painter.drawLine(QPointF(12, 4), QPointF(4, 12));
      return;
    case ToolSign::Flip:
      return DrawFlip(painter);
    case ToolSign::Next:
      return DrawChevron(painter, 5.5, 10.5);
    case ToolSign::Previous:
      return DrawChevron(painter, 10.5, 5.5);
  }
}

class SignEngine : public QIconEngine {
 public:
  explicit SignEngine(ToolSign sign) : sign_(sign) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kField, rect.height() / kField);
    painter->setPen(QPen(QApplication::palette().color(group, QPalette::ButtonText), kStroke, Qt::SolidLine,
                         Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    Draw(*painter, sign_);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new SignEngine(sign_); }

 private:
  ToolSign sign_;
};

}  // namespace

QIcon ToolIcon(ToolSign sign) { return QIcon(new SignEngine(sign)); }

}  // namespace oxviewer
