// Any sequence of operations and of a user's actions on any kind of tree: after each step the tree is sound and holds
// what a plain model holds.

#include <fuzz/Input.h>
#include <fuzz/TreeModel.h>
#include <oxcore/ColorPicker.h>
#include <tests/support/Soundness.h>
#include <uicomps/color/ColorIconBag.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/color/EcadTree.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/userdata/CountedLabel.h>
#include <uicomps/userdata/UserDataTree.h>
#include <uiox/Driver.h>
#include <uiox/StrictMode.h>

#include <iostream>
#include <memory>
#include <set>

namespace {

using fuzz::Require;
using fuzz::TreeModel;
using namespace oxecad_ui;

constexpr const char* kNames[] = {"root", "a",   "b",   "c",          "SelAll_d",  "a/x", "a/y",
                                  "b/x",  "b/y", "c/z", "SelAll_d/1", "groups/of", "e f", ""};
constexpr const wchar_t* kLabels[] = {L"", L"R10", L"R9", L"r9", L"<b>Parts (3)</b>", L"-5", L"Total (1)"};
constexpr unsigned kColors[] = {1, 2, 0xFF00FF, 0xFFFFFFFF};

int Ignore(void*, void*) { return 0; }

template <class Kind>
class Play {
 public:
  explicit Play(fuzz::Input& input)
      : input_(input),
        strict_([](const std::string& line) {
          std::cerr << line << '\n';
          std::abort();
        }),
        tree_(Make()) {
    if constexpr (kColored || kCompared) {
      tree_->Init(nullptr);
      tree_->SetOnDirtyHandler(Ignore, nullptr, &changed_);
    } else {
      tree_->Init();
      tree_->SetOnDirtyHandler(Ignore, nullptr, std::is_same_v<Kind, EcadTree> ? &selected_ : nullptr);
    }
    AddPlain("root", "");
  }

  void Run() {
    for (int step = 0; step < 100 && !input_.IsEmpty(); ++step) {
      Step();
      Check();
    }
    CheckReading();
  }

 private:
  static constexpr bool kColored = std::is_same_v<Kind, ColorTree>;
  static constexpr bool kCompared = std::is_same_v<Kind, CompareColorTree>;
  static constexpr bool kCounted = std::is_same_v<Kind, UserDataTree>;

  static std::unique_ptr<Kind> Make() {
    if constexpr (kCounted) {
      return std::make_unique<Kind>("dev", "tree", "leaf");
    } else {
      return std::make_unique<Kind>("dev", "tree");
    }
  }

  std::string Name() { return kNames[input_.Below(std::size(kNames))]; }
  const wchar_t* Label() { return kLabels[input_.Below(std::size(kLabels))]; }
  unsigned Color() { return kColors[input_.Below(std::size(kColors))]; }
  Tree& Plain() { return *tree_; }

  TreeModel::Node Fresh(const std::wstring& label, const std::string& type, unsigned number = 0) {
    TreeModel::Node node;
    node.label = label;
    node.type = type;
    node.number = number;
    return node;
  }
  /// What an addition must have said, and the model's share in it.
  void Added(bool added, const std::string& name, const std::string& parent, const std::string& before,
             TreeModel::Node node) {
    const bool can_be = !name.empty() && !model_.Has(name) && (parent.empty() || model_.Has(parent)) &&
                        (before.empty() || (model_.Has(before) && model_.ParentOf(before) == parent));
    Require(added == can_be);
    if (added) model_.Add(name, parent, before, std::move(node));
  }
  void AddPlain(const std::string& name, const std::string& parent) {
    const std::wstring label = Label();
    const bool added = static_cast<BaseTree&>(*tree_).AddNode(name.c_str(), label.c_str(), parent.c_str(), "leaf", L"",
                                                              1, 1, 0, nullptr);
    Added(added, name, parent, "", Fresh(label, "leaf"));
  }

