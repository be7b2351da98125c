/// \file
/// The Qt widgets of one device.
#ifndef OXECAD_UIOX_QT_DEVICEVIEW_H
#define OXECAD_UIOX_QT_DEVICEVIEW_H

#include <uiox/Device.h>
#include <uiox_qt/ComponentView.h>
#include <uiox_qt/DeviceWindow.h>

#include <QPointer>

#include <memory>
#include <unordered_map>
#include <vector>

namespace uiox_qt {

class PanelView;
class TreeView;

/// All that shows a device: a widget for each component, in one panel, in the application's window or in one of its
/// own. The widgets are ended with `deleteLater`: one of them may be what is at work.
class DeviceView {
 public:
  explicit DeviceView(uiox::Device& device);
  ~DeviceView();
  DeviceView(const DeviceView&) = delete;
  DeviceView& operator=(const DeviceView&) = delete;

  uiox::Device& Device() const { return device_; }
  QWidget* Panel() const;
  /// Null for a component without a widget, and where the widget has ended.
  QWidget* WidgetOf(const uiox::Widget& component) const;
  TreeView* ViewOf(const uiox::Widget& tree) const;
  DeviceWindow* Window() const { return window_; }

  /// From now on the application shows the device: gives what it places in its window. That stays; the panel in it is
  /// visible while the device is shown.
  QWidget* Embed();
  bool IsEmbedded() const { return embedded_; }

  void Show(QWidget* over);
  void Hide();
  void UpdateLayout();
  void Follow(uiox::Widget& component, uiox::WidgetChange change);
  /// Images were defined anew.
  void Repaint();

 private:
  struct Part {
    QPointer<QWidget> widget;
    ComponentView* view;
  };

  QWidget* Make(uiox::Widget& component);
  QWidget* MakeTree(uiox::TreeWidget& tree);
  void Fill(PanelView& panel);
  void FollowDevice(uiox::WidgetChange change);

  uiox::Device& device_;
  std::unordered_map<const uiox::Widget*, Part> parts_;
  std::vector<std::unique_ptr<ComponentView>> trees_;
  QPointer<QWidget> panel_;
  QPointer<QWidget> holder_;
  QPointer<DeviceWindow> window_;
  bool embedded_ = false;
};

}  // namespace uiox_qt

#endif
