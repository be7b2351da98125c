// Callbacks: how they are registered, what they read, what they give.
#include <gtest/gtest.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/base/BaseTree.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace oxecad_ui {
namespace {

using test_support::RecordingToolkit;
using test_support::Retrieving;

std::string Text(const char* text) { return text ? text : "null"; }

class SpyTree : public BaseTree {
 public:
  using BaseTree::BaseTree;
  void OnActivate(const char* node) override { events.push_back("activate " + Text(node)); }
  void OnCollapse(const char* node) override { events.push_back("collapse " + Text(node)); }
  void OnExpand(const char* node) override { events.push_back("expand " + Text(node)); }
  void OnSelect(int count, char** nodes, int extra) override {
    std::string event = "select " + std::to_string(count) + ':';
    if (!nodes) event += " null";
    for (int i = 0; i < count; ++i) event += ' ' + Text(nodes[i]);
    events.push_back(event + " extra " + std::to_string(extra));
  }
  std::vector<std::string> Take() { return std::exchange(events, {}); }

  std::vector<std::string> events;
};

using Events = std::vector<std::string>;

class BaseTreeEvents : public testing::Test {
 protected:
  BaseTreeEvents() { toolkit.NamePointer(&tree, "&tree"); }
  RecordingToolkit toolkit;
  SpyTree tree{"dev", "tree"};
};

TEST_F(BaseTreeEvents, ConstructionCallsNothing) { EXPECT_TRUE(toolkit.Took("")); }

TEST_F(BaseTreeEvents, InitRegistersActivateCollapseExpandSelect) {
  tree.Init();
  EXPECT_TRUE(toolkit.Took(R"(
    add_action dev:tree 4 Activate f1 &tree 0
    add_action dev:tree 30 Collapse f2 &tree 0
    add_action dev:tree 29 Expand f3 &tree 0
    add_action dev:tree 3 Select f4 &tree 0)"));
}

TEST(BaseTreeLife, DestructionRemovesTheSameFunctionsInItsOwnOrder) {
  RecordingToolkit toolkit;
  {
    SpyTree tree("dev", "tree");
    toolkit.NamePointer(&tree, "&tree");
    tree.Init();
    EXPECT_EQ(toolkit.Registered().size(), 4u);
    toolkit.TakeLines();
    toolkit.FailAll(test_support::Failure::Refused);  // the results are ignored
  }
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:tree 3 Select f4 => 1
    remove_action dev:tree 29 Expand f3 => 1
    remove_action dev:tree 30 Collapse f2 => 1
    remove_action dev:tree 4 Activate f1 => 1)"));
}

TEST(BaseTreeLife, DestructionWithoutInitRemovesToo) {
  RecordingToolkit toolkit;
  { const BaseTree tree("dev", "tree"); }
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dev:tree 3 Select f1
    remove_action dev:tree 29 Expand f2
    remove_action dev:tree 30 Collapse f3
    remove_action dev:tree 4 Activate f4)"));
}

TEST_F(BaseTreeEvents, ActivateHandsOnTheNodeAndGives0) {
  tree.Init();
  toolkit.TakeLines();
  toolkit.When(Retrieving(53)).Give(53, "n1");
  EXPECT_EQ(toolkit.Fire("tree", 4), 0);
  EXPECT_EQ(tree.Take(), Events{"activate n1"});
  EXPECT_TRUE(toolkit.Took(R"(retrieve dev:tree | 53->"n1" | 0)"));
}

TEST_F(BaseTreeEvents, ActivateLooksAtTheResultOnly) {
  toolkit.When(Retrieving(53)).Refuse(7).Give(53, "n1");
  EXPECT_EQ(BaseTree::ActivateCB(&tree), 7);
  EXPECT_EQ(tree.Take(), Events{});
  toolkit.ForgetRules();
  EXPECT_EQ(BaseTree::ActivateCB(&tree), 0);
  toolkit.When(Retrieving(53)).Give(53, "");
  EXPECT_EQ(BaseTree::ActivateCB(&tree), 0);
  EXPECT_EQ(tree.Take(), (Events{"activate null", "activate "}));
}

TEST_F(BaseTreeEvents, ExpandAndCollapseHandOnTheNodeAndGiveMinus1) {
  tree.Init();
  toolkit.TakeLines();
  toolkit.When(Retrieving(175)).Give(175, "n1");
  EXPECT_EQ(toolkit.Fire("tree", 29), -1);
  EXPECT_EQ(toolkit.Fire("tree", 30), -1);
  EXPECT_EQ(tree.Take(), (Events{"expand n1", "collapse n1"}));
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 175->"n1" | 0
    retrieve dev:tree | 175->"n1" | 0)"));
}

