/// \file
/// Where a virtual member stands among those of its class.
#ifndef OXECAD_TESTS_UICOMPS_VIRTUALSLOT_H
#define OXECAD_TESTS_UICOMPS_VIRTUALSLOT_H

#include <cstdint>
#include <cstring>

namespace oxecad_ui {

/// The number of a virtual member, counting the destructor as one slot (number 0), which in this ABI fills two entries
/// of the table: the first two, when it is declared first.
template <class Member>
std::intptr_t VirtualSlot(Member member) {
  static_assert(sizeof member == 2 * sizeof(std::intptr_t), "a pointer to a member: entry and adjustment");
  std::intptr_t words[2];
  std::memcpy(words, &member, sizeof words);
  const bool is_virtual = (words[0] & 1) != 0 && words[1] == 0;
  return is_virtual ? (words[0] - 1) / static_cast<std::intptr_t>(sizeof(void*)) - 1 : -1;
}

}  // namespace oxecad_ui

#endif
