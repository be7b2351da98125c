#include <oxcore/ColorPicker.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/compare/CompareWire.h>

namespace compare_tests {
namespace {

using namespace test_support;
using C = CompareColorTree;

const std::vector<std::string> kColumns = {"a", "b", "overlap", "showMode", "dimOverlap"};

/// A user in front of a compare tree: a heading "root", its nodes, and below each node those that are moved there.
class CompareOnStandIn : public TreeFixture {
 protected:
  CompareOnStandIn() : TreeFixture(kColumns) {
    ForgetIcons();
    oxcore::ResetColorPicker();
    tree.Init(nullptr);
    tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed);
    tree.BaseTree::AddNode("root", L"root", "", "heading", L"", 1, 1, 0, nullptr);
  }
  ~CompareOnStandIn() override {
    ForgetIcons();
    oxcore::ResetColorPicker();
  }

  /// A compare node; colour 0 means that it is not in that design.
  void Add(const char* name, unsigned a, unsigned b, ShowMode show = ShowMode::Both,
           Tree::NodeState dim = Tree::Unchecked) {
    C::CompareNodeInfo info;
    info.name = name;
    info.label = L"x";
    info.type = "colorvis";
    info.colorA = a;
    info.colorB = b;
    info.colorOverlap = 9;
    info.showMode = show;
    info.dim = dim;
    info.designFlag = static_cast<C::DesignFlag>((a ? 1u : 0u) | (b ? 2u : 0u));
    ASSERT_TRUE(tree.AddNode(info));
  }
  /// One line a node: its depth, its name, then the cells; `-` for an empty one.
  std::string Shown() const {
    std::string text;
    Show(widget.Store().Root(), "", text);
    return text;
  }

  DirtySpy spy;
  Names changed;
  C tree{"dev", "tree"};

