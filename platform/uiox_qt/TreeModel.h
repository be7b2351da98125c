/// \file
/// A tree of the toolkit as a Qt item model.
#ifndef OXECAD_UIOX_QT_TREEMODEL_H
#define OXECAD_UIOX_QT_TREEMODEL_H

#include <uiox/NodeId.h>
#include <uiox/Observer.h>
#include <uiox/TreeWidget.h>
#include <uiox_qt/Export.h>

#include <QAbstractItemModel>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace uiox_qt {

/// Reads a tree's store: there is no second copy of the nodes. An index carries the node's id; column 0 shows the
/// labels, column n the cells of the tree's column n - 1. Rows are found in the store, in logarithmic time.
///
/// Additions, removals and moves are told one by one. While the tree's redraw is off (attribute 52), the first few are
/// told as well; after that the model empties itself and, when redraw is on again, comes back with one reset. Changes
/// of labels, states and cells are collected and told when control returns to the event loop, many at once as few
/// ranges; what `data` gives is always the store's present state.
///
/// The model changes nothing in the tree. Edits are the view's matter (TreeView.h).
class OXECAD_UIOX_QT_API TreeModel final : public QAbstractItemModel, private uiox::TreeObserver {
 public:
  enum Role {
    NodeRole = Qt::UserRole,  ///< the node's id (quint32)
    NameRole,                 ///< the node's name
    MarkupRole                ///< the label or cell as it was set
  };

  explicit TreeModel(uiox::TreeWidget& tree, QObject* parent = nullptr);
  ~TreeModel() override;

  /// Null after the tree has ended; the model is empty then.
  uiox::TreeWidget* Tree() const { return tree_; }
  /// The tree ends: the model empties itself for good.
  void Detach();

  /// `kTop` for the invalid index.
  uiox::NodeId NodeOf(const QModelIndex& index) const;
  /// Invalid for `kTop`, and for a node that the model does not show.
  QModelIndex IndexOf(uiox::NodeId node, int column = 0) const;
  /// The cell that an index of column 1 or more stands for.
  uiox::CellPlace CellOf(const QModelIndex& index) const;
  QModelIndex IndexOf(uiox::CellPlace cell) const { return IndexOf(cell.node, cell.column + 1); }
  /// The column's description: of the labels for 0.
  const uiox::Column& ColumnAt(int column) const;

  // --- Filter --------------------------------------------------------------------------------------------------------

  /// Whether a node is to be shown.
  using Accepts = std::function<bool(const uiox::TreeStore& store, uiox::NodeId node)>;
  /// Shows only the nodes that are accepted and those above them; an empty function: all. The model is reset; it asks
  /// for each node, and again after labels, rows or their order have changed. The tree itself stays as it is.
  void SetFilter(Accepts accepts);
  bool HasFilter() const;
  /// Asks again, after what `accepts` says has changed.
  void Refilter();
  /// Appends the children that the model shows, of a node or `kTop`.
  void AppendChildren(uiox::NodeId node, std::vector<uiox::NodeId>& children) const;

  /// Tells collected changes now.
  void Flush();
  /// While redraw is off and much changed: the model is empty.
  bool IsSuspended() const;
  /// Redraw is on again: the model shows the nodes again, if it was suspended. Without this call it does so when
  /// control returns to the event loop.
  void Resume();
  /// While rows are being added, removed or moved, or the model is reset: what views do then is no user's doing.
  bool IsChangingShape() const;
  /// The name of the image of a node's type, of its expanded one for an expanded node; empty: none.
  std::string_view ImageName(uiox::NodeId node) const;

  // QAbstractItemModel
  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  bool hasChildren(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  class Changes;
  struct Filter;

  std::uint32_t RowOf(uiox::NodeId node) const;
  template <class Change>
  void Reset(Change change);
  /// False when the change is not to be told.
  bool BeginShapeChange();
  void Collect(uiox::NodeId node);
  void Suspend();

  void AboutToAdd(uiox::NodeId parent, std::uint32_t row) override;
  void Added(uiox::NodeId node, uiox::NodeId parent, std::uint32_t row) override;
  void AboutToRemove(uiox::NodeId node, uiox::NodeId parent, std::uint32_t row) override;
  void Removed(uiox::NodeId parent, std::uint32_t row) override;
  void AboutToMove(uiox::NodeId node, uiox::NodeId from, std::uint32_t row, uiox::NodeId to,
                   std::uint32_t to_row) override;
  void Moved(uiox::NodeId node, uiox::NodeId from, uiox::NodeId to, std::uint32_t row) override;
  void NodeChanged(uiox::NodeId node, uiox::NodeChanges changes) override;
  void CellChanged(uiox::CellPlace cell) override;
  void CellControlChanged(uiox::CellPlace cell, uiox::ControlId control) override;
  void ControlChanged(uiox::CellPlace cell, uiox::ControlId control) override;
  void BranchExpanded(uiox::NodeId node, bool expanded) override;

  uiox::TreeWidget* tree_;
  std::unique_ptr<Changes> changes_;
  std::unique_ptr<Filter> filter_;  // null: all nodes are shown
};

}  // namespace uiox_qt

#endif
