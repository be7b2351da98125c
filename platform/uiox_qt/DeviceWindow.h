/// \file
/// The window of a device.
#ifndef OXECAD_UIOX_QT_DEVICEWINDOW_H
#define OXECAD_UIOX_QT_DEVICEWINDOW_H

#include <uiox/Device.h>
#include <uiox_qt/BalloonShape.h>

#include <QDialog>
#include <QPointer>

namespace uiox_qt {

/// Shows a device that is a window of its own: a dialog, or, with a balloon style, a balloon.
///
/// A program shows a device, reads its size, places it and runs it modally, one call after the other. So the window is
/// laid out at once, but comes up when control returns to the event loop or the modal run begins: where it belongs.
class DeviceWindow final : public QDialog {
 public:
  DeviceWindow(uiox::Device& device, QWidget& panel);

  /// The device ends, or the application shows it itself: the window goes, without its panel, which belongs to the
  /// device.
  void Detach();

  /// `over`: what it is centred on where the program does not place it; may be null.
  void ShowSoon(QWidget* over);
  void ShowModal();
  void EndModal();
  void HideNow();
  /// Whether it is up or about to come up.
  bool IsUp() const { return coming_up_ || isVisible(); }

  void UpdateLayout();
  void Follow(uiox::WidgetChange change);

  /// Escape and the window's own button: the callbacks of the device say what follows.
  void reject() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FollowLook();
  void FollowMask();
  void FollowPlace();
  void FitSize();
  void ComeUp();
  void CentreOn(const QWidget* over);

  uiox::Device* device_;
  QPointer<QWidget> panel_;
  QPointer<QWidget> over_;
  uiox::Rect known_;  // the component's geometry, to see what of it changes
  BalloonArrow arrow_;
  bool balloon_ = false;
  bool coming_up_ = false;
  bool placed_ = false;
  bool sized_ = false;
};

}  // namespace uiox_qt

#endif
