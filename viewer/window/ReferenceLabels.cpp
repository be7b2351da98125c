#include <viewer/window/ReferenceLabels.h>

#include <QFontMetricsF>

namespace oxviewer {
namespace {

constexpr double kRoom = 4;  // pixels around a text
constexpr QRgb kInk = qRgb(0xFF, 0xFF, 0xFF);
constexpr QRgb kPaper = qRgba(0x10, 0x14, 0x18, 0xB0);

}  // namespace

ReferenceLabels::ReferenceLabels(const Board& board, const BoardGeometry& geometry, const QFont& font) : font_(font) {
  const QFontMetricsF metrics(font_);
  height_ = metrics.height();
  for (std::size_t i = 0; i < board.components.size(); ++i) {
    const QRectF& box = geometry.componentBoxes[i];
    const QString text = QString::fromStdString(board.components[i].reference);
    if (!text.isEmpty() && !box.isNull()) labels_.push_back({text, box, metrics.horizontalAdvance(text)});
  }
}

void ReferenceLabels::Paint(QPainter& painter, const Viewport& viewport) const {
  const QRectF area = viewport.Area();
  const QTransform toPixels = viewport.ToPixels();
  painter.setFont(font_);
  for (const Label& label : labels_) {
    if (!label.box.intersects(area)) continue;
    const QRectF box = toPixels.mapRect(label.box);
    if (box.width() < label.width + 2 * kRoom || box.height() < height_ + 2 * kRoom) continue;
    QRectF plate(0, 0, label.width + kRoom, height_);
    plate.moveCenter(box.center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(kPaper));
    painter.drawRoundedRect(plate, 2, 2);
    painter.setPen(QColor(kInk));
    painter.drawText(plate, Qt::AlignCenter, label.text);
  }
}

}  // namespace oxviewer
