/// \file
/// What keeps a tree view and its tree alike.
#ifndef OXECAD_UIOX_QT_TREESYNC_H
#define OXECAD_UIOX_QT_TREESYNC_H

#include <uiox/TreeWidget.h>
#include <uiox_qt/CellMenus.h>
#include <uiox_qt/TreeDelegate.h>
#include <uiox_qt/TreeModel.h>
#include <uiox_qt/TreeView.h>

#include <QItemSelection>
#include <QPointer>

#include <functional>
#include <vector>

namespace uiox_qt {

/// Both ways between a view and its tree. What the store tells is applied to the view at once. What the user does is
/// collected while Qt handles the event and delivered when it has: a callback may then end the view.
class TreeView::Sync final : private uiox::TreeObserver {
 public:
  Sync(TreeView& view, uiox::TreeWidget& tree);
  ~Sync() override;

  TreeModel& Model() { return model_; }
  const TreeDelegate& Delegate() const { return delegate_; }
  uiox::TreeWidget* Tree() const { return model_.Tree(); }
  void Detach();
  /// The tree's sensitivity or redraw may have changed.
  void FollowWidget();

  // --- From the user -------------------------------------------------------------------------------------------------

  /// Qt is about to handle an event of the user; `Deliver` ends it.
  void Begin() { ++depth_; }
  void NoteCommand(QItemSelectionModel::SelectionFlags command, const QModelIndex& index) const;
  void NoteSelection(const QItemSelection& selected, const QItemSelection& deselected);
  /// The user has clicked where there is nothing: nothing is to be selected.
  void NoteGround();
  void NoteToggle(const QModelIndex& index, bool expanded);
  /// What is to be done last, with the tree.
  void NoteAction(std::function<void(uiox::TreeWidget&)> action) { action_ = std::move(action); }
  /// Qt is done. The view may have ended afterwards.
  void Deliver();
  /// A cell that is clicked: the click, and then the menu that stands in it.
  void ClickCell(uiox::CellPlace cell);

  // --- To the view ---------------------------------------------------------------------------------------------------

  /// The view's expansion, selection, current node and menus as the store says.
  void FollowAll();

 private:
  struct Toggle {
    uiox::NodeId node;
    bool expanded;
  };
  class Following;

  void DeliverToggles();
  void DeliverSelection();
  std::vector<uiox::NodeId> SelectedInView() const;
  std::vector<uiox::NodeId> NewSelection() const;

  void RememberPlace();
  void FollowRoot();
  void FollowExpanded(uiox::NodeId node);
  void FollowBranch(uiox::NodeId node);
  void FollowSelection(std::vector<uiox::NodeId> nodes);
  void FollowWholeSelection();

  void Added(uiox::NodeId node, uiox::NodeId parent, std::uint32_t row) override;
  void Removed(uiox::NodeId parent, std::uint32_t row) override;
  void Moved(uiox::NodeId node, uiox::NodeId from, uiox::NodeId to, std::uint32_t row) override;
  void NodeChanged(uiox::NodeId node, uiox::NodeChanges changes) override;
  void CellControlChanged(uiox::CellPlace cell, uiox::ControlId control) override;
  void ControlChanged(uiox::CellPlace cell, uiox::ControlId control) override;
  void SelectionChanged() override;
  void BranchExpanded(uiox::NodeId node, bool expanded) override;

  TreeView& view_;
  TreeModel model_;
  TreeDelegate delegate_;
  CellMenus menus_;

  int following_ = 0;
  int depth_ = 0;
  bool selection_touched_ = false;
  int rows_touched_ = 0;
  uiox::NodeId row_touched_ = uiox::kNoNode;
  mutable QItemSelectionModel::SelectionFlags command_ = QItemSelectionModel::NoUpdate;
  mutable uiox::NodeId command_node_ = uiox::kNoNode;
  std::vector<Toggle> toggles_;
  std::function<void(uiox::TreeWidget&)> action_;
  std::vector<uiox::NodeId> highlighted_;

  // Where the view was when the model was reset.
  bool place_remembered_ = false;
  uiox::NodeId current_ = uiox::kNoNode;
  int current_column_ = 0;
  uiox::NodeId topmost_ = uiox::kNoNode;
};

}  // namespace uiox_qt

#endif
