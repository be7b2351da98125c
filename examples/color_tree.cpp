// Nets with colours: a parent shows what its children agree on, and hands a colour down.
#include <uicomps/oxecad_ui.h>

#include <cstdio>

using oxecad_ui::ColorTree;

constexpr unsigned int kRed = 0x0000CCu;  // 0x00BBGGRR
constexpr unsigned int kGreen = 0x22AA22u;
constexpr unsigned int kBlue = 0xCC6600u;

void Add(ColorTree& nets, const char* name, unsigned int color) {
  ColorTree::ColorNodeInfo info;
  info.name = name;  // "power/GND" is shown as "GND" below "power"
  info.color = color;
  nets.AddNode(info);
}

void Print(const ColorTree& nets, const char* node) {
  const unsigned int color = nets.GetNodeColor(node);
  if (color == 0xFFFFFFFFu) {
    std::printf("%s: mixed\n", node);
  } else {
    std::printf("%s: 0x%06x\n", node, color);
  }
}

int main() {
  if (ui_create_device("color_tree.res", "board") != 0) return 1;
  ColorTree nets("board", "nets");
  nets.Init(nullptr);  // or the application's main frame, for the colour picker

  nets.BaseTree::AddNode("root", L"Nets", "", "group", L"", 1, 1, 0, nullptr);
  for (const char* group : {"power", "data"}) {
    nets.BaseTree::AddNode(group, std::wstring(group, group + std::string(group).size()).c_str(), "root", "group", L"",
                           1, 1, 0, nullptr);
  }
  Add(nets, "power/GND", kRed);
  Add(nets, "power/VCC", kGreen);
  Add(nets, "data/DQ1", kBlue);
  Add(nets, "data/DQ2", kBlue);
  for (const char* node : {"power", "data", "root"}) Print(nets, node);

  nets.ChangeNodeColor("power", kRed);  // goes down to both nets; "power" is red now
  for (const char* node : {"power/VCC", "power", "root"}) Print(nets, node);

  ui_activate_device("board");
  return 0;
}
