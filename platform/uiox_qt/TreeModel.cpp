#include <uiox_qt/TreeModel.h>

#include <uiox/Suite.h>
#include <uiox_qt/Icons.h>
#include <uiox_qt/Markup.h>
#include <uiox_qt/NodeWords.h>
#include <uiox_qt/Text.h>
#include <uiox_qt/TreeFilter.h>
#include <uiox_qt/TreeModelChanges.h>

#include <QTimerEvent>

namespace uiox_qt {

using uiox::kNoNode;
using uiox::kTop;
using uiox::NodeId;

namespace {

Qt::CheckState ToCheckState(unsigned state) {
  return state == 0 ? Qt::Unchecked : state == 2 ? Qt::PartiallyChecked : Qt::Checked;
}

}  // namespace

struct TreeModel::Filter {
  Accepts accepts;
  TreeFilter rows;
  bool stale = false;
};

TreeModel::TreeModel(uiox::TreeWidget& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(&tree), changes_(std::make_unique<Changes>()) {
  tree.Store().AddObserver(this);
}

TreeModel::~TreeModel() {
  if (tree_) tree_->Store().RemoveObserver(this);
}

void TreeModel::Detach() {
  if (!tree_) return;
  changes_->timer.stop();
  changes_->Clear();
  tree_->Store().RemoveObserver(this);
  Reset([this] {
    tree_ = nullptr;
    filter_.reset();
  });
}

template <class Change>
void TreeModel::Reset(Change change) {
  changes_->changing_shape = true;
  beginResetModel();
  change();
  endResetModel();
  changes_->changing_shape = false;
}

// --- Indices ---------------------------------------------------------------------------------------------------------

NodeId TreeModel::NodeOf(const QModelIndex& index) const {
  return index.isValid() ? static_cast<NodeId>(index.internalId()) : kTop;
}

QModelIndex TreeModel::IndexOf(NodeId node, int column) const {
  if (!tree_ || changes_->suspended || node == kTop || !tree_->Store().Has(node)) return {};
  if (filter_ && !filter_->rows.Shows(node)) return {};
  return createIndex(static_cast<int>(RowOf(node)), column, quintptr{node});
}

std::uint32_t TreeModel::RowOf(NodeId node) const {
  return filter_ ? filter_->rows.RowOf(node) : tree_->Store().RowOf(node);
}

uiox::CellPlace TreeModel::CellOf(const QModelIndex& index) const {
  if (!index.isValid() || index.column() < 1) return {};
  return {NodeOf(index), static_cast<uiox::ColumnIndex>(index.column() - 1)};
}

const uiox::Column& TreeModel::ColumnAt(int column) const {
  static const uiox::Column none;
  if (!tree_) return none;
  const uiox::TreeStyle& style = tree_->Style();
  return column == 0 ? style.label_column : style.columns[static_cast<std::size_t>(column - 1)];
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (!tree_ || changes_->suspended || row < 0 || column < 0 || column >= columnCount() || parent.column() > 0)
    return {};
  const auto at = static_cast<std::uint32_t>(row);
  if (filter_) {
    const std::vector<NodeId>& children = filter_->rows.Children(NodeOf(parent));
    return at < children.size() ? createIndex(row, column, quintptr{children[at]}) : QModelIndex();
  }
  const NodeId node = tree_->Store().ChildAt(NodeOf(parent), at);
  return node == kNoNode ? QModelIndex() : createIndex(row, column, quintptr{node});
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
  if (!child.isValid() || !tree_) return {};
  return IndexOf(tree_->Store().Parent(NodeOf(child)));
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  if (!tree_ || changes_->suspended || parent.column() > 0) return 0;
  if (filter_) return static_cast<int>(filter_->rows.Children(NodeOf(parent)).size());
  return static_cast<int>(tree_->Store().ChildCount(NodeOf(parent)));
}

int TreeModel::columnCount(const QModelIndex&) const {
  return tree_ ? static_cast<int>(tree_->Style().columns.size()) + 1 : 1;
}

bool TreeModel::hasChildren(const QModelIndex& parent) const { return rowCount(parent) > 0; }

// --- Filter ----------------------------------------------------------------------------------------------------------

void TreeModel::SetFilter(Accepts accepts) {
  if (!tree_ || (!accepts && !filter_)) return;
  Reset([&] {
    filter_.reset();
    if (!accepts) return;
    filter_ = std::make_unique<Filter>();
    filter_->accepts = std::move(accepts);
    if (!changes_->suspended) filter_->rows.Build(tree_->Store(), filter_->accepts);
  });
}

bool TreeModel::HasFilter() const { return filter_ != nullptr; }

void TreeModel::Refilter() {
  if (!filter_ || changes_->suspended) return;
  Reset([this] {
    filter_->rows.Build(tree_->Store(), filter_->accepts);
    filter_->stale = false;
  });
}

void TreeModel::AppendChildren(NodeId node, std::vector<NodeId>& children) const {
  if (!tree_ || changes_->suspended) return;
  if (!filter_) return tree_->Store().AppendChildren(node, children);
  const std::vector<NodeId>& shown = filter_->rows.Children(node);
  children.insert(children.end(), shown.begin(), shown.end());
}

// --- Data ------------------------------------------------------------------------------------------------------------

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !tree_ || changes_->suspended) return {};
  const uiox::TreeStore& store = tree_->Store();
  const NodeId node = NodeOf(index);
  const auto text = [&] {
    return index.column() == 0 ? FromWide(store.Label(node)) : FromWide(store.CellLabel(CellOf(index)));
  };
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return ColumnAt(index.column()).markup ? PlainText(text()) : text();
    case Qt::AccessibleTextRole:
      return ItemWords(*this, index);
    case Qt::AccessibleDescriptionRole:
      return ItemFacts(*this, index);
    case MarkupRole:
      return text();
    case NodeRole:
      return quint32{node};
    case NameRole:
      return FromName(store.Name(node));
    case Qt::DecorationRole: {
      if (index.column() != 0) return {};
      const QIcon icon = ImageIcon(ImageName(node));
      return icon.isNull() ? QVariant() : QVariant(icon);
    }
    case Qt::CheckStateRole:
      if (index.column() == 0) {
        return tree_->Style().check_boxes ? QVariant(ToCheckState(store.CheckState(node))) : QVariant();
      }
      if (const uiox::Widget* control = tree_->ControlIn(CellOf(index))) {
        if (control->Class() == uiox::WidgetClass::CheckButton) return ToCheckState(control->CheckState());
      }
      return {};
    default:
      return {};
  }
}

