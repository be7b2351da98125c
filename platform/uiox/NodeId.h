/// \file
/// How nodes, node types and cell controls are named inside the process.
#ifndef OXECAD_UIOX_NODEID_H
#define OXECAD_UIOX_NODEID_H

#include <cstdint>

namespace uiox {

/// A node of one tree. Good until the node is removed; then the number may be given to a new node.
using NodeId = std::uint32_t;
/// The invisible parent of the top-level nodes. It has no name and cannot be changed.
constexpr NodeId kTop = 0;
/// No node: what is said of a node that is not there.
constexpr NodeId kNoNode = 0xFFFFFFFFu;

/// A node type by its name, the same in all trees of the process. 0 is the empty type. Never given up.
using TypeId = std::uint32_t;

/// A control of one tree. 0 is none. Good until the control is destroyed.
using ControlId = std::uint32_t;
/// No control.
constexpr ControlId kNoControl = 0;

/// A named column of one tree, from 0 in the order of the resource. The column of the labels is none of them.
using ColumnIndex = std::uint16_t;
/// No column.
constexpr ColumnIndex kNoColumn = 0xFFFFu;

/// A cell of a tree.
struct CellPlace {
  /// The cell's row.
  NodeId node = kNoNode;
  /// The cell's column.
  ColumnIndex column = kNoColumn;
  /// Whether it is a place at all.
  explicit operator bool() const { return node != kNoNode; }
  /// Whether it is the same cell.
  friend bool operator==(CellPlace a, CellPlace b) { return a.node == b.node && a.column == b.column; }
  /// Whether it is another cell.
  friend bool operator!=(CellPlace a, CellPlace b) { return !(a == b); }
};

}  // namespace uiox

#endif
