/// \file
/// Which node a call is likely to name.
#ifndef OXECAD_UIOX_DETAIL_NODEGUESS_H
#define OXECAD_UIOX_DETAIL_NODEGUESS_H

#include <uiox/NodeId.h>
#include <uiox/detail/ListedChildren.h>
#include <uiox/detail/ShortText.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace uiox::detail {

/// Calls that follow each other name the same node again, or the next one of the children whose names were just handed
/// out, or another one, and mostly in a rhythm: a walk over children reads two values of each, a search the five parts
/// of each record. What came after the last six steps when they were taken before is likely to come again. A guess
/// that is wrong costs a comparison of two names, a right one saves the search for the name.
class NodeGuess {
 public:
  /// The node of that name, or `kTop` where it is not the one that was expected.
  NodeId Try(std::string_view name) { return TryStep(after_[past_], name); }

  /// The same after that, where it is another one that would not have been surprising.
  NodeId TryOthers(std::string_view name) {
    for (const Step step : {kSame, kNextChild}) {
      const std::size_t past = past_;
      const NodeId node = TryStep(step, name);
      if (node == kTop) continue;
      after_[past] = step;
      return node;
    }
    return kTop;
  }

  /// It was none of them. The name stays where it is until the node goes.
  void FoundElsewhere(NodeId node, std::string_view name) {
    // At the end of a list there was no guess, and nothing to learn.
    if (likely_[after_[past_]].id != kTop) after_[past_] = kElsewhere;
    Note(kElsewhere);
    likely_[kSame] = {name.data(), node, static_cast<std::uint32_t>(name.size())};
  }

  /// The node that the last call named, or `kTop`.
  NodeId Last() const { return likely_[kSame].id; }
  /// Where its name stays from now on.
  void SetLastName(const char* name) { likely_[kSame].name = name; }

  /// The child so many rows behind the next one, or `kTop`.
  NodeId ChildAhead(std::size_t rows) const {
    return likely_[kNextChild].id != kTop && row_ + rows < list_->Size() ? list_->Ids()[row_ + rows] : kTop;
  }

  /// The children of a list were handed out.
  void ChildrenListed(const ListedChildren& list) {
    list_ = &list;
    LookAt(0, list.Names().data());
  }
  /// A list is void.
  void ListForgotten(const ListedChildren& list) {
    if (&list == list_) likely_[kNextChild] = {};
  }
  /// Any node may have gone.
  void NodesGone() { likely_ = {}; }

 private:
  enum Step : std::uint8_t { kElsewhere, kSame, kNextChild };
  static constexpr unsigned kStepBits = 2;
  static constexpr unsigned kSteps = 6;

  struct Node {
    const char* name = "";
    NodeId id = kTop;
    std::uint32_t size = 0;
  };

  NodeId TryStep(Step step, std::string_view name) {
    const Node node = likely_[step];
    if (node.id == kTop || !AreSame(name, {node.name, node.size})) return kTop;
    Note(step);
    if (step == kNextChild) {
      likely_[kSame] = node;
      LookAt(row_ + 1, node.name + node.size + 1);
    }
    return node.id;
  }
  void Note(Step step) { past_ = (past_ << kStepBits | step) % after_.size(); }
  void LookAt(std::size_t row, const char* name) {
    row_ = row;
    likely_[kNextChild] = row < list_->Size() ? Node{name, list_->Ids()[row], list_->Sizes()[row]} : Node{};
  }

  std::array<Step, std::size_t{1} << kStepBits * kSteps> after_{};  // by the last steps
  std::array<Node, kNextChild + 1> likely_{};                       // by step
  std::size_t past_ = 0;
  const ListedChildren* list_ = nullptr;  // that was handed out last
  std::size_t row_ = 0;                   // of its next child
};

}  // namespace uiox::detail

#endif
