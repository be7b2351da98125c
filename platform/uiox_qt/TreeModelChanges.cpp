#include <uiox_qt/TreeModelChanges.h>

#include <algorithm>

namespace uiox_qt {
namespace {

void Unify(std::vector<uiox::NodeId>& nodes) {
  std::sort(nodes.begin(), nodes.end());
  nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
}

}  // namespace

void TreeModel::Changes::AddParent(uiox::NodeId parent) {
  if (!parents_.empty() && parents_.back() == parent) return;
  parents_.push_back(parent);
  if (parents_.size() < compact_at_) return;
  Unify(parents_);
  compact_at_ = std::max(kFirstCompaction, 2 * parents_.size());
}

void TreeModel::Changes::Take(std::vector<uiox::NodeId>& nodes, std::vector<uiox::NodeId>& parents) {
  nodes.swap(nodes_);
  parents.swap(parents_);
  Clear();
  Unify(nodes);
  Unify(parents);
}

}  // namespace uiox_qt
