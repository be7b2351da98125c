/// \file
/// The tree of a comparison between two designs.
#ifndef OXECAD_UI_COMPARE_COMPARECOLORTREE_H
#define OXECAD_UI_COMPARE_COMPARECOLORTREE_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <oxcore/Mainframe.h>
#include <oxk/ecad/CompareColorVis.h>

#include <uicomps/toolkit/Export.h>
#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

/// Each compare node (type "colorvis") shows five values in five columns: its colour in design A, in design B, and
/// where both overlap, the show mode, and a check box that dims the overlap. The values live in the cells alone:
/// nothing is cached, and every step reads the cells that it needs.
///
/// A node that has compare children sums them up: the common value, or "mix". Children count as compare children when
/// the first of them is a compare node.
///
///                  a      b      overlap  showMode   dimOverlap
///     net          red    mix    green    mix_show   mixed
///       pads       red    blue   green    both_show  on
///       tracks     red    -      -        a_show     off       (in design A only)
///       vias       -      red    -        b_show     off       (in design B only)
///
/// Colours are 0x00BBGGRR; 0xFFFFFFFF is none: unknown, or several. The second client pointer of `SetOnDirtyHandler`,
/// when not null, is a `std::vector<std::string>` that gets the name of the changed node before the handler is called.
/// Reasons: 1 a compare value changed (also when the colour picker was cancelled), 2 a node's own check box was
/// toggled.
///
/// The colour picker runs events while it is open. What they do to the nodes is all right; destroying the tree is not.
/// Debug builds assert that.
class OXECAD_UI_EXPORT CompareColorTree : public Tree {
 public:
  /// Which of two designs are shown; the platform's.
  using ShowMode = oxk::ecad::CompareColorVis::ShowMode;

  /// In which designs a node exists: none, the first (A), the second (B) or both; a set of bits.
  enum DesignFlag : std::uint32_t { DesignNone = 0, DesignA = 1, DesignB = 2, DesignBoth = 3 };

  /// A compare node with its five values and where it exists.
  struct OXECAD_UI_EXPORT CompareNodeInfo : NodeInfo {
    CompareNodeInfo() = default;
    /// Copies all members.
    CompareNodeInfo(const CompareNodeInfo&);
    /// Copies all members.
    CompareNodeInfo& operator=(const CompareNodeInfo&);
    ~CompareNodeInfo() override;

    unsigned int colorA = 0xFFFFFFFFu;        ///< in design A
    unsigned int colorB = 0xFFFFFFFFu;        ///< in design B
    unsigned int colorOverlap = 0xFFFFFFFFu;  ///< where both overlap
    ShowMode showMode = ShowMode::Both;       ///< `Mixed` where children differ
    NodeState dim = Unchecked;                ///< of the box that dims the overlap
    DesignFlag designFlag = DesignNone;       ///< decides which colour cells are filled
  };

  /// Takes compare nodes; the first other node ends its list of siblings.
  class OXECAD_UI_EXPORT ColorNodeFilter : public NodeFilter {
   public:
    Result operator()(const Tree* tree, const char* node) const override;
    Result operator()(const NodeInfo& info) const override;
  };

  /// The type of compare nodes.
  static constexpr const char* s_compareType = "colorvis";
  static constexpr const char* s_showModeColumn = "showMode";  ///< column of the show mode
  static constexpr const char* s_dimColumn = "dimOverlap";     ///< column of the box that dims the overlap
  static constexpr const char* s_colorAColumn = "a";           ///< column of the colour in design A
  static constexpr const char* s_colorBColumn = "b";           ///< column of the colour in design B
  static constexpr const char* s_overlapColumn = "overlap";    ///< column of the colour of the overlap
  /// The one option menu, moved into the cell that is clicked.
  static constexpr const char* s_showModeMenu = "ShowModeOM";
  /// The menu's option that stands for no choice.
  static constexpr const char* s_noShowMode = "none";
  /// What a colour cell's label has before the name of the colour's icon.
  static constexpr const wchar_t* s_imgOpen = L"<img src=\"";
  /// What a colour cell's label has behind the name of the colour's icon.
  static constexpr const wchar_t* s_imgClose = L"\">";

  /// Names the tree, as `Component` does; calls nothing.
  CompareColorTree(const char* device, const char* component);
  /// The copy works on the same widget and the same controls; the destructor of each destroys the controls.
  CompareColorTree(const CompareColorTree&);
  /// Works on the widget of the other from now on.
  CompareColorTree& operator=(const CompareColorTree&);
  ~CompareColorTree() override;

  using Tree::AddNode;
  using Tree::AddNodeBefore;
  using Tree::GetNodeInfo;
  using Tree::Init;

  /// As `Tree::Init`, and creates the option menu of show modes. The main frame, which may be null and is not owned,
  /// becomes the colour picker's parent.
  void Init(oxcore::Mainframe* mainframe);

  /// These four do nothing: the values are changed in the cells.
  void OnActivate(const char* node) override;
  void OnCollapse(const char* node) override;
  void OnExpand(const char* node) override;
  void OnSelect(int count, char** nodes, int extra) override;
  /// A node's own check box was toggled: calls the dirty handler, if there is one, with reason 2.
  void OnCheck(const char* node) override;

