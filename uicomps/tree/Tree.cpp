#include <uicomps/tree/Tree.h>

#include <cassert>
#include <cstdint>

#include <oxecadutils/StringConversion.h>

#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/Lent.h>
#include <uicomps/tree/SortedNames.h>

namespace oxecad_ui {

Tree::Tree(const char* device, const char* name) : BaseTree(device, name) {}

Tree::Tree(const Tree& other)
    : BaseTree(other),
      m_dirtyHandler(other.m_dirtyHandler),
      m_client1(other.m_client1),
      m_client2(other.m_client2),
      m_allowActivate(other.m_allowActivate) {
  for (const auto& [parent, names] : other.m_childNames) {
    m_childNames.emplace(parent, std::make_unique<SortedNames>(*names));
  }
}

Tree& Tree::operator=(const Tree& other) {
  if (this == &other) return *this;
  ChildNameCache childNames;
  for (const auto& [parent, names] : other.m_childNames) {
    childNames.emplace(parent, std::make_unique<SortedNames>(*names));
  }
  BaseTree::operator=(other);
  m_childNames = std::move(childNames);
  m_dirtyHandler = other.m_dirtyHandler;
  m_client1 = other.m_client1;
  m_client2 = other.m_client2;
  m_allowActivate = other.m_allowActivate;
  return *this;
}

Tree::~Tree() { wire::RemoveAction<&Tree::CheckCB>(WidgetOf(*this), wire::Reason::Check); }

void Tree::Init() {
  BaseTree::Init();
  wire::AddAction<&Tree::CheckCB>(WidgetOf(*this), wire::Reason::Check, this);
}

int Tree::CheckCB(Tree* self) {
  if (self == nullptr) return -1;
  const auto [read, node] = wire::Retrieve(WidgetOf(*self), wire::kCheckedNode);
  if (node != nullptr) self->OnCheck(node);
  return read.code;
}

void Tree::OnCheck(const char*) {
  if (HasDirtyHandler()) CallDirtyHandler(ValueChanged);
}

void Tree::SetOnDirtyHandler(DirtyHandler handler, void* client1, void* client2) {
  m_dirtyHandler = handler;
  m_client1 = client1;
  m_client2 = client2;
}

void Tree::SetAllowActivate(bool allow) { m_allowActivate = allow; }

void Tree::CallDirtyHandler(DirtyReason reason) const {
  assert(m_dirtyHandler != nullptr && "this kind of tree needs a dirty handler: see SetOnDirtyHandler");
  m_dirtyHandler(m_client1, reinterpret_cast<void*>(static_cast<std::intptr_t>(reason)));
}

void Tree::NotifyNode(const std::string& node, DirtyReason reason) const {
  if (!HasDirtyHandler()) return;
  if (std::vector<std::string>* changed = ChangedNodes()) {
    std::vector<std::string> onlyThisNode{node};  // the name may stand in the list itself
    changed->swap(onlyThisNode);
  }
  CallDirtyHandler(reason);
}

std::vector<std::string>* Tree::ChangedNodes() const { return static_cast<std::vector<std::string>*>(m_client2); }

void Tree::NodeInfoToNames(const NodeInfo& info, std::string& parent, std::wstring& label) {
  std::string rest;
  DivideName(info.name, rest, parent);
  label = !info.label.empty() ? info.label : oxecadutils::Utf8ToWideStr(rest);
}

bool Tree::AddNode(const NodeInfo& info) {
  std::string parent;
  std::wstring label;
  NodeInfoToNames(info, parent, label);
  return FinishAdding(BaseTree::AddNode(info.name.c_str(), label.c_str(), parent.c_str(), info.type.c_str(), L"", 1,
                                        info.expanded, 0, nullptr),
                      info);
}

bool Tree::AddNodeBefore(const NodeInfo& info, const char* before) {
  std::string parent;
  std::wstring label;
  NodeInfoToNames(info, parent, label);
  return FinishAdding(BaseTree::AddNodeBefore(info.name.c_str(), label.c_str(), parent.c_str(), before,
                                              info.type.c_str(), L"", 1, info.expanded, 0, nullptr),
                      info);
}

bool Tree::FinishAdding(bool added, const NodeInfo& info) const {
  if (added) SetNodeState(info.name.c_str(), info.state);
  return added;
}

bool Tree::GetNodeInfo(const char* node, NodeInfo& info) const {
  if (IsEmpty(node)) return false;
  FillNodeInfo(node, info);
  return true;
}

Tree::NodeInfo* Tree::GetNodeInfo(const char* node) const {
  if (IsEmpty(node)) return nullptr;
  auto info = std::make_unique<NodeInfo>();
  FillNodeInfo(node, *info);
  return info.release();
}

void Tree::FillNodeInfo(const char* node, NodeInfo& info) const {
  info.name = node;
  info.label = wire::LentLabel(WidgetOf(*this), node).View();
  info.state = GetNodeState(node);
  info.type = wire::LentType(WidgetOf(*this), node).View();
  info.expanded = GetNodeExpanded(node);
}

}  // namespace oxecad_ui
