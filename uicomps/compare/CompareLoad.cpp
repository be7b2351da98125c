#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include <uicomps/base/NoRedraw.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/toolkit/ChildNames.h>
#include <uicomps/tree/BranchSummaries.h>

namespace oxecad_ui {

namespace {

/// Labels of cells as small numbers; 0 is the empty one.
class LabelTable {
 public:
  using Id = std::size_t;
  static constexpr Id kEmpty = 0;

  LabelTable() { IdOf(std::wstring()); }
  Id IdOf(const std::wstring& label) {
    const auto [found, isNew] = m_ids.try_emplace(label, m_labels.size());
    if (isNew) m_labels.push_back(&found->first);
    return found->second;
  }
  const std::wstring& Label(Id id) const { return *m_labels[id]; }

 private:
  std::unordered_map<std::wstring, Id> m_ids;
  std::vector<const std::wstring*> m_labels;
};

}  // namespace

/// One load of many nodes; knows how compare values sum up. Children count by what their cells show, not by what the
/// labels mean.
class CompareLoad {
 public:
  using Id = LabelTable::Id;
  using ShowMode = CompareColorTree::ShowMode;
  using NodeInfo = CompareColorTree::CompareNodeInfo;

  struct Value {
    Id a = LabelTable::kEmpty;
    Id b = LabelTable::kEmpty;
    Id overlap = LabelTable::kEmpty;
    Id mode = LabelTable::kEmpty;
    Tree::NodeState dim = Tree::Unchecked;
    /// What was written last into the check button, which a heading does not have.
    Tree::NodeState writtenDim = Tree::Unchecked;
    bool isCompareNode = false;
  };

  /// Children count when the first of them is a compare node.
  class Tally {
   public:
    void Add(const Value& child) {
      if (m_first == First::None) m_first = child.isCompareNode ? First::CompareNode : First::Other;
      ForEach(child, [](auto& counts, auto value) { counts.Add(value); });
    }
    void Remove(const Value& child) {
      ForEach(child, [](auto& counts, auto value) { counts.Remove(value); });
    }
    bool IsEmpty() const { return mode.IsEmpty(); }

    ValueCounts<Id> a, b, overlap, mode;
    ValueCounts<std::uint32_t> dim;

   private:
    template <class Visit>
    void ForEach(const Value& child, const Visit& visit) {
      if (m_first != First::CompareNode) return;
      // A child without a label is not in the column's design and has no say.
      if (child.a != LabelTable::kEmpty) visit(a, child.a);
      if (child.b != LabelTable::kEmpty) visit(b, child.b);
      if (child.overlap != LabelTable::kEmpty) visit(overlap, child.overlap);
      visit(mode, child.mode);
      visit(dim, static_cast<std::uint32_t>(child.dim));
    }

    enum class First { None, CompareNode, Other };
    First m_first = First::None;
  };

  explicit CompareLoad(CompareColorTree& tree) : m_tree(tree), m_branches(*this) {}

  bool Add(const NodeInfo& info) {
    std::string parent;
    std::wstring label;
    Tree::NodeInfoToNames(info, parent, label);
    if (parent.empty()) return m_tree.AddNode(info);
    auto& branch = m_branches.Enter(parent);
    if (!m_tree.Tree::AddNode(info)) {
      m_branches.ForgetIfEmpty(branch);
      return false;
    }
    const bool isSetUp = m_tree.SetUpNode(info);
    if (!isSetUp || info.type != CompareColorTree::s_compareType) {
      m_branches.Count(branch, Read(info.name.c_str()));
      return isSetUp;
    }
    Value value;
    value.isCompareNode = true;
    Show(info, value);
    Write(info.name.c_str(), value);
    m_branches.Count(branch, value);
    m_branches.Update(branch);
    return true;
  }

  void Finish() { m_branches.Write(); }

  Value Read(const char* node) {
    Value value;
    value.mode = m_labels.IdOf(m_tree.CellLabel(node, CompareColorTree::s_showModeColumn));
    value.dim = value.writtenDim = m_tree.DimState(node);
    value.a = m_labels.IdOf(m_tree.CellLabel(node, CompareColorTree::s_colorAColumn));
    value.b = m_labels.IdOf(m_tree.CellLabel(node, CompareColorTree::s_colorBColumn));
    value.overlap = m_labels.IdOf(m_tree.CellLabel(node, CompareColorTree::s_overlapColumn));
    value.isCompareNode = m_tree.IsCompareNode(node);
    return value;
  }

  std::string ReadParent(const char* node) const { return m_tree.GetParent(node); }

  template <class Visit>
  void ForEachChild(const char* node, const Visit& visit) const {
    const wire::ChildNames children(WidgetOf(m_tree), node);
    if (children.IsEmpty()) return;
    visit(children[0]);
    if (!m_tree.IsCompareNode(children[0])) return;  // no other has a say
    for (std::size_t index = 1; index < children.Size(); ++index) visit(children[index]);
  }

