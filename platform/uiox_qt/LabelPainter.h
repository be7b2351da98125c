/// \file
/// Draws a label on one line.
#ifndef OXECAD_UIOX_QT_LABELPAINTER_H
#define OXECAD_UIOX_QT_LABELPAINTER_H

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QString>

namespace uiox_qt {

/// How a label is drawn.
struct LabelStyle {
  QFont font;
  QColor color;
  bool own_colors = true;  ///< whether the colours of the label's markup are used
  QColor ground;           ///< put behind images, so that they are seen on any colour; invalid: nothing
  bool center = false;     ///< in the middle of the rectangle rather than at its left
};

/// Draws a label in the vertical middle of a rectangle; what does not fit is replaced by an ellipsis. `markup`: whether
/// the label is markup or plain text. A label without a markup character costs no more than plain text.
void PaintLabel(QPainter& painter, const QRect& rect, const QString& label, bool markup, const LabelStyle& style);

/// The width that a label wants, in device-independent pixels.
int LabelWidth(const QString& label, bool markup, const QFont& font);

}  // namespace uiox_qt

#endif
