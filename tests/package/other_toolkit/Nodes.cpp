#include "Nodes.h"

#include <algorithm>

namespace other_toolkit {

Node* Nodes::Find(const char* name) {
  const auto found = nodes_.find(name != nullptr ? name : "");
  return found == nodes_.end() ? nullptr : &found->second;
}

std::vector<std::string>& Nodes::Siblings(const std::string& parent) {
  const auto found = nodes_.find(parent);
  return found == nodes_.end() ? roots_ : found->second.children;
}

void Nodes::Place(const std::string& name, const std::string& parent, const char* before) {
  std::vector<std::string>& siblings = Siblings(parent);
  const auto place = before != nullptr ? std::find(siblings.begin(), siblings.end(), before) : siblings.end();
  siblings.insert(place, name);
  nodes_[name].parent = parent;
}

Node* Nodes::Add(const char* name, const char* parent, const char* before) {
  const std::string above = parent != nullptr ? parent : "";
  if (name == nullptr || Find(name) != nullptr || (!above.empty() && Find(parent) == nullptr)) return nullptr;
  nodes_.emplace(name, Node());
  Place(name, above, before);
  return Find(name);
}

bool Nodes::Delete(const std::string& name) {
  Node* const node = Find(name.c_str());
  if (node == nullptr) return false;
  for (const std::string& child : std::vector<std::string>(node->children)) Delete(child);
  std::vector<std::string>& siblings = Siblings(node->parent);
  siblings.erase(std::find(siblings.begin(), siblings.end(), name));
  nodes_.erase(name);
  return true;
}

bool Nodes::Move(const char* name, const char* parent, const char* before) {
  Node* const node = Find(name);
  if (node == nullptr || Find(parent) == nullptr) return false;
  std::vector<std::string>& siblings = Siblings(node->parent);
  siblings.erase(std::find(siblings.begin(), siblings.end(), name));
  Place(name, parent, before);
  return true;
}

const std::string& Nodes::Root() const {
  static const std::string none;
  return roots_.empty() ? none : roots_.front();
}

Nodes& NodesOf(const char* device, const char* component) {
  static std::map<std::pair<std::string, std::string>, Nodes> trees;
  return trees[{device, component}];
}

}  // namespace other_toolkit
