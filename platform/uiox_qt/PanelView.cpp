#include <uiox_qt/PanelView.h>

#include <uiox/Device.h>
#include <uiox/UserEvents.h>

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>

#include <algorithm>

namespace uiox_qt {
namespace {

constexpr int kDeviceMargin = 9;
constexpr int kGap = 6;

/// Lists take the room that is left; in a row, so do fields.
int StretchOf(const uiox::Widget& component, uiox::Arrangement arrangement) {
  switch (component.Class()) {
    case uiox::WidgetClass::Tree:
      return 1;
    case uiox::WidgetClass::Message:
    case uiox::WidgetClass::InputPanel:
      return arrangement == uiox::Arrangement::Row ? 1 : 0;
    case uiox::WidgetClass::Panel: {
      const auto& children = component.Children();
      return std::any_of(children.begin(), children.end(),
                         [](const uiox::Widget* child) { return StretchOf(*child, uiox::Arrangement::Column) > 0; });
    }
    default:
      return 0;
  }
}

QLayout* MakeLayout(uiox::Arrangement arrangement) {
  switch (arrangement) {
    case uiox::Arrangement::Column:
      return new QVBoxLayout;
    case uiox::Arrangement::Row:
      return new QHBoxLayout;
    case uiox::Arrangement::Stack:
      break;
  }
  return new QGridLayout;
}

}  // namespace

PanelView::PanelView(uiox::Widget& component) : ComponentView(component) {
  const bool is_device = component.Class() == uiox::WidgetClass::Dialog;
  QLayout* layout = MakeLayout(component.Layout());
  const int margin = is_device ? kDeviceMargin : 0;
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(kGap);
  setLayout(layout);
}

void PanelView::Append(QWidget& widget, const uiox::Widget& component) {
  if (auto* box = qobject_cast<QBoxLayout*>(layout())) {
    box->addWidget(&widget, StretchOf(component, Component()->Layout()));
  } else {
    static_cast<QGridLayout*>(layout())->addWidget(&widget, 0, 0);
  }
}

void PanelView::Finish() {
  auto* box = qobject_cast<QBoxLayout*>(layout());
  if (!box) return;
  const auto& children = Component()->Children();
  const bool stretches = std::any_of(children.begin(), children.end(), [this](const uiox::Widget* child) {
    return StretchOf(*child, Component()->Layout()) > 0;
  });
  if (HoldsButtonsOnly()) {
    box->insertStretch(0);  // as in other dialogs, buttons stand at the end
  } else if (!stretches) {
    box->addStretch();
  }
}

bool PanelView::HoldsButtonsOnly() const {
  const auto& children = Component()->Children();
  return Component()->Layout() == uiox::Arrangement::Row && !children.empty() &&
         std::all_of(children.begin(), children.end(),
                     [](const uiox::Widget* child) { return child->Class() == uiox::WidgetClass::PushButton; });
}

void PanelView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool is_device = Component() && Component()->Class() == uiox::WidgetClass::Dialog;
  if (!enter || !is_device || event->isAutoRepeat()) {
    QWidget::keyPressEvent(event);
    return;
  }
  event->accept();
  uiox::user::PressDefault(Component()->Owner());
}

}  // namespace uiox_qt
