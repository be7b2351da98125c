// Parts by kind: each branch counts the leaves below it.
#include <oxecadutils/StringConversion.h>
#include <uicomps/oxecad_ui.h>

#include <cstdio>

using oxecad_ui::UserDataTree;

// Takes the leaves and leaves the branches out: the data of a branch is its count and no pointer.
class LeavesOnly : public oxecad_ui::Tree::NodeFilter {
 public:
  Result operator()(const oxecad_ui::Tree* tree, const char* node) const override {
    return tree->GetNodeType(node) == "part" ? Accept : SkipNode;
  }
  Result operator()(const oxecad_ui::Tree::NodeInfo& info) const override {
    return info.type == "part" ? Accept : SkipNode;
  }
};

void AddBranch(UserDataTree& parts, const char* name, const wchar_t* label) {
  UserDataTree::DataNodeInfo info;
  info.name = name;
  info.label = label;
  info.type = "group";
  info.expanded = true;
  parts.AddNode(info);
}

int main() {
  if (ui_create_device("user_data_tree.res", "board") != 0) return 1;
  UserDataTree parts("board", "parts", "part");
  parts.Init();

  AddBranch(parts, "root", L"Parts");
  AddBranch(parts, "Resistors", L"<b>Resistors</b>");
  AddBranch(parts, "Capacitors", L"<b>Capacitors</b>");
  static int objects[3];
  const char* const names[] = {"Resistors/R1", "Resistors/R2", "Capacitors/C1"};
  for (int i = 0; i < 3; ++i) {
    UserDataTree::DataNodeInfo info;
    info.name = names[i];
    info.type = "part";
    info.data = &objects[i];
    parts.AddNode(info);
    parts.OnLeafAdded(names[i]);
  }

  for (const char* branch : {"root", "Resistors", "Capacitors"}) {
    std::printf("%s\n", oxecadutils::WideStrToUtf8(parts.GetNodeLabel(branch)).c_str());
  }
  std::vector<void*> data;
  parts.GetData(data, nullptr, true, LeavesOnly());
  std::printf("%zu objects\n", data.size());
  ui_activate_device("board");
  return 0;
}
