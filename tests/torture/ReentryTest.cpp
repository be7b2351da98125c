// Every event, and from inside its handler everything that a handler may do. What a handler may not do is written in
// the headers: whoever ends a tree does so as the last thing, and not while a colour picker of that tree is open.

#include <gtest/gtest.h>
#include <oxcore/ColorPicker.h>
#include <tests/support/Soundness.h>
#include <tests/uicomps/color/ImageShop.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/color/EcadTree.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/dialogs/BalloonMessage.h>
#include <uicomps/input/InputTest.h>
#include <uicomps/input/InputVerifier.h>
#include <uicomps/userdata/UserDataTree.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

#include <functional>
#include <iostream>
#include <memory>
#include <set>

namespace torture {
namespace {

using namespace oxecad_ui;
using Names = std::vector<std::string>;

constexpr const char* kBalloon = "ui_balloon_message_dialog.res";

/// Which cell of the matrix is at work, for a message of the address sanitizer.
std::string g_cell;

int Nothing(void*, void*) { return 0; }

/// Where in an event the deed is done.
enum Place { BeforeTheTree, AfterTheTree, InTheDirtyHandler, InThePicker };
constexpr const char* kPlaces[] = {"before the tree", "after the tree", "in the dirty handler", "in the colour picker"};

/// A tree whose handlers do something besides.
template <class Base>
class Reacting : public Base {
 public:
  using Base::Base;
  std::function<void(Place)> act = [](Place) {};

  void OnActivate(const char* node) override {
    const std::string name = node ? node : "";
    Around([&] { Base::OnActivate(name.c_str()); });
  }
  void OnExpand(const char* node) override {
    const std::string name = node ? node : "";
    Around([&] { Base::OnExpand(name.c_str()); });
  }
  void OnCollapse(const char* node) override {
    const std::string name = node ? node : "";
    Around([&] { Base::OnCollapse(name.c_str()); });
  }
  void OnCheck(const char* node) override {
    const std::string name = node ? node : "";
    Around([&] { Base::OnCheck(name.c_str()); });
  }
  void OnSelect(int count, char** nodes, int kind) override {
    Names names(nodes, nodes + count);
    std::vector<char*> pointers;
    for (std::string& name : names) pointers.push_back(name.data());
    Around([&] { Base::OnSelect(count, pointers.data(), kind); });
  }

 private:
  template <class Event>
  void Around(Event event) {
    const std::function<void(Place)> kept = act;  // the tree may go
    kept(BeforeTheTree);
    event();
    kept(AfterTheTree);
  }
};

struct EmptyClient {};

/// The second client pointer that a kind of tree wants.
template <class Tree>
struct ClientOf {
  using Type = EmptyClient;
};
template <>
struct ClientOf<ColorTree> {
  using Type = Names;
};
template <>
struct ClientOf<CompareColorTree> {
  using Type = Names;
};
template <>
struct ClientOf<EcadTree> {
  using Type = std::set<void*>;
};

template <class Base>
class Theatre {
 public:
  using Actor = Reacting<Base>;

  Theatre() {
    suite.Reset();
    color_tests::ForgetIcons();
    oxcore::ResetColorPicker();
    const Names columns = {"a", "b", "overlap", "showMode", "dimOverlap"};
    widget = &suite.ObtainTree("dev", "tree", columns);
    suite.ObtainTree("dev", "other", columns);
    suite.FindDevice("dev")->Show();
    suite.SetCurrent("dev", "tree");
    actor = Make("tree");
    twin = Make("tree", false);
    stranger = Make("other");
    Fill(*actor);
    actor->SetOnDirtyHandler(Dirty, this, Client());
    twin->SetOnDirtyHandler(Nothing, nullptr, nullptr);
    stranger->SetOnDirtyHandler(Nothing, nullptr, nullptr);
    actor->act = [this](Place place) { Act(place); };
    oxcore::SetColorPicker([this](const oxcore::ColorPickerRequest&) {
      Act(InThePicker);
      return 0x00ABCDEFu;
    });
  }
  ~Theatre() {
    actor.reset();
    twin.reset();
    stranger.reset();
    oxcore::ResetColorPicker();
  }

