/// \file
/// A tree with a record model: nodes as records, natural order, check states, filtered walks.
#ifndef OXECAD_UI_TREE_TREE_H
#define OXECAD_UI_TREE_TREE_H

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <uicomps/base/BaseTree.h>
#include <uicomps/toolkit/Export.h>
#include <uicomps/tree/StringComparators.h>

namespace oxecad_ui {

class SortedNames;

/// Adds records to a `BaseTree`: a node can be described by a `NodeInfo`, added, read back, walked with a `NodeFilter`
/// and collected into a `TreeInfo`. A check state set on one node is never carried to others here; derived trees do
/// that.
///
/// What is said to be recursive in the depth of a branch takes less than 250 bytes of stack for each level: with the
/// usual stack of 8 MiB, trees may be 30,000 levels deep.
class OXECAD_UI_EXPORT Tree : public BaseTree {
 public:
  /// What a node's check box shows.
  enum NodeState : std::uint32_t {
    Unchecked = 0,     ///< the box is empty
    Checked = 1,       ///< the box is ticked
    PartlyChecked = 2  ///< the node shows the mixed mark
  };

  /// What nodes are ordered by. Everything but `ByLabel` is refused.
  enum NodeComparableType : std::uint32_t {
    ByLabel = 0  ///< the label, in natural order
  };

  /// Describes one node. Derived records append their fields and are handled through references and pointers to this
  /// one.
  struct OXECAD_UI_EXPORT NodeInfo {
    NodeInfo() = default;
    /// Copies all members.
    NodeInfo(const NodeInfo&);
    NodeInfo(NodeInfo&&) = default;
    /// Copies all members.
    NodeInfo& operator=(const NodeInfo&);
    NodeInfo& operator=(NodeInfo&&) = default;
    virtual ~NodeInfo();

    /// Unique in the tree, in UTF-8. It holds the parent's name as `BaseTree::DivideName` splits it.
    std::string name;
    /// The text shown, as markup. Empty in a record to be added: the name behind its parent's part is shown.
    std::wstring label;
    std::string type;             ///< the name of the toolkit's node type
    NodeState state = Unchecked;  ///< of the check box
    bool expanded = false;        ///< whether the children are shown
  };

  /// Records in the order in which a walk met them: a node before its subtree. A copy shares the records and does not
  /// own them.
  struct OXECAD_UI_EXPORT TreeInfo {
    TreeInfo() = default;
    /// Shares the records of `other`, which must live as long.
    TreeInfo(const TreeInfo& other);
    /// Clears what was there and shares the records of `other`.
    TreeInfo& operator=(const TreeInfo& other);
    ~TreeInfo();
    /// Drops all records; deletes them when they are owned.
    void Clear();

    std::vector<NodeInfo*> records;  ///< none of them null unless the caller put it there
    /// Whether the records are deleted when they are cleared and with this object.
    bool ownsRecords = true;
  };

  /// Says for each node of a walk what to do with it. It may change the tree: the walk knows a node's children by the
  /// names that they had when it came to them. It must not destroy the tree; debug builds assert that.
  class OXECAD_UI_EXPORT NodeFilter {
   public:
    /// What a walk does with a node.
    enum Result : int {
      Accept = 0,       ///< take the node and walk its children
      SkipNode = 1,     ///< leave the node out and walk its children
      SkipBranch = 2,   ///< leave out the node and its subtree
      StopSiblings = 3  ///< leave the node out and walk no more children of its parent; go on above
    };

    NodeFilter() = default;
    /// Copies all members.
    NodeFilter(const NodeFilter&);
    /// Copies all members.
    NodeFilter& operator=(const NodeFilter&);
    virtual ~NodeFilter();
    /// Asks about a node by its name; the tree may be null.
    virtual Result operator()(const Tree* tree, const char* node) const = 0;
    /// Asks about a node by its record.
    virtual Result operator()(const NodeInfo& info) const = 0;
  };

  /// Takes every node.
  class OXECAD_UI_EXPORT Everything : public NodeFilter {
   public:
    Result operator()(const Tree* tree, const char* node) const override;
    Result operator()(const NodeInfo& info) const override;
  };

  /// Takes checked nodes, walks through partly checked ones, leaves unchecked branches out.
  class OXECAD_UI_EXPORT CheckedOnly : public NodeFilter {
   public:
    /// Reads the node's state from the tree; without a tree the node is left out.
    Result operator()(const Tree* tree, const char* node) const override;
    Result operator()(const NodeInfo& info) const override;
  };

