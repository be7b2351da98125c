/// \file
/// The nodes of this toolkit's trees.
#ifndef OXECAD_TESTS_PACKAGE_OTHER_TOOLKIT_NODES_H
#define OXECAD_TESTS_PACKAGE_OTHER_TOOLKIT_NODES_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace other_toolkit {

struct Node {
  std::string parent;
  std::string type;
  std::wstring label;
  std::wstring text2;
  std::map<int, std::intptr_t> numbers;  ///< by attribute
  std::vector<std::string> children;
};

/// The nodes of one tree by name. A node without a parent in the tree is a root.
class Nodes {
 public:
  Node* Find(const char* name);
  /// Adds a node before a sibling (null or unknown: at the end); null when the name is taken, or the parent is named
  /// and not there.
  Node* Add(const char* name, const char* parent, const char* before);
  bool Delete(const std::string& name);
  bool Move(const char* name, const char* parent, const char* before);
  /// The first root's name, empty when there is none. Good until the next change.
  const std::string& Root() const;

 private:
  std::vector<std::string>& Siblings(const std::string& parent);
  void Place(const std::string& name, const std::string& parent, const char* before);

  std::map<std::string, Node> nodes_;
  std::vector<std::string> roots_;
};

/// The nodes of a component; a tree comes into being when it is named first.
Nodes& NodesOf(const char* device, const char* component);

}  // namespace other_toolkit

#endif
