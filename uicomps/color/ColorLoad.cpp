#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <uicomps/base/NoRedraw.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/toolkit/ChildNames.h>
#include <uicomps/toolkit/UserValue.h>
#include <uicomps/tree/BranchSummaries.h>

namespace oxecad_ui {

using toolkit::kNoColor;

/// One load of many nodes; knows how colours sum up.
class ColorLoad {
 public:
  using Value = unsigned int;
  using Tally = ValueCounts<unsigned int>;

  explicit ColorLoad(ColorTree& tree) : m_tree(tree), m_branches(*this) {}

  bool Add(const ColorTree::ColorNodeInfo& info) {
    std::string parent;
    std::wstring label;
    Tree::NodeInfoToNames(info, parent, label);
    if (ColorTree::IsColorless(info.type)) {
      const bool added = m_tree.Tree::AddNode(info);
      if (added) m_branches.CountIfKnown(parent, info.name.c_str());
      return added;
    }
    if (parent.empty()) return m_tree.AddNode(info);
    auto& branch = m_branches.Enter(parent);
    const bool added = m_tree.BaseTree::AddNode(info.name.c_str(), label.c_str(), parent.c_str(), TypeOf(info.color),
                                                L"", 1, info.expanded, 0, wire::AsUserData(info.color));
    if (added) m_branches.Count(branch, info.color);
    m_branches.Update(branch);
    if (added) {
      m_tree.SetNodeState(info.name.c_str(), info.state);
    } else {
      m_branches.ForgetIfEmpty(branch);
    }
    return added;
  }

  void Finish() { m_branches.Write(); }

  Value Read(const char* node) const { return m_tree.GetNodeColor(node); }
  std::string ReadParent(const char* node) const { return m_tree.GetParent(node); }
  template <class Visit>
  void ForEachChild(const char* node, const Visit& visit) const {
    for (const char* child : wire::ChildNames(WidgetOf(m_tree), node)) visit(child);
  }
  bool Summarize(const Tally& tally, Value& value) const {
    const unsigned int summary = tally.IsOne() ? tally.One() : kNoColor;
    if (summary == value) return false;
    value = summary;
    return true;
  }
  void Write(const char* node, Value value) const { m_tree.SetNodeColor(node, value); }

 private:
  /// A colour's type is looked for once. One that could not be made is tried again, as it may have become possible.
  const char* TypeOf(unsigned int color) {
    const auto found = m_types.find(color);
    if (found != m_types.end()) return found->second;
    const char* const type = m_tree.GetType(color);
    // Texts, not addresses: a constant may have one in each file.
    if (std::string_view(type) != ColorTree::s_mixType) m_types.emplace(color, type);
    return type;
  }

  ColorTree& m_tree;
  BranchSummaries<ColorLoad> m_branches;
  std::unordered_map<unsigned int, const char*> m_types;
};

std::vector<bool> ColorTree::AddNodes(const std::vector<ColorNodeInfo>& infos) {
  std::vector<bool> added;
  if (infos.empty()) return added;
  added.reserve(infos.size());
  const NoRedraw noRedraw(*this);
  ColorLoad load(*this);
  for (const ColorNodeInfo& info : infos) added.push_back(load.Add(info));
  load.Finish();
  return added;
}

}  // namespace oxecad_ui
