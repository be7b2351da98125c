/// \file
/// The tree of a board's layers: what is visible, in which colour, and which layer is the active one.
#ifndef OXECAD_VIEWER_TREES_LAYERTREE_H
#define OXECAD_VIEWER_TREES_LAYERTREE_H

#include <viewer/board/Board.h>
#include <viewer/trees/LayerPalette.h>

#include <functional>
#include <string>
#include <vector>

#include <uicomps/color/ColorTree.h>

namespace oxviewer {

/// The layers of a board, in board order below their groups. A check box says whether a layer is visible; a group's box
/// shows what its layers have in common, and toggles them all. Layers that the board only refers to are not listed;
/// they are visible.
///
///     Copper           mix    [x]
///       F.Cu           red    [x]
///       B.Cu           blue   [x]
///     Technical        mix    [-]
///       F.SilkS        pale   [x]
///       F.Mask         purple [ ]
///     Active layer
///       F.Cu                  (x)
///       B.Cu                  ( )
class LayerTree : public oxecad_ui::ColorTree {
 public:
  static constexpr const char* kName = "layers";

  /// Shows the layers of `board`, which must outlive it, in the tree "layers" of the device.
  LayerTree(const char* device, const Board& board);
  LayerTree(const LayerTree&) = delete;
  LayerTree& operator=(const LayerTree&) = delete;
  /// Empties the tree.
  ~LayerTree() override;

  using ColorTree::Init;
  /// Registers the tree's events and fills it.
  void Fill(oxcore::Mainframe* mainframe);

  /// Is called after the user has changed a colour, a check box, or the active layer.
  void SetOnChange(std::function<void()> onChange) { onChange_ = std::move(onChange); }
  /// Is called after the user has changed the selection.
  void SetOnSelection(std::function<void()> onSelection) { onSelection_ = std::move(onSelection); }

  bool IsVisible(LayerId layer) const;
  Color ColorOfLayer(LayerId layer) const;
  /// Gives a listed layer a colour, and its groups what follows from it.
  void SetColor(LayerId layer, Color color);
  /// kNoLayer when the user has switched the active layer off.
  LayerId ActiveLayer() const;
  /// Makes a copper layer the active one.
  void SetActiveLayer(LayerId layer);
  void SetVisible(LayerId layer, bool visible);
  /// Shows the listed layers that the test accepts and hides the others, as one change by the user.
  void ShowLayers(const std::function<bool(LayerId)>& shown);
  /// Whether the layer's node or its group is selected.
  bool IsSelected(LayerId layer) const;

  /// The names of the selected nodes.
  const std::vector<std::string>& Selection() const { return selection_; }
  /// Whether the node is a group of layers, which may be renamed.
  static bool IsGroup(const std::string& node);
  /// Nodes of the groups, in the tree's order.
  std::vector<std::string> Groups() const;

  /// The node type that shows a colour's square, for nodes of other trees. It stays good.
  const char* TypeOfColor(Color color) { return GetType(color); }

  void OnCheck(const char* node) override;

 private:
  static int DirtyCB(void* self, void* reason);
  void OnDirty(int reason);
  void AddGroups();
  void AddLayer(LayerId layer, Color color);
  void AddActiveLayers();
  void CarryGroupStates(const std::vector<NodeState>& before);
  void SumUpGroups();
  std::vector<NodeState> GroupStates() const;

  const Board& board_;
  std::vector<Color> defaults_;
  std::vector<std::string> changed_;
  std::vector<std::string> selection_;
  std::function<void()> onChange_;
  std::function<void()> onSelection_;
  bool checking_ = false;
};

/// The text by which a person knows a layer: the canonical name, and in parentheses the user's own one where it says
/// more.
std::string LayerLabel(const Layer& layer);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_LAYERTREE_H
