// A program by somebody who has nothing but oxecad_ui and a toolkit: it compiles against the headers as C++17, links
// what the package names, has a device made, and puts nets in order. It says the library's version and the order.
#include <uicomps/oxecad_ui.h>

#include <cstdio>

namespace {

class Nets : public oxecad_ui::Tree {
 public:
  Nets() : Tree("board", "nets") {}
  bool Add(const char* name, const wchar_t* label) {
    return AddEcadNode(name, label, "root", ByLabel, "net", L"", 1, 0, 0, nullptr);
  }
};

bool IsInOrder(const std::vector<std::string>& names) {
  return names == std::vector<std::string>{"DQ1", "DQ9", "DQ10"};
}

}  // namespace

int main() {
  if (ui_create_device("board.res", "board") != 0) return 2;
  Nets nets;
  nets.Init();
  if (!nets.BaseTree::AddNode("root", L"Nets", "", "group", L"", 1, 1, 0, nullptr)) return 3;
  if (!nets.Add("DQ10", L"DQ10") || !nets.Add("DQ9", L"DQ9") || !nets.Add("DQ1", L"DQ1")) return 4;
  std::vector<std::string> names;
  nets.GetChildren("root", names);
  nets.SetNodeState("DQ9", Nets::Checked);
  oxecad_ui::Tree::TreeInfo checked;
  nets.GetTreeInfo(checked, oxecad_ui::Tree::CheckedOnly(), false);
  const bool isChecked = checked.records.size() == 1 && checked.records[0]->name == "DQ9";

  std::printf("%d.%d.%d", OXECAD_UI_VERSION_MAJOR, OXECAD_UI_VERSION_MINOR, OXECAD_UI_VERSION_PATCH);
  for (const std::string& name : names) std::printf(" %s", name.c_str());
  std::printf("\n");
  return IsInOrder(names) && isChecked ? 0 : 1;
}