 private:
  static std::string Cell(const wchar_t* label) {
    const std::wstring wide = label;
    const std::string text(wide.begin(), wide.end());
    constexpr std::string_view kOpen = "<img src=\"color_square.png_";
    if (text.rfind(kOpen, 0) == 0) return text.substr(kOpen.size(), text.size() - kOpen.size() - 2);
    return text.empty() ? "-" : text;
  }
  void Show(uiox::NodeId node, const std::string& indent, std::string& text) const {
    const uiox::TreeStore& store = widget.Store();
    text += indent + store.Name(node);
    for (uiox::ColumnIndex column = 0; column < 4; ++column) text += ' ' + Cell(store.CellLabel({node, column}));
    const uiox::Widget* const dim = widget.ControlIn({node, 4});
    text += dim ? ' ' + std::to_string(dim->CheckState()) + '\n' : " -\n";
    std::vector<uiox::NodeId> children;
    store.AppendChildren(node, children);
    for (const uiox::NodeId child : children) Show(child, indent + "  ", text);
  }
};

TEST_F(CompareOnStandIn, ParentsSumTheirChildrenUp) {
  Add("p", 1, 1);
  Add("p/red", 5, 0);
  Add("p/none", 0, 6);
  Add("p/red2", 5, 0);
  EXPECT_EQ(Shown(),
            "root 5 6 <mix> <both_show> -\n"
            "  p 5 6 <mix> <both_show> 0\n"
            "    p/red 5 - - <both_show> 0\n"
            "    p/none - 6 - <both_show> 0\n"
            "    p/red2 5 - - <both_show> 0\n")
      << "a child without colour does not count; one child in each design makes both and an overlap cell";
  Add("p/blue", 7, 0);
  EXPECT_EQ(Shown(),
            "root <mix> 6 <mix> <both_show> -\n"
            "  p <mix> 6 <mix> <both_show> 0\n"
            "    p/red 5 - - <both_show> 0\n"
            "    p/none - 6 - <both_show> 0\n"
            "    p/red2 5 - - <both_show> 0\n"
            "    p/blue 7 - - <both_show> 0\n");
  EXPECT_TRUE(IsSound(tree));
}

TEST_F(CompareOnStandIn, AParentOfOneDesignHasNoOtherCells) {
  Add("p", 1, 1);
  Add("p/x", 5, 0);
  Add("p/y", 5, 0);
  EXPECT_EQ(Shown(),
            "root 5 - - <both_show> -\n"
            "  p 5 - - <both_show> 0\n"
            "    p/x 5 - - <both_show> 0\n"
            "    p/y 5 - - <both_show> 0\n");
}

TEST_F(CompareOnStandIn, TheUserTogglesDim) {
  Add("p", 1, 1);
  Add("p/x", 5, 6);
  Add("p/y", 5, 6);
  ASSERT_TRUE(user.ToggleCellCheck("tree", "p/x", "dimOverlap"));
  EXPECT_EQ(Shown(),
            "root 5 6 9 <both_show> -\n"
            "  p 5 6 9 <both_show> 2\n"
            "    p/x 5 6 9 <both_show> 1\n"
            "    p/y 5 6 9 <both_show> 0\n");
  EXPECT_EQ(changed, Names{"p/x"});
  ASSERT_TRUE(user.ToggleCellCheck("tree", "p", "dimOverlap"));
  EXPECT_EQ(Shown(),
            "root 5 6 9 <both_show> -\n"
            "  p 5 6 9 <both_show> 1\n"
            "    p/x 5 6 9 <both_show> 1\n"
            "    p/y 5 6 9 <both_show> 1\n");
  EXPECT_EQ(changed, Names{"p"});
  EXPECT_EQ(spy.TakeReasons(), (Reasons{1, 1}));
}

TEST_F(CompareOnStandIn, TheUserChoosesAShowMode) {
  Add("p", 1, 1);
  Add("p/x", 5, 6);
  Add("p/y", 5, 6);
  ASSERT_TRUE(user.ClickCell("tree", "p", "showMode"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
  ASSERT_NE(widget.ControlIn({widget.Store().Find("p"), 3}), nullptr);
  EXPECT_EQ(widget.ControlIn({widget.Store().Find("p"), 3})->SelectedItem(), "both_show");
  ASSERT_TRUE(user.ChooseCellOption("tree", "p", "showMode", "a_show"));
  EXPECT_EQ(widget.ControlIn({widget.Store().Find("p"), 3}), nullptr);
  EXPECT_EQ(Shown(),
            "root 5 6 9 <a_show> -\n"
            "  p 5 6 9 <a_show> 0\n"
            "    p/x 5 6 9 <a_show> 0\n"
            "    p/y 5 6 9 <a_show> 0\n");
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{"p"});
}

TEST_F(CompareOnStandIn, TheUserChoosesNone) {
  Add("p", 5, 6);
  const std::string before = Shown();
  ASSERT_TRUE(user.ClickCell("tree", "p", "showMode"));
  ASSERT_TRUE(user.ChooseCellOption("tree", "p", "showMode", "none"));
  EXPECT_EQ(widget.ControlIn({widget.Store().Find("p"), 3}), nullptr);
  EXPECT_EQ(Shown(), before);
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(CompareOnStandIn, TheUserClicksASecondShowModeBeforeChoosing) {
  Add("p", 5, 6);
  Add("q", 5, 6);
  ASSERT_TRUE(user.ClickCell("tree", "p", "showMode"));
  ASSERT_TRUE(user.ClickCell("tree", "q", "showMode"));
  EXPECT_EQ(widget.ControlIn({widget.Store().Find("p"), 3}), nullptr) << "the menu moved";
  ASSERT_TRUE(user.ChooseCellOption("tree", "q", "showMode", "diff_show"));
  EXPECT_EQ(Shown(),
            "root 5 6 9 <mix_show> -\n"
            "  p 5 6 9 <both_show> 0\n"
            "  q 5 6 9 <diff_show> 0\n");
  EXPECT_EQ(changed, Names{"q"});
}

TEST_F(CompareOnStandIn, TheUserPicksAColor) {
  Add("p", 1, 1);
  Add("p/x", 5, 6);
  Add("p/y", 5, 6);
  oxcore::QueueColorAnswer(8);
  ASSERT_TRUE(user.ClickCell("tree", "p/x", "a"));
  EXPECT_FALSE(widget.SelectedCell()) << "no cell stays selected";
  EXPECT_EQ(Shown(),
            "root <mix> 6 9 <both_show> -\n"
            "  p <mix> 6 9 <both_show> 0\n"
            "    p/x 8 6 9 <both_show> 0\n"
            "    p/y 5 6 9 <both_show> 0\n");
  oxcore::QueueColorAnswer(7);
  ASSERT_TRUE(user.ClickCell("tree", "p", "a"));
  EXPECT_EQ(Shown(),
            "root 7 6 9 <both_show> -\n"
            "  p 7 6 9 <both_show> 0\n"
            "    p/x 7 6 9 <both_show> 0\n"
            "    p/y 7 6 9 <both_show> 0\n");
  EXPECT_EQ(spy.TakeReasons(), (Reasons{1, 1}));
}

TEST_F(CompareOnStandIn, TheUserCancelsAndIsToldAllTheSame) {
  Add("p", 5, 6);
  const std::string before = Shown();
  ASSERT_TRUE(user.ClickCell("tree", "p", "overlap"));
  EXPECT_EQ(Shown(), before);
  EXPECT_FALSE(widget.SelectedCell());
  EXPECT_EQ(spy.TakeReasons(), Reasons{1});
  EXPECT_EQ(changed, Names{"p"});
}

TEST_F(CompareOnStandIn, TheUserClicksTheDimColumnItself) {
  Add("p", 5, 6);
  ASSERT_TRUE(user.ClickCell("tree", "p", "dimOverlap"));
  EXPECT_TRUE(widget.SelectedCell()) << "the selection stays";
  EXPECT_EQ(spy.TakeReasons(), Reasons{});
}

TEST_F(CompareOnStandIn, WithoutListenerTheCellsChange) {
  Add("p", 5, 6);
  tree.SetOnDirtyHandler(nullptr, nullptr, &changed);
  changed = {"before"};
  oxcore::QueueColorAnswer(8);
  ASSERT_TRUE(user.ClickCell("tree", "p", "a"));
  ASSERT_TRUE(user.ToggleCellCheck("tree", "p", "dimOverlap"));
  ASSERT_TRUE(user.ClickCell("tree", "p", "showMode"));
  ASSERT_TRUE(user.ChooseCellOption("tree", "p", "showMode", "b_show"));
  EXPECT_EQ(Shown(),
            "root 8 6 9 <b_show> -\n"
            "  p 8 6 9 <b_show> 1\n");
  EXPECT_EQ(changed, Names{"before"});
}

TEST_F(CompareOnStandIn, TheUserChecksANode) {
  Add("p", 5, 6);
  const std::string before = Shown();
  changed = {"before"};
  ASSERT_TRUE(user.Check("tree", "p"));
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
  EXPECT_EQ(changed, Names{"before"});
  EXPECT_EQ(Shown(), before);
}

TEST_F(CompareOnStandIn, AHeadingsCheckBoxIsLocked) {
  Tree::NodeInfo info;
  info.name = "heading";
  ASSERT_TRUE(tree.AddNode(info));
  EXPECT_FALSE(user.Check("tree", "heading"));
}

TEST_F(CompareOnStandIn, ANodeBehindAHeadingIsNotSummedUp) {
  Add("p", 5, 6);
  Tree::NodeInfo info;
  info.name = "p/heading";
  ASSERT_TRUE(tree.AddNode(info));
  Add("p/x", 7, 8);
  EXPECT_EQ(Shown(),
            "root 5 6 9 <both_show> -\n"
            "  p 5 6 9 <both_show> 0\n"
            "    p/heading - - - - -\n"
            "    p/x 7 8 9 <both_show> 0\n");
}

TEST_F(CompareOnStandIn, TheEndTakesMenuAndBoxesAway) {
  Add("p", 5, 6);
  EXPECT_EQ(widget.Controls().size(), 2u);
  { C copy(tree); }
  EXPECT_EQ(widget.Controls().size(), 0u) << "a copy shares them and takes them along";
}

}  // namespace
}  // namespace compare_tests
