#include <viewer/trees/NetTree.h>
#include <viewer/trees/NodeName.h>

#include <vector>

#include <oxecadutils/StringConversion.h>

namespace oxviewer {
namespace {

using oxecadutils::Utf8ToWideStr;

constexpr const char* kNetKind = "net";
constexpr const char* kClassType = "netclass";

}  // namespace

NetTree::NetTree(const char* device, const Board& board) : ObjectTree(device, kName), board_(board) {}

std::string NetTree::NodeOf(const Net& net) { return NodeName(kNetKind, net.name); }

void NetTree::Fill() {
  Init();
  SetRedraw(false);
  BaseTree::AddNode(kRoot, L"Nets", "", "nets", L"", 1, 1, 0, nullptr);
  std::vector<std::string> classNodes;
  for (const NetClass& netClass : board_.netClasses) {
    classNodes.push_back(SelectAllName(netClass.name));
    const std::wstring label = Utf8ToWideStr(netClass.name);
    const char* node = classNodes.back().c_str();
    // What AddEcadNode did not add it does not look at: so the default class stays in front of the others.
    if (classNodes.size() == 1) {
      BaseTree::AddNode(node, label.c_str(), kRoot, kClassType, L"", 1, 1, 0, nullptr);
    } else {
      AddEcadNode(node, label.c_str(), kRoot, ByLabel, kClassType, L"", 1, 1, 0, nullptr);
    }
  }
  for (const Net& net : board_.nets) {
    const std::string& parent = classNodes[static_cast<std::size_t>(net.netClass)];
    AddEcadNode(NodeOf(net).c_str(), Utf8ToWideStr(net.name).c_str(), parent.c_str(), ByLabel, kPlainType, L"", 1, 0, 0,
                DataOf(net));
  }
  SetRedraw(true);
}

void NetTree::SetType(const Net& net, const char* type) {
  const std::string node = NodeOf(net);
  if (GetNodeType(node.c_str()) == type) return;
  // The toolkit's interface for trees of objects gives a type to a node only when it is added.
  const std::string parent = GetParent(node.c_str());
  std::vector<std::string> siblings;
  GetChildren(parent.c_str(), siblings);
  const char* next = nullptr;
  for (std::size_t i = 0; i + 1 < siblings.size(); ++i) {
    if (siblings[i] == node) next = siblings[i + 1].c_str();
  }
  const int selected = SelectedObjects().count(DataOf(net)) > 0 ? 1 : 0;
  DeleteNode(node.c_str());
  BaseTree::AddNodeBefore(node.c_str(), Utf8ToWideStr(net.name).c_str(), parent.c_str(), next, type, L"", 1, 0,
                          selected, DataOf(net));
}

}  // namespace oxviewer
