#include <uiox/detail/CellTable.h>

#include <algorithm>

namespace uiox::detail {

CellTable::Cell& CellTable::Need(CellPlace place) {
  BlockArena::Handle& cells = nodes_[place.node].cells;
  if (cells == BlockArena::kNone) {
    cells = blocks_.Allocate(columns_ * sizeof(Cell));
    std::fill_n(blocks_.As<Cell>(cells), columns_, Cell{0, kNoControl});
  }
  return blocks_.As<Cell>(cells)[place.column];
}

const wchar_t* CellTable::Label(CellPlace place) const {
  const Cell* cell = Find(place);
  return cell ? texts_.Text(cell->label) : L"";
}

bool CellTable::SetLabel(CellPlace place, std::wstring_view label) {
  const Cell* there = Find(place);
  if (label == (there ? texts_.View(there->label) : std::wstring_view())) return false;
  Cell& cell = Need(place);
  // The new text may point into the old one.
  const WideTexts::Id before = cell.label;
  cell.label = texts_.Use(label);
  texts_.Release(before);
  return true;
}

void CellTable::Prepare(CellPlace place, ControlId control) {
  if (control >= places_.size()) places_.resize(std::max<std::size_t>(control + 1, places_.size() * 2));
  Need(place);
}

void CellTable::Put(CellPlace place, ControlId control) noexcept {
  blocks_.As<Cell>(nodes_[place.node].cells)[place.column].control = control;
  places_[control] = place;
}

void CellTable::TakeOut(ControlId control) noexcept {
  const CellPlace place = PlaceOf(control);
  if (!place) return;
  blocks_.As<Cell>(nodes_[place.node].cells)[place.column].control = kNoControl;
  places_[control] = CellPlace{};
}

void CellTable::Drop(NodeId node) noexcept {
  BlockArena::Handle& cells = nodes_[node].cells;
  if (cells == BlockArena::kNone) return;
  const Cell* cell = blocks_.As<Cell>(cells);
  for (std::size_t i = 0; i < columns_; ++i) {
    texts_.Release(cell[i].label);
    if (cell[i].control != kNoControl) places_[cell[i].control] = CellPlace{};
  }
  blocks_.Free(cells, columns_ * sizeof(Cell));
  cells = BlockArena::kNone;
}

void CellTable::Clear() noexcept {
  texts_.Clear();
  std::vector<CellPlace>().swap(places_);
}

}  // namespace uiox::detail
