#include <uiox/Suite.h>
#include <uiox/TreeWidget.h>
#include <uiox/detail/WidgetIndex.h>

namespace uiox {

TreeWidget::TreeWidget(Device& device, std::string name, TreeStyle style)
    : Widget(device, WidgetClass::Tree, std::move(name)), style_(std::move(style)), store_(style_.columns.size()) {}

TreeWidget::~TreeWidget() {
  for (const std::unique_ptr<Widget>& control : controls_) {
    if (control) Owner().Forget(*control);
  }
}

ColumnIndex TreeWidget::FindColumn(std::string_view name) const {
  for (std::size_t i = 0; i < style_.columns.size(); ++i) {
    if (style_.columns[i].name == name) return static_cast<ColumnIndex>(i);
  }
  return kNoColumn;
}

Widget* TreeWidget::CreateControl(std::string_view name, WidgetClass widget_class) {
  if (widget_class != WidgetClass::CheckButton && widget_class != WidgetClass::OptionMenu) return nullptr;
  if (name.empty() || Owner().Find(name)) return nullptr;
  auto made = std::make_unique<Widget>(Owner(), widget_class, std::string(name));
  if (free_controls_.empty()) {
    if (free_controls_.capacity() <= controls_.size()) free_controls_.reserve(2 * controls_.size() + 8);
    controls_.emplace_back();
    free_controls_.push_back(static_cast<ControlId>(controls_.size()));
  }
  made->control_of_ = this;
  made->control_ = free_controls_.back();
  Owner().Remember(*made);
  free_controls_.pop_back();
  Widget& control = *made;
  controls_[control.control_ - 1] = std::move(made);
  Owner().Host().Tell(&SuiteObserver::ControlCreated, control);
  return &control;
}

bool TreeWidget::DestroyControl(std::string_view name) {
  Widget* control = Owner().Find(name);
  if (!control || control->ControlOf() != this) return false;
  const ControlId id = control->Control();
  if (const CellPlace place = store_.PlaceOf(id)) store_.SetCellControl(place, kNoControl);
  Owner().Host().Tell(&SuiteObserver::AboutToDestroyControl, *control);
  Owner().Forget(*control);
  controls_[id - 1].reset();
  free_controls_.push_back(id);
  return true;
}

Widget* TreeWidget::FindControl(ControlId control) const {
  return control == kNoControl || control > controls_.size() ? nullptr : controls_[control - 1].get();
}

std::vector<Widget*> TreeWidget::Controls() const {
  std::vector<Widget*> controls;
  for (const std::unique_ptr<Widget>& control : controls_) {
    if (control) controls.push_back(control.get());
  }
  return controls;
}

}  // namespace uiox
