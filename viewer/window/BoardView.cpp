#include <viewer/window/BoardView.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace oxviewer {
namespace {

constexpr double kZoomPerStep = 1.25;
constexpr double kAnglePerStep = 120;
constexpr double kKeyPan = 64;          // pixels
constexpr double kMarginShare = 0.125;  // of the view, painted beyond each of its edges
constexpr double kPickTolerance = 4;    // pixels
constexpr QRgb kFrameColor = qRgb(0xFF, 0xC8, 0x3C);
constexpr QRgb kHintColor = qRgb(0x9A, 0xA4, 0xB0);

}  // namespace

BoardView::BoardView(QWidget* parent) : QWidget(parent), background_(qRgb(0x16, 0x1B, 0x21)) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(160, 120);
  connect(&renderer_, &FrameRenderer::FrameReady, this, [this](const Frame& frame) {
    frame_ = frame;
    update();
  });
}

BoardView::~BoardView() = default;

void BoardView::SetScene(std::shared_ptr<const Scene> scene) {
  const bool first = !scene_;
  scene_ = std::move(scene);
  if (!scene_) frame_ = {};
  if (first) {
    FitAll();
  } else {
    Ask();
  }
}

void BoardView::SetViewport(const Viewport& viewport) {
  const QSize own = viewport_.size;
  viewport_ = viewport;
  viewport_.size = own;
  fitted_ = false;
  Changed();
}

void BoardView::FitAll() {
  if (scene_) viewport_.Fit(scene_->Bounds());
  fitted_ = true;
  Changed();
}

void BoardView::FitTo(const QRectF& area) {
  viewport_.Fit(area);
  fitted_ = false;
  Changed();
}

void BoardView::ZoomBy(double factor) {
  viewport_.ZoomAt(QRectF(rect()).center(), factor);
  fitted_ = false;
  Changed();
}

void BoardView::SetSeenFromBack(bool fromBack) {
  viewport_.fromBack = fromBack;
  Changed();
}

void BoardView::SetFrames(std::vector<QRectF> frames) {
  frames_ = std::move(frames);
  update();
}

void BoardView::SetOverlay(std::function<void(QPainter&, const Viewport&)> overlay) {
  overlay_ = std::move(overlay);
  update();
}

void BoardView::SetBackground(QColor color) {
  background_ = color;
  update();
}

void BoardView::SetHint(const QString& hint) {
  hint_ = hint;
  update();
}

void BoardView::RenderNow() {
  if (!scene_) return;
  renderer_.Cancel();
  frame_ = FrameRenderer::Render(scene_, WithMargin(), devicePixelRatioF());
  update();
}

bool BoardView::IsSharp() const {
  return !scene_ || (frame_.scene == scene_ && frame_.viewport == WithMargin() && frame_.ratio == devicePixelRatioF());
}

void BoardView::Changed() {
  Ask();
  Q_EMIT ViewportChanged();
}

void BoardView::Ask() {
  if (scene_) {
    renderer_.Request(scene_, WithMargin(), devicePixelRatioF());
  } else {
    renderer_.Cancel();
  }
  update();
}

Viewport BoardView::WithMargin() const {
  Viewport larger = viewport_;
  larger.size +=
      QSize(static_cast<int>(size().width() * kMarginShare) * 2, static_cast<int>(size().height() * kMarginShare) * 2);
  return larger;
}

void BoardView::PaintFrame(QPainter& painter) const {
  const bool moved = frame_.viewport.pixelsPerMm != viewport_.pixelsPerMm ||
                     frame_.viewport.center != viewport_.center || frame_.viewport.fromBack != viewport_.fromBack;
  if (!moved) {
    const QSize margin = (frame_.viewport.size - size()) / 2;
    painter.drawImage(QPointF(-margin.width(), -margin.height()), frame_.image);
    return;
  }
  painter.setTransform(frame_.viewport.ToPixels().inverted() * viewport_.ToPixels());
  painter.drawImage(QPointF(0, 0), frame_.image);
  painter.resetTransform();
}

void BoardView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), background_);
  if (!scene_) {
    painter.setPen(QColor(kHintColor));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, hint_);
    return;
  }
  if (!frame_.image.isNull()) PaintFrame(painter);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(kFrameColor), 2));
  painter.setBrush(Qt::NoBrush);
  const QTransform toPixels = viewport_.ToPixels();
  for (const QRectF& frame : frames_) painter.drawRoundedRect(toPixels.mapRect(frame).adjusted(-4, -4, 4, 4), 3, 3);
  if (overlay_) overlay_(painter, viewport_);
}

void BoardView::resizeEvent(QResizeEvent* /*event*/) {
  viewport_.size = size();
  if (fitted_) {
    FitAll();
  } else {
    Changed();
  }
}

void BoardView::wheelEvent(QWheelEvent* event) {
  const QPoint turned = event->angleDelta();
  const double steps = (turned.y() != 0 ? turned.y() : turned.x()) / kAnglePerStep;
  if (steps == 0) return event->ignore();
  if (event->modifiers() & Qt::ShiftModifier) {
    viewport_.Pan(QPointF(steps * kKeyPan, 0));
  } else if (event->modifiers() & Qt::ControlModifier) {
    viewport_.Pan(QPointF(0, steps * kKeyPan));
  } else {
    viewport_.ZoomAt(event->position(), std::pow(kZoomPerStep, steps));
  }
  fitted_ = false;
  event->accept();
  Changed();
  Q_EMIT PointerMoved(viewport_.ToBoard(event->position()));
}

void BoardView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton) return event->ignore();
  pressed_ = last_ = event->position();
  dragging_ = true;
  mayClick_ = event->button() == Qt::LeftButton;
}

void BoardView::mouseMoveEvent(QMouseEvent* event) {
  const QPointF now = event->position();
  if (dragging_) {
    if ((now - pressed_).manhattanLength() >= QApplication::styleHints()->startDragDistance()) mayClick_ = false;
    if (!mayClick_) {
      setCursor(Qt::ClosedHandCursor);
      viewport_.Pan(now - last_);
      last_ = now;
      fitted_ = false;
      Changed();
    }
  }
  Q_EMIT PointerMoved(viewport_.ToBoard(now));
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
  if (!std::exchange(dragging_, false)) return event->ignore();
  unsetCursor();
  if (std::exchange(mayClick_, false) && scene_) {
    Q_EMIT Picked(viewport_.ToBoard(event->position()), kPickTolerance / viewport_.pixelsPerMm,
                  (event->modifiers() & Qt::ControlModifier) != 0);
  }
}

void BoardView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) FitAll();
}

void BoardView::leaveEvent(QEvent* /*event*/) { Q_EMIT PointerLeft(); }

void BoardView::keyPressEvent(QKeyEvent* event) {
  const auto pan = [this](double x, double y) {
    viewport_.Pan(QPointF(x, y));
    fitted_ = false;
    Changed();
  };
  switch (event->key()) {
    case Qt::Key_F:
    case Qt::Key_Home:
      return FitAll();
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return ZoomBy(kZoomPerStep);
    case Qt::Key_Minus:
      return ZoomBy(1 / kZoomPerStep);
    case Qt::Key_Left:
      return pan(kKeyPan, 0);
    case Qt::Key_Right:
      return pan(-kKeyPan, 0);
    case Qt::Key_Up:
      return pan(0, kKeyPan);
    case Qt::Key_Down:
      return pan(0, -kKeyPan);
    default:
      return QWidget::keyPressEvent(event);
  }
}

}  // namespace oxviewer
