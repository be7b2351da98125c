// Operations of all trees: on one node, and on the whole tree.
#include <uicomps/base/BaseTree.h>

#include "bench/reporting/Curves.h"
#include "bench/reporting/Measure.h"
#include "bench/reporting/Stage.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::Tree;

constexpr std::size_t kCalls = 64;

/// A root with sorted nets, and names for nodes that come and go.
struct SortedNets {
  explicit SortedNets(std::size_t nodes) : nets(nodes) {
    Load(tree);
    for (std::size_t call = 0; call < kCalls; ++call) {
      added.push_back("added" + std::to_string(call));
      labels.push_back(L"Net-(R" + std::to_wstring(1000 * call) + L"-Pad1)");
    }
  }
  void Load(NetTree& into) const {
    std::vector<Tree::EcadNode> nodes(nets.names.size());
    for (std::size_t net = 0; net < nodes.size(); ++net) {
      nodes[net].name = nets.names[net].c_str();
      nodes[net].label = nets.labels[net].c_str();
      nodes[net].parent = "root";
      nodes[net].type = "net";
    }
    into.AddEcadNodes(nodes, Tree::ByLabel);
    Check(NodesOnStage() == 1 + nets.names.size(), "all nets were added");
  }
  /// A net somewhere in the tree, another one each time.
  const char* Next() {
    at = (at + 7919) % nets.names.size();
    return nets.names[at].c_str();
  }
  void Add(std::size_t call) {
    tree.BaseTree::AddNode(added[call].c_str(), labels[call].c_str(), "root", "net", L"", 1, 0, 0, nullptr);
  }
  void DeleteAdded() {
    for (const std::string& name : added) tree.DeleteNode(name.c_str());
  }
  void AddAll() {
    for (std::size_t call = 0; call < kCalls; ++call) Add(call);
  }

  Nets nets;
  NetTree tree;
  std::vector<std::string> added;
  std::vector<std::wstring> labels;
  std::size_t at = 0;
};

using Shared = std::shared_ptr<SortedNets>;

/// An operation on one node or another, called several times.
template <class Call>
Operation OnNodes(const Shared& shared, std::string name, const Call& call) {
  return {std::move(name), kCalls, [shared, call] {
            for (std::size_t each = 0; each < kCalls; ++each) call(*shared, each);
          }};
}

/// An operation that adds nodes, which are taken out again.
template <class Call>
Operation Adding(const Shared& shared, std::string name, const Call& call) {
  Operation operation = OnNodes(shared, std::move(name), call);
  operation.restore = [shared] { shared->DeleteAdded(); };
  return operation;
}

template <class Call>
Operation Once(const Shared& shared, std::string name, const Call& call) {
  return {std::move(name), 1, [shared, call] { call(*shared); }};
}

bool PlaceAtEnd(const char*, int, const char**, const char*& before) {
  before = nullptr;
  return true;
}

}  // namespace

