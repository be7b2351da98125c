#include <uiox_qt/DeviceWindow.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/Screens.h>
#include <uiox_qt/Text.h>

#include <QPainter>
#include <QPainterPathStroker>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace uiox_qt {
namespace {

/// What changed while a window was hidden has not reached the layouts around it.
void ActivateLayouts(QWidget& widget) {
  for (QObject* child : widget.children()) {
    if (child->isWidgetType()) ActivateLayouts(*static_cast<QWidget*>(child));
  }
  if (!widget.layout()) return;
  widget.layout()->invalidate();
  widget.layout()->activate();
}

}  // namespace

DeviceWindow::DeviceWindow(uiox::Device& device, QWidget& panel)
    : device_(&device), panel_(&panel), known_(device.Geometry()) {
  setObjectName(FromName(device.Name()));
  setAttribute(Qt::WA_QuitOnClose, false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&panel);
  panel.setVisible(true);
  placed_ = known_.x != 0 || known_.y != 0;
  Follow(uiox::WidgetChange::Label);
  FollowLook();
}

void DeviceWindow::Detach() {
  device_ = nullptr;
  coming_up_ = false;
  if (panel_ && panel_->parentWidget() == this) panel_->setParent(nullptr);
  hide();
}

// --- Showing ---------------------------------------------------------------------------------------------------------

void DeviceWindow::ShowSoon(QWidget* over) {
  over_ = over;
  FollowLook();
  if (balloon_ || !sized_) FitSize();
  if (placed_) {
    FollowPlace();
  } else if (!isVisible()) {
    CentreOn(over);
  }
  if (isVisible() || coming_up_) return;
  coming_up_ = true;
  QMetaObject::invokeMethod(
      this, [this] { ComeUp(); }, Qt::QueuedConnection);
}

void DeviceWindow::ComeUp() {
  if (!coming_up_) return;
  coming_up_ = false;
  winId();  // so that there is a window that can be put above the other
  if (over_ && over_->window()->windowHandle()) windowHandle()->setTransientParent(over_->window()->windowHandle());
  const QPoint at = pos();
  show();
  if (pos() != at) move(at);
  raise();
  activateWindow();
}

void DeviceWindow::ShowModal() {
  if (isVisible() && windowModality() != Qt::ApplicationModal) hide();
  setWindowModality(Qt::ApplicationModal);
  if (isVisible()) return;
  coming_up_ = true;
  ComeUp();
}

void DeviceWindow::EndModal() {
  if (windowModality() == Qt::NonModal) return;
  const bool visible = isVisible();
  // A window's modality changes while it is down; most programs leave it there.
  hide();
  setWindowModality(Qt::NonModal);
  if (visible && device_ && device_->OnScreen()) ShowSoon(over_);
}

void DeviceWindow::HideNow() {
  coming_up_ = false;
  hide();
}

void DeviceWindow::reject() {
  if (device_) uiox::user::Close(*device_);
}

// --- Size and place --------------------------------------------------------------------------------------------------

void DeviceWindow::FitSize() {
  ensurePolished();
  ActivateLayouts(*this);
  adjustSize();
  if (!balloon_ && device_) {
    // A resource says what it wants; a program that set a size gets it.
    resize(std::max(width(), device_->Geometry().width), std::max(height(), device_->Geometry().height));
  }
  sized_ = true;
}

void DeviceWindow::UpdateLayout() {
  if (!device_) return;
  FollowLook();
  FitSize();
  known_ = device_->Geometry();
}

void DeviceWindow::FollowPlace() {
  move(ScreenInUse()->geometry().topLeft() + QPoint(device_->Geometry().x, device_->Geometry().y));
}

void DeviceWindow::CentreOn(const QWidget* over) {
  const QRect area = ScreenInUse()->availableGeometry();
  QRect place(QPoint(), size());
  place.moveCenter(over ? over->window()->geometry().center() : area.center());
  place.moveLeft(std::clamp(place.left(), area.left(), std::max(area.left(), area.right() - place.width())));
  place.moveTop(std::clamp(place.top(), area.top(), std::max(area.top(), area.bottom() - place.height())));
  move(place.topLeft());
}

void DeviceWindow::Follow(uiox::WidgetChange change) {
  if (!device_) return;
  switch (change) {
    case uiox::WidgetChange::Label:
      setWindowTitle(FromWide(device_->Label()));
      break;
    case uiox::WidgetChange::BalloonStyle:
      FollowLook();
      if (IsUp()) FitSize();
      break;
    case uiox::WidgetChange::Geometry: {
      const uiox::Rect now = device_->Geometry();
      placed_ = true;
      FollowPlace();
      if (now.width != known_.width || now.height != known_.height) {
        resize(now.width != known_.width ? now.width : width(), now.height != known_.height ? now.height : height());
        sized_ = true;
      }
      known_ = now;
      break;
    }
    default:
      break;
  }
}

// --- Look ------------------------------------------------------------------------------------------------------------

void DeviceWindow::FollowLook() {
  if (!device_) return;
  const bool balloon = FindBalloonArrow(device_->BalloonStyle(), arrow_);
  layout()->setContentsMargins(balloon ? BalloonMargins(arrow_) : QMargins());
  if (balloon != balloon_) {
    balloon_ = balloon;
    const bool visible = isVisible();
    setAttribute(Qt::WA_TranslucentBackground, balloon);
    setWindowFlags(balloon ? Qt::Dialog | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint
                           : Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    if (!balloon) clearMask();
    if (visible) show();
  }
  FollowMask();
  update();
}

/// Where nothing blends windows, what is outside the balloon must not be seen; the smooth edge lies within the mask.
void DeviceWindow::FollowMask() {
  if (!balloon_) return;
  QPainterPathStroker edge;
  edge.setWidth(2);
  const QPainterPath path = BalloonPath(size(), arrow_);
  setMask(QRegion(path.united(edge.createStroke(path)).toFillPolygon().toPolygon()));
}

void DeviceWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  FollowMask();
}

void DeviceWindow::paintEvent(QPaintEvent* event) {
  if (!balloon_) {
    QDialog::paintEvent(event);
    return;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Disabled, QPalette::WindowText), 1));
  painter.setBrush(palette().color(QPalette::Window));
  painter.drawPath(BalloonPath(size(), arrow_));
}

}  // namespace uiox_qt
