/// \file
/// From a hash to ids.
#ifndef OXECAD_UIOX_DETAIL_IDINDEX_H
#define OXECAD_UIOX_DETAIL_IDINDEX_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>

namespace uiox::detail {

/// A set of ids other than 0, found by the hash of what they stand for: open addressing with linear probing, at most
/// three quarters full, without tombstones. It knows no keys; whoever looks for one compares it with the candidates.
class IdIndex {
 public:
  using Id = std::uint32_t;

  /// The first id of that hash for which `is_it(id)` holds, or 0.
  template <class IsIt>
  Id Find(std::uint32_t hash, IsIt is_it) const {
    if (size_ == 0) return 0;
    for (std::size_t i = hash & mask_;; i = (i + 1) & mask_) {
      const Entry entry = entries_[i];
      if (entry.id == 0) return 0;
      if (entry.hash == hash && is_it(entry.id)) return entry.id;
    }
  }

  /// Makes room for one more id, so that the next `Insert` cannot fail. Throws std::bad_alloc.
  void Reserve() {
    if (4 * (size_ + 1) > 3 * Capacity()) Grow();
  }

  /// After `Reserve`. The id is not in the index.
  void Insert(std::uint32_t hash, Id id) noexcept {
    Place({hash, id});
    ++size_;
  }

  /// The id is in the index under that hash.
  void Erase(std::uint32_t hash, Id id) noexcept {
    std::size_t hole = hash & mask_;
    while (entries_[hole].id != id) hole = (hole + 1) & mask_;
    // What follows closes up, unless it would stand before its own place then.
    for (std::size_t i = (hole + 1) & mask_; entries_[i].id != 0; i = (i + 1) & mask_) {
      const std::size_t home = entries_[i].hash & mask_;
      if (((i - home) & mask_) >= ((i - hole) & mask_)) {
        entries_[hole] = entries_[i];
        hole = i;
      }
    }
    entries_[hole] = {0, 0};
    --size_;
  }

  void Clear() noexcept {
    entries_.reset();
    mask_ = 0;
    size_ = 0;
  }

  std::size_t Size() const { return size_; }
  std::size_t MemoryUse() const { return Capacity() * sizeof(Entry); }

 private:
  struct Entry {
    std::uint32_t hash;
    Id id;
  };
  struct Release {
    void operator()(Entry* entries) const { std::free(entries); }
  };

  std::size_t Capacity() const { return entries_ ? mask_ + 1 : 0; }

  void Place(Entry entry) noexcept {
    std::size_t i = entry.hash & mask_;
    while (entries_[i].id != 0) i = (i + 1) & mask_;
    entries_[i] = entry;
  }

  void Grow() {
    const std::size_t before = Capacity();
    const std::size_t capacity = before == 0 ? 8 : 2 * before;
    // Large zeroed blocks come untouched from the system.
    Entry* entries = static_cast<Entry*>(std::calloc(capacity, sizeof(Entry)));
    if (!entries) throw std::bad_alloc();
    const std::unique_ptr<Entry[], Release> old = std::move(entries_);
    entries_.reset(entries);
    mask_ = capacity - 1;
    for (std::size_t i = 0; i < before; ++i) {
      if (old[i].id != 0) Place(old[i]);
    }
  }

  std::unique_ptr<Entry[], Release> entries_;
  std::size_t mask_ = 0;
  std::size_t size_ = 0;
};

}  // namespace uiox::detail

#endif
