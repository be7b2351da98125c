/// \file
/// The tree of a board's components by kind, with totals.
#ifndef OXECAD_VIEWER_TREES_PARTTREE_H
#define OXECAD_VIEWER_TREES_PARTTREE_H

#include <viewer/board/Board.h>
#include <viewer/trees/TextSearch.h>

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <uicomps/userdata/UserDataTree.h>

namespace oxviewer {

/// The components of a board by kind; the totals count what a filter leaves, and kinds without any are left out.
///
///     Components (3)          root
///       Resistors (2)         kind:3
///         R9  10k             component:R9
///         R10  4k7            component:R10
///       Capacitors (1)        kind:5
///         C1  100n            component:C1
class PartTree : public oxecad_ui::UserDataTree {
 public:
  static constexpr const char* kName = "objects";

  /// Shows the components of `board`, which must outlive it, in the tree "objects" of the device.
  PartTree(const char* device, const Board& board);
  PartTree(const PartTree&) = delete;
  PartTree& operator=(const PartTree&) = delete;
  /// Empties the tree.
  ~PartTree() override;

  /// Registers the tree's events and fills it.
  void Fill();

  /// Shows only components whose reference, value or footprint holds the text (UTF-8, ASCII letters in any case); the
  /// empty text shows all. While there is a filter, kinds are expanded; without one they are again as they were before.
  /// What was selected and is shown again is selected again.
  void SetFilter(std::string_view text);
  /// The same with another way of looking for texts; an empty function shows all.
  void SetFilter(TextTest test);

  /// The components that are shown, in no particular order.
  std::vector<const oxviewer::Component*> Shown() const;

  /// Is called after the user has changed the selection.
  void SetOnSelection(std::function<void()> onSelection) { onSelection_ = std::move(onSelection); }
  /// Is called with the component of a node that the user has activated.
  void SetOnActivation(std::function<void(const oxviewer::Component&)> onActivation) {
    onActivation_ = std::move(onActivation);
  }
  /// The components selected; a kind stands for all of its components that are shown.
  const std::vector<const oxviewer::Component*>& Selected() const { return selected_; }

  /// The nodes that the user has selected, whether a filter shows them or not.
  const std::vector<std::string>& SelectedNodes() const { return selectedNodes_; }
  /// Selects these nodes instead; those that a filter hides are selected when they are shown again. Tells of it as if
  /// the user had done it, where other components are selected than before.
  void RestoreSelection(const std::vector<std::string>& nodes);

  void OnActivate(const char* node) override;
  void OnSelect(int count, char** nodes, int kind) override;

 private:
  class LeavesOnly;

  bool PassesFilter(const oxviewer::Component& component) const;
  void RememberExpanded();
  void SelectAgain();
  void TakeSelection(const std::vector<std::string>& nodes);
  void AddRecords(TreeInfo& records) const;

  const Board& board_;
  std::vector<std::string> nodes_;
  std::vector<std::size_t> order_;          // positions of the components in natural order of their labels
  TextTest filter_;                         // empty: all are shown
  std::set<std::string> expanded_;          // kinds, while there is a filter: what was expanded before
  std::vector<std::string> selectedNodes_;  // as the user selected them, shown or not
  std::vector<const oxviewer::Component*> selected_;
  std::function<void()> onSelection_;
  std::function<void(const oxviewer::Component&)> onActivation_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_PARTTREE_H
