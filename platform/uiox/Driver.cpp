#include <uiox/Driver.h>
#include <uiox/Suite.h>

namespace uiox {

namespace {

/// What a name means to the user of one device; null and none where it means nothing.
class Names {
 public:
  explicit Names(std::string_view device) : device_(Suite::Get().FindDevice(device)) {}

  Device* TheDevice() const { return device_; }
  Widget* Component(std::string_view name) const { return device_ ? device_->Find(name) : nullptr; }
  TreeWidget* Tree(std::string_view name) const { return device_ ? device_->FindTree(name) : nullptr; }

  static CellPlace Cell(const TreeWidget& tree, std::string_view node, std::string_view column) {
    const CellPlace cell{tree.Store().Find(node), tree.FindColumn(column)};
    return cell.column == kNoColumn ? CellPlace{} : cell;
  }

 private:
  Device* device_;
};

}  // namespace

bool Driver::Activate(std::string_view tree, std::string_view node) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::Activate(*found, found->Store().Find(node));
}

bool Driver::Select(std::string_view tree, const std::vector<std::string>& nodes, int kind,
                    std::string_view current) const {
  TreeWidget* found = Names(device_).Tree(tree);
  if (!found) return false;
  std::vector<NodeId> ids;
  ids.reserve(nodes.size());
  for (const std::string& node : nodes) ids.push_back(found->Store().Find(node));
  const NodeId now = current.empty() ? kNoNode : found->Store().Find(current);
  return (current.empty() || now != kNoNode) && user::Select(*found, ids, kind, now);
}

bool Driver::ToggleSelected(std::string_view tree, std::string_view node) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::ToggleSelected(*found, found->Store().Find(node));
}

bool Driver::Expand(std::string_view tree, std::string_view node) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::Expand(*found, found->Store().Find(node));
}

bool Driver::Collapse(std::string_view tree, std::string_view node) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::Collapse(*found, found->Store().Find(node));
}

bool Driver::Check(std::string_view tree, std::string_view node) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::Check(*found, found->Store().Find(node));
}

bool Driver::ClickCell(std::string_view tree, std::string_view node, std::string_view column) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::ClickCell(*found, Names::Cell(*found, node, column));
}

bool Driver::ToggleCellCheck(std::string_view tree, std::string_view node, std::string_view column) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::ToggleCellCheck(*found, Names::Cell(*found, node, column));
}

bool Driver::ChooseCellOption(std::string_view tree, std::string_view node, std::string_view column,
                              std::string_view item) const {
  TreeWidget* found = Names(device_).Tree(tree);
  return found && user::ChooseCellOption(*found, Names::Cell(*found, node, column), item);
}

bool Driver::Press(std::string_view button) const {
  Widget* found = Names(device_).Component(button);
  return found && user::Press(*found);
}

bool Driver::ChooseOption(std::string_view menu, std::string_view item) const {
  Widget* found = Names(device_).Component(menu);
  return found && user::ChooseOption(*found, item);
}

bool Driver::Type(std::string_view field, std::wstring_view text) const {
  for (const wchar_t unit : text) {
    // Each keystroke starts from what the callbacks of the one before have left.
    Widget* found = Names(device_).Component(field);
    if (!found) return false;
    std::wstring typed = found->Text();
    const Widget::TextRange marked = found->SelectedText();
    if (marked.to > marked.from) {
      typed.replace(marked.from, marked.to - marked.from, 1, unit);
    } else {
      typed += unit;
    }
    if (!user::EnterText(*found, typed)) return false;
  }
  return Names(device_).Component(field) != nullptr;
}

bool Driver::SetText(std::string_view field, std::wstring_view text) const {
  Widget* found = Names(device_).Component(field);
  return found && user::EnterText(*found, text);
}

bool Driver::FocusIn(std::string_view component) const {
  Widget* found = Names(device_).Component(component);
  return found && user::FocusIn(*found);
}

bool Driver::FocusOut(std::string_view component) const {
  Widget* found = Names(device_).Component(component);
  return found && user::FocusOut(*found);
}

bool Driver::Close() const {
  Device* found = Names(device_).TheDevice();
  return found && user::Close(*found);
}

bool Driver::PressDefault() const {
  Device* found = Names(device_).TheDevice();
  return found && user::PressDefault(*found);
}

}  // namespace uiox
