#include <uiox_qt/ComponentView.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/Text.h>

#include <QFocusEvent>
#include <QPalette>

namespace uiox_qt {

using uiox::WidgetChange;

void ComponentView::Follow(WidgetChange change) {
  QWidget& widget = Qt();
  switch (change) {
    case WidgetChange::Shown:
      if (widget.isHidden() == component_->Shown()) widget.setVisible(component_->Shown());
      break;
    case WidgetChange::Sensitive:
      widget.setEnabled(component_->Sensitive());
      break;
    case WidgetChange::Redraw:
      widget.setUpdatesEnabled(component_->Redraw());
      break;
    case WidgetChange::BackgroundColor: {
      const std::uint32_t color = component_->BackgroundColor();
      QPalette palette = widget.palette();
      palette.setColor(widget.backgroundRole(), QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF));
      widget.setPalette(palette);
      widget.setAutoFillBackground(true);
      break;
    }
    default:
      break;
  }
  FollowOwn(change);
}

void ComponentView::FollowAll() {
  QWidget& widget = Qt();
  widget.setObjectName(FromName(component_->Name()));
  if (const std::string* tooltip = component_->Property("tooltip")) widget.setToolTip(FromName(*tooltip));
  for (const WidgetChange change :
       {WidgetChange::Label, WidgetChange::TextMode, WidgetChange::Images, WidgetChange::Items,
        WidgetChange::SelectedItem, WidgetChange::Text, WidgetChange::CheckState, WidgetChange::Sensitive,
        WidgetChange::Shown, WidgetChange::Redraw}) {
    Follow(change);
  }
  const uiox::Widget::TextRange mark = component_->SelectedText();
  if (mark.from != mark.to) Follow(WidgetChange::SelectedText);
  constexpr std::uint32_t kPresetBackground = 0x00FFFFFF;
  if (component_->BackgroundColor() != kPresetBackground) Follow(WidgetChange::BackgroundColor);
}

void ComponentView::TellFocus(const QFocusEvent& event) const {
  if (!component_ || event.reason() == Qt::PopupFocusReason) return;
  if (event.gotFocus()) {
    uiox::user::FocusIn(*component_);
  } else {
    uiox::user::FocusOut(*component_);
  }
}

}  // namespace uiox_qt
