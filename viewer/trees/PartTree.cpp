#include <viewer/trees/ComponentTree.h>
#include <viewer/trees/Markup.h>
#include <viewer/trees/NaturalNames.h>
#include <viewer/trees/NodeName.h>
#include <viewer/trees/PartKinds.h>
#include <viewer/trees/PartTree.h>
#include <viewer/trees/TextSearch.h>
#include <viewer/trees/TreeTexts.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <utility>

#include <oxecadutils/StringConversion.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxviewer {
namespace {

using oxecadutils::Utf8ToWideStr;
namespace wire = oxecad_ui::wire;
using DataNodeInfo = oxecad_ui::UserDataTree::DataNodeInfo;

constexpr const char* kRoot = "root";
constexpr const char* kLeafType = "part";
constexpr const char* kKindType = "partkind";

std::string KindNode(std::size_t kind) { return "kind:" + std::to_string(kind); }

// A branch's label before anything is counted.
std::wstring BranchLabel(const char* name) { return L"<b>" + WideTreeText(name) + L" (0)</b>"; }

std::wstring PartLabel(const Component& component) {
  std::wstring label = EscapedMarkup(Utf8ToWideStr(ComponentLabel(component)));
  if (!component.value.empty()) label += L"  " + EscapedMarkup(Utf8ToWideStr(component.value));
  return label;
}

std::vector<std::size_t> NaturalOrderOf(const Board& board) {
  const NameOrder natural = NaturalNameOrder();
  std::vector<std::wstring> labels;
  for (const Component& component : board.components) labels.push_back(natural.widen(ComponentLabel(component)));
  std::vector<std::size_t> order(labels.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return natural.less(labels[a], labels[b]); });
  return order;
}

template <class Record>
void Append(oxecad_ui::Tree::TreeInfo& records, Record record) {
  auto owned = std::make_unique<Record>(std::move(record));
  records.records.push_back(owned.get());
  owned.release();
}

}  // namespace

// Walks branches, whose data is a number, and takes leaves, whose data is a component.
class PartTree::LeavesOnly : public NodeFilter {
 public:
  Result operator()(const Tree* tree, const char* node) const override {
    return tree && tree->GetNodeType(node) == kLeafType ? Accept : SkipNode;
  }
  Result operator()(const NodeInfo& info) const override { return info.type == kLeafType ? Accept : SkipNode; }
};

PartTree::PartTree(const char* device, const Board& board)
    : UserDataTree(device, kName, kLeafType),
      board_(board),
      nodes_(ComponentNodeNames(board)),
      order_(NaturalOrderOf(board)) {}

PartTree::~PartTree() { UserDataTree::Clear(); }

void PartTree::Fill() {
  Init();
  SetFilter(TextTest());
}

bool PartTree::PassesFilter(const oxviewer::Component& component) const {
  return !filter_ || filter_(component.reference) || filter_(component.value) || filter_(component.footprint);
}

// A record places its node at most two levels deep by its name, and these names hold no '/': all parts first come below
// the root and are then moved to their kinds.
void PartTree::AddRecords(TreeInfo& records) const {
  DataNodeInfo root;
  root.name = kRoot;
  root.label = BranchLabel("Components");
  root.type = kKindType;
  root.expanded = true;
  Append(records, root);
  std::vector<bool> used(PartKindCount(), false);
  for (const auto& component : board_.components) {
    if (PassesFilter(component)) used[PartKindOf(component.reference)] = true;
  }
  for (std::size_t kind = 0; kind < used.size(); ++kind) {
    if (!used[kind]) continue;
    DataNodeInfo branch;
    branch.name = KindNode(kind);
    branch.label = BranchLabel(PartKindName(kind));
    branch.type = kKindType;
    branch.expanded = filter_ != nullptr || expanded_.count(branch.name) > 0;
    Append(records, branch);
  }
  for (const std::size_t position : order_) {
    const oxviewer::Component& component = board_.components[position];
    if (!PassesFilter(component)) continue;
    DataNodeInfo leaf;
    leaf.name = nodes_[position];
    leaf.label = PartLabel(component);
    leaf.type = kLeafType;
    leaf.data = const_cast<oxviewer::Component*>(&component);
    Append(records, leaf);
  }
}

void PartTree::RememberExpanded() {
  expanded_.clear();
  for (std::size_t kind = 0; kind < PartKindCount(); ++kind) {
    if (GetNodeExpanded(KindNode(kind).c_str())) expanded_.insert(KindNode(kind));
  }
}

void PartTree::SetFilter(std::string_view text) {
  SetFilter(text.empty() ? TextTest() : HoldingText(std::string(text)));
}

void PartTree::SetFilter(TextTest test) {
  if (!filter_) RememberExpanded();
  filter_ = std::move(test);
  TreeInfo records;
  AddRecords(records);
  SetRedraw(false);
  Set(records);
  SetRedraw(false);  // `Set` has switched it on again
  for (const std::size_t position : order_) {
    const oxviewer::Component& component = board_.components[position];
    if (!PassesFilter(component)) continue;
    const std::string& leaf = nodes_[position];
    MoveNodeBefore(leaf.c_str(), KindNode(PartKindOf(component.reference)).c_str(), nullptr);
    OnLeafAdded(leaf.c_str());
  }
  SelectAgain();
  SetRedraw(true);
}

// The nodes are new ones: those that were selected and are there again are selected again.
void PartTree::SelectAgain() {
  std::vector<std::string> nodes;
  for (const std::string& node : selectedNodes_) {
    if (wire::SetNode(oxecad_ui::WidgetOf(*this), node.c_str(), wire::kNodeHighlighted(1))) nodes.push_back(node);
  }
  const std::vector<const oxviewer::Component*> before = selected_;
  TakeSelection(nodes);
  if (selected_ != before && onSelection_) onSelection_();
}

void PartTree::RestoreSelection(const std::vector<std::string>& nodes) {
  for (const std::string& node : selectedNodes_) {
    wire::SetNode(oxecad_ui::WidgetOf(*this), node.c_str(), wire::kNodeHighlighted(0));
  }
  selectedNodes_ = nodes;
  SelectAgain();
}

std::vector<const oxviewer::Component*> PartTree::Shown() const {
  std::vector<void*> data;
  GetData(data, nullptr, false, LeavesOnly());
  std::vector<const oxviewer::Component*> components;
  for (void* component : data) components.push_back(static_cast<const oxviewer::Component*>(component));
  return components;
}

void PartTree::OnActivate(const char* node) {
  void* data = nullptr;
  if (GetNodeType(node) != kLeafType || !GetNodeData(node, data) || !data) return;
  if (onActivation_) onActivation_(*static_cast<const oxviewer::Component*>(data));
}

void PartTree::OnSelect(int count, char** nodes, int /*kind*/) {
  selectedNodes_.assign(nodes, nodes + count);
  TakeSelection(selectedNodes_);
  if (onSelection_) onSelection_();
}

void PartTree::TakeSelection(const std::vector<std::string>& nodes) {
  std::vector<void*> data;
  for (const std::string& node : nodes) {
    void* own = nullptr;
    if (GetNodeType(node.c_str()) != kLeafType) {
      GetBranchData(node.c_str(), data, nullptr, LeavesOnly());
    } else if (GetNodeData(node.c_str(), own) && own) {
      data.push_back(own);
    }
  }
  std::sort(data.begin(), data.end());
  data.erase(std::unique(data.begin(), data.end()), data.end());
  selected_.clear();
  for (void* component : data) selected_.push_back(static_cast<const oxviewer::Component*>(component));
}

}  // namespace oxviewer