  /// Adds a node that is no compare node, such as a heading; its check box ignores the user. Gives false also when the
  /// node was added and its check box could not be changed.
  bool AddNode(const NodeInfo& info) override;
  /// Adds a compare node, whose type must be "colorvis", writes its cells and sums up above it. Gives false also when
  /// the node was added and could not be set up. Linear in the number of siblings.
  bool AddNode(const CompareNodeInfo& info);
  /// As `AddNode`, placed before a sibling; null means the end.
  bool AddNodeBefore(const CompareNodeInfo& info, const char* before);

  /// Gives six values to a compare node and its branch, and sums up above. Does nothing for any other node.
  /// Linear in the size of the branch, and in the number of children of each ancestor looked at.
  void ChangeNodeInfo(const char* node, unsigned int colorA, unsigned int colorB, unsigned int colorOverlap,
                      ShowMode showMode, NodeState dim, DesignFlag designFlag);
  /// Accepts and ignores a list of nodes.
  void ChangeNodeInfo(const std::vector<std::string>& nodes);
  /// Gives six values to a node and its compare branch, the deepest nodes first. Linear in the size of the branch.
  void ParentInfoChanged(const char* node, unsigned int colorA, unsigned int colorB, unsigned int colorOverlap,
                         ShowMode showMode, NodeState dim, DesignFlag designFlag);
  /// Sums up the compare children of a node, and of its ancestors as long as something changes. Linear in the number of
  /// children of each node looked at.
  void ChildInfoChanged(const char* node);

  /// Adds compare nodes in their order, with one redraw. What they leave is what `AddNode` would leave for one after
  /// the other, and so is the result of each; parents are summed up once, at the end. Linear in the number of records
  /// and of their siblings.
  std::vector<bool> AddNodes(const std::vector<CompareNodeInfo>& infos);

 protected:
  /// A new `CompareNodeInfo` for a compare node, a new `NodeInfo` for any other.
  NodeInfo* GetNodeInfo(const char* node) const override;

 private:
  using Children = std::vector<std::string>;
  friend class ColorLabel;
  friend class CompareLoad;

  const char* GetDimCheckCtrl(const char* node);
  unsigned long long GetIndex(const char* node) const;
  bool OnNodeAdded(const CompareNodeInfo& info);
  bool SetUpNode(const CompareNodeInfo& info);
  void GetNodeInfo(const char* node, unsigned int& colorA, unsigned int& colorB, unsigned int& colorOverlap,
                   ShowMode& showMode, NodeState& dim, DesignFlag& designFlag) const;
  void SetNodeInfo(const char* node, unsigned int colorA, unsigned int colorB, unsigned int colorOverlap,
                   ShowMode showMode, NodeState dim, DesignFlag designFlag);
  void SetNodeInfo(const char* node, class ColorLabel& colorA, ColorLabel& colorB, ColorLabel& colorOverlap,
                   ShowMode showMode, NodeState dim, DesignFlag designFlag) const;

  static std::wstring ColorToLabel(unsigned int color);
  static unsigned int LabelToColor(const std::wstring& label);
  static const wchar_t* DimToLabel(NodeState dim);
  static NodeState LabelToDim(const wchar_t* label);
  static const wchar_t* ShowModeToLabel(ShowMode showMode);
  static ShowMode LabelToShowMode(const wchar_t* label);
  static const char* LabelToShowModeName(const wchar_t* label);
  static ShowMode ShowModeNameToValue(const char* name);

  // Summaries of children; an empty list leaves the outputs alone.
  void Aggregate(const Children& children, unsigned int& colorA, unsigned int& colorB, unsigned int& colorOverlap,
                 ShowMode& showMode, NodeState& dim, DesignFlag& designFlag);
  std::wstring AggregateColor(const Children& children, const char* column);
  void AggregateDim(const Children& children, NodeState& dim);
  void AggregateShowMode(const Children& children, ShowMode& showMode);

  // Downward: a node and its compare branch.
  void ParentColorChanged(const char* node, unsigned int color, const char* column);
  void ParentDimChanged(const char* node, NodeState dim);
  void ParentShowModeChanged(const char* node, ShowMode showMode);

  // Upward: a node and its ancestors, as long as something changes.
  void ChildColorChanged(const char* node, const char* column);
  void ChildDimChanged(const char* node);
  void ChildShowModeChanged(const char* node);

  void OnCellSelect();
  void OnDimCheck(unsigned long long index);
  void OnShowModeSelect(unsigned long long index);
  void OfferShowModes(const std::string& node);
  void AskForColor(const std::string& node, const std::string& column);

  static int CellSelectCB(CompareColorTree* self);
  static int DimCheckActivatedCB(CompareColorTree* self, void* value);
  static int ShowModeSelectCB(CompareColorTree* self, void* value);

  bool IsCompareNode(const char* node) const;
  Children CompareChildren(const char* node) const;
  template <class WriteNode>
  void WriteBranch(const char* node, const WriteNode& writeNode) const;
  template <class UpdateNode>
  void Climb(const char* node, const UpdateNode& updateNode) const;

  const wchar_t* CellLabel(const char* node, const char* column) const;
  void SetCellLabel(const char* node, const char* column, const wchar_t* label) const;
  NodeState DimState(const char* node) const;
  void SetDimState(const char* node, NodeState dim) const;

  oxcore::Mainframe* m_mainframe = nullptr;
  /// The names of compare nodes in the order in which they were added; a node's place is its index.
  std::vector<std::string> m_nodes;
  /// The name of each node's dim check button.
  std::map<std::string, std::string> m_dimControls;
};

}  // namespace oxecad_ui

#endif
