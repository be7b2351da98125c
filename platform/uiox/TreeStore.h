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
  /// Must be new in the tree and not empty.
  std::string_view name;
  /// What the first column shows; UTF-16 code units.
  std::wstring_view label;
  /// The node's type, which its image follows.
  TypeId type = 0;
  /// The second wide text, which no view shows.
  std::wstring_view second_text;
  /// A number of the application; no view shows it.
  int first_int = 0;
  /// Not 0: expanded.
  int expanded = 0;
  /// Not 0: highlighted, and so selected.
  int third_int = 0;
  /// The application's; never looked into and not owned.
  void* user_data = nullptr;
};

/// What the user did last, and to which node. A mark goes with its node.
enum class NodeMark {
  Activated,    ///< activated, or selected last (attribute 53)
  Toggled,      ///< expanded or collapsed (attribute 175)
  Checked,      ///< its check box was toggled (attribute 346)
  SelectedCell  ///< one of its cells was clicked (attributes 232 and 233)
};

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
  /// An empty tree whose nodes have this many cells each.
  explicit TreeStore(std::size_t columns = 0);
  ~TreeStore();
  TreeStore(const TreeStore&) = delete;
  TreeStore& operator=(const TreeStore&) = delete;

  // --- Shape ---------------------------------------------------------------------------------------------------------

  /// The node of that name, or `kNoNode`.
  NodeId Find(std::string_view name) const;
  /// The same for a zero-terminated name; null is in no tree.
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
  /// The node's place among its siblings, from 0.
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
  /// What the first column shows; UTF-16 code units.
  std::wstring Label(NodeId node) const;
  /// Gives the node another label; the text is copied.
  void SetLabel(NodeId node, std::wstring_view label);
  /// The second wide text (attribute 25), which no view shows.
  std::wstring SecondText(NodeId node) const;
  /// Gives the node another second text; it is copied.
  void SetSecondText(NodeId node, std::wstring_view text);
  /// The node's type; 0: none.
  TypeId Type(NodeId node) const;
  /// Gives the node another type, and with it another image.
  void SetType(NodeId node, TypeId type);
  /// 0 not checked, 1 checked, 2 mixed.
  unsigned CheckState(NodeId node) const;
  /// 0 not checked, 2 mixed, any other value checked.
  void SetCheckState(NodeId node, unsigned state);
  /// Whether the check box shows the mixed mark.
  bool PartlyChecked(NodeId node) const { return CheckState(node) == 2; }
  /// Shows the mixed mark, or, with false, again what was there before it.
  void SetPartlyChecked(NodeId node, bool mixed);
  /// Whether the user may toggle the check box; true for a new node.
  bool CheckSensitive(NodeId node) const;
  /// Lets the user toggle the check box, or does not; the program may always.
  void SetCheckSensitive(NodeId node, bool sensitive);
  /// A number of the application's (attribute 3); no view shows it.
  int FirstInt(NodeId node) const;
  /// Gives the node another such number.
  void SetFirstInt(NodeId node, int value);
  /// The second int: not 0 is expanded.
  int Expanded(NodeId node) const;
  /// Expands (not 0) or collapses this node alone. No callback is called.
  void SetExpanded(NodeId node, int value);
  /// Expands or collapses a node and all below it; observers get one `BranchExpanded`.
  void SetBranchExpanded(NodeId node, bool expanded);
  /// The third int: not 0 is highlighted, and highlighted nodes are the selection.
  int ThirdInt(NodeId node) const;
  /// Highlights a node (not 0) at the end of the selection, or takes it out.
  void SetThirdInt(NodeId node, int value);
  /// The application's pointer (attribute 260); null at first, never looked into.
  void* UserData(NodeId node) const;
  /// Gives the node another pointer; the old one is not released.
  void SetUserData(NodeId node, void* data);

  // --- Selection -----------------------------------------------------------------------------------------------------

  /// Whether the node is highlighted.
  bool IsSelected(NodeId node) const { return ThirdInt(node) != 0; }
  /// In the order in which the nodes were selected.
  std::vector<NodeId> Selection() const;
  /// How many nodes are selected. Constant time.
  std::size_t SelectionSize() const;
  /// Makes these nodes, in this order, the selection. Nodes that stay in it send no `NodeChanged`.
  void Select(const std::vector<NodeId>& nodes);

  // --- Marks ---------------------------------------------------------------------------------------------------------

  /// `kNoNode` when there is none.
  NodeId Marked(NodeMark mark) const;
  /// Puts a mark on a node; `kNoNode` takes it away.
  void SetMark(NodeMark mark, NodeId node);
  /// The cell that was clicked last; no place when there is none or its node has gone.
  CellPlace SelectedCell() const;
  /// Makes a cell the selected one; no place: none.
  void SetSelectedCell(CellPlace cell);

  // --- Cells ---------------------------------------------------------------------------------------------------------

  /// How many cells each node has.
  std::size_t Columns() const;
  /// Never null; good until the cell's label changes.
  const wchar_t* CellLabel(CellPlace cell) const;
  /// Gives a cell another text; it is copied.
  void SetCellLabel(CellPlace cell, std::wstring_view label);
  /// The control in a cell, or `kNoControl`.
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
  /// Tells it of nothing more.
  void RemoveObserver(TreeObserver* observer);

  /// Bytes on the heap that the store holds, for measurements. Linear in the number of blocks, not of nodes.
  std::size_t MemoryUse() const;

  /// For the toolkit itself.
  NodeTable& Table() { return *table_; }
  /// The same for reading.
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
