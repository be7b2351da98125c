#include <tests/torture/Plays.h>
#include <tests/torture/Scenarios.h>

#include <memory>

namespace torture {
namespace {

using oxecad_ui::BaseTree;
using oxecad_ui::Tree;
using Names = std::vector<std::string>;

Tree::NodeInfo Record(const char* name, Tree::NodeState state = Tree::Unchecked) {
  Tree::NodeInfo info;
  info.name = name;
  info.type = "a type that is long enough for the heap";
  info.state = state;
  info.expanded = true;
  return info;
}

void Build(Tree& tree) {
  static_cast<BaseTree&>(tree).AddNode("root", L"root", "", "type", L"", 1, 1, 0, nullptr);
  for (const char* name : {"nets", "parts"}) tree.AddNode(Record(name, Tree::PartlyChecked));
  for (const char* name : {"nets/R10", "nets/R9", "nets/R1", "nets/R2", "nets/R3", "parts/B", "parts/A", "parts/C"}) {
    tree.AddNode(Record(name, Tree::Checked));
  }
}

void Records(Stage& stage) {
  Play<Tree> tree(stage);
  stage.Step("init", [&] { tree->Init(); });
  stage.Step("add the root", [&] { return tree->AddNode("root", L"root", "", "type", L"", 1, 1, 0, nullptr); });
  const Tree::NodeInfo records[] = {Record("nets"), Record("nets/R1", Tree::Checked), Record("nets/R2"),
                                    Record("groups/x", Tree::PartlyChecked), Record("nets/R1")};
  for (const Tree::NodeInfo& record : records) {
    stage.Step("add a record", [&] { return tree->AddNode(record); });
  }
  const Tree::NodeInfo first = Record("nets/R0", Tree::Checked);
  stage.Step("add before", [&] { return tree->AddNodeBefore(first, "nets/R1"); });
  for (const char* node : {"nets", "nets/R1", "nowhere", ""}) {
    Tree::NodeInfo info;
    stage.StepOfAnyResult("read", [&] { return tree->GetNodeInfo(node, info); });
    stage.StepOfAnyResult("read anew", [&] {
      const std::unique_ptr<Tree::NodeInfo> got(tree->GetNodeInfo(node));
      return got ? got->label : std::wstring(L"none");
    });
  }
  std::string parent;
  std::wstring label;
  stage.Step("names", [&] { Tree::NodeInfoToNames(first, parent, label); });
}

void States(Stage& stage) {
  Play<Tree> tree(stage);
  stage.Calm();
  Build(*tree);
  stage.Storm();
  for (const char* node : {"nets", "nets/R9", "nets/R1", "parts", "parts/A", "nowhere"}) {
    for (const Tree::NodeState state : {Tree::Unchecked, Tree::Checked, Tree::PartlyChecked}) {
      stage.Step("set state", [&] { return tree->SetNodeState(node, state); });
      stage.Step("state", [&] { return int(tree->GetNodeState(node)); });
    }
    stage.Step("sensitive", [&] { return tree->SetCheckSensitive(node, false); });
  }
  stage.Step("all sensitive", [&] { tree->SetChildrenCheckSensitive("nets", true); });
  stage.Step("all insensitive", [&] { tree->SetChildrenCheckSensitive(nullptr, false); });
}

void Queries(Stage& stage) {
  Play<Tree> tree(stage);
  stage.Calm();
  Build(*tree);
  stage.Storm();
  stage.Step("children of the root", [&] { return tree->GetNoOfChildren(); });
  for (const char* node : {"root", "nets", "nowhere"}) {
    Names names;
    stage.Step("children", [&] { return tree->GetChildren(node, names); });
    std::vector<Tree::NodeInfo> infos;
    stage.StepOfAnyResult("records of children", [&] { return tree->GetChildren(node, infos); });
    Names leaves;
    stage.StepOfAnyResult("leaves", [&] { return tree->GetLeaves(node, leaves); });
    Tree::TreeInfo branch;
    stage.StepOfAnyResult("branch", [&] {
      tree->GetBranchInfo(node, branch, Tree::Everything());
      return int(branch.records.size());
    });
  }
  Names leaves;
  stage.StepOfAnyResult("all leaves", [&] { return tree->GetLeaves(nullptr, leaves); });
  Tree::TreeInfo all;
  stage.StepOfAnyResult("all records", [&] {
    tree->GetTreeInfo(all, Tree::Everything(), true);
    return int(all.records.size());
  });
  Tree::TreeInfo copy(all);
  stage.StepOfAnyResult("checked ones", [&] {
    Tree::TreeInfo checked;
    tree->GetCheckedNodes(checked);
    copy = checked;
    const int count = int(copy.records.size());
    copy.Clear();
    return count;
  });
  stage.StepOfAnyResult("checked with the root", [&] {
    Tree::TreeInfo checked;
    tree->GetTreeInfo(checked, Tree::CheckedOnly(), true);
    return int(checked.records.size());
  });
}

/// Shows what derived trees reach.
class Open : public Tree {
 public:
  using Tree::BinarySearchNodeLocation;
  using Tree::SortChildrenByType;
  using Tree::Tree;
};

void Sorting(Stage& stage) {
  Play<Open> tree(stage);
  stage.Step("add the root",
             [&] { return static_cast<BaseTree&>(*tree).AddNode("root", L"", "", "t", L"", 1, 1, 0, nullptr); });
  const wchar_t* const labels[] = {L"R10", L"R9", L"R1", L"R9", L"R100"};
  const char* const names[] = {"n10", "n9", "n1", "n9b", "n100 with a name that is long enough for the heap"};
  for (int i = 0; i < 5; ++i) {
    stage.Step("add sorted", [&] {
      return tree->AddEcadNode(names[i], labels[i], "root", Tree::ByLabel, "t", L"", 1, 0, 0, nullptr);
    });
  }
  stage.Step("forget",
             [&] { return tree->AddEcadNode("lost", L"lost", nullptr, Tree::ByLabel, "t", L"", 1, 0, 0, nullptr); });
  stage.Step("add once more",
             [&] { return tree->AddEcadNode("n5", L"R5", "root", Tree::ByLabel, "t", L"", 1, 0, 0, nullptr); });
  const auto below = [](const char* name, const wchar_t* label, const char* parent) {
    return Tree::EcadNode{name, label, parent, "t", L"", 1, 0, 0, nullptr};
  };
  const std::vector<Tree::EcadNode> nodes = {
      below("b2", L"R2", "root"),    below("b30", L"R30", "root"),
      below("b2/1", L"pin 1", "b2"), below("b2/10", L"pin 10 with a label that is long enough for the heap", "b2"),
      below("b2/2", L"pin 2", "b2"), below("b2", L"again", "root"),
      below("b4", L"R4", "nowhere"), below(nullptr, L"R6", "root"),
      below("b7", L"R7", nullptr),   below("b2/3", L"pin 3", "b2"),
      below("b8", L"R8", "root")};
  stage.StepOfAnyResult("add many sorted", [&] { return tree->AddEcadNodes(nodes, Tree::ByLabel); });
  stage.StepOfAnyResult("sort", [&] { return tree->SortNodesByType("root", Tree::ByLabel); });
  std::vector<Tree::NodeInfo> records;
  stage.StepOfAnyResult("read", [&] { return tree->GetChildren("root", records); });
  stage.Step("sort records", [&] { tree->SortChildrenByType(records, Tree::ByLabel); });
  stage.StepOfAnyResult("search", [&] {
    const std::unique_ptr<const oxecad_ui::CComparator<Tree::NodeInfo>> plain(
        Tree::GenerateComperatorByType(Tree::ByLabel));
    const std::unique_ptr<const oxecad_ui::CComparator<Tree::NodeInfo>> ecad(
        Tree::GenerateEcadComperatorByType(Tree::ByLabel));
    std::vector<std::string> children = {"n1", "n9", "n10"};
    Tree::NodeInfo node = Record("x");
    node.label = L"R5";
    return tree->BinarySearchNodeLocation(children, plain.get(), node) +
           tree->BinarySearchNodeLocation(children, ecad.get(), node);
  });
}

void Events(Stage& stage) {
  int changes = 0;
  Play<Tree> tree(stage);
  stage.Step("init", [&] { tree->Init(); });
  stage.Calm();
  Build(*tree);
  stage.Storm();
  tree->SetOnDirtyHandler(CountChange, &changes, nullptr);
  tree->SetAllowActivate(false);
  stage.user.Check("tree", "nets/R1");
  stage.user.Check("tree", "nets");
  stage.user.Activate("tree", "nets");
  stage.user.Select("tree", {"nets/R1", "nets/R9"});
  stage.user.Collapse("tree", "nets");
  stage.user.Expand("tree", "nets");
  stage.Step("the callback without a tree", [&] { return Tree::CheckCB(nullptr); });
  stage.StepOfAnyResult("copy", [&] {
    Tree copy(*tree);
    Tree other("dev", "other");
    other = copy;
    return std::string(other.GetName());
  });
}

}  // namespace

std::vector<Scenario> TreeScenarios() {
  return {{"tree_records", Records},
          {"tree_states", States},
          {"tree_queries", Queries},
          {"tree_sorting", Sorting},
          {"tree_events", Events}};
}

}  // namespace torture
