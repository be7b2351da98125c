/// \file
/// A tree of the toolkit as a Qt view.
#ifndef OXECAD_UIOX_QT_TREEVIEW_H
#define OXECAD_UIOX_QT_TREEVIEW_H

#include <uiox/NodeId.h>
#include <uiox/TreeWidget.h>
#include <uiox_qt/CheckGesture.h>
#include <uiox_qt/Export.h>
#include <uiox_qt/TreeModel.h>

#include <QTreeView>

#include <functional>
#include <memory>
#include <vector>

namespace uiox_qt {

/// Shows one tree. Expansion, selection, check boxes and cells are the store's: the view follows it, and what the user
/// does goes through `uiox::user` after Qt has finished with the event, so that a callback may change or end anything.
///
///   click             selects; with Ctrl takes one node in or out, with Shift a range
///   double click      activates the node (so does Enter)
///   click on a box    toggles a check box (so does Space, for the current node); the selection stays
///   click on a cell   toggles the check button in it, or tells the cell; an option menu opens in it
///   arrow             expands and collapses (so do Right, Left, + and -; * expands the whole branch)
///
/// Ctrl with Left and Right goes to another cell of the row, and Space does there what a click does.
class OXECAD_UIOX_QT_API TreeView final : public QTreeView {
 public:
  explicit TreeView(uiox::TreeWidget& tree, QWidget* parent = nullptr);
  ~TreeView() override;

  TreeModel& Model() const;
  /// Null after the tree has ended; the view is empty then.
  uiox::TreeWidget* Tree() const;
  /// The tree ends: the view empties itself for good.
  void Detach();
  /// The tree's sensitivity or redraw has changed.
  void FollowWidget();

  /// Shows only the nodes that are accepted and those above them, all of these open; an empty function: the tree as it
  /// was before. The tree's expansion, checks and selection stay, and nothing is told to it.
  void SetFilter(TreeModel::Accepts accepts);

  /// What a printable key other than the space bar does; it is given the key's text. Without one, keys are those of any
  /// QTreeView, and "*" expands a branch.
  void SetSearch(std::function<void(const QString& text)> search);

  /// How the tree learns of boxes that were toggled at once, with the space bar on a selection, by a Shift-click or by
  /// dragging over boxes.
  void SetCheckRule(CheckRule rule) { check_rule_ = rule; }

  /// The names of the selected nodes that are shown, without markup, one a line from top to bottom: what Ctrl+C copies.
  QString SelectedNames() const;

  /// `kNoNode` where there is none.
  uiox::NodeId NodeAt(const QPoint& viewport_position) const;
  uiox::NodeId CurrentNode() const;
  /// Makes the node visible, its ancestors expanded (those expansions are told to the toolkit as the user's), and
  /// current, without selecting it.
  void ShowNode(uiox::NodeId node);
  /// Where a node's check box is drawn, in the viewport; empty when the node has none or is not in sight.
  QRect CheckBoxRect(const QModelIndex& index) const;

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void dataChanged(const QModelIndex& top_left, const QModelIndex& bottom_right, const QList<int>& roles) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  class Sync;
  enum class Part { None, Branch, CheckBox, Label, Cell, CellCheck };
  /// What is under the mouse.
  struct Spot {
    uiox::NodeId node = uiox::kNoNode;
    int column = 0;
    Part part = Part::None;
    bool operator==(const Spot& other) const {
      return node == other.node && column == other.column && part == other.part;
    }
  };
  static bool IsBox(const Spot& spot) { return spot.part == Part::CheckBox || spot.part == Part::CellCheck; }

  void FitColumns(const uiox::TreeStyle& style);
  Spot SpotAt(const QPoint& position) const;
  void Click(const Spot& spot);
  void UseCell(const QModelIndex& index);
  void Activate(uiox::NodeId node);
  bool BeginsSearch(const QKeyEvent& event) const;
  bool UseKey(const QKeyEvent& event);
  bool UseSpace(const QModelIndex& current);
  bool StepColumn(const QModelIndex& current, int step);
  void ExpandBranch(uiox::NodeId node);

  void BeginCheck(uiox::NodeId node, bool range);
  void EndCheck(bool done);
  std::vector<uiox::NodeId> RowsBetween(uiox::NodeId from, uiox::NodeId to) const;

  CheckGesture check_;
  CheckRule check_rule_ = CheckRule::OneByOne;
  uiox::NodeId last_checked_ = uiox::kNoNode;  // where a range of boxes begins
  std::unique_ptr<Sync> sync_;
  Spot pressed_;
  std::function<void(const QString&)> search_;
};

}  // namespace uiox_qt

#endif
