#include <tests/torture/Plays.h>
#include <tests/torture/Scenarios.h>
#include <uicomps/userdata/UserDataTree.h>

namespace torture {
namespace {

using oxecad_ui::BaseTree;
using oxecad_ui::Tree;
using oxecad_ui::UserDataTree;

int g_objects[6];

UserDataTree::DataNodeInfo Record(const char* name, const char* type, void* data) {
  UserDataTree::DataNodeInfo info;
  info.name = name;
  info.label = L"A label that is long enough for the heap (7)";
  info.type = type;
  info.data = data;
  return info;
}

/// Shows what derived trees reach.
class Open : public UserDataTree {
 public:
  using UserDataTree::GetBranchData;
  using UserDataTree::GetNodeInfo;
  using UserDataTree::UserDataTree;
};

const char* const kLeaves[] = {"R/1", "R/2", "C/1", "C/2", "C/3"};

void Adding(Stage& stage) {
  Play<Open> tree(stage, "leaf");
  stage.Step("init", [&] { tree->Init(); });
  stage.Step("add the root", [&] {
    return static_cast<BaseTree&>(*tree).AddNode("root", L"Parts", "", "branch", L"", 1, 1, 0, nullptr);
  });
  const UserDataTree::DataNodeInfo records[] = {
      Record("R", "branch", nullptr),       Record("C", "branch", nullptr),       Record("R/1", "leaf", &g_objects[0]),
      Record("R/2", "leaf", &g_objects[1]), Record("C/1", "leaf", &g_objects[2]), Record("C/2", "leaf", &g_objects[4]),
      Record("C/3", "leaf", &g_objects[5])};
  for (const UserDataTree::DataNodeInfo& record : records) {
    stage.Step("add", [&] { return tree->AddNode(record); });
  }
  const std::vector<UserDataTree::DataNodeInfo> many = {
      Record("L", "branch", nullptr), Record("L/1", "leaf", &g_objects[0]), Record("L/1", "leaf", nullptr),
      Record("nowhere/1", "leaf", nullptr)};
  stage.StepOfAnyResult("add many", [&] { return tree->AddNodes(many); });
  const UserDataTree::DataNodeInfo before = Record("R/0", "leaf", &g_objects[3]);
  stage.Step("add before", [&] { return tree->AddNodeBefore(before, "R/1"); });
  for (const char* leaf : kLeaves) {
    stage.Step("count", [&] { tree->OnLeafAdded(leaf); });
  }
  stage.Step("count nothing", [&] { tree->OnLeafAdded("nowhere"); });
  stage.Step("totals", [&] { tree->UpdateParentTotals("R/1"); });
  stage.Step("totals of nothing", [&] { tree->UpdateParentTotals("nowhere"); });
}

void Reading(Stage& stage) {
  Play<Open> tree(stage, "leaf");
  stage.Calm();
  static_cast<BaseTree&>(*tree).AddNode("root", L"Parts", "", "branch", L"", 1, 1, 0, nullptr);
  for (const char* branch : {"R", "C"}) tree->AddNode(Record(branch, "branch", nullptr));
  for (int i = 0; i < 5; ++i) tree->AddNode(Record(kLeaves[i], "leaf", &g_objects[i]));
  stage.Storm();
  const auto count = [](const std::vector<void*>& data) { return static_cast<int>(data.size()); };
  for (const bool unique : {true, false}) {
    stage.StepOfAnyResult("data", [&] {
      std::vector<void*> data;
      tree->GetData(data, nullptr, unique, Tree::Everything());
      return count(data);
    });
  }
  stage.StepOfAnyResult("data of a branch", [&] {
    std::vector<void*> data;
    tree->GetBranchData("R", data, nullptr, Tree::CheckedOnly());
    return count(data);
  });
  for (const char* node : {"R/1", "nowhere"}) {
    UserDataTree::DataNodeInfo info;
    stage.StepOfAnyResult("read", [&] { return tree->GetNodeInfo(node, info); });
    stage.StepOfAnyResult("read anew", [&] {
      const std::unique_ptr<Tree::NodeInfo> got(tree->GetNodeInfo(node));
      return got ? got->type : std::string();
    });
  }
  Tree::TreeInfo all;
  stage.StepOfAnyResult("read all", [&] {
    tree->GetTreeInfo(all, Tree::Everything(), true);
    return int(all.records.size());
  });
  stage.Step("set", [&] { tree->Set(all); });
  stage.StepOfAnyResult("copy", [&] {
    UserDataTree copy(*tree);
    UserDataTree other("dev", "other", "another leaf type for the heap");
    other = copy;
    return std::string(other.GetName());
  });
}

}  // namespace

std::vector<Scenario> UserDataScenarios() { return {{"userdata_adding", Adding}, {"userdata_reading", Reading}}; }

}  // namespace torture
