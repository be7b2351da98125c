#include <uiox_qt/OptionMenuView.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/Text.h>

#include <QAbstractItemView>
#include <QPointer>

namespace uiox_qt {

OptionMenuView::OptionMenuView(uiox::Widget& component) : ComponentView(component) {
  connect(this, &QComboBox::activated, this, [this](int row) {
    if (!Component()) return;
    const QPointer<OptionMenuView> alive(this);
    uiox::user::ChooseOption(*Component(), OptionName(*this, row));
    if (alive && Component()) FillOptionBox(*this, *Component());
  });
}

void OptionMenuView::FollowOwn(uiox::WidgetChange change) {
  if (change == uiox::WidgetChange::Label) {
    setAccessibleName(FromWide(Component()->Label()));
    view()->setAccessibleName(accessibleName());
  }
  if (change == uiox::WidgetChange::Items || change == uiox::WidgetChange::SelectedItem) {
    FillOptionBox(*this, *Component());
  }
}

void OptionMenuView::focusInEvent(QFocusEvent* event) {
  OptionBox::focusInEvent(event);
  TellFocus(*event);
}

void OptionMenuView::focusOutEvent(QFocusEvent* event) {
  OptionBox::focusOutEvent(event);
  TellFocus(*event);
}

}  // namespace uiox_qt
