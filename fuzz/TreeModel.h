/// \file
/// What a tree has to hold, by the plainest means.
#ifndef OXECAD_FUZZ_TREEMODEL_H
#define OXECAD_FUZZ_TREEMODEL_H

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace fuzz {

/// Nodes by their names; a root's parent is the empty name.
class TreeModel {
 public:
  struct Node {
    std::string parent;
    std::wstring label;
    std::string type;
    std::vector<std::string> children;
    unsigned state = 0;
    unsigned number = 0;  ///< the user data as a number: a colour, or a total
  };

  bool Has(const std::string& name) const { return nodes_.count(name) != 0; }
  Node& At(const std::string& name) { return nodes_.at(name); }
  const std::map<std::string, Node>& Nodes() const { return nodes_; }
  std::vector<std::string>& Children(const std::string& parent) {
    return parent.empty() ? roots_ : nodes_.at(parent).children;
  }
  bool IsWithin(std::string node, const std::string& above) const {
    for (; !node.empty(); node = nodes_.at(node).parent) {
      if (node == above) return true;
    }
    return false;
  }
  std::string ParentOf(const std::string& name) const {
    const auto found = nodes_.find(name);
    return found == nodes_.end() ? std::string() : found->second.parent;
  }
  std::string FirstRoot() const { return roots_.empty() ? std::string() : roots_.front(); }

  /// `before` empty or no child of the parent: at the end.
  void Add(const std::string& name, const std::string& parent, const std::string& before, Node node) {
    node.parent = parent;
    nodes_[name] = std::move(node);
    Place(name, parent, before);
  }
  void Delete(const std::string& name) {
    const std::vector<std::string> children = nodes_.at(name).children;
    for (const std::string& child : children) Delete(child);
    Unplace(name);
    nodes_.erase(name);
  }
  void Move(const std::string& name, const std::string& parent, const std::string& before) {
    Unplace(name);
    nodes_.at(name).parent = parent;
    Place(name, parent, before);
  }

  // --- Colours -------------------------------------------------------------------------------------------------------

  void GiveColor(const std::string& name, unsigned color) {
    for (const std::string& child : nodes_.at(name).children) GiveColor(child, color);
    SetColor(name, color);
  }
  void SumColorsUp(std::string name) {
    for (; !name.empty() && Has(name); name = nodes_.at(name).parent) {
      const Node& node = nodes_.at(name);
      if (node.children.empty()) return;
      unsigned common = nodes_.at(node.children.front()).number;
      for (const std::string& child : node.children) {
        if (nodes_.at(child).number != common) common = 0xFFFFFFFFu;
      }
      if (node.number == common) return;
      SetColor(name, common);
    }
  }

 private:
  void SetColor(const std::string& name, unsigned color) {
    nodes_.at(name).number = color;
    nodes_.at(name).type = color == 0xFFFFFFFFu ? "mix" : "color_square.png_" + std::to_string(color);
  }
  void Place(const std::string& name, const std::string& parent, const std::string& before) {
    std::vector<std::string>& row = Children(parent);
    row.insert(before.empty() ? row.end() : std::find(row.begin(), row.end(), before), name);
  }
  void Unplace(const std::string& name) {
    std::vector<std::string>& row = Children(nodes_.at(name).parent);
    row.erase(std::find(row.begin(), row.end(), name));
  }

  std::map<std::string, Node> nodes_;
  std::vector<std::string> roots_;
};

}  // namespace fuzz

#endif
