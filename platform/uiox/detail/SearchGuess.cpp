#include <uiox/detail/SearchGuess.h>
#include <uiox/detail/ShortText.h>

namespace uiox::detail {

bool SearchGuess::IsNamed(NodeId node, std::string_view name) const {
  return node != kTop && AreSame(texts_.Name(nodes_[node]), name);
}

NodeId SearchGuess::Try(std::string_view name) {
  const bool is_lower = IsNamed(lower_, name);
  if (!is_lower && !IsNamed(upper_, name)) return kTop;
  const NodeId node = is_lower ? lower_ : upper_;
  const std::uint32_t read = Middle(first_, end_);
  if (is_lower) {
    end_ = read;
  } else {
    first_ = read + 1;
  }
  in_vain_ = 0;
  LookAhead();
  return node;
}

void SearchGuess::FoundElsewhere(NodeId node) {
  lower_ = upper_ = kTop;
  if (++in_vain_ > kPatience && in_vain_ % kPatience != 0) return;
  parent_ = nodes_[node].parent;
  first_ = 0;
  end_ = children_.Count(parent_);
  if (end_ < kFewest || end_ > kMost) return;
  if (children_.At(parent_, Middle(first_, end_)) == node) LookAhead();
}

void SearchGuess::LookAhead() {
  const std::uint32_t read = Middle(first_, end_);
  lower_ = Candidate(first_, read);
  upper_ = Candidate(read + 1, end_);
  __builtin_prefetch(&nodes_[lower_]);
  __builtin_prefetch(&nodes_[upper_]);
}

NodeId SearchGuess::Candidate(std::uint32_t first, std::uint32_t end) const {
  if (first >= end) return kTop;
  const NodeId child = children_.At(parent_, Middle(first, end));
  return child != kNoNode ? child : kTop;
}

}  // namespace uiox::detail
