/// \file
/// From a variable list to a `Call`.
#ifndef OXECAD_UIOX_DETAIL_WIRE_DECODE_H
#define OXECAD_UIOX_DETAIL_WIRE_DECODE_H

#include <uiox/Call.h>
#include <uiox/detail/CodeIndex.h>

#include <cstdarg>
#include <cstdint>

namespace uiox::wire {

/// Reads the slots of one call. The shapes of Toolkit.h say how many there are; a list that does not follow them ends
/// the reading with a `Fault` before it goes astray, as far as that can be seen.
class Decoder {
 public:
  Decoder(Call& call, va_list* slots) : call_(call), slots_(slots) {}

  /// Positional slots by a shape, then what its ending says.
  void ReadShape(const char* letters, detail::PositionalShape shape) {
    call_.positional_shape = letters;
    call_.positional_count = shape.count;
    for (std::size_t i = 0; i < shape.count; ++i) call_.positional[i] = Next();
    if (shape.ending == '<') return ReadOptions(false);
    if (shape.ending == '>') return ReadOptions(true);
    if (shape.ending == '0' && NextCode() != 0) call_.fault = Fault::MissingEnd;
  }

  /// Pairs of the option group up to the closing 0.
  void ReadOptions(bool out) { ReadOptionsFrom(NextCode(), out); }

  /// The same when the first code is known already.
  void ReadOptionsFrom(int code, bool out) {
    const detail::GroupIndex& index = detail::IndexOf(call_.option_group);
    for (; code != 0; code = NextCode()) {
      const CodeInfo* row = index.Find(code);
      if (!row) return Stop(Fault::UnknownOption, code);
      if (call_.option_count == Call::kMaxOptions) return Stop(Fault::MissingEnd, 0);
      Option& option = call_.options[call_.option_count++];
      option.code = code;
      option.shape = out ? static_cast<char>(row->shape[0] & ~0x20) : row->shape[0];
      option.value = Next();
      option.array = row->shape[0] == 'l' ? Next() : Slot{0};
    }
  }

  Slot Next() { return Slot{va_arg(*slots_, std::intptr_t)}; }
  int NextCode() { return va_arg(*slots_, int); }

 private:
  void Stop(Fault fault, int code) {
    call_.fault = fault;
    call_.fault_code = code;
  }

  Call& call_;
  va_list* slots_;
};

}  // namespace uiox::wire

#endif