  bool Summarize(const Tally& tally, Value& value) {
    const NodeInfo present = Meaning(value);
    NodeInfo summary;
    summary.colorA = ColorOf(tally.a);
    summary.colorB = ColorOf(tally.b);
    summary.colorOverlap = ColorOf(tally.overlap);
    summary.showMode = tally.mode.IsOne() ? ModeOf(tally.mode.One()) : ShowMode::Mixed;
    summary.dim = tally.dim.IsOne() ? static_cast<Tree::NodeState>(tally.dim.One()) : Tree::PartlyChecked;
    summary.designFlag = Designs(!tally.a.IsEmpty(), !tally.b.IsEmpty());
    const auto values = [](const NodeInfo& info) {
      return std::tie(info.colorA, info.colorB, info.colorOverlap, info.showMode, info.dim, info.designFlag);
    };
    if (values(summary) == values(present)) return false;
    Show(summary, value);
    return true;
  }

  void Write(const char* node, const Value& value) {
    const auto label = [&](Id id) { return m_labels.Label(id).c_str(); };
    m_tree.SetCellLabel(node, CompareColorTree::s_showModeColumn, label(value.mode));
    m_tree.SetDimState(node, value.writtenDim);
    m_tree.SetCellLabel(node, CompareColorTree::s_colorAColumn, label(value.a));
    m_tree.SetCellLabel(node, CompareColorTree::s_colorBColumn, label(value.b));
    m_tree.SetCellLabel(node, CompareColorTree::s_overlapColumn, label(value.overlap));
  }

 private:
  /// What an unreadable dim state reads as.
  static constexpr Tree::NodeState kNoDim = static_cast<Tree::NodeState>(0xFFFFFFFFu);

  static CompareColorTree::DesignFlag Designs(bool inA, bool inB) {
    return static_cast<CompareColorTree::DesignFlag>((inA ? CompareColorTree::DesignA : 0u) |
                                                     (inB ? CompareColorTree::DesignB : 0u));
  }

  unsigned int ColorOf(const ValueCounts<Id>& labels) {
    if (labels.IsEmpty()) return ColorOf(LabelTable::kEmpty);
    return labels.IsOne() ? ColorOf(labels.One()) : toolkit::kNoColor;
  }
  unsigned int ColorOf(Id label) {
    const auto [found, isNew] = m_colorOf.try_emplace(label);
    if (isNew) found->second = CompareColorTree::LabelToColor(m_labels.Label(label));
    return found->second;
  }
  ShowMode ModeOf(Id label) const { return CompareColorTree::LabelToShowMode(m_labels.Label(label).c_str()); }
  Id LabelOf(unsigned int color) {
    const auto found = m_labelOf.find(color);
    if (found != m_labelOf.end()) return found->second;
    const std::wstring label = CompareColorTree::ColorToLabel(color);
    const Id id = m_labels.IdOf(label);
    // A colour whose icon could not be made is tried again, as it may have become possible.
    if (CompareColorTree::LabelToColor(label) == color) m_labelOf.emplace(color, id);
    return id;
  }

  NodeInfo Meaning(const Value& value) {
    NodeInfo info;
    info.colorA = ColorOf(value.a);
    info.colorB = ColorOf(value.b);
    info.colorOverlap = ColorOf(value.overlap);
    info.showMode = ModeOf(value.mode);
    info.dim = value.dim;
    info.designFlag = Designs(value.a != LabelTable::kEmpty, value.b != LabelTable::kEmpty);
    return info;
  }

  /// Turns a value into what the cells show after the information was written.
  void Show(const NodeInfo& info, Value& value) {
    value.mode = m_labels.IdOf(CompareColorTree::ShowModeToLabel(info.showMode));
    value.writtenDim = info.dim;
    if (value.dim != kNoDim) value.dim = info.dim;
    value.a = (info.designFlag & CompareColorTree::DesignA) != 0 ? LabelOf(info.colorA) : LabelTable::kEmpty;
    value.b = (info.designFlag & CompareColorTree::DesignB) != 0 ? LabelOf(info.colorB) : LabelTable::kEmpty;
    const bool inBoth = info.designFlag == CompareColorTree::DesignBoth;
    value.overlap = inBoth ? LabelOf(info.colorOverlap) : LabelTable::kEmpty;
  }

  CompareColorTree& m_tree;
  LabelTable m_labels;
  std::unordered_map<Id, unsigned int> m_colorOf;
  std::unordered_map<unsigned int, Id> m_labelOf;
  BranchSummaries<CompareLoad> m_branches;
};

std::vector<bool> CompareColorTree::AddNodes(const std::vector<CompareNodeInfo>& infos) {
  std::vector<bool> added;
  if (infos.empty()) return added;
  added.reserve(infos.size());
  const NoRedraw noRedraw(*this);
  CompareLoad load(*this);
  for (const CompareNodeInfo& info : infos) added.push_back(load.Add(info));
  load.Finish();
  return added;
}

}  // namespace oxecad_ui
