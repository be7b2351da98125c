#include <uiox_qt/CheckGesture.h>

#include <uiox/Suite.h>
#include <uiox/UserEvents.h>

#include <algorithm>
#include <string>
#include <utility>

namespace uiox_qt {

using uiox::NodeId;

void CheckGesture::Begin(NodeId node, bool checked) {
  first_ = node;
  nodes_ = {node};
  checked_ = checked;
}

void CheckGesture::Cover(std::vector<NodeId> nodes) {
  std::erase(nodes, first_);
  nodes.insert(nodes.begin(), first_);
  nodes_ = std::move(nodes);
}

bool CheckGesture::Shows(NodeId node, bool& checked) const {
  checked = checked_;
  return std::find(nodes_.begin(), nodes_.end(), node) != nodes_.end();
}

namespace {

/// Finds a tree again after a callback that may have ended it.
class TreeName {
 public:
  explicit TreeName(const uiox::TreeWidget& tree) : device_(tree.Owner().Name()), tree_(tree.Name()) {}
  uiox::TreeWidget* Find() const {
    uiox::Device* device = uiox::Suite::Get().FindDevice(device_);
    return device ? device->FindTree(tree_) : nullptr;
  }

 private:
  std::string device_;
  std::string tree_;
};

void CheckOneByOne(uiox::TreeWidget& tree, const std::vector<NodeId>& nodes, bool checked) {
  const TreeName name(tree);
  for (const NodeId node : nodes) {
    uiox::TreeWidget* alive = name.Find();
    if (alive != &tree) return;
    if (alive->Store().Has(node)) uiox::user::SetChecked(*alive, node, checked);
  }
}

void CheckAsSelection(uiox::TreeWidget& tree, const std::vector<NodeId>& nodes, bool checked) {
  const TreeName name(tree);
  std::vector<NodeId> selected = tree.Store().Selection();
  tree.Store().Select(nodes);
  uiox::user::SetChecked(tree, nodes.front(), checked);
  if (name.Find() != &tree) return;
  std::erase_if(selected, [&](NodeId node) { return !tree.Store().Has(node); });
  tree.Store().Select(selected);
}

}  // namespace

void CheckTogether(uiox::TreeWidget& tree, std::vector<NodeId> nodes, bool checked, CheckRule rule) {
  const uiox::TreeStore& store = tree.Store();
  std::erase_if(nodes, [&](NodeId node) { return !store.Has(node) || !store.CheckSensitive(node); });
  if (nodes.empty()) return;
  if (nodes.size() == 1 || rule == CheckRule::OneByOne) {
    CheckOneByOne(tree, nodes, checked);
  } else {
    CheckAsSelection(tree, nodes, checked);
  }
}

}  // namespace uiox_qt
