/// \file
/// What a tree model has not told its views yet.
#ifndef OXECAD_UIOX_QT_TREEMODELCHANGES_H
#define OXECAD_UIOX_QT_TREEMODELCHANGES_H

#include <uiox/TreeStore.h>
#include <uiox_qt/TreeModel.h>

#include <QBasicTimer>

#include <cstddef>
#include <vector>

namespace uiox_qt {

/// Collects changed nodes: each by itself as long as they are few, then the parents below which something changed.
class TreeModel::Changes {
 public:
  /// Changed nodes that are told one by one.
  static constexpr std::size_t kFew = 64;
  /// Additions, removals and moves that are told one by one while redraw is off.
  static constexpr int kFewShapeChanges = 64;

  /// How often a suspended model looks whether redraw is on again, where nobody calls `Resume`.
  static constexpr int kResumeCheckMs = 50;

  bool Empty() const { return nodes_.empty() && parents_.empty(); }

  void Add(uiox::NodeId node, const uiox::TreeStore& store) {
    if (!parents_.empty()) {
      AddParent(store.Parent(node));
    } else if (nodes_.empty() || nodes_.back() != node) {
      nodes_.push_back(node);
      if (nodes_.size() > kFew) ToParents(store);
    }
  }

  void Clear() {
    nodes_.clear();
    parents_.clear();
    compact_at_ = kFirstCompaction;
  }

  /// Gives what was collected, each once, and forgets it. Nodes may have been removed in the meantime.
  void Take(std::vector<uiox::NodeId>& nodes, std::vector<uiox::NodeId>& parents);

  QBasicTimer timer;
  bool suspended = false;
  /// Between the two halves of an addition, removal, move or reset.
  bool changing_shape = false;
  int shape_changes_without_redraw = 0;

 private:
  static constexpr std::size_t kFirstCompaction = 4096;

  void ToParents(const uiox::TreeStore& store) {
    for (const uiox::NodeId node : nodes_) {
      if (store.Has(node)) AddParent(store.Parent(node));
    }
    nodes_.clear();
  }
  void AddParent(uiox::NodeId parent);

  std::vector<uiox::NodeId> nodes_;
  std::vector<uiox::NodeId> parents_;
  std::size_t compact_at_ = kFirstCompaction;
};

}  // namespace uiox_qt

#endif
