#include <oxcore/ColorPicker.h>
#include <tests/torture/Plays.h>
#include <tests/torture/Scenarios.h>
#include <uicomps/compare/CompareColorTree.h>

namespace torture {
namespace {

using oxecad_ui::BaseTree;
using oxecad_ui::CompareColorTree;
using oxecad_ui::Tree;
using ShowMode = CompareColorTree::ShowMode;
using Names = std::vector<std::string>;

CompareColorTree::CompareNodeInfo Compared(const char* name, unsigned a, unsigned b,
                                           CompareColorTree::DesignFlag flag = CompareColorTree::DesignBoth) {
  CompareColorTree::CompareNodeInfo info;
  info.name = name;
  info.label = L"label";
  info.type = "colorvis";
  info.colorA = a;
  info.colorB = b;
  info.colorOverlap = 9;
  info.showMode = ShowMode::OnlyA;
  info.dim = Tree::Checked;
  info.designFlag = flag;
  return info;
}

/// Shows what derived trees reach.
class Open : public CompareColorTree {
 public:
  using CompareColorTree::CompareColorTree;
  using CompareColorTree::GetNodeInfo;
  using Tree::GetNodeInfo;
};

void Build(CompareColorTree& tree) {
  static_cast<BaseTree&>(tree).AddNode("root", L"root", "", "heading", L"", 1, 1, 0, nullptr);
  tree.AddNode(Compared("net", 1, 2));
  tree.AddNode(Compared("net/pads", 1, 2));
  tree.AddNode(Compared("net/tracks", 3, 0, CompareColorTree::DesignA));
  tree.AddNode(Compared("net/vias", 0, 3, CompareColorTree::DesignB));
  // Deeper branches are moved there.
  for (const char* name : {"net/pads/1", "net/pads/2"}) tree.AddNode(Compared(name, 1, 2));
  for (const char* name : {"net/pads/1", "net/pads/2"}) tree.MoveNodeBefore(name, "net/pads", nullptr);
  tree.AddNode(Compared("other", 1, 2));
  tree.AddNode(Compared("other/pads", 1, 1));
}

void Adding(Stage& stage) {
  Play<Open> tree(stage);
  stage.Step("init", [&] { tree->Init(nullptr); });
  stage.Step("add the root",
             [&] { return static_cast<BaseTree&>(*tree).AddNode("root", L"", "", "heading", L"", 1, 1, 0, nullptr); });
  Tree::NodeInfo heading;
  heading.name = "heading";
  heading.type = "heading";
  stage.Step("add a heading", [&] { return tree->AddNode(heading); });
  const CompareColorTree::CompareNodeInfo records[] = {
      Compared("net", 1, 2),
      Compared("net/pads", 1, 2),
      Compared("net/a name that is long enough for the heap", 3, 0, CompareColorTree::DesignA),
      Compared("net/vias", 0, 4, CompareColorTree::DesignB),
      Compared("other", 5, 6),
      Compared("other/pads", 5, 6),
      Compared("other/tracks", 7, 6)};
  for (const CompareColorTree::CompareNodeInfo& record : records) {
    stage.Step("add", [&] { return tree->AddNode(record); });
  }
  const std::vector<CompareColorTree::CompareNodeInfo> many = {
      Compared("bus", 1, 2),    Compared("bus/D0", 1, 3),     Compared("bus/D1", 3, 0, CompareColorTree::DesignA),
      Compared("bus/D1", 1, 1), Compared("nowhere/D2", 1, 1), Compared("heading/D3", 8, 8),
      Compared("net/D4", 8, 8)};
  stage.StepOfAnyResult("add many", [&] { return tree->AddNodes(many); });
  const CompareColorTree::CompareNodeInfo before = Compared("net/first", 1, 2);
  stage.Step("add before", [&] { return tree->AddNodeBefore(before, "net/pads"); });
  for (const char* node : {"net", "heading", "nowhere"}) {
    stage.StepOfAnyResult("record", [&] {
      const std::unique_ptr<Tree::NodeInfo> info(tree->GetNodeInfo(node));
      return info ? info->type : std::string();
    });
  }
  stage.StepOfAnyResult("branch", [&] {
    Tree::TreeInfo branch;
    tree->GetTreeInfo(branch, CompareColorTree::ColorNodeFilter(), false);
    tree->GetBranchInfo("net", branch, CompareColorTree::ColorNodeFilter());
    return int(branch.records.size());
  });
}

void Changing(Stage& stage) {
  Play<Open> tree(stage);
  stage.Calm();
  tree->Init(nullptr);
  Build(*tree);
  stage.Storm();
  stage.Step("given", [&] {
    tree->ChangeNodeInfo("net", 5, 6, 7, ShowMode::Diff, Tree::PartlyChecked, CompareColorTree::DesignBoth);
  });
  stage.Step("down", [&] {
    tree->ParentInfoChanged("net", 1, 1, 1, ShowMode::BMinusA, Tree::Unchecked, CompareColorTree::DesignB);
  });
  stage.Step("one", [&] {
    tree->ChangeNodeInfo("net/pads", 5, 6, 7, ShowMode::Mixed, Tree::Checked, CompareColorTree::DesignBoth);
  });
  for (const char* node : {"other", "other/pads", "net/pads/1", "root", "nowhere"}) {
    stage.Step("each", [&] {
      tree->ChangeNodeInfo(node, 5, 5, 5, ShowMode::Overlap, Tree::Unchecked, CompareColorTree::DesignA);
    });
  }
  stage.Step("up", [&] { tree->ChildInfoChanged("net"); });
  stage.Step("a list", [&] { tree->ChangeNodeInfo(Names{"net"}); });
}

void Colors(Stage& stage) {
  int changes = 0;
  Names changed;
  Play<Open> tree(stage);
  stage.Calm();
  tree->Init(nullptr);
  Build(*tree);
  tree->SetOnDirtyHandler(CountChange, &changes, &changed);
  stage.Storm();
  for (const unsigned color : {11u, 12u, 13u, 0xFFFFFFFFu}) oxcore::QueueColorAnswer(color);
  stage.user.ClickCell("tree", "net", "a");
  stage.user.ClickCell("tree", "net/pads", "b");
  stage.user.ClickCell("tree", "net/tracks", "overlap");
  stage.user.ClickCell("tree", "net", "overlap");
}

void Modes(Stage& stage) {
  int changes = 0;
  Names changed;
  Play<Open> tree(stage);
  stage.Step("init", [&] { tree->Init(nullptr); });
  stage.Calm();
  Build(*tree);
  tree->SetOnDirtyHandler(CountChange, &changes, &changed);
  stage.Storm();
  stage.user.ClickCell("tree", "net/pads", "showMode");
  stage.user.ChooseCellOption("tree", "net/pads", "showMode", "diff_show");
  stage.user.ClickCell("tree", "net", "showMode");
  stage.user.ChooseCellOption("tree", "net", "showMode", "none");
  stage.user.ClickCell("tree", "net", "showMode");
  stage.user.ChooseCellOption("tree", "net", "showMode", "both_show");
  stage.user.ClickCell("tree", "root", "showMode");
  stage.user.ToggleCellCheck("tree", "net/pads", "dimOverlap");
  stage.user.ToggleCellCheck("tree", "net", "dimOverlap");
  stage.user.Check("tree", "net");
  stage.user.Activate("tree", "net");
  stage.user.Select("tree", {"net", "net/pads"});
  stage.user.Collapse("tree", "net");
  stage.user.Expand("tree", "net");
}

void Copies(Stage& stage) {
  Play<Open> tree(stage);
  stage.Step("init", [&] { tree->Init(nullptr); });
  stage.Calm();
  Build(*tree);
  stage.Storm();
  stage.StepOfAnyResult("copy", [&] {
    CompareColorTree copy(*tree);
    CompareColorTree other("dev", "other");
    other = copy;
    return std::string(other.GetName());
  });
  stage.user.ClickCell("tree", "net", "showMode");
}

}  // namespace

std::vector<Scenario> CompareScenarios() {
  return {{"compare_adding", Adding},
          {"compare_changing", Changing},
          {"compare_colors", Colors},
          {"compare_modes", Modes},
          {"compare_copies", Copies}};
}

}  // namespace torture
