/// \file
/// A tree whose nodes stand for parts of a board, with those that the user has selected.
#ifndef OXECAD_VIEWER_TREES_OBJECTTREE_H
#define OXECAD_VIEWER_TREES_OBJECTTREE_H

#include <functional>
#include <set>
#include <string>

#include <uicomps/color/EcadTree.h>

namespace oxviewer {

/// Keeps the set of selected objects and tells of its changes. The objects belong to the board and are never changed
/// through the tree.
class ObjectTree : public oxecad_ui::EcadTree {
 public:
  ObjectTree(const char* device, const char* name);
  ObjectTree(const ObjectTree&) = delete;
  ObjectTree& operator=(const ObjectTree&) = delete;
  /// Empties the tree.
  ~ObjectTree() override;

  /// Is called after the set of selected objects has changed.
  void SetOnSelection(std::function<void()> onSelection) { onSelection_ = std::move(onSelection); }
  /// Is called with the object of a node that the user has activated; null for a node that stands for no object.
  void SetOnActivation(std::function<void(const void*)> onActivation) { onActivation_ = std::move(onActivation); }

  /// The objects selected, in no particular order.
  const std::set<void*>& SelectedObjects() const { return selected_; }
  /// Makes these objects the selected ones, as they were before; no node is marked or unmarked by it.
  void RestoreSelection(const std::set<void*>& objects);

  void OnActivate(const char* node) override;
  /// A node that stands for all its children does not stay selected itself. Taken in by itself while all of them are
  /// selected, it takes them out.
  void OnSelect(int count, char** nodes, int kind) override;

 protected:
  static constexpr const char* kRoot = "root";

  /// The name of a node that stands for all its children.
  static std::string SelectAllName(const std::string& text);
  /// The user data of a node that stands for an object.
  template <class T>
  static void* DataOf(const T& object) {
    return const_cast<T*>(&object);
  }

 private:
  bool HoldsAllOf(const std::string& node) const;
  static int DirtyCB(void* self, void* reason);

  std::set<void*> selected_;
  const void* activated_ = nullptr;
  std::function<void()> onSelection_;
  std::function<void(const void*)> onActivation_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_OBJECTTREE_H
