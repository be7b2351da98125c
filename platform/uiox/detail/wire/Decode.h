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
  void ReadShape(const detail::OperationShape& shape) {
    call_.positional_shape = shape.letters;
    call_.positional_count = shape.count;
    call_.option_group = shape.options;
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
    const int upper_case = out ? 0x20 : 0;
    std::size_t count = 0;
    for (; code != 0; code = NextCode()) {
      const char letter = index.letters[index.NumberOf(code)];
      if (letter == 0) return Stop(count, Fault::UnknownOption, code);
      if (count == Call::kMaxOptions) return Stop(count, Fault::MissingEnd, 0);
      Option& option = call_.options[count++];
      option.code = code;
      option.shape = static_cast<char>(letter - upper_case);
      option.value = Next();
      option.array = letter == 'l' ? Next() : Slot{0};
    }
    call_.option_count = static_cast<std::uint8_t>(count);
  }

  Slot Next() { return Slot{va_arg(*slots_, std::intptr_t)}; }
  int NextCode() { return va_arg(*slots_, int); }

 private:
  void Stop(std::size_t options_read, Fault fault, int code) {
    call_.option_count = static_cast<std::uint8_t>(options_read);
    call_.fault = fault;
    call_.fault_code = code;
  }

  Call& call_;
  va_list* slots_;
};

}  // namespace uiox::wire

#endif
