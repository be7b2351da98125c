#include <viewer/trees/ComponentTree.h>
#include <viewer/trees/NodeBatch.h>
#include <viewer/trees/NodeName.h>
#include <viewer/trees/ReferencePrefix.h>
#include <viewer/trees/TreeTexts.h>

#include <set>
#include <unordered_map>

#include <oxecadutils/StringConversion.h>

namespace oxviewer {
namespace {

using oxecadutils::Utf8ToWideStr;

constexpr const char* kComponentKind = "component";
constexpr const char* kComponentType = "component";
constexpr const char* kGroupType = "componentgroup";
constexpr const char* kNoReferenceNode = "SelAll_:";
constexpr const wchar_t* kNoReference = L"(no reference)";
constexpr const wchar_t* kNoPrefix = L"(no prefix)";

std::string GroupOf(const Component& component) { return std::string(ReferencePrefix(component.reference)); }

}  // namespace

std::vector<std::string> ComponentNodeNames(const Board& board) {
  std::vector<std::string> names;
  names.reserve(board.components.size());
  std::unordered_map<std::string, std::size_t> used;
  for (const Component& component : board.components) {
    names.push_back(NodeName(kComponentKind, component.reference));
    const std::size_t number = ++used[component.reference];
    if (number > 1) names.back() += ':' + std::to_string(number);
  }
  return names;
}

std::string ComponentLabel(const Component& component) {
  return component.reference.empty() ? "(" + component.footprint + ")" : component.reference;
}

ComponentTree::ComponentTree(const char* device, const Board& board)
    : ObjectTree(device, kName), board_(board), nodes_(ComponentNodeNames(board)) {}

void ComponentTree::Fill() {
  Init();
  BaseTree::AddNode(kRoot, WideTreeText("Components").c_str(), "", "components", L"", 1, 1, 0, nullptr);
  AddGroups();
  NodeBatch nodes;
  for (std::size_t i = 0; i < board_.components.size(); ++i) {
    const oxviewer::Component& component = board_.components[i];
    const std::string parent = component.reference.empty() ? kNoReferenceNode : SelectAllName(GroupOf(component));
    nodes.Add({nodes_[i], Utf8ToWideStr(ComponentLabel(component)), parent, kComponentType,
               Utf8ToWideStr(component.value), 0, DataOf(component)});
  }
  nodes.AddTo(*this);
}

// Components without a reference stand behind all groups.
void ComponentTree::AddGroups() {
  std::set<std::string> prefixes;
  bool nameless = false;
  for (const oxviewer::Component& component : board_.components) {
    if (component.reference.empty()) {
      nameless = true;
    } else {
      prefixes.insert(GroupOf(component));
    }
  }
  NodeBatch groups;
  for (const std::string& prefix : prefixes) {
    groups.Add({SelectAllName(prefix), prefix.empty() ? kNoPrefix : Utf8ToWideStr(prefix), kRoot, kGroupType, L"", 0,
                nullptr});
  }
  groups.AddTo(*this);
  if (nameless) BaseTree::AddNode(kNoReferenceNode, kNoReference, kRoot, kGroupType, L"", 1, 0, 0, nullptr);
}

}  // namespace oxviewer