  void Step() {
    switch (input_.Below(16)) {
      case 0:
        return AddPlain(Name(), Name());
      case 1: {
        const std::string name = Name(), parent = Name(), before = Name();
        const std::wstring label = Label();
        const bool added = static_cast<BaseTree&>(*tree_).AddNodeBefore(name.c_str(), label.c_str(), parent.c_str(),
                                                                        before.empty() ? nullptr : before.c_str(),
                                                                        "type", L"", 1, 0, 0, nullptr);
        return Added(added, name, parent, before, Fresh(label, "type"));
      }
      case 2:
        return Insert();
      case 3: {
        const std::string name = Name();
        const bool was_there = model_.Has(name);
        Require(tree_->DeleteNode(name.c_str()) == was_there);
        if (was_there) model_.Delete(name);
        return;
      }
      case 4:
        return Move();
      case 5: {
        const std::string name = Name();
        const wchar_t* label = Label();
        Require(tree_->ModifyNodeLabel(name.c_str(), label) == model_.Has(name));
        if (model_.Has(name)) model_.At(name).label = label;
        return;
      }
      case 6: {
        const std::string name = Name();
        const auto state = static_cast<Tree::NodeState>(input_.Below(3));
        Require(tree_->SetNodeState(name.c_str(), state) == model_.Has(name));
        if (model_.Has(name)) model_.At(name).state = state;
        return;
      }
      case 7:
        return Sort();
      case 8:
        return AddSorted();
      case 9:
        return Query();
      case 10:
        return ActAsUser();
      case 11:
        return AddRecord();
      case 12:
        tree_->ExpandAll();
        tree_->CollapseAll();
        tree_->SetChildrenCheckSensitive(nullptr, input_.Below(2) == 0);
        return tree_->SetRedraw(true);
      case 13:
        if (input_.Below(8) == 0) Clear();
        return;
      default:
        return DoOwn();
    }
  }

  void Insert() {
    const std::string name = Name(), parent = Name(), before = Name();
    const std::wstring label = Label();
    const bool is_child = model_.Has(name) && model_.ParentOf(name) == parent;
    const bool inserted = tree_->InsertNode(name.c_str(), label.c_str(), parent.c_str(), nullptr,
                                            before.empty() ? nullptr : before.c_str(), "type", L"", 1, 0, 0);
    if (is_child && !parent.empty()) return Require(inserted);
    if (model_.Has(name)) return Require(!inserted || parent.empty());
    Added(inserted, name, parent, before, Fresh(label, "type"));
  }
  void Move() {
    const std::string name = Name(), parent = Name(), before = Name();
    const bool moved = tree_->MoveNodeBefore(name.c_str(), parent.c_str(), before.empty() ? nullptr : before.c_str());
    const bool can_be = model_.Has(name) && (parent.empty() || model_.Has(parent)) && !model_.IsWithin(parent, name) &&
                        (before.empty() || (model_.Has(before) && model_.ParentOf(before) == parent));
    if (!can_be) return Require(!moved);
    Require(moved);
    if (before != name) model_.Move(name, parent, before);
  }
  /// Takes the order of a node's children over from the tree, after a look that they are the same ones.
  void TakeOrder(const std::string& parent) {
    std::vector<std::string> names;
    tree_->GetChildren(parent.c_str(), names);
    std::vector<std::string>& row = model_.Children(parent);
    Require(std::is_permutation(names.begin(), names.end(), row.begin(), row.end()));
    row = names;
  }
  void Sort() {
    const std::string name = Name();
    Require(tree_->SortNodesByType(name.c_str(), Tree::ByLabel));
    if (!model_.Has(name)) return;
    TakeOrder(name);
    const CAlphaNumericWStringComparator order;
    if constexpr (!kCounted) {  // its records cannot be read as plain ones
      const std::vector<std::string>& row = model_.Children(name);
      for (std::size_t i = 1; i < row.size(); ++i) {
        Require(!order.Compare(model_.At(row[i]).label, model_.At(row[i - 1]).label));
      }
    }
  }
  void AddSorted() {
    const std::string name = Name(), parent = Name();
    const std::wstring label = Label();
    if (!model_.Has(parent)) return;
    // Records of this kind cannot be read as plain ones: each search goes through all of its thousands of failures.
    if (kCounted && input_.Below(16) != 0) return;
    const bool added =
        tree_->AddEcadNode(name.c_str(), label.c_str(), parent.c_str(), Tree::ByLabel, "type", L"", 1, 0, 0, nullptr);
    if (!added) return;  // a sibling that it remembers may be gone or elsewhere
    Require(!model_.Has(name) && !name.empty());
    model_.Add(name, parent, "", Fresh(label, "type"));
    TakeOrder(parent);
  }
  void Query() {
    const std::string name = Name();
    std::vector<std::string> leaves;
    tree_->GetLeaves(name.c_str(), leaves);
    Tree::TreeInfo all, checked, branch;
    tree_->GetTreeInfo(all, Tree::Everything(), true);
    tree_->GetCheckedNodes(checked);
    tree_->GetBranchInfo(name.c_str(), branch, CompareColorTree::ColorNodeFilter());
    Require(checked.records.size() <= all.records.size() && all.records.size() <= model_.Nodes().size());
    const std::unique_ptr<Tree::NodeInfo> record(Plain().GetNodeInfo(name.c_str()));
    Require((record == nullptr) == name.empty());
    if (record && model_.Has(name)) Require(record->label == model_.At(name).label);
    Require(tree_->DoesNotExist("root", name.c_str()) == (!model_.Has(name) || model_.ParentOf(name) != "root"));
  }
  void Clear() {
    tree_->Clear();
    if (model_.Has(model_.FirstRoot())) model_.Delete(model_.FirstRoot());
    if (!model_.Has("root")) AddPlain("root", "");
  }

