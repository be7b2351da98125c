/// \file
/// Callbacks: makes of a component's static member a function of the wire's type, and registers and removes it.
#ifndef OXECAD_UI_TOOLKIT_ACTIONS_H
#define OXECAD_UI_TOOLKIT_ACTIONS_H

#include <uicomps/toolkit/Slot.h>
#include <uicomps/toolkit/Toolkit.h>

namespace oxecad_ui::wire {

using toolkit::Reason;

namespace detail {

template <class Function>
struct CallbackTraits;
template <class Component>
struct CallbackTraits<int (*)(Component*)> {
  using Client = Component;
};
template <class Component>
struct CallbackTraits<int (*)(Component*, void*)> {
  using Client = Component;
};

}  // namespace detail

/// The wire's function for a component's callback. There is one for each callback, so what is registered can be
/// removed.
template <auto Callback>
int Call(void* client, void* value) {
  using Client = typename detail::CallbackTraits<decltype(Callback)>::Client;
  if constexpr (std::is_invocable_v<decltype(Callback), Client*, void*>) {
    return Callback(static_cast<Client*>(client), value);
  } else {
    return Callback(static_cast<Client*>(client));
  }
}

/// Adds a callback that is given its component and no value.
template <auto Callback>
Result AddAction(const Widget& widget, Reason reason,
                 typename detail::CallbackTraits<decltype(Callback)>::Client* client) {
  return {ui_add_action(widget.device, widget.name, static_cast<int>(reason), &Call<Callback>, client, kEnd)};
}

/// Adds a callback that is given its component and a value, which stands where the end would.
template <auto Callback>
Result AddAction(const Widget& widget, Reason reason,
                 typename detail::CallbackTraits<decltype(Callback)>::Client* client, std::uint64_t value) {
  return {ui_add_action(widget.device, widget.name, static_cast<int>(reason), &Call<Callback>, client, Slot(value))};
}

template <auto Callback>
void RemoveAction(const Widget& widget, Reason reason) {
  ui_remove_action(widget.device, widget.name, static_cast<int>(reason), &Call<Callback>);
}

/// Makes a callback the only one of its reason; it is given its component and a value.
template <auto Callback>
Result SetAction(const Widget& widget, Reason reason,
                 typename detail::CallbackTraits<decltype(Callback)>::Client* client, std::uint64_t value) {
  return {ui_set_action(widget.device, widget.name, static_cast<int>(reason), &Call<Callback>, client, Slot(value))};
}

}  // namespace oxecad_ui::wire

#endif
