#include <string>
#include <tuple>
#include <utility>

#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/compare/ColorLabel.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/toolkit/ChildNames.h>

namespace oxecad_ui {

CompareColorTree::Children CompareColorTree::CompareChildren(const char* node) const {
  Children children;
  GetChildren(node, children);
  if (!children.empty() && !IsCompareNode(children.front().c_str())) children.clear();
  return children;
}

/// Writes the compare branch of a node and then the node itself.
template <class WriteNode>
void CompareColorTree::WriteBranch(const char* node, const WriteNode& writeNode) const {
  if (IsEmpty(node)) return;
  const wire::ChildNames children(WidgetOf(*this), node);
  if (!children.IsEmpty() && IsCompareNode(children[0])) {
    for (const char* child : children) WriteBranch(child, writeNode);
  }
  writeNode(node);
}

/// Updates a node from its compare children, then its ancestors, until one has none or does not change.
template <class UpdateNode>
void CompareColorTree::Climb(const char* node, const UpdateNode& updateNode) const {
  for (std::string ancestor = TextOrEmpty(node); !ancestor.empty(); ancestor = GetParent(ancestor.c_str())) {
    const Children children = CompareChildren(ancestor.c_str());
    if (children.empty() || !updateNode(ancestor.c_str(), children)) return;
  }
}

void CompareColorTree::ChangeNodeInfo(const char* node, unsigned int colorA, unsigned int colorB,
                                      unsigned int colorOverlap, ShowMode showMode, NodeState dim,
                                      DesignFlag designFlag) {
  if (node == nullptr || !IsCompareNode(node)) return;
  ParentInfoChanged(node, colorA, colorB, colorOverlap, showMode, dim, designFlag);
  ChildInfoChanged(GetParent(node).c_str());
}

void CompareColorTree::ChangeNodeInfo(const std::vector<std::string>&) {}

void CompareColorTree::ParentInfoChanged(const char* node, unsigned int colorA, unsigned int colorB,
                                         unsigned int colorOverlap, ShowMode showMode, NodeState dim,
                                         DesignFlag designFlag) {
  ColorLabel labelA(colorA);
  ColorLabel labelB(colorB);
  ColorLabel labelOverlap(colorOverlap);
  WriteBranch(node,
              [&](const char* each) { SetNodeInfo(each, labelA, labelB, labelOverlap, showMode, dim, designFlag); });
}

void CompareColorTree::ParentColorChanged(const char* node, unsigned int color, const char* column) {
  ColorLabel label(color);
  WriteBranch(node, [&](const char* each) { SetCellLabel(each, column, label.Text()); });
}

void CompareColorTree::ParentDimChanged(const char* node, NodeState dim) {
  WriteBranch(node, [&](const char* each) { SetDimState(each, dim); });
}

void CompareColorTree::ParentShowModeChanged(const char* node, ShowMode showMode) {
  WriteBranch(node, [&](const char* each) { SetCellLabel(each, s_showModeColumn, ShowModeToLabel(showMode)); });
}

void CompareColorTree::ChildInfoChanged(const char* node) {
  Climb(node, [&](const char* each, const Children& children) {
    CompareNodeInfo summary;
    Aggregate(children, summary.colorA, summary.colorB, summary.colorOverlap, summary.showMode, summary.dim,
              summary.designFlag);
    CompareNodeInfo present;
    GetNodeInfo(each, present.colorA, present.colorB, present.colorOverlap, present.showMode, present.dim,
                present.designFlag);
    const auto values = [](const CompareNodeInfo& info) {
      return std::tie(info.colorA, info.colorB, info.colorOverlap, info.showMode, info.dim, info.designFlag);
    };
    if (values(summary) == values(present)) return false;
    SetNodeInfo(each, summary.colorA, summary.colorB, summary.colorOverlap, summary.showMode, summary.dim,
                summary.designFlag);
    return true;
  });
}

void CompareColorTree::ChildColorChanged(const char* node, const char* column) {
  Climb(node, [&](const char* each, const Children& children) {
    const std::wstring summary = AggregateColor(children, column);
    if (summary == CellLabel(each, column)) return false;
    SetCellLabel(each, column, summary.c_str());
    return true;
  });
}

void CompareColorTree::ChildDimChanged(const char* node) {
  Climb(node, [&](const char* each, const Children& children) {
    NodeState summary = Unchecked;
    AggregateDim(children, summary);
    if (summary == DimState(each)) return false;
    SetDimState(each, summary);
    return true;
  });
}

void CompareColorTree::ChildShowModeChanged(const char* node) {
  Climb(node, [&](const char* each, const Children& children) {
    ShowMode summary = ShowMode::Both;
    AggregateShowMode(children, summary);
    if (summary == LabelToShowMode(CellLabel(each, s_showModeColumn))) return false;
    SetCellLabel(each, s_showModeColumn, ShowModeToLabel(summary));
    return true;
  });
}

}  // namespace oxecad_ui
