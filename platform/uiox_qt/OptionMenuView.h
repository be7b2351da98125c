/// \file
/// Option menus that are components of their own.
#ifndef OXECAD_UIOX_QT_OPTIONMENUVIEW_H
#define OXECAD_UIOX_QT_OPTIONMENUVIEW_H

#include <uiox_qt/ComponentView.h>
#include <uiox_qt/OptionBox.h>

namespace uiox_qt {

/// A combo box. What is chosen goes to the component; what the component then says is shown.
class OptionMenuView final : public OptionBox, public ComponentView {
 public:
  explicit OptionMenuView(uiox::Widget& component);

  QWidget& Qt() override { return *this; }

 protected:
  void FollowOwn(uiox::WidgetChange change) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace uiox_qt

#endif
