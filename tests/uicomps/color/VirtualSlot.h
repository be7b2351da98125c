/// \file
/// Where a virtual member stands in its class's table.
#ifndef OXECAD_TESTS_UICOMPS_COLOR_VIRTUALSLOT_H
#define OXECAD_TESTS_UICOMPS_COLOR_VIRTUALSLOT_H

#include <cstddef>
#include <cstring>

namespace color_tests {

/// The slot of a virtual member, the destructor (which fills the first two entries of the table) counted as slot 0; -1
/// for a member that is not virtual. As the Itanium C++ ABI lays pointers to members out.
template <class Member>
int VirtualSlot(Member member) {
  std::ptrdiff_t words[2];
  static_assert(sizeof member == sizeof words);
  std::memcpy(words, &member, sizeof words);
#if defined(__arm__) || defined(__aarch64__)
  const bool is_virtual = (words[1] & 1) != 0;
  const std::ptrdiff_t offset = words[0];
#else
  const bool is_virtual = (words[0] & 1) != 0;
  const std::ptrdiff_t offset = words[0] - 1;
#endif
  return is_virtual ? static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(void*))) - 1 : -1;
}

}  // namespace color_tests

#endif
