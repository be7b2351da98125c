#include <uiox_qt/DeviceView.h>

#include <uiox_qt/ButtonViews.h>
#include <uiox_qt/FieldView.h>
#include <uiox_qt/OptionMenuView.h>
#include <uiox_qt/PanelView.h>
#include <uiox_qt/Text.h>
#include <uiox_qt/TextViews.h>
#include <uiox_qt/TreeView.h>

#include <QPushButton>
#include <QVBoxLayout>

namespace uiox_qt {
namespace {

class TreePart final : public ComponentView {
 public:
  explicit TreePart(uiox::TreeWidget& tree) : ComponentView(tree), view_(new TreeView(tree)) {}

  TreeView* View() const { return view_; }
  QWidget& Qt() override { return *view_; }
  void Detach() override {
    if (view_) view_->Detach();
    ComponentView::Detach();
  }

 protected:
  void FollowOwn(uiox::WidgetChange change) override {
    if (change == uiox::WidgetChange::Sensitive || change == uiox::WidgetChange::Redraw) view_->FollowWidget();
  }

 private:
  QPointer<TreeView> view_;
};

/// A width that a resource gives is the least for what a user types into or presses.
void KeepWidth(QWidget& widget, const uiox::Widget& component) {
  const bool keeps = component.Class() == uiox::WidgetClass::InputPanel ||
                     component.Class() == uiox::WidgetClass::OptionMenu ||
                     component.Class() == uiox::WidgetClass::PushButton;
  if (keeps && component.Geometry().width > 0) widget.setMinimumWidth(component.Geometry().width);
}

}  // namespace

DeviceView::DeviceView(uiox::Device& device) : device_(device) {
  auto* panel = new PanelView(device);
  panel_ = panel;
  parts_[&device] = {panel, panel};
  Fill(*panel);
  panel->setObjectName(FromName(device.Name()));
  FollowDevice(uiox::WidgetChange::DefaultButton);
}

DeviceView::~DeviceView() {
  for (auto& [component, part] : parts_) {
    if (part.widget) part.view->Detach();
  }
  if (window_) {
    window_->Detach();
    window_->deleteLater();
  }
  for (QWidget* top : {holder_.data(), panel_.data()}) {
    if (!top) continue;
    top->hide();
    top->deleteLater();
  }
  for (auto& [component, part] : parts_) {
    // A tree may have been placed elsewhere.
    if (part.widget && !(panel_ && (panel_ == part.widget || panel_->isAncestorOf(part.widget)))) {
      part.widget->hide();
      part.widget->deleteLater();
    }
  }
}

// --- Making ----------------------------------------------------------------------------------------------------------

void DeviceView::Fill(PanelView& panel) {
  for (uiox::Widget* child : panel.Component()->Children()) {
    QWidget* widget = Make(*child);
    panel.Append(*widget, *child);
    KeepWidth(*widget, *child);
    parts_[child].view->FollowAll();
  }
  panel.Finish();
}

QWidget* DeviceView::Make(uiox::Widget& component) {
  const auto keep = [&](auto* view) -> QWidget* {
    parts_[&component] = {view, view};
    return view;
  };
  switch (component.Class()) {
    case uiox::WidgetClass::Tree:
      return MakeTree(*component.AsTree());
    case uiox::WidgetClass::InputPanel:
      return keep(new FieldView(component));
    case uiox::WidgetClass::OptionMenu:
      return keep(new OptionMenuView(component));
    case uiox::WidgetClass::PushButton:
      return keep(new PushButtonView(component));
    case uiox::WidgetClass::CheckButton:
      return keep(new CheckButtonView(component));
    case uiox::WidgetClass::Label:
    case uiox::WidgetClass::Message:
      return keep(new TextView(component));
    case uiox::WidgetClass::Icon:
      return keep(new IconView(component));
    case uiox::WidgetClass::Dialog:
    case uiox::WidgetClass::Panel:
      break;
  }
  auto* panel = new PanelView(component);
  keep(panel);
  Fill(*panel);
  return panel;
}

QWidget* DeviceView::MakeTree(uiox::TreeWidget& tree) {
  auto part = std::make_unique<TreePart>(tree);
  TreeView* view = part->View();
  parts_[&tree] = {view, part.get()};
  trees_.push_back(std::move(part));
  return view;
}

// --- Finding ---------------------------------------------------------------------------------------------------------

QWidget* DeviceView::Panel() const { return panel_; }

QWidget* DeviceView::WidgetOf(const uiox::Widget& component) const {
  const auto found = parts_.find(&component);
  return found == parts_.end() ? nullptr : found->second.widget.data();
}

TreeView* DeviceView::ViewOf(const uiox::Widget& tree) const {
  return tree.AsTree() ? static_cast<TreeView*>(WidgetOf(tree)) : nullptr;
}

// --- Showing ---------------------------------------------------------------------------------------------------------

QWidget* DeviceView::Embed() {
  if (embedded_ || !panel_) return holder_;
  embedded_ = true;
  holder_ = new QWidget;
  auto* layout = new QVBoxLayout(holder_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(panel_);
  panel_->setVisible(device_.OnScreen());
  if (window_) {
    window_->Detach();
    window_->deleteLater();
    window_ = nullptr;
  }
  FollowDevice(uiox::WidgetChange::DefaultButton);
  return holder_;
}

void DeviceView::Show(QWidget* over) {
  if (!panel_) return;
  if (embedded_) {
    panel_->setVisible(true);
    return;
  }
  if (!window_) window_ = new DeviceWindow(device_, *panel_);
  window_->ShowSoon(over);
  FollowDevice(uiox::WidgetChange::Focus);
}

void DeviceView::Hide() {
  if (embedded_ && panel_) panel_->setVisible(false);
  if (window_) window_->HideNow();
}

void DeviceView::UpdateLayout() {
  if (window_) {
    window_->UpdateLayout();
  } else if (panel_ && panel_->layout()) {
    panel_->layout()->activate();
  }
}

void DeviceView::Follow(uiox::Widget& component, uiox::WidgetChange change) {
  if (&component == &device_) {
    FollowDevice(change);
    return;
  }
  const auto found = parts_.find(&component);
  if (found != parts_.end() && found->second.widget) found->second.view->Follow(change);
}

void DeviceView::FollowDevice(uiox::WidgetChange change) {
  switch (change) {
    case uiox::WidgetChange::Focus:
      if (const uiox::Widget* component = device_.Focus().empty() ? nullptr : device_.Find(device_.Focus())) {
        QWidget* widget = component == &device_ ? nullptr : WidgetOf(*component);
        if (widget && !widget->hasFocus()) widget->setFocus(Qt::OtherFocusReason);
      }
      break;
    case uiox::WidgetChange::DefaultButton:
      for (const auto& [component, part] : parts_) {
        if (auto* button = qobject_cast<QPushButton*>(part.widget.data())) {
          button->setDefault(!embedded_ && device_.DefaultButton() == component->Name());
        }
      }
      break;
    case uiox::WidgetChange::Sensitive:
      if (panel_) panel_->setEnabled(device_.Sensitive());
      break;
    case uiox::WidgetChange::Redraw:
      if (panel_) panel_->setUpdatesEnabled(device_.Redraw());
      break;
    default:
      if (window_) window_->Follow(change);
      break;
  }
}

void DeviceView::Repaint() {
  for (const auto& [component, part] : parts_) {
    if (!part.widget) continue;
    if (component->AsTree()) {
      static_cast<TreeView*>(part.widget.data())->viewport()->update();
    } else if (component->Class() == uiox::WidgetClass::Icon) {
      part.widget->update();
    }
  }
}

}  // namespace uiox_qt
