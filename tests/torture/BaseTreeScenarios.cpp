#include <tests/torture/Plays.h>
#include <tests/torture/Scenarios.h>
#include <uicomps/base/BaseTree.h>

namespace torture {
namespace {

using oxecad_ui::BaseTree;

bool PlaceFirst(const char*, int count, const char** children, const char*& before) {
  before = count > 0 ? children[0] : nullptr;
  return true;
}
bool Decline(const char*, int, const char**, const char*&) { return false; }

bool Add(BaseTree& tree, const char* name, const char* parent) {
  return tree.AddNode(name, L"label", parent, "type", L"second", 1, 1, 0, nullptr);
}

void Build(Stage& stage, BaseTree& tree) {
  stage.Step("add the root", [&] { return Add(tree, "root", ""); });
  for (const char* name : {"a", "b", "c"}) {
    stage.Step("add", [&] { return Add(tree, name, "root"); });
  }
  for (const char* name : {"a1", "a2"}) {
    stage.Step("add below", [&] { return Add(tree, name, "a"); });
  }
}

void Changes(Stage& stage) {
  Play<BaseTree> tree(stage);
  stage.Step("init", [&] { tree->Init(); });
  Build(stage, *tree);
  const auto before = [&] { return tree->AddNodeBefore("d", L"d", "root", "b", "type", L"", 1, 0, 0, nullptr); };
  stage.Step("add before", before);
  const auto insert = [&](const char* name) {
    return tree->InsertNode(name, L"e", "root", nullptr, "c", "type", L"", 1, 0, 0);
  };
  stage.Step("insert", [&] { return insert("e"); });
  stage.Step("insert what is there", [&] { return insert("e"); });
  stage.Step("insert below nothing",
             [&] { return tree->InsertNode("f", L"f", "nowhere", nullptr, nullptr, "type", L"", 1, 0, 0); });
  const auto sorted = [&](const char* name, BaseTree::Placer placer) {
    return int{tree->InsertNodeSortByName(name, L"g", "root", placer, nullptr, "type", L"", 1, 0, 0)};
  };
  stage.Step("insert sorted", [&] { return sorted("g", PlaceFirst); });
  stage.Step("insert sorted again", [&] { return sorted("g", PlaceFirst); });
  stage.Step("decline", [&] { return sorted("h", Decline); });
  stage.Step("move", [&] { return tree->MoveNodeBefore("a", "b", nullptr); });
  stage.Step("move before", [&] { return tree->MoveNodeBefore("c", "b", "a"); });
  stage.Step("relabel", [&] { return tree->ModifyNodeLabel("a", L"<b>a</b>"); });
  stage.Step("expand all", [&] { tree->ExpandAll(); });
  stage.Step("collapse all", [&] { tree->CollapseAll(); });
  stage.Step("disable", [&] { tree->Enable(false); });
  stage.Step("enable", [&] { tree->Enable(true); });
  stage.Step("redraw off", [&] { tree->SetRedraw(false); });
  stage.Step("redraw on", [&] { tree->SetRedraw(true); });
  stage.Step("delete", [&] { return tree->DeleteNode("b"); });
  stage.Step("delete again", [&] { return tree->DeleteNode("b"); });
  stage.Step("clear", [&] { tree->Clear(); });
  stage.Step("clear again", [&] { tree->Clear(); });
}

void Reads(Stage& stage) {
  Play<BaseTree> tree(stage);
  stage.Calm();
  tree->Init();
  for (const char* name : {"root", "a", "b", "c", "d", "e"}) Add(*tree, name, name[0] == 'r' ? "" : "root");
  stage.Storm();
  stage.Step("has root", [&] { return tree->HasRoot(); });
  stage.Step("background", [&] { return tree->GetBackgroundColor(); });
  for (const char* node : {"root", "a", "b", "c", "d", "e", "nowhere", ""}) {
    stage.Step("label", [&] { return tree->GetNodeLabel(node); });
    stage.Step("type", [&] { return tree->GetNodeType(node); });
    stage.Step("parent", [&] { return tree->GetParent(node); });
    int status = 0;
    stage.Step("parent with status", [&] { return tree->GetParent(node, &status); });
    stage.Step("child count", [&] { return tree->GetNodeChildCount(node); });
    int count = 0;
    char** children = nullptr;
    stage.Step("children", [&] { return tree->GetNodeChildren(node, &count, &children); });
    void* data = nullptr;
    stage.Step("data", [&] { return tree->GetNodeData(node, data); });
    stage.Step("expanded", [&] { return tree->GetNodeExpanded(node); });
    stage.Step("does not exist", "true", [&] { return tree->DoesNotExist(node, "b"); });
  }
  std::string rest;
  std::string head;
  for (const char* name : {"root", "a", "a/b/c", "groups/of/them", "long enough for the heap, twice/groups/x"}) {
    const std::string full = name;
    stage.Step("divide", [&] { BaseTree::DivideName(full, rest, head); });
  }
}

/// Answers all events, and takes its memory while it does.
class Listening : public BaseTree {
 public:
  using BaseTree::BaseTree;
  void OnActivate(const char* node) override { Take(node); }
  void OnExpand(const char* node) override { Take(node); }
  void OnCollapse(const char* node) override { Take(node); }
  void OnSelect(int count, char** nodes, int extra) override {
    if (!nodes) return;
    for (int i = 0; i < count; ++i) Take(nodes[i]);
    if (extra == 2) Clear();
  }

 private:
  void Take(const char* node) {
    if (node) GetNodeLabel(std::string(node).c_str());
  }
};

void Events(Stage& stage) {
  Play<Listening> tree(stage);
  stage.Step("init", [&] { tree->Init(); });
  Build(stage, *tree);
  stage.user.Activate("tree", "a");
  stage.user.Expand("tree", "a");
  stage.user.Collapse("tree", "a");
  stage.user.Select("tree", {"a", "b", "c"});
  stage.user.ToggleSelected("tree", "b");
  stage.Step("callbacks without a tree", [&] {
    return BaseTree::ActivateCB(nullptr) + BaseTree::SelectCB(nullptr) + BaseTree::ExpandCB(nullptr) +
           BaseTree::CollapseCB(nullptr);
  });
}

void Copies(Stage& stage) {
  Play<BaseTree> tree(stage);
  stage.Step("init", [&] { tree->Init(); });
  Build(stage, *tree);
  stage.StepOfAnyResult("copy", [&] {
    BaseTree copy(*tree);
    BaseTree other("dev", "another name that is long enough for the heap");
    other = copy;
    copy = *&copy;
    return std::string(other.GetDevice()) + other.GetName();
  });
  stage.Step("init again", [&] { tree->Init(); });
  stage.Step("handlers of its own", [&] {
    tree->OnActivate("a");
    tree->OnSelect(0, nullptr, 0);
    tree->OnExpand("a");
    tree->OnCollapse("a");
  });
}

}  // namespace

std::vector<Scenario> BaseTreeScenarios() {
  return {{"base_changes", Changes}, {"base_reads", Reads}, {"base_events", Events}, {"base_copies", Copies}};
}

}  // namespace torture