std::string_view TreeModel::ImageName(NodeId node) const {
  const uiox::NodeTypes& types = uiox::Suite::Get().Types();
  const uiox::TypeId type = tree_->Store().Type(node);
  const bool expanded = tree_->Store().Expanded(node) != 0 && !types.ExpandedImageOf(type).empty();
  return expanded ? types.ExpandedImageOf(type) : types.ImageOf(type);
}

QVariant TreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  if (role == Qt::TextAlignmentRole && section > 0) return Qt::AlignCenter;
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return FromWide(ColumnAt(section).title);
}

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
  if (!index.isValid() || !tree_ || changes_->suspended) return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (index.column() == 0 && tree_->Style().check_boxes && tree_->Store().CheckSensitive(NodeOf(index))) {
    flags |= Qt::ItemIsUserCheckable;
  }
  return flags;
}

// --- What the store tells --------------------------------------------------------------------------------------------

bool TreeModel::BeginShapeChange() {
  if (changes_->suspended) return false;
  if (filter_) {
    // What the change makes of the filter's rows is found out once for all changes until the event loop is back.
    Suspend();
    return false;
  }
  if (tree_->Redraw()) {
    changes_->shape_changes_without_redraw = 0;
  } else if (++changes_->shape_changes_without_redraw > Changes::kFewShapeChanges) {
    Suspend();
    return false;
  }
  changes_->changing_shape = true;
  return true;
}

void TreeModel::AboutToAdd(NodeId parent, std::uint32_t row) {
  if (!BeginShapeChange()) return;
  beginInsertRows(IndexOf(parent), static_cast<int>(row), static_cast<int>(row));
}

