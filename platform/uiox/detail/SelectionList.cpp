#include <uiox/detail/SelectionList.h>

namespace uiox::detail {

void SelectionList::Add(NodeId node) {
  places_.push_back(node);
  nodes_[node].selected = static_cast<std::uint32_t>(places_.size());
  ++size_;
  ++version_;
}

void SelectionList::Remove(NodeId node) noexcept {
  places_[nodes_[node].selected - 1] = kNoNode;
  nodes_[node].selected = 0;
  --size_;
  ++version_;
  while (!places_.empty() && places_.back() == kNoNode) places_.pop_back();
  if (places_.size() > 2 * size_ + 16) Close();
}

void SelectionList::Close() noexcept {
  std::size_t place = 0;
  for (const NodeId node : places_) {
    if (node == kNoNode) continue;
    places_[place++] = node;
    nodes_[node].selected = static_cast<std::uint32_t>(place);
  }
  places_.resize(place);
}

void SelectionList::Clear() noexcept {
  std::vector<NodeId>().swap(places_);
  size_ = 0;
  ++version_;
}

}  // namespace uiox::detail
