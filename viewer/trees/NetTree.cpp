#include <viewer/trees/NetTree.h>
#include <viewer/trees/NodeBatch.h>
#include <viewer/trees/NodeName.h>
#include <viewer/trees/TreeTexts.h>

#include <vector>

#include <oxecadutils/StringConversion.h>
#include <uicomps/base/WidgetOf.h>
#include <uicomps/toolkit/NodeCalls.h>

namespace oxviewer {
namespace {

using oxecadutils::Utf8ToWideStr;
namespace wire = oxecad_ui::wire;

constexpr const char* kNetKind = "net";
constexpr const char* kClassType = "netclass";

}  // namespace

NetTree::NetTree(const char* device, const Board& board) : ObjectTree(device, kName), board_(board) {}

std::string NetTree::NodeOf(const Net& net) { return NodeName(kNetKind, net.name); }

void NetTree::Fill() {
  Init();
  BaseTree::AddNode(kRoot, WideTreeText("Nets").c_str(), "", "nets", L"", 1, 1, 0, nullptr);
  NodeBatch nodes;
  std::vector<std::string> classNodes;
  for (const NetClass& netClass : board_.netClasses) {
    classNodes.push_back(SelectAllName(netClass.name));
    const std::string& node = classNodes.back();
    const std::wstring label = Utf8ToWideStr(netClass.name);
    // What was not added in natural order is not looked at: so the default class stays in front of the others.
    if (classNodes.size() == 1) {
      BaseTree::AddNode(node.c_str(), label.c_str(), kRoot, kClassType, L"", 1, 1, 0, nullptr);
    } else {
      nodes.Add({node, label, kRoot, kClassType, L"", 1, nullptr});
    }
  }
  for (const Net& net : board_.nets) {
    const std::string& parent = classNodes[static_cast<std::size_t>(net.netClass)];
    nodes.Add({NodeOf(net), Utf8ToWideStr(net.name), parent, kPlainType, L"", 0, DataOf(net)});
  }
  nodes.AddTo(*this);
}

void NetTree::SetType(const Net& net, const char* type) {
  wire::ChangeNode(oxecad_ui::WidgetOf(*this), NodeOf(net).c_str(), wire::kChangeType(type));
}

}  // namespace oxviewer
