/// \file
/// The picture of a board that the user moves about in.
#ifndef OXECAD_VIEWER_WINDOW_BOARDVIEW_H
#define OXECAD_VIEWER_WINDOW_BOARDVIEW_H

#include <viewer/window/FrameRenderer.h>
#include <viewer/window/Scene.h>
#include <viewer/window/Viewport.h>

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace oxviewer {

/// Shows a scene. What is on the screen is always the last picture, moved and scaled to where the view is now, so that
/// the view follows the hand whatever the board; a sharp picture of the new place follows from another thread.
///
///   wheel                      zooms at the pointer; with Shift moves sideways, with Ctrl up and down
///   drag                       moves the board
///   click                      picks what lies under the pointer
///   double click, F, Home      shows the whole board
///   + - arrows                 zoom and move
class BoardView : public QWidget {
  Q_OBJECT

 public:
  explicit BoardView(QWidget* parent = nullptr);
  ~BoardView() override;

  /// Shows another scene in the same place; null: nothing. The first scene is fitted into the view.
  void SetScene(std::shared_ptr<const Scene> scene);
  const std::shared_ptr<const Scene>& CurrentScene() const { return scene_; }

  const Viewport& CurrentViewport() const { return viewport_; }
  void SetViewport(const Viewport& viewport);
  /// Whether the whole board is shown whatever the size of the view, since nobody has moved it.
  bool IsFitted() const { return fitted_; }
  void FitAll();
  void FitTo(const QRectF& area);
  void ZoomBy(double factor);
  void SetSeenFromBack(bool fromBack);

  /// Areas of the board that are framed on top of the picture.
  void SetFrames(std::vector<QRectF> frames);
  /// Painted on top of the picture, on a painter of pixels.
  void SetOverlay(std::function<void(QPainter&, const Viewport&)> overlay);

  /// The colour around the board.
  void SetBackground(QColor color);
  /// The text shown where there is no scene.
  void SetHint(const QString& hint);

  /// Paints the picture of the present place at once, without waiting for the other thread.
  void RenderNow();
  /// Whether what is on the screen is a sharp picture of the present scene and place.
  bool IsSharp() const;

 Q_SIGNALS:
  /// The pointer is at a place of the board, in millimetres.
  void PointerMoved(QPointF place);
  void PointerLeft();
  /// The user clicked a place of the board. `tolerance` in millimetres is how far off that may be.
  void Picked(QPointF place, double tolerance, bool extend);
  void ViewportChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Changed();
  void Ask();
  Viewport WithMargin() const;
  void PaintFrame(QPainter& painter) const;

  std::shared_ptr<const Scene> scene_;
  Viewport viewport_;
  Frame frame_;
  bool fitted_ = true;  // the view follows a resize until the user has moved it
  std::vector<QRectF> frames_;
  std::function<void(QPainter&, const Viewport&)> overlay_;
  QColor background_;
  QString hint_;
  QPointF pressed_;
  QPointF last_;
  bool dragging_ = false;
  bool mayClick_ = false;
  FrameRenderer renderer_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_BOARDVIEW_H
