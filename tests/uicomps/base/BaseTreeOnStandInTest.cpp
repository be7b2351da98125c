// The base tree with the stand-in toolkit behind it: what its operations do to real nodes, and what the user's actions
// bring back.
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <uicomps/base/BaseTree.h>

#include <string>
#include <vector>

namespace oxecad_ui {
namespace {

using test_support::Drawn;
using test_support::IsSound;
using test_support::kExpanded;
using test_support::kNothingMore;
using test_support::Plant;

class EventTree : public BaseTree {
 public:
  using BaseTree::BaseTree;
  void OnActivate(const char* node) override { events.push_back(std::string("activate ") + node); }
  void OnCollapse(const char* node) override { events.push_back(std::string("collapse ") + node); }
  void OnExpand(const char* node) override { events.push_back(std::string("expand ") + node); }
  void OnSelect(int count, char** nodes, int extra) override {
    std::string event = "select";
    for (int i = 0; i < count; ++i) event += std::string(" ") + nodes[i];
    events.push_back(event + " extra " + std::to_string(extra));
  }
  std::vector<std::string> events;
};

class BaseTreeOnStandIn : public test_support::TreeFixture {
 protected:
  test_support::RecordingToolkit toolkit{test_support::RecordingToolkit::StandIn};  // checks the releases
  EventTree tree{"dev", "tree"};
};

TEST_F(BaseTreeOnStandIn, BuildsABranchNodeByNode) {
  EXPECT_TRUE(tree.AddNode("root", L"Board", "", "board", L"", 1, 1, 0, nullptr));
  EXPECT_TRUE(tree.AddNode("b", L"B", "root", "part", L"", 1, 0, 0, nullptr));
  EXPECT_TRUE(tree.AddNodeBefore("a", L"A", "root", "b", "part", L"", 1, 0, 0, nullptr));
  EXPECT_TRUE(tree.InsertNode("a1", L"A1", "a", nullptr, nullptr, "pin", L"", 1, 0, 0));
  EXPECT_TRUE(tree.InsertNode("a0", L"A0", "a", nullptr, "a1", "pin", L"", 1, 0, 0));
  EXPECT_EQ(Drawn(tree, test_support::kTypes | kExpanded), R"(
    root "Board" <board> +
      a "A" <part>
        a0 "A0" <pin>
        a1 "A1" <pin>
      b "B" <part>)");
  EXPECT_TRUE(IsSound(widget));
}

TEST_F(BaseTreeOnStandIn, ReadsBackWhatWasWritten) {
  const wchar_t label[] = {0xD83D, 0xDE00, L'\u00e4', 0};
  int word = 0;
  ASSERT_TRUE(tree.AddNode("root", L"", "", "", L"", 1, 0, 0, nullptr));
  ASSERT_TRUE(tree.AddNode("n\xC3\xA4", label, "root", "t\xC3\xBC", L"", 1, 1, 0, &word));
  EXPECT_EQ(tree.GetNodeLabel("n\xC3\xA4"), label);
  EXPECT_EQ(tree.GetNodeType("n\xC3\xA4"), "t\xC3\xBC");
  EXPECT_EQ(tree.GetParent("n\xC3\xA4"), "root");
  EXPECT_EQ(tree.GetParent("root"), "");
  EXPECT_TRUE(tree.GetNodeExpanded("n\xC3\xA4"));
  EXPECT_FALSE(tree.GetNodeExpanded("root"));
  void* data = nullptr;
  EXPECT_TRUE(tree.GetNodeData("n\xC3\xA4", data));
  EXPECT_EQ(data, &word);
  EXPECT_EQ(tree.GetNodeChildCount("root"), 1);
  EXPECT_FALSE(tree.DoesNotExist("root", "n\xC3\xA4"));
  EXPECT_TRUE(tree.DoesNotExist("root", "n"));
  EXPECT_TRUE(tree.ModifyNodeLabel("n\xC3\xA4", L"new"));
  EXPECT_EQ(tree.GetNodeLabel("n\xC3\xA4"), L"new");
}

TEST_F(BaseTreeOnStandIn, RefusesWhatIsNotThereAndChangesNothing) {
  Plant(tree, "root\n  a\n  b");
  EXPECT_FALSE(tree.AddNode("a", L"again", "root", "", L"", 1, 0, 0, nullptr));
  EXPECT_FALSE(tree.AddNode("c", L"", "nowhere", "", L"", 1, 0, 0, nullptr));
  EXPECT_FALSE(tree.DeleteNode("nowhere"));
  EXPECT_FALSE(tree.MoveNodeBefore("a", "a", nullptr));
  EXPECT_FALSE(tree.ModifyNodeLabel("nowhere", L"x"));
  EXPECT_EQ(tree.GetNodeLabel("nowhere"), L"");
  EXPECT_TRUE(tree.InsertNode("a", L"again", "root", nullptr, nullptr, "", L"", 1, 0, 0)) << "it is there already";
  EXPECT_FALSE(tree.InsertNode("b", L"again", "a", nullptr, nullptr, "", L"", 1, 0, 0)) << "it is elsewhere";
  EXPECT_EQ(Drawn(tree, kNothingMore), "root\n  a\n  b");
}

TEST_F(BaseTreeOnStandIn, MovesAndDeletesBranches) {
  Plant(tree, "root\n  a\n    a1\n  b\n  c");
  EXPECT_TRUE(tree.MoveNodeBefore("a", "root", nullptr));
  EXPECT_EQ(Drawn(tree, kNothingMore), "root\n  b\n  c\n  a\n    a1");
  EXPECT_TRUE(tree.MoveNodeBefore("a", "b", nullptr));
  EXPECT_TRUE(tree.MoveNodeBefore("c", "root", "b"));
  EXPECT_EQ(Drawn(tree, kNothingMore), "root\n  c\n  b\n    a\n      a1");
  EXPECT_TRUE(tree.DeleteNode("b"));
  EXPECT_EQ(Drawn(tree, kNothingMore), "root\n  c");
  EXPECT_TRUE(IsSound(widget));
}

TEST_F(BaseTreeOnStandIn, ClearEmptiesTheTree) {
  Plant(tree, "root\n  a\n    a1");
  EXPECT_TRUE(tree.HasRoot());
  tree.Clear();
  EXPECT_FALSE(tree.HasRoot());
  EXPECT_EQ(widget.Store().Size(), 0u);
}

TEST_F(BaseTreeOnStandIn, ExpandAllAndCollapseAllReachEveryNode) {
  Plant(tree, "root\n  a\n    a1\n      a11\n  b");
  tree.ExpandAll();
  for (const char* node : {"root", "a", "a1"}) EXPECT_TRUE(tree.GetNodeExpanded(node)) << node;
  tree.CollapseAll();
  EXPECT_TRUE(tree.GetNodeExpanded("root"));
  for (const char* node : {"a", "a1"}) EXPECT_FALSE(tree.GetNodeExpanded(node)) << node;
}

TEST_F(BaseTreeOnStandIn, HearsTheUser) {
  Plant(tree, "root\n  a\n    a1\n  b");
  tree.Init();
  EXPECT_TRUE(user.Activate("tree", "a"));
  EXPECT_TRUE(user.Select("tree", {"a", "b"}, uiox::user::kExtended));
  EXPECT_TRUE(user.Expand("tree", "a"));
  EXPECT_TRUE(user.Collapse("tree", "a"));
  EXPECT_EQ(tree.events, (std::vector<std::string>{"activate a", "select a b extra 1", "expand a", "collapse a"}));
}

TEST_F(BaseTreeOnStandIn, HearsNothingBeforeInitAndAfterItsEnd) {
  Plant(tree, "root\n  a");
  user.Activate("tree", "a");
  EXPECT_TRUE(tree.events.empty());
  {
    EventTree other("dev", "tree");
    other.Init();
  }
  user.Activate("tree", "a");
  EXPECT_TRUE(tree.events.empty());
}

TEST_F(BaseTreeOnStandIn, AnUnknownComponentFailsEverywhere) {
  BaseTree lost("dev", "no such tree");
  EXPECT_FALSE(lost.HasRoot());
  EXPECT_FALSE(lost.AddNode("root", L"", "", "", L"", 1, 0, 0, nullptr));
  EXPECT_EQ(lost.GetNodeLabel("root"), L"");
  EXPECT_EQ(lost.GetBackgroundColor(), 0xFFFFFFFFu);
}

TEST_F(BaseTreeOnStandIn, TwoOfOneWidgetBothHearEachEvent) {
  Plant(tree, "root");
  EventTree later("dev", "tree");
  {
    EventTree first("dev", "tree");
    first.Init();
    later.Init();
    uiox::Driver("dev").Activate("tree", "root");
    EXPECT_EQ(first.events, std::vector<std::string>{"activate root"});
    EXPECT_EQ(later.events, std::vector<std::string>{"activate root"});
  }
  uiox::Driver("dev").Activate("tree", "root");
  EXPECT_EQ(later.events, (std::vector<std::string>{"activate root", "activate root"}))
      << "the end of the first takes its own callbacks";
}

TEST_F(BaseTreeOnStandIn, TheEndOfACopyTakesTheCallbacksOfTheOriginal) {
  Plant(tree, "root");
  tree.Init();
  { const EventTree copy(tree); }
  uiox::Driver("dev").Activate("tree", "root");
  EXPECT_TRUE(tree.events.empty());
  tree.Init();
  uiox::Driver("dev").Activate("tree", "root");
  EXPECT_EQ(tree.events, std::vector<std::string>{"activate root"});
}

}  // namespace
}  // namespace oxecad_ui
