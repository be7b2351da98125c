#include <uiox/detail/NodeTable.h>
#include <uiox/detail/wire/Handlers.h>

namespace uiox::wire {

using oxecad_ui::toolkit::CellAttribute;
using oxecad_ui::toolkit::ControlAttribute;

namespace {

/// The cell that the first two positional slots name.
Status FindCell(const TreeWidget& tree, const Call& call, CellPlace& cell) {
  cell.node = FindNode(tree, call.positional[0]);
  if (cell.node == kNoNode) return kUnknownNode;
  cell.column = tree.FindColumn(TextOf(call.positional[1]));
  return cell.column == kNoColumn ? kNoCell : kOk;
}

Status FindCellControl(const TreeWidget& tree, const Call& call, Widget*& control) {
  CellPlace cell;
  if (const Status status = FindCell(tree, call, cell)) return status;
  control = tree.ControlIn(cell);
  return control ? kOk : kNoCell;
}

/// Rows are mostly set from left to right, one after the other. Their cells, and the controls in them, lie anywhere in
/// memory, which takes its time: they are fetched before they are needed.
void FetchNext(const TreeWidget& tree, CellPlace cell) {
  const NodeTable& table = tree.Store().Table();
  const detail::CellTable& cells = table.Cells();
  const auto fetch_control = [&](CellPlace place) {
    const ControlId control = cells.Control(place);
    if (control != kNoControl) __builtin_prefetch(tree.FindControl(control));
  };
  const auto last_column = static_cast<ColumnIndex>(cells.Columns() - 1);
  if (cell.column != last_column) fetch_control({cell.node, static_cast<ColumnIndex>(cell.column + 1)});
  if (cell.column != 0) return;
  __builtin_prefetch(cells.Address({table.ChildAhead(1), 0}));
  __builtin_prefetch(cells.Address({table.ChildAhead(1), last_column}));
  fetch_control({table.ChildAhead(0), last_column});
}

/// The control that a slot names; `kNoControl` for null and the empty name. False when it is none of the tree's.
bool FindControl(const TreeWidget& tree, Slot slot, ControlId& control) {
  control = kNoControl;
  if (TextOf(slot).empty()) return true;
  const Widget* widget = tree.Owner().Find(TextOf(slot));
  if (!widget || widget->ControlOf() != &tree) return false;
  control = widget->Control();
  return true;
}

/// What a list of options wants of a control, checked as a whole before anything is set.
class ControlChange {
 public:
  ControlChange(const Call& call, WidgetClass widget_class) : class_(widget_class) {
    for (const Option& option : call) status_ = status_ == kOk ? Read(option) : status_;
    if (status_ == kOk && has_images_ && images_.size() > names_.size()) status_ = kRefused;
  }

  Status Check(const std::vector<Item>& items_now) const {
    if (status_ != kOk || !has_selected_) return status_;
    if (has_names_) return Has(names_, selected_) ? kOk : kRefused;
    for (const Item& item : items_now) {
      if (item.name == selected_) return kOk;
    }
    return kRefused;
  }

  void Apply(Widget& control) const {
    if (has_names_) control.SetItems(Items());
    if (visible_items_ >= 0) control.SetVisibleItems(visible_items_);
    if (has_selected_) control.SetSelectedItem(selected_);
    if (check_state_ >= 0) control.SetCheckState(static_cast<unsigned>(check_state_));
  }

 private:
  static bool Has(const std::vector<std::string>& names, const std::string& name) {
    for (const std::string& other : names) {
      if (other == name) return true;
    }
    return false;
  }

  Status Read(const Option& option) {
    const auto attribute = static_cast<ControlAttribute>(option.code);
    const bool for_check_button = attribute == ControlAttribute::CheckState;
    if (for_check_button != (class_ == WidgetClass::CheckButton)) return kWrongComponent;
    switch (attribute) {
      case ControlAttribute::CheckState:
        if (option.value.UInt() > 2) return kRefused;
        check_state_ = option.value.Int();
        return kOk;
      case ControlAttribute::VisibleItems:
        visible_items_ = option.value.Int();
        return visible_items_ >= 0 ? kOk : kRefused;
      case ControlAttribute::ItemNames:
        has_names_ = true;
        return ReadNames(option, names_) ? kOk : kRefused;
      case ControlAttribute::ItemImages:
        has_images_ = true;
        return ReadNames(option, images_) ? kOk : kRefused;
      case ControlAttribute::SelectedItem:
        has_selected_ = true;
        selected_ = TextOf(option.value);
        return kOk;
    }
    return kRefused;
  }

  std::vector<Item> Items() const {
    std::vector<Item> items;
    for (std::size_t i = 0; i < names_.size(); ++i) {
      items.push_back({names_[i], i < images_.size() ? images_[i] : std::string(), {}});
    }
    return items;
  }

