/// \file
/// The nodes of one tree.
#ifndef OXECAD_UIOX_TREESTORE_H
#define OXECAD_UIOX_TREESTORE_H

#include <uiox/Export.h>
#include <uiox/NodeId.h>
#include <uiox/Observer.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace uiox {

class NodeTable;

/// What a node is given when it is added.
struct NewNode {
  std::string_view name;
  std::wstring_view label;
  TypeId type = 0;
  std::wstring_view second_text;
  int first_int = 0;
  int expanded = 0;
  int third_int = 0;
  void* user_data = nullptr;
};

/// What the user did last, and to which node. A mark goes with its node.
enum class NodeMark { Activated, Toggled, Checked, SelectedCell };

/// The nodes of one tree, their order, their attributes and cells, and the selection.
///
/// Names are unique in the tree. Finding a node by name takes constant time; adding, moving, removing a leaf, and the
/// way between a node and its row take logarithmic time in the number of siblings, with blocks of 64.
///
/// Functions take the id of a node that is in the tree; `kTop` only where it says so. A function that gives `bool`
/// gives false where the change is refused, and then nothing has changed. Observers are told of what really changed.
/// Texts are kept exactly, whatever the values of their units.
class OXECAD_UIOX_API TreeStore {
 public:
  explicit TreeStore(std::size_t columns = 0);
  ~TreeStore();
  TreeStore(const TreeStore&) = delete;
  TreeStore& operator=(const TreeStore&) = delete;

  // --- Shape ---------------------------------------------------------------------------------------------------------

  /// The node of that name, or `kNoNode`.
  NodeId Find(std::string_view name) const;
  NodeId Find(const char* name) const { return name ? Find(std::string_view(name)) : kNoNode; }
  /// The first top-level node, or `kNoNode`.
  NodeId Root() const;
  /// Number of nodes, `kTop` not counted.
  std::size_t Size() const;
  /// Whether the id belongs to a node of the tree now.
  bool Has(NodeId node) const;
  /// `kTop` for a top-level node.
  NodeId Parent(NodeId node) const;
  /// Of a node or `kTop`. Constant time.
  std::uint32_t ChildCount(NodeId node) const;
  /// Of a node or `kTop`; `kNoNode` past the end.
  NodeId ChildAt(NodeId node, std::uint32_t row) const;
  std::uint32_t RowOf(NodeId node) const;
  /// Appends the children of a node or `kTop` in order. Linear time, without a search per child.
  void AppendChildren(NodeId node, std::vector<NodeId>& children) const;
  /// Whether `ancestor` is the node itself or stands above it; true for `kTop`.
  bool IsWithin(NodeId node, NodeId ancestor) const;

  /// Adds a node under `parent` (a node or `kTop`), before one of its children or, with `kNoNode`, at the end.
  /// `kNoNode` when the name is empty or in use, or `before` is no child of the parent.
  NodeId Add(const NewNode& node, NodeId parent, NodeId before = kNoNode);
  /// Removes a node with its subtree.
  void Remove(NodeId node);
  /// Removes all nodes and gives their memory back.
  void Clear();
  /// Places a node under `parent` (a node or `kTop`) as `Add` does. Refused under itself or its own subtree.
  bool Move(NodeId node, NodeId parent, NodeId before = kNoNode);

  // --- Attributes ----------------------------------------------------------------------------------------------------

  /// Good until the node is removed.
  const char* Name(NodeId node) const;
  std::wstring Label(NodeId node) const;
  void SetLabel(NodeId node, std::wstring_view label);
  std::wstring SecondText(NodeId node) const;
  void SetSecondText(NodeId node, std::wstring_view text);
  TypeId Type(NodeId node) const;
  void SetType(NodeId node, TypeId type);
  /// 0 not checked, 1 checked, 2 mixed.
  unsigned CheckState(NodeId node) const;
  /// 0 not checked, 2 mixed, any other value checked.
  void SetCheckState(NodeId node, unsigned state);
  bool PartlyChecked(NodeId node) const { return CheckState(node) == 2; }
  /// Shows the mixed mark, or, with false, again what was there before it.
  void SetPartlyChecked(NodeId node, bool mixed);
  /// Whether the user may toggle the check box; true for a new node.
  bool CheckSensitive(NodeId node) const;
  void SetCheckSensitive(NodeId node, bool sensitive);
  int FirstInt(NodeId node) const;
  void SetFirstInt(NodeId node, int value);
  /// The second int: not 0 is expanded.
  int Expanded(NodeId node) const;
  void SetExpanded(NodeId node, int value);
  /// Expands or collapses a node and all below it; observers get one `BranchExpanded`.
  void SetBranchExpanded(NodeId node, bool expanded);
  /// The third int: not 0 is highlighted, and highlighted nodes are the selection.
  int ThirdInt(NodeId node) const;
  void SetThirdInt(NodeId node, int value);
  void* UserData(NodeId node) const;
  void SetUserData(NodeId node, void* data);

  // --- Selection -----------------------------------------------------------------------------------------------------

  bool IsSelected(NodeId node) const { return ThirdInt(node) != 0; }
  /// In the order in which the nodes were selected.
  std::vector<NodeId> Selection() const;
  std::size_t SelectionSize() const;
  /// Makes these nodes, in this order, the selection. Nodes that stay in it send no `NodeChanged`.
  void Select(const std::vector<NodeId>& nodes);

  // --- Marks ---------------------------------------------------------------------------------------------------------

  /// `kNoNode` when there is none.
  NodeId Marked(NodeMark mark) const;
  void SetMark(NodeMark mark, NodeId node);
  CellPlace SelectedCell() const;
  void SetSelectedCell(CellPlace cell);

  // --- Cells ---------------------------------------------------------------------------------------------------------

  std::size_t Columns() const;
  /// Never null; good until the cell's label changes.
  const wchar_t* CellLabel(CellPlace cell) const;
  void SetCellLabel(CellPlace cell, std::wstring_view label);
  ControlId CellControl(CellPlace cell) const;
  /// Puts a control into a cell; it leaves the one that it was in. The control that was in the cell is in none then.
  /// `kNoControl` empties the cell.
  void SetCellControl(CellPlace cell, ControlId control);
  /// The cell that a control is in; false when converted to `bool` where it is in none.
  CellPlace PlaceOf(ControlId control) const;
  /// Sends `ControlChanged` when the control is in a cell.
  void NotifyControl(ControlId control);

  // --- Observers -----------------------------------------------------------------------------------------------------

  /// The observer is removed again before it ends.
  void AddObserver(TreeObserver* observer);
  void RemoveObserver(TreeObserver* observer);

  /// Bytes on the heap that the store holds, for measurements. Linear in the number of blocks, not of nodes.
  std::size_t MemoryUse() const;

  /// For the toolkit itself.
  NodeTable& Table() { return *table_; }
  const NodeTable& Table() const { return *table_; }

 private:
  template <class... Parameters, class... Arguments>
  void Tell(void (TreeObserver::*event)(Parameters...), Arguments... arguments) const;
  void TellChanged(bool changed, NodeId node, NodeChanges changes) const;
  void EmptyCell(ControlId control);

  std::unique_ptr<NodeTable> table_;
  std::vector<TreeObserver*> observers_;
  ColumnIndex selected_column_ = kNoColumn;
};

}  // namespace uiox

#endif
