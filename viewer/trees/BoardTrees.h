/// \file
/// All trees of one board.
#ifndef OXECAD_VIEWER_TREES_BOARDTREES_H
#define OXECAD_VIEWER_TREES_BOARDTREES_H

#include <viewer/board/Board.h>
#include <viewer/trees/CompareTree.h>
#include <viewer/trees/ComponentTree.h>
#include <viewer/trees/LayerTree.h>
#include <viewer/trees/NetTree.h>
#include <viewer/trees/PartTree.h>

#include <memory>
#include <string>

#include <oxcore/Mainframe.h>

namespace oxviewer {

/// Shows a board in the viewer's trees for as long as it lives. One at a time: the trees' widgets are the same for all.
class BoardTrees {
 public:
  /// Makes the devices if need be and fills the trees. The board must outlive this; `mainframe`, which may be null, is
  /// what dialogs belong to.
  BoardTrees(const Board& board, oxcore::Mainframe* mainframe);
  /// The same for `board` as A compared with `b`.
  BoardTrees(const Board& board, const Board& b, const BoardDiff& diff, oxcore::Mainframe* mainframe);
  BoardTrees(const BoardTrees&) = delete;
  BoardTrees& operator=(const BoardTrees&) = delete;

  LayerTree& Layers() { return layers_; }
  NetTree& Nets() { return nets_; }
  ComponentTree& Components() { return components_; }

  PartTree& Parts() { return parts_; }
  /// Null where nothing is compared.
  CompareTree* Compare() { return compare_.get(); }

  /// All trees as text (Dump.h), in the order layers, nets, components, objects, compare.
  std::string Dump() const;

 private:
  LayerTree layers_;
  NetTree nets_;
  ComponentTree components_;
  PartTree parts_;
  std::unique_ptr<CompareTree> compare_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_BOARDTREES_H
