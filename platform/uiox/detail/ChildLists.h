/// \file
/// The order of the children of every node.
#ifndef OXECAD_UIOX_DETAIL_CHILDLISTS_H
#define OXECAD_UIOX_DETAIL_CHILDLISTS_H

#include <uiox/NodeId.h>
#include <uiox/detail/BlockArena.h>
#include <uiox/detail/NodeRecords.h>

#include <cstddef>
#include <cstdint>

namespace uiox::detail {

/// Each child list is a counted B+ tree: leaves of up to 64 ids below inner blocks that know how many ids stand below
/// each of their entries. A node knows its leaf, so that both ways between node and row, and any change, touch a few
/// blocks only. A list of up to 64 is one leaf that grows from 2 places.
///
///     inner   64     40     64         children = the root block
///             |      |      |
///     leaf  [a b …][c d …][e f …]      leaf of d = the block in the middle
class ChildLists {
 public:
  using Handle = BlockArena::Handle;

  ChildLists(NodeRecords& nodes, BlockArena& blocks) : nodes_(nodes), blocks_(blocks) {}

  std::uint32_t Count(NodeId parent) const;
  /// `kNoNode` past the end.
  NodeId At(NodeId parent, std::uint32_t row) const;
  /// Children beside each other in memory.
  struct Run {
    const NodeId* begin = nullptr;
    const NodeId* end = nullptr;
  };
  /// The run that starts with a row, empty past the end. Good until a list changes.
  Run RunFrom(NodeId parent, std::uint32_t row) const;
  std::uint32_t RowOf(NodeId node) const;
  /// Whether the node is its parent's last child.
  bool IsLast(NodeId node) const;
  /// Calls `visit(NodeId)` for each child in order.
  template <class Visit>
  void ForEach(NodeId parent, Visit visit) const {
    if (const Handle root = nodes_[parent].children) VisitBlock(root, visit);
  }

  /// Puts a node, which is in no list, before a child of `parent` or (`kNoNode`) at the end, and sets its parent.
  /// Cannot fail after `BlockArena::EnsureRoom`.
  void Insert(NodeId node, NodeId parent, NodeId before) noexcept;
  /// Takes a node out of its list. Its parent's name stays in the record.
  void Remove(NodeId node) noexcept;
  /// Frees the blocks of a whole list, without a look at the nodes in it.
  void Drop(NodeId parent) noexcept;

 private:
  static constexpr std::uint16_t kLeafMost = 64;
  static constexpr std::uint16_t kInnerMost = 32;

  struct Block {
    Handle up;  // the inner block above; none: the root
    std::uint16_t count;
    std::uint16_t capacity;  // of a leaf; 0 marks an inner block
  };
  struct Leaf : Block {
    NodeId ids[kLeafMost];
  };
  struct Inner : Block {
    std::uint32_t total;
    Handle below[kInnerMost];
    std::uint32_t sizes[kInnerMost];
  };
  static constexpr std::size_t LeafBytes(unsigned capacity) { return sizeof(Block) + capacity * sizeof(NodeId); }
  static_assert(sizeof(Leaf) <= BlockArena::kLargestSmall && sizeof(Inner) <= BlockArena::kLargestSmall);

  template <class Visit>
  void VisitBlock(Handle handle, Visit& visit) const {
    const Block* block = blocks_.As<Block>(handle);
    if (block->capacity != 0) {
      const Leaf* leaf = static_cast<const Leaf*>(block);
      for (unsigned i = 0; i < leaf->count; ++i) __builtin_prefetch(&nodes_[leaf->ids[i]]);
      for (unsigned i = 0; i < leaf->count; ++i) visit(leaf->ids[i]);
      return;
    }
    const Inner* inner = static_cast<const Inner*>(block);
    for (unsigned i = 0; i < inner->count; ++i) VisitBlock(inner->below[i], visit);
  }

  Leaf* LeafAt(Handle handle) const { return blocks_.As<Leaf>(handle); }
  Inner* InnerAt(Handle handle) const { return blocks_.As<Inner>(handle); }
  bool IsLeaf(Handle handle) const { return blocks_.As<Block>(handle)->capacity != 0; }
  static unsigned PlaceIn(const Leaf& leaf, NodeId node);
  static unsigned PlaceIn(const Inner& inner, Handle below);
  std::uint32_t SizeOf(Handle handle) const;

  Handle NewLeaf(std::uint16_t capacity);
  Handle NewInner();
  void FreeBlock(Handle handle) noexcept;
  Handle LastLeaf(NodeId parent) const;
  void Recount(Handle from, std::uint32_t by) noexcept;  // `by` wraps for less
  void PutInto(Leaf& leaf, Handle handle, unsigned place, NodeId node) noexcept;
  Handle GrowLeaf(Handle handle, NodeId parent);
  void MakeRoomAbove(Handle handle, NodeId parent);
  Handle SplitLeaf(Handle handle, NodeId parent, unsigned keep);
  void SplitInner(Handle handle, NodeId parent);
  void LinkAfter(Handle handle, Handle added) noexcept;
  void Unlink(Handle handle, NodeId parent) noexcept;
  void MergeLeaf(Handle handle, NodeId parent) noexcept;
  void LowerRoot(NodeId parent) noexcept;

  NodeRecords& nodes_;
  BlockArena& blocks_;
};

}  // namespace uiox::detail

#endif
