#include <cassert>
#include <string>

#include <oxcore/ColorPickerDlg.h>

#include <uicomps/base/LifeWatch.h>
#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/CellCalls.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/UserValue.h>

namespace oxecad_ui {

using toolkit::kNoColor;

int CompareColorTree::CellSelectCB(CompareColorTree* self) {
  if (self == nullptr) return -1;
  self->OnCellSelect();
  return 0;
}

int CompareColorTree::DimCheckActivatedCB(CompareColorTree* self, void* value) {
  if (self == nullptr) return -1;
  self->OnDimCheck(wire::AsIndex(value));
  return 0;
}

int CompareColorTree::ShowModeSelectCB(CompareColorTree* self, void* value) {
  if (self == nullptr) return -1;
  self->OnShowModeSelect(wire::AsIndex(value));
  return 0;
}

void CompareColorTree::OnActivate(const char*) {}
void CompareColorTree::OnCollapse(const char*) {}
void CompareColorTree::OnExpand(const char*) {}
void CompareColorTree::OnSelect(int, char**, int) {}

void CompareColorTree::OnCheck(const char*) {
  if (HasDirtyHandler()) CallDirtyHandler(SetChanged);
}

void CompareColorTree::OnCellSelect() {
  const auto [read, selectedColumn, selectedNode] =
      wire::Retrieve(WidgetOf(*this), wire::kSelectedCellColumn, wire::kSelectedCellNode);
  const std::string column = TextOrEmpty(selectedColumn);
  const std::string node = TextOrEmpty(selectedNode);
  if (column == s_showModeColumn) {
    OfferShowModes(node);
  } else if (column == s_colorAColumn || column == s_colorBColumn || column == s_overlapColumn) {
    AskForColor(node, column);
  }
}

void CompareColorTree::OfferShowModes(const std::string& node) {
  const wire::Widget tree = WidgetOf(*this);
  const wire::Cell cell{node.c_str(), s_showModeColumn};
  const char* const present = LabelToShowModeName(CellLabel(cell.node, cell.column));
  if (!wire::SetCell(tree, cell, wire::kCellControl(s_showModeMenu))) return;
  if (!wire::SetCellControl(tree, cell, wire::kSelectedItem(present))) return;
  const unsigned long long index = GetIndex(cell.node);
  if (index >= m_nodes.size()) return;
  const wire::Widget menu{GetDevice(), s_showModeMenu};
  wire::SetAction<&CompareColorTree::ShowModeSelectCB>(menu, wire::Reason::Select, this, index);
}

void CompareColorTree::AskForColor(const std::string& node, const std::string& column) {
  const unsigned int present = LabelToColor(CellLabel(node.c_str(), column.c_str()));
  oxcore::ColorPickerDlg dialog(m_mainframe, std::wstring());
  const LifeWatch<Component> watch(*this);
  const unsigned int chosen = dialog.ShowDialog(present);
  assert(watch.IsAlive() && "the tree was destroyed while its colour picker was open");
  if (chosen != kNoColor) {
    ParentColorChanged(node.c_str(), chosen, column.c_str());
    ChildColorChanged(GetParent(node.c_str()).c_str(), column.c_str());
  }
  // A cancelled dialog ends like any other: the owner is told.
  wire::Modify(WidgetOf(*this), wire::kSelectedCellColumn(""), wire::kSelectedCellNode(""));
  NotifyNode(node, ValueChanged);
}

void CompareColorTree::OnDimCheck(unsigned long long index) {
  if (index >= m_nodes.size()) return;
  const std::string node = m_nodes[index];
  ParentDimChanged(node.c_str(), DimState(node.c_str()));
  ChildDimChanged(GetParent(node.c_str()).c_str());
  NotifyNode(node, ValueChanged);
}

void CompareColorTree::OnShowModeSelect(unsigned long long index) {
  if (index >= m_nodes.size()) return;
  const std::string node = m_nodes[index];
  const wire::Widget tree = WidgetOf(*this);
  const wire::Cell cell{node.c_str(), s_showModeColumn};
  // Read before the menu leaves the cell and takes its choice along.
  const std::string chosen = TextOrEmpty(wire::GetCellControl(tree, cell, wire::kSelectedItem));
  wire::SetCell(tree, cell, wire::kCellControl(""));
  if (chosen.empty() || chosen == s_noShowMode) return;
  ParentShowModeChanged(node.c_str(), ShowModeNameToValue(chosen.c_str()));
  ChildShowModeChanged(GetParent(node.c_str()).c_str());
  NotifyNode(node, ValueChanged);
}

}  // namespace oxecad_ui
