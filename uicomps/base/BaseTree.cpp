#include <uicomps/base/BaseTree.h>

#include <cassert>
#include <cstring>
#include <string_view>
#include <utility>

#include <uicomps/base/LifeWatch.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/Lent.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui {

namespace {

/// Counts a root as none when its name is empty or begins with a blank: both vanish under the mask.
bool IsRootName(const char* name) {
  constexpr unsigned char kNotBlank = 0xDF;
  return name != nullptr && (static_cast<unsigned char>(name[0]) & kNotBlank) != 0;
}

template <class NameList>
bool Contains(const NameList& names, const char* wanted) {
  for (const char* name : names) {
    if (name != nullptr && wanted != nullptr && std::strcmp(name, wanted) == 0) return true;
  }
  return false;
}

}  // namespace

BaseTree::BaseTree(const char* device, const char* name) : Component(device, name) {}

BaseTree::BaseTree(const BaseTree&) = default;

BaseTree& BaseTree::operator=(const BaseTree&) = default;

BaseTree::~BaseTree() {
  const wire::Widget tree = WidgetOf(*this);
  wire::RemoveAction<&BaseTree::SelectCB>(tree, wire::Reason::Select);
  wire::RemoveAction<&BaseTree::ExpandCB>(tree, wire::Reason::Expand);
  wire::RemoveAction<&BaseTree::CollapseCB>(tree, wire::Reason::Collapse);
  wire::RemoveAction<&BaseTree::ActivateCB>(tree, wire::Reason::Activate);
}

void BaseTree::Init() {
  const wire::Widget tree = WidgetOf(*this);
  wire::AddAction<&BaseTree::ActivateCB>(tree, wire::Reason::Activate, this);
  wire::AddAction<&BaseTree::CollapseCB>(tree, wire::Reason::Collapse, this);
  wire::AddAction<&BaseTree::ExpandCB>(tree, wire::Reason::Expand, this);
  wire::AddAction<&BaseTree::SelectCB>(tree, wire::Reason::Select, this);
}

void BaseTree::Clear() {
  const auto [read, root] = wire::Retrieve(WidgetOf(*this), wire::kRootNode);
  if (IsRootName(root)) DeleteNode(root);
}

void BaseTree::OnActivate(const char*) {}
void BaseTree::OnCollapse(const char*) {}
void BaseTree::OnExpand(const char*) {}
void BaseTree::OnSelect(int, char**, int) {}

bool BaseTree::HasRoot() const {
  const auto [read, root] = wire::Retrieve(WidgetOf(*this), wire::kRootNode);
  return IsRootName(root);
}

void BaseTree::ExpandAll() const {
  const wire::Widget tree = WidgetOf(*this);
  if (const char* root = wire::RootNode(tree)) wire::ExpandNode(tree, root, wire::ExpandDepth::Subtree);
}

void BaseTree::CollapseAll() const {
  const wire::Widget tree = WidgetOf(*this);
  if (const char* name = wire::RootNode(tree)) {
    const std::string root = name;  // the toolkit's own name is good until the first of the two changes
    wire::CollapseNode(tree, root.c_str());
    wire::ExpandNode(tree, root.c_str(), wire::ExpandDepth::Node);
  }
}

void BaseTree::Enable(bool enable) const { wire::Modify(WidgetOf(*this), wire::kSensitive(enable)); }

void BaseTree::SetRedraw(bool redraw) const { wire::Modify(WidgetOf(*this), wire::kRedraw(redraw)); }

unsigned int BaseTree::GetBackgroundColor() const {
  const auto [read, color] = wire::Retrieve(WidgetOf(*this), wire::kBackgroundColor);
  return color;
}

bool BaseTree::AddNode(const char* name, const wchar_t* label, const char* parent, const char* type,
                       const wchar_t* text2, int i1, int i2, int i3, void* data) const {
  return bool(wire::AddNode(WidgetOf(*this), name, label, parent, type, {text2, i1, i2, i3, data}));
}

bool BaseTree::AddNodeBefore(const char* name, const wchar_t* label, const char* parent, const char* before,
                             const char* type, const wchar_t* text2, int i1, int i2, int i3, void* data) const {
  return bool(wire::AddNodeBefore(WidgetOf(*this), name, label, parent, before, type, {text2, i1, i2, i3, data}));
}

bool BaseTree::InsertNode(const char* name, const wchar_t* label, const char* parent, void* data, const char* before,
                          const char* type, const wchar_t* text2, int i1, int i2, int i3) const {
  const wire::Widget tree = WidgetOf(*this);
  if (wire::InsertNode(tree, name, label, parent, before, type, {text2, i1, i2, i3, data})) return true;
  // The toolkit refuses a name that is taken; a child of that name is what was wanted.
  return Contains(wire::LentNames(tree, parent, wire::Release::Always), name);
}

