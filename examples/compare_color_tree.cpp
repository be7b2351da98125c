// Two designs side by side: the colour of each net in A, in B and where both overlap, and which of them are shown.
#include <uicomps/oxecad_ui.h>

#include <cstdio>

using oxecad_ui::CompareColorTree;
using Info = CompareColorTree::CompareNodeInfo;

Info Net(const char* name, unsigned int a, unsigned int b, CompareColorTree::DesignFlag designs) {
  Info info;
  info.name = name;
  info.type = CompareColorTree::s_compareType;
  info.colorA = a;
  info.colorB = b;
  info.colorOverlap = 0x22AA22u;  // 0x00BBGGRR
  info.showMode = designs == CompareColorTree::DesignA   ? CompareColorTree::ShowMode::OnlyA
                  : designs == CompareColorTree::DesignB ? CompareColorTree::ShowMode::OnlyB
                                                         : CompareColorTree::ShowMode::Both;
  info.designFlag = designs;
  return info;
}

int main() {
  if (ui_create_device("compare_color_tree.res", "board") != 0) return 1;
  CompareColorTree nets("board", "compare");
  nets.Init(nullptr);

  constexpr unsigned int kNone = 0xFFFFFFFFu;
  nets.BaseTree::AddNode("root", L"Nets", "", "group", L"", 1, 1, 0, nullptr);
  Info bus = Net("bus", 0x0000CCu, 0xCC6600u, CompareColorTree::DesignBoth);
  bus.expanded = true;
  nets.AddNode(bus);
  nets.AddNode(Net("bus/DQ1", 0x0000CCu, 0xCC6600u, CompareColorTree::DesignBoth));
  nets.AddNode(Net("bus/DQ2", 0x0000CCu, 0x00AACCu, CompareColorTree::DesignBoth));
  nets.AddNode(Net("bus/DM", 0x0000CCu, kNone, CompareColorTree::DesignA));

  oxecad_ui::Tree::TreeInfo compared;
  nets.GetTreeInfo(compared, CompareColorTree::ColorNodeFilter(), false);
  for (const auto* record : compared.records) {
    const auto& net = static_cast<const Info&>(*record);
    std::printf("%-8s A %06x B %06x show %d\n", net.name.c_str(), net.colorA & 0xFFFFFFu, net.colorB & 0xFFFFFFu,
                static_cast<int>(net.showMode));
  }
  ui_activate_device("board");
  return 0;
}
