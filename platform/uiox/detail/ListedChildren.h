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

/// A node's children, and their names one behind the other, as they were handed out. Whoever lists children
/// mostly goes through them next, and mostly lists the same ones again when another has been added behind them.
class ListedChildren {
 public:
  struct Child {
    NodeId id;
    std::uint32_t size;  // of its name, without the 0
  };

  /// Whether these are the children of a node, but for those that came behind them since.
  bool AreOf(NodeId parent) const { return is_good_ && parent == parent_; }
  std::size_t Size() const { return children_.empty() ? 0 : children_.size() - 1; }
  /// `Size` of them, and behind the last one a child without a name, which has the id `kTop`.
  const Child* Children() const { return children_.data(); }
  /// Their names in the same order, each with a closing 0.
  std::string_view Names() const { return {names_.data(), names_.size()}; }

  /// Void: whoever asks has to begin anew.
  void Forget() { is_good_ = false; }
  /// Begins a list. It is good after `Finish`.
  void Begin(NodeId parent) {
    is_good_ = false;
    parent_ = parent;
    children_.assign(1, kEnd);
    names_.clear();
  }
  /// Throws std::bad_alloc; the list is to be forgotten then.
  void Append(NodeId child, std::string_view name) {
    names_.insert(names_.end(), name.data(), name.data() + name.size() + 1);
    children_.push_back(kEnd);
    Child& last = *(children_.end() - 2);
    last.size = static_cast<std::uint32_t>(name.size());
    last.id = child;
  }
  void Finish() { is_good_ = true; }
  /// Gives the memory back.
  void Clear() noexcept { *this = ListedChildren(); }
  std::size_t MemoryUse() const { return children_.capacity() * sizeof(Child) + names_.capacity(); }

 private:
  static constexpr Child kEnd{kTop, 0};

  bool is_good_ = false;
  NodeId parent_ = kTop;
  std::vector<Child> children_;
  std::vector<char> names_;
};

}  // namespace uiox::detail

#endif
