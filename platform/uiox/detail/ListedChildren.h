/// \file
/// The list of children that was handed out last.
#ifndef OXECAD_UIOX_DETAIL_LISTEDCHILDREN_H
#define OXECAD_UIOX_DETAIL_LISTEDCHILDREN_H

#include <uiox/NodeId.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace uiox::detail {

/// A node's children, and their names one behind the other, as they were handed out last. Whoever lists children
/// mostly goes through them next, and mostly lists the same ones again when another has been added behind them.
class ListedChildren {
 public:
  /// Whether these are the children of a node, but for those that came behind them since.
  bool AreOf(NodeId parent) const { return is_good_ && parent == parent_; }
  std::size_t Size() const { return ids_.size(); }
  NodeId Id(std::size_t row) const { return ids_[row]; }
  /// Ends with a 0. Good until the next change of the list.
  std::string_view Name(std::size_t row) const {
    return {characters_.data() + starts_[row], starts_[row + 1] - starts_[row] - 1};
  }
  /// Of all names and their closing zeroes.
  std::string_view Characters() const { return {characters_.data(), characters_.size()}; }
  /// Where a name starts among the characters.
  const std::vector<std::size_t>& Starts() const { return starts_; }

  /// Void: whoever asks has to begin anew.
  void Forget() { is_good_ = false; }
  /// Begins a list. It is good after `Finish`.
  void Begin(NodeId parent) {
    is_good_ = false;
    parent_ = parent;
    ids_.clear();
    starts_.assign(1, 0);
    characters_.clear();
  }
  /// Throws std::bad_alloc; the list is to be forgotten then.
  void Append(NodeId child, std::string_view name) {
    ids_.push_back(child);
    characters_.insert(characters_.end(), name.data(), name.data() + name.size() + 1);
    starts_.push_back(characters_.size());
  }
  void Finish() { is_good_ = true; }
  /// Gives the memory back.
  void Clear() noexcept { *this = ListedChildren(); }
  std::size_t MemoryUse() const {
    return ids_.capacity() * sizeof(ids_[0]) + starts_.capacity() * sizeof(starts_[0]) + characters_.capacity();
  }

 private:
  bool is_good_ = false;
  NodeId parent_ = kTop;
  std::vector<NodeId> ids_;
  std::vector<std::size_t> starts_;  // one more than ids
  std::vector<char> characters_;
};

}  // namespace uiox::detail

#endif