  void ActAsUser() {
    const uiox::Driver user("dev");
    const std::string name = Name(), other = Name();
    oxcore::ResetColorPicker();
    switch (input_.Below(7)) {
      case 0: {
        const unsigned color = Color();
        oxcore::QueueColorAnswer(color);
        if (!user.Activate("tree", name) || !kColored || color == 0xFFFFFFFFu) return;
        model_.GiveColor(name, color);
        return model_.SumColorsUp(model_.ParentOf(name));
      }
      case 1:
        user.Select("tree", {name, other});
        return;
      case 2:
        user.ToggleSelected("tree", name);
        return;
      case 3:
        user.Expand("tree", name);
        return;
      case 4:
        user.Collapse("tree", name);
        return;
      case 5:
        user.Check("tree", name);
        return TakeStates();
      default:
        oxcore::QueueColorAnswer(Color());
        user.ClickCell("tree", name, "a");
        user.ClickCell("tree", name, "showMode");
        user.ChooseCellOption("tree", name, "showMode", "diff_show");
        user.ToggleCellCheck("tree", name, "dimOverlap");
    }
  }
  void TakeStates() {
    for (const auto& [name, node] : model_.Nodes()) model_.At(name).state = tree_->GetNodeState(name.c_str());
  }

  /// The kind's own records.
  void AddRecord() {
    const std::string name = Name();
    std::string parent, rest;
    BaseTree::DivideName(name, rest, parent);
    const std::wstring label = Label();
    const std::wstring shown = label.empty() ? std::wstring(rest.begin(), rest.end()) : label;
    const auto fill = [&](Tree::NodeInfo& info, const char* type) {
      info.name = name;
      info.label = label;
      info.type = type;
    };
    if constexpr (kColored) {
      ColorTree::ColorNodeInfo info;
      fill(info, "");
      info.color = Color();
      const std::string type = info.color == 0xFFFFFFFFu ? "mix" : "color_square.png_" + std::to_string(info.color);
      Added(tree_->AddNode(info), name, parent, "", Fresh(shown, type, info.color));
      model_.SumColorsUp(parent);
    } else if constexpr (kCompared) {
      CompareColorTree::CompareNodeInfo info;
      fill(info, "colorvis");
      info.colorA = Color();
      info.colorB = Color();
      info.designFlag = static_cast<CompareColorTree::DesignFlag>(input_.Below(4));
      const bool was_there = model_.Has(name);
      tree_->AddNode(info);
      const bool is_there = tree_->GetNodeType(name.c_str()) == "colorvis";
      if (!was_there && is_there) Added(true, name, parent, "", Fresh(shown, "colorvis"));
    } else if constexpr (kCounted) {
      UserDataTree::DataNodeInfo info;
      fill(info, input_.Below(2) ? "leaf" : "branch");
      Added(tree_->AddNode(info), name, parent, "", Fresh(shown, info.type));
    } else {
      Tree::NodeInfo info;
      fill(info, "type");
      Added(Plain().AddNode(info), name, parent, "", Fresh(shown, "type"));
    }
  }

