/// \file
/// A tree whose nodes stand for objects of the application, with the set of those that are selected.
#ifndef OXECAD_UI_COLOR_ECADTREE_H
#define OXECAD_UI_COLOR_ECADTREE_H

#include <uicomps/toolkit/Export.h>
#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

/// Every node's user data is a pointer to an object of the application; null stands for none. A node whose name begins
/// with "SelAll_" stands for all its children: to select it is to select their objects, and it does not stay selected
/// itself.
///
/// The second client pointer of `SetOnDirtyHandler`, when not null, is a `std::set<void*>` of the application that the
/// tree keeps equal to the selected objects. A dirty handler must be set before the user can do anything. Reasons: 1
/// activated, 2 selection set changed.
class OXECAD_UI_EXPORT EcadTree : public Tree {
 public:
  /// Names the tree, as `Component` does; calls nothing.
  EcadTree(const char* device, const char* name);
  /// The copy works on the same widget.
  EcadTree(const EcadTree&);
  /// Works on the widget of the other from now on.
  EcadTree& operator=(const EcadTree&);
  ~EcadTree() override;

  using Tree::GetNodeData;

  /// The node's object; null when there is none or it cannot be read.
  void* GetNodeData(const char* node) const;

  /// Expands the tree's current node, whatever node is given, and calls the dirty handler, which must be set.
  void OnActivate(const char* node) override;
  /// Brings the selection set up to date and calls the dirty handler, which must be set. Linear in the number of nodes
  /// selected and of children of select-all nodes among them.
  void OnSelect(int count, char** nodes, int kind) override;

 private:
  std::vector<std::string> JustDeselected(const std::vector<std::string>& selected) const;
  void TakeOutOfSelection(const char* node) const;
};

}  // namespace oxecad_ui

#endif
