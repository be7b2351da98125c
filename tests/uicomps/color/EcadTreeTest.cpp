#include <tests/uicomps/VirtualSlot.h>
#include <tests/uicomps/color/ColorTreeWire.h>
#include <uicomps/color/EcadTree.h>

#include <memory>
#include <set>
#include <type_traits>

namespace color_tests {
namespace {

using oxecad_ui::EcadTree;
using oxecad_ui::VirtualSlot;
using Objects = std::set<void*>;

static_assert(std::is_same_v<decltype(&EcadTree::OnActivate), void (EcadTree::*)(const char*)>);
static_assert(std::is_same_v<decltype(&EcadTree::OnSelect), void (EcadTree::*)(int, char**, int)>);
static_assert(std::is_same_v<decltype(&EcadTree::OnCheck), void (Tree::*)(const char*)>, "the plain tree's");
static_assert(sizeof(EcadTree) == sizeof(Tree), "no members of its own");

TEST(EcadTreeSlots, StandInTheOrderOfTheInterface) {
  EXPECT_EQ(VirtualSlot(&EcadTree::Init), 1);
  EXPECT_EQ(VirtualSlot(&EcadTree::Clear), 2);
  EXPECT_EQ(VirtualSlot(&EcadTree::OnActivate), 3);
  EXPECT_EQ(VirtualSlot(&EcadTree::OnCollapse), 4);
  EXPECT_EQ(VirtualSlot(&EcadTree::OnExpand), 5);
  EXPECT_EQ(VirtualSlot(&EcadTree::OnSelect), 6);
  EXPECT_EQ(VirtualSlot(&EcadTree::OnCheck), 7);
  EXPECT_EQ(VirtualSlot(static_cast<void* (EcadTree::*)(const char*) const>(&EcadTree::GetNodeData)), -1);
}

/// Every object is known by its letter.
class EcadTreeWire : public testing::Test {
 protected:
  EcadTreeWire() {
    tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &objects);
    for (char& letter : letters) toolkit.NamePointer(&letter, std::string("&") + letter);
  }
  ~EcadTreeWire() override { toolkit.TakeLines(); }

  void* Object(char letter) { return &letters[letter - 'A']; }
  void Stands(const std::string& node, char letter) { toolkit.When(Doing(2203, node)).Give(260, Object(letter)); }
  void Below(const std::string& node, Names children) {
    toolkit.When(Doing(2202, node)).Give(284, std::move(children));
  }
  void Current(const char* node) { toolkit.When(Retrieving(53)).Give(53, node); }
  void Select(const Names& names, int kind) {
    std::vector<std::string> copies = names;
    std::vector<char*> nodes;
    for (std::string& name : copies) nodes.push_back(name.data());
    tree.OnSelect(static_cast<int>(nodes.size()), nodes.empty() ? nullptr : nodes.data(), kind);
  }
  /// The letters of the selected objects, in order.
  std::string Selected() const {
    std::string text;
    for (void* object : objects) text += *static_cast<char*>(object);
    return text;
  }

  char letters[8] = {'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H'};
  RecordingToolkit toolkit;
  DirtySpy spy;
  Objects objects;
  EcadTree tree{"dev", "tree"};
};

class EcadTreeObject : public EcadTreeWire {};

TEST_F(EcadTreeObject, IsTheNodesUserData) {
  Stands("n", 'A');
  EXPECT_EQ(tree.GetNodeData("n"), Object('A'));
  EXPECT_TRUE(toolkit.Took(R"(do dev:tree 2203 InquireNode "n" | 260->&A | 0)"));
}

TEST_F(EcadTreeObject, IsNullWhenItCannotBeRead) {
  Stands("n", 'A');
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    toolkit.FailCall(1, failure);
    EXPECT_EQ(tree.GetNodeData("n"), nullptr) << Name(failure);
  }
}

TEST_F(EcadTreeObject, IsAlsoReadAsTheBaseTreeDoes) {
  toolkit.When(Doing(2202, "n")).Give(260, Object('B'));
  void* data = nullptr;
  EXPECT_TRUE(tree.GetNodeData("n", data));
  EXPECT_EQ(data, Object('B'));
}

class EcadTreeActivation : public EcadTreeWire {};

