/// \file
/// Reading and writing the attributes of a component or device, and of the toolkit as a whole.
#ifndef OXECAD_UI_TOOLKIT_COMPONENTCALLS_H
#define OXECAD_UI_TOOLKIT_COMPONENTCALLS_H

#include <uicomps/toolkit/Answer.h>

namespace oxecad_ui::wire {

/// Reads attributes of a component. What is read stays the toolkit's.
template <class... Attributes>
auto Retrieve(const Widget& widget, Attributes... attributes) {
  static_assert(kAreOf<ComponentAttribute, Attributes...>, "an attribute of another table");
  return Ask([&](auto... slots) { return ui_retrieve(widget.device, widget.name, slots..., kEnd); }, attributes...);
}

/// Writes attributes of a component, given as `attribute(value)`.
template <class... Options>
Result Modify(const Widget& widget, const Options&... options) {
  static_assert(kAreOf<ComponentAttribute, Options...>, "an attribute of another table");
  return {std::apply([&](auto... slots) { return ui_modify(widget.device, widget.name, slots..., kEnd); },
                     std::tuple_cat(options.Slots()...))};
}

/// Reads global values. What is read stays the toolkit's.
template <class... Attributes>
auto Inquire(Attributes... attributes) {
  static_assert(kAreOf<GlobalCode, Attributes...>, "an attribute of another table");
  return Ask([](int code, auto... slots) { return ui_global_inquire(code, slots..., kEnd); }, attributes...);
}

/// The name of a tree's root node, or null when the tree has none that counts. Stays the toolkit's.
inline const char* RootNode(const Widget& tree) {
  const auto [read, root] = Retrieve(tree, kRootNode);
  return root != nullptr && root[0] != '\0' ? root : nullptr;
}

}  // namespace oxecad_ui::wire

#endif
