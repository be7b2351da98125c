#include <uiox_qt/TreeView.h>

#include <uiox/UserEvents.h>
#include <uiox_qt/NodeWords.h>
#include <uiox_qt/RowRanges.h>
#include <uiox_qt/Text.h>
#include <uiox_qt/TreeSync.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

namespace uiox_qt {

using uiox::kNoNode;
using uiox::NodeId;

namespace {

/// A check box is hit this far beside its edges too, and over the whole height of the row.
constexpr int kBoxMargin = 3;

QAbstractItemView::SelectionMode ToQt(uiox::SelectionMode mode) {
  switch (mode) {
    case uiox::SelectionMode::None:
      return QAbstractItemView::NoSelection;
    case uiox::SelectionMode::Single:
      return QAbstractItemView::SingleSelection;
    case uiox::SelectionMode::Multiple:
      break;
  }
  return QAbstractItemView::ExtendedSelection;
}

}  // namespace

TreeView::TreeView(uiox::TreeWidget& tree, QWidget* parent) : QTreeView(parent) {
  const uiox::TreeStyle& style = tree.Style();
  setObjectName(FromName(tree.Name()));
  setAccessibleName(style.label_column.title.empty() ? FromName(tree.Name()) : FromWide(style.label_column.title));
  setUniformRowHeights(true);
  setEditTriggers(NoEditTriggers);
  setExpandsOnDoubleClick(false);
  setSelectionMode(ToQt(style.selection));
  setSelectionBehavior(SelectRows);
  setHeaderHidden(!style.header_shown);
  header()->setStretchLastSection(false);
  header()->setSectionsMovable(false);
  sync_ = std::make_unique<Sync>(*this, tree);
  FitColumns(style);
}

TreeView::~TreeView() {
  sync_->Detach();
  setItemDelegate(nullptr);
  setModel(nullptr);
}

void TreeView::FitColumns(const uiox::TreeStyle& style) {
  header()->setMinimumSectionSize(16);
  header()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (int column = 1; column <= static_cast<int>(style.columns.size()); ++column) {
    const int width = style.columns[static_cast<std::size_t>(column - 1)].width;
    header()->setSectionResizeMode(column, width > 0 ? QHeaderView::Interactive : QHeaderView::ResizeToContents);
    if (width > 0) header()->resizeSection(column, width);
  }
}

TreeModel& TreeView::Model() const { return sync_->Model(); }

uiox::TreeWidget* TreeView::Tree() const { return sync_->Tree(); }

void TreeView::Detach() { sync_->Detach(); }

void TreeView::FollowWidget() { sync_->FollowWidget(); }

void TreeView::SetFilter(TreeModel::Accepts accepts) { Model().SetFilter(std::move(accepts)); }

void TreeView::SetSearch(std::function<void(const QString&)> search) { search_ = std::move(search); }

// --- Where -----------------------------------------------------------------------------------------------------------

NodeId TreeView::NodeAt(const QPoint& viewport_position) const {
  const QModelIndex index = indexAt(viewport_position);
  return index.isValid() ? Model().NodeOf(index) : kNoNode;
}

NodeId TreeView::CurrentNode() const {
  const QModelIndex index = currentIndex();
  return index.isValid() ? Model().NodeOf(index) : kNoNode;
}

void TreeView::ShowNode(NodeId node) {
  if (!Tree() || !Tree()->Store().Has(node)) return;
  const QPointer<TreeView> alive(this);
  sync_->Begin();
  const QModelIndex index = Model().IndexOf(node);
  // Qt expands what is above a node that it is to scroll to.
  scrollTo(index);
  if (index.isValid()) selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  sync_->Deliver();
}

QRect TreeView::CheckBoxRect(const QModelIndex& index) const {
  const QRect item = visualRect(index);
  return item.isEmpty() ? QRect() : sync_->Delegate().CheckRect(item, index, this);
}

TreeView::Spot TreeView::SpotAt(const QPoint& position) const {
  const QModelIndex index = indexAt(position);
  if (!index.isValid()) return {};
  const QRect item = visualRect(index);
  Spot spot;
  spot.node = Model().NodeOf(index);
  spot.column = index.column();
  const QRect box = sync_->Delegate().CheckRect(item, index, this);
  if (spot.column > 0) {
    spot.part = box.isValid() ? Part::CellCheck : Part::Cell;
  } else if (box.isValid() && position.x() >= box.left() - kBoxMargin && position.x() <= box.right() + kBoxMargin) {
    spot.part = Part::CheckBox;
  } else {
    spot.part = position.x() >= item.left() ? Part::Label : Part::Branch;
  }
  return spot;
}

// --- The mouse -------------------------------------------------------------------------------------------------------

void TreeView::mousePressEvent(QMouseEvent* event) {
  sync_->Begin();
  pressed_ = event->button() == Qt::LeftButton ? SpotAt(event->position().toPoint()) : Spot();
  if (IsBox(pressed_)) {
    // A box is no part of the selection: what is selected stays so.
    selectionModel()->setCurrentIndex(Model().IndexOf(pressed_.node, pressed_.column), QItemSelectionModel::NoUpdate);
    if (pressed_.part == Part::CheckBox) {
      BeginCheck(pressed_.node, event->modifiers().testFlag(Qt::ShiftModifier));
    }
    event->accept();
  } else {
    QTreeView::mousePressEvent(event);
  }
  sync_->Deliver();
}

void TreeView::mouseMoveEvent(QMouseEvent* event) {
  if (IsBox(pressed_)) {
    const Spot spot = SpotAt(event->position().toPoint());
    if (check_.Active() && spot.part == Part::CheckBox) {
      check_.Cover(RowsBetween(check_.First(), spot.node));
      viewport()->update();
    }
    return;
  }
  sync_->Begin();
  QTreeView::mouseMoveEvent(event);
  sync_->Deliver();
}

void TreeView::mouseReleaseEvent(QMouseEvent* event) {
  sync_->Begin();
  const Spot pressed = std::exchange(pressed_, Spot());
  if (!IsBox(pressed)) QTreeView::mouseReleaseEvent(event);
  const bool same = event->button() == Qt::LeftButton && pressed == SpotAt(event->position().toPoint());
  if (same && pressed.part == Part::None && !event->modifiers()) {
    // Where nothing is marked there may yet be something selected, such as what a node stands for.
    sync_->NoteGround();
  } else if (check_.Active()) {
    EndCheck(same || check_.CoversMore());
  } else if (same) {
    Click(pressed);
  }
  sync_->Deliver();
}

void TreeView::mouseDoubleClickEvent(QMouseEvent* event) {
  const Spot spot = SpotAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || spot.part != Part::Label) {
    mousePressEvent(event);  // two clicks in quick succession
    return;
  }
  sync_->Begin();
  event->accept();
  Activate(spot.node);
  sync_->Deliver();
}

