#include <cassert>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <oxcore/ColorPickerDlg.h>

#include <uicomps/base/LifeWatch.h>
#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/toolkit/ChildNames.h>
#include <uicomps/toolkit/Lent.h>

namespace oxecad_ui {

using toolkit::kNoColor;

namespace {

bool IsColorlessNode(const wire::Widget& tree, const char* node) {
  return wire::LentType(tree, node).View().find(ColorTree::s_colorlessType) != std::string_view::npos;
}

/// The common colour of nodes, of which there is at least one. Stops at the first that differs.
unsigned int CommonColor(const ColorTree& tree, const wire::ChildNames& nodes) {
  const unsigned int first = tree.GetNodeColor(nodes[0]);
  if (first == kNoColor) return kNoColor;
  for (std::size_t index = 1; index < nodes.Size(); ++index) {
    if (tree.GetNodeColor(nodes[index]) != first) return kNoColor;
  }
  return first;
}

}  // namespace

void ColorTree::ParentColorChanged(const char* node, unsigned int color) {
  if (IsEmpty(node)) return;
  for (const char* child : wire::ChildNames(WidgetOf(*this), node)) ParentColorChanged(child, color);
  SetNodeColor(node, color);
}

void ColorTree::ChildColorChanged(const char* node) {
  for (std::string ancestor = TextOrEmpty(node); !ancestor.empty(); ancestor = GetParent(ancestor.c_str())) {
    const wire::ChildNames children(WidgetOf(*this), ancestor.c_str());
    if (children.IsEmpty()) return;
    const unsigned int summary = CommonColor(*this, children);
    if (GetNodeColor(ancestor.c_str()) == summary) return;
    SetNodeColor(ancestor.c_str(), summary);
  }
}

void ColorTree::ChangeNodeColor(const char* node, unsigned int color) {
  if (node == nullptr || IsColorlessNode(WidgetOf(*this), node)) return;
  ParentColorChanged(node, color);
  ChildColorChanged(GetParent(node).c_str());
}

void ColorTree::ChangeNodeColor(const char* node) {
  const std::string copy = TextOrEmpty(node);  // the dialog runs events, and the toolkit's name may go meanwhile
  const char* const name = node != nullptr ? copy.c_str() : nullptr;
  if (IsColorlessNode(WidgetOf(*this), name)) return;
  const unsigned int present = GetNodeColor(name);
  oxcore::ColorPickerDlg dialog(m_mainframe, std::string());
  const LifeWatch<Component> watch(*this);
  const unsigned int chosen = dialog.ShowDialog(present);
  if (chosen == kNoColor) return;
  assert(watch.IsAlive() && "the tree was destroyed while its colour picker was open");
  ParentColorChanged(name, chosen);
  ChildColorChanged(GetParent(name).c_str());
  NotifyNode(copy, ValueChanged);
}

void ColorTree::ChangeNodeColor(const std::vector<std::string>& nodes) {
  unsigned int present = nodes.empty() ? kNoColor : GetNodeColor(nodes.front().c_str());
  const unsigned int first = present;
  for (std::size_t index = 1; index < nodes.size(); ++index) {
    if (GetNodeColor(nodes[index].c_str()) != first) present = kNoColor;
  }
  oxcore::ColorPickerDlg dialog(m_mainframe, std::string());
  const LifeWatch<Component> watch(*this);
  const unsigned int chosen = dialog.ShowDialog(present);
  if (chosen == kNoColor) return;
  assert(watch.IsAlive() && "the tree was destroyed while its colour picker was open");
  for (const std::string& node : nodes) {
    ParentColorChanged(node.c_str(), chosen);
    ChildColorChanged(GetParent(node.c_str()).c_str());
  }
  if (!HasDirtyHandler()) return;
  if (std::vector<std::string>* changed = ChangedNodes(); changed != nullptr && changed != &nodes) *changed = nodes;
  CallDirtyHandler(ValueChanged);
}

void ColorTree::OnActivate(const char* node) {
  if (IsActivateAllowed()) ChangeNodeColor(node);
}

void ColorTree::OnCollapse(const char* node) { NotifyNode(TextOrEmpty(node), NodeCollapsed); }

void ColorTree::OnExpand(const char* node) { NotifyNode(TextOrEmpty(node), NodeExpanded); }

void ColorTree::OnSelect(int count, char** nodes, int) {
  if (std::vector<std::string>* changed = ChangedNodes()) {
    std::vector<std::string> selected;  // the names may stand in the list itself
    for (const char* node : wire::Names{nodes != nullptr ? count : 0, nodes}) {
      if (node != nullptr) selected.emplace_back(node);
    }
    changed->swap(selected);
  }
  CallDirtyHandler(SelectionChanged);
}

}  // namespace oxecad_ui
