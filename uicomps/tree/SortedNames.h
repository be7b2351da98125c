/// \file
/// The names of a parent's children in label order, as sorted insertion remembers them.
#ifndef OXECAD_UI_TREE_SORTEDNAMES_H
#define OXECAD_UI_TREE_SORTEDNAMES_H

#include <cstddef>
#include <string>
#include <vector>

namespace oxecad_ui {

/// A sequence of names by index, cut into chunks so that an insertion moves few of them. Finding an index costs the
/// logarithm of the number of chunks; an insertion moves the names of one chunk and renumbers the chunks behind it.
class SortedNames {
 public:
  std::size_t Size() const { return m_size; }
  /// The name at an index below the size. Good until the next insertion.
  const std::string& At(std::size_t index) const;
  /// Inserts before the name at the index; at the size it appends.
  void Insert(std::size_t index, std::string name);

  /// Finds names that mostly lie near the one found before, as those of a binary search. Good until the next insertion.
  class Reader {
   public:
    explicit Reader(const SortedNames& names) : m_names(names) {}
    std::size_t Size() const { return m_names.Size(); }
    const std::string& At(std::size_t index);
    /// The same without a search, or null: only where it stands in the chunk of the name found before.
    const std::string* Near(std::size_t index) const;

   private:
    const SortedNames& m_names;
    std::size_t m_chunk = 0;
  };

 private:
  using Chunk = std::vector<std::string>;
  /// Long enough that few chunks are renumbered, short enough that few names are moved.
  static constexpr std::size_t kMostInChunk = 256;

  struct Place {
    std::size_t chunk;
    std::size_t offset;
  };
  Place Find(std::size_t index) const;
  void Split(std::size_t chunk);

  std::vector<Chunk> m_chunks;
  /// The index of each chunk's first name.
  std::vector<std::size_t> m_starts;
  std::size_t m_size = 0;
};

}  // namespace oxecad_ui

#endif
