/// \file
/// The names of a node's children, copied so that the toolkit may change while they are walked.
#ifndef OXECAD_UI_TOOLKIT_CHILDNAMES_H
#define OXECAD_UI_TOOLKIT_CHILDNAMES_H

#include <cstddef>
#include <cstring>
#include <memory>

#include <uicomps/toolkit/Lent.h>

namespace oxecad_ui::wire {

/// Reads the names, copies them into one block and gives the toolkit's list back before anything else happens. Names
/// that are null are left out. Copies nothing, and takes no memory, for a node without children.
class ChildNames {
 public:
  ChildNames(const Widget& tree, const char* node) {
    const LentNames lent(tree, node, Release::WhenNotEmpty);
    std::size_t bytes = 0;
    const char* next = nullptr;  // where the next name is when it stands right behind this one
    std::size_t apart = 0;
    for (const char* name : lent) {
      if (name == nullptr) continue;
      ++m_count;
      apart += name != next;
      const std::size_t size = std::strlen(name) + 1;
      bytes += size;
      next = name + size;
    }
    if (m_count == 0) return;
    m_names = std::make_unique_for_overwrite<const char*[]>(m_count + bytes / sizeof(const char*) + 1);
    char* const characters = reinterpret_cast<char*>(m_names.get() + m_count);
    const bool together = apart == 1 && m_count == static_cast<std::size_t>(lent.Count());
    if (together) {  // toolkits mostly lend names one behind the other, all of them
      CopyBlock(lent, bytes, characters);
    } else {
      CopyEach(lent, characters);
    }
  }

  std::size_t Size() const { return m_count; }
  bool IsEmpty() const { return m_count == 0; }
  const char* operator[](std::size_t index) const { return m_names[index]; }
  const char* const* begin() const { return m_names.get(); }
  const char* const* end() const { return m_names.get() + m_count; }

 private:
  void CopyBlock(const LentNames& lent, std::size_t bytes, char* characters) {
    const char* const* const names = lent.begin();
    std::memcpy(characters, names[0], bytes);
    for (std::size_t index = 0; index < m_count; ++index) m_names[index] = characters + (names[index] - names[0]);
  }
  void CopyEach(const LentNames& lent, char* characters) {
    const char** place = m_names.get();
    for (const char* name : lent) {
      if (name == nullptr) continue;
      *place++ = characters;
      characters = stpcpy(characters, name) + 1;
    }
  }

  std::size_t m_count = 0;
  std::unique_ptr<const char*[]> m_names;  // the pointers, and behind them the characters
};

}  // namespace oxecad_ui::wire

#endif
