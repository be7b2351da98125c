// Parts of a label in a colour, and the user's choice of what "highlight" does.
#include <uicomps/oxecad_ui.h>

#include <cstdio>
#include <string>

int main() {
  if (ui_create_device("markup_tags.res", "board") != 0) return 1;
  oxecad_ui::BaseTree findings("board", "findings");
  findings.AddNode("root", L"Findings", "", "group", L"", 1, 1, 0, nullptr);

  std::wstring red, noRed, onYellow, offYellow;
  oxecad_ui::GetFontColorTags(0x0000CCu, red, noRed);  // 0x00BBGGRR
  oxecad_ui::GetBgColorTags(0x66FFFFu, onYellow, offYellow);
  const std::wstring gap = L"Clearance " + red + L"0.08 mm" + noRed + L" instead of 0.1 mm";
  const std::wstring hit = L"Net " + onYellow + L"DQ" + offYellow + L"10 is not connected";
  findings.AddNode("gap", gap.c_str(), "root", "", L"", 1, 0, 0, nullptr);
  findings.AddNode("hit", hit.c_str(), "root", "", L"", 1, 0, 0, nullptr);
  std::printf("%ls\n%ls\n", gap.c_str(), hit.c_str());

  std::printf("%s\n", oxecad_ui::IsAddToHighlightsDefaultAction() ? "adds to the highlighted nets"
                                                                  : "replaces the highlighted nets");
  ui_activate_device("board");
  return 0;
}
