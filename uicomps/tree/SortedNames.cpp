#include <uicomps/tree/SortedNames.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace oxecad_ui {

SortedNames::Place SortedNames::Find(std::size_t index) const {
  if (m_chunks.size() == 1) return {0, index};
  const auto behind = std::upper_bound(m_starts.begin(), m_starts.end(), index);
  const auto chunk = static_cast<std::size_t>(behind - m_starts.begin()) - 1;
  return {chunk, index - m_starts[chunk]};
}

const std::string& SortedNames::At(std::size_t index) const {
  const Place place = Find(index);
  return m_chunks[place.chunk][place.offset];
}

const std::string* SortedNames::Reader::Near(std::size_t index) const {
  const std::size_t start = m_names.m_starts[m_chunk];
  const Chunk& chunk = m_names.m_chunks[m_chunk];
  return index >= start && index - start < chunk.size() ? &chunk[index - start] : nullptr;
}

const std::string& SortedNames::Reader::At(std::size_t index) {
  if (const std::string* near = Near(index)) return *near;
  const Place place = m_names.Find(index);
  m_chunk = place.chunk;
  return m_names.m_chunks[place.chunk][place.offset];
}

void SortedNames::Insert(std::size_t index, std::string name) {
  if (m_chunks.empty()) {
    m_starts.reserve(1);
    m_chunks.emplace_back();
    m_starts.push_back(0);
  }
  const Place place = Find(index);
  Chunk& chunk = m_chunks[place.chunk];
  chunk.insert(chunk.begin() + static_cast<std::ptrdiff_t>(place.offset), std::move(name));
  for (std::size_t behind = place.chunk + 1; behind < m_starts.size(); ++behind) ++m_starts[behind];
  ++m_size;
  if (chunk.size() > kMostInChunk) Split(place.chunk);
}

void SortedNames::Split(std::size_t index) {
  // All memory is taken before anything moves: without it the chunk just stays long.
  m_chunks.reserve(m_chunks.size() + 1);
  m_starts.reserve(m_starts.size() + 1);
  Chunk upper;
  upper.reserve(kMostInChunk + 1);

  Chunk& full = m_chunks[index];
  const auto middle = full.begin() + static_cast<std::ptrdiff_t>(full.size() / 2);
  upper.insert(upper.end(), std::make_move_iterator(middle), std::make_move_iterator(full.end()));
  full.erase(middle, full.end());
  const auto next = static_cast<std::ptrdiff_t>(index) + 1;
  m_starts.insert(m_starts.begin() + next, m_starts[index] + full.size());
  m_chunks.insert(m_chunks.begin() + next, std::move(upper));
}

}  // namespace oxecad_ui
