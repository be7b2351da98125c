#include <tests/uicomps/color/ColorTreeWire.h>

namespace color_tests {
namespace {

/// `n` and `m` are checked children of `p`; whether checking `n` unchecks `m` shows that `p` is a single-check branch.
class ColorTreeCopies : public ColorTreeWire {
 protected:
  ColorTreeCopies() {
    tree.Init(mainframe);
    tree.AddSingleCheckBranch("p");
    ListenToChanges();
    Node("p", "root", {"n", "m"}, 5);
    Node("n", "p", {}, 5);
    Node("m", "p", {}, 5);
    CheckState("n", 0, 1);
    CheckState("m", 0, 1);
    toolkit.TakeLines();
    WriteChangesOnly();
  }
  testing::AssertionResult HasTheBranch(ColorTree& one) {
    one.OnCheck("n");
    return toolkit.Took("do dev:tree 2201 SetNode \"m\" | 31=0 | 0");
  }
  static void* ParentOfThePicker(ColorTree& one) {
    oxcore::TakeColorPickerRequests();
    one.ChangeNodeColor(Names{"n"});
    return oxcore::TakeColorPickerRequests().at(0).parent;
  }
};

TEST_F(ColorTreeCopies, HaveTheBranchesTheMainFrameAndTheListener) {
  ColorTree copy(tree);
  EXPECT_STREQ(copy.GetDevice(), "dev");
  EXPECT_STREQ(copy.GetName(), "tree");
  EXPECT_TRUE(HasTheBranch(copy));
  EXPECT_EQ(ParentOfThePicker(copy), mainframe);
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

TEST_F(ColorTreeCopies, AreMadeByAssignmentThatForgetsWhatWasThere) {
  ColorTree other("other", "other");
  other.AddSingleCheckBranch("q");
  other = tree;
  EXPECT_STREQ(other.GetName(), "tree");
  EXPECT_TRUE(HasTheBranch(other));
  EXPECT_EQ(ParentOfThePicker(other), mainframe);
  Node("q", "root", {"m"}, 5);
  Node("n", "q", {}, 5);
  other.OnCheck("n");
  EXPECT_TRUE(toolkit.Took("")) << "q is no branch any more";
}

TEST_F(ColorTreeCopies, AreIndependentAfterwards) {
  ColorTree copy(tree);
  copy.AddSingleCheckBranch("q");
  Node("q", "root", {"m"}, 5);
  Node("n", "q", {}, 5);
  tree.OnCheck("n");
  EXPECT_TRUE(toolkit.Took(""));
  copy.OnCheck("n");
  EXPECT_TRUE(toolkit.Took("do dev:tree 2201 SetNode \"m\" | 31=0 | 0"));
}

TEST_F(ColorTreeCopies, OfItselfKeepEverything) {
  ColorTree& itself = tree;
  tree = itself;
  EXPECT_TRUE(HasTheBranch(tree));
  EXPECT_EQ(ParentOfThePicker(tree), mainframe);
}

TEST_F(ColorTreeCopies, AskTheToolkitNothing) {
  toolkit.WriteOnly([](const uiox::Call&) { return true; });
  {
    ColorTree copy(tree);
    ColorTree other("other", "other");
    other = tree;
    EXPECT_TRUE(toolkit.Took(""));
  }
  EXPECT_EQ(toolkit.TakeLines().size(), 10u) << "each removes its five callbacks";
}

TEST_F(ColorTreeCopies, OfANewTreeHaveNoMainFrame) {
  ColorTree fresh("dev", "fresh");
  EXPECT_EQ(ParentOfThePicker(fresh), nullptr);
}

}  // namespace
}  // namespace color_tests
