// A program by somebody who has nothing but an installed oxecad_ui: it compiles against the headers as C++17, links what the
// package names, and puts three nets in order.
#include <uicomps/oxecad_ui.h>

#include <cstdio>

int main() {
  oxecad_ui::Tree nets("board", "nets");
  nets.Init();
  const oxecad_ui::CAlphaNumericWStringEcadComparator order;
  const bool isInOrder = order.Compare(L"DQ9", L"DQ10") && !order.Compare(L"DQ10", L"DQ9");
  std::string rest;
  std::string head;
  oxecad_ui::BaseTree::DivideName("groups/top", rest, head);
  std::printf("%d.%d %s %s\n", OXECAD_UI_VERSION_MAJOR, OXECAD_UI_VERSION_MINOR, head.c_str(), rest.c_str());
  return isInOrder && head == "groups" && rest == "top" ? 0 : 1;
}
