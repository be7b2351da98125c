/// \file
/// What the user did in the trees, step by step, there and back.
#ifndef OXECAD_VIEWER_WINDOW_HISTORY_H
#define OXECAD_VIEWER_WINDOW_HISTORY_H

#include <viewer/window/NameSelection.h>
#include <viewer/window/TreeMemory.h>

#include <QObject>
#include <QTimer>

#include <cstddef>
#include <deque>
#include <memory>
#include <vector>

namespace oxviewer {

/// Undoes and redoes what changed colours, checks, selections and show modes. A gesture is all that changes until
/// control returns to the event loop; it becomes a step by reading the trees before and after it. Steps of one gesture
/// in several trees are one step. The oldest of more than 1000 steps is forgotten.
class History : public QObject {
  Q_OBJECT

 public:
  static constexpr std::size_t kMostSteps = 1000;

  explicit History(QObject* parent = nullptr);

  /// Follows a filled tree from now on, as long as it lives or until `Clear`.
  void Follow(uiox::TreeWidget& tree, TreeMemory::Objects objects = {});
  /// Follows the selection of a tree whose nodes come and go, by their names. `write` makes it what `read` gave before;
  /// both are called until `Clear`. Changes are found when they are noted.
  void FollowSelection(NameSelection::Read read, NameSelection::Write write);
  /// A selection that is followed by names may have changed.
  void Note();
  /// Forgets all steps and trees; before the trees are filled anew.
  void Clear();

  bool CanUndo() const { return !done_.empty(); }
  bool CanRedo() const { return !undone_.empty(); }
  void Undo();
  void Redo();
  /// Makes a step of what has changed so far.
  void Settle();

 Q_SIGNALS:
  /// There are other steps to undo or redo.
  void StepsChanged();
  /// A step was undone or redone: what the trees say has changed.
  void Restored();

 private:
  struct Step {
    std::vector<TreeStep> trees;
    std::vector<NameStep> selections;
    bool Any() const;
  };

  Step Take();
  void Put(std::deque<Step>& from, std::deque<Step>& to, bool before);

  std::vector<std::unique_ptr<TreeMemory>> trees_;
  std::vector<NameSelection> selections_;
  std::deque<Step> done_;
  std::deque<Step> undone_;
  QTimer settle_;
  bool restoring_ = false;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_HISTORY_H
