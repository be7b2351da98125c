/// \file
/// A tree whose nodes carry the application's data and whose branches count their leaves.
#ifndef OXECAD_UI_USERDATA_USERDATATREE_H
#define OXECAD_UI_USERDATA_USERDATATREE_H

#include <string>
#include <vector>

#include <uicomps/toolkit/Export.h>
#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

/// Leaves are the nodes of one type, told at construction; each carries a pointer of the application. A branch shows
/// the number of leaves below it in its label:
///
///     Parts (3)
///       <b>Resistors (2)</b>
///         R1
///         R2
///       <b>Capacitors (1)</b>
///         C1
///
/// A branch's user data holds its number, in the very slot in which a leaf holds its pointer: the tree cannot tell the
/// two apart, so a collection of data leaves branches out with its filter. Numbers are right as far as the application
/// has called `OnLeafAdded` for each new leaf, or `UpdateParentTotals` after removals; adding nodes alone changes no
/// number.
class OXECAD_UI_EXPORT UserDataTree : public Tree {
 public:
  /// A node with the application's pointer.
  struct OXECAD_UI_EXPORT DataNodeInfo : NodeInfo {
    DataNodeInfo() = default;
    /// Copies all members.
    DataNodeInfo(const DataNodeInfo&);
    /// Copies all members.
    DataNodeInfo& operator=(const DataNodeInfo&);
    ~DataNodeInfo() override;

    void* data = nullptr;  ///< the application's, not owned; of a counted branch its number
  };

  /// Keeps a copy of the leaf type.
  UserDataTree(const char* device, const char* component, const char* leafType);
  /// The copy works on the same widget.
  UserDataTree(const UserDataTree&);
  /// Works on the widget of the other from now on.
  UserDataTree& operator=(const UserDataTree&);
  ~UserDataTree() override;

  using Tree::AddNode;
  using Tree::AddNodeBefore;

  /// Adds a node at the end of its parent's children. Gives whether it was added and its check state set.
  bool AddNode(const DataNodeInfo& info);
  /// As `AddNode`, placed before a sibling; null means the end.
  bool AddNodeBefore(const DataNodeInfo& info, const char* before);
  /// Adds records in their order, as `AddNode` would one by one, with one redraw. Tells of each whether `AddNode` would
  /// have given true. Linear in their number.
  std::vector<bool> AddNodes(const std::vector<DataNodeInfo>& infos);
  /// Replaces the whole tree by records, which must be `DataNodeInfo`s; null pointers and refused nodes are passed
  /// over. One redraw. Linear in the number of nodes before and after.
  void Set(const TreeInfo& info);

  /// Appends the data of the nodes that the filter takes, the root's included, without values equal to `ignore`. With
  /// `unique`, the whole of `out`, what was there before included, ends sorted and without duplicates. Linear in what
  /// is walked, but for the sorting.
  void GetData(std::vector<void*>& out, void* ignore, bool unique, const NodeFilter& filter) const;

  /// Adds one to the number of each ancestor of a leaf. Linear in the leaf's depth.
  void OnLeafAdded(const char* leaf) const;
  /// Counts each ancestor of a node anew, from its children's numbers as they stand. Linear in the number of children
  /// of each ancestor. After rebuilding several levels call it for the deepest nodes first.
  void UpdateParentTotals(const char* node) const;

 protected:
  /// Fills a `DataNodeInfo`; gives false for any other record, and for a null or empty name.
  bool GetNodeInfo(const char* name, NodeInfo& out) const override;
  /// A new `DataNodeInfo`.
  NodeInfo* GetNodeInfo(const char* name) const override;
  /// As `GetData`, for the nodes below one node. Nothing for null; never sorts.
  void GetBranchData(const char* node, std::vector<void*>& out, void* ignore, const NodeFilter& filter) const;

 private:
  void _GetNodeInfo(const char* name, DataNodeInfo* out) const;
  void TakeData(const char* node, std::vector<void*>& out, const void* ignore) const;
  void SetTotal(const std::string& branch, unsigned int total, const std::wstring& digits) const;
  unsigned int CountLeaves(const char* branch) const;

  std::string m_leafType;
};

}  // namespace oxecad_ui

#endif
