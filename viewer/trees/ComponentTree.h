/// \file
/// The tree of a board's components by their references.
#ifndef OXECAD_VIEWER_TREES_COMPONENTTREE_H
#define OXECAD_VIEWER_TREES_COMPONENTTREE_H

#include <viewer/board/Board.h>
#include <viewer/trees/ObjectTree.h>

#include <string>
#include <vector>

namespace oxviewer {

/// The components of a board grouped by the prefix of their references, groups and references in natural order. Those
/// without a reference come last, labelled by their footprints in parentheses. A group stands for all its components.
///
///     C                    SelAll_C
///       C1                 component:C1
///     R                    SelAll_R
///       R9                 component:R9
///       R10                component:R10
class ComponentTree : public ObjectTree {
 public:
  static constexpr const char* kName = "components";

  /// Shows the components of `board`, which must outlive it, in the tree "components" of the device.
  ComponentTree(const char* device, const Board& board);

  /// Registers the tree's events and fills it.
  void Fill();

  /// The name of a component's node, by the component's position on the board.
  const std::string& NodeOf(ComponentId component) const { return nodes_[static_cast<std::size_t>(component)]; }

 private:
  void AddGroups();

  const Board& board_;
  std::vector<std::string> nodes_;
};

/// A name for each component's node, by position: the reference, and from the second of the same reference on its
/// number.
std::vector<std::string> ComponentNodeNames(const Board& board);

/// The text by which a person knows a component: its reference, or its footprint in parentheses.
std::string ComponentLabel(const Component& component);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_COMPONENTTREE_H
