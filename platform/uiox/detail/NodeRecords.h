/// \file
/// The fixed part of every node.
#ifndef OXECAD_UIOX_DETAIL_NODERECORDS_H
#define OXECAD_UIOX_DETAIL_NODERECORDS_H

#include <uiox/NodeId.h>
#include <uiox/detail/BlockArena.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace uiox::detail {

/// What a node has in any case, in one cache line; the rest lies in blocks, tables and, for rare values, in a map.
struct alignas(64) NodeRecord {
  void* user_data;
  NodeId parent;                // of a free record: the next free one
  std::uint32_t bits;           // flags below, type above
  BlockArena::Handle leaf;      // the block of the parent's child list that the node stands in
  BlockArena::Handle children;  // the root block of its own child list; none: no child
  std::uint32_t selected;       // its place in the selection plus 1, or 0
  BlockArena::Handle cells;     // its cells; none: all of them empty
  BlockArena::Handle label;     // the block of its label, or that it stands below; none: empty
  unsigned char texts[28];      // its name, and its label where there is room (NodeTexts.h)
};
static_assert(sizeof(NodeRecord) == 64);

enum NodeBits : std::uint32_t {
  kInUse = 1u << 0,
  kChecked = 1u << 1,
  kMixed = 1u << 2,
  kCheckLocked = 1u << 3,
  kExpandedBit = 1u << 4,  // the second int is 1
  kFirstIntBit = 1u << 5,  // the first int is 1
  kHasRare = 1u << 6,      // the rare values say more
  kHasLent = 1u << 7,      // answers made from it are lent out
  kFlagBits = 8
};

/// Records by id, in blocks that stay where they are. Id 0 is `kTop` and always there.
class NodeRecords {
 public:
  NodeRecords() { Start(); }

  NodeRecord& operator[](NodeId id) { return blocks_[id >> kBlockBits][id & (kBlockSize - 1)]; }
  const NodeRecord& operator[](NodeId id) const { return blocks_[id >> kBlockBits][id & (kBlockSize - 1)]; }

  bool Has(NodeId id) const { return id != kTop && id < end_ && ((*this)[id].bits & kInUse) != 0; }
  std::size_t Size() const { return size_; }

  /// A record of zeroes but for `kInUse`. Throws std::bad_alloc.
  NodeId Take() {
    NodeId id = free_;
    if (id != kTop) {
      free_ = (*this)[id].parent;
    } else {
      if (end_ == blocks_.size() << kBlockBits) AddBlock();
      id = end_++;
    }
    (*this)[id] = NodeRecord{};
    (*this)[id].bits = kInUse;
    ++size_;
    return id;
  }

  void Give(NodeId id) noexcept {
    (*this)[id].bits = 0;
    (*this)[id].parent = free_;
    free_ = id;
    --size_;
  }

  void Clear() noexcept {
    blocks_.erase(blocks_.begin() + 1, blocks_.end());
    blocks_.shrink_to_fit();
    (*this)[kTop] = NodeRecord{};
    free_ = kTop;
    end_ = 1;
    size_ = 0;
  }

  std::size_t MemoryUse() const {
    return blocks_.size() * kBlockSize * sizeof(NodeRecord) + blocks_.capacity() * sizeof(blocks_[0]);
  }

 private:
  static constexpr unsigned kBlockBits = 8;
  static constexpr NodeId kBlockSize = 1u << kBlockBits;

  void AddBlock() { blocks_.push_back(std::unique_ptr<NodeRecord[]>(new NodeRecord[kBlockSize])); }
  void Start() {
    AddBlock();
    (*this)[kTop] = NodeRecord{};
  }

  std::vector<std::unique_ptr<NodeRecord[]>> blocks_;
  NodeId free_ = kTop;
  NodeId end_ = 1;
  std::size_t size_ = 0;
};

}  // namespace uiox::detail

#endif