void TreeView::Click(const Spot& spot) {
  switch (spot.part) {
    case Part::None:
    case Part::Branch:
    case Part::CheckBox:
    case Part::Label:
      break;
    case Part::Cell:
    case Part::CellCheck:
      UseCell(Model().IndexOf(spot.node, spot.column));
      break;
  }
}

// --- Check boxes -----------------------------------------------------------------------------------------------------

void TreeView::BeginCheck(NodeId node, bool range) {
  const uiox::TreeStore& store = Tree()->Store();
  if (!store.CheckSensitive(node)) return;
  check_.Begin(node, store.CheckState(node) != 1);
  if (range && Model().IndexOf(last_checked_).isValid()) check_.Cover(RowsBetween(last_checked_, node));
  viewport()->update();
}

void TreeView::EndCheck(bool done) {
  const CheckGesture ended = std::exchange(check_, CheckGesture());
  viewport()->update();
  if (!done) return;
  last_checked_ = ended.First();
  sync_->NoteAction([ended, rule = check_rule_](uiox::TreeWidget& tree) {
    CheckTogether(tree, ended.Nodes(), ended.Checked(), rule);
  });
}

/// Both ends included, in the order of the rows; nothing when one of them is not in sight.
std::vector<NodeId> TreeView::RowsBetween(NodeId from, NodeId to) const {
  for (const auto& [top, bottom] : {std::pair(from, to), std::pair(to, from)}) {
    std::vector<NodeId> nodes;
    for (QModelIndex index = Model().IndexOf(top); index.isValid(); index = indexBelow(index)) {
      nodes.push_back(Model().NodeOf(index));
      if (nodes.back() == bottom) return nodes;
    }
  }
  return {};
}

void TreeView::UseCell(const QModelIndex& index) {
  const uiox::CellPlace cell = Model().CellOf(index);
  if (index.data(Qt::CheckStateRole).isValid()) {
    sync_->NoteAction([cell](uiox::TreeWidget& tree) { uiox::user::ToggleCellCheck(tree, cell); });
  } else {
    sync_->NoteAction([this, cell](uiox::TreeWidget&) { sync_->ClickCell(cell); });
  }
}

void TreeView::Activate(NodeId node) {
  if (node == kNoNode) return;
  sync_->NoteAction([node](uiox::TreeWidget& tree) { uiox::user::Activate(tree, node); });
}

// --- The keyboard ----------------------------------------------------------------------------------------------------

void TreeView::keyPressEvent(QKeyEvent* event) {
  sync_->Begin();
  if (!UseKey(*event)) QTreeView::keyPressEvent(event);
  sync_->Deliver();
}

