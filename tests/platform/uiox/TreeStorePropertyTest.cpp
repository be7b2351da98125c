#include "TreeModel.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <uiox/TreeStore.h>

#include <string>
#include <tuple>
#include <vector>

namespace {

using uiox::kNoNode;
using uiox::kTop;
using uiox::NewNode;
using uiox::NodeId;
using uiox::TreeStore;
using uiox_test::Drawn;
using uiox_test::Follower;
using uiox_test::PlainTree;

/// What a step does, and three numbers that choose its nodes.
using Step = std::tuple<int, unsigned, unsigned, unsigned>;

/// The store and a plain tree, changed by the same steps.
class Pair {
 public:
  TreeStore store{2};
  PlainTree plain;
  std::vector<NodeId> nodes{kTop};
  int next_name = 0;

  NodeId Any(unsigned number) const { return nodes[number % nodes.size()]; }
  /// A child of the parent, or none for the end.
  NodeId Sibling(NodeId parent, unsigned number) {
    const std::vector<NodeId>& children = plain.children[parent];
    const std::size_t row = number % (children.size() + 1);
    return row == children.size() ? kNoNode : children[row];
  }
  std::size_t RowOf(NodeId parent, NodeId node) {
    const std::vector<NodeId>& children = plain.children[parent];
    return static_cast<std::size_t>(std::find(children.begin(), children.end(), node) - children.begin());
  }

  void Add(unsigned a, unsigned b) {
    const NodeId parent = Any(a);
    const NodeId before = Sibling(parent, b);
    const std::string name = "n" + std::to_string(next_name++);
    NewNode node;
    node.name = name;
    const std::wstring label(b % 70, static_cast<wchar_t>(0x41 + a % 70000));
    node.label = label;
    const std::size_t row = RowOf(parent, before);
    const NodeId added = store.Add(node, parent, before);
    RC_ASSERT(added != kNoNode);
    RC_ASSERT(store.Label(added) == label);
    plain.Insert(added, parent, row, name);
    nodes.push_back(added);
  }

  void Remove(unsigned a) {
    const NodeId node = Any(a);
    if (node == kTop) return;
    const NodeId parent = store.Parent(node);
    plain.Erase(parent, RowOf(parent, node));
    plain.Forget(node);
    store.Remove(node);
    nodes.assign(1, kTop);
    for (const auto& entry : plain.names) nodes.push_back(entry.first);
  }

  void Move(unsigned a, unsigned b, unsigned c) {
    const NodeId node = Any(a);
    const NodeId parent = Any(b);
    if (node == kTop) return;
    const NodeId before = Sibling(parent, c);
    const bool allowed = !store.IsWithin(parent, node);
    RC_ASSERT(store.Move(node, parent, before) == allowed);
    if (!allowed || before == node) return;
    const NodeId from = ParentOf(node);
    const std::string name = plain.names[node];
    plain.Erase(from, RowOf(from, node));
    plain.Insert(node, parent, RowOf(parent, before), name);
  }

  NodeId ParentOf(NodeId node) const {
    for (const auto& entry : plain.children) {
      if (std::find(entry.second.begin(), entry.second.end(), node) != entry.second.end()) return entry.first;
    }
    return kNoNode;
  }

  void Take(const Step& step) {
    const auto [what, a, b, c] = step;
    switch (what % 6) {
      case 0:
      case 1:
      case 2:
        return Add(a, b);
      case 3:
        return Move(a, b, c);
      case 4:
        if (b % 3 == 0) Remove(a);
        return;
      default:
        if (Any(a) != kTop) store.SetThirdInt(Any(a), static_cast<int>(b % 2));
    }
  }
};

RC_GTEST_PROP(TreeStoreProperty, IsAPlainTreeWithNames, (const std::vector<Step>& steps)) {
  Pair pair;
  for (const Step& step : steps) pair.Take(step);
  RC_ASSERT(Drawn(pair.store) == pair.plain.Drawn());
  RC_ASSERT(pair.store.Size() == pair.plain.names.size());
  std::size_t selected = 0;
  for (const auto& [node, name] : pair.plain.names) {
    RC_ASSERT(pair.store.Find(name) == node);
    const NodeId parent = pair.store.Parent(node);
    RC_ASSERT(pair.store.ChildAt(parent, pair.store.RowOf(node)) == node);
    selected += pair.store.IsSelected(node) ? 1 : 0;
  }
  RC_ASSERT(pair.store.Selection().size() == selected);
}

RC_GTEST_PROP(TreeStoreProperty, CanBeFollowedByItsNotifications, (const std::vector<Step>& steps)) {
  Pair pair;
  Follower follower(pair.store);
  for (const Step& step : steps) {
    const std::vector<NodeId> before = pair.store.Selection();
    follower.selection_changes = 0;
    pair.Take(step);
    RC_ASSERT(follower.complaint == "");
    RC_ASSERT((follower.selection_changes > 0) == (pair.store.Selection() != before));
  }
  RC_ASSERT(follower.tree.Drawn() == Drawn(pair.store));
}

RC_GTEST_PROP(TreeStoreProperty, AnyLabelSurvives, (const std::vector<std::uint32_t>& units)) {
  TreeStore store(1);
  NewNode node;
  node.name = "n";
  const NodeId id = store.Add(node, kTop);
  std::wstring label;
  for (const std::uint32_t unit : units) label += static_cast<wchar_t>(unit);
  store.SetLabel(id, L"before");
  store.SetLabel(id, label);
  RC_ASSERT(store.Label(id) == label);
  store.SetCellLabel({id, 0}, label);
  RC_ASSERT(std::wstring(store.CellLabel({id, 0})) == label.substr(0, label.find(L'\0')));
}

}  // namespace
