#include <viewer/window/History.h>

#include <algorithm>
#include <utility>

namespace oxviewer {

History::History(QObject* parent) : QObject(parent) {
  settle_.setSingleShot(true);
  connect(&settle_, &QTimer::timeout, this, &History::Settle);
}

bool History::Step::Any() const {
  const auto any = [](const auto& step) { return step.Any(); };
  return std::any_of(trees.begin(), trees.end(), any) || std::any_of(selections.begin(), selections.end(), any);
}

void History::Follow(uiox::TreeWidget& tree, TreeMemory::Objects objects) {
  trees_.push_back(std::make_unique<TreeMemory>(tree, std::move(objects), [this] { Note(); }));
}

void History::FollowSelection(NameSelection::Read read, NameSelection::Write write) {
  selections_.emplace_back(std::move(read), std::move(write));
}

void History::Note() {
  if (!restoring_ && !settle_.isActive()) settle_.start(0);
}

void History::Clear() {
  settle_.stop();
  trees_.clear();
  selections_.clear();
  done_.clear();
  undone_.clear();
  Q_EMIT StepsChanged();
}

History::Step History::Take() {
  Step step;
  for (const auto& tree : trees_) step.trees.push_back(tree->Take());
  for (NameSelection& selection : selections_) step.selections.push_back(selection.Take());
  return step;
}

void History::Settle() {
  settle_.stop();
  Step step = Take();
  if (!step.Any()) return;
  done_.push_back(std::move(step));
  if (done_.size() > kMostSteps) done_.pop_front();
  undone_.clear();
  Q_EMIT StepsChanged();
}

void History::Undo() {
  Settle();
  Put(done_, undone_, true);
}

void History::Redo() {
  Settle();
  Put(undone_, done_, false);
}

void History::Put(std::deque<Step>& from, std::deque<Step>& to, bool before) {
  if (from.empty()) return;
  Step step = std::move(from.back());
  from.pop_back();
  restoring_ = true;
  for (std::size_t i = 0; i < trees_.size(); ++i) trees_[i]->Put(step.trees[i], before);
  for (std::size_t i = 0; i < selections_.size(); ++i) selections_[i].Put(step.selections[i], before);
  Q_EMIT Restored();
  // What follows from it, in other trees too, is no step of its own.
  Take();
  restoring_ = false;
  to.push_back(std::move(step));
  Q_EMIT StepsChanged();
}

}  // namespace oxviewer
