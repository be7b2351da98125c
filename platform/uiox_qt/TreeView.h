/// \file
/// A tree of the toolkit as a Qt view.
#ifndef OXECAD_UIOX_QT_TREEVIEW_H
#define OXECAD_UIOX_QT_TREEVIEW_H

#include <uiox/NodeId.h>
#include <uiox/TreeWidget.h>
#include <uiox_qt/Export.h>

#include <QTreeView>

#include <memory>

namespace uiox_qt {

class TreeModel;

/// Shows one tree. Expansion, selection, check boxes and cells are the store's: the view follows it, and what the user
/// does goes through `uiox::user` after Qt has finished with the event, so that a callback may change or end anything.
///
///   click             selects; with Ctrl takes one node in or out, with Shift a range
///   double click      activates the node (so does Enter)
///   click on a box    toggles a check box (so does Space, for the current node); the selection stays
///   click on a cell   toggles the check button in it, or tells the cell; an option menu opens in it
///   arrow             expands and collapses (so do Right, Left, + and -; * expands the whole branch)
class OXECAD_UIOX_QT_API TreeView final : public QTreeView {
 public:
  explicit TreeView(uiox::TreeWidget& tree, QWidget* parent = nullptr);
  ~TreeView() override;

  TreeModel& Model() const;
  /// Null after the tree has ended; the view is empty then.
  uiox::TreeWidget* Tree() const;
  /// The tree ends: the view empties itself for good.
  void Detach();

  /// `kNoNode` where there is none.
  uiox::NodeId NodeAt(const QPoint& viewport_position) const;
  uiox::NodeId CurrentNode() const;
  /// Makes the node visible, its ancestors expanded (those expansions are told to the toolkit as the user's), and
  /// current, without selecting it.
  void ShowNode(uiox::NodeId node);
  /// Where a node's check box is drawn, in the viewport; empty when the node has none or is not in sight.
  QRect CheckBoxRect(const QModelIndex& index) const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  class Sync;
  std::unique_ptr<Sync> sync_;
};

}  // namespace uiox_qt

#endif
