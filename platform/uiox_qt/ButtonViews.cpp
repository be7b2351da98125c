#include <uiox_qt/ButtonViews.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/Text.h>

#include <QKeyEvent>
#include <QSignalBlocker>

namespace uiox_qt {
namespace {

/// A label as it is: Qt takes "&" for a mark of the key that presses the button.
QString ButtonText(const uiox::Widget& button) { return FromWide(button.Label()).replace(u'&', QLatin1String("&&")); }

}  // namespace

PushButtonView::PushButtonView(uiox::Widget& component) : ComponentView(component) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] {
    if (Component()) uiox::user::Press(*Component());
  });
}

void PushButtonView::FollowOwn(uiox::WidgetChange change) {
  if (change == uiox::WidgetChange::Label) setText(ButtonText(*Component()));
}

void PushButtonView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !event->isAutoRepeat()) {
    click();
  } else if (!enter) {
    QPushButton::keyPressEvent(event);
  }
}

void PushButtonView::focusInEvent(QFocusEvent* event) {
  QPushButton::focusInEvent(event);
  TellFocus(*event);
}

void PushButtonView::focusOutEvent(QFocusEvent* event) {
  QPushButton::focusOutEvent(event);
  TellFocus(*event);
}

CheckButtonView::CheckButtonView(uiox::Widget& component) : ComponentView(component) {
  connect(this, &QCheckBox::clicked, this, [this] {
    if (Component()) uiox::user::Press(*Component());
  });
}

void CheckButtonView::FollowOwn(uiox::WidgetChange change) {
  if (change == uiox::WidgetChange::Label) setText(ButtonText(*Component()));
  if (change == uiox::WidgetChange::CheckState) {
    const unsigned state = Component()->CheckState();
    const QSignalBlocker quiet(this);
    setTristate(state == 2);
    setCheckState(state == 0 ? Qt::Unchecked : state == 2 ? Qt::PartiallyChecked : Qt::Checked);
    update();
  }
}

void CheckButtonView::focusInEvent(QFocusEvent* event) {
  QCheckBox::focusInEvent(event);
  TellFocus(*event);
}

void CheckButtonView::focusOutEvent(QFocusEvent* event) {
  QCheckBox::focusOutEvent(event);
  TellFocus(*event);
}

}  // namespace uiox_qt