  uiox::Suite& suite = uiox::Suite::Get();
  uiox::TreeWidget* widget = nullptr;
  uiox::Driver user{"dev"};
  std::unique_ptr<Actor> actor;
  /// Another component of the same widget, without callbacks of its own: the wire cannot tell those of two from each
  /// other when one of them ends.
  std::unique_ptr<Actor> twin;
  std::unique_ptr<Actor> stranger;  ///< one of another widget
  Place where = AfterTheTree;
  std::function<void(Theatre&)> deed;
  int done = 0;

  std::unique_ptr<Actor> Make(const char* name, bool with_callbacks = true) {
    std::unique_ptr<Actor> tree;
    if constexpr (std::is_same_v<Base, UserDataTree>) {
      tree = std::make_unique<Actor>("dev", name, "leaf");
    } else {
      tree = std::make_unique<Actor>("dev", name);
    }
    if (!with_callbacks) return tree;
    if constexpr (std::is_base_of_v<ColorTree, Base> || std::is_base_of_v<CompareColorTree, Base>) {
      tree->Init(nullptr);
    } else {
      tree->Init();
    }
    return tree;
  }

 private:
  static void Add(Base& tree, const char* name) {
    if constexpr (std::is_same_v<Base, CompareColorTree>) {
      CompareColorTree::CompareNodeInfo info;
      info.name = name;
      info.type = "colorvis";
      info.colorA = info.colorB = 5;
      info.designFlag = CompareColorTree::DesignBoth;
      info.expanded = true;
      tree.AddNode(info);
    } else if constexpr (std::is_same_v<Base, ColorTree>) {
      ColorTree::ColorNodeInfo info;
      info.name = name;
      info.color = 5;
      info.expanded = true;
      tree.AddNode(info);
    } else {
      Tree::NodeInfo info;
      info.name = name;
      info.type = "type";
      info.expanded = true;
      static_cast<Tree&>(tree).AddNode(info);
    }
  }

  static void Fill(Base& tree) {
    static_cast<BaseTree&>(tree).AddNode("root", L"root", "", "heading", L"", 1, 1, 0, nullptr);
    for (const char* name : {"p", "p/x", "p/y", "SelAll_q", "SelAll_q/z"}) Add(tree, name);
  }

  void* Client() {
    using Type = typename ClientOf<Base>::Type;
    if constexpr (std::is_same_v<Type, EmptyClient>) {
      return nullptr;
    } else {
      static Type client;
      client.clear();
      return &client;
    }
  }

