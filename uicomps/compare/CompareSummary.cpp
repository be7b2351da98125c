#include <string>
#include <string_view>

#include <uicomps/compare/CompareColorTree.h>

namespace oxecad_ui {

namespace {

/// The label that children of one column have in common, as far as they have been looked at. Children without a label
/// are not in the column's design and have no say.
class CommonLabel {
 public:
  CommonLabel(std::wstring first, const std::wstring& mixLabel)
      : m_label(std::move(first)), m_isMixed(m_label == mixLabel) {}

  void Add(std::wstring_view label) {
    if (label.empty()) return;
    if (m_label.empty()) {
      m_label = label;
    } else if (label != m_label) {
      m_isMixed = true;
    }
  }
  bool IsMixed() const { return m_isMixed; }
  bool IsEmpty() const { return m_label.empty(); }
  const std::wstring& Text() const { return m_label; }

 private:
  std::wstring m_label;
  bool m_isMixed;
};

}  // namespace

std::wstring CompareColorTree::AggregateColor(const Children& children, const char* column) {
  if (children.empty()) return {};
  std::wstring first = CellLabel(children.front().c_str(), column);
  if (children.size() == 1) return first;
  const std::wstring mixLabel = ColorToLabel(0xFFFFFFFFu);
  CommonLabel common(std::move(first), mixLabel);
  for (auto child = children.begin(); child != children.end() && !common.IsMixed(); ++child) {
    common.Add(CellLabel(child->c_str(), column));
  }
  return common.IsMixed() ? mixLabel : common.Text();
}

void CompareColorTree::AggregateShowMode(const Children& children, ShowMode& showMode) {
  if (children.empty()) return;
  const std::wstring first = CellLabel(children.front().c_str(), s_showModeColumn);
  showMode = LabelToShowMode(first.c_str());
  if (children.size() == 1) return;
  if (first == ShowModeToLabel(ShowMode::Mixed)) {
    showMode = ShowMode::Mixed;
    return;
  }
  for (const std::string& child : children) {
    if (first != CellLabel(child.c_str(), s_showModeColumn)) {
      showMode = ShowMode::Mixed;
      return;
    }
  }
}

void CompareColorTree::AggregateDim(const Children& children, NodeState& dim) {
  if (children.empty()) return;
  dim = DimState(children.front().c_str());
  if (children.size() == 1 || dim == PartlyChecked) return;
  for (auto child = children.begin() + 1; child != children.end(); ++child) {
    if (DimState(child->c_str()) != dim) {
      dim = PartlyChecked;
      return;
    }
  }
}

void CompareColorTree::Aggregate(const Children& children, unsigned int& colorA, unsigned int& colorB,
                                 unsigned int& colorOverlap, ShowMode& showMode, NodeState& dim,
                                 DesignFlag& designFlag) {
  if (children.empty()) return;
  const char* const firstChild = children.front().c_str();
  if (children.size() == 1) {
    GetNodeInfo(firstChild, colorA, colorB, colorOverlap, showMode, dim, designFlag);
    return;
  }
  const std::wstring mixLabel = ColorToLabel(0xFFFFFFFFu);
  const std::wstring modeLabel = CellLabel(firstChild, s_showModeColumn);
  const NodeState firstDim = DimState(firstChild);
  CommonLabel labelA(CellLabel(firstChild, s_colorAColumn), mixLabel);
  CommonLabel labelB(CellLabel(firstChild, s_colorBColumn), mixLabel);
  CommonLabel labelOverlap(CellLabel(firstChild, s_overlapColumn), mixLabel);
  bool isOneMode = modeLabel != ShowModeToLabel(ShowMode::Mixed);
  bool isOneDim = firstDim != PartlyChecked;

  // What is mixed already is not read any more, and nothing is read once all is mixed.
  for (auto next = children.begin() + 1; next != children.end(); ++next) {
    const char* const child = next->c_str();
    if (isOneMode) isOneMode = modeLabel == CellLabel(child, s_showModeColumn);
    if (isOneDim) isOneDim = DimState(child) == firstDim;
    if (!labelA.IsMixed()) labelA.Add(CellLabel(child, s_colorAColumn));
    if (!labelB.IsMixed()) labelB.Add(CellLabel(child, s_colorBColumn));
    if (!labelOverlap.IsMixed()) labelOverlap.Add(CellLabel(child, s_overlapColumn));
  }

  const auto colorOf = [](const CommonLabel& label) {
    return label.IsMixed() ? 0xFFFFFFFFu : LabelToColor(label.Text());
  };
  showMode = isOneMode ? LabelToShowMode(modeLabel.c_str()) : ShowMode::Mixed;
  dim = isOneDim ? firstDim : PartlyChecked;
  colorA = colorOf(labelA);
  colorB = colorOf(labelB);
  colorOverlap = colorOf(labelOverlap);
  designFlag =
      static_cast<DesignFlag>((labelB.IsEmpty() ? DesignNone : DesignB) | (labelA.IsEmpty() ? DesignNone : DesignA));
}

}  // namespace oxecad_ui
