#include <uiox/Suite.h>
#include <uiox/detail/FoundComponent.h>
#include <uiox/detail/LayoutRun.h>
#include <uiox/detail/WidgetDetails.h>
#include <uiox/detail/WidgetIndex.h>

#include <algorithm>

namespace uiox {

Device::Device(Suite& suite, std::string name, std::string resource)
    : Widget(*this, WidgetClass::Dialog, std::move(name)),
      suite_(suite),
      resource_(std::move(resource)),
      index_(std::make_unique<detail::WidgetIndex>()) {
  index_->Add(*this);
}

Device::~Device() {
  // Trees take their cell controls out of the index.
  owned_.clear();
}

Widget* Device::Find(std::string_view name) const { return index_->Find(name); }

TreeWidget* Device::FindTree(std::string_view name) const {
  Widget* widget = Find(name);
  return widget ? widget->AsTree() : nullptr;
}

Widget* Device::Add(WidgetClass widget_class, std::string_view name, Widget* panel) {
  if (widget_class == WidgetClass::Dialog) return nullptr;
  if (widget_class == WidgetClass::Tree) return AddTree(name, {}, panel);
  if (name.empty() || Find(name)) return nullptr;
  return Adopt(std::make_unique<Widget>(*this, widget_class, std::string(name)), panel);
}

TreeWidget* Device::AddTree(std::string_view name, TreeStyle style, Widget* panel) {
  if (name.empty() || Find(name)) return nullptr;
  return Adopt(std::make_unique<TreeWidget>(*this, std::string(name), std::move(style)), panel)->AsTree();
}

Widget* Device::Adopt(std::unique_ptr<Widget> widget, Widget* panel) {
  Widget* const parent = panel ? panel : this;
  owned_.push_back(std::move(widget));
  Widget* const added = owned_.back().get();
  added->parent_ = parent;
  components_.push_back(added);
  parent->Need().children.push_back(added);
  Remember(*added);
  return added;
}

void Device::Remember(Widget& widget) { index_->Add(widget); }

void Device::Forget(Widget& widget) noexcept {
  index_->Remove(widget);
  detail::g_found_component.Forget();
}

const std::vector<Widget*>& Device::Components() const { return components_; }

void Device::Show() {
  if (on_screen_) return;
  on_screen_ = true;
  suite_.Tell(&SuiteObserver::DeviceShown, *this);
}

void Device::Hide() {
  if (!on_screen_) return;
  on_screen_ = false;
  suite_.Tell(&SuiteObserver::DeviceHidden, *this);
}

void Device::UpdateLayout() {
  detail::LayoutRun(*this).Run();
  suite_.Tell(&SuiteObserver::DeviceLayoutRequested, *this);
}

bool Device::InModalRun() const { return suite_.HasModalRun(*this); }

bool Device::SetFocus(std::string_view component) {
  if (!component.empty() && !Find(component)) return false;
  if (focus_ == component) return true;
  focus_ = component;
  Changed(WidgetChange::Focus);
  return true;
}

bool Device::SetDefaultButton(std::string_view component) {
  if (!component.empty() && !Find(component)) return false;
  if (default_button_ == component) return true;
  default_button_ = component;
  Changed(WidgetChange::DefaultButton);
  return true;
}

}  // namespace uiox
