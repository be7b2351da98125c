/// \file
/// A toolkit tree: its node operations and its events.
#ifndef OXECAD_UI_BASE_BASETREE_H
#define OXECAD_UI_BASE_BASETREE_H

#include <string>

#include <uicomps/base/Component.h>
#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// Wraps one tree of the toolkit. Every node has a name that is unique in the tree; all operations address nodes by it.
/// The toolkit owns the nodes: nothing is kept here, and each operation is a call to the toolkit.
///
/// An operation that gives a `bool` says whether the toolkit accepted it. One that gives a value gives its default (0,
/// an empty string, 0xFFFFFFFF for a colour) when the toolkit refuses. Labels are UTF-16 code units, one in each
/// `wchar_t`.
///
/// A handler may change the tree, and may destroy it as the last thing that it does. The node name that it is given
/// belongs to the toolkit and is good until the tree changes: a handler that changes the tree copies it first. An
/// override that destroys the tree does not call the overridden function any more.
class OXECAD_UI_EXPORT BaseTree : public Component {
 public:
  /// What `InsertNodeSortByName` did.
  enum InsertNodeResult : int {
    NotInserted = 0,  ///< the parent's children could not be read, or the insertion failed
    Inserted = 1,     ///< the node is under the parent: inserted now, or there already
    Declined = 2      ///< the placer declined; nothing was inserted
  };

  /// Chooses a place among a parent's children: sets `before` to the sibling that the new node goes before, or leaves
  /// it null for the end, and gives true; gives false to decline. The array is good during the call only. It may change
  /// the tree, but not destroy it unless it declines; debug builds assert that.
  using Placer = bool (*)(const char* name, int count, const char** children, const char*& before);

  /// Names the tree, as `Component` does; calls nothing.
  BaseTree(const char* device, const char* name);
  /// The copy works on the same widget.
  BaseTree(const BaseTree&);
  /// Works on the widget of the other from now on.
  BaseTree& operator=(const BaseTree&);
  /// Removes the callbacks that `Init` registered. Each copy does so again.
  ~BaseTree() override;

  /// Registers for activation, collapse, expansion and selection, in this order.
  void Init() override;
  /// Deletes all nodes. Does nothing when there is no root (see `HasRoot`). Linear in the number of nodes.
  virtual void Clear();

  /// The user activated a node (double click, Enter). Does nothing here.
  virtual void OnActivate(const char* node);
  /// The user collapsed a node. Does nothing here.
  virtual void OnCollapse(const char* node);
  /// The user expanded a node. Does nothing here.
  virtual void OnExpand(const char* node);
  /// The selection changed. `nodes` holds `count` names and may be null when there are none; `extra` tells how the
  /// selection came about (2: one node at a time). Does nothing here.
  virtual void OnSelect(int count, char** nodes, int extra);

  /// Whether the tree has a root. A root whose name begins with a blank counts as none.
  bool HasRoot() const;
  /// Expands the whole tree. Linear in the number of nodes.
  void ExpandAll() const;
  /// Collapses all below the root; the root itself stays open. Linear in the number of nodes.
  void CollapseAll() const;
  /// Makes the tree accept or ignore the user's input.
  void Enable(bool enable) const;
  /// Switches redrawing on or off, for many changes in a row.
  void SetRedraw(bool redraw) const;
  /// The background colour (0x00BBGGRR), or 0xFFFFFFFF when it cannot be read.
  unsigned int GetBackgroundColor() const;

  /// Adds a node at the end of its parent's children. `i1` to `i3` are the toolkit's three ints of a node (`i2` is the
  /// expanded flag), `data` is the application's pointer.
  bool AddNode(const char* name, const wchar_t* label, const char* parent, const char* type, const wchar_t* text2,
               int i1, int i2, int i3, void* data) const;
  /// Adds a node before a sibling; a null sibling means the end.
  bool AddNodeBefore(const char* name, const wchar_t* label, const char* parent, const char* before, const char* type,
                     const wchar_t* text2, int i1, int i2, int i3, void* data) const;
  /// Inserts a node before a sibling (null: at the end), unless the parent has a child of that name already; gives true
  /// in both cases. Linear in the number of siblings when the toolkit refuses.
  bool InsertNode(const char* name, const wchar_t* label, const char* parent, void* data, const char* before,
                  const char* type, const wchar_t* text2, int i1, int i2, int i3) const;
  /// Inserts a node where `placer` puts it. Linear in the number of siblings.
  InsertNodeResult InsertNodeSortByName(const char* name, const wchar_t* label, const char* parent, Placer placer,
                                        void* data, const char* type, const wchar_t* text2, int i1, int i2,
                                        int i3) const;
  /// Deletes a node with its subtree. Linear in the size of the subtree.
  bool DeleteNode(const char* node) const;
  /// Moves a node with its subtree under `parent`, before the sibling `before`; null means the end.
  bool MoveNodeBefore(const char* node, const char* parent, const char* before) const;
  /// Gives a node another label, which the toolkit copies.
  bool ModifyNodeLabel(const char* node, const wchar_t* label) const;

  /// The label as it was set, markup included.
  std::wstring GetNodeLabel(const char* node) const;
  /// The name of the node's type, by which the toolkit chooses its icon.
  std::string GetNodeType(const char* node) const;
  /// The parent's name, empty at the root. The toolkit's result goes to `status` when that is not null.
  std::string GetParent(const char* node, int* status = nullptr) const;
  /// The number of a node's children, without those further down. Constant time.
  int GetNodeChildCount(const char* node) const;
  /// Lends the children's names: the array is the toolkit's and good until the next change below the node. On failure
  /// `count` is 0 and `children` null. What it costs is the toolkit's affair; the stand-in needs linear time.
  bool GetNodeChildren(const char* node, int* count, char*** children) const;
  /// Reads the application's pointer; `data` is written on success only.
  bool GetNodeData(const char* node, void*& data) const;
  /// Whether the node's children are shown; false when it cannot be read.
  bool GetNodeExpanded(const char* node) const;
  /// Whether `parent` has no child of that name; also true when its children cannot be read. Linear in their number.
  bool DoesNotExist(const char* parent, const char* name) const;

  /// Splits a node's full name: `head` becomes the name of its parent, `rest` what follows.
  /// - A name of 7 characters or more with "groups/" anywhere in it: `head` is its first 6 characters, `rest` what
  /// follows
  ///   the first 7, wherever "groups/" stands.
  /// - Another name with a slash: the parts before and after the first slash.
  /// - Any other name: `rest` is the name; `head` is "root", or empty for "root" itself.
  static void DivideName(const std::string& full, std::string& rest, std::string& head);

  /// The toolkit's callbacks. Each takes the tree; for null it gives -1.
  /// Gives 0, or the toolkit's error when the node cannot be read.
  static int ActivateCB(BaseTree* self);
  /// Gives -1.
  static int CollapseCB(BaseTree* self);
  /// Gives -1.
  static int ExpandCB(BaseTree* self);
  /// Gives the result of reading the selection.
  static int SelectCB(BaseTree* self);
};

}  // namespace oxecad_ui

#endif