void TreeModel::Added(NodeId, NodeId, std::uint32_t) {
  if (changes_->suspended) return;
  endInsertRows();
  changes_->changing_shape = false;
}

void TreeModel::AboutToRemove(NodeId, NodeId parent, std::uint32_t row) {
  if (!BeginShapeChange()) return;
  beginRemoveRows(IndexOf(parent), static_cast<int>(row), static_cast<int>(row));
}

void TreeModel::Removed(NodeId, std::uint32_t) {
  if (changes_->suspended) return;
  endRemoveRows();
  changes_->changing_shape = false;
}

void TreeModel::AboutToMove(NodeId, NodeId from, std::uint32_t row, NodeId to, std::uint32_t to_row) {
  if (!BeginShapeChange()) return;
  const int at = static_cast<int>(row);
  const bool moves = beginMoveRows(IndexOf(from), at, at, IndexOf(to), static_cast<int>(to_row));
  Q_ASSERT(moves);
  Q_UNUSED(moves);
}

void TreeModel::Moved(NodeId, NodeId, NodeId, std::uint32_t) {
  if (changes_->suspended) return;
  endMoveRows();
  changes_->changing_shape = false;
}

void TreeModel::NodeChanged(NodeId node, uiox::NodeChanges changes) {
  constexpr uiox::NodeChanges kUnseen = uiox::kUserDataChanged | uiox::kFirstIntChanged | uiox::kSecondTextChanged;
  if ((changes & ~kUnseen) != 0) Collect(node);
  if (filter_ && (changes & uiox::kLabelChanged) != 0) filter_->stale = true;
}

void TreeModel::CellChanged(uiox::CellPlace cell) { Collect(cell.node); }

void TreeModel::CellControlChanged(uiox::CellPlace cell, uiox::ControlId) { Collect(cell.node); }

void TreeModel::ControlChanged(uiox::CellPlace cell, uiox::ControlId) { Collect(cell.node); }

void TreeModel::BranchExpanded(NodeId node, bool) {
  Collect(node);  // the images of the nodes below it are painted with it
}

void TreeModel::Collect(NodeId node) {
  if (changes_->suspended || node == kTop) return;
  changes_->Add(node, tree_->Store());
  if (!changes_->timer.isActive()) changes_->timer.start(0, this);
}

// --- Telling the views -----------------------------------------------------------------------------------------------

bool TreeModel::IsSuspended() const { return changes_->suspended; }

bool TreeModel::IsChangingShape() const { return changes_->changing_shape; }

void TreeModel::Suspend() {
  Reset([this] {
    changes_->suspended = true;
    changes_->Clear();
  });
  if (!changes_->timer.isActive()) changes_->timer.start(0, this);
}

void TreeModel::Resume() {
  if (!changes_->suspended || !tree_) return;
  Reset([this] {
    changes_->suspended = false;
    changes_->shape_changes_without_redraw = 0;
    if (!filter_) return;
    filter_->rows.Build(tree_->Store(), filter_->accepts);
    filter_->stale = false;
  });
}

void TreeModel::timerEvent(QTimerEvent* event) {
  if (event->timerId() != changes_->timer.timerId()) return;
  Flush();
}

void TreeModel::Flush() {
  if (!tree_) return;
  changes_->timer.stop();
  if (changes_->suspended && !tree_->Redraw()) {
    changes_->timer.start(Changes::kResumeCheckMs, this);
    return;
  }
  Resume();
  if (filter_ && filter_->stale) Refilter();
  std::vector<NodeId> nodes;
  std::vector<NodeId> parents;
  changes_->Take(nodes, parents);
  const int last_column = columnCount() - 1;
  for (const NodeId node : nodes) {
    const QModelIndex index = IndexOf(node);
    if (index.isValid()) emit dataChanged(index, index.siblingAtColumn(last_column));
  }
  for (const NodeId parent : parents) {
    const QModelIndex above = IndexOf(parent);
    const int rows = parent == kTop || above.isValid() ? rowCount(above) : 0;
    if (rows > 0) emit dataChanged(index(0, 0, above), index(rows - 1, last_column, above));
  }
}

}  // namespace uiox_qt