  WidgetClass class_;
  Status status_ = kOk;
  std::vector<std::string> names_;
  std::vector<std::string> images_;
  std::string selected_;
  bool has_names_ = false;
  bool has_images_ = false;
  bool has_selected_ = false;
  int visible_items_ = -1;
  int check_state_ = -1;
};

}  // namespace

Status CreateControl(TreeWidget& tree, const Call& call) {
  WidgetClass widget_class{};
  if (!ParseClassName(TextOf(call.positional[1]), widget_class)) return kRefused;
  const ControlChange change(call, widget_class);
  if (const Status status = change.Check({})) return status;
  Widget* control = tree.CreateControl(TextOf(call.positional[0]), widget_class);
  if (!control) return kRefused;
  try {
    change.Apply(*control);
  } catch (...) {
    tree.DestroyControl(TextOf(call.positional[0]));
    throw;
  }
  return kOk;
}

Status DestroyControl(TreeWidget& tree, const Call& call) {
  return tree.DestroyControl(TextOf(call.positional[0])) ? kOk : kNoComponent;
}

Status SetCell(TreeWidget& tree, const Call& call) {
  CellPlace cell;
  if (const Status status = FindCell(tree, call, cell)) return status;
  FetchNext(tree, cell);
  ControlId control = kNoControl;
  for (const Option& option : call) {
    const bool names_control = option.code == static_cast<int>(CellAttribute::Control);
    if (names_control && !FindControl(tree, option.value, control)) return kNoComponent;
  }
  for (const Option& option : call) {
    switch (static_cast<CellAttribute>(option.code)) {
      case CellAttribute::Label:
        tree.Store().SetCellLabel(cell, WideOf(option.value));
        break;
      case CellAttribute::Control:
        FindControl(tree, option.value, control);
        tree.Store().SetCellControl(cell, control);
        break;
    }
  }
  return kOk;
}

Status GetCell(TreeWidget& tree, const Call& call) {
  CellPlace cell;
  if (const Status status = FindCell(tree, call, cell)) return status;
  if (!HasPlaces(call)) return kNoPlace;
  for (const Option& option : call) {
    switch (static_cast<CellAttribute>(option.code)) {
      case CellAttribute::Label:
        Answer<const wchar_t*>(option.value, tree.Store().CellLabel(cell));
        break;
      case CellAttribute::Control: {
        const Widget* control = tree.ControlIn(cell);
        Answer<const char*>(option.value, control ? control->Name() : "");
        break;
      }
    }
  }
  return kOk;
}

Status SetCellControl(TreeWidget& tree, const Call& call) {
  Widget* control = nullptr;
  if (const Status status = FindCellControl(tree, call, control)) return status;
  // The one option of almost every call.
  if (call.option_count == 1 && call.options[0].code == static_cast<int>(ControlAttribute::CheckState)) {
    if (control->Class() != WidgetClass::CheckButton) return kWrongComponent;
    if (call.options[0].value.UInt() > 2) return kRefused;
    control->SetCheckState(call.options[0].value.UInt());
    return kOk;
  }
  const ControlChange change(call, control->Class());
  if (const Status status = change.Check(control->Items())) return status;
  change.Apply(*control);
  return kOk;
}

Status GetCellControl(TreeWidget& tree, const Call& call) {
  Widget* control = nullptr;
  if (const Status status = FindCellControl(tree, call, control)) return status;
  if (!HasPlaces(call)) return kNoPlace;
  for (const Option& option : call) {
    const bool for_check_button = option.code == static_cast<int>(ControlAttribute::CheckState);
    if (for_check_button != (control->Class() == WidgetClass::CheckButton)) return kWrongComponent;
  }
  for (const Option& option : call) {
    switch (static_cast<ControlAttribute>(option.code)) {
      case ControlAttribute::CheckState:
        Answer<std::uint32_t>(option.value, control->CheckState());
        break;
      case ControlAttribute::VisibleItems:
        Answer<int>(option.value, control->VisibleItems());
        break;
      case ControlAttribute::ItemNames:
      case ControlAttribute::ItemImages: {
        const bool images = option.code == static_cast<int>(ControlAttribute::ItemImages);
        int count = 0;
        const char* const* names =
            control->LentNames(images ? Widget::NameList::ItemImages : Widget::NameList::ItemNames, count);
        if (option.array.word != 0) Answer<const char* const*>(option.array, names);
        Answer<int>(option.value, count);
        break;
      }
      case ControlAttribute::SelectedItem:
        Answer<const char*>(option.value, control->SelectedItem().c_str());
        break;
    }
  }
  return kOk;
}

}  // namespace uiox::wire
