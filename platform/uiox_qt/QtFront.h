/// \file
/// The toolkit's state in real windows.
#ifndef OXECAD_UIOX_QT_QTFRONT_H
#define OXECAD_UIOX_QT_QTFRONT_H

#include <uiox/Front.h>
#include <uiox_qt/Export.h>

#include <memory>
#include <string_view>

class QWidget;

namespace uiox_qt {

class TreeView;

/// Shows the suite's devices with Qt Widgets and hands what the user does to `uiox::user`. It holds no state of its
/// own: what it shows is read from the suite, and a change of either side reaches the other once.
///
/// Make one after the QApplication, before the first device is shown, and end it before the QApplication. A device that
/// the application asks for with `WidgetFor` becomes a part of the application's window; any other device is a window
/// of its own while it is shown. All functions belong to the thread of the QApplication.
class OXECAD_UIOX_QT_API QtFront final : public uiox::Front {
 public:
  /// Becomes the suite's front and answers the colour picker (`oxcore/ColorPicker.h`).
  QtFront();
  /// Ends all windows and widgets of devices and gives the suite back to whatever answered before.
  ~QtFront() override;
  QtFront(const QtFront&) = delete;
  QtFront& operator=(const QtFront&) = delete;

  /// The window that dialogs belong to and are centred on; null: none. Not owned.
  void SetMainWindow(QWidget* window);
  /// The window that was set, or null.
  QWidget* MainWindow() const;

  /// The device's components in one widget, for the application to place in a window of its own; null when there is no
  /// such device. Made on the first call and the same afterwards. The caller places it but does not delete it: it
  /// ends with the device or the front, whichever is first. It is visible while the device is shown.
  QWidget* WidgetFor(std::string_view device);
  /// The view of a tree, for the application to place by itself; null when there is no such device or tree. Until it is
  /// given another parent it stays in its device's widget. Like `WidgetFor`, this makes the device a part of the
  /// application's window.
  TreeView* TreeViewFor(std::string_view device, std::string_view tree);
  /// The Qt widget that shows a component (a line edit, a combo box, a push button ...); null when there is none. Does
  /// not turn the device into a part of the application's window.
  QWidget* ComponentFor(std::string_view device, std::string_view component);
  /// The window of a device that is a window of its own; null when it has none (yet).
  QWidget* WindowFor(std::string_view device);

  // uiox::Front
  /// Rings the bell of the desktop.
  void Beep() override;
  void RunModal(uiox::Device& device) override;
  bool QueryScreen(uiox::ScreenSize& size) override;
  bool QueryGeometry(const uiox::Widget& widget, uiox::Rect& on_screen) override;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace uiox_qt

#endif
