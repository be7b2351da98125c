#include <cassert>
#include <memory>

#include <uicomps/base/LifeWatch.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/Lent.h>
#include <uicomps/tree/Tree.h>

namespace oxecad_ui {

namespace {

/// Hands a record over to its collection, which owns it from now on.
void Append(Tree::TreeInfo& info, std::unique_ptr<Tree::NodeInfo> record) {
  info.records.push_back(record.get());
  static_cast<void>(record.release());
}

}  // namespace

bool Tree::SetNodeState(const char* node, NodeState state) const {
  return bool(wire::SetNode(WidgetOf(*this), node, wire::kNodeCheckState(state)));
}

Tree::NodeState Tree::GetNodeState(const char* node) const {
  const auto [read, partly, checked] =
      wire::InquireNode(WidgetOf(*this), node, wire::kNodePartlyChecked, wire::kNodeCheckState);
  if (partly != 0) return PartlyChecked;
  return checked != 0 ? Checked : Unchecked;
}

bool Tree::SetCheckSensitive(const char* node, bool sensitive) const {
  return bool(wire::SetNode(WidgetOf(*this), node, wire::kNodeSetCheckSensitive(sensitive)));
}

void Tree::SetChildrenCheckSensitive(const char*, bool sensitive) const {
  TreeInfo all;
  GetTreeInfo(all, Everything(), true);
  for (const NodeInfo* record : all.records) SetCheckSensitive(record->name.c_str(), sensitive);
}

int Tree::GetNoOfChildren() const {
  const char* root = wire::RootNode(WidgetOf(*this));
  return root != nullptr ? GetNodeChildCount(root) : 0;
}

int Tree::GetChildren(const char* node, std::vector<std::string>& names) const {
  const wire::LentNames children(WidgetOf(*this), node, wire::Release::WhenNotEmpty);
  names.clear();
  for (const char* name : children) {
    if (name != nullptr) names.emplace_back(name);
  }
  return children.Count();
}

bool Tree::GetChildren(const char* node, std::vector<NodeInfo>& infos) const {
  if (node == nullptr) return false;
  std::vector<std::string> names;
  GetChildren(node, names);
  infos.clear();
  infos.reserve(names.size());
  for (const std::string& name : names) {
    NodeInfo& info = infos.emplace_back();
    if (!GetNodeInfo(name.c_str(), info)) info = NodeInfo();
  }
  return true;
}

int Tree::GetLeaves(const char* node, std::vector<std::string>& leaves) const {
  const wire::Widget tree = WidgetOf(*this);
  if (node == nullptr) node = wire::RootNode(tree);
  if (node == nullptr) return 0;
  const wire::LentNames children(tree, node, wire::Release::WhenNotEmpty);
  if (children.Count() < 1) {
    leaves.emplace_back(node);
    return 1;
  }
  int count = 0;
  for (const char* child : children) {
    if (child != nullptr) count += GetLeaves(child, leaves);
  }
  return count;
}

void Tree::GetBranchInfo(const char* node, TreeInfo& info, const NodeFilter& filter) const {
  if (node == nullptr) return;
  std::vector<std::string> children;
  GetChildren(node, children);
  const LifeWatch<Component> watch(*this);
  for (const std::string& child : children) {
    assert(watch.IsAlive() && "the tree was destroyed by the filter of a walk");
    std::unique_ptr<NodeInfo> record(GetNodeInfo(child.c_str()));
    if (record == nullptr) continue;
    const NodeFilter::Result result = filter(*record);
    if (result == NodeFilter::StopSiblings) return;
    if (result == NodeFilter::Accept) Append(info, std::move(record));
    if (result != NodeFilter::Accept && result != NodeFilter::SkipNode) continue;
    assert(watch.IsAlive() && "the tree was destroyed by the filter of a walk");
    GetBranchInfo(child.c_str(), info, filter);
  }
}

void Tree::GetTreeInfo(TreeInfo& info, const NodeFilter& filter, bool includeRoot) const {
  const char* rootName = wire::RootNode(WidgetOf(*this));
  if (rootName == nullptr) return;
  const std::string root = rootName;
  std::unique_ptr<NodeInfo> record;  // one that is left out lives while its branch is walked
  if (includeRoot) {
    record.reset(GetNodeInfo(root.c_str()));
    if (record == nullptr) return;
    const LifeWatch<Component> watch(*this);
    const NodeFilter::Result result = filter(*record);
    if (result != NodeFilter::Accept && result != NodeFilter::SkipNode) return;
    assert(watch.IsAlive() && "the tree was destroyed by the filter of a walk");
    if (result == NodeFilter::Accept) Append(info, std::move(record));
  }
  GetBranchInfo(root.c_str(), info, filter);
}

void Tree::GetCheckedNodes(TreeInfo& info) const { GetTreeInfo(info, CheckedOnly(), false); }

}  // namespace oxecad_ui