TEST_F(BaseTreeEvents, ExpandAndCollapseTakeNullForNoNodeAndAnEmptyNameForOne) {
  EXPECT_EQ(BaseTree::ExpandCB(&tree), -1);
  EXPECT_EQ(BaseTree::CollapseCB(&tree), -1);
  EXPECT_EQ(tree.Take(), Events{});
  toolkit.When(Retrieving(175)).Give(175, "");
  EXPECT_EQ(BaseTree::ExpandCB(&tree), -1);
  EXPECT_EQ(BaseTree::CollapseCB(&tree), -1);
  EXPECT_EQ(tree.Take(), (Events{"expand ", "collapse "}));
}

TEST_F(BaseTreeEvents, ExpandAndCollapseGiveMinus1AfterAFailedRead) {
  toolkit.When(Retrieving(175)).Refuse(7).Scribble();
  EXPECT_EQ(BaseTree::ExpandCB(&tree), -1);
  EXPECT_EQ(BaseTree::CollapseCB(&tree), -1);
  EXPECT_EQ(tree.Take(), Events{});
}

TEST_F(BaseTreeEvents, SelectMakesTwoRetrievals) {
  tree.Init();
  toolkit.TakeLines();
  toolkit.When(Retrieving(72)).Give(72, {"a", "b"});
  toolkit.When(Retrieving(267)).Give(267, 2);
  EXPECT_EQ(toolkit.Fire("tree", 3), 0);
  EXPECT_EQ(tree.Take(), Events{"select 2: a b extra 2"});
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dev:tree | 72->["a" "b"] | 0
    retrieve dev:tree | 267->2 | 0)"));
}

TEST_F(BaseTreeEvents, SelectWithoutASelectionStillCalls) {
  EXPECT_EQ(BaseTree::SelectCB(&tree), 0);
  EXPECT_EQ(tree.Take(), Events{"select 0: null extra 0"});
}

TEST_F(BaseTreeEvents, SelectGivesTheResultOfTheFirstRetrieval) {
  toolkit.When(Retrieving(72)).Refuse(7).Scribble();
  toolkit.When(Retrieving(267)).Give(267, 1);
  EXPECT_EQ(BaseTree::SelectCB(&tree), 7);
  EXPECT_EQ(tree.Take(), Events{"select 0: null extra 1"});
  toolkit.ForgetRules();
  toolkit.When(Retrieving(72)).Give(72, {"a"});
  toolkit.When(Retrieving(267)).Refuse(9).Scribble();
  EXPECT_EQ(BaseTree::SelectCB(&tree), 0);
  EXPECT_EQ(tree.Take(), Events{"select 1: a extra 0"});
}

TEST_F(BaseTreeEvents, SelectTakesACountWithoutAnArrayForNoSelection) {
  toolkit.When(Retrieving(72)).GiveNullArray(72, 3);
  EXPECT_EQ(BaseTree::SelectCB(&tree), 0);
  EXPECT_EQ(tree.Take(), Events{"select 0: null extra 0"});
}

TEST(BaseTreeCallbacks, GiveMinus1ForNoTree) {
  RecordingToolkit toolkit;
  EXPECT_EQ(BaseTree::ActivateCB(nullptr), -1);
  EXPECT_EQ(BaseTree::ExpandCB(nullptr), -1);
  EXPECT_EQ(BaseTree::CollapseCB(nullptr), -1);
  EXPECT_EQ(BaseTree::SelectCB(nullptr), -1);
  EXPECT_TRUE(toolkit.Took(""));
}

TEST(BaseTreeCallbacks, TheBaseHandlersDoNothing) {
  RecordingToolkit toolkit;
  BaseTree tree("dev", "tree");
  tree.OnActivate("n");
  tree.OnCollapse("n");
  tree.OnExpand("n");
  tree.OnSelect(0, nullptr, 0);
  EXPECT_TRUE(toolkit.Took(""));
}

/// Ends itself in its handler, as a dialog's tree may.
class MortalTree : public BaseTree {
 public:
  using BaseTree::BaseTree;
  void OnActivate(const char*) override { delete this; }
  void OnCollapse(const char*) override { delete this; }
  void OnExpand(const char*) override { delete this; }
  void OnSelect(int, char**, int) override { delete this; }
};

TEST(BaseTreeCallbacks, LetAHandlerEndTheTree) {
  RecordingToolkit toolkit;
  toolkit.When(Retrieving(53)).Give(53, "n");
  toolkit.When(Retrieving(175)).Give(175, "n");
  for (const int reason : {4, 30, 29, 3}) {
    (new MortalTree("dev", "tree"))->Init();
    EXPECT_EQ(toolkit.Fire("tree", reason), reason == 4 || reason == 3 ? 0 : -1);
    EXPECT_TRUE(toolkit.Registered().empty());
  }
}

}  // namespace
}  // namespace oxecad_ui
