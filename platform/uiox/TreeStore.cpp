#include <uiox/TreeStore.h>
#include <uiox/detail/NodeTable.h>
#include <uiox/detail/WideCodec.h>

#include <algorithm>

namespace uiox {

namespace {

std::wstring Decoded(const void* block) {
  if (!block) return {};
  std::wstring text(detail::WideCodec::Length(block), L'\0');
  detail::WideCodec::Read(block, text.data());
  return text;
}

}  // namespace

TreeStore::TreeStore(std::size_t columns) : table_(std::make_unique<NodeTable>(columns)) {}
TreeStore::~TreeStore() = default;

template <class... Parameters, class... Arguments>
void TreeStore::Tell(void (TreeObserver::*event)(Parameters...), Arguments... arguments) const {
  for (TreeObserver* observer : observers_) (observer->*event)(arguments...);
}

void TreeStore::TellChanged(bool changed, NodeId node, NodeChanges changes) const {
  if (changed && !observers_.empty()) Tell(&TreeObserver::NodeChanged, node, changes);
}

void TreeStore::AddObserver(TreeObserver* observer) { observers_.push_back(observer); }
void TreeStore::RemoveObserver(TreeObserver* observer) { std::erase(observers_, observer); }
std::size_t TreeStore::MemoryUse() const { return table_->MemoryUse(); }

// --- Shape -----------------------------------------------------------------------------------------------------------

NodeId TreeStore::Find(std::string_view name) const { return table_->Find(name); }
NodeId TreeStore::Root() const { return table_->Children().At(kTop, 0); }
std::size_t TreeStore::Size() const { return table_->Size(); }
bool TreeStore::Has(NodeId node) const { return table_->Has(node); }
NodeId TreeStore::Parent(NodeId node) const { return table_->Parent(node); }
std::uint32_t TreeStore::ChildCount(NodeId node) const { return table_->Children().Count(node); }
NodeId TreeStore::ChildAt(NodeId node, std::uint32_t row) const { return table_->Children().At(node, row); }
std::uint32_t TreeStore::RowOf(NodeId node) const { return table_->Children().RowOf(node); }

void TreeStore::AppendChildren(NodeId node, std::vector<NodeId>& children) const {
  children.reserve(children.size() + ChildCount(node));
  table_->Children().ForEach(node, [&](NodeId child) { children.push_back(child); });
}

bool TreeStore::IsWithin(NodeId node, NodeId ancestor) const {
  while (node != ancestor && node != kTop) node = Parent(node);
  return node == ancestor;
}

NodeId TreeStore::Add(const NewNode& node, NodeId parent, NodeId before) {
  if (node.name.empty() || node.name.find('\0') != std::string_view::npos) return kNoNode;
  if (Find(node.name) != kNoNode) return kNoNode;
  if (before != kNoNode && (!Has(before) || Parent(before) != parent)) return kNoNode;
  const NodeId added = table_->Make(node);
  if (observers_.empty()) {
    table_->Place(added, parent, before);
    return added;
  }
  const std::uint32_t row = before == kNoNode ? ChildCount(parent) : RowOf(before);
  Tell(&TreeObserver::AboutToAdd, parent, row);
  table_->Place(added, parent, before);
  Tell(&TreeObserver::Added, added, parent, row);
  if (IsSelected(added)) Tell(&TreeObserver::SelectionChanged);
  return added;
}

void TreeStore::Remove(NodeId node) {
  const NodeId parent = Parent(node);
  const bool all = parent == kTop && ChildCount(kTop) == 1;
  const std::vector<NodeId> subtree = all ? std::vector<NodeId>() : table_->Subtree(node);
  const std::uint32_t row = observers_.empty() ? 0 : RowOf(node);
  const std::size_t selected = SelectionSize();
  Tell(&TreeObserver::AboutToRemove, node, parent, row);
  if (all) {
    table_->Clear();
  } else {
    table_->Remove(subtree);
  }
  Tell(&TreeObserver::Removed, parent, row);
  if (SelectionSize() != selected) Tell(&TreeObserver::SelectionChanged);
}

void TreeStore::Clear() {
  while (Root() != kNoNode) Remove(Root());
}

bool TreeStore::Move(NodeId node, NodeId parent, NodeId before) {
  if (parent != kTop && IsWithin(parent, node)) return false;
  if (before != kNoNode && (!Has(before) || Parent(before) != parent)) return false;
  if (before == node) return true;
  const NodeId from = Parent(node);
  if (before == kNoNode && from == parent && table_->Children().IsLast(node)) return true;
  table_->PrepareMove();
  if (observers_.empty()) {
    table_->Move(node, parent, before);
    return true;
  }
  const std::uint32_t row = RowOf(node);
  const std::uint32_t to_row = before == kNoNode ? ChildCount(parent) : RowOf(before);
  if (from == parent && (to_row == row || to_row == row + 1)) return true;
  Tell(&TreeObserver::AboutToMove, node, from, row, parent, to_row);
  table_->Move(node, parent, before);
  Tell(&TreeObserver::Moved, node, from, parent, RowOf(node));
  return true;
}

// --- Attributes ------------------------------------------------------------------------------------------------------

const char* TreeStore::Name(NodeId node) const { return table_->Name(node); }
std::wstring TreeStore::Label(NodeId node) const { return Decoded(table_->Label(node)); }
std::wstring TreeStore::SecondText(NodeId node) const { return Decoded(table_->SecondText(node)); }
TypeId TreeStore::Type(NodeId node) const { return table_->Type(node); }

void TreeStore::SetLabel(NodeId node, std::wstring_view label) {
  TellChanged(table_->SetLabel(node, label), node, kLabelChanged);
}

void TreeStore::SetSecondText(NodeId node, std::wstring_view text) {
  TellChanged(table_->SetSecondText(node, text), node, kSecondTextChanged);
}

void TreeStore::SetType(NodeId node, TypeId type) { TellChanged(table_->SetType(node, type), node, kTypeChanged); }

unsigned TreeStore::CheckState(NodeId node) const {
  if (table_->HasBit(node, detail::kMixed)) return 2;
  return table_->HasBit(node, detail::kChecked) ? 1 : 0;
}

void TreeStore::SetCheckState(NodeId node, unsigned state) {
  const bool mixed_changed = table_->SetBit(node, detail::kMixed, state == 2);
  const bool checked_changed = state != 2 && table_->SetBit(node, detail::kChecked, state != 0);
  TellChanged(mixed_changed || checked_changed, node, kCheckChanged);
}

void TreeStore::SetPartlyChecked(NodeId node, bool mixed) {
  TellChanged(table_->SetBit(node, detail::kMixed, mixed), node, kCheckChanged);
}

bool TreeStore::CheckSensitive(NodeId node) const { return !table_->HasBit(node, detail::kCheckLocked); }

void TreeStore::SetCheckSensitive(NodeId node, bool sensitive) {
  TellChanged(table_->SetBit(node, detail::kCheckLocked, !sensitive), node, kCheckSensitiveChanged);
}

int TreeStore::FirstInt(NodeId node) const { return table_->GetInt(node, NodeTable::kFirst); }
int TreeStore::Expanded(NodeId node) const { return table_->GetInt(node, NodeTable::kSecond); }
int TreeStore::ThirdInt(NodeId node) const { return table_->GetInt(node, NodeTable::kThird); }

void TreeStore::SetFirstInt(NodeId node, int value) {
  TellChanged(table_->SetInt(node, NodeTable::kFirst, value), node, kFirstIntChanged);
}

void TreeStore::SetExpanded(NodeId node, int value) {
  TellChanged(table_->SetInt(node, NodeTable::kSecond, value), node, kExpandedChanged);
}

void TreeStore::SetBranchExpanded(NodeId node, bool expanded) {
  std::vector<NodeId> branch{node};
  bool changed = false;
  for (std::size_t i = 0; i < branch.size(); ++i) {
    AppendChildren(branch[i], branch);
    if ((Expanded(branch[i]) != 0) != expanded) {
      table_->SetInt(branch[i], NodeTable::kSecond, expanded ? 1 : 0);
      changed = true;
    }
  }
  if (changed) Tell(&TreeObserver::BranchExpanded, node, expanded);
}

void TreeStore::SetThirdInt(NodeId node, int value) {
  const bool before = IsSelected(node);
  if (!table_->SetInt(node, NodeTable::kThird, value) || before == (value != 0)) return;
  TellChanged(true, node, kHighlightChanged);
  Tell(&TreeObserver::SelectionChanged);
}

void* TreeStore::UserData(NodeId node) const { return table_->UserData(node); }

void TreeStore::SetUserData(NodeId node, void* data) {
  TellChanged(table_->SetUserData(node, data), node, kUserDataChanged);
}

// --- Selection -------------------------------------------------------------------------------------------------------

std::vector<NodeId> TreeStore::Selection() const {
  std::vector<NodeId> nodes;
  nodes.reserve(SelectionSize());
  table_->Selection().ForEach([&](NodeId node) { nodes.push_back(node); });
  return nodes;
}

std::size_t TreeStore::SelectionSize() const { return table_->Selection().Size(); }

void TreeStore::Select(const std::vector<NodeId>& nodes) {
  const std::vector<NodeId> before = Selection();
  if (before == nodes) return;
  table_->Select(nodes);
  if (observers_.empty()) return;
  for (const NodeId node : before) TellChanged(!IsSelected(node), node, kHighlightChanged);
  std::vector<NodeId> stayed = before;
  std::sort(stayed.begin(), stayed.end());
  for (const NodeId node : nodes) {
    TellChanged(!std::binary_search(stayed.begin(), stayed.end(), node), node, kHighlightChanged);
  }
  Tell(&TreeObserver::SelectionChanged);
}

// --- Marks -----------------------------------------------------------------------------------------------------------

NodeId TreeStore::Marked(NodeMark mark) const { return table_->Mark(static_cast<unsigned>(mark)); }
void TreeStore::SetMark(NodeMark mark, NodeId node) { table_->Mark(static_cast<unsigned>(mark)) = node; }

CellPlace TreeStore::SelectedCell() const {
  const NodeId node = Marked(NodeMark::SelectedCell);
  return node == kNoNode ? CellPlace{} : CellPlace{node, selected_column_};
}

void TreeStore::SetSelectedCell(CellPlace cell) {
  if (cell == SelectedCell()) return;
  SetMark(NodeMark::SelectedCell, cell.node);
  selected_column_ = cell.column;
  Tell(&TreeObserver::SelectedCellChanged, cell);
}

// --- Cells -----------------------------------------------------------------------------------------------------------

std::size_t TreeStore::Columns() const { return table_->Cells().Columns(); }
const wchar_t* TreeStore::CellLabel(CellPlace cell) const { return table_->Cells().Label(cell); }
ControlId TreeStore::CellControl(CellPlace cell) const { return table_->Cells().Control(cell); }
CellPlace TreeStore::PlaceOf(ControlId control) const { return table_->Cells().PlaceOf(control); }

void TreeStore::SetCellLabel(CellPlace cell, std::wstring_view label) {
  if (table_->Cells().SetLabel(cell, label)) Tell(&TreeObserver::CellChanged, cell);
}

void TreeStore::EmptyCell(ControlId control) {
  const CellPlace place = PlaceOf(control);
  if (!place) return;
  table_->Cells().TakeOut(control);
  Tell(&TreeObserver::CellControlChanged, place, kNoControl);
}

void TreeStore::SetCellControl(CellPlace cell, ControlId control) {
  const ControlId before = CellControl(cell);
  if (before == control) return;
  if (control != kNoControl) table_->Cells().Prepare(cell, control);
  if (before != kNoControl) EmptyCell(before);
  if (control == kNoControl) return;
  EmptyCell(control);
  table_->Cells().Put(cell, control);
  Tell(&TreeObserver::CellControlChanged, cell, control);
}

void TreeStore::NotifyControl(ControlId control) {
  const CellPlace place = PlaceOf(control);
  if (place) Tell(&TreeObserver::ControlChanged, place, control);
}

}  // namespace uiox
