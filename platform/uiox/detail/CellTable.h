/// \file
/// The cells of a tree.
#ifndef OXECAD_UIOX_DETAIL_CELLTABLE_H
#define OXECAD_UIOX_DETAIL_CELLTABLE_H

#include <uiox/NodeId.h>
#include <uiox/detail/BlockArena.h>
#include <uiox/detail/NodeRecords.h>
#include <uiox/detail/WideTexts.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace uiox::detail {

/// One block for each node that has a cell which is not empty, with a label and a control for every column.
class CellTable {
 public:
  CellTable(NodeRecords& nodes, BlockArena& blocks, std::size_t columns)
      : nodes_(nodes), blocks_(blocks), columns_(columns) {}

  std::size_t Columns() const { return columns_; }
  const wchar_t* Label(CellPlace place) const;
  /// False when the cell has that label already. Throws std::bad_alloc.
  bool SetLabel(CellPlace place, std::wstring_view label);
  ControlId Control(CellPlace place) const {
    const Cell* cell = Find(place);
    return cell ? cell->control : kNoControl;
  }
  /// Where a cell lies, to have it fetched from memory; null for one that nothing was put into.
  const void* Address(CellPlace place) const { return Find(place); }
  CellPlace PlaceOf(ControlId control) const { return control < places_.size() ? places_[control] : CellPlace{}; }
  /// Before a `Put`. Throws std::bad_alloc.
  void Prepare(CellPlace place, ControlId control);
  /// Into a cell where no other control is; the control is in no other cell.
  void Put(CellPlace place, ControlId control) noexcept;
  void TakeOut(ControlId control) noexcept;
  /// Empties the cells of a node and frees their block.
  void Drop(NodeId node) noexcept;
  /// After all nodes and blocks are gone.
  void Clear() noexcept;
  std::size_t MemoryUse() const { return texts_.MemoryUse() + places_.capacity() * sizeof(CellPlace); }

 private:
  struct Cell {
    WideTexts::Id label;
    ControlId control;
  };
  const Cell* Find(CellPlace place) const {
    const BlockArena::Handle cells = nodes_[place.node].cells;
    return cells == BlockArena::kNone ? nullptr : blocks_.As<Cell>(cells) + place.column;
  }
  Cell& Need(CellPlace place);

  NodeRecords& nodes_;
  BlockArena& blocks_;
  std::size_t columns_;
  WideTexts texts_;
  std::vector<CellPlace> places_;  // by control
};

}  // namespace uiox::detail

#endif