  /// The kind's own operations.
  void DoOwn() {
    const std::string name = Name();
    if constexpr (kColored) {
      const unsigned color = Color();
      const bool down = input_.Below(2) == 0;
      if (down) {
        tree_->ParentColorChanged(name.c_str(), color);
      } else {
        static_cast<ColorTree&>(*tree_).ChangeNodeColor(name.c_str(), color);
      }
      if (model_.Has(name)) model_.GiveColor(name, color);
      if (!down && model_.Has(name)) model_.SumColorsUp(model_.ParentOf(name));
    } else if constexpr (kCompared) {
      tree_->ChangeNodeInfo(name.c_str(), Color(), Color(), Color(), CompareColorTree::ShowMode::Diff, Tree::Checked,
                            static_cast<CompareColorTree::DesignFlag>(input_.Below(4)));
      tree_->ChildInfoChanged(name.c_str());
    } else if constexpr (kCounted) {
      const bool counts = input_.Below(2) == 0;
      if (counts) {
        tree_->OnLeafAdded(name.c_str());
      } else {
        tree_->UpdateParentTotals(name.c_str());
      }
      for (std::string branch = model_.ParentOf(name); !branch.empty(); branch = model_.ParentOf(branch)) {
        TreeModel::Node& node = model_.At(branch);
        unsigned total = 0;
        for (const std::string& child : node.children) {
          total += model_.At(child).type == "leaf" ? 1 : model_.At(child).number;
        }
        node.number = counts ? node.number + 1 : total;
        node.label = CountedLabel(node.label, std::to_wstring(static_cast<int>(node.number)));
      }
    } else if constexpr (std::is_same_v<Kind, EcadTree>) {
      Require(tree_->GetNodeData(name.c_str()) == nullptr);
    } else {
      Tree copy(*tree_);
      Require(std::string(copy.GetName()) == "tree");
      tree_->Init();
    }
  }

  static void RequireSound(const testing::AssertionResult& sound) {
    if (!sound) std::cerr << sound.message() << '\n';
    Require(bool(sound));
  }
  void Check() {
    const uiox::TreeWidget& widget = test_support::WidgetOf(*tree_);
    const uiox::TreeStore& store = widget.Store();
    RequireSound(test_support::IsSound(widget));
    Require(store.Size() == model_.Nodes().size());
    for (const auto& [name, node] : model_.Nodes()) {
      const uiox::NodeId id = store.Find(name);
      Require(id != uiox::kNoNode && store.Label(id) == node.label);
      Require(uiox::Suite::Get().Types().Name(store.Type(id)) == node.type);
      const uiox::NodeId parent = store.Parent(id);
      Require(node.parent == (parent == uiox::kTop ? "" : store.Name(parent)));
      Require(store.ChildCount(id) == node.children.size());
      for (std::uint32_t row = 0; row < node.children.size(); ++row) {
        Require(node.children[row] == store.Name(store.ChildAt(id, row)));
      }
      if constexpr (kColored || kCounted) {
        Require(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(store.UserData(id))) == node.number);
      }
    }
  }
  /// What the library reads is what is there.
  void CheckReading() {
    RequireSound(test_support::IsSound(*tree_));
    for (const auto& [name, node] : model_.Nodes()) {
      Require(tree_->GetParent(name.c_str()) == node.parent);
      Require(tree_->GetNodeType(name.c_str()) == node.type);
      Require(tree_->GetNodeState(name.c_str()) == node.state);
      if constexpr (kColored) Require(static_cast<ColorTree&>(*tree_).GetNodeColor(name.c_str()) == node.number);
    }
  }

  fuzz::Input& input_;
  TreeModel model_;
  std::vector<std::string> changed_;
  std::set<void*> selected_;
  uiox::StrictMode strict_;
  std::unique_ptr<Kind> tree_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  uiox::Suite& suite = uiox::Suite::Get();
  suite.Reset();
  ColorIconBag::Get().m_known.clear();
  suite.ObtainTree("dev", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
  switch (input.Below(5)) {
    case 0:
      Play<Tree>(input).Run();
      break;
    case 1:
      Play<ColorTree>(input).Run();
      break;
    case 2:
      Play<EcadTree>(input).Run();
      break;
    case 3:
      Play<CompareColorTree>(input).Run();
      break;
    default:
      Play<UserDataTree>(input).Run();
  }
  return 0;
}