bool TreeView::BeginsSearch(const QKeyEvent& event) const {
  constexpr Qt::KeyboardModifiers kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const QString text = event.text();
  return search_ && !(event.modifiers() & kCommands) && !text.isEmpty() && text[0].isPrint() && !text[0].isSpace();
}

/// A key that begins a search is no shortcut of the window.
bool TreeView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && BeginsSearch(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QTreeView::event(event);
}

bool TreeView::UseKey(const QKeyEvent& event) {
  if (BeginsSearch(event)) {
    sync_->NoteAction([search = search_, text = event.text()](uiox::TreeWidget&) { search(text); });
    return true;
  }
  if (event.matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(SelectedNames());
    return true;
  }
  const QModelIndex current = currentIndex();
  if (!Tree() || !current.isValid()) return false;
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Activate(Model().NodeOf(current));
      return true;
    case Qt::Key_Space:
    case Qt::Key_Select:
      return !control && UseSpace(current);
    case Qt::Key_Asterisk:
      ExpandBranch(Model().NodeOf(current));
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
      if (event.key() == Qt::Key_Right && event.modifiers().testFlag(Qt::ShiftModifier) && current.column() == 0) {
        ExpandBranch(Model().NodeOf(current));
        return true;
      }
      return control && StepColumn(current, event.key() == Qt::Key_Right ? 1 : -1);
    default:
      return false;
  }
}

QString TreeView::SelectedNames() const {
  QStringList names;
  for (const NodeId node : NodesOf(selectionModel()->selection(), Model())) {
    names << ItemWords(Model(), Model().IndexOf(node)).replace(u'\n', u' ');
  }
  return names.join(u'\n');
}

bool TreeView::UseSpace(const QModelIndex& current) {
  if (current.column() > 0) {
    UseCell(current);
    return true;
  }
  if (!Tree()->Style().check_boxes) return false;
  const NodeId node = Model().NodeOf(current);
  sync_->NoteAction([node, rule = check_rule_](uiox::TreeWidget& tree) {
    const uiox::TreeStore& store = tree.Store();
    if (rule == CheckRule::WithSelection || !store.Has(node) || !store.IsSelected(node)) {
      uiox::user::Check(tree, node);
      return;
    }
    std::vector<NodeId> nodes = store.Selection();
    std::erase(nodes, node);
    nodes.insert(nodes.begin(), node);
    CheckTogether(tree, nodes, store.CheckState(node) != 1, rule);
  });
  return true;
}

bool TreeView::StepColumn(const QModelIndex& current, int step) {
  const int column = current.column() + step;
  if (column < 0 || column >= Model().columnCount()) return false;
  selectionModel()->setCurrentIndex(current.siblingAtColumn(column), QItemSelectionModel::NoUpdate);
  return true;
}

/// Node by node, as if the user had expanded each: those below a node are known after it has been expanded.
void TreeView::ExpandBranch(NodeId node) {
  sync_->NoteAction([this, node](uiox::TreeWidget&) {
    const QPointer<TreeView> alive(this);
    std::vector<NodeId> open{node};
    while (!open.empty()) {
      const NodeId next = open.back();
      open.pop_back();
      if (!alive || !Tree()) return;
      if (!Tree()->Store().Has(next) || Tree()->Store().ChildCount(next) == 0) continue;
      uiox::user::Expand(*Tree(), next);
      if (!alive || !Tree() || !Tree()->Store().Has(next)) continue;
      const std::size_t first = open.size();
      Tree()->Store().AppendChildren(next, open);
      std::reverse(open.begin() + static_cast<std::ptrdiff_t>(first), open.end());
    }
  });
}

// --- What Qt tells ---------------------------------------------------------------------------------------------------

void TreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  if (sync_) sync_->NoteSelection(selected, deselected);
}

QItemSelectionModel::SelectionFlags TreeView::selectionCommand(const QModelIndex& index, const QEvent* event) const {
  const auto command = QTreeView::selectionCommand(index, event);
  if (event) sync_->NoteCommand(command, index);
  return command;
}

void TreeView::dataChanged(const QModelIndex& top_left, const QModelIndex& bottom_right, const QList<int>& roles) {
  // Rows are equally high whatever is in them: for a range there is nothing to measure, only to paint.
  if (top_left.row() == bottom_right.row()) {
    QTreeView::dataChanged(top_left, bottom_right, roles);
  } else {
    QAbstractItemView::dataChanged(top_left, bottom_right, roles);
  }
}

void TreeView::focusInEvent(QFocusEvent* event) {
  QTreeView::focusInEvent(event);
  if (event->reason() != Qt::PopupFocusReason && Tree()) uiox::user::FocusIn(*Tree());
}

void TreeView::focusOutEvent(QFocusEvent* event) {
  QTreeView::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason && Tree()) uiox::user::FocusOut(*Tree());
}

}  // namespace uiox_qt
