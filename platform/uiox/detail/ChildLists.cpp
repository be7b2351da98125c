#include <uiox/detail/ChildLists.h>

#include <algorithm>

namespace uiox::detail {

unsigned ChildLists::PlaceIn(const Leaf& leaf, NodeId node) {
  unsigned place = 0;
  while (leaf.ids[place] != node) ++place;
  return place;
}

unsigned ChildLists::PlaceIn(const Inner& inner, Handle below) {
  unsigned place = 0;
  while (inner.below[place] != below) ++place;
  return place;
}

std::uint32_t ChildLists::SizeOf(Handle handle) const {
  return IsLeaf(handle) ? LeafAt(handle)->count : InnerAt(handle)->total;
}

std::uint32_t ChildLists::Count(NodeId parent) const {
  const Handle root = nodes_[parent].children;
  return root == BlockArena::kNone ? 0 : SizeOf(root);
}

NodeId ChildLists::At(NodeId parent, std::uint32_t row) const {
  const Run run = RunFrom(parent, row);
  return run.begin != run.end ? *run.begin : kNoNode;
}

ChildLists::Run ChildLists::RunFrom(NodeId parent, std::uint32_t row) const {
  Handle handle = nodes_[parent].children;
  if (handle == BlockArena::kNone || row >= SizeOf(handle)) return {};
  while (!IsLeaf(handle)) {
    const Inner& inner = *InnerAt(handle);
    unsigned place = 0;
    while (row >= inner.sizes[place]) row -= inner.sizes[place++];
    handle = inner.below[place];
  }
  const Leaf& leaf = *LeafAt(handle);
  return {leaf.ids + row, leaf.ids + leaf.count};
}

std::uint32_t ChildLists::RowOf(NodeId node) const {
  Handle handle = nodes_[node].leaf;
  const Leaf& leaf = *LeafAt(handle);
  std::uint32_t row = PlaceIn(leaf, node);
  for (Handle up = leaf.up; up != BlockArena::kNone; up = InnerAt(up)->up) {
    const Inner& inner = *InnerAt(up);
    for (unsigned place = 0; inner.below[place] != handle; ++place) row += inner.sizes[place];
    handle = up;
  }
  return row;
}

bool ChildLists::IsLast(NodeId node) const {
  const Leaf& last = *LeafAt(LastLeaf(nodes_[node].parent));
  return last.ids[last.count - 1] == node;
}

void ChildLists::Insert(NodeId node, NodeId parent, NodeId before) noexcept {
  Handle handle = before != kNoNode ? nodes_[before].leaf : LastLeaf(parent);
  if (handle == BlockArena::kNone) {
    handle = NewLeaf(2);
    nodes_[parent].children = handle;
  }
  unsigned place = before != kNoNode ? PlaceIn(*LeafAt(handle), before) : LeafAt(handle)->count;
  if (LeafAt(handle)->count == kLeafMost) {
    // One after the other at the end is how most lists grow: their leaves stay full.
    const unsigned keep = before == kNoNode ? kLeafMost : kLeafMost / 2;
    const Handle added = SplitLeaf(handle, parent, keep);
    if (place > keep || before == kNoNode) {
      handle = added;
      place -= keep;
    }
  } else if (LeafAt(handle)->count == LeafAt(handle)->capacity) {
    handle = GrowLeaf(handle, parent);
  }
  nodes_[node].parent = parent;
  PutInto(*LeafAt(handle), handle, place, node);
  Recount(handle, 1);
}

void ChildLists::Remove(NodeId node) noexcept {
  const NodeId parent = nodes_[node].parent;
  const Handle handle = nodes_[node].leaf;
  Leaf& leaf = *LeafAt(handle);
  const unsigned place = PlaceIn(leaf, node);
  std::copy(leaf.ids + place + 1, leaf.ids + leaf.count, leaf.ids + place);
  --leaf.count;
  nodes_[node].leaf = BlockArena::kNone;
  Recount(handle, static_cast<std::uint32_t>(-1));
  if (leaf.count == 0) {
    Unlink(handle, parent);
  } else if (leaf.count <= kLeafMost / 4) {
    MergeLeaf(handle, parent);
  }
}

void ChildLists::Drop(NodeId parent) noexcept {
  const Handle root = nodes_[parent].children;
  nodes_[parent].children = BlockArena::kNone;
  if (root == BlockArena::kNone) return;
  // Down to the leftmost block, which is freed, then on with what is left above it.
  Handle handle = root;
  while (handle != BlockArena::kNone) {
    if (!IsLeaf(handle) && InnerAt(handle)->count > 0) {
      Inner& inner = *InnerAt(handle);
      handle = inner.below[--inner.count];
      continue;
    }
    const Handle up = blocks_.As<Block>(handle)->up;
    FreeBlock(handle);
    handle = up;
  }
}

ChildLists::Handle ChildLists::NewLeaf(std::uint16_t capacity) {
  const Handle handle = blocks_.Allocate(LeafBytes(capacity));
  *blocks_.As<Block>(handle) = Block{BlockArena::kNone, 0, capacity};
  return handle;
}

ChildLists::Handle ChildLists::NewInner() {
  const Handle handle = blocks_.Allocate(sizeof(Inner));
  *blocks_.As<Block>(handle) = Block{BlockArena::kNone, 0, 0};
  InnerAt(handle)->total = 0;
  return handle;
}

void ChildLists::FreeBlock(Handle handle) noexcept {
  const unsigned capacity = blocks_.As<Block>(handle)->capacity;
  blocks_.Free(handle, capacity != 0 ? LeafBytes(capacity) : sizeof(Inner));
}

ChildLists::Handle ChildLists::LastLeaf(NodeId parent) const {
  Handle handle = nodes_[parent].children;
  while (handle != BlockArena::kNone && !IsLeaf(handle)) {
    const Inner& inner = *InnerAt(handle);
    handle = inner.below[inner.count - 1];
  }
  return handle;
}

void ChildLists::Recount(Handle from, std::uint32_t by) noexcept {
  for (Handle up = blocks_.As<Block>(from)->up; up != BlockArena::kNone; up = InnerAt(up)->up) {
    Inner& inner = *InnerAt(up);
    inner.sizes[PlaceIn(inner, from)] += by;
    inner.total += by;
    from = up;
  }
}

void ChildLists::PutInto(Leaf& leaf, Handle handle, unsigned place, NodeId node) noexcept {
  std::copy_backward(leaf.ids + place, leaf.ids + leaf.count, leaf.ids + leaf.count + 1);
  leaf.ids[place] = node;
  ++leaf.count;
  nodes_[node].leaf = handle;
}

ChildLists::Handle ChildLists::GrowLeaf(Handle handle, NodeId parent) {
  const Handle larger = NewLeaf(static_cast<std::uint16_t>(2 * LeafAt(handle)->capacity));
  const Leaf& from = *LeafAt(handle);
  Leaf& to = *LeafAt(larger);
  to.up = from.up;
  to.count = from.count;
  std::copy(from.ids, from.ids + from.count, to.ids);
  for (unsigned i = 0; i < to.count; ++i) nodes_[to.ids[i]].leaf = larger;
  if (to.up == BlockArena::kNone) {
    nodes_[parent].children = larger;
  } else {
    Inner& inner = *InnerAt(to.up);
    inner.below[PlaceIn(inner, handle)] = larger;
  }
  FreeBlock(handle);
  return larger;
}

void ChildLists::MakeRoomAbove(Handle handle, NodeId parent) {
  const Handle up = blocks_.As<Block>(handle)->up;
  if (up == BlockArena::kNone) {
    const Handle root = NewInner();
    Inner& inner = *InnerAt(root);
    inner.count = 1;
    inner.below[0] = handle;
    inner.sizes[0] = inner.total = SizeOf(handle);
    blocks_.As<Block>(handle)->up = root;
    nodes_[parent].children = root;
  } else if (InnerAt(up)->count == kInnerMost) {
    SplitInner(up, parent);
  }
}

ChildLists::Handle ChildLists::SplitLeaf(Handle handle, NodeId parent, unsigned keep) {
  MakeRoomAbove(handle, parent);
  const Handle added = NewLeaf(kLeafMost);
  Leaf& from = *LeafAt(handle);
  Leaf& to = *LeafAt(added);
  to.count = static_cast<std::uint16_t>(from.count - keep);
  std::copy(from.ids + keep, from.ids + from.count, to.ids);
  for (unsigned i = 0; i < to.count; ++i) nodes_[to.ids[i]].leaf = added;
  from.count = static_cast<std::uint16_t>(keep);
  LinkAfter(handle, added);
  return added;
}

void ChildLists::SplitInner(Handle handle, NodeId parent) {
  MakeRoomAbove(handle, parent);
  const Handle added = NewInner();
  Inner& from = *InnerAt(handle);
  Inner& to = *InnerAt(added);
  const Inner& above = *InnerAt(from.up);
  const bool last = above.below[above.count - 1] == handle;
  const unsigned keep = last ? kInnerMost - 1 : kInnerMost / 2;
  to.count = static_cast<std::uint16_t>(from.count - keep);
  for (unsigned i = 0; i < to.count; ++i) {
    to.below[i] = from.below[keep + i];
    to.sizes[i] = from.sizes[keep + i];
    to.total += to.sizes[i];
    blocks_.As<Block>(to.below[i])->up = added;
  }
  from.count = static_cast<std::uint16_t>(keep);
  from.total -= to.total;
  LinkAfter(handle, added);
}

void ChildLists::LinkAfter(Handle handle, Handle added) noexcept {
  const Handle up = blocks_.As<Block>(handle)->up;
  Inner& inner = *InnerAt(up);
  const unsigned place = PlaceIn(inner, handle) + 1;
  std::copy_backward(inner.below + place, inner.below + inner.count, inner.below + inner.count + 1);
  std::copy_backward(inner.sizes + place, inner.sizes + inner.count, inner.sizes + inner.count + 1);
  inner.below[place] = added;
  inner.sizes[place] = SizeOf(added);
  inner.sizes[place - 1] -= inner.sizes[place];
  ++inner.count;
  blocks_.As<Block>(added)->up = up;
}

void ChildLists::Unlink(Handle handle, NodeId parent) noexcept {
  const Handle up = blocks_.As<Block>(handle)->up;
  if (up == BlockArena::kNone) {
    nodes_[parent].children = BlockArena::kNone;
  } else {
    Inner& inner = *InnerAt(up);
    const unsigned place = PlaceIn(inner, handle);
    std::copy(inner.below + place + 1, inner.below + inner.count, inner.below + place);
    std::copy(inner.sizes + place + 1, inner.sizes + inner.count, inner.sizes + place);
    --inner.count;
    if (inner.count == 0) Unlink(up, parent);
  }
  FreeBlock(handle);
  LowerRoot(parent);
}

void ChildLists::MergeLeaf(Handle handle, NodeId parent) noexcept {
  const Handle up = LeafAt(handle)->up;
  if (up == BlockArena::kNone || InnerAt(up)->count < 2) return;
  Inner& inner = *InnerAt(up);
  const unsigned place = std::min<unsigned>(PlaceIn(inner, handle), inner.count - 2u);
  const Handle left = inner.below[place];
  const Handle right = inner.below[place + 1];
  Leaf& to = *LeafAt(left);
  Leaf& from = *LeafAt(right);
  if (to.count + from.count > kLeafMost * 3 / 4) return;
  std::copy(from.ids, from.ids + from.count, to.ids + to.count);
  for (unsigned i = 0; i < from.count; ++i) nodes_[from.ids[i]].leaf = left;
  to.count = static_cast<std::uint16_t>(to.count + from.count);
  inner.sizes[place] += from.count;
  inner.sizes[place + 1] = 0;
  from.count = 0;
  Unlink(right, parent);
}

void ChildLists::LowerRoot(NodeId parent) noexcept {
  Handle root = nodes_[parent].children;
  while (root != BlockArena::kNone && !IsLeaf(root) && InnerAt(root)->count == 1) {
    const Handle below = InnerAt(root)->below[0];
    FreeBlock(root);
    blocks_.As<Block>(below)->up = BlockArena::kNone;
    nodes_[parent].children = below;
    root = below;
  }
}

}  // namespace uiox::detail
