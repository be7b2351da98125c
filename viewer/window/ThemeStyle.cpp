#include <viewer/window/ThemeStyle.h>

#include <QPainter>
#include <QStyleOption>

namespace oxviewer {
namespace {

constexpr double kFrameStrength = 0.6;  // of the text's colour over the background's

QColor Between(const QColor& from, const QColor& to, double share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
  return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

void DrawCheckBox(const QStyleOption& option, QPainter& painter) {
  const QPalette::ColorGroup group = option.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
  const QColor base = option.palette.color(group, QPalette::Base);
  const QColor text = option.palette.color(group, QPalette::Text);
  const double side = std::min(option.rect.width(), option.rect.height()) - 1.0;
  const QRectF box(option.rect.center().x() - side / 2 + 0.5, option.rect.center().y() - side / 2 + 0.5, side, side);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Between(base, text, kFrameStrength), 1));
  painter.setBrush(base);
  painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 1.5, 1.5);
  if (option.state & QStyle::State_NoChange) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Between(base, text, kFrameStrength));
    painter.drawRect(box.adjusted(side * 0.28, side * 0.28, -side * 0.28, -side * 0.28));
  } else if (option.state & QStyle::State_On) {
    painter.setPen(QPen(text, side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({box.topLeft() + QPointF(side * 0.24, side * 0.52), box.topLeft() + QPointF(side * 0.43, side * 0.72),
                   box.topLeft() + QPointF(side * 0.78, side * 0.28)}));
  }
  painter.restore();
}

}  // namespace

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck) {
    DrawCheckBox(*option, *painter);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

}  // namespace oxviewer
