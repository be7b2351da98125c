#include <viewer/trees/NodeName.h>
#include <viewer/trees/ObjectTree.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxviewer {
namespace {

namespace wire = oxecad_ui::wire;

constexpr const char* kSelectAll = "SelAll_";

}  // namespace

ObjectTree::ObjectTree(const char* device, const char* name) : EcadTree(device, name) {
  SetOnDirtyHandler(&ObjectTree::DirtyCB, this, &selected_);
}

ObjectTree::~ObjectTree() { EcadTree::Clear(); }

std::string ObjectTree::SelectAllName(const std::string& text) { return kSelectAll + EscapedName(text); }

void ObjectTree::OnActivate(const char* node) {
  activated_ = GetNodeData(node);
  EcadTree::OnActivate(node);
}

void ObjectTree::RestoreSelection(const std::set<void*>& objects) {
  selected_ = objects;
  if (onSelection_) onSelection_();
}

bool ObjectTree::HoldsAllOf(const std::string& node) const {
  std::vector<std::string> children;
  GetChildren(node.c_str(), children);
  return !children.empty() && std::all_of(children.begin(), children.end(), [this](const std::string& child) {
    return selected_.count(GetNodeData(child.c_str())) > 0;
  });
}

void ObjectTree::OnSelect(int count, char** nodes, int kind) {
  constexpr int kOneAtATime = 2;
  std::vector<std::string> names(nodes, nodes + count);  // those given point into the selection, which is changed here
  if (kind == kOneAtATime) {
    const auto [read, current] = wire::Retrieve(oxecad_ui::WidgetOf(*this), wire::kActivatedNode);
    const std::string node = read && current ? current : "";
    const auto at = std::find(names.begin(), names.end(), node);
    if (at != names.end() && node.starts_with(kSelectAll) && HoldsAllOf(node)) {
      wire::SetNode(oxecad_ui::WidgetOf(*this), node.c_str(), wire::kNodeHighlighted(0));
      names.erase(at);
    }
  }
  std::vector<char*> left;
  for (std::string& name : names) left.push_back(name.data());
  EcadTree::OnSelect(static_cast<int>(left.size()), left.data(), kind);
}

int ObjectTree::DirtyCB(void* client, void* reason) {
  auto* self = static_cast<ObjectTree*>(client);
  const auto number = reinterpret_cast<std::intptr_t>(reason);
  if (number == ValueChanged && self->onActivation_) self->onActivation_(self->activated_);
  if (number == SetChanged && self->onSelection_) self->onSelection_();
  return 0;
}

}  // namespace oxviewer
