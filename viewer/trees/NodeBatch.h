/// \file
/// Nodes that are added to a tree at once.
#ifndef OXECAD_VIEWER_TREES_NODEBATCH_H
#define OXECAD_VIEWER_TREES_NODEBATCH_H

#include <string>
#include <utility>
#include <vector>

#include <uicomps/tree/Tree.h>

namespace oxviewer {

/// Gathers nodes and owns their texts until they are added, each below its parent in natural order of the labels.
class NodeBatch {
 public:
  struct Node {
    std::string name;
    std::wstring label;
    std::string parent;
    const char* type = "";  ///< not copied
    std::wstring text2;
    int expanded = 0;
    void* data = nullptr;
  };

  void Add(Node node) { nodes_.push_back(std::move(node)); }
  void AddTo(oxecad_ui::Tree& tree) const;

 private:
  std::vector<Node> nodes_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_NODEBATCH_H
