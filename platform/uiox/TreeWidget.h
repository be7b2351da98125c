/// \file
/// A tree as a component: its nodes, its columns, the cell controls and what happened last.
#ifndef OXECAD_UIOX_TREEWIDGET_H
#define OXECAD_UIOX_TREEWIDGET_H

#include <uiox/Export.h>
#include <uiox/TreeStore.h>
#include <uiox/Widget.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace uiox {

/// A column as the resource describes it.
struct Column {
  /// By which the wire names it.
  std::string name;
  /// What the header shows.
  std::wstring title;
  bool markup = true;  ///< whether its texts are markup or plain
  int width = 0;       ///< in pixels; 0: as wide as it needs to be
};

/// How many nodes the user may select at a time.
enum class SelectionMode : std::uint8_t {
  None,     ///< none: a click activates or toggles only
  Single,   ///< one at most
  Multiple  ///< any number
};

/// How a tree looks and behaves, from its resource.
struct TreeStyle {
  /// The column of the nodes' labels. Its name is not used on the wire.
  Column label_column;
  /// The columns of the cells.
  std::vector<Column> columns;
  /// Whether each node has a check box before its label.
  bool check_boxes = false;
  bool root_shown = true;  ///< whether top-level nodes are shown or only what is below them
  /// Whether the columns' titles stand above them.
  bool header_shown = false;
  /// How many nodes the user may select.
  SelectionMode selection = SelectionMode::Multiple;
};

/// A tree in a device. The nodes are in its store; what the user did last is kept as the attributes that callbacks
/// read.
class OXECAD_UIOX_API TreeWidget : public Widget {
 public:
  /// An empty tree; only its device makes it (`Device::AddTree`).
  TreeWidget(Device& device, std::string name, TreeStyle style);
  ~TreeWidget() override;

  /// The nodes.
  TreeStore& Store() { return store_; }
  /// The nodes, for reading.
  const TreeStore& Store() const { return store_; }
  /// What the resource says of it; never changes.
  const TreeStyle& Style() const { return style_; }
  /// `kNoColumn` for a name that is no column.
  ColumnIndex FindColumn(std::string_view name) const;

  /// Attributes 53, 175 and 346; `kNoNode` when there is none or it has been removed.
  NodeId ActivatedNode() const { return store_.Marked(NodeMark::Activated); }
  /// The node that was expanded or collapsed last (attribute 175), or `kNoNode`.
  NodeId ToggledNode() const { return store_.Marked(NodeMark::Toggled); }
  /// The node whose check box was toggled last (attribute 346), or `kNoNode`.
  NodeId CheckedNode() const { return store_.Marked(NodeMark::Checked); }
  /// For `user::Activate` and `user::Select`.
  void SetActivatedNode(NodeId node) { store_.SetMark(NodeMark::Activated, node); }
  /// For `user::Expand` and `user::Collapse`.
  void SetToggledNode(NodeId node) { store_.SetMark(NodeMark::Toggled, node); }
  /// For `user::Check`.
  void SetCheckedNode(NodeId node) { store_.SetMark(NodeMark::Checked, node); }
  /// Attribute 267; 2: one node at a time.
  int SelectionKind() const { return selection_kind_; }
  /// For `user::Select`, which says how the selection came about (`user::SelectionKind`).
  void SetSelectionKind(int kind) { selection_kind_ = kind; }
  /// Attributes 232 and 233.
  CellPlace SelectedCell() const { return store_.SelectedCell(); }
  /// For `user::ClickCell`.
  void SetSelectedCell(CellPlace cell) { store_.SetSelectedCell(cell); }

  /// Makes a cell control, or null: the class is neither CheckButton nor OptionMenu, or the device has a component of
  /// the name.
  Widget* CreateControl(std::string_view name, WidgetClass widget_class);
  /// Takes it out of its cell and ends it, with its callbacks.
  bool DestroyControl(std::string_view name);
  /// Null for `kNoControl`.
  Widget* FindControl(ControlId control) const;
  /// The control in a cell, or null.
  Widget* ControlIn(CellPlace cell) const { return FindControl(store_.CellControl(cell)); }
  /// All cell controls, in no particular order.
  std::vector<Widget*> Controls() const;

 private:
  TreeStyle style_;
  TreeStore store_;
  int selection_kind_ = 0;
  std::vector<std::unique_ptr<Widget>> controls_;  // by id - 1; null: free
  std::vector<ControlId> free_controls_;
};

}  // namespace uiox

#endif
