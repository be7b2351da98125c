/// \file
/// The option menus in the cells of a tree.
#ifndef OXECAD_UIOX_QT_CELLMENUS_H
#define OXECAD_UIOX_QT_CELLMENUS_H

#include <uiox/TreeWidget.h>

class QComboBox;
class QTreeView;

namespace uiox_qt {

class TreeModel;

/// Shows an option menu in each cell that holds one. There is seldom more than one.
class CellMenus {
 public:
  CellMenus(QTreeView& view, const TreeModel& model) : view_(view), model_(model) {}

  /// The cell has another control, or none, or its control changed.
  void Follow(uiox::CellPlace cell);
  /// After a reset of the model, which has taken all menus out of the view. Linear in the number of cell controls.
  void FollowAll();
  /// Opens the menu in a cell; false when there is none.
  bool Open(uiox::CellPlace cell);

 private:
  QComboBox* Put(uiox::CellPlace cell, const uiox::Widget& control);
  void Take(uiox::CellPlace cell);

  QTreeView& view_;
  const TreeModel& model_;
};

}  // namespace uiox_qt

#endif
