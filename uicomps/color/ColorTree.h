/// \file
/// A tree whose nodes have colours.
#ifndef OXECAD_UI_COLOR_COLORTREE_H
#define OXECAD_UI_COLOR_COLORTREE_H

#include <set>
#include <string>
#include <vector>

#include <oxcore/Mainframe.h>

#include <uicomps/toolkit/Export.h>
#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

/// Every node has a colour, shown by its type's icon. A parent's colour sums its children up: their common colour, or
/// none (the type "mix") when they differ. A colour given to a node goes down to its whole branch and is summed up
/// above it.
///
///     top        mix                top        mix
///       power    red       blue       power    blue
///         GND    red   -- given -->     GND    blue
///         VCC    red     to power       VCC    blue
///       clock    green              clock      green
///
/// Colours are 0x00BBGGRR; 0xFFFFFFFF is none. A node whose type contains "colorless" has no colour. The node's user
/// data holds the colour. The second client pointer of `SetOnDirtyHandler`, when not null, is a
/// `std::vector<std::string>` that gets the names of the changed nodes before the handler is called. Reasons: 1 colour,
/// 2 check, 3 selection, 4 expanded, 5 collapsed.
///
/// The colour picker runs events while it is open. What they do to the nodes is all right; destroying the tree is not,
/// unless the user then cancels. Debug builds assert that.
class OXECAD_UI_EXPORT ColorTree : public Tree {
 public:
  /// A node with its colour.
  struct OXECAD_UI_EXPORT ColorNodeInfo : NodeInfo {
    ColorNodeInfo() = default;
    /// Copies all members.
    ColorNodeInfo(const ColorNodeInfo&);
    /// Copies all members.
    ColorNodeInfo& operator=(const ColorNodeInfo&);
    ~ColorNodeInfo() override;

    unsigned int color = 0xFFFFFFFFu;  ///< 0x00BBGGRR, 0xFFFFFFFF for none
  };

  /// Stands in the type of a node that has no colour.
  static constexpr const char* s_colorlessType = "colorless";

  /// Names the tree, as `Component` does; calls nothing.
  ColorTree(const char* device, const char* name);
  /// The copy works on the same widget.
  ColorTree(const ColorTree&);
  /// Works on the widget of the other from now on.
  ColorTree& operator=(const ColorTree&);
  ~ColorTree() override;

  using Tree::AddNode;
  using Tree::AddNodeBefore;
  using Tree::GetNodeInfo;
  using Tree::Init;

  /// As `Tree::Init`. The main frame, which may be null and is not owned, becomes the colour picker's parent.
  void Init(oxcore::Mainframe* mainframe);

  /// Lets the user choose a colour for the node, unless activation is not allowed.
  void OnActivate(const char* node) override;
  void OnCollapse(const char* node) override;
  void OnExpand(const char* node) override;
  /// Needs a dirty handler.
  void OnSelect(int count, char** nodes, int extra) override;
  /// Carries the check to the other selected nodes when the node is one of several, and leaves at most one node of a
  /// single-check branch checked. Linear in the number of selected nodes and of the children of such branches.
  void OnCheck(const char* node) override;

  /// Whether nodes of a type have no colour.
  static bool IsColorless(const std::string& type);

  /// The node's colour; none when it cannot be read.
  unsigned int GetNodeColor(const char* node) const;

  /// Adds a node with the record's colour, or without one when the record's type is colourless, and brings the parents'
  /// colours up to date, also when the node was refused. Linear in the number of siblings.
  bool AddNode(const ColorNodeInfo& info);
  /// Adds a node of a colour. `c1` becomes the toolkit's third int of the node, `c2` and `c3` the first and second.
  bool AddNode(const char* name, const wchar_t* label, const char* parent, unsigned int color, int c1,
               const wchar_t* text2, int c2, int c3);
  /// As `AddNode` with the same record, placed before a sibling; null means the end.
  bool AddNodeBefore(const ColorNodeInfo& info, const char* before);
  /// As `AddNode` with the same values, placed before a sibling; null means the end.
  bool AddNodeBefore(const char* name, const wchar_t* label, const char* parent, const char* before, unsigned int color,
                     int c1, const wchar_t* text2, int c2, int c3);

  /// Gives a colour to a node and its whole branch, colourless nodes included; the deepest nodes first. Nothing happens
  /// above the node. Linear in the size of the branch, recursive in its depth.
  void ParentColorChanged(const char* node, unsigned int color);
  /// Sums up the children of a node, and of its ancestors as long as something changes. A node without children keeps
  /// its colour. Linear in the number of children of each node looked at.
  void ChildColorChanged(const char* node);
  /// Gives a colour to a node that has one, to its branch, and sums up above. Nobody is asked or told. Linear
  /// in the size of the branch, and in the number of children of each ancestor looked at.
  void ChangeNodeColor(const char* node, unsigned int color);
  /// Lets the user choose one colour for several nodes, colourless ones included. Nothing happens when the user
  /// cancels. Linear in the size of their branches.
  void ChangeNodeColor(const std::vector<std::string>& nodes);

  /// At most one child of the node stays checked from now on when the user checks one.
  void AddSingleCheckBranch(const char* node);

  /// Adds records in their order, with one redraw. What they leave is what `AddNode` would leave for one after the
  /// other, and so is the result of each; parents' colours are brought up to date once, at the end. Linear in the
  /// number of records and of their siblings.
  std::vector<bool> AddNodes(const std::vector<ColorNodeInfo>& infos);

 protected:
  static constexpr const char* s_mixType = "mix";             ///< the type of a node without a single colour
  static constexpr const char* s_image = "color_square.png";  ///< what the icons of colours are made of

  /// A new `ColorNodeInfo`.
  NodeInfo* GetNodeInfo(const char* node) const override;
  /// Lets the user choose a colour for one node that has one. Nothing happens when the user cancels. Linear in the size
  /// of its branch.
  virtual void ChangeNodeColor(const char* node);

  /// The node type of a colour, defined when it is first asked for. "mix" for none, and when it cannot be defined.
  const char* GetType(unsigned int color);
  /// Sets type and colour of one node.
  void SetNodeColor(const char* node, unsigned int color);

 private:
  friend class ColorLoad;

  void CheckSelected(const std::string& node, const std::vector<std::string>& selected);
  void UncheckSelected(const std::vector<std::string>& selected);
  void UncheckOthers(const std::string& branch, const std::string& chosen);
  bool IsSingleCheckBranch(const std::string& node) const;
  bool IsCheckSensitive(const char* node) const;

  oxcore::Mainframe* m_mainframe = nullptr;
  std::set<std::string> m_singleCheckBranches;
};

}  // namespace oxecad_ui

#endif
