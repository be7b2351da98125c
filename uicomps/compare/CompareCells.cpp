#include <uicomps/base/WidgetOf.h>
#include <uicomps/compare/ColorLabel.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/toolkit/CellCalls.h>

namespace oxecad_ui {

const wchar_t* CompareColorTree::CellLabel(const char* node, const char* column) const {
  return wire::CellLabel(WidgetOf(*this), {node, column});
}

void CompareColorTree::SetCellLabel(const char* node, const char* column, const wchar_t* label) const {
  wire::SetCell(WidgetOf(*this), {node, column}, wire::kCellLabel(label));
}

Tree::NodeState CompareColorTree::DimState(const char* node) const {
  return static_cast<NodeState>(wire::GetCellControl(WidgetOf(*this), {node, s_dimColumn}, wire::kControlCheckState));
}

void CompareColorTree::SetDimState(const char* node, NodeState dim) const {
  wire::SetCellControl(WidgetOf(*this), {node, s_dimColumn}, wire::kControlCheckState(dim));
}

void CompareColorTree::GetNodeInfo(const char* node, unsigned int& colorA, unsigned int& colorB,
                                   unsigned int& colorOverlap, ShowMode& showMode, NodeState& dim,
                                   DesignFlag& designFlag) const {
  showMode = LabelToShowMode(CellLabel(node, s_showModeColumn));
  dim = DimState(node);
  // Each label is the toolkit's and gone with the next call.
  const std::wstring labelA = CellLabel(node, s_colorAColumn);
  const std::wstring labelB = CellLabel(node, s_colorBColumn);
  const std::wstring labelOverlap = CellLabel(node, s_overlapColumn);
  colorA = LabelToColor(labelA);
  colorB = LabelToColor(labelB);
  colorOverlap = LabelToColor(labelOverlap);
  designFlag =
      static_cast<DesignFlag>((labelB.empty() ? DesignNone : DesignB) | (labelA.empty() ? DesignNone : DesignA));
}

void CompareColorTree::SetNodeInfo(const char* node, unsigned int colorA, unsigned int colorB,
                                   unsigned int colorOverlap, ShowMode showMode, NodeState dim, DesignFlag designFlag) {
  ColorLabel labelA(colorA);
  ColorLabel labelB(colorB);
  ColorLabel labelOverlap(colorOverlap);
  SetNodeInfo(node, labelA, labelB, labelOverlap, showMode, dim, designFlag);
}

void CompareColorTree::SetNodeInfo(const char* node, ColorLabel& colorA, ColorLabel& colorB, ColorLabel& colorOverlap,
                                   ShowMode showMode, NodeState dim, DesignFlag designFlag) const {
  SetCellLabel(node, s_showModeColumn, ShowModeToLabel(showMode));
  SetDimState(node, dim);
  SetCellLabel(node, s_colorAColumn, (designFlag & DesignA) != 0 ? colorA.Text() : L"");
  SetCellLabel(node, s_colorBColumn, (designFlag & DesignB) != 0 ? colorB.Text() : L"");
  SetCellLabel(node, s_overlapColumn, designFlag == DesignBoth ? colorOverlap.Text() : L"");
}

}  // namespace oxecad_ui
