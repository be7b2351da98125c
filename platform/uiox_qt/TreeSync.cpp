#include <uiox_qt/TreeSync.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/RowRanges.h>

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace uiox_qt {

using uiox::kNoNode;
using uiox::kTop;
using uiox::NodeId;

/// While it lives, what the view signals is what the store said, and not told back.
class TreeView::Sync::Following {
 public:
  explicit Following(Sync& sync) : sync_(sync) { ++sync_.following_; }
  ~Following() { --sync_.following_; }
  Following(const Following&) = delete;
  Following& operator=(const Following&) = delete;

 private:
  Sync& sync_;
};

TreeView::Sync::Sync(TreeView& view, uiox::TreeWidget& tree)
    : view_(view), model_(tree), delegate_(model_, view.check_), menus_(view, model_) {
  const Following following(*this);
  view.setModel(&model_);
  view.setItemDelegate(&delegate_);
  // Behind the model: when the store tells, the model has told the view already.
  tree.Store().AddObserver(this);
  QObject::connect(&model_, &QAbstractItemModel::modelAboutToBeReset, &view, [this] { RememberPlace(); });
  QObject::connect(&model_, &QAbstractItemModel::modelReset, &view, [this] { FollowAll(); });
  QObject::connect(&view, &QTreeView::expanded, &view, [this](const QModelIndex& index) { NoteToggle(index, true); });
  QObject::connect(&view, &QTreeView::collapsed, &view, [this](const QModelIndex& index) { NoteToggle(index, false); });
  FollowAll();
  FollowWidget();
}

TreeView::Sync::~Sync() {
  if (Tree()) Tree()->Store().RemoveObserver(this);
}

void TreeView::Sync::Detach() {
  if (!Tree()) return;
  Tree()->Store().RemoveObserver(this);
  const Following following(*this);
  toggles_.clear();
  action_ = nullptr;
  selection_touched_ = false;
  model_.Detach();
}

void TreeView::Sync::FollowWidget() {
  const uiox::TreeWidget* tree = Tree();
  if (!tree) return;
  view_.setEnabled(tree->Sensitive());
  if (tree->Redraw()) model_.Resume();
  if (view_.updatesEnabled() != tree->Redraw()) view_.setUpdatesEnabled(tree->Redraw());
}

// --- From the user ---------------------------------------------------------------------------------------------------

void TreeView::Sync::NoteCommand(QItemSelectionModel::SelectionFlags command, const QModelIndex& index) const {
  if (command == QItemSelectionModel::NoUpdate) return;
  command_ = command;
  command_node_ = index.isValid() ? model_.NodeOf(index) : kNoNode;
}

void TreeView::Sync::NoteSelection(const QItemSelection& selected, const QItemSelection& deselected) {
  if (following_ > 0 || model_.IsChangingShape() || !Tree()) return;
  for (const QItemSelection* part : {&selected, &deselected}) {
    for (const QItemSelectionRange& range : *part) {
      rows_touched_ += range.height();
      row_touched_ = model_.NodeOf(range.topLeft());
    }
  }
  selection_touched_ = true;
  if (depth_ == 0) {
    Begin();
    Deliver();
  }
}

void TreeView::Sync::NoteGround() {
  if (!Tree() || Tree()->Style().selection == uiox::SelectionMode::None) return;
  command_ = QItemSelectionModel::Clear;
  command_node_ = kNoNode;
  selection_touched_ = true;
}

void TreeView::Sync::NoteToggle(const QModelIndex& index, bool expanded) {
  // What is opened to show what a filter has left is no matter of the tree.
  if (following_ > 0 || model_.IsChangingShape() || model_.HasFilter() || !Tree()) return;
  toggles_.push_back({model_.NodeOf(index), expanded});
  if (depth_ == 0) {
    Begin();
    Deliver();
  }
}

void TreeView::Sync::Deliver() {
  if (depth_ > 1) {
    --depth_;
    return;
  }
  depth_ = 0;
  const QPointer<TreeView> alive(&view_);
  DeliverToggles();
  if (!alive) return;
  DeliverSelection();
  if (!alive) return;
  const auto action = std::exchange(action_, nullptr);
  if (action && Tree()) action(*Tree());
}

void TreeView::Sync::DeliverToggles() {
  const QPointer<TreeView> alive(&view_);
  const std::vector<Toggle> toggles = std::exchange(toggles_, {});
  for (const Toggle& toggle : toggles) {
    uiox::TreeWidget* tree = Tree();
    if (!tree) return;
    if (!tree->Store().Has(toggle.node)) continue;
    const bool done =
        toggle.expanded ? uiox::user::Expand(*tree, toggle.node) : uiox::user::Collapse(*tree, toggle.node);
    if (!alive) return;
    if (!done && Tree() && Tree()->Store().Has(toggle.node)) FollowExpanded(toggle.node);
  }
}

void TreeView::Sync::DeliverSelection() {
  const auto command = std::exchange(command_, QItemSelectionModel::NoUpdate);
  const NodeId command_node = std::exchange(command_node_, kNoNode);
  const int rows = std::exchange(rows_touched_, 0);
  const NodeId row = std::exchange(row_touched_, kNoNode);
  uiox::TreeWidget* tree = Tree();
  if (!std::exchange(selection_touched_, false) || !tree) return;

  const QPointer<TreeView> alive(&view_);
  bool done = false;
  if (command.testFlag(QItemSelectionModel::Toggle) && rows == 1 && row == command_node) {
    done = uiox::user::ToggleSelected(*tree, row);
  } else {
    const bool range = command.testFlag(QItemSelectionModel::Current) || !command.testFlag(QItemSelectionModel::Clear);
    const NodeId current = tree->Store().Has(command_node) ? command_node : kNoNode;
    done =
        uiox::user::Select(*tree, NewSelection(), range ? uiox::user::kExtended : uiox::user::kNewSelection, current);
  }
  if (alive && !done) FollowWholeSelection();
}

std::vector<NodeId> TreeView::Sync::SelectedInView() const {
  return NodesOf(view_.selectionModel()->selection(), model_);
}

/// What was selected before keeps its place; the rest follows in the order of the rows.
std::vector<NodeId> TreeView::Sync::NewSelection() const {
  const uiox::TreeStore& store = Tree()->Store();
  std::vector<NodeId> added = SelectedInView();
  std::vector<NodeId> nodes;
  if (store.SelectionSize() > 0) {
    std::vector<NodeId> now = added;
    std::sort(now.begin(), now.end());
    for (const NodeId node : store.Selection()) {
      if (std::binary_search(now.begin(), now.end(), node)) nodes.push_back(node);
    }
    std::erase_if(added, [&store](NodeId node) { return store.IsSelected(node); });
  }
  nodes.insert(nodes.end(), added.begin(), added.end());
  return nodes;
}

void TreeView::Sync::ClickCell(uiox::CellPlace cell) {
  const QPointer<TreeView> alive(&view_);
  if (Tree()) uiox::user::ClickCell(*Tree(), cell);
  if (alive && Tree() && Tree()->Store().Has(cell.node)) menus_.Open(cell);
}

// --- To the view -----------------------------------------------------------------------------------------------------

void TreeView::Sync::RememberPlace() {
  if (place_remembered_ || !Tree()) return;
  const QModelIndex current = view_.currentIndex();
  current_ = current.isValid() ? model_.NodeOf(current) : kNoNode;
  current_column_ = current.column();
  const QModelIndex top = view_.indexAt({0, 0});
  topmost_ = top.isValid() && view_.verticalScrollBar()->value() > 0 ? model_.NodeOf(top) : kNoNode;
  place_remembered_ = true;
}

void TreeView::Sync::FollowAll() {
  if (!Tree() || model_.IsSuspended()) return;
  const Following following(*this);
  const uiox::TreeStore& store = Tree()->Store();
  FollowRoot();
  FollowBranch(kTop);
  FollowWholeSelection();
  if (std::exchange(place_remembered_, false)) {
    if (store.Has(current_)) {
      view_.selectionModel()->setCurrentIndex(model_.IndexOf(current_, current_column_), QItemSelectionModel::NoUpdate);
    }
    if (store.Has(topmost_) && !model_.HasFilter())
      view_.scrollTo(model_.IndexOf(topmost_), QAbstractItemView::PositionAtTop);
  }
  menus_.FollowAll();
}

void TreeView::Sync::FollowRoot() {
  if (Tree()->Style().root_shown) return;
  const NodeId root = Tree()->Store().Root();
  const QModelIndex index = root == kNoNode ? QModelIndex() : model_.IndexOf(root);
  if (view_.rootIndex() != index) view_.setRootIndex(index);
}

void TreeView::Sync::FollowExpanded(NodeId node) {
  const uiox::TreeStore& store = Tree()->Store();
  const QModelIndex index = model_.IndexOf(node);
  if (!index.isValid() || store.ChildCount(node) == 0 || model_.HasFilter()) return;
  const Following following(*this);
  const bool expanded = store.Expanded(node) != 0;
  view_.setExpanded(index, expanded);
  if (expanded || index == view_.rootIndex()) FollowBranch(node);
}

/// A node that nobody can see because one above it is collapsed is brought up to date when that one is expanded: so the
/// view remembers no more nodes than it shows.
void TreeView::Sync::FollowBranch(NodeId node) {
  const uiox::TreeStore& store = Tree()->Store();
  const Following following(*this);
  std::vector<NodeId> open{node};
  std::vector<NodeId> children;
  bool laid_out = false;
  while (!open.empty()) {
    const NodeId parent = open.back();
    open.pop_back();
    children.clear();
    model_.AppendChildren(parent, children);
    for (const NodeId child : children) {
      if (store.ChildCount(child) == 0) continue;
      const QModelIndex index = model_.IndexOf(child);
      const bool expanded = model_.HasFilter() || store.Expanded(child) != 0;
      if (view_.isExpanded(index) != expanded) {
        // One layout for all of them instead of one for each.
        if (!std::exchange(laid_out, true)) view_.scheduleDelayedItemsLayout();
        view_.setExpanded(index, expanded);
      }
      if (expanded || index == view_.rootIndex()) open.push_back(child);
    }
  }
}

void TreeView::Sync::FollowSelection(std::vector<NodeId> nodes) {
  const uiox::TreeStore& store = Tree()->Store();
  QItemSelectionModel& selection = *view_.selectionModel();
  std::vector<NodeId> added;
  std::vector<NodeId> removed;
  for (const NodeId node : nodes) {
    const QModelIndex index = store.Has(node) ? model_.IndexOf(node) : QModelIndex();
    if (!index.isValid() || selection.isSelected(index) == store.IsSelected(node)) continue;
    (store.IsSelected(node) ? added : removed).push_back(node);
  }
  const Following following(*this);
  if (!removed.empty()) selection.select(RowRanges(std::move(removed), model_), QItemSelectionModel::Deselect);
  if (!added.empty()) selection.select(RowRanges(std::move(added), model_), QItemSelectionModel::Select);
}

void TreeView::Sync::FollowWholeSelection() {
  if (!Tree() || model_.IsSuspended()) return;
  highlighted_.clear();
  std::vector<NodeId> nodes = SelectedInView();
  const std::vector<NodeId> selected = Tree()->Store().Selection();
  nodes.insert(nodes.end(), selected.begin(), selected.end());
  FollowSelection(std::move(nodes));
}

// --- What the store tells --------------------------------------------------------------------------------------------

void TreeView::Sync::Added(NodeId node, NodeId parent, std::uint32_t) {
  if (model_.IsSuspended()) return;
  if (parent == kTop) {
    FollowRoot();
  } else if (Tree()->Store().ChildCount(parent) == 1) {
    FollowExpanded(parent);
  }
  if (Tree()->Store().IsSelected(node)) highlighted_.push_back(node);
}

void TreeView::Sync::Removed(NodeId parent, std::uint32_t) {
  if (model_.IsSuspended()) return;
  const Following following(*this);
  if (parent == kTop) {
    FollowRoot();
  } else if (Tree()->Store().ChildCount(parent) == 0) {
    view_.setExpanded(model_.IndexOf(parent), false);
  }
  // A view of a single selection gives a removed node's selection to its neighbour; the store does not.
  if (Tree()->Style().selection == uiox::SelectionMode::Single) FollowWholeSelection();
}

void TreeView::Sync::Moved(NodeId node, NodeId from, NodeId to, std::uint32_t) {
  if (model_.IsSuspended()) return;
  const uiox::TreeStore& store = Tree()->Store();
  if (from == kTop || to == kTop) FollowRoot();
  if (from != to && to != kTop && store.ChildCount(to) == 1) FollowExpanded(to);
  if (from != to && store.ChildCount(node) > 0) FollowExpanded(node);
}

void TreeView::Sync::NodeChanged(NodeId node, uiox::NodeChanges changes) {
  if (model_.IsSuspended()) return;
  if ((changes & uiox::kExpandedChanged) != 0) FollowExpanded(node);
  if ((changes & uiox::kHighlightChanged) != 0) highlighted_.push_back(node);
}

void TreeView::Sync::CellControlChanged(uiox::CellPlace cell, uiox::ControlId) { menus_.Follow(cell); }

void TreeView::Sync::ControlChanged(uiox::CellPlace cell, uiox::ControlId) { menus_.Follow(cell); }

void TreeView::Sync::SelectionChanged() {
  if (model_.IsSuspended()) {
    highlighted_.clear();
    return;
  }
  FollowSelection(std::exchange(highlighted_, {}));
}

void TreeView::Sync::BranchExpanded(NodeId node, bool) {
  if (!model_.IsSuspended()) FollowExpanded(node);
}

}  // namespace uiox_qt
