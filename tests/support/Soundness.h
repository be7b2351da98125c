/// \file
/// One checker for every tree, to be run after each step of a test.
#ifndef OXECAD_TESTS_SUPPORT_SOUNDNESS_H
#define OXECAD_TESTS_SUPPORT_SOUNDNESS_H

#include <gtest/gtest.h>
#include <tests/support/TreeDrawing.h>
#include <uiox/TreeWidget.h>

#include <string>
#include <vector>

namespace test_support {

/// Whether everything that the store says about its nodes fits together: rows and parents, counts and lists, names that
/// are unique and found, the selection, the cells' controls. Linear in the number of nodes.
testing::AssertionResult IsSound(const uiox::TreeStore& store);
/// The same, and whether the widget's remembered nodes and controls are there.
testing::AssertionResult IsSound(const uiox::TreeWidget& tree);

/// The same for a `Tree` of the library, and whether its queries say what its widget holds.
template <class Tree>
requires requires(const Tree& t) { t.GetDevice(); }
testing::AssertionResult IsSound(const Tree& tree) {
  const uiox::TreeWidget& widget = WidgetOf(tree);
  if (testing::AssertionResult sound = IsSound(widget); !sound) return sound;
  const uiox::TreeStore& store = widget.Store();
  std::vector<uiox::NodeId> open;
  if (store.Root() != uiox::kNoNode) open.push_back(store.Root());
  while (!open.empty()) {
    const uiox::NodeId node = open.back();
    open.pop_back();
    const std::string name = store.Name(node);
    std::vector<uiox::NodeId> children;
    store.AppendChildren(node, children);
    std::vector<std::string> expected;
    for (const uiox::NodeId child : children) expected.emplace_back(store.Name(child));
    std::vector<std::string> names;
    if (tree.GetChildren(name.c_str(), names) != static_cast<int>(expected.size()) || names != expected) {
      return testing::AssertionFailure() << "the children of \"" << name << "\" are read wrongly";
    }
    if (tree.GetNodeLabel(name.c_str()) != store.Label(node)) {
      return testing::AssertionFailure() << "the label of \"" << name << "\" is read wrongly";
    }
    if (static_cast<unsigned>(tree.GetNodeState(name.c_str())) > 2u) {
      return testing::AssertionFailure() << "\"" << name << "\" has no check state";
    }
    open.insert(open.end(), children.begin(), children.end());
  }
  return testing::AssertionSuccess();
}

}  // namespace test_support

#endif
