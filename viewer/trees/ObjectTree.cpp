#include <viewer/trees/NodeName.h>
#include <viewer/trees/ObjectTree.h>

#include <cstdint>

namespace oxviewer {

ObjectTree::ObjectTree(const char* device, const char* name) : EcadTree(device, name) {
  SetOnDirtyHandler(&ObjectTree::DirtyCB, this, &selected_);
}

ObjectTree::~ObjectTree() { EcadTree::Clear(); }

std::string ObjectTree::SelectAllName(const std::string& text) { return "SelAll_" + EscapedName(text); }

void ObjectTree::OnActivate(const char* node) {
  activated_ = GetNodeData(node);
  EcadTree::OnActivate(node);
}

int ObjectTree::DirtyCB(void* client, void* reason) {
  auto* self = static_cast<ObjectTree*>(client);
  const auto number = reinterpret_cast<std::intptr_t>(reason);
  if (number == ValueChanged && self->onActivation_) self->onActivation_(self->activated_);
  if (number == SetChanged && self->onSelection_) self->onSelection_();
  return 0;
}

}  // namespace oxviewer
