// A tree of layers: added and read by name, with a handler for what the user does.
#include <uicomps/oxecad_ui.h>

#include <cstdio>

class LayerList : public oxecad_ui::BaseTree {
 public:
  LayerList() : BaseTree("board", "layers") {}
  void OnActivate(const char* node) override { std::printf("%s was double-clicked\n", node); }
  bool Add(const char* name, const wchar_t* label, const char* parent) {
    return AddNode(name, label, parent, "layer", L"", 1, 1, 0, nullptr);
  }
};

int main() {
  if (ui_create_device("base_tree.res", "board") != 0) return 1;  // the toolkit's: a dialog with a tree
  LayerList layers;
  layers.Init();

  layers.Add("root", L"Board", "");
  layers.Add("copper", L"Copper", "root");
  layers.Add("F.Cu", L"Front", "copper");
  layers.Add("B.Cu", L"Back", "copper");
  layers.Add("silk", L"Silkscreen", "root");
  layers.AddNodeBefore("In1.Cu", L"Inner 1", "copper", "B.Cu", "layer", L"", 1, 0, 0, nullptr);

  int count = 0;
  char** names = nullptr;  // the toolkit's, good until the tree changes
  layers.GetNodeChildren("copper", &count, &names);
  for (int i = 0; i < count; ++i) std::printf("%s\n", names[i]);
  std::printf("%s lies in %s\n", "In1.Cu", layers.GetParent("In1.Cu").c_str());

  ui_activate_device("board");  // the toolkit runs the dialog until the user closes it
  return 0;
}
