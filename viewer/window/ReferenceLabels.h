/// \file
/// The references of components written on the board.
#ifndef OXECAD_VIEWER_WINDOW_REFERENCELABELS_H
#define OXECAD_VIEWER_WINDOW_REFERENCELABELS_H

#include <viewer/board/Board.h>
#include <viewer/window/BoardGeometry.h>
#include <viewer/window/Viewport.h>

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <vector>

namespace oxviewer {

/// Writes each component's reference over its pads, as soon as the component is large enough for it in the picture.
class ReferenceLabels {
 public:
  ReferenceLabels(const Board& board, const BoardGeometry& geometry, const QFont& font);

  /// `painter` is one of pixels. Linear in the number of components.
  void Paint(QPainter& painter, const Viewport& viewport) const;

 private:
  struct Label {
    QString text;
    QRectF box;    // on the board
    double width;  // of the text in pixels
  };

  QFont font_;
  double height_;
  std::vector<Label> labels_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_REFERENCELABELS_H
