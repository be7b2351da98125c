#include <uiox/detail/BlockArena.h>
#include <uiox/detail/Poison.h>

#include <cstdlib>
#include <new>

namespace uiox::detail {

BlockArena::~BlockArena() { Clear(); }

BlockArena::Handle BlockArena::Allocate(std::size_t bytes) {
  if (bytes > kLargestSmall) return AllocateBig(bytes);
  const std::size_t units = Units(bytes);
  if (const Handle handle = free_[units]) {
    void* block = At(handle);
    Unpoison(block, units * 4);
    free_[units] = *static_cast<Handle*>(block);
    return handle;
  }
  if (used_ + units > kChunkUnits) {
    if (!spare_) AddSpare();
    UseSpare();
  }
  const Handle handle = static_cast<Handle>((chunks_.size() - 1) << kChunkBits) | used_;
  used_ += static_cast<std::uint32_t>(units);
  Unpoison(At(handle), units * 4);
  return handle;
}

void BlockArena::AddSpare() {
  if (chunks_.size() == kMostChunks) throw std::bad_alloc();
  if (chunks_.size() == chunks_.capacity()) chunks_.reserve(2 * chunks_.size() + 4);
  spare_.reset(new std::byte[kChunkBytes]);
  Poison(spare_.get(), kChunkBytes);
}

void BlockArena::UseSpare() noexcept {
  chunks_.push_back(std::move(spare_));
  used_ = chunks_.size() == 1 ? 1 : 0;  // no block has the handle 0
}

BlockArena::Handle BlockArena::AllocateBig(std::size_t bytes) {
  if (free_big_.empty()) {
    if (big_.size() == kBig - 1) throw std::bad_alloc();
    if (free_big_.capacity() <= big_.size()) free_big_.reserve(2 * big_.size() + 8);  // Free must not fail
    big_.push_back(nullptr);
    free_big_.push_back(static_cast<std::uint32_t>(big_.size() - 1));
  }
  void* block = std::malloc(bytes);
  if (!block) throw std::bad_alloc();
  const std::uint32_t place = free_big_.back();
  free_big_.pop_back();
  big_[place] = block;
  big_bytes_ += bytes;
  return place | kBig;
}

void BlockArena::Free(Handle handle, std::size_t bytes) noexcept {
  if (handle == kNone) return;
  if (handle & kBig) {
    const std::uint32_t place = handle & ~kBig;
    std::free(big_[place]);
    big_[place] = nullptr;
    big_bytes_ -= bytes;
    free_big_.push_back(place);
    return;
  }
  const std::size_t units = Units(bytes);
  void* block = At(handle);
  *static_cast<Handle*>(block) = free_[units];
  free_[units] = handle;
  Poison(block, units * 4);
}

void BlockArena::Clear() noexcept {
  for (void* block : big_) std::free(block);
  for (const auto& chunk : chunks_) Unpoison(chunk.get(), kChunkBytes);
  if (spare_) Unpoison(spare_.get(), kChunkBytes);
  spare_.reset();
  std::vector<std::unique_ptr<std::byte[]>>().swap(chunks_);
  std::vector<void*>().swap(big_);
  std::vector<std::uint32_t>().swap(free_big_);
  free_ = {};
  big_bytes_ = 0;
  used_ = kChunkUnits;
}

std::size_t BlockArena::MemoryUse() const {
  return (chunks_.size() + (spare_ ? 1 : 0)) * kChunkBytes + big_bytes_ + chunks_.capacity() * sizeof(chunks_[0]) +
         big_.capacity() * sizeof(void*) + free_big_.capacity() * sizeof(std::uint32_t);
}

}  // namespace uiox::detail
