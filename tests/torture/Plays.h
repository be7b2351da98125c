/// \file
/// What scenarios of trees share.
#ifndef OXECAD_TESTS_TORTURE_PLAYS_H
#define OXECAD_TESTS_TORTURE_PLAYS_H

#include <tests/torture/Stage.h>
#include <uicomps/tree/Tree.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace torture {

/// Steps that make and end a component while things go wrong, and the proof in between that it still works.
template <class Tree>
class Play {
 public:
  template <class... Arguments>
  explicit Play(Stage& stage, Arguments... arguments) : stage_(stage) {
    stage.Step("construct", [&] { tree_ = std::make_unique<Tree>("dev", "tree", arguments...); });
    if (tree_) return;
    stage.Calm();
    tree_ = std::make_unique<Tree>("dev", "tree", arguments...);
    stage.Storm();
  }
  ~Play() {
    stage_.Calm();
    Works();
    stage_.Storm();
    stage_.Step("destroy", [&] { tree_.reset(); });
  }
  Play(const Play&) = delete;
  Play& operator=(const Play&) = delete;

  Tree* operator->() { return tree_.get(); }
  Tree& operator*() { return *tree_; }

 private:
  void Works() {
    oxecad_ui::BaseTree& tree = *tree_;
    for (int roots = 0; roots < 5 && tree.HasRoot(); ++roots) tree.Clear();
    if (tree.HasRoot()) stage_.Complain("what has failed before cannot be cleared");
    if (!tree.AddNode("again", L"again", "", "plain", L"", 1, 1, 0, nullptr)) stage_.Complain("nothing can be added");
    if (tree.GetNodeLabel("again") != L"again") stage_.Complain("what was added cannot be read");
    if (!tree.DeleteNode("again") || tree.HasRoot()) stage_.Complain("what was added cannot be deleted");
  }

  Stage& stage_;
  std::unique_ptr<Tree> tree_;
};

/// A dirty handler that only counts.
inline int CountChange(void* client, void*) {
  ++*static_cast<int*>(client);
  return 0;
}

}  // namespace torture

#endif