TEST_F(EcadTreeActivation, ExpandsTheCurrentNodeWhateverIsGiven) {
  Current("c");
  tree.OnActivate("n");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 53->"c" | 0
    do dev:tree 2034 QueryNode "c" | 256->0 | 0
    do dev:tree 2036 ExpandNode "c" 0 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

TEST_F(EcadTreeActivation, LeavesAnExpandedNodeAsItIs) {
  Current("c");
  toolkit.When(Doing(2034, "c")).Give(256, 1);
  tree.OnActivate("c");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 53->"c" | 0
    do dev:tree 2034 QueryNode "c" | 256->1 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

TEST_F(EcadTreeActivation, ExpandsWhenTheToolkitCannotSay) {
  Current("c");
  for (const Failure failure : {Failure::Refused, Failure::Scribbled}) {
    toolkit.FailCall(2, failure);
    tree.OnActivate("c");
    EXPECT_TRUE(toolkit.Took(R"(
      retrieve dev:tree | 53->"c" | 0
      do dev:tree 2034 QueryNode "c" | 256=? | 0 => 1
      do dev:tree 2036 ExpandNode "c" 0 | 0
    )")) << Name(failure);
  }
}

TEST_F(EcadTreeActivation, OnlyTellsWithoutACurrentNode) {
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    Current("c");
    toolkit.FailCall(1, failure);
    tree.OnActivate("c");
    EXPECT_EQ(toolkit.TakeLines().size(), 1u) << Name(failure);
    EXPECT_EQ(spy.TakeReasons(), Reasons{1}) << Name(failure);
  }
}

TEST_F(EcadTreeActivation, DoesNotTouchTheSelectedObjects) {
  objects = {Object('A')};
  Current("c");
  tree.OnActivate("c");
  EXPECT_EQ(Selected(), "A");
}

TEST_F(EcadTreeActivation, DoesNotAskWhetherItIsAllowed) {
  tree.SetAllowActivate(false);
  tree.OnActivate("c");
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
}

class EcadTreeCopies : public EcadTreeWire {};

TEST_F(EcadTreeCopies, ShareWidgetAndListener) {
  EcadTree copy(tree);
  EcadTree other("other", "other");
  other = tree;
  for (EcadTree* one : {&copy, &other}) {
    EXPECT_STREQ(one->GetDevice(), "dev");
    EXPECT_STREQ(one->GetName(), "tree");
    one->OnSelect(0, nullptr, 0);
    EXPECT_EQ(spy.TakeReasons(), Reasons{2});
  }
}

TEST_F(EcadTreeCopies, MayBeEndedByTheirHandler) {
  auto mortal = std::make_unique<EcadTree>(tree);
  spy.action = [&] { mortal.reset(); };
  mortal->OnActivate("n");
  EXPECT_EQ(mortal, nullptr);
  mortal = std::make_unique<EcadTree>(tree);
  mortal->OnSelect(0, nullptr, 0);
  EXPECT_EQ(mortal, nullptr);
}

class EcadTreeSelection : public EcadTreeWire {};

TEST_F(EcadTreeSelection, ReplacesTheObjects) {
  objects = {Object('H')};
  Stands("a", 'A');
  Stands("b", 'B');
  Select({"b", "a"}, 0);
  EXPECT_EQ(Selected(), "AB");
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2203 InquireNode "b" | 260->&B | 0
    do dev:tree 2203 InquireNode "a" | 260->&A | 0
  )")) << "the current node counts for kind 2 alone";
}

TEST_F(EcadTreeSelection, OfNothingEndsEmptyAndTells) {
  for (const int kind : {0, 1, 3, -1}) {
    objects = {Object('H')};
    Select({}, kind);
    EXPECT_EQ(Selected(), "") << kind;
    EXPECT_EQ(spy.TakeReasons(), Reasons{2}) << kind;
  }
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(EcadTreeSelection, WithoutASetOnlyTells) {
  tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, nullptr);
  Select({"SelAll_x", "a"}, 2);
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

TEST_F(EcadTreeSelection, OfASelectAllNodeTakesItsChildrenAndLetsItGo) {
  Below("SelAll_x", {"a", "b", "c"});
  Stands("a", 'A');
  Stands("b", 'B');
  Select({"SelAll_x"}, 0);
  EXPECT_EQ(Selected(), "AB");
  EXPECT_TRUE(toolkit.Took(R"(
    do dev:tree 2202 GetNode "SelAll_x" | 284->["a" "b" "c"] | 0
    free 284 ["a" "b" "c"] | 0
    do dev:tree 2203 InquireNode "a" | 260->&A | 0
    do dev:tree 2203 InquireNode "b" | 260->&B | 0
    do dev:tree 2203 InquireNode "c" | 260->null | 0
    do dev:tree 2201 SetNode "SelAll_x" | 516=0 | 0
  )"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

TEST_F(EcadTreeSelection, WithTheSelectAllNodeTakenOutDropsItsChildrenFromTheEnd) {
  objects = {Object('A'), Object('B'), Object('H')};
  Current("SelAll_x");
  Below("SelAll_x", {"a", "b", "c"});
  Stands("a", 'A');
  Stands("b", 'B');
  Stands("k", 'D');
  Select({"k"}, 2);
  EXPECT_EQ(Selected(), "DH");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 53->"SelAll_x" | 0
    do dev:tree 2202 GetNode "SelAll_x" | 284->["a" "b" "c"] | 0
    free 284 ["a" "b" "c"] | 0
    do dev:tree 2203 InquireNode "k" | 260->&D | 0
    do dev:tree 2203 InquireNode "c" | 260->null | 0
    do dev:tree 2201 SetNode "c" | 516=0 | 0
    do dev:tree 2203 InquireNode "b" | 260->&B | 0
    do dev:tree 2201 SetNode "b" | 516=0 | 0
    do dev:tree 2203 InquireNode "a" | 260->&A | 0
    do dev:tree 2201 SetNode "a" | 516=0 | 0
  )"));
}

TEST_F(EcadTreeSelection, WithANodeTakenOutDropsItsObject) {
  objects = {Object('A'), Object('B')};
  Current("a");
  Stands("a", 'A');
  Select({}, 2);
  EXPECT_EQ(Selected(), "B");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 53->"a" | 0
    do dev:tree 2203 InquireNode "a" | 260->&A | 0
    do dev:tree 2201 SetNode "a" | 516=0 | 0
  )"));
}

TEST_F(EcadTreeSelection, WithANodeTakenInKeepsWhatWasThere) {
  objects = {Object('A')};
  Current("b");
  Stands("b", 'B');
  Select({"b"}, 2);
  EXPECT_EQ(Selected(), "AB");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 53->"b" | 0
    do dev:tree 2203 InquireNode "b" | 260->&B | 0
  )"));
}

TEST_F(EcadTreeSelection, RemovesNothingWhenTheCurrentNodeCannotBeRead) {
  Stands("b", 'B');
  Current("a");
  for (const Failure failure : {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers}) {
    objects = {Object('A')};
    toolkit.FailCall(1, failure);
    Select({"b"}, 2);
    EXPECT_EQ(Selected(), "AB") << Name(failure);
    EXPECT_EQ(toolkit.TakeLines().size(), 2u) << Name(failure);
  }
}

TEST_F(EcadTreeSelection, HoldsAnObjectOfTwoNodesOnce) {
  Stands("a", 'A');
  Stands("b", 'A');
  Select({"a", "b"}, 0);
  EXPECT_EQ(objects.size(), 1u);
  Current("b");
  Select({"a"}, 2);
  EXPECT_EQ(Selected(), "") << "the object of the node taken out goes, whoever else has it";
}

TEST_F(EcadTreeSelection, KnowsSelectAllNodesByTheirSevenFirstCharacters) {
  for (const char* name : {"SelAll", "SelAll-x", "selall_x", "SELALL_x", "xSelAll_", "Sel", ""}) {
    Stands(name, 'A');
    Select({name}, 0);
    EXPECT_EQ(Selected(), "A") << name;
    EXPECT_EQ(toolkit.TakeLines().size(), 1u) << name;
  }
  for (const char* name : {"SelAll_", "SelAll_x", "SelAll_SelAll_"}) {
    Stands(name, 'A');
    Select({name}, 0);
    EXPECT_EQ(Selected(), "") << name;
    EXPECT_EQ(toolkit.TakeLines().size(), 2u) << name;
  }
}

TEST_F(EcadTreeSelection, SurvivesASelectionThatChangesWhileItIsReadOut) {
  // The list's own memory, so that a name read after the list is gone is seen.
  auto names = std::make_unique<std::vector<std::string>>(
      Names{"SelAll_a-name-that-is-too-long-for-a-small-string", "SelAll_another-name-that-is-too-long-as-well", "z"});
  auto nodes = std::make_unique<std::vector<char*>>();
  for (std::string& name : *names) nodes->push_back(name.data());
  Below((*names)[0], {"a"});
  Below((*names)[1], {"b"});
  Stands("a", 'A');
  Stands("b", 'B');
  Stands("z", 'C');
  toolkit.When(Doing(2201)).Run([&](const uiox::Call&) {
    nodes.reset();
    names.reset();
  });
  tree.OnSelect(3, nodes->data(), 0);
  EXPECT_EQ(Selected(), "ABC");
}

TEST_F(EcadTreeSelection, KeepsTheCurrentNodesNameWhileTheSelectionChanges) {
  objects = {Object('A')};
  Stands("a", 'A');
  auto current = std::make_unique<std::string>("a");
  toolkit.When(Retrieving(53)).Run([&](const uiox::Call& call) {
    *call.Find(53)->value.Out<const char*>() = current->c_str();
  });
  toolkit.When(Doing(2201)).Run([&](const uiox::Call&) { current.reset(); });
  Below("SelAll_x", {});
  Select({"SelAll_x"}, 2);
  EXPECT_EQ(Selected(), "");
}

TEST_F(EcadTreeSelection, PassesNullsOver) {
  Stands("a", 'A');
  std::string name = "a";
  char* nodes[] = {nullptr, name.data(), nullptr};
  tree.OnSelect(3, nodes, 0);
  EXPECT_EQ(Selected(), "A");
  tree.OnSelect(3, nullptr, 0);
  EXPECT_EQ(Selected(), "");
}

TEST_F(EcadTreeSelection, ReachesTheTreeThroughTheCallback) {
  tree.Init();
  Stands("a", 'A');
  toolkit.When(Retrieving(72)).Give(72, {"a"});
  toolkit.When(Retrieving(267)).Give(267, 0);
  EXPECT_EQ(toolkit.Fire("tree", 3), 0);
  EXPECT_EQ(Selected(), "A");
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

}  // namespace
}  // namespace color_tests
