/// \file
/// Numbers in the pointer-sized user data of a node: colours, totals and indices travel there zero-extended.
#ifndef OXECAD_UI_TOOLKIT_USERVALUE_H
#define OXECAD_UI_TOOLKIT_USERVALUE_H

#include <cstdint>

namespace oxecad_ui::wire {

inline void* AsUserData(std::uint32_t number) { return reinterpret_cast<void*>(static_cast<std::uintptr_t>(number)); }

/// The low 32 bits.
inline std::uint32_t AsNumber(const void* data) {
  return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(data));
}

/// The value of a callback as the index that was registered with it.
inline std::uint64_t AsIndex(const void* value) { return reinterpret_cast<std::uintptr_t>(value); }

}  // namespace oxecad_ui::wire

#endif
