#include <oxcore/ColorPicker.h>
#include <tests/support/DirtySpy.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/color/ImageShop.h>
#include <uicomps/color/ColorTree.h>

namespace color_tests {
namespace {

using namespace test_support;
using oxecad_ui::ColorTree;
using oxecad_ui::Tree;
using Names = std::vector<std::string>;
using Reasons = std::vector<std::intptr_t>;

constexpr unsigned kColors = kTypes | kUserData;
constexpr unsigned int kNone = 0xFFFFFFFFu;

/// A user in front of a colour tree.
class ColorTreeOnStandIn : public TreeFixture {
 protected:
  ColorTreeOnStandIn() {
    ForgetIcons();
    oxcore::ResetColorPicker();
    tree.Init(nullptr);
    tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed);
  }
  ~ColorTreeOnStandIn() override {
    ForgetIcons();
    oxcore::ResetColorPicker();
  }

  bool Add(const char* name, const char* parent, unsigned int color) {
    return tree.AddNode(name, L"", parent, color, 0, L"", 1, 0);
  }

  DirtySpy spy;
  Names changed;
  ColorTree tree{"dev", "tree"};
};

TEST_F(ColorTreeOnStandIn, ParentsSayWhatTheirChildrenSay) {
  ASSERT_TRUE(Add("top", "", 1));
  ASSERT_TRUE(Add("net", "top", 2));
  ASSERT_TRUE(Add("a", "net", 5));
  ASSERT_TRUE(Add("b", "net", 5));
  EXPECT_EQ(Drawn(tree, kColors), R"(
    top  ""    <color_square.png_5> =0x5
      net  ""  <color_square.png_5> =0x5
        a  ""  <color_square.png_5> =0x5
        b  ""  <color_square.png_5> =0x5)");
  ASSERT_TRUE(Add("c", "net", 6));
  EXPECT_EQ(Drawn(tree, kColors), R"(
    top  ""    <mix> =0xffffffff
      net  ""  <mix> =0xffffffff
        a  ""  <color_square.png_5> =0x5
        b  ""  <color_square.png_5> =0x5
        c  ""  <color_square.png_6> =0x6)");
  EXPECT_TRUE(IsSound(tree));
}

TEST_F(ColorTreeOnStandIn, AColorGoesDownTheBranchAndUpThroughTheAncestors) {
  Add("top", "", kNone);
  Add("power", "top", kNone);
  Add("GND", "power", 5);
  Add("VCC", "power", 6);
  Add("clock", "top", 7);
  EXPECT_EQ(Drawn(tree, kColors), R"(
    top  ""      <mix> =0xffffffff
      power  ""  <mix> =0xffffffff
        GND  ""  <color_square.png_5> =0x5
        VCC  ""  <color_square.png_6> =0x6
      clock  ""  <color_square.png_7> =0x7)");
  tree.ChangeNodeColor("power", 7);
  EXPECT_EQ(Drawn(tree, kColors), R"(
    top  ""      <color_square.png_7> =0x7
      power  ""  <color_square.png_7> =0x7
        GND  ""  <color_square.png_7> =0x7
        VCC  ""  <color_square.png_7> =0x7
      clock  ""  <color_square.png_7> =0x7)");
}

TEST_F(ColorTreeOnStandIn, ColorlessNodesHaveNeitherColorNorColorType) {
  ColorTree::ColorNodeInfo info;
  info.name = "root";
  info.color = 5;
  ASSERT_TRUE(tree.AddNode(info));
  info.name = "heading";
  info.type = "colorless heading";
  ASSERT_TRUE(tree.AddNode(info));
  EXPECT_EQ(Drawn(tree, kColors), R"(
    root       <color_square.png_5> =0x5
      heading  <colorless heading>)");
  tree.ChangeNodeColor("heading", 7);
  oxcore::QueueColorAnswer(7);
  user.Activate("tree", "heading");
  EXPECT_EQ(Drawn(tree, kColors), R"(
    root       <color_square.png_5> =0x5
      heading  <colorless heading>)");
}

TEST_F(ColorTreeOnStandIn, NodesOfAColorShareATypeThatIsDefinedOnce) {
  ColorTree second("dev", "second");
  suite.ObtainTree("dev", "second");
  RecordingToolkit toolkit(RecordingToolkit::StandIn);
  toolkit.WriteOnly([](const uiox::Call& call) {
    return (call.function == uiox::Function::DoOperation && call.code == 2139) ||
           call.function == uiox::Function::GlobalDoOperation;
  });
  Add("a", "", 5);
  Add("b", "", 5);
  second.AddNode("a", L"", "", 5, 0, L"", 1, 0);
  EXPECT_TRUE(toolkit.Took(R"(
    global_do 6030 LoadImage "color_square.png" image{23 16x16} | 0
    global_do 6031 DefineImage "color_square.png_5" image{23 16x16} | 0
    do dev:tree 2139 DefineNodeType type{"color_square.png_5" "color_square.png_5" "color_square.png_5"} | 0
  )"));
  EXPECT_EQ(suite.Types().ImageOf(suite.Types().Intern("color_square.png_5")), "color_square.png_5");
  EXPECT_NE(suite.Images().Find("color_square.png_5"), nullptr);
}

class ColorTreeUser : public ColorTreeOnStandIn {
 protected:
  ColorTreeUser() {
    Add("top", "", kNone);
    Add("net", "top", kNone);
    Add("a", "net", 5);
    Add("b", "net", 5);
  }
};

TEST_F(ColorTreeUser, ChoosesAColorByActivatingANode) {
  oxcore::QueueColorAnswer(8);
  ASSERT_TRUE(user.Activate("tree", "a"));
  EXPECT_EQ(Drawn(tree, kColors), R"(
    top  ""    <mix> =0xffffffff
      net  ""  <mix> =0xffffffff
        a  ""  <color_square.png_8> =0x8
        b  ""  <color_square.png_5> =0x5)");
  EXPECT_EQ(oxcore::TakeColorPickerRequests().at(0).initialColor, 5u);
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{"a"});
  oxcore::QueueColorAnswer(9);
  ASSERT_TRUE(user.Activate("tree", "top"));
  EXPECT_EQ(oxcore::TakeColorPickerRequests().at(0).initialColor, kNone) << "a mixed node has no present colour";
  EXPECT_EQ(Drawn(tree, kColors), R"(
    top  ""    <color_square.png_9> =0x9
      net  ""  <color_square.png_9> =0x9
        a  ""  <color_square.png_9> =0x9
        b  ""  <color_square.png_9> =0x9)");
}

TEST_F(ColorTreeUser, CancelsAndNothingChanges) {
  const Drawing before = Drawn(tree, kEverything);
  ASSERT_TRUE(user.Activate("tree", "a"));
  EXPECT_EQ(Drawn(tree, kEverything), before);
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(ColorTreeUser, SelectsExpandsAndCollapses) {
  ASSERT_TRUE(user.Select("tree", {"b", "a"}));
  EXPECT_EQ(changed, (Names{"b", "a"}));
  ASSERT_TRUE(user.Expand("tree", "net"));
  EXPECT_EQ(changed, Names{"net"});
  ASSERT_TRUE(user.Collapse("tree", "net"));
  EXPECT_EQ(changed, Names{"net"});
  EXPECT_EQ(spy.TakeReasons(), (Reasons{3, 4, 5}));
}

TEST_F(ColorTreeUser, ChecksWithinASingleCheckBranch) {
  tree.AddSingleCheckBranch("net");
  Add("c", "net", 5);
  tree.SetNodeState("c", Tree::Checked);
  ASSERT_TRUE(user.Check("tree", "a"));
  EXPECT_EQ(Drawn(tree), R"(
    top  ""    [ ]
      net  ""  [ ]
        a  ""  [x]
        b  ""  [ ]
        c  ""  [ ])");
  ASSERT_TRUE(user.Check("tree", "b"));
  EXPECT_EQ(Drawn(tree), R"(
    top  ""    [ ]
      net  ""  [ ]
        a  ""  [ ]
        b  ""  [x]
        c  ""  [ ])");
  EXPECT_EQ(spy.TakeReasons(), (Reasons{2, 2}));
}

TEST_F(ColorTreeUser, ChecksOneOfSeveralSelectedInASingleCheckBranch) {
  tree.AddSingleCheckBranch("net");
  Add("c", "net", 5);
  ASSERT_TRUE(user.Select("tree", {"a", "b", "c"}));
  ASSERT_TRUE(user.Check("tree", "b"));
  EXPECT_EQ(Drawn(tree, kMarks | kSelected), R"(
    top  ""    [ ]
      net  ""  [ ]
        a  ""  [ ] *
        b  ""  [x] *
        c  ""  [ ] *)");
}

TEST_F(ColorTreeUser, ChecksAndUnchecksAllSelectedButTheLocked) {
  Add("c", "net", 5);
  tree.SetNodeState("c", Tree::Checked);
  tree.SetCheckSensitive("c", false);
  ASSERT_TRUE(user.Select("tree", {"a", "b", "c"}));
  ASSERT_TRUE(user.Check("tree", "a"));
  EXPECT_EQ(Drawn(tree), R"(
    top  ""    [ ]
      net  ""  [ ]
        a  ""  [x]
        b  ""  [x]
        c  ""  [x])");
  ASSERT_TRUE(user.Check("tree", "b"));
  EXPECT_EQ(Drawn(tree), R"(
    top  ""    [ ]
      net  ""  [ ]
        a  ""  [ ]
        b  ""  [ ]
        c  ""  [x])");
}

}  // namespace
}  // namespace color_tests
