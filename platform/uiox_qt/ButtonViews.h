/// \file
/// Push buttons and check buttons.
#ifndef OXECAD_UIOX_QT_BUTTONVIEWS_H
#define OXECAD_UIOX_QT_BUTTONVIEWS_H

#include <uiox_qt/ComponentView.h>

#include <QCheckBox>
#include <QPushButton>

namespace uiox_qt {

class PushButtonView final : public QPushButton, public ComponentView {
 public:
  explicit PushButtonView(uiox::Widget& component);

  QWidget& Qt() override { return *this; }

 protected:
  void FollowOwn(uiox::WidgetChange change) override;
  /// Enter presses the button that has the focus; the dialog's default button is for all other components.
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

/// Its state is the component's: a click asks for another one, and what the component makes of it is shown.
class CheckButtonView final : public QCheckBox, public ComponentView {
 public:
  explicit CheckButtonView(uiox::Widget& component);

  QWidget& Qt() override { return *this; }

 protected:
  void FollowOwn(uiox::WidgetChange change) override;
  void nextCheckState() override {}
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace uiox_qt

#endif
