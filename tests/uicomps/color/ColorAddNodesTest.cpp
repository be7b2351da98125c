// Many coloured nodes at once: the same tree as one by one, with each parent read and written once.
#include <tests/support/Check.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/color/ImageShop.h>
#include <uicomps/color/ColorTree.h>

#include <ostream>

namespace color_tests {
namespace {

using namespace test_support;
using oxecad_ui::ColorTree;
using oxecad_ui::Tree;
using Record = ColorTree::ColorNodeInfo;

constexpr unsigned int kNone = 0xFFFFFFFFu;

Record Colored(std::string name, unsigned int color, Tree::NodeState state = Tree::Unchecked) {
  Record info;
  info.name = std::move(name);
  info.color = color;
  info.state = state;
  return info;
}

Record Colorless(std::string name) {
  Record info;
  info.name = std::move(name);
  info.type = "colorless";
  return info;
}

class ColorAddNodes : public TreeFixture {
 protected:
  ColorAddNodes() { ForgetIcons(); }
  ~ColorAddNodes() override { ForgetIcons(); }
  RecordingToolkit toolkit{RecordingToolkit::StandIn};
  ColorTree tree{"dev", "tree"};
};

TEST_F(ColorAddNodes, SumUpEachParent) {
  EXPECT_EQ(tree.AddNodes({Colored("root", 9), Colored("p", kNone), Colored("p/a", 1, Tree::Checked), Colored("p/b", 1),
                           Colored("q", kNone), Colored("q/a", 1), Colored("q/b", 2), Colorless("r"), Colorless("r/a"),
                           Colored("p/a", 3)}),
            (std::vector<bool>{true, true, true, true, true, true, true, true, true, false}));
  EXPECT_EQ(Drawn(tree, kMarks | kTypes | kUserData), R"(
    root         [ ]  <mix> =0xffffffff
      p          [ ]  <color_square.png_1> =0x1
        p/a "a"  [x]  <color_square.png_1> =0x1
        p/b "b"  [ ]  <color_square.png_1> =0x1
      q          [ ]  <mix> =0xffffffff
        q/a "a"  [ ]  <color_square.png_1> =0x1
        q/b "b"  [ ]  <color_square.png_2> =0x2
      r          [ ]  <colorless>
        r/a "a"  [ ]  <colorless>)");
}

TEST_F(ColorAddNodes, RedrawOnceAndWriteEachParentOnce) {
  tree.AddNodes({Colored("root", 9), Colored("p", kNone)});
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) {
    return call.function == uiox::Function::Modify || (call.code == 2033 || call.code == 2036 || call.code == 2034);
  });
  std::vector<Record> records;
  for (int i = 0; i < 50; ++i) records.push_back(Colored("p/" + std::to_string(i), 1u + static_cast<unsigned>(i % 2)));
  tree.AddNodes(records);
  EXPECT_LE(toolkit.TakeLines().size(), 4u) << "redraw off and on, and at most two parents";
  tree.AddNodes({});
  EXPECT_TRUE(toolkit.TakeLines().empty());
}

TEST_F(ColorAddNodes, ReadTheSiblingsOnce) {
  tree.AddNodes({Colored("root", 9), Colored("p", kNone), Colored("p/0", 1), Colored("p/1", 1)});
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2202 || call.code == 2203; });
  std::vector<Record> records;
  for (int i = 2; i < 102; ++i) records.push_back(Colored("p/" + std::to_string(i), 1));
  tree.AddNodes(records);
  EXPECT_LE(toolkit.TakeLines().size(), 4u) << "the children of p, two colours of children, the colour of p";
}

TEST_F(ColorAddNodes, HandAllValuesOn) {
  tree.AddNodes({Colored("root", 9)});
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2029; });
  Record record = Colored("a", 5);
  record.label = L"A";
  record.expanded = true;
  tree.AddNodes({record});
  EXPECT_TRUE(toolkit.Took(
      R"(do dev:tree 2029 AddNode "a" L"A" "root" "color_square.png_5" | 2=L"" 128=1 256=1 512=0 1024=0x5 | 0)"));
}

TEST_F(ColorAddNodes, LookForTheTypeOfAColorOnce) {
  tree.AddNodes({Colored("root", 5)});
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2243; });
  tree.AddNodes({Colored("a", 5), Colored("b", 5), Colored("c", 5)});
  EXPECT_EQ(toolkit.TakeLines().size(), 1u);
}

