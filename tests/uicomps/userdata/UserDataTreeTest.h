/// \file
/// What the tests of the user data tree share.
#ifndef OXECAD_TESTS_UICOMPS_USERDATA_USERDATATREETEST_H
#define OXECAD_TESTS_UICOMPS_USERDATA_USERDATATREETEST_H

#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/userdata/UserDataTree.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace oxecad_ui {

using test_support::Doing;
using test_support::Failure;
using test_support::ForEachFailure;
using test_support::Modifying;
using test_support::RecordingToolkit;
using test_support::Retrieving;

/// A word that is easy to spot in a line, given as a pointer.
inline void* Word(std::uintptr_t word) { return reinterpret_cast<void*>(word); }

/// Shows what derived trees may use.
struct OpenUserDataTree : UserDataTree {
  using UserDataTree::GetBranchData;
  using UserDataTree::GetNodeInfo;
  using UserDataTree::UserDataTree;
};

/// A record with these fields.
inline UserDataTree::DataNodeInfo Record(std::string name, std::wstring label, std::string type, void* data = nullptr,
                                         Tree::NodeState state = Tree::Unchecked, bool expanded = false) {
  UserDataTree::DataNodeInfo info;
  info.name = std::move(name);
  info.label = std::move(label);
  info.type = std::move(type);
  info.data = data;
  info.state = state;
  info.expanded = expanded;
  return info;
}

/// Answers by the node's name, and remembers what it was asked.
class Answers : public Tree::NodeFilter {
 public:
  explicit Answers(std::map<std::string, int> by_name = {}, int otherwise = Accept)
      : by_name_(std::move(by_name)), otherwise_(otherwise) {}

  Result operator()(const Tree* tree, const char* node) const override {
    asked.emplace_back(node ? node : "(null)");
    asked_by = tree;
    const auto found = by_name_.find(asked.back());
    return static_cast<Result>(found == by_name_.end() ? otherwise_ : found->second);
  }
  Result operator()(const Tree::NodeInfo&) const override {
    ADD_FAILURE() << "data is collected by tree and name, without records";
    return SkipBranch;
  }

  mutable std::vector<std::string> asked;
  mutable const Tree* asked_by = nullptr;

 private:
  std::map<std::string, int> by_name_;
  int otherwise_;
};

class UserDataTreeTest : public testing::Test {
 protected:
  UserDataTreeTest() { toolkit.NamePointer(&tree, "&tree"); }

  /// What 2202 answers about a branch.
  void GiveBranch(const std::string& name, const wchar_t* label, const char* parent, void* data = nullptr) {
    toolkit.When(Doing(2202, name).With(2)).Give(2, label);
    toolkit.When(Doing(2202, name).With(260)).Give(260, data);
    toolkit.When(Doing(2202, name).With(283)).Give(283, parent);
  }
  void GiveChildren(const std::string& name, const std::vector<std::string>& children) {
    toolkit.When(Doing(2202, name).With(284)).Give(284, children);
    toolkit.When(Doing(2203, name).With(284)).Give(284, children);
  }
  void GiveType(const std::string& name, const char* type) {
    toolkit.When(Doing(2202, name).With(282)).Give(282, type);
  }

  RecordingToolkit toolkit;
  OpenUserDataTree tree{"dev", "tree", "leaf"};
};

}  // namespace oxecad_ui

#endif
