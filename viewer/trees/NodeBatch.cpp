#include <viewer/trees/NodeBatch.h>

namespace oxviewer {

void NodeBatch::AddTo(oxecad_ui::Tree& tree) const {
  std::vector<oxecad_ui::Tree::EcadNode> nodes;
  nodes.reserve(nodes_.size());
  for (const Node& node : nodes_) {
    nodes.push_back({node.name.c_str(), node.label.c_str(), node.parent.c_str(), node.type, node.text2.c_str(), 1,
                     node.expanded, 0, node.data});
  }
  tree.AddEcadNodes(nodes, oxecad_ui::Tree::ByLabel);
}

}  // namespace oxviewer
