/// \file
/// Small blocks named by 32 bits.
#ifndef OXECAD_UIOX_DETAIL_BLOCKARENA_H
#define OXECAD_UIOX_DETAIL_BLOCKARENA_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace uiox::detail {

/// Hands out blocks, aligned to four bytes, that stay where they are. A node keeps several texts and lists: half the
/// size of a pointer and no header before each block is what makes a million of them small.
///
/// Freed blocks are taken again for the same size. Blocks above `kLargestSmall` come from the heap one by one.
class BlockArena {
 public:
  using Handle = std::uint32_t;
  static constexpr Handle kNone = 0;
  static constexpr std::size_t kLargestSmall = 72 * 4;

  BlockArena() = default;
  ~BlockArena();
  BlockArena(const BlockArena&) = delete;
  BlockArena& operator=(const BlockArena&) = delete;

  /// Throws std::bad_alloc, and then nothing has changed.
  Handle Allocate(std::size_t bytes);
  /// Makes room for `kSureBlocks` small blocks, so that as many allocations of them cannot fail. Throws std::bad_alloc.
  static constexpr std::size_t kSureBlocks = 64;
  void EnsureRoom() {
    if (!spare_ && used_ + kSureBlocks * (kLargestSmall / 4) > kChunkUnits) AddSpare();
  }
  /// `bytes` as for the allocation; `kNone` is accepted.
  void Free(Handle handle, std::size_t bytes) noexcept;
  /// Whether two sizes need blocks of the same size.
  static bool SameSize(std::size_t a, std::size_t b) { return Units(a) == Units(b); }
  /// Frees every block and gives the memory back.
  void Clear() noexcept;

  void* At(Handle handle) const {
    if (handle & kBig) return big_[handle & ~kBig];
    return chunks_[handle >> kChunkBits].get() + 4 * (handle & (kChunkUnits - 1));
  }
  template <class T>
  T* As(Handle handle) const {
    return static_cast<T*>(At(handle));
  }

  /// Bytes taken from the heap.
  std::size_t MemoryUse() const;

 private:
  static constexpr unsigned kChunkBits = 14;
  static constexpr std::uint32_t kChunkUnits = 1u << kChunkBits;
  static constexpr std::size_t kChunkBytes = std::size_t{kChunkUnits} * 4;
  static constexpr std::uint32_t kBig = 1u << 31;
  static constexpr std::size_t kMostChunks = kBig >> kChunkBits;

  static constexpr std::size_t Units(std::size_t bytes) { return bytes == 0 ? 1 : (bytes + 3) / 4; }
  Handle AllocateBig(std::size_t bytes);
  void AddSpare();
  void UseSpare() noexcept;

  std::vector<std::unique_ptr<std::byte[]>> chunks_;
  std::unique_ptr<std::byte[]> spare_;  // the next chunk; there is room for it in the list
  std::uint32_t used_ = kChunkUnits;    // units of the last chunk
  std::array<Handle, kLargestSmall / 4 + 1> free_{};
  std::vector<void*> big_;
  std::vector<std::uint32_t> free_big_;
  std::size_t big_bytes_ = 0;
};

}  // namespace uiox::detail

#endif
