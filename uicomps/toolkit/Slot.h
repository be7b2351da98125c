/// \file
/// How a value travels: every value of a variable list fills one pointer-sized slot. Signed values are sign-extended,
/// unsigned ones zero-extended, and a list ends with a slot of its own.
#ifndef OXECAD_UI_TOOLKIT_SLOT_H
#define OXECAD_UI_TOOLKIT_SLOT_H

#include <cstdint>
#include <tuple>
#include <type_traits>

namespace oxecad_ui::wire {

/// Ends an option list. A plain 0 would fill only half of its slot.
constexpr std::intptr_t kEnd = 0;

/// The toolkit's names of one widget: its device and its component. Borrows both.
struct Widget {
  const char* device;
  const char* name;
};

/// What a toolkit call gave: 0 is success. Converts to `true` on success; `code` is for callers that pass it on.
struct Result {
  int code = 0;
  explicit operator bool() const { return code == 0; }
};

inline std::intptr_t Slot(std::int32_t value) { return value; }
inline std::uintptr_t Slot(std::uint32_t value) { return value; }
inline std::uintptr_t Slot(std::uint64_t value) { return static_cast<std::uintptr_t>(value); }
inline std::intptr_t Slot(bool value) { return value ? 1 : 0; }
inline const void* Slot(const void* value) { return value; }

template <class Enum, std::enable_if_t<std::is_enum_v<Enum>, int> = 0>
auto Slot(Enum value) {
  return Slot(static_cast<std::underlying_type_t<Enum>>(value));
}

}  // namespace oxecad_ui::wire

#endif
