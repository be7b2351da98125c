#include <viewer/window/History.h>

#include <utility>

namespace oxviewer {

History::History(QObject* parent) : QObject(parent) {
  settle_.setSingleShot(true);
  connect(&settle_, &QTimer::timeout, this, &History::Settle);
}

void History::Follow(uiox::TreeWidget& tree, TreeMemory::Objects objects) {
  trees_.push_back(std::make_unique<TreeMemory>(tree, std::move(objects), [this] {
    if (!restoring_ && !settle_.isActive()) settle_.start(0);
  }));
}

void History::Clear() {
  settle_.stop();
  trees_.clear();
  done_.clear();
  undone_.clear();
  Q_EMIT StepsChanged();
}

void History::Settle() {
  settle_.stop();
  Step step;
  bool any = false;
  for (const auto& tree : trees_) {
    step.push_back(tree->Take());
    any = any || step.back().Any();
  }
  if (!any) return;
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
  for (std::size_t i = 0; i < trees_.size(); ++i) trees_[i]->Put(step[i], before);
  Q_EMIT Restored();
  // What follows from it, in other trees too, is no step of its own.
  for (const auto& tree : trees_) tree->Take();
  restoring_ = false;
  to.push_back(std::move(step));
  Q_EMIT StepsChanged();
}

}  // namespace oxviewer
