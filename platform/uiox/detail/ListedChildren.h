/// \file
/// A list of children that was handed out.
#ifndef OXECAD_UIOX_DETAIL_LISTEDCHILDREN_H
#define OXECAD_UIOX_DETAIL_LISTEDCHILDREN_H

#include <uiox/NodeId.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace uiox::detail {

/// A node's children, and their names one behind the other, as they were handed out. Whoever lists children mostly
/// goes through them next, and mostly lists the same ones again when another has been added behind them.
class ListedChildren {
 public:
  /// Whether these are the children of a node, but for those that came behind them since.
  bool AreOf(NodeId parent) const { return is_good_ && parent == parent_; }
  std::size_t Size() const { return ids_.size(); }
  const NodeId* Ids() const { return ids_.data(); }
  /// The sizes of their names, without the closing zeroes.
  const std::uint32_t* Sizes() const { return sizes_.data(); }
  /// Their names in the same order, each with a closing 0.
  std::string_view Names() const { return {names_.data(), names_.size()}; }

  /// Void: whoever asks has to begin anew.
  void Forget() { is_good_ = false; }
  /// Begins a list. It is good after `Finish`.
  void Begin(NodeId parent) {
    is_good_ = false;
    parent_ = parent;
    ids_.clear();
    sizes_.clear();
    names_.clear();
  }
  /// Throws std::bad_alloc; the list is to be forgotten then.
  void Append(NodeId child, std::string_view name) {
    ids_.push_back(child);
    sizes_.push_back(static_cast<std::uint32_t>(name.size()));
    names_.insert(names_.end(), name.data(), name.data() + name.size() + 1);
  }
  void Finish() { is_good_ = true; }
  /// Gives the memory back.
  void Clear() noexcept { *this = ListedChildren(); }
  std::size_t MemoryUse() const {
    return ids_.capacity() * sizeof(ids_[0]) + sizes_.capacity() * sizeof(sizes_[0]) + names_.capacity();
  }

 private:
  bool is_good_ = false;
  NodeId parent_ = kTop;
  std::vector<NodeId> ids_;
  std::vector<std::uint32_t> sizes_;
  std::vector<char> names_;
};

}  // namespace uiox::detail

#endif