  /// The arguments of `AddEcadNode`, with the same meaning. The pointers are used during the call only.
  struct EcadNode {
    const char* name = nullptr;      ///< unique in the tree
    const wchar_t* label = nullptr;  ///< what the node is placed by
    const char* parent = nullptr;    ///< the node to add to
    const char* type = nullptr;      ///< the toolkit's node type
    const wchar_t* text2 = nullptr;  ///< the toolkit's second text of a node
    int i1 = 0;                      ///< the toolkit's first int of a node
    int i2 = 0;                      ///< the expanded flag
    int i3 = 0;                      ///< the toolkit's third int of a node
    void* data = nullptr;            ///< the application's pointer
  };

  /// Orders records by their labels with a comparator `C` of wide strings.
  template <class C>
  class NodeInfoLabelComperator : public CComparator<NodeInfo> {
   public:
    /// Whether the label of `a` goes before that of `b`.
    bool Compare(const NodeInfo& a, const NodeInfo& b) const override { return comparator.Compare(a.label, b.label); }
    C comparator;  ///< orders the labels
  };

  /// Is called after a user's change with the first client pointer and the reason as a number: 1 colour or value
  /// changed or a check box toggled, 2 check or selection set changed, 3 selection changed, 4 expanded, 5 collapsed.
  /// Its result is ignored. It may destroy the tree.
  using DirtyHandler = int (*)(void* client, void* reason);

  /// Names the tree, as `Component` does; calls nothing.
  Tree(const char* device, const char* name);
  /// The copy works on the same widget, with a copy of the memory of inserted names, the same handler and clients.
  Tree(const Tree& other);
  /// As the copy; assigning a tree to itself changes nothing.
  Tree& operator=(const Tree& other);
  ~Tree() override;

  /// Registers for a toggled check box after the events of `BaseTree`.
  void Init() override;

  /// The user toggled a node's check box. Calls the dirty handler, if there is one, with reason 1.
  virtual void OnCheck(const char* node);
  /// Adds a node from a record at the end of its parent's children and sets its check state. Gives whether it was
  /// added.
  virtual bool AddNode(const NodeInfo& info);
  /// Fills a record. Gives false, and leaves the record alone, for a null or empty name; a missing node reads as empty.
  virtual bool GetNodeInfo(const char* node, NodeInfo& info) const;
  /// Gives a new record that the caller deletes; null for a null or empty name.
  virtual NodeInfo* GetNodeInfo(const char* node) const;

  using BaseTree::AddNode;
  using BaseTree::AddNodeBefore;

  /// As `AddNode`, placed before a sibling.
  bool AddNodeBefore(const NodeInfo& info, const char* before);

  /// Adds a node among the siblings that this operation added before, in natural order of labels; before those of an
  /// equal label. Siblings added by other operations are not looked at. An unsupported order adds at the end, after a
  /// message on standard output. What was added is forgotten when a tree of another name adds a node this way, and by a
  /// null parent. Reads about log2(n) of n siblings.
  bool AddEcadNode(const char* name, const wchar_t* label, const char* parent, NodeComparableType order,
                   const char* type, const wchar_t* text2, int i1, int i2, int i3, void* data);
  /// Adds many nodes, with one redraw. What they leave is what `AddEcadNode` would leave for one after the other, and
  /// so is the result of each; nodes of one parent reach the toolkit in the order of their labels. Linear in the number
  /// of nodes, and of the siblings added before, but for sorting the labels: each parent's nodes are sorted at once
  /// where one search for each would read more. The search does it all in a derived tree whose records do not give back
  /// the labels that nodes were added with.
  std::vector<bool> AddEcadNodes(const std::vector<EcadNode>& nodes, NodeComparableType order);
  /// Sorts a node's children in natural order of labels; children of equal labels end in any order. Gives false for a
  /// null node. An unsupported order prints a message and leaves the order as it is. n log n in the number of children.
  bool SortNodesByType(const char* node, NodeComparableType order);

  /// Gives a new comparator of records that the caller deletes; null, after a message on standard output, for an
  /// unsupported order.
  static const CComparator<NodeInfo>* GenerateComperatorByType(NodeComparableType type);
  /// The same with the order of names of an electronic design, in which a minus sign is a plain character.
  static const CComparator<NodeInfo>* GenerateEcadComperatorByType(NodeComparableType type);

  /// Gives the parent's name and the label that a record asks for.
  static void NodeInfoToNames(const NodeInfo& info, std::string& parent, std::wstring& label);

  /// Stores what is called after a user's change. What the second client pointer means is up to the kind of tree.
  void SetOnDirtyHandler(DirtyHandler handler, void* client1, void* client2);
  /// Whether trees that do something on activation may do it; they may at first.
  void SetAllowActivate(bool allow);

