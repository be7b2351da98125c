/// \file
/// Which node a call is likely to name.
#ifndef OXECAD_UIOX_DETAIL_NODEGUESS_H
#define OXECAD_UIOX_DETAIL_NODEGUESS_H

#include <uiox/NodeId.h>
#include <uiox/detail/ChildLists.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace uiox::detail {

/// Calls that follow each other name the same node again, or the next one of the children whose names were just handed
/// out, or another one, and mostly in a rhythm: a walk over children reads two values of each, a search the five parts
/// of each record. What came after the last six steps when they were taken before is likely to come again. A guess
/// that is wrong costs a comparison of two names, a right one saves the search for the name.
class NodeGuess {
 public:
  explicit NodeGuess(const ChildLists& lists) : lists_(lists) {}

  /// The node that the next call may name; `kTop` where no guess is worth it. It need not be there any more.
  NodeId Next() const { return likely_[after_[past_]]; }

  /// The node that the call named.
  void Found(NodeId node) {
    const Step step = node == likely_[kSame] ? kSame : node == likely_[kNextChild] ? kNextChild : kElsewhere;
    // At the end of a list there was no guess, and nothing to learn.
    if (Next() != kTop || step != kElsewhere) after_[past_] = step;
    past_ = (past_ << kStepBits | step) % after_.size();
    likely_[kSame] = node;
    if (step == kNextChild) ToNextChild();
  }

  /// The names of a node's children were handed out.
  void ChildrenListed(NodeId parent) {
    parent_ = parent;
    LookAt(0);
  }

  /// Children come, go or change places, and what is remembered of their lists is void.
  void ListsChanged() {
    run_ = {};
    likely_[kNextChild] = kTop;
  }

 private:
  enum Step : std::uint8_t { kElsewhere, kSame, kNextChild };
  static constexpr unsigned kStepBits = 2;
  static constexpr unsigned kSteps = 6;

  void LookAt(std::uint32_t row) {
    row_ = row;
    run_ = lists_.RunFrom(parent_, row);
    likely_[kNextChild] = run_.begin != run_.end ? *run_.begin : kTop;
  }
  void ToNextChild() {
    ++row_;
    if (++run_.begin == run_.end) return LookAt(row_);
    likely_[kNextChild] = *run_.begin;
  }

  const ChildLists& lists_;
  std::array<Step, std::size_t{1} << kStepBits * kSteps> after_{};  // by the last steps
  std::array<NodeId, kNextChild + 1> likely_{kTop, kTop, kTop};     // by step
  std::size_t past_ = 0;
  NodeId parent_ = kTop;
  ChildLists::Run run_;  // of its children, from the next one on
  std::uint32_t row_ = 0;
};

}  // namespace uiox::detail

#endif
