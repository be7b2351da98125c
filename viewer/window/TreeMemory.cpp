#include <viewer/window/TreeMemory.h>

#include <algorithm>
#include <utility>

#include <uiox/UserEvents.h>

namespace oxviewer {
namespace {

using uiox::NodeId;

constexpr unsigned kNoBox = 3;

uiox::Widget* BoxIn(const uiox::TreeWidget& tree, uiox::CellPlace cell) {
  uiox::Widget* control = tree.ControlIn(cell);
  return control && control->Class() == uiox::WidgetClass::CheckButton ? control : nullptr;
}

}  // namespace

TreeMemory::TreeMemory(uiox::TreeWidget& tree, Objects objects, std::function<void()> changed)
    : tree_(tree), objects_(std::move(objects)), changed_(std::move(changed)) {
  std::vector<NodeId> waiting;
  tree.Store().AppendChildren(uiox::kTop, waiting);
  while (!waiting.empty()) {
    const NodeId node = waiting.back();
    waiting.pop_back();
    if (nodes_.size() <= node) nodes_.resize(node + std::size_t{1});
    nodes_[node] = Read(node);
    tree.Store().AppendChildren(node, waiting);
  }
  selection_ = ReadSelection();
  tree.Store().AddObserver(this);
}

TreeMemory::~TreeMemory() { tree_.Store().RemoveObserver(this); }

NodeMemory TreeMemory::Read(NodeId node) const {
  const uiox::TreeStore& store = tree_.Store();
  NodeMemory memory{store.CheckState(node), store.Type(node), store.UserData(node), {}, {}};
  for (std::size_t i = 0; i < store.Columns(); ++i) {
    const uiox::CellPlace cell{node, static_cast<uiox::ColumnIndex>(i)};
    memory.cells.emplace_back(store.CellLabel(cell));
    const uiox::Widget* box = BoxIn(tree_, cell);
    memory.boxes.push_back(box ? box->CheckState() : kNoBox);
  }
  return memory;
}

void TreeMemory::Write(NodeId node, const NodeMemory& memory) {
  uiox::TreeStore& store = tree_.Store();
  store.SetCheckState(node, memory.check);
  store.SetType(node, memory.type);
  store.SetUserData(node, memory.data);
  for (std::size_t i = 0; i < memory.cells.size(); ++i) {
    const uiox::CellPlace cell{node, static_cast<uiox::ColumnIndex>(i)};
    store.SetCellLabel(cell, memory.cells[i]);
    if (uiox::Widget* box = BoxIn(tree_, cell); box && memory.boxes[i] != kNoBox) box->SetCheckState(memory.boxes[i]);
  }
}

SelectionMemory TreeMemory::ReadSelection() const {
  return {tree_.Store().Selection(), objects_.read ? objects_.read() : std::set<void*>()};
}

TreeStep TreeMemory::Take() {
  TreeStep step;
  for (const NodeId node : std::exchange(touched_, {})) {
    if (!tree_.Store().Has(node) || node >= nodes_.size()) continue;
    NodeMemory now = Read(node);
    if (now == nodes_[node]) continue;
    step.nodes.push_back({node, std::exchange(nodes_[node], now), now});
  }
  std::sort(step.nodes.begin(), step.nodes.end(),
            [](const TreeStep::Node& a, const TreeStep::Node& b) { return a.node < b.node; });
  step.selectedAfter = ReadSelection();
  step.selectedBefore = std::exchange(selection_, step.selectedAfter);
  return step;
}

void TreeMemory::Put(const TreeStep& step, bool before) {
  for (const TreeStep::Node& change : step.nodes) {
    Write(change.node, before ? change.before : change.after);
  }
  const SelectionMemory& selected = before ? step.selectedBefore : step.selectedAfter;
  if (step.selectedBefore != step.selectedAfter) {
    if (objects_.write) {
      tree_.Store().Select(selected.nodes);
      objects_.write(selected.objects);
    } else {
      uiox::user::Select(tree_, selected.nodes);
    }
  }
  Take();
}

void TreeMemory::Note(NodeId node) {
  touched_.insert(node);
  if (changed_) changed_();
}

void TreeMemory::NodeChanged(NodeId node, uiox::NodeChanges changes) {
  if ((changes & (uiox::kTypeChanged | uiox::kCheckChanged | uiox::kUserDataChanged)) != 0) Note(node);
}

void TreeMemory::CellChanged(uiox::CellPlace cell) { Note(cell.node); }

void TreeMemory::ControlChanged(uiox::CellPlace cell, uiox::ControlId) { Note(cell.node); }

void TreeMemory::SelectionChanged() {
  if (changed_) changed_();
}

}  // namespace oxviewer