  /// Sets a node's check box alone: parents and children stay as they are.
  bool SetNodeState(const char* node, NodeState state) const;
  /// `Unchecked` when it cannot be read.
  NodeState GetNodeState(const char* node) const;
  /// Makes a node's check box accept or ignore the user.
  bool SetCheckSensitive(const char* node, bool sensitive) const;
  /// Makes the check boxes of the whole tree, root included, accept or ignore the user, whatever the node given. Linear
  /// in the number of nodes.
  void SetChildrenCheckSensitive(const char* node, bool sensitive) const;

  /// The number of the root's children, 0 without a root.
  int GetNoOfChildren() const;
  /// Replaces `names` by the children's names, in the tree's order; gives their count, 0 on failure. Linear in
  /// their number.
  int GetChildren(const char* node, std::vector<std::string>& names) const;
  /// Replaces `infos` by the children's records; one that cannot be read stands as a default record. False for null.
  /// Linear in their number.
  bool GetChildren(const char* node, std::vector<NodeInfo>& infos) const;
  /// Appends the leaves of a branch, depth first, and gives their number; a node without children is its own leaf. Null
  /// means the root. Linear in the size of the branch; recursive in its depth.
  int GetLeaves(const char* node, std::vector<std::string>& leaves) const;
  /// Appends the records below a node that the filter takes. Linear in what is walked; recursive in its depth.
  void GetBranchInfo(const char* node, TreeInfo& info, const NodeFilter& filter) const;
  /// Appends the records of the whole tree that the filter takes; asks it about the root only with `includeRoot`.
  /// Linear in what is walked; recursive in its depth.
  void GetTreeInfo(TreeInfo& info, const NodeFilter& filter, bool includeRoot) const;
  /// Appends the records below the root that `CheckedOnly` takes. Linear in what is walked; recursive in its depth.
  void GetCheckedNodes(TreeInfo& info) const;

  /// The toolkit's callback for a toggled check box: -1 for null, otherwise the result of reading the node.
  static int CheckCB(Tree* self);

 protected:
  /// Where a record belongs among sorted children: the index of the first that is not before it. Reads the children's
  /// records with `GetNodeInfo(name, record)`; a child that cannot be read is tried again, up to 10,000 times in a row,
  /// and then the record goes to the end.
  int BinarySearchNodeLocation(std::vector<std::string>& children, const CComparator<NodeInfo>* cmp, NodeInfo& node);
  /// Sorts records as `SortNodesByType` does.
  void SortChildrenByType(std::vector<NodeInfo>& children, NodeComparableType order);

  /// What the dirty handler is told.
  enum DirtyReason : int {
    ValueChanged = 1,      ///< a colour or another value, a check, or an `EcadTree` was activated
    SetChanged = 2,        ///< the set of checked or selected nodes
    SelectionChanged = 3,  ///< the selection of a `ColorTree`
    NodeExpanded = 4,      ///< the user has expanded a node
    NodeCollapsed = 5      ///< the user has collapsed a node
  };

  /// Reads name, label, state, type and expanded flag of a node, whose name is not null, in this order.
  void FillNodeInfo(const char* node, NodeInfo& info) const;

  /// Whether `SetOnDirtyHandler` gave a handler.
  bool HasDirtyHandler() const { return m_dirtyHandler != nullptr; }
  /// Calls the dirty handler, which must be there. The tree may be gone afterwards.
  void CallDirtyHandler(DirtyReason reason) const;
  /// Tells the dirty handler, if there is one, that a node changed: the list of changed nodes, where there is one,
  /// holds just this node then. The tree may be gone afterwards.
  void NotifyNode(const std::string& node, DirtyReason reason) const;
  /// The second client pointer as the list of changed node names that colour and compare trees keep; may be null.
  std::vector<std::string>* ChangedNodes() const;
  /// The second client pointer of `SetOnDirtyHandler`; not owned, may be null.
  void* SecondClient() const { return m_client2; }
  /// What `SetAllowActivate` gave.
  bool IsActivateAllowed() const { return m_allowActivate; }

 private:
  using ChildNameCache = std::unordered_map<std::string, std::unique_ptr<SortedNames>>;
  friend class EcadLoad;

  bool FinishAdding(bool added, const NodeInfo& info) const;
  void ClaimCache(const char* parent);
  SortedNames* CachedChildren(const char* parent, const std::string& name);
  /// The index before which the record goes among the cached children; their number means the end.
  int FindPlace(const SortedNames& children, NodeComparableType order, NodeInfo& node) const;
  template <class Names>
  int SearchPlace(Names names, const CComparator<NodeInfo>& comparator, const NodeInfo& node) const;

  ChildNameCache m_childNames;
  DirtyHandler m_dirtyHandler = nullptr;
  void* m_client1 = nullptr;
  void* m_client2 = nullptr;
  bool m_allowActivate = true;
};

}  // namespace oxecad_ui

#endif
