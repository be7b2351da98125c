// Nodes that stand for objects of the application, and the set of those that are selected.
#include <uicomps/oxecad_ui.h>

#include <cstdint>
#include <cstdio>
#include <set>

struct Part {
  const wchar_t* name;
  const wchar_t* value;
};

int OnDirty(void* client, void* reason) {
  const auto& selected = *static_cast<std::set<void*>*>(client);
  std::printf("reason %d: %zu selected\n", static_cast<int>(reinterpret_cast<std::intptr_t>(reason)), selected.size());
  return 0;
}

int main() {
  if (ui_create_device("ecad_tree.res", "board") != 0) return 1;
  Part parts[] = {{L"R1", L"10k"}, {L"R2", L"4k7"}, {L"C1", L"100n"}};
  std::set<void*> selected;

  oxecad_ui::EcadTree tree("board", "parts");
  tree.Init();
  tree.SetOnDirtyHandler(OnDirty, &selected, &selected);  // the tree keeps the set equal to the selection
  tree.BaseTree::AddNode("root", L"Parts", "", "group", L"", 1, 1, 0, nullptr);
  tree.BaseTree::AddNode("SelAll_parts", L"Select all", "root", "group", L"", 1, 1, 0, nullptr);
  for (Part& part : parts) {
    const std::string name(part.name, part.name + 2);
    const std::wstring label = std::wstring(part.name) + L"  " + part.value;
    tree.BaseTree::AddNode(name.c_str(), label.c_str(), "SelAll_parts", "part", L"", 1, 0, 0, &part);
  }

  std::printf("%ls\n", static_cast<Part*>(tree.GetNodeData("R2"))->value);
  std::printf("%s\n", tree.GetNodeData("SelAll_parts") == nullptr ? "a heading has no object" : "?");
  ui_activate_device("board");
  return 0;
}
