/// \file
/// What part of the board a picture shows.
#ifndef OXECAD_VIEWER_WINDOW_VIEWPORT_H
#define OXECAD_VIEWER_WINDOW_VIEWPORT_H

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

namespace oxviewer {

/// A place on the board in the middle of a picture, and a scale. Millimetres on the board, device-independent pixels in
/// the picture.
struct Viewport {
  QPointF center;
  double pixelsPerMm = 10;
  bool fromBack = false;  ///< seen through the board: left and right change places
  QSize size{1, 1};

  static constexpr double kSmallestScale = 0.02;
  static constexpr double kLargestScale = 20000;

  QTransform ToPixels() const;
  QPointF ToBoard(QPointF pixel) const;
  /// What can be seen.
  QRectF Area() const;

  /// Shows all of an area with a little room around it.
  void Fit(const QRectF& area);
  /// Changes the scale by a factor; the place below a pixel stays there.
  void ZoomAt(QPointF pixel, double factor);
  /// Moves what is shown by so many pixels.
  void Pan(QPointF pixels);

  friend bool operator==(const Viewport&, const Viewport&) = default;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_VIEWPORT_H
