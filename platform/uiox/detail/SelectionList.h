/// \file
/// The selected nodes in the order in which they were selected.
#ifndef OXECAD_UIOX_DETAIL_SELECTIONLIST_H
#define OXECAD_UIOX_DETAIL_SELECTIONLIST_H

#include <uiox/NodeId.h>
#include <uiox/detail/NodeRecords.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace uiox::detail {

/// Each selected node knows its place; places of nodes that left stay empty until they are the greater part.
class SelectionList {
 public:
  explicit SelectionList(NodeRecords& nodes) : nodes_(nodes) {}

  std::size_t Size() const { return size_; }
  bool Has(NodeId node) const { return nodes_[node].selected != 0; }
  /// At the end; the node is not in it. Throws std::bad_alloc.
  void Add(NodeId node);
  /// So that the list can hold that many nodes after a `Clear` or the removal of all, without an allocation.
  void Reserve(std::size_t nodes) { places_.reserve(nodes); }
  /// The node is in it.
  void Remove(NodeId node) noexcept;
  template <class Visit>
  void ForEach(Visit visit) const {
    for (const NodeId node : places_) {
      if (node != kNoNode) visit(node);
    }
  }
  /// Grows with every change.
  std::uint64_t Version() const { return version_; }
  /// Without a look at the nodes.
  void Clear() noexcept;
  std::size_t MemoryUse() const { return places_.capacity() * sizeof(NodeId); }

 private:
  void Close() noexcept;

  NodeRecords& nodes_;
  std::vector<NodeId> places_;
  std::size_t size_ = 0;
  std::uint64_t version_ = 1;
};

}  // namespace uiox::detail

#endif
