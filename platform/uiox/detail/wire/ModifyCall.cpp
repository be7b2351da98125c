#include <uiox/detail/wire/Handlers.h>

namespace uiox::wire {

using oxecad_ui::toolkit::ComponentAttribute;

bool ReadNames(const Option& option, std::vector<std::string>& names) {
  const int count = option.value.Int();
  if (count < 0 || (count > 0 && option.array.word == 0)) return false;
  names.clear();
  for (int i = 0; i < count; ++i) {
    const char* name = option.array.Names()[i];
    if (!name) return false;
    names.emplace_back(name);
  }
  return true;
}

namespace {

/// One `ui_modify`: checked as a whole, then done in its order.
class Modification {
 public:
  Modification(Widget& widget, const Call& call) : widget_(widget), tree_(widget.AsTree()), call_(call) {}

  Status Check() {
    for (const Option& option : call_) {
      if (const Status status = CheckOne(option)) return status;
    }
    return CheckCell();
  }

  void Apply() {
    for (const Option& option : call_) ApplyOne(option);
    if (names_cell_) tree_->SetSelectedCell(cell_);
  }

 private:
  bool IsDevice() const { return widget_.Class() == WidgetClass::Dialog; }
  bool HasText() const {
    return widget_.Class() == WidgetClass::InputPanel || widget_.Class() == WidgetClass::OptionMenu;
  }

  Status CheckOne(const Option& option) {
    switch (static_cast<ComponentAttribute>(option.code)) {
      case ComponentAttribute::Label:
      case ComponentAttribute::Shown:
      case ComponentAttribute::Sensitive:
      case ComponentAttribute::Redraw:
      case ComponentAttribute::BackgroundColor:
      case ComponentAttribute::BalloonStyle:
        return kOk;
      case ComponentAttribute::Width:
      case ComponentAttribute::Height:
        return option.value.Int() >= 0 ? kOk : kRefused;
      case ComponentAttribute::Text:
        return HasText() ? kOk : kWrongComponent;
      case ComponentAttribute::TextMode:
        return widget_.Class() == WidgetClass::Message || widget_.Class() == WidgetClass::Label ? kOk : kWrongComponent;
      case ComponentAttribute::Focus:
      case ComponentAttribute::DefaultButton:
        if (!IsDevice()) return kWrongComponent;
        return TextOf(option.value).empty() || widget_.Owner().Find(TextOf(option.value)) ? kOk : kNoComponent;
      case ComponentAttribute::Names:
        return CheckNames(option);
      case ComponentAttribute::ActivatedNode:
        if (!tree_) return kWrongComponent;
        return TextOf(option.value).empty() || FindNode(*tree_, option.value) != kNoNode ? kOk : kUnknownNode;
      case ComponentAttribute::SelectedCellNode:
      case ComponentAttribute::SelectedCellColumn:
        return tree_ ? kOk : kWrongComponent;
      case ComponentAttribute::RootNode:
      case ComponentAttribute::ToggledNode:
      case ComponentAttribute::CheckedNode:
      case ComponentAttribute::SelectionKind:
      case ComponentAttribute::ClassName:
        return kRefused;  // these are only read
    }
    return kRefused;
  }

  Status CheckNames(const Option& option) {
    if (!tree_ && widget_.Class() != WidgetClass::Icon) return kWrongComponent;
    if (!ReadNames(option, names_)) return kRefused;
    nodes_.clear();
    for (std::size_t i = 0; tree_ && i < names_.size(); ++i) {
      nodes_.push_back(tree_->Store().Find(names_[i]));
      if (nodes_.back() == kNoNode) return kUnknownNode;
    }
    return kOk;
  }

  /// The selected cell is named by two attributes, in any order; an empty name in either clears it.
  Status CheckCell() {
    const Option* node = call_.Find(static_cast<int>(ComponentAttribute::SelectedCellNode));
    const Option* column = call_.Find(static_cast<int>(ComponentAttribute::SelectedCellColumn));
    if (!node && !column) return kOk;
    names_cell_ = true;
    const bool clears = (node && TextOf(node->value).empty()) || (column && TextOf(column->value).empty());
    if (clears) return kOk;
    cell_ = tree_->SelectedCell();
    if (node) cell_.node = FindNode(*tree_, node->value);
    if (column) cell_.column = tree_->FindColumn(TextOf(column->value));
    if (cell_.node == kNoNode) return kUnknownNode;
    return cell_.column == kNoColumn ? kNoCell : kOk;
  }

  void ApplyOne(const Option& option) {
    const Slot value = option.value;
    Device& device = widget_.Owner();
    constexpr int kKeep = oxecad_ui::toolkit::kKeepSize;
    switch (static_cast<ComponentAttribute>(option.code)) {
      case ComponentAttribute::Label:
        return widget_.SetLabel(WideOf(value));
      case ComponentAttribute::Shown:
        if (!IsDevice()) return widget_.SetShown(value.Int() != 0);
        return value.Int() != 0 ? device.Show() : device.Hide();
      case ComponentAttribute::Sensitive:
        return widget_.SetSensitive(value.Int() != 0);
      case ComponentAttribute::Text:
        return widget_.SetText(WideOf(value));
      case ComponentAttribute::Focus:
        device.SetFocus(TextOf(value));
        return;
      case ComponentAttribute::Redraw:
        return widget_.SetRedraw(value.Int() != 0);
      case ComponentAttribute::ActivatedNode:
        return tree_->SetActivatedNode(TextOf(value).empty() ? kNoNode : FindNode(*tree_, value));
      case ComponentAttribute::Width:
        return widget_.MoveAndResize(kKeep, kKeep, value.Int(), kKeep);
      case ComponentAttribute::Height:
        return widget_.MoveAndResize(kKeep, kKeep, kKeep, value.Int());
      case ComponentAttribute::Names:
        return tree_ ? tree_->Store().Select(nodes_) : widget_.SetImages(names_);
      case ComponentAttribute::TextMode:
        return widget_.SetTextMode(value.Int());
      case ComponentAttribute::BackgroundColor:
        return widget_.SetBackgroundColor(value.UInt());
      case ComponentAttribute::DefaultButton:
        device.SetDefaultButton(TextOf(value));
        return;
      case ComponentAttribute::BalloonStyle:
        return widget_.SetBalloonStyle(static_cast<std::uintptr_t>(value.word));
      case ComponentAttribute::SelectedCellNode:  // both together at the end
      case ComponentAttribute::SelectedCellColumn:
      case ComponentAttribute::RootNode:
      case ComponentAttribute::ToggledNode:
      case ComponentAttribute::CheckedNode:
      case ComponentAttribute::SelectionKind:
      case ComponentAttribute::ClassName:
        return;
    }
  }

  Widget& widget_;
  TreeWidget* tree_;
  const Call& call_;
  std::vector<std::string> names_;
  std::vector<NodeId> nodes_;
  CellPlace cell_;
  bool names_cell_ = false;
};

}  // namespace

Status Modify(Widget& widget, const Call& call) {
  Modification modification(widget, call);
  if (const Status status = modification.Check()) return status;
  modification.Apply();
  return kOk;
}

}  // namespace uiox::wire
