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
  DoOperation,        ///< `ui_do_operation`
  Retrieve,           ///< `ui_retrieve`
  Modify,             ///< `ui_modify`
  AddAction,          ///< `ui_add_action`
  RemoveAction,       ///< `ui_remove_action`
  SetAction,          ///< `ui_set_action`
  Free,               ///< `ui_free`
  CreateSearchPath,   ///< `ui_create_search_path`
  CreateDeviceExt,    ///< `ui_create_device_ext`
  CreateDevice,       ///< `ui_create_device`
  ManageDevice,       ///< `ui_manage_device`
  ActivateDevice,     ///< `ui_activate_device`
  UnmanageDevice,     ///< `ui_unmanage_device`
  ExitDevice,         ///< `ui_exit_device`
  GlobalInquire,      ///< `ui_global_inquire`
  GlobalDoOperation,  ///< `ui_global_do_operation`
  Beep,               ///< `ui_beep`
  ReleaseMemory,      ///< `relmem`
  BalloonStyle        ///< `uit_SkinGetBalloonDlgStyle`
};

/// What is wrong with the variable list itself. Such a call has to be refused.
enum class Fault : std::uint8_t {
  None,              ///< the list is as its tables say
  UnknownOperation,  ///< the operation is in no table; nothing behind it was read
  UnknownOption,     ///< an option's code is not in the operation's table (`Call::fault_code`); reading stopped there
  MissingEnd         ///< no closing 0 where it belongs, or more pairs than `Call::kMaxOptions`
};

/// One slot of a variable list, read as what its shape says it is.
struct Slot {
  /// The slot's bits: integers are widened to it, pointers are kept whole.
  std::intptr_t word;

  /// A narrow, zero-terminated text; may be null.
  const char* Text() const { return reinterpret_cast<const char*>(word); }
  /// A wide, zero-terminated text of UTF-16 code units; may be null.
  const wchar_t* Wide() const { return reinterpret_cast<const wchar_t*>(word); }
  /// The low half as a signed number.
  int Int() const { return static_cast<int>(word); }
  /// The low half as an unsigned number: colours and states.
  std::uint32_t UInt() const { return static_cast<std::uint32_t>(word); }
  /// The whole slot as a pointer.
  void* Pointer() const { return reinterpret_cast<void*>(word); }
  /// An array of narrow texts; how many is said by another slot.
  const char* const* Names() const { return reinterpret_cast<const char* const*>(word); }
  /// The place that an answer goes to (shapes in upper case); null where the caller does not ask for it.
  template <class T>
  T* Out() const {
    return reinterpret_cast<T*>(word);
  }
};

/// A pair of an option list. A list ('l', 'L') fills two slots: the count (or its address), then the array (or its).
struct Option {
  /// The option's code, of the table `Call::option_group`.
  int code;
  /// A letter of the shapes in Toolkit.h: lower case for a value given, upper case for an address to be filled. In a
  /// `Function::Free` it is the lower case letter of the attribute, and the slot is the address of the pointer; of a
  /// list, the count and the address of the array.
  char shape;
  /// What follows the code: the value, or the address that is to be filled; of a list its count.
  Slot value;
  /// Of a list its array; else not filled.
  Slot array;
};

/// A decoded call. Only the parts that the function has are filled; the pointers are the caller's.
struct Call {
  /// The longest row of positional slots that any operation has.
  static constexpr std::size_t kMaxPositional = 8;
  /// The most pairs that one call may have; a longer list is a `Fault::MissingEnd`.
  static constexpr std::size_t kMaxOptions = 32;

  /// Which function was called, and with it which of the following are filled.
  Function function;
  /// What is wrong with the list; what stands behind the fault was not read.
  Fault fault = Fault::None;
  int fault_code = 0;            ///< the code that is in no table
  const char* device = nullptr;  ///< also the device of `CreateDevice…`, `Manage…`, `ExitDevice` …
  /// The component that the call is about; may be null.
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
  /// How many of `positional` are filled.
  std::uint8_t positional_count = 0;
  /// How many of `options` are filled.
  std::uint8_t option_count = 0;
  /// Where the option codes belong.
  CodeGroup option_group = CodeGroup::None;
  /// What stands before the pairs.
  Slot positional[kMaxPositional];
  /// The pairs in the order of the call; a code may come twice.
  Option options[kMaxOptions];

  /// A call of a function with nothing filled yet.
  explicit Call(Function f) : function(f) {}

  /// The first pair, for a loop over all.
  const Option* begin() const { return options; }
  /// Behind the last pair.
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
