#include <uicomps/color/EcadTree.h>

#include <algorithm>
#include <set>
#include <string_view>

#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui {

namespace {

using ObjectSet = std::set<void*>;

/// The kind of a selection that was changed one node at a time.
constexpr int kOneNodeToggled = 2;

bool IsSelectAll(std::string_view node) {
  constexpr std::string_view kPrefix = "SelAll_";
  return node.substr(0, kPrefix.size()) == kPrefix;
}

std::vector<std::string> CopyNames(int count, char** nodes) {
  std::vector<std::string> names;
  for (const char* name : wire::Names{nodes != nullptr ? count : 0, nodes}) {
    if (name != nullptr) names.emplace_back(name);
  }
  return names;
}

/// The tree's current node; null when there is none.
const char* CurrentNode(const wire::Widget& tree) {
  const auto [read, node] = wire::Retrieve(tree, wire::kActivatedNode);
  return node;
}

}  // namespace

EcadTree::EcadTree(const char* device, const char* name) : Tree(device, name) {}

EcadTree::EcadTree(const EcadTree&) = default;

EcadTree& EcadTree::operator=(const EcadTree&) = default;

EcadTree::~EcadTree() = default;

void* EcadTree::GetNodeData(const char* node) const {
  const auto [read, object] = wire::InquireNode(WidgetOf(*this), node, wire::kNodeUserData);
  return object;
}

void EcadTree::OnActivate(const char*) {
  const wire::Widget tree = WidgetOf(*this);
  if (const char* node = CurrentNode(tree)) {
    const auto [read, expanded] = wire::QueryNode(tree, node, wire::kAddExpanded);
    if (expanded == 0) wire::ExpandNode(tree, node, wire::ExpandDepth::Node);
  }
  CallDirtyHandler(ValueChanged);
}

void EcadTree::OnSelect(int count, char** nodes, int kind) {
  if (auto* objects = static_cast<ObjectSet*>(SecondClient())) {
    const std::vector<std::string> selected = CopyNames(count, nodes);  // the selection goes while it is walked
    std::vector<std::string> deselected;
    if (kind == kOneNodeToggled) {
      deselected = JustDeselected(selected);
    } else {
      objects->clear();
    }
    const auto insertObject = [&](const std::string& node) {
      if (void* object = GetNodeData(node.c_str())) objects->insert(object);
    };
    for (const std::string& node : selected) {
      if (IsSelectAll(node)) {
        std::vector<std::string> children;
        GetChildren(node.c_str(), children);
        std::for_each(children.begin(), children.end(), insertObject);
        TakeOutOfSelection(node.c_str());
      } else {
        insertObject(node);
      }
    }
    for (auto node = deselected.rbegin(); node != deselected.rend(); ++node) {
      if (void* object = GetNodeData(node->c_str())) objects->erase(object);
      TakeOutOfSelection(node->c_str());
    }
  }
  CallDirtyHandler(SetChanged);
}

std::vector<std::string> EcadTree::JustDeselected(const std::vector<std::string>& selected) const {
  const char* const current = CurrentNode(WidgetOf(*this));
  if (current == nullptr || std::find(selected.begin(), selected.end(), current) != selected.end()) return {};
  std::vector<std::string> deselected;
  if (IsSelectAll(current)) {
    GetChildren(current, deselected);
  } else {
    deselected.emplace_back(current);
  }
  return deselected;
}

void EcadTree::TakeOutOfSelection(const char* node) const {
  wire::SetNode(WidgetOf(*this), node, wire::kNodeHighlighted(0));
}

}  // namespace oxecad_ui
