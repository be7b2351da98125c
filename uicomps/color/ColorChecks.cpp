#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <uicomps/base/Text.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui {

namespace {

std::vector<std::string> SelectedNodes(const wire::Widget& tree) {
  const auto [read, names] = wire::Retrieve(tree, wire::kSelectedNodes);
  std::vector<std::string> selected;
  for (const char* name : names) {
    if (name != nullptr) selected.emplace_back(name);
  }
  return selected;
}

}  // namespace

void ColorTree::AddSingleCheckBranch(const char* node) { m_singleCheckBranches.insert(TextOrEmpty(node)); }

bool ColorTree::IsSingleCheckBranch(const std::string& node) const { return m_singleCheckBranches.count(node) != 0; }

bool ColorTree::IsCheckSensitive(const char* node) const {
  const auto [read, sensitive] = wire::GetNode(WidgetOf(*this), node, wire::kNodeCheckSensitive);
  return sensitive != 0;
}

void ColorTree::OnCheck(const char* node) {
  const std::string name = TextOrEmpty(node);
  const std::vector<std::string> selected = SelectedNodes(WidgetOf(*this));
  if (HasDirtyHandler()) {
    if (std::vector<std::string>* changed = ChangedNodes()) changed->clear();
  }
  const bool isSelected = std::find(selected.begin(), selected.end(), name) != selected.end();
  if (!isSelected || selected.size() < 2) {
    const std::string parent = GetParent(name.c_str());
    if (IsSingleCheckBranch(parent)) UncheckOthers(parent, name);
  } else {
    switch (GetNodeState(name.c_str())) {
      case Unchecked:
        UncheckSelected(selected);
        break;
      case Checked:
        CheckSelected(name, selected);
        break;
      case PartlyChecked:
        break;
    }
  }
  if (HasDirtyHandler()) CallDirtyHandler(SetChanged);
}

void ColorTree::UncheckOthers(const std::string& branch, const std::string& chosen) {
  TreeInfo checkedNodes;
  GetBranchInfo(branch.c_str(), checkedNodes, CheckedOnly());
  for (const NodeInfo* other : checkedNodes.records) {
    if (other->name != chosen && other->state != Unchecked) SetNodeState(other->name.c_str(), Unchecked);
  }
}

void ColorTree::UncheckSelected(const std::vector<std::string>& selected) {
  for (const std::string& node : selected) {
    if (IsCheckSensitive(node.c_str())) SetNodeState(node.c_str(), Unchecked);
  }
}

void ColorTree::CheckSelected(const std::string& node, const std::vector<std::string>& selected) {
  std::map<std::string, std::string> chosenOfBranch;
  std::vector<std::string> toCheck;
  if (const std::string parent = GetParent(node.c_str()); IsSingleCheckBranch(parent)) chosenOfBranch[parent] = node;

  const auto toggled = std::find(selected.begin(), selected.end(), node);
  for (auto other = selected.begin(); other != selected.end(); ++other) {
    if (other == toggled || !IsCheckSensitive(other->c_str())) continue;
    const std::string parent = GetParent(other->c_str());
    // In a single-check branch the toggled node wins, else the one selected first.
    if (IsSingleCheckBranch(parent) && !chosenOfBranch.emplace(parent, *other).second) continue;
    toCheck.push_back(*other);
  }
  for (const auto& [branch, chosen] : chosenOfBranch) UncheckOthers(branch, chosen);
  for (const std::string& other : toCheck) SetNodeState(other.c_str(), Checked);
}

}  // namespace oxecad_ui
