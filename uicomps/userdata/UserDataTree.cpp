#include <uicomps/userdata/UserDataTree.h>

#include <algorithm>
#include <charconv>
#include <functional>
#include <limits>
#include <memory>

#include <uicomps/base/NoRedraw.h>
#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/Lent.h>
#include <uicomps/toolkit/UserValue.h>
#include <uicomps/userdata/CountedLabel.h>

namespace oxecad_ui {

namespace {

template <class Number>
std::wstring Digits(Number number) {
  char digits[std::numeric_limits<Number>::digits10 + 2];
  const std::to_chars_result written = std::to_chars(std::begin(digits), std::end(digits), number);
  return std::wstring(std::begin(digits), written.ptr);
}

}  // namespace

UserDataTree::DataNodeInfo::DataNodeInfo(const DataNodeInfo&) = default;

UserDataTree::DataNodeInfo& UserDataTree::DataNodeInfo::operator=(const DataNodeInfo&) = default;

UserDataTree::DataNodeInfo::~DataNodeInfo() = default;

UserDataTree::UserDataTree(const char* device, const char* component, const char* leafType)
    : Tree(device, component), m_leafType(TextOrEmpty(leafType)) {}

UserDataTree::UserDataTree(const UserDataTree&) = default;

UserDataTree& UserDataTree::operator=(const UserDataTree&) = default;

UserDataTree::~UserDataTree() = default;

bool UserDataTree::AddNode(const DataNodeInfo& info) {
  std::string parent;
  std::wstring label;
  NodeInfoToNames(info, parent, label);
  return BaseTree::AddNode(info.name.c_str(), label.c_str(), parent.c_str(), info.type.c_str(), L"", 1, info.expanded,
                           0, info.data) &&
         SetNodeState(info.name.c_str(), info.state);
}

bool UserDataTree::AddNodeBefore(const DataNodeInfo& info, const char* before) {
  std::string parent;
  std::wstring label;
  NodeInfoToNames(info, parent, label);
  return BaseTree::AddNodeBefore(info.name.c_str(), label.c_str(), parent.c_str(), before, info.type.c_str(), L"", 1,
                                 info.expanded, 0, info.data) &&
         SetNodeState(info.name.c_str(), info.state);
}

std::vector<bool> UserDataTree::AddNodes(const std::vector<DataNodeInfo>& infos) {
  std::vector<bool> added;
  if (infos.empty()) return added;
  added.reserve(infos.size());
  const NoRedraw noRedraw(*this);
  for (const DataNodeInfo& info : infos) added.push_back(AddNode(info));
  return added;
}

void UserDataTree::Set(const TreeInfo& info) {
  const NoRedraw noRedraw(*this);
  Clear();
  for (const NodeInfo* record : info.records) {
    if (const auto* dataRecord = dynamic_cast<const DataNodeInfo*>(record)) AddNode(*dataRecord);
  }
}

void UserDataTree::GetData(std::vector<void*>& out, void* ignore, bool unique, const NodeFilter& filter) const {
  const auto [read, root] = wire::Retrieve(WidgetOf(*this), wire::kRootNode);
  const NodeFilter::Result result = filter(this, root);
  if (result == NodeFilter::Accept) TakeData(root, out, ignore);
  if (result == NodeFilter::Accept || result == NodeFilter::SkipNode) GetBranchData(root, out, ignore, filter);
  if (unique) {
    std::sort(out.begin(), out.end(), std::less<void*>());
    out.erase(std::unique(out.begin(), out.end()), out.end());
  }
}

void UserDataTree::GetBranchData(const char* node, std::vector<void*>& out, void* ignore,
                                 const NodeFilter& filter) const {
  if (node == nullptr) return;
  std::vector<std::string> children;
  GetChildren(node, children);
  for (const std::string& child : children) {
    const NodeFilter::Result result = filter(this, child.c_str());
    if (result == NodeFilter::StopSiblings) return;
    if (result == NodeFilter::Accept) TakeData(child.c_str(), out, ignore);
    if (result == NodeFilter::Accept || result == NodeFilter::SkipNode) {
      GetBranchData(child.c_str(), out, ignore, filter);
    }
  }
}

void UserDataTree::TakeData(const char* node, std::vector<void*>& out, const void* ignore) const {
  void* data = nullptr;
  if (GetNodeData(node, data) && data != ignore) out.push_back(data);
}

bool UserDataTree::GetNodeInfo(const char* name, NodeInfo& out) const {
  if (IsEmpty(name)) return false;
  auto* const record = dynamic_cast<DataNodeInfo*>(&out);
  if (record == nullptr) return false;
  _GetNodeInfo(name, record);
  return true;
}

Tree::NodeInfo* UserDataTree::GetNodeInfo(const char* name) const {
  if (IsEmpty(name)) return nullptr;
  auto record = std::make_unique<DataNodeInfo>();
  _GetNodeInfo(name, record.get());
  return record.release();
}

void UserDataTree::_GetNodeInfo(const char* name, DataNodeInfo* out) const {
  out->name = name;
  out->label = GetNodeLabel(name);
  out->data = nullptr;
  GetNodeData(name, out->data);
  out->expanded = GetNodeExpanded(name);
  out->state = GetNodeState(name);
  out->type = GetNodeType(name);
}

void UserDataTree::OnLeafAdded(const char* leaf) const {
  for (std::string branch = GetParent(leaf); !branch.empty(); branch = GetParent(branch.c_str())) {
    void* data = nullptr;
    GetNodeData(branch.c_str(), data);
    const unsigned int total = wire::AsNumber(data) + 1u;
    SetTotal(branch, total, Digits(total));
  }
}

void UserDataTree::UpdateParentTotals(const char* node) const {
  for (std::string branch = GetParent(node); !branch.empty(); branch = GetParent(branch.c_str())) {
    const unsigned int total = CountLeaves(branch.c_str());
    SetTotal(branch, total, Digits(static_cast<int>(total)));
  }
}

unsigned int UserDataTree::CountLeaves(const char* branch) const {
  const wire::Widget tree = WidgetOf(*this);
  wire::Names children;
  GetNodeChildren(branch, &children.count, &children.names);
  unsigned int total = 0;
  for (const char* child : children) {
    if (child == nullptr) continue;
    if (wire::LentType(tree, child).View() == m_leafType) {
      ++total;
    } else {
      void* data = nullptr;
      GetNodeData(child, data);
      total += wire::AsNumber(data);
    }
  }
  return total;
}

void UserDataTree::SetTotal(const std::string& branch, unsigned int total, const std::wstring& digits) const {
  const std::wstring label = CountedLabel(GetNodeLabel(branch.c_str()), digits);
  wire::SetNode(WidgetOf(*this), branch.c_str(), wire::kNodeLabel(label.c_str()), wire::kNodeUserValue(total));
}

}  // namespace oxecad_ui