TEST_F(ColorAddNodes, TryTheIconOfAColorAgain) {
  tree.AddNodes({Colored("root", kNone)});
  toolkit.When(DoingGlobally(6030)).Refuse().Once();
  tree.AddNodes({Colored("a", 5), Colored("b", 5), Colored("c", 5)});
  EXPECT_EQ(tree.GetNodeType("a"), "mix");
  EXPECT_EQ(tree.GetNodeType("b"), "color_square.png_5") << "what could not be loaded once may be loaded now";
  EXPECT_EQ(tree.GetNodeType("c"), "color_square.png_5");
}

// --- Against one by one ----------------------------------------------------------------------------------------------

struct Change {
  std::string node;
  unsigned int color;
  friend std::ostream& operator<<(std::ostream& out, const Change& change) {
    return out << change.node << " gets " << change.color;
  }
};

struct Addition {
  std::string name;
  bool colorless;
  unsigned int color;
  unsigned state;
  Record Info() const {
    Record info = Colored(name, color, static_cast<Tree::NodeState>(state));
    if (colorless) info.type = "is colorless";
    return info;
  }
  friend std::ostream& operator<<(std::ostream& out, const Addition& record) {
    return out << record.name << (record.colorless ? " colorless " : " ") << record.color << " state " << record.state;
  }
};

rc::Gen<unsigned int> AnyColor() {
  return rc::gen::weightedOneOf<unsigned int>({{6, rc::gen::inRange(0u, 3u)}, {2, rc::gen::just(kNone)}});
}

rc::Gen<std::string> AnyName() {
  const auto parent = rc::gen::weightedElement<std::string>(
      {{4, ""}, {3, "p/"}, {3, "q/"}, {3, "deep/"}, {2, "n0/"}, {2, "n1/"}, {1, "nowhere/"}, {1, "groups/"}});
  return rc::gen::apply([](const std::string& head, int number) { return head + "n" + std::to_string(number); }, parent,
                        rc::gen::inRange(0, 12));
}

std::vector<Addition> AnyAdditions() {
  const auto name = rc::gen::weightedOneOf<std::string>(
      {{20, AnyName()}, {2, rc::gen::element<std::string>("nowhere", "groups", "root", "")}});
  return *rc::gen::container<std::vector<Addition>>(rc::gen::build<Addition>(
      rc::gen::set(&Addition::name, name),
      rc::gen::set(&Addition::colorless, rc::gen::weightedElement<bool>({{4, false}, {1, true}})),
      rc::gen::set(&Addition::color, AnyColor()), rc::gen::set(&Addition::state, rc::gen::inRange(0u, 3u))));
}

/// Trees in which parents do not have to say what their children say.
std::vector<Change> AnyChanges() {
  return *rc::gen::container<std::vector<Change>>(rc::gen::build<Change>(
      rc::gen::set(&Change::node, rc::gen::element<std::string>("root", "p", "q", "deep", "n0", "p/n1", "deep/n2")),
      rc::gen::set(&Change::color, AnyColor())));
}

RC_GTEST_PROP(ColorAddNodesProperties, LeaveWhatOneByOneLeaves, ()) {
  ForgetIcons();
  uiox::Suite::Get().Reset();
  ColorTree one("one", "tree");
  ColorTree many("many", "tree");
  for (ColorTree* const tree : {&one, &many}) {
    Plant(*tree, "root =0x1 <mix>\n  p =0x1\n    q\n      deep =0x2\n  loose <colorless>");
  }
  for (int round = 0; round < 2; ++round) {
    for (const Change& change : AnyChanges()) {
      one.SetNodeColor(change.node.c_str(), change.color);
      many.SetNodeColor(change.node.c_str(), change.color);
    }
    std::vector<Record> records;
    std::vector<bool> expected;
    for (const Addition& addition : AnyAdditions()) {
      records.push_back(addition.Info());
      expected.push_back(one.AddNode(records.back()));
    }
    RC_ASSERT(many.AddNodes(records) == expected);
    RC_ASSERT(Drawn(many, kEverything) == Drawn(one, kEverything));
  }
}

}  // namespace
}  // namespace color_tests
