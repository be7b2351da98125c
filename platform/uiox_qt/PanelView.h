/// \file
/// What holds other components.
#ifndef OXECAD_UIOX_QT_PANELVIEW_H
#define OXECAD_UIOX_QT_PANELVIEW_H

#include <uiox_qt/ComponentView.h>

#include <QWidget>

class QBoxLayout;

namespace uiox_qt {

/// A panel, or the inside of a device.
class PanelView final : public QWidget, public ComponentView {
 public:
  explicit PanelView(uiox::Widget& component);

  QWidget& Qt() override { return *this; }
  /// Places a component's widget behind those that are there.
  void Append(QWidget& widget, const uiox::Widget& component);
  /// All are there.
  void Finish();

 protected:
  void FollowOwn(uiox::WidgetChange) override {}
  /// Enter that no component wanted presses the device's default button.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool HoldsButtonsOnly() const;
};

}  // namespace uiox_qt

#endif
