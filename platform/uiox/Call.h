/// \file
/// One call of the toolkit, decoded from its variable list into a record on the stack.
#ifndef OXECAD_UIOX_CALL_H
#define OXECAD_UIOX_CALL_H

#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Codes.h>

#include <cstddef>
#include <cstdint>

namespace uiox {

/// Which C function was called. The last two live in other libraries of the suite and come through `Dispatch` as well.
enum class Function : std::uint8_t {
  DoOperation,
  Retrieve,
  Modify,
  AddAction,
  RemoveAction,
  SetAction,
  Free,
  CreateSearchPath,
  CreateDeviceExt,
  CreateDevice,
  ManageDevice,
  ActivateDevice,
  UnmanageDevice,
  ExitDevice,
  GlobalInquire,
  GlobalDoOperation,
  Beep,
  ReleaseMemory,  ///< `relmem`
  BalloonStyle    ///< `uit_SkinGetBalloonDlgStyle`
};

/// What is wrong with the variable list itself. Such a call has to be refused.
enum class Fault : std::uint8_t {
  None,
  UnknownOperation,  ///< the operation is in no table; nothing behind it was read
  UnknownOption,     ///< an option's code is not in the operation's table (`Call::fault_code`); reading stopped there
  MissingEnd         ///< no closing 0 where it belongs, or more pairs than `Call::kMaxOptions`
};

/// One slot of a variable list, read as what its shape says it is.
struct Slot {
  std::intptr_t word;

  const char* Text() const { return reinterpret_cast<const char*>(word); }
  const wchar_t* Wide() const { return reinterpret_cast<const wchar_t*>(word); }
  int Int() const { return static_cast<int>(word); }
  std::uint32_t UInt() const { return static_cast<std::uint32_t>(word); }
  void* Pointer() const { return reinterpret_cast<void*>(word); }
  const char* const* Names() const { return reinterpret_cast<const char* const*>(word); }
  /// The place that an answer goes to (shapes in upper case); null where the caller does not ask for it.
  template <class T>
  T* Out() const {
    return reinterpret_cast<T*>(word);
  }
};

/// A pair of an option list. A list ('l', 'L') fills two slots: the count (or its address), then the array (or its).
struct Option {
  int code;
  /// A letter of the shapes in Toolkit.h: lower case for a value given, upper case for an address to be filled. In a
  /// `Function::Free` it is the lower case letter of the attribute, and the slot is the address of the pointer; of a
  /// list, the count and the address of the array.
  char shape;
  Slot value;
  Slot array;
};

/// A decoded call. Only the parts that the function has are filled; the pointers are the caller's.
struct Call {
  static constexpr std::size_t kMaxPositional = 8;
  static constexpr std::size_t kMaxOptions = 32;

  Function function;
  Fault fault = Fault::None;
  int fault_code = 0;            ///< the code that is in no table
  const char* device = nullptr;  ///< also the device of `CreateDevice…`, `Manage…`, `ExitDevice` …
  const char* component = nullptr;
  int code = 0;                    ///< operation or reason; kind of a search path; selector of a balloon style
  const char* resource = nullptr;  ///< `CreateDevice…`: the resource; `CreateSearchPath`: the context
  int search_path = -1;            ///< `CreateDeviceExt`
  ui_callback callback = nullptr;  ///< the three functions for actions
  void* client_data = nullptr;     ///< the same; `ExitDevice`: the device's name
  void* value = nullptr;  ///< the same: the callback's further value; `ReleaseMemory`, `BalloonStyle`: the address
  /// For functions of other libraries: gives their answer. `BuiltIn()` calls it.
  int (*answer)(const Call& call) = nullptr;

  /// The positional slots, one letter of `positional_shape` each.
  const char* positional_shape = "";
  std::uint8_t positional_count = 0;
  std::uint8_t option_count = 0;
  /// Where the option codes belong.
  CodeGroup option_group = CodeGroup::None;
  Slot positional[kMaxPositional];
  Option options[kMaxOptions];

  explicit Call(Function f) : function(f) {}

  const Option* begin() const { return options; }
  const Option* end() const { return options + option_count; }
  /// The last pair with that code, or null.
  const Option* Find(int option_code) const {
    for (std::size_t i = option_count; i > 0; --i) {
      if (options[i - 1].code == option_code) return &options[i - 1];
    }
    return nullptr;
  }
};

}  // namespace uiox

#endif
