// Operations of trees with the application's data, all leaves in one branch.
#include <uicomps/userdata/UserDataTree.h>

#include "bench/reporting/Curves.h"
#include "bench/reporting/Measure.h"
#include "bench/reporting/Stage.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::Tree;
using oxecad_ui::UserDataTree;

class DataTree : public UserDataTree {
 public:
  DataTree(const char* device, const char* name) : UserDataTree(device, name, "leaf") {}
};

struct Data {
  explicit Data(std::size_t nodes) : records(nodes) {
    for (std::size_t node = 0; node < nodes; ++node) {
      records[node].name = "parts/n" + std::to_string(node);
      records[node].label = L"part";
      records[node].type = "leaf";
      records[node].data = &records[node];
    }
    Empty();
    tree.AddNodes(records);
    Check(NodesOnStage() == 2 + records.size(), "all nodes were added");
  }
  void Empty() {
    tree.Clear();
    tree.Append("root", "");
    tree.Append("parts", "root", "branch");
  }

  std::vector<UserDataTree::DataNodeInfo> records;
  Staged<DataTree> tree;
};

}  // namespace

std::vector<Operation> UserDataOperations(std::size_t nodes) {
  const auto all = std::make_shared<Data>(nodes);
  const auto once = [&all](std::string name, auto call) {
    return Operation{std::move(name), 1, [all = all, call] { call(*all); }};
  };
  UserDataTree::DataNodeInfo added = all->records.back();
  added.name = "parts/added";
  Operation adding = once("AddNode", [added](Data& data) { static_cast<UserDataTree&>(data.tree).AddNode(added); });
  adding.restore = [all] { all->tree.DeleteNode("parts/added"); };
  Operation loading = once("AddNodes, n at once", [](Data& data) { data.tree.AddNodes(data.records); });
  loading.prepare = [all] { all->Empty(); };
  return {
      adding,
      loading,
      once("OnLeafAdded", [](Data& data) { data.tree.OnLeafAdded(data.records.back().name.c_str()); }),
      once("UpdateParentTotals", [](Data& data) { data.tree.UpdateParentTotals(data.records.back().name.c_str()); }),
      once("GetData",
           [](Data& data) {
             std::vector<void*> found;
             data.tree.GetData(found, nullptr, false, Tree::Everything());
           }),
      once("GetData, unique",
           [](Data& data) {
             std::vector<void*> found;
             data.tree.GetData(found, nullptr, true, Tree::Everything());
           }),
      once("Set",
           [](Data& data) {
             Tree::TreeInfo info;
             info.ownsRecords = false;
             UserDataTree::DataNodeInfo root;
             root.name = "root";
             UserDataTree::DataNodeInfo branch;
             branch.name = "parts";
             info.records = {&root, &branch};
             for (UserDataTree::DataNodeInfo& record : data.records) info.records.push_back(&record);
             data.tree.Set(info);
           }),
  };
}

}  // namespace oxecad_bench
