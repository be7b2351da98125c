/// \file
/// The cells of a tree's nodes, one for each named column, and the controls that are put into them.
#ifndef OXECAD_UI_TOOLKIT_CELLCALLS_H
#define OXECAD_UI_TOOLKIT_CELLCALLS_H

#include <string>

#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui::wire {

/// Creates a cell control of a class, with options given as `attribute(value)`.
template <class... Options>
Result CreateControl(const Widget& tree, const char* control, const char* className, const Options&... options) {
  static_assert(kAreOf<ControlAttribute, Options...>, "an attribute of another table");
  return Perform(tree, Operation::CreateControl, std::make_tuple(Slot(control), Slot(className)), options...);
}

inline Result DestroyControl(const Widget& tree, const char* control) {
  return Perform(tree, Operation::DestroyControl, std::make_tuple(Slot(control)));
}

/// One cell of a tree. Borrows the names.
struct Cell {
  const char* node;
  const char* column;
};

template <class... Options>
Result SetCell(const Widget& tree, const Cell& cell, const Options&... options) {
  static_assert(kAreOf<CellAttribute, Options...>, "an attribute of another table");
  return Perform(tree, Operation::SetCell, std::make_tuple(Slot(cell.node), Slot(cell.column)), options...);
}

template <class... Options>
Result SetCellControl(const Widget& tree, const Cell& cell, const Options&... options) {
  static_assert(kAreOf<ControlAttribute, Options...>, "an attribute of another table");
  return Perform(tree, Operation::SetCellControl, std::make_tuple(Slot(cell.node), Slot(cell.column)), options...);
}

namespace detail {

template <class Attribute>
auto AskCell(const Widget& tree, Operation operation, const Cell& cell, Attribute attribute) {
  return std::get<1>(Ask(
      [&](auto... slots) {
        return ui_do_operation(tree.device, tree.name, static_cast<int>(operation), Slot(cell.node), Slot(cell.column),
                               slots..., kEnd);
      },
      attribute));
}

}  // namespace detail

/// The label of a cell; empty when it has none or cannot be read. Stays the toolkit's: good until the cell changes.
inline const wchar_t* CellLabel(const Widget& tree, const Cell& cell) {
  const wchar_t* label = detail::AskCell(tree, Operation::GetCell, cell, kCellLabel);
  return label != nullptr ? label : L"";
}

/// An attribute of the control in a cell; its preset when it cannot be read.
template <class Attribute>
auto GetCellControl(const Widget& tree, const Cell& cell, Attribute attribute) {
  static_assert(kAreOf<ControlAttribute, Attribute>, "an attribute of another table");
  return detail::AskCell(tree, Operation::GetCellControl, cell, attribute);
}

}  // namespace oxecad_ui::wire

#endif
