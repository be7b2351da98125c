/// \file
/// The signs of messages.
#ifndef OXECAD_UIOX_QT_SIGNICONS_H
#define OXECAD_UIOX_QT_SIGNICONS_H

#include <QPainter>
#include <QRectF>

#include <string_view>

namespace uiox_qt {

/// Whether it is one of the words that an icon of a message may name: "warning", "info", "question", "error".
bool IsSign(std::string_view word);

/// Draws the sign of a word. Each has a shape of its own, so that none is told by its colour alone.
void PaintSign(QPainter& painter, const QRectF& rect, std::string_view word);

}  // namespace uiox_qt

#endif
