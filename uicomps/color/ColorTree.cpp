#include <uicomps/color/ColorTree.h>

#include <memory>
#include <string_view>

#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/color/ColorIconBag.h>
#include <uicomps/toolkit/ImageCalls.h>
#include <uicomps/toolkit/NodeCalls.h>
#include <uicomps/toolkit/UserValue.h>

namespace oxecad_ui {

ColorTree::ColorNodeInfo::ColorNodeInfo(const ColorNodeInfo&) = default;

ColorTree::ColorNodeInfo& ColorTree::ColorNodeInfo::operator=(const ColorNodeInfo&) = default;

ColorTree::ColorNodeInfo::~ColorNodeInfo() = default;

ColorTree::ColorTree(const char* device, const char* name) : Tree(device, name) {}

ColorTree::ColorTree(const ColorTree&) = default;

ColorTree& ColorTree::operator=(const ColorTree&) = default;

ColorTree::~ColorTree() = default;

void ColorTree::Init(oxcore::Mainframe* mainframe) {
  m_mainframe = mainframe;
  Tree::Init();
}

bool ColorTree::IsColorless(const std::string& type) { return type.find(s_colorlessType) != std::string::npos; }

const char* ColorTree::GetType(unsigned int color) {
  const char* const icon = ColorIconBag::Get().GetColorIcon(s_image, color);
  if (IsEmpty(icon)) return s_mixType;
  const wire::Widget tree = WidgetOf(*this);
  if (wire::NodeTypeExists(tree, icon)) return icon;
  return wire::DefineNodeType(tree, icon, icon) ? icon : s_mixType;
}

unsigned int ColorTree::GetNodeColor(const char* node) const {
  const auto [read, color] = wire::InquireNode(WidgetOf(*this), node, wire::kNodeColor);
  return static_cast<unsigned int>(color);
}

void ColorTree::SetNodeColor(const char* node, unsigned int color) {
  wire::ChangeNode(WidgetOf(*this), node, wire::kChangeType(GetType(color)), wire::kChangeUserValue(color));
}

bool ColorTree::AddNode(const ColorNodeInfo& info) {
  if (IsColorless(info.type)) return Tree::AddNode(info);
  std::string parent;
  std::wstring label;
  NodeInfoToNames(info, parent, label);
  const bool added = BaseTree::AddNode(info.name.c_str(), label.c_str(), parent.c_str(), GetType(info.color), L"", 1,
                                       info.expanded, 0, wire::AsUserData(info.color));
  ChildColorChanged(parent.c_str());
  if (added) SetNodeState(info.name.c_str(), info.state);
  return added;
}

bool ColorTree::AddNodeBefore(const ColorNodeInfo& info, const char* before) {
  if (IsColorless(info.type)) return Tree::AddNodeBefore(info, before);
  std::string parent;
  std::wstring label;
  NodeInfoToNames(info, parent, label);
  const bool added =
      BaseTree::AddNodeBefore(info.name.c_str(), label.c_str(), parent.c_str(), before, GetType(info.color), L"", 1,
                              info.expanded, 0, wire::AsUserData(info.color));
  ChildColorChanged(parent.c_str());
  if (added) SetNodeState(info.name.c_str(), info.state);
  return added;
}

bool ColorTree::AddNode(const char* name, const wchar_t* label, const char* parent, unsigned int color, int c1,
                        const wchar_t* text2, int c2, int c3) {
  const bool added = BaseTree::AddNode(name, label, parent, GetType(color), text2, c2, c3, c1, wire::AsUserData(color));
  ChildColorChanged(GetParent(name).c_str());
  return added;
}

bool ColorTree::AddNodeBefore(const char* name, const wchar_t* label, const char* parent, const char* before,
                              unsigned int color, int c1, const wchar_t* text2, int c2, int c3) {
  const bool added =
      BaseTree::AddNodeBefore(name, label, parent, before, GetType(color), text2, c2, c3, c1, wire::AsUserData(color));
  ChildColorChanged(GetParent(name).c_str());
  return added;
}

Tree::NodeInfo* ColorTree::GetNodeInfo(const char* node) const {
  if (IsEmpty(node)) return nullptr;
  auto info = std::make_unique<ColorNodeInfo>();
  FillNodeInfo(node, *info);
  info->color = GetNodeColor(node);
  return info.release();
}

}  // namespace oxecad_ui
