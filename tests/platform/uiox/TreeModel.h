/// \file
/// A tree in its plainest form, and an observer that builds one from what it is told.
#ifndef OXECAD_TESTS_PLATFORM_UIOX_TREEMODEL_H
#define OXECAD_TESTS_PLATFORM_UIOX_TREEMODEL_H

#include <uiox/TreeStore.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace uiox_test {

/// Children by parent, in order; names by node.
struct PlainTree {
  std::map<uiox::NodeId, std::vector<uiox::NodeId>> children;
  std::map<uiox::NodeId, std::string> names;

  void Insert(uiox::NodeId node, uiox::NodeId parent, std::size_t row, const std::string& name) {
    auto& siblings = children[parent];
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(row), node);
    names[node] = name;
  }
  uiox::NodeId Erase(uiox::NodeId parent, std::size_t row) {
    auto& siblings = children[parent];
    const uiox::NodeId node = siblings[row];
    siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(row));
    return node;
  }
  void Forget(uiox::NodeId node) {
    for (const uiox::NodeId child : children[node]) Forget(child);
    children.erase(node);
    names.erase(node);
  }
  /// "root(a b(c))" for each top-level node.
  std::string Drawn(uiox::NodeId parent = uiox::kTop) const {
    std::string text;
    const auto found = children.find(parent);
    if (found == children.end()) return text;
    for (const uiox::NodeId node : found->second) {
      const std::string below = Drawn(node);
      text += (text.empty() ? "" : " ") + names.at(node) + (below.empty() ? "" : "(" + below + ")");
    }
    return text;
  }
};

inline std::string Drawn(const uiox::TreeStore& store, uiox::NodeId parent = uiox::kTop) {
  std::string text;
  std::vector<uiox::NodeId> children;
  store.AppendChildren(parent, children);
  for (const uiox::NodeId node : children) {
    const std::string below = Drawn(store, node);
    text += (text.empty() ? "" : " ") + std::string(store.Name(node)) + (below.empty() ? "" : "(" + below + ")");
  }
  return text;
}

/// Follows a store by its notifications alone, as a view does; notes what does not fit.
class Follower : public uiox::TreeObserver {
 public:
  explicit Follower(uiox::TreeStore& store) : store_(store) {
    Read(uiox::kTop);
    store_.AddObserver(this);
  }
  ~Follower() override { store_.RemoveObserver(this); }

  PlainTree tree;
  std::string complaint;
  int selection_changes = 0;

  void AboutToAdd(uiox::NodeId parent, std::uint32_t row) override {
    Expect(row <= Count(parent), "row of an addition");
  }
  void Added(uiox::NodeId node, uiox::NodeId parent, std::uint32_t row) override {
    tree.Insert(node, parent, row, store_.Name(node));
    Expect(store_.RowOf(node) == row && store_.Parent(node) == parent, "place of an added node");
  }
  void AboutToRemove(uiox::NodeId node, uiox::NodeId parent, std::uint32_t row) override {
    Expect(store_.ChildAt(parent, row) == node && tree.children[parent][row] == node, "node about to be removed");
  }
  void Removed(uiox::NodeId parent, std::uint32_t row) override { tree.Forget(tree.Erase(parent, row)); }
  void AboutToMove(uiox::NodeId node, uiox::NodeId from, std::uint32_t row, uiox::NodeId to,
                   std::uint32_t to_row) override {
    Expect(tree.children[from][row] == node && to_row <= Count(to), "node about to be moved");
    Expect(from != to || (to_row != row && to_row != row + 1), "a move that moves nothing");
    tree.Erase(from, row);
    const std::uint32_t place = from == to && to_row > row ? to_row - 1 : to_row;
    tree.Insert(node, to, place, store_.Name(node));
  }
  void Moved(uiox::NodeId node, uiox::NodeId, uiox::NodeId to, std::uint32_t row) override {
    Expect(tree.children[to][row] == node && store_.RowOf(node) == row, "place of a moved node");
  }
  void SelectionChanged() override { ++selection_changes; }

 private:
  void Read(uiox::NodeId parent) {
    std::vector<uiox::NodeId> children;
    store_.AppendChildren(parent, children);
    for (const uiox::NodeId child : children) {
      tree.Insert(child, parent, tree.children[parent].size(), store_.Name(child));
      Read(child);
    }
  }
  std::uint32_t Count(uiox::NodeId parent) { return static_cast<std::uint32_t>(tree.children[parent].size()); }
  void Expect(bool holds, const char* what) {
    if (!holds && complaint.empty()) complaint = what;
  }

  uiox::TreeStore& store_;
};

}  // namespace uiox_test

#endif
