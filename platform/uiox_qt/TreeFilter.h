/// \file
/// Which nodes of a tree are shown.
#ifndef OXECAD_UIOX_QT_TREEFILTER_H
#define OXECAD_UIOX_QT_TREEFILTER_H

#include <uiox/TreeStore.h>

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

namespace uiox_qt {

/// The rows that are left of a tree when only some nodes, and those above them, are shown. It is made for the store as
/// it is, and made anew when that changes.
class TreeFilter {
 public:
  using Accepts = std::function<bool(const uiox::TreeStore& store, uiox::NodeId node)>;

  /// Asks once for every node. Linear time, and no deeper stack for a deeper tree.
  void Build(const uiox::TreeStore& store, const Accepts& accepts);
  void Clear();

  bool Shows(uiox::NodeId node) const { return node < rows_.size() && rows_[node] != kHidden; }
  std::uint32_t RowOf(uiox::NodeId node) const { return rows_[node]; }
  /// Of a node or `kTop`.
  const std::vector<uiox::NodeId>& Children(uiox::NodeId node) const;

 private:
  static constexpr std::uint32_t kHidden = 0xFFFFFFFFu;

  std::vector<std::uint32_t> rows_;  // by node
  std::unordered_map<uiox::NodeId, std::vector<uiox::NodeId>> children_;
};

}  // namespace uiox_qt

#endif
