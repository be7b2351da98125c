// Squares of a colour, made when they are asked for first and named after the colour.
#include <uicomps/oxecad_ui.h>

#include <cstdio>
#include <string>

int main() {
  if (ui_create_device("color_icon_bag.res", "board") != 0) return 1;
  oxecad_ui::BaseTree legend("board", "legend");
  legend.AddNode("root", L"Legend", "", "group", L"", 1, 1, 0, nullptr);

  oxecad_ui::ColorIconBag& bag = oxecad_ui::ColorIconBag::Get();
  const unsigned int colors[] = {0x0000CCu, 0x22AA22u, 0xCC6600u};  // 0x00BBGGRR: red, green, blue
  const wchar_t* const meanings[] = {L"power", L"clock", L"data"};
  for (int i = 0; i < 3; ++i) {
    const std::string icon = bag.GetColorIcon("color_square.png", colors[i]);
    const std::wstring label = L"<img src=\"" + std::wstring(icon.begin(), icon.end()) + L"\"> " + meanings[i];
    legend.AddNode(icon.c_str(), label.c_str(), "root", "", L"", 1, 0, 0, nullptr);
    std::printf("%s is 0x%06x\n", icon.c_str(), bag.GetColorFromIcon(icon.c_str(), "color_square.png"));
  }
  ui_activate_device("board");
  return 0;
}
