/// \file
/// Reading from the toolkit: offers preset places for the answers and takes them back when the call fails, so that
/// after a failure the preset counts whatever was written.
#ifndef OXECAD_UI_TOOLKIT_ANSWER_H
#define OXECAD_UI_TOOLKIT_ANSWER_H

#include <uicomps/toolkit/Attributes.h>

namespace oxecad_ui::wire {

namespace detail {

template <class T>
auto PlaceSlots(int code, T& place) {
  return std::make_tuple(code, Slot(&place));
}
inline auto PlaceSlots(int code, Names& place) { return std::make_tuple(code, Slot(&place.count), Slot(&place.names)); }

template <class T>
void Settle(Result result, T preset, T& place) {
  if (!result) place = preset;
}
inline void Settle(Result result, Names preset, Names& place) {
  const bool withoutArray = place.names == nullptr && place.count > 0;
  if (!result || withoutArray) place = preset;
}

}  // namespace detail

/// Asks for attributes with `call`, which takes the slots of an option list without its end and gives the toolkit's
/// number. The answer holds the result and one value for each attribute.
template <class Call, class... Attributes>
auto Ask(Call call, Attributes... attributes) {
  std::tuple<Result, typename Attributes::Value...> answer{Result{}, attributes.PresetValue()...};
  std::apply(
      [&](Result& result, auto&... places) {
        result.code = std::apply(call, std::tuple_cat(detail::PlaceSlots(attributes.code, places)...));
        (detail::Settle(result, attributes.PresetValue(), places), ...);
      },
      answer);
  return answer;
}

/// Asks for one attribute in the same way, with the place that the caller keeps: what is lent goes back by the address
/// that was filled.
template <class Call, class Attribute>
Result AskInto(typename Attribute::Value& place, Call call, Attribute attribute) {
  place = attribute.PresetValue();
  const Result result{std::apply(call, detail::PlaceSlots(attribute.code, place))};
  detail::Settle(result, attribute.PresetValue(), place);
  return result;
}

}  // namespace oxecad_ui::wire

#endif
