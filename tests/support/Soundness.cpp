#include <tests/support/Soundness.h>

#include <set>
#include <string_view>

namespace test_support {
namespace {

using testing::AssertionFailure;
using testing::AssertionResult;
using testing::AssertionSuccess;
using uiox::NodeId;

AssertionResult IsNodeSound(const uiox::TreeStore& store, NodeId node, NodeId parent, std::uint32_t row) {
  if (!store.Has(node)) return AssertionFailure() << "a child that is not in the tree";
  const std::string_view name = store.Name(node);
  if (name.empty()) return AssertionFailure() << "a node without a name";
  if (store.Find(name) != node) return AssertionFailure() << "\"" << name << "\" is not found by its name";
  if (store.Parent(node) != parent) return AssertionFailure() << "\"" << name << "\" names another parent";
  if (store.RowOf(node) != row) return AssertionFailure() << "\"" << name << "\" is not in its row " << row;
  if (store.ChildAt(parent, row) != node) return AssertionFailure() << "row " << row << " is not \"" << name << "\"";
  if (store.CheckState(node) > 2) return AssertionFailure() << "\"" << name << "\" has a check state above 2";
  for (std::size_t i = 0; i < store.Columns(); ++i) {
    const uiox::CellPlace cell{node, static_cast<uiox::ColumnIndex>(i)};
    const uiox::ControlId control = store.CellControl(cell);
    if (control != uiox::kNoControl && store.PlaceOf(control) != cell) {
      return AssertionFailure() << "the control in a cell of \"" << name << "\" thinks that it is elsewhere";
    }
  }
  return AssertionSuccess();
}

}  // namespace

AssertionResult IsSound(const uiox::TreeStore& store) {
  std::vector<NodeId> open{uiox::kTop};
  std::set<NodeId> seen;
  std::size_t selected = 0;
  while (!open.empty()) {
    const NodeId parent = open.back();
    open.pop_back();
    std::vector<NodeId> children;
    store.AppendChildren(parent, children);
    if (children.size() != store.ChildCount(parent))
      return AssertionFailure() << "a list of children of another length";
    if (store.ChildAt(parent, store.ChildCount(parent)) != uiox::kNoNode) {
      return AssertionFailure() << "a child behind the last one";
    }
    for (std::size_t row = 0; row < children.size(); ++row) {
      const NodeId node = children[row];
      if (!seen.insert(node).second) return AssertionFailure() << "a node in two places";
      if (AssertionResult sound = IsNodeSound(store, node, parent, static_cast<std::uint32_t>(row)); !sound) {
        return sound;
      }
      selected += store.IsSelected(node) ? 1 : 0;
      open.push_back(node);
    }
  }
  if (seen.size() != store.Size())
    return AssertionFailure() << seen.size() << " nodes, but " << store.Size() << " said";
  const NodeId first = store.ChildCount(uiox::kTop) > 0 ? store.ChildAt(uiox::kTop, 0) : uiox::kNoNode;
  if (store.Root() != first) return AssertionFailure() << "the root is not the first node";
  const std::vector<NodeId> selection = store.Selection();
  const std::set<NodeId> once(selection.begin(), selection.end());
  if (once.size() != selection.size() || selection.size() != selected || store.SelectionSize() != selected) {
    return AssertionFailure() << "the selection is not the set of highlighted nodes";
  }
  for (const NodeId node : selection) {
    if (seen.count(node) == 0) return AssertionFailure() << "a selected node that is not in the tree";
  }
  return AssertionSuccess();
}

AssertionResult IsSound(const uiox::TreeWidget& tree) {
  if (AssertionResult sound = IsSound(tree.Store()); !sound) return sound;
  for (const NodeId node : {tree.ActivatedNode(), tree.ToggledNode(), tree.CheckedNode(), tree.SelectedCell().node}) {
    if (node != uiox::kNoNode && !tree.Store().Has(node)) return AssertionFailure() << "an event's node has gone";
  }
  for (const uiox::Widget* control : tree.Controls()) {
    if (tree.FindControl(control->Control()) != control) return AssertionFailure() << "a control is not found";
    const uiox::CellPlace place = tree.Store().PlaceOf(control->Control());
    if (place && tree.ControlIn(place) != control) return AssertionFailure() << "a control is not in its cell";
  }
  return AssertionSuccess();
}

}  // namespace test_support
