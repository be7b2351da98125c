#include <oxcore/ColorPicker.h>
#include <tests/torture/Plays.h>
#include <tests/torture/Scenarios.h>
#include <uicomps/color/ColorIconBag.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/color/EcadTree.h>

namespace torture {
namespace {

using oxecad_ui::BaseTree;
using oxecad_ui::ColorTree;
using oxecad_ui::EcadTree;
using oxecad_ui::Tree;
using Names = std::vector<std::string>;

ColorTree::ColorNodeInfo Colored(const char* name, unsigned color, const char* type = "") {
  ColorTree::ColorNodeInfo info;
  info.name = name;
  info.type = type;
  info.color = color;
  info.state = Tree::Checked;
  return info;
}

/// Shows what derived trees reach.
class Open : public ColorTree {
 public:
  using ColorTree::ChangeNodeColor;
  using ColorTree::ColorTree;
  using ColorTree::GetNodeInfo;
  using ColorTree::GetType;
  using ColorTree::SetNodeColor;
  using Tree::GetNodeInfo;
};

void Build(ColorTree& tree) {
  static_cast<BaseTree&>(tree).AddNode("root", L"root", "", "mix", L"", 1, 1, 0, nullptr);
  tree.AddNode(Colored("power", 1));
  tree.AddNode(Colored("power/GND", 0x0000FF));
  tree.AddNode(Colored("power/VCC", 0x00FF00));
  for (const char* name : {"power/+3V3", "power/+5V", "power/-12V"}) tree.AddNode(Colored(name, 0x00FF00));
  tree.AddNode(Colored("clock", 0xFF0000));
  for (const char* name : {"clock/A", "clock/B"}) tree.AddNode(Colored(name, 0xFF0000));
  tree.AddNode(Colored("notes", 0, "colorless"));
}

void Icons(Stage& stage) {
  using oxecad_ui::ColorIconBag;
  for (const unsigned color : {1u, 0xFF00FFu, 1u, 0xFFFFFFFFu, 0x80123456u}) {
    stage.Step("icon", [&] { return ColorIconBag::Get().GetColorIcon("color_square.png", color); });
  }
  stage.StepOfAnyResult("no image", [&] { return ColorIconBag::Get().GetColorIcon("no such image.png", 1); });
  stage.Step("color", [&] { return ColorIconBag::Get().GetColorFromIcon("color_square.png_255", "color_square.png"); });
}

void Adding(Stage& stage) {
  Play<Open> tree(stage);
  stage.Step("init", [&] { tree->Init(nullptr); });
  stage.Step("add the root",
             [&] { return static_cast<BaseTree&>(*tree).AddNode("root", L"", "", "mix", L"", 1, 1, 0, nullptr); });
  const ColorTree::ColorNodeInfo records[] = {Colored("power", 1), Colored("power/GND", 2), Colored("power/VCC", 2),
                                              Colored("notes", 0, "colorless"), Colored("power/X", 0xFFFFFFFF)};
  for (const ColorTree::ColorNodeInfo& record : records) {
    stage.Step("add a record", [&] { return tree->AddNode(record); });
  }
  const ColorTree::ColorNodeInfo before = Colored("power/A", 3);
  const ColorTree::ColorNodeInfo plain = Colored("power/B", 3, "colorless too");
  stage.Step("add before", [&] { return tree->AddNodeBefore(before, "power/GND"); });
  stage.Step("add a colourless one before", [&] { return tree->AddNodeBefore(plain, "power/GND"); });
  stage.Step("add a colour", [&] { return tree->AddNode("clock", L"clock", "root", 4u, 1, L"", 1, 0); });
  stage.Step("add a colour before",
             [&] { return tree->AddNodeBefore("data", L"data", "root", "clock", 4u, 1, L"", 1, 0); });
  for (const char* node : {"power", "notes", "nowhere"}) {
    stage.Step("color", [&] { return tree->GetNodeColor(node); });
    stage.StepOfAnyResult("record", [&] {
      const std::unique_ptr<Tree::NodeInfo> info(tree->GetNodeInfo(node));
      return info ? info->type : std::string();
    });
  }
  const std::vector<ColorTree::ColorNodeInfo> many = {
      Colored("bus", 5),    Colored("bus/D0", 5),     Colored("bus/D1", 6),   Colored("bus/notes", 0, "colorless"),
      Colored("bus/D1", 6), Colored("nowhere/D2", 7), Colored("power/D3", 5), Colored("bus/D4", 0xFFFFFFFF)};
  stage.StepOfAnyResult("add many", [&] { return tree->AddNodes(many); });
  stage.Step("colourless", [&] { return ColorTree::IsColorless("a colorless type"); });
}

void Changing(Stage& stage) {
  Play<Open> tree(stage);
  stage.Calm();
  tree->Init(nullptr);
  Build(*tree);
  stage.Storm();
  stage.Step("given", [&] { tree->ChangeNodeColor("power", 0x00FFFFu); });
  stage.Step("down", [&] { tree->ParentColorChanged("root", 7); });
  stage.Step("one", [&] { tree->SetNodeColor("power/GND", 8); });
  for (const char* node : {"clock", "clock/A", "power/+5V", "notes", "nowhere"}) {
    stage.Step("given", [&] { static_cast<ColorTree&>(*tree).ChangeNodeColor(node, 0x00FFFFu); });
  }
  stage.Step("up", [&] { tree->ChildColorChanged("power"); });
  stage.StepOfAnyResult("type", [&] { return std::string(tree->GetType(9)); });
  oxcore::QueueColorAnswer(0x123456);
  oxcore::QueueColorAnswer(0x654321);
  oxcore::QueueColorAnswer(0xFFFFFFFF);
  stage.Step("asked", [&] { tree->ChangeNodeColor("clock"); });
  const Names names = {"power/GND", "notes", "nowhere"};
  stage.Step("asked for several", [&] { tree->ChangeNodeColor(names); });
  stage.Step("cancelled", [&] { tree->ChangeNodeColor(names); });
}

void Events(Stage& stage) {
  int changes = 0;
  Names changed;
  Play<Open> tree(stage);
  stage.Step("init", [&] { tree->Init(nullptr); });
  stage.Calm();
  Build(*tree);
  tree->SetOnDirtyHandler(CountChange, &changes, &changed);
  stage.Storm();
  for (const unsigned color : {5u, 6u, 0xFFFFFFFFu}) oxcore::QueueColorAnswer(color);
  stage.user.Activate("tree", "power");
  stage.user.Activate("tree", "power/GND");
  stage.user.Activate("tree", "notes");
  stage.user.Select("tree", {"power/GND", "power/VCC", "clock"});
  stage.user.Check("tree", "power/VCC");
  stage.user.Collapse("tree", "power");
  stage.user.Expand("tree", "power");
  stage.Step("single", [&] { tree->AddSingleCheckBranch("power"); });
  stage.user.Check("tree", "power/GND");
  stage.user.Check("tree", "power/VCC");
  stage.user.Check("tree", "clock");
  stage.StepOfAnyResult("copy", [&] {
    ColorTree copy(*tree);
    ColorTree other("dev", "other");
    other = copy;
    return std::string(other.GetName());
  });
}

void Ecad(Stage& stage) {
  static int objects[6];
  int changes = 0;
  std::set<void*> selected;
  Play<EcadTree> tree(stage);
  stage.Step("init", [&] { tree->Init(); });
  const auto add = [&](const char* name, const char* parent, const char* type, void* data) {
    return tree->AddNode(name, L"label", parent, type, L"", 1, 0, 0, data);
  };
  stage.Step("add", [&] { return add("root", "", "type", nullptr); });
  stage.Step("add", [&] { return add("SelAll_nets", "root", "type", nullptr); });
  stage.Step("add", [&] { return add("SelAll_none", "root", "type", &objects[1]); });
  for (int i = 2; i < 5; ++i) {
    const std::string name = "SelAll_nets/" + std::to_string(i);
    stage.Step("add", [&] { return add(name.c_str(), "SelAll_nets", "type", &objects[i]); });
  }
  tree->SetOnDirtyHandler(CountChange, &changes, &selected);
  stage.Step("data", [&] { return static_cast<const void*>(tree->GetNodeData("SelAll_nets/2")); });
  stage.Step("no data", [&] { return static_cast<const void*>(tree->GetNodeData("nowhere")); });
  stage.user.Select("tree", {"SelAll_nets/2", "SelAll_nets/3"});
  stage.user.ToggleSelected("tree", "SelAll_nets/4");
  stage.user.ToggleSelected("tree", "SelAll_nets/2");
  stage.user.ToggleSelected("tree", "SelAll_nets");
  stage.user.ToggleSelected("tree", "SelAll_none");
  stage.user.Activate("tree", "SelAll_nets");
  stage.user.Activate("tree", "SelAll_nets/2");
  stage.StepOfAnyResult("copy", [&] {
    EcadTree copy(*tree);
    EcadTree other("dev", "other");
    other = copy;
    return std::string(other.GetName());
  });
}

}  // namespace

std::vector<Scenario> ColorScenarios() {
  return {{"color_icons", Icons},
          {"color_adding", Adding},
          {"color_changing", Changing},
          {"color_events", Events},
          {"ecad", Ecad}};
}

}  // namespace torture
