/// \file
/// A tree in front of a toolkit that answers what the test says.
#ifndef OXECAD_TESTS_UICOMPS_TREE_TREETEST_H
#define OXECAD_TESTS_UICOMPS_TREE_TREETEST_H

#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/tree/Tree.h>

#include <string>
#include <utility>
#include <vector>

namespace oxecad_ui {

using test_support::Doing;
using test_support::Failure;
using test_support::RecordingToolkit;
using test_support::Retrieving;

/// Shows what is protected.
class OpenTree : public Tree {
 public:
  using Tree::BinarySearchNodeLocation;
  using Tree::NodeExpanded;
  using Tree::NotifyNode;
  using Tree::SortChildrenByType;
  using Tree::Tree;
};

class TreeTest : public testing::Test {
 protected:
  TreeTest() { toolkit.NamePointer(&tree, "&tree"); }

  /// Makes the toolkit answer a node's label, as a copy.
  void GiveLabel(const std::string& node, const wchar_t* label) {
    toolkit.When(Doing(2202, node).With(2)).Give(2, label);
  }
  /// Makes the toolkit answer a node's children, as copies.
  void GiveChildren(const std::string& node, std::vector<std::string> children) {
    toolkit.When(Doing(2202, node).With(284)).Give(284, std::move(children));
  }
  /// Makes the toolkit answer a node's check state: 0, 1 or 2.
  void GiveState(const std::string& node, int state) {
    toolkit.When(Doing(2203, node)).Give(177, state == 2 ? 1 : 0).Give(31, state == 1 ? 1 : 0);
  }
  void GiveRoot(const char* root) { toolkit.When(Retrieving(54)).Give(54, root); }

  /// Writes lines for operations that change nodes only, not for what is read meanwhile.
  void WriteChangesOnly() {
    toolkit.WriteOnly([](const uiox::Call& call) {
      return call.function == uiox::Function::DoOperation && call.code != 2202 && call.code != 2203;
    });
  }

  RecordingToolkit toolkit;
  OpenTree tree{"dev", "tree"};
};

inline Tree::NodeInfo Record(std::string name, std::wstring label, Tree::NodeState state = Tree::Unchecked) {
  Tree::NodeInfo info;
  info.name = std::move(name);
  info.label = std::move(label);
  info.state = state;
  return info;
}

inline std::vector<std::string> NamesOf(const Tree::TreeInfo& info) {
  std::vector<std::string> names;
  for (const Tree::NodeInfo* record : info.records) names.push_back(record ? record->name : "null");
  return names;
}

using Names = std::vector<std::string>;

constexpr const char* kNotSupported = "Not supported type..\n";

}  // namespace oxecad_ui

#endif