std::vector<Operation> TreeOperations(std::size_t nodes) {
  const auto shared = std::make_shared<SortedNets>(nodes);
  Operation deleting = OnNodes(shared, "DeleteNode",
                               [](SortedNets& all, std::size_t call) { all.tree.DeleteNode(all.added[call].c_str()); });
  deleting.prepare = [shared] { shared->AddAll(); };
  Operation insertingByName = Once(shared, "InsertNodeSortByName", [](SortedNets& all) {
    all.tree.InsertNodeSortByName("added0", L"net", "root", &PlaceAtEnd, nullptr, "net", L"", 1, 0, 0);
  });
  insertingByName.restore = [shared] { shared->tree.DeleteNode("added0"); };
  return {
      Adding(shared, "AddNode", [](SortedNets& all, std::size_t call) { all.Add(call); }),
      Adding(shared, "AddNodeBefore",
             [](SortedNets& all, std::size_t call) {
               all.tree.BaseTree::AddNodeBefore(all.added[call].c_str(), L"net", "root", all.Next(), "net", L"", 1, 0,
                                                0, nullptr);
             }),
      Adding(shared, "AddEcadNode",
             [](SortedNets& all, std::size_t call) {
               all.tree.AddEcadNode(all.added[call].c_str(), all.labels[call].c_str(), "root", Tree::ByLabel, "net",
                                    L"", 1, 0, 0, nullptr);
             }),
      insertingByName,
      deleting,
      OnNodes(shared, "MoveNodeBefore",
              [](SortedNets& all, std::size_t) { all.tree.MoveNodeBefore(all.Next(), "root", all.Next()); }),
      OnNodes(
          shared, "ModifyNodeLabel",
          [](SortedNets& all, std::size_t call) { all.tree.ModifyNodeLabel(all.Next(), all.labels[call].c_str()); }),
      OnNodes(shared, "SetNodeState",
              [](SortedNets& all, std::size_t) { all.tree.SetNodeState(all.Next(), Tree::Checked); }),
      OnNodes(shared, "GetNodeInfo",
              [](SortedNets& all, std::size_t) {
                Tree::NodeInfo info;
                all.tree.GetNodeInfo(all.Next(), info);
              }),
      OnNodes(shared, "GetParent", [](SortedNets& all, std::size_t) { Keep(all.tree.GetParent(all.Next())); }),
      OnNodes(shared, "GetNodeChildCount",
              [](SortedNets& all, std::size_t) { Keep(all.tree.GetNodeChildCount("root")); }),
      Once(shared, "DoesNotExist", [](SortedNets& all) { Keep(all.tree.DoesNotExist("root", "nobody")); }),
      Once(shared, "InsertNode, refused",
           [](SortedNets& all) {
             all.tree.InsertNode(all.nets.names.back().c_str(), L"net", "root", nullptr, nullptr, "net", L"", 1, 0, 0);
           }),
  };
}

std::vector<Operation> WholeTreeOperations(std::size_t nodes) {
  const auto shared = std::make_shared<SortedNets>(nodes);
  Operation loading = Once(shared, "AddEcadNodes", [](SortedNets& all) { all.Load(all.tree); });
  loading.prepare = [shared] {
    shared->tree.Clear();
    // A null parent makes the tree forget what it has added.
    shared->tree.AddEcadNode("", L"", nullptr, Tree::ByLabel, "", L"", 0, 0, 0, nullptr);
    shared->tree.Append("root", "");
  };
  Operation clearing = Once(shared, "Clear", [](SortedNets& all) { all.tree.Clear(); });
  clearing.restore = [shared, loading] {
    loading.prepare();
    shared->Load(shared->tree);
  };
  return {
      loading,
      Once(shared, "SortNodesByType", [](SortedNets& all) { all.tree.SortNodesByType("root", Tree::ByLabel); }),
      Once(shared, "GetChildren, names",
           [](SortedNets& all) {
             std::vector<std::string> names;
             all.tree.GetChildren("root", names);
           }),
      Once(shared, "GetChildren, records",
           [](SortedNets& all) {
             std::vector<Tree::NodeInfo> infos;
             all.tree.GetChildren("root", infos);
           }),
      Once(shared, "GetLeaves",
           [](SortedNets& all) {
             std::vector<std::string> leaves;
             all.tree.GetLeaves(nullptr, leaves);
           }),
      Once(shared, "GetTreeInfo",
           [](SortedNets& all) {
             Tree::TreeInfo info;
             all.tree.GetTreeInfo(info, Tree::Everything(), true);
           }),
      Once(shared, "SetChildrenCheckSensitive",
           [](SortedNets& all) { all.tree.SetChildrenCheckSensitive("root", true); }),
      Once(shared, "ExpandAll", [](SortedNets& all) { all.tree.ExpandAll(); }),
      Once(shared, "CollapseAll", [](SortedNets& all) { all.tree.CollapseAll(); }),
      clearing,
  };
}

}  // namespace oxecad_bench