  void Act(Place place) {
    if (place != where || done > 0 || !deed) return;
    ++done;
    deed(*this);
  }
  static int Dirty(void* self, void*) {
    static_cast<Theatre*>(self)->Act(InTheDirtyHandler);
    return 0;
  }
};

template <class Base>
struct Deed {
  const char* name;
  std::function<void(Theatre<Base>&)> act;
  bool ends_the_tree = false;
};

void OpenBalloon() {
  // The library makes the device once in a process, and each cell begins with an empty suite.
  static bool was_shown = false;
  if (was_shown && !uiox::Suite::Get().FindDevice(kBalloon)) uiox::Suite::Get().CreateDevice(kBalloon, kBalloon);
  was_shown = true;
  uiox::Suite::Get().QueueUserAction([] { uiox::Driver(kBalloon).Press("ok"); });
  EXPECT_EQ(ShowBalloonMessage(BalloonInfo, "text", 2, BalloonOk, BalloonOk, ""), BalloonOk) << g_cell;
}

template <class Base>
void Recolor(Theatre<Base>& t) {
  if constexpr (std::is_same_v<Base, ColorTree>) {
    static_cast<ColorTree&>(*t.actor).ChangeNodeColor("p", 9u);
    t.actor->ParentColorChanged("root", 8u);
  } else if constexpr (std::is_same_v<Base, CompareColorTree>) {
    t.actor->ChangeNodeInfo("p", 7, 8, 9, CompareColorTree::ShowMode::Diff, Tree::Checked,
                            CompareColorTree::DesignBoth);
  } else if constexpr (std::is_same_v<Base, UserDataTree>) {
    t.actor->OnLeafAdded("p/x");
    t.actor->UpdateParentTotals("p/x");
  } else {
    t.actor->SortNodesByType("p", Tree::ByLabel);
  }
}

template <class Base>
std::vector<Deed<Base>> Deeds() {
  using T = Theatre<Base>;
  return {
      {"deletes the node", [](T& t) { t.actor->DeleteNode("p/x"); }},
      {"deletes its parent", [](T& t) { t.actor->DeleteNode("p"); }},
      {"deletes the root", [](T& t) { t.actor->DeleteNode("root"); }},
      {"clears", [](T& t) { t.actor->Clear(); }},
      {"adds a node",
       [](T& t) { static_cast<BaseTree&>(*t.actor).AddNode("new", L"new", "p", "type", L"", 1, 1, 0, nullptr); }},
      {"moves the node", [](T& t) { t.actor->MoveNodeBefore("p/x", "SelAll_q", nullptr); }},
      {"changes a colour", [](T& t) { Recolor(t); }},
      {"changes a check",
       [](T& t) {
         t.actor->SetNodeState("p/x", Tree::PartlyChecked);
         t.actor->SetChildrenCheckSensitive("p", false);
       }},
      {"changes the selection", [](T& t) { t.user.Select("tree", {"p/y"}, 2, "p/y"); }},
      {"toggles another check box", [](T& t) { t.user.Check("tree", "p/y"); }},
      {"adds callbacks",
       [](T&) {
         for (const int reason : {3, 4, 7, 29, 30, 35})
           ui_add_action("dev", "tree", reason, Nothing, nullptr, std::intptr_t{0});
       }},
      {"removes callbacks",
       [](T& t) {
         for (const int reason : {3, 4, 7, 29, 30, 35}) ui_remove_action("dev", "tree", reason, Nothing);
         t.twin.reset();
       }},
      {"opens a balloon", [](T&) { OpenBalloon(); }},
      {"destroys the tree", [](T& t) { t.actor.reset(); }, true},
      {"destroys another one", [](T& t) { t.stranger.reset(); }},
      {"destroys the twin", [](T& t) { t.twin.reset(); }},
      {"sets another tree in its place",
       [](T& t) {
         t.actor.reset();
         t.actor = t.Make("tree");
       },
       true},
  };
}

template <class Base>
struct Event {
  const char* name;
  std::function<void(Theatre<Base>&)> happen;
};

template <class Base>
std::vector<Event<Base>> Events() {
  using T = Theatre<Base>;
  std::vector<Event<Base>> events = {
      {"activate", [](T& t) { t.user.Activate("tree", "p/x"); }},
      {"select",
       [](T& t) {
         t.user.Select("tree", {"p/x", "p/y", "SelAll_q"});
       }},
      {"toggle selected", [](T& t) { t.user.ToggleSelected("tree", "p/x"); }},
      {"collapse", [](T& t) { t.user.Collapse("tree", "p"); }},
      {"expand",
       [](T& t) {
         t.widget->Store().SetExpanded(t.widget->Store().Find("p"), false);
         t.user.Expand("tree", "p");
       }},
      {"check", [](T& t) { t.user.Check("tree", "p/x"); }},
      {"check of several",
       [](T& t) {
         t.widget->Store().Select({t.widget->Store().Find("p/x"), t.widget->Store().Find("p/y")});
         t.user.Check("tree", "p/x");
       }},
  };
  if constexpr (std::is_same_v<Base, CompareColorTree>) {
    events.push_back({"click on a colour", [](T& t) { t.user.ClickCell("tree", "p/x", "a"); }});
    events.push_back({"choice of a show mode", [](T& t) {
                        t.user.ClickCell("tree", "p/x", "showMode");
                        t.user.ChooseCellOption("tree", "p/x", "showMode", "a_show");
                      }});
    events.push_back({"toggled dim", [](T& t) { t.user.ToggleCellCheck("tree", "p/x", "dimOverlap"); }});
  }
  return events;
}

/// How often each deed was done in all cells of a kind of tree.
template <class Base>
void PlayAll(const char* kind) {
  int cells = 0;
  int done = 0;
  for (const Event<Base>& event : Events<Base>()) {
    for (const Deed<Base>& deed : Deeds<Base>()) {
      for (const Place place : {BeforeTheTree, AfterTheTree, InTheDirtyHandler, InThePicker}) {
        if (deed.ends_the_tree && (place == BeforeTheTree || place == InThePicker)) continue;
        g_cell = std::string(kind) + ": on " + event.name + ' ' + deed.name + ' ' + kPlaces[place];
        SCOPED_TRACE(g_cell);
        Theatre<Base> theatre;
        theatre.where = place;
        theatre.deed = deed.act;
        event.happen(theatre);
        ++cells;
        done += theatre.done;
        ASSERT_TRUE(test_support::IsSound(*theatre.widget));
        if (theatre.actor) {
          theatre.actor->Clear();
          ASSERT_FALSE(theatre.actor->HasRoot());
        }
        for (const int reason : {3, 4, 7, 29, 30, 35}) ui_remove_action("dev", "tree", reason, Nothing);
      }
    }
  }
  std::cout << cells << " cells, " << done << " reached\n";
  EXPECT_GT(done, cells / 3) << "most cells must be played";
}

TEST(Reentry, OfAPlainTree) { PlayAll<Tree>("Tree"); }
TEST(Reentry, OfAColorTree) { PlayAll<ColorTree>("ColorTree"); }
TEST(Reentry, OfAnEcadTree) { PlayAll<EcadTree>("EcadTree"); }
TEST(Reentry, OfACompareTree) { PlayAll<CompareColorTree>("CompareColorTree"); }
TEST(Reentry, OfAUserDataTree) { PlayAll<UserDataTree>("UserDataTree"); }

// --- Entry fields
// ------------------------------------------------------------------------------------------------------

class ReactingTest : public InputTest {
 public:
  std::function<void()> act = [] {};
  bool accepts = false;
  bool CanBeAPartOfValidInput(const wchar_t*) const override {
    act();
    return accepts;
  }
  bool GetValidInput(const wchar_t*, std::wstring& out) const override {
    act();
    if (accepts) out = L"valid";
    return accepts;
  }
};

TEST(Reentry, OfAnInputVerifier) {
  struct Row {
    const char* name;
    std::function<void(std::unique_ptr<InputVerifier>&, const oxkutils::SmartPtr<InputTest>&)> act;
  };
  using V = std::unique_ptr<InputVerifier>;
  using Held = oxkutils::SmartPtr<InputTest>;
  const Row rows[] = {
      {"removes the field", [](V& v, const Held&) { v->RemoveControl("name"); }},
      {"removes another", [](V& v, const Held&) { v->RemoveControl("other"); }},
      {"clears", [](V& v, const Held&) { v->Clear(); }},
      {"adds a field", [](V& v, const Held& test) { v->AddControl("third", test); }},
      {"removes and adds it", [](V& v, const Held& test) { v->RemoveControl("name"), v->AddControl("name", test); }},
      {"moves the focus", [](V&, const Held&) { uiox::Driver("dlg").FocusIn("other"); }},
      {"changes the text", [](V&, const Held&) { uiox::Driver("dlg").SetText("name", L"changed"); }},
      {"names another dialog", [](V& v, const Held&) { v->SetDev("dlg"); }},
      {"assigns another verifier", [](V& v, const Held&) { v->Clear(), *v = InputVerifier("dlg"); }},
      {"opens a balloon", [](V&, const Held&) { OpenBalloon(); }},
  };
  uiox::Suite& suite = uiox::Suite::Get();
  int cells = 0;
  for (const Row& row : rows) {
    for (const bool accepts : {false, true}) {
      for (const char* event : {"typing", "focus in", "focus out"}) {
        g_cell = std::string(event) + ' ' + row.name;
        SCOPED_TRACE(g_cell);
        suite.Reset();
        suite.ObtainTree("dev", "tree");
        suite.LoadDevice(R"({ "components": [ { "name": "name", "class": "InputPanel" },
          { "name": "other", "class": "InputPanel" }, { "name": "third", "class": "InputPanel" } ] })",
                         "dlg");
        suite.SetCurrent("dev", "tree");
        auto verifier = std::make_unique<InputVerifier>("dlg");
        auto* const reacting = new ReactingTest;
        const Held test(reacting);
        verifier->AddControl("name", test);
        verifier->AddControl("other", test);
        int depth = 0;
        reacting->accepts = accepts;
        reacting->act = [&] {
          if (depth++ == 0) row.act(verifier, test);
        };
        const uiox::Driver user("dlg");
        user.FocusIn("name");
        user.Type("name", L"x");
        if (event[0] == 'f') user.FocusOut("name");
        verifier->Clear();
        reacting->act = [] {};
        ++cells;
      }
    }
  }
  suite.Reset();
  std::cout << cells << " cells\n";
}

}  // namespace
}  // namespace torture

/// Called by the address sanitizer before it ends the process.
extern "C" void __asan_on_error() { std::cerr << "in the cell: " << torture::g_cell << '\n'; }
