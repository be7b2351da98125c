#include <uicomps/compare/CompareColorTree.h>

#include <algorithm>
#include <limits>
#include <memory>

#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/CellCalls.h>
#include <uicomps/toolkit/Lent.h>

namespace oxecad_ui {

namespace {

/// In the order of the menu.
constexpr const char* kShowModeItems[] = {"none",     "both_show", "a_show",    "b_show",
                                          "a-b_show", "b-a_show",  "diff_show", "overlap_show"};
constexpr const char* kShowModeImages[] = {"",
                                           "ecad_compare_show_both.png",
                                           "ecad_compare_show_a.png",
                                           "ecad_compare_show_b.png",
                                           "ecad_compare_show_a-b.png",
                                           "ecad_compare_show_b-a.png",
                                           "ecad_compare_show_diff.png",
                                           "ecad_compare_show_overlap.png"};
constexpr int kShowModeCount = static_cast<int>(std::size(kShowModeItems));

}  // namespace

CompareColorTree::CompareNodeInfo::CompareNodeInfo(const CompareNodeInfo&) = default;

CompareColorTree::CompareNodeInfo& CompareColorTree::CompareNodeInfo::operator=(const CompareNodeInfo&) = default;

CompareColorTree::CompareNodeInfo::~CompareNodeInfo() = default;

CompareColorTree::CompareColorTree(const char* device, const char* component) : Tree(device, component) {}

CompareColorTree::CompareColorTree(const CompareColorTree&) = default;

CompareColorTree& CompareColorTree::operator=(const CompareColorTree&) = default;

CompareColorTree::~CompareColorTree() {
  const wire::Widget tree = WidgetOf(*this);
  wire::RemoveAction<&CompareColorTree::CellSelectCB>(tree, wire::Reason::CellSelect);
  wire::DestroyControl(tree, s_showModeMenu);
  for (const auto& [node, control] : m_dimControls) wire::DestroyControl(tree, control.c_str());
}

void CompareColorTree::Init(oxcore::Mainframe* mainframe) {
  m_mainframe = mainframe;
  Tree::Init();
  const wire::Widget tree = WidgetOf(*this);
  wire::CreateControl(tree, s_showModeMenu, "OptionMenu", wire::kItemNames(kShowModeItems),
                      wire::kItemImages(kShowModeImages), wire::kVisibleItems(kShowModeCount));
  wire::AddAction<&CompareColorTree::CellSelectCB>(tree, wire::Reason::CellSelect, this);
}

bool CompareColorTree::AddNode(const NodeInfo& info) {
  return Tree::AddNode(info) && SetCheckSensitive(info.name.c_str(), false);
}

bool CompareColorTree::AddNode(const CompareNodeInfo& info) { return Tree::AddNode(info) && OnNodeAdded(info); }

bool CompareColorTree::AddNodeBefore(const CompareNodeInfo& info, const char* before) {
  return Tree::AddNodeBefore(info, before) && OnNodeAdded(info);
}

bool CompareColorTree::OnNodeAdded(const CompareNodeInfo& info) {
  if (!SetUpNode(info)) return false;
  ChangeNodeInfo(info.name.c_str(), info.colorA, info.colorB, info.colorOverlap, info.showMode, info.dim,
                 info.designFlag);
  return true;
}

/// Gives a new node its index, and a check button that tells the index.
bool CompareColorTree::SetUpNode(const CompareNodeInfo& info) {
  const wire::Widget tree = WidgetOf(*this);
  const char* const node = info.name.c_str();
  // The name stays in the list whatever fails behind it, so that no index ever means another node.
  const std::uint64_t index = m_nodes.size();
  m_nodes.push_back(info.name);
  if (!wire::SetNode(tree, node, wire::kNodeUserValue(index))) return false;
  const char* const control = GetDimCheckCtrl(node);
  if (control == nullptr) return false;
  if (!wire::SetCell(tree, {node, s_dimColumn}, wire::kCellControl(control))) return false;
  const wire::Widget checkButton{GetDevice(), control};
  return bool(
      wire::SetAction<&CompareColorTree::DimCheckActivatedCB>(checkButton, wire::Reason::Activate, this, index));
}

const char* CompareColorTree::GetDimCheckCtrl(const char* node) {
  const std::string name = TextOrEmpty(node);
  if (const auto found = m_dimControls.find(name); found != m_dimControls.end()) return found->second.c_str();
  std::string control = name + "_dim";
  std::replace(control.begin(), control.end(), '/', '_');  // a slash has no place in a control's name
  if (!wire::CreateControl(WidgetOf(*this), control.c_str(), "CheckButton")) return nullptr;
  return m_dimControls.emplace(name, std::move(control)).first->second.c_str();
}

unsigned long long CompareColorTree::GetIndex(const char* node) const {
  const auto found = std::find(m_nodes.begin(), m_nodes.end(), TextOrEmpty(node));
  if (found == m_nodes.end()) return std::numeric_limits<unsigned long long>::max();
  return static_cast<unsigned long long>(found - m_nodes.begin());
}

bool CompareColorTree::IsCompareNode(const char* node) const {
  return wire::LentType(WidgetOf(*this), node).View() == s_compareType;
}

Tree::NodeInfo* CompareColorTree::GetNodeInfo(const char* node) const {
  std::unique_ptr<NodeInfo> plain(Tree::GetNodeInfo(node));
  if (plain == nullptr || plain->type != s_compareType) return plain.release();
  auto info = std::make_unique<CompareNodeInfo>();
  static_cast<NodeInfo&>(*info) = *plain;
  GetNodeInfo(node, info->colorA, info->colorB, info->colorOverlap, info->showMode, info->dim, info->designFlag);
  return info.release();
}

Tree::NodeFilter::Result CompareColorTree::ColorNodeFilter::operator()(const Tree* tree, const char* node) const {
  if (tree == nullptr) return StopSiblings;
  return wire::LentType(WidgetOf(*tree), node).View() == s_compareType ? Accept : StopSiblings;
}

Tree::NodeFilter::Result CompareColorTree::ColorNodeFilter::operator()(const NodeInfo& info) const {
  return info.type == s_compareType ? Accept : StopSiblings;
}

}  // namespace oxecad_ui
