// Something to look at in a debugger.
#include <oxkutils/SmartPtr.h>
#include <oxkutils/Symbol.h>
#include <uicomps/oxecad_ui.h>
#include <uiox/Suite.h>

using oxecad_ui::ColorTree;
using oxecad_ui::Tree;

/// Where the test stops.
__attribute__((noinline)) void Look(const Tree& nets) {
  // The tree is there and stays there.
  [[maybe_unused]] static const void* volatile seen;
  seen = &nets;
}

int main() {
  const oxkutils::Symbol symbol("GUI/EcadView");
  const oxkutils::Symbol empty;
  const oxkutils::SmartPtr<oxecad_ui::InputTest> held(new oxecad_ui::NumericInputTest<double>(1, 32, false));
  const oxkutils::SmartPtr<oxecad_ui::InputTest> second = held;
  const oxkutils::SmartPtr<oxecad_ui::InputTest> nothing;

  Tree::NodeInfo info;
  info.name = "power/GND";
  info.label = L"\x3A9 \"\xD83D\xDE00\"";  // a pair of code units is one character
  info.type = "net";
  info.state = Tree::Checked;
  info.expanded = true;
  ColorTree::ColorNodeInfo colored;
  colored.name = "clock";
  colored.color = 0x22AA33u;

  uiox::Suite::Get().ObtainTree("board", "nets");
  Tree nets("board", "nets");
  nets.BaseTree::AddNode("root", L"Nets", "", "group", L"", 1, 1, 0, nullptr);
  nets.AddNode(Tree::NodeInfo(colored));
  nets.BaseTree::AddNode("power", L"power", "root", "", L"", 1, 1, 0, nullptr);
  nets.AddNode(info);
  nets.SetNodeState("root", Tree::PartlyChecked);
  Look(nets);
  return symbol == empty || held == nothing || !(second == held);
}
