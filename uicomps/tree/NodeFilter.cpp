#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

namespace {

Tree::NodeFilter::Result TakeChecked(Tree::NodeState state) {
  switch (state) {
    case Tree::Checked:
      return Tree::NodeFilter::Accept;
    case Tree::Unchecked:
      return Tree::NodeFilter::SkipBranch;
    case Tree::PartlyChecked:
      break;
  }
  return Tree::NodeFilter::SkipNode;
}

}  // namespace

Tree::NodeFilter::NodeFilter(const NodeFilter&) = default;

Tree::NodeFilter& Tree::NodeFilter::operator=(const NodeFilter&) = default;

Tree::NodeFilter::~NodeFilter() = default;

Tree::NodeFilter::Result Tree::Everything::operator()(const Tree*, const char*) const { return Accept; }

Tree::NodeFilter::Result Tree::Everything::operator()(const NodeInfo&) const { return Accept; }

Tree::NodeFilter::Result Tree::CheckedOnly::operator()(const Tree* tree, const char* node) const {
  return tree != nullptr ? TakeChecked(tree->GetNodeState(node)) : SkipNode;
}

Tree::NodeFilter::Result Tree::CheckedOnly::operator()(const NodeInfo& info) const { return TakeChecked(info.state); }

}  // namespace oxecad_ui
