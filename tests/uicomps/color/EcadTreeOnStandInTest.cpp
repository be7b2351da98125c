#include <tests/support/DirtySpy.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <uicomps/color/EcadTree.h>

#include <set>

namespace color_tests {
namespace {

using namespace test_support;
using oxecad_ui::EcadTree;
using Reasons = std::vector<std::intptr_t>;

/// A user in front of nets by class; every net stands for the object of its letter, d for none.
class EcadTreeOnStandIn : public TreeFixture {
 protected:
  EcadTreeOnStandIn() {
    tree.Init();
    tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &objects);
    Add("root", "", nullptr);
    Add("SelAll_power", "root", nullptr);
    Add("a", "SelAll_power", &letters[0]);
    Add("b", "SelAll_power", &letters[1]);
    Add("d", "SelAll_power", nullptr);
    Add("c", "root", &letters[2]);
  }
  void Add(const char* name, const char* parent, void* object) {
    ASSERT_TRUE(tree.BaseTree::AddNode(name, L"", parent, "net", L"", 1, 0, 0, object));
  }
  std::string Selected() const {
    std::string text;
    for (void* object : objects) text += *static_cast<char*>(object);
    return text;
  }

  char letters[3] = {'A', 'B', 'C'};
  DirtySpy spy;
  std::set<void*> objects;
  EcadTree tree{"dev", "tree"};
};

TEST_F(EcadTreeOnStandIn, ASelectAllNodeSelectsItsChildrensObjectsAndIsLetGo) {
  ASSERT_TRUE(user.Select("tree", {"SelAll_power"}));
  EXPECT_EQ(Selected(), "AB");
  EXPECT_EQ(Drawn(tree, kSelected), R"(
    root ""
      SelAll_power ""
        a ""
        b ""
        d ""
      c "")");
  EXPECT_EQ(spy.TakeReasons(), Reasons{2});
}

TEST_F(EcadTreeOnStandIn, TheWholeSelectionIsReadThoughItShrinksMeanwhile) {
  Add("SelAll_clock", "root", nullptr);
  ASSERT_TRUE(user.Select("tree", {"SelAll_power", "SelAll_clock", "c"}));
  EXPECT_EQ(Selected(), "ABC");
  EXPECT_EQ(Drawn(tree, kSelected), R"(
    root ""
      SelAll_power ""
        a ""
        b ""
        d ""
      c "" *
      SelAll_clock "")");
}

TEST_F(EcadTreeOnStandIn, NodesAreTakenInAndOutOneAtATime) {
  ASSERT_TRUE(user.ToggleSelected("tree", "a"));
  EXPECT_EQ(Selected(), "A");
  ASSERT_TRUE(user.ToggleSelected("tree", "c"));
  EXPECT_EQ(Selected(), "AC");
  ASSERT_TRUE(user.ToggleSelected("tree", "a"));
  EXPECT_EQ(Selected(), "C");
  ASSERT_TRUE(user.ToggleSelected("tree", "SelAll_power"));
  EXPECT_EQ(Selected(), "ABC");
  ASSERT_TRUE(user.Select("tree", {"c"}, 2, "SelAll_power"));
  EXPECT_EQ(Selected(), "C") << "the select-all node is current and not among the names";
  EXPECT_TRUE(IsSound(tree));
}

TEST_F(EcadTreeOnStandIn, ANewSelectionReplacesTheOldOne) {
  ASSERT_TRUE(user.Select("tree", {"a", "c"}));
  ASSERT_TRUE(user.Select("tree", {"b"}));
  EXPECT_EQ(Selected(), "B");
  ASSERT_TRUE(user.Select("tree", {}));
  EXPECT_EQ(Selected(), "");
  EXPECT_EQ(spy.TakeReasons(), (Reasons{2, 2, 2}));
}

TEST_F(EcadTreeOnStandIn, ActivationExpandsTheNodeAlone) {
  ASSERT_TRUE(user.Activate("tree", "root"));
  EXPECT_EQ(Drawn(tree, kExpanded), R"(
    root "" +
      SelAll_power ""
        a ""
        b ""
        d ""
      c "")");
  ASSERT_TRUE(user.Activate("tree", "root"));
  EXPECT_NE(widget.Store().Expanded(widget.Store().Find("root")), 0) << "a second time changes nothing";
  EXPECT_EQ(spy.TakeReasons(), (Reasons{1, 1}));
}

}  // namespace
}  // namespace color_tests
