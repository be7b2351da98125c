// Nets as records: added in natural order, checked, and collected again with a filter.
#include <oxecadutils/StringConversion.h>
#include <uicomps/oxecad_ui.h>

#include <cstdio>

using oxecad_ui::Tree;

int OnDirty(void* client, void*) {
  Tree::TreeInfo checked;
  static_cast<Tree*>(client)->GetCheckedNodes(checked);
  std::printf("%zu nets are shown\n", checked.records.size());
  return 0;
}

int main() {
  if (ui_create_device("tree.res", "board") != 0) return 1;
  Tree nets("board", "nets");
  nets.Init();
  nets.SetOnDirtyHandler(OnDirty, &nets, nullptr);  // after each check box that the user toggles

  nets.BaseTree::AddNode("root", L"Nets", "", "group", L"", 1, 1, 0, nullptr);
  for (const wchar_t* label : {L"DQ10", L"CLK", L"DQ9", L"DQ1", L"VREF"}) {
    const std::string name = oxecadutils::WideStrToUtf8(label);
    nets.AddEcadNode(name.c_str(), label, "root", Tree::ByLabel, "net", L"", 1, 0, 0, nullptr);
  }
  nets.SetNodeState("root", Tree::PartlyChecked);
  nets.SetNodeState("DQ1", Tree::Checked);
  nets.SetNodeState("DQ10", Tree::Checked);

  std::vector<Tree::NodeInfo> all;
  nets.GetChildren("root", all);
  for (const Tree::NodeInfo& net : all) {
    std::printf("[%c] %s\n", net.state == Tree::Checked ? 'x' : ' ', net.name.c_str());
  }
  OnDirty(&nets, nullptr);

  ui_activate_device("board");
  return 0;
}
