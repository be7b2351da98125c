// Natural order, with and without the sign of numbers, and a comparator of one's own.
#include <oxecadutils/StringConversion.h>
#include <uicomps/oxecad_ui.h>

#include <algorithm>
#include <cstdio>
#include <vector>

using oxecad_ui::CAlphaNumericWStringComparator;
using oxecad_ui::CAlphaNumericWStringEcadComparator;
using oxecad_ui::CComparator;

// Tells upper and lower case apart: the folding of characters is one of the places to step in.
class CaseSensitive : public CAlphaNumericWStringEcadComparator {
 public:
  wchar_t ToUpper(wchar_t c) const override { return c; }
};

void Show(oxecad_ui::BaseTree& tree, const char* group, const wchar_t* title, const CComparator<std::wstring>& order) {
  std::vector<std::wstring> names{L"V-5", L"r9", L"V-12", L"R10", L"R9", L"U2"};
  std::sort(names.begin(), names.end(), [&](const auto& a, const auto& b) { return order.Compare(a, b); });
  tree.AddNode(group, title, "root", "group", L"", 1, 1, 0, nullptr);
  std::printf("%s:", group);
  for (const std::wstring& name : names) {
    const std::string text = oxecadutils::WideStrToUtf8(name);
    tree.AddNode((std::string(group) + text).c_str(), name.c_str(), group, "net", L"", 1, 0, 0, nullptr);
    std::printf(" %s", text.c_str());
  }
  std::printf("\n");
}

int main() {
  if (ui_create_device("comparators.res", "board") != 0) return 1;
  oxecad_ui::BaseTree tree("board", "orders");
  tree.AddNode("root", L"Orders", "", "group", L"", 1, 1, 0, nullptr);
  Show(tree, "signed", L"Numbers with their sign", CAlphaNumericWStringComparator());
  Show(tree, "ecad", L"As names of a design", CAlphaNumericWStringEcadComparator());
  Show(tree, "own", L"Upper case first", CaseSensitive());
  ui_activate_device("board");
  return 0;
}
