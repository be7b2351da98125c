#include <uiox_qt/TreeFilter.h>

#include <algorithm>

namespace uiox_qt {
namespace {

using uiox::kTop;
using uiox::NodeId;

/// All nodes, each before those below it, siblings in order.
std::vector<NodeId> FromTopToBottom(const uiox::TreeStore& store) {
  std::vector<NodeId> nodes;
  nodes.reserve(store.Size());
  std::vector<NodeId> waiting{kTop};
  while (!waiting.empty()) {
    const NodeId node = waiting.back();
    waiting.pop_back();
    if (node != kTop) nodes.push_back(node);
    if (store.ChildCount(node) == 0) continue;
    const auto first = static_cast<std::ptrdiff_t>(waiting.size());
    store.AppendChildren(node, waiting);
    std::reverse(waiting.begin() + first, waiting.end());
  }
  return nodes;
}

}  // namespace

void TreeFilter::Clear() {
  rows_.clear();
  children_.clear();
}

void TreeFilter::Build(const uiox::TreeStore& store, const Accepts& accepts) {
  Clear();
  const std::vector<NodeId> nodes = FromTopToBottom(store);
  if (nodes.empty()) return;
  rows_.assign(*std::max_element(nodes.begin(), nodes.end()) + 1, kHidden);
  for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
    const bool above_a_hit = rows_[*node] != kHidden;
    if (!above_a_hit && !accepts(store, *node)) continue;
    rows_[*node] = 0;
    const NodeId parent = store.Parent(*node);
    if (parent != kTop) rows_[parent] = 0;
  }
  for (const NodeId node : nodes) {
    if (rows_[node] == kHidden) continue;
    std::vector<NodeId>& siblings = children_[store.Parent(node)];
    rows_[node] = static_cast<std::uint32_t>(siblings.size());
    siblings.push_back(node);
  }
}

const std::vector<NodeId>& TreeFilter::Children(NodeId node) const {
  static const std::vector<NodeId> none;
  const auto found = children_.find(node);
  return found == children_.end() ? none : found->second;
}

}  // namespace uiox_qt