BaseTree::InsertNodeResult BaseTree::InsertNodeSortByName(const char* name, const wchar_t* label, const char* parent,
                                                          Placer placer, void* data, const char* type,
                                                          const wchar_t* text2, int i1, int i2, int i3) const {
  const wire::LentNames children(WidgetOf(*this), parent, wire::Release::AfterSuccess);
  if (!children.GetResult()) return NotInserted;
  const char* before = nullptr;
  const LifeWatch<Component> watch(*this);
  if (!placer(name, children.Count(), children.Data(), before)) return Declined;
  assert(watch.IsAlive() && "the tree was destroyed by the placer of one of its nodes");
  return InsertNode(name, label, parent, data, before, type, text2, i1, i2, i3) ? Inserted : NotInserted;
}

bool BaseTree::DeleteNode(const char* node) const { return bool(wire::DeleteNode(WidgetOf(*this), node)); }

bool BaseTree::MoveNodeBefore(const char* node, const char* parent, const char* before) const {
  return bool(wire::MoveNode(WidgetOf(*this), node, parent, before));
}

bool BaseTree::ModifyNodeLabel(const char* node, const wchar_t* label) const {
  return bool(wire::SetNode(WidgetOf(*this), node, wire::kNodeLabel(label)));
}

std::wstring BaseTree::GetNodeLabel(const char* node) const { return wire::LentLabel(WidgetOf(*this), node).Copy(); }

std::string BaseTree::GetNodeType(const char* node) const { return wire::LentType(WidgetOf(*this), node).Copy(); }

std::string BaseTree::GetParent(const char* node, int* status) const {
  const wire::LentParent parent(WidgetOf(*this), node);
  if (status != nullptr) *status = parent.GetResult().code;
  return parent.Copy();
}

int BaseTree::GetNodeChildCount(const char* node) const { return wire::ChildCount(WidgetOf(*this), node); }

bool BaseTree::GetNodeChildren(const char* node, int* count, char*** children) const {
  const auto [read, list] = wire::InquireNode(WidgetOf(*this), node, wire::kNodeChildren);
  *count = list.count;
  *children = list.names;
  return bool(read);
}

bool BaseTree::GetNodeData(const char* node, void*& data) const {
  const auto [read, value] = wire::GetNode(WidgetOf(*this), node, wire::kNodeUserData);
  if (read) data = value;
  return bool(read);
}

bool BaseTree::GetNodeExpanded(const char* node) const {
  const auto [read, expanded] = wire::GetNode(WidgetOf(*this), node, wire::kNodeExpanded);
  return expanded != 0;
}

bool BaseTree::DoesNotExist(const char* parent, const char* name) const {
  const auto [read, children] = wire::InquireNode(WidgetOf(*this), parent, wire::kNodeChildren);
  return !Contains(children, name);
}

void BaseTree::DivideName(const std::string& full, std::string& rest, std::string& head) {
  constexpr std::string_view kGroups = "groups/";
  // Taken before anything is written: an output may be the input itself.
  std::string restPart = full;
  std::string headPart = full == "root" ? "" : "root";
  if (full.size() >= kGroups.size() && full.find(kGroups) != std::string::npos) {
    restPart = full.substr(kGroups.size());
    headPart = full.substr(0, kGroups.size() - 1);
  } else if (const std::size_t slash = full.find('/'); slash != std::string::npos) {
    restPart = full.substr(slash + 1);
    headPart = full.substr(0, slash);
  }
  rest = std::move(restPart);
  head = std::move(headPart);
}

int BaseTree::ActivateCB(BaseTree* self) {
  if (self == nullptr) return -1;
  const auto [read, node] = wire::Retrieve(WidgetOf(*self), wire::kActivatedNode);
  if (!read) return read.code;
  self->OnActivate(node);
  return 0;
}

int BaseTree::CollapseCB(BaseTree* self) {
  if (self == nullptr) return -1;
  const auto [read, node] = wire::Retrieve(WidgetOf(*self), wire::kToggledNode);
  if (node != nullptr) self->OnCollapse(node);
  return -1;
}

int BaseTree::ExpandCB(BaseTree* self) {
  if (self == nullptr) return -1;
  const auto [read, node] = wire::Retrieve(WidgetOf(*self), wire::kToggledNode);
  if (node != nullptr) self->OnExpand(node);
  return -1;
}

int BaseTree::SelectCB(BaseTree* self) {
  if (self == nullptr) return -1;
  const wire::Widget tree = WidgetOf(*self);
  const auto [read, selected] = wire::Retrieve(tree, wire::kSelectedNodes);
  const auto [kindRead, kind] = wire::Retrieve(tree, wire::kSelectionKind);
  self->OnSelect(selected.count, selected.names, kind);
  return read.code;
}

}  // namespace oxecad_ui
