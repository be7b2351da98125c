/// \file
/// Reads of one node, answered at once.
#ifndef OXECAD_UIOX_DETAIL_WIRE_QUICKREAD_H
#define OXECAD_UIOX_DETAIL_WIRE_QUICKREAD_H

#include <uiox/detail/Watchers.h>
#include <uiox/detail/wire/PlainValues.h>

#include <cstdarg>
#include <cstddef>
#include <cstdint>

namespace uiox::wire {

/// Answers for values that are named by the rows of their attributes.
int AnswerPlainValue(const char* device, const char* component, Slot node, std::size_t row, Slot place);
int AnswerPlainValues(const char* device, const char* component, Slot node, std::size_t first_row, Slot first_place,
                      std::size_t second_row, Slot second_place);
int AnswerText(const char* device, const char* component, Slot node, std::size_t row, Slot place);

/// Not an answer: the call is to be decoded.
inline constexpr int kNotQuick = -1;

/// Whoever summarises or searches a tree asks each node for a number or two, or for a copy of a text: most calls there
/// are. A record of the call (Call.h) costs more than such an answer. This reads the variable list itself and answers
/// when the list holds nothing else, with what the decoded call would be answered; the list of any other call is to be
/// read again from its start. Where somebody watches the calls, each is decoded.
[[gnu::always_inline]] inline int AnswerQuickly(const char* device, const char* component, int operation,
                                                va_list* slots) {
  constexpr int kInquire = static_cast<int>(oxecad_ui::toolkit::Operation::InquireNode);
  constexpr int kCopy = static_cast<int>(oxecad_ui::toolkit::Operation::GetNode);
  if ((operation != kInquire && operation != kCopy) || !detail::g_watchers.AreNone()) return kNotQuick;
  const Slot node{va_arg(*slots, std::intptr_t)};
  const std::size_t row = AttributeRow(va_arg(*slots, int));
  if (kPlainAttributes.Has(row)) {
    const Slot place{va_arg(*slots, std::intptr_t)};
    const int second_code = va_arg(*slots, int);
    if (second_code == 0) return AnswerPlainValue(device, component, node, row, place);
    const std::size_t second_row = AttributeRow(second_code);
    if (!kPlainAttributes.Has(second_row)) return kNotQuick;
    const Slot second_place{va_arg(*slots, std::intptr_t)};
    if (va_arg(*slots, int) != 0) return kNotQuick;
    return AnswerPlainValues(device, component, node, row, place, second_row, second_place);
  }
  if (operation == kInquire || !kTextAttributes.Has(row)) return kNotQuick;
  const Slot place{va_arg(*slots, std::intptr_t)};
  return va_arg(*slots, int) == 0 ? AnswerText(device, component, node, row, place) : kNotQuick;
}

}  // namespace uiox::wire

#endif
