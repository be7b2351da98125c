// A test without a display: the user is played by names, and the toolkit's books must be even at the end.
#include <uicomps/oxecad_ui.h>
#include <uiox/Driver.h>
#include <uiox/StrictMode.h>
#include <uiox/Suite.h>

#include <cstdio>
#include <string>

class Nets : public oxecad_ui::Tree {
 public:
  using Tree::Tree;
  void OnActivate(const char* node) override { std::printf("activated %s\n", node); }
};

int main() {
  uiox::StrictMode books([](const std::string& fault) { std::printf("fault: %s\n", fault.c_str()); });
  const char* const description = R"({"title": "Nets",
      "components": [{"name": "nets", "class": "Tree", "checkBoxes": true}]})";
  if (!uiox::Suite::Get().LoadDevice(description, "board")) return 1;
  {
    Nets nets("board", "nets");
    nets.Init();
    nets.AddNode("root", L"Nets", "", "group", L"", 1, 1, 0, nullptr);
    for (const char* net : {"DQ1", "DQ2"}) nets.AddNode(net, L"a net", "root", "net", L"", 1, 0, 0, nullptr);

    const uiox::Driver user("board");
    user.Check("nets", "DQ1");
    std::printf("DQ1 %s\n", nets.GetNodeState("DQ1") == oxecad_ui::Tree::Checked ? "is checked" : "is not checked");
    user.Activate("nets", "DQ2");
    if (!user.Check("nets", "DQ3")) std::printf("there is no DQ3\n");
  }
  std::printf("%zu faults, %zu leftovers\n", books.Faults(), books.Leftovers().size());
  return 0;
}
