/// \file
/// Comparing short texts.
#ifndef OXECAD_UIOX_DETAIL_SHORTTEXT_H
#define OXECAD_UIOX_DETAIL_SHORTTEXT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace uiox::detail {

template <class Word>
bool AreSameWords(const char* a, const char* b) {
  Word first;
  Word second;
  std::memcpy(&first, a, sizeof first);
  std::memcpy(&second, b, sizeof second);
  return first == second;
}

/// The same as `a == b`, which costs a call. Names of devices, components and nodes are short, and mostly equal where
/// they are compared.
inline bool AreSame(std::string_view a, std::string_view b) {
  const std::size_t size = a.size();
  if (size != b.size()) return false;
  // Words that overlap at the end.
  if (size >= 8) {
    for (std::size_t i = 0; i + 8 < size; i += 8) {
      if (!AreSameWords<std::uint64_t>(a.data() + i, b.data() + i)) return false;
    }
    return AreSameWords<std::uint64_t>(a.data() + size - 8, b.data() + size - 8);
  }
  if (size >= 4) {
    return AreSameWords<std::uint32_t>(a.data(), b.data()) &&
           AreSameWords<std::uint32_t>(a.data() + size - 4, b.data() + size - 4);
  }
  for (std::size_t i = 0; i < size; ++i) {
    if (a[i] != b[i]) return false;
  }
  return true;
}

}  // namespace uiox::detail

#endif
