#include "Wire.h"

namespace {

using uiox::kNoNode;
using uiox::kTop;
using uiox_test::WireTest;

class NodeOperations : public WireTest {
 protected:
  NodeOperations() {
    Add("root", "");
    Add("a", "root");
    Add("b", "root");
  }
};

TEST_F(NodeOperations, AddPutsANodeAtTheEndOfItsParent) {
  int data = 0;
  EXPECT_EQ(Do(2029, "c", L"C", "root", "kind", 2, L"second", 128, 1, 256, 1, 512, 0, 1024, &data), 0);
  EXPECT_EQ(Children("root"), "a b c");
  const uiox::NodeId node = Node("c");
  EXPECT_EQ(store.Label(node), L"C");
  EXPECT_STREQ(suite.Types().Name(store.Type(node)), "kind");
  EXPECT_EQ(store.SecondText(node), L"second");
  EXPECT_EQ(store.FirstInt(node), 1);
  EXPECT_EQ(store.Expanded(node), 1);
  EXPECT_EQ(store.UserData(node), &data);
}

TEST_F(NodeOperations, AddBeforePutsItBeforeASiblingOrAtTheEnd) {
  EXPECT_EQ(Do(2030, "c", L"", "root", "b", "", 128, 1), 0);
  EXPECT_EQ(Do(2030, "d", L"", "root", nullptr, ""), 0);
  EXPECT_EQ(Children("root"), "a c b d");
}

TEST_F(NodeOperations, InsertPutsItBeforeASiblingOrAtTheEnd) {
  int data = 0;
  EXPECT_EQ(Do(2331, "b", "c", 2, L"C", 283, "root", 282, "kind", 25, L"second", 3, 4, 4, 1, 516, 1, 260, &data), 0);
  EXPECT_EQ(Do(2331, nullptr, "d", 2, L"D", 283, "root"), 0);
  EXPECT_EQ(Children("root"), "a c b d");
  const uiox::NodeId node = Node("c");
  EXPECT_EQ(store.Label(node), L"C");
  EXPECT_EQ(store.SecondText(node), L"second");
  EXPECT_EQ(store.FirstInt(node), 4);
  EXPECT_EQ(store.Expanded(node), 1);
  EXPECT_TRUE(store.IsSelected(node));
  EXPECT_EQ(store.UserData(node), &data);
}

TEST_F(NodeOperations, TheFirstNodeHasNoParent) {
  uiox::TreeStore& other = suite.ObtainTree("dev", "other").Store();
  EXPECT_NE(ui_do_operation("dev", "other", 2029, "n", L"", "missing", "", uiox_test::kEnd), 0);
  EXPECT_EQ(ui_do_operation("dev", "other", 2029, "n", L"", static_cast<const char*>(nullptr), "", uiox_test::kEnd), 0);
  EXPECT_EQ(other.Parent(other.Find("n")), kTop);
}

TEST_F(NodeOperations, ARefusedAdditionAddsNothing) {
  EXPECT_NE(Do(2029, "a", L"again", "root", ""), 0) << "a name in use";
  EXPECT_NE(Do(2029, "a", L"again", "b", ""), 0) << "a name in use elsewhere";
  EXPECT_NE(Do(2029, "", L"", "root", ""), 0) << "no name";
  EXPECT_NE(Do(2029, nullptr, L"", "root", ""), 0) << "no name";
  EXPECT_NE(Do(2029, "c", L"", "missing", ""), 0) << "no such parent";
  EXPECT_NE(Do(2030, "c", L"", "root", "missing", ""), 0) << "no such sibling";
  EXPECT_NE(Do(2030, "c", L"", "a", "b", ""), 0) << "a sibling under another parent";
  EXPECT_NE(Do(2331, "missing", "c", 283, "root"), 0);
  EXPECT_NE(Do(2331, "b", "c", 283, "a"), 0);
  EXPECT_NE(Do(2331, nullptr, "a", 283, "root"), 0);
  EXPECT_NE(Do(2029, "c", L"", "root", "", 999, 1), 0) << "no such option";
  EXPECT_EQ(store.Size(), 3u);
  EXPECT_EQ(store.Label(Node("a")), L"a");
}

TEST_F(NodeOperations, DeleteTakesTheSubtree) {
  Add("below", "a");
  EXPECT_EQ(Do(2031, "a"), 0);
  EXPECT_EQ(Children("root"), "b");
  EXPECT_EQ(store.Find("below"), kNoNode);
  EXPECT_NE(Do(2031, "a"), 0) << "it is gone";
  EXPECT_NE(Do(2031, nullptr), 0);
}

TEST_F(NodeOperations, MoveHasNoOptionList) {
  const char* none = nullptr;
  EXPECT_EQ(ui_do_operation("dev", "tree", 2032, "a", "root", none), 0);
  EXPECT_EQ(Children("root"), "b a");
  EXPECT_EQ(ui_do_operation("dev", "tree", 2032, "a", "root", "b"), 0);
  EXPECT_EQ(Children("root"), "a b");
  EXPECT_EQ(ui_do_operation("dev", "tree", 2032, "a", "b", none), 0);
  EXPECT_EQ(Children("b"), "a");
}

TEST_F(NodeOperations, AMoveThatMakesNoSenseIsRefused) {
  const char* none = nullptr;
  Add("below", "a");
  EXPECT_NE(ui_do_operation("dev", "tree", 2032, "a", "below", none), 0) << "under itself";
  EXPECT_NE(ui_do_operation("dev", "tree", 2032, "a", "missing", none), 0);
  EXPECT_NE(ui_do_operation("dev", "tree", 2032, "missing", "root", none), 0);
  EXPECT_NE(ui_do_operation("dev", "tree", 2032, "a", "root", "below"), 0) << "not a child of that parent";
  EXPECT_EQ(Children("root"), "a b");
}

TEST_F(NodeOperations, ExpandTakesTheNodeOrItsSubtree) {
  Add("below", "a");
  EXPECT_EQ(Do(2036, "root", 0), 0);
  EXPECT_TRUE(store.Expanded(Node("root")));
  EXPECT_FALSE(store.Expanded(Node("a")));
  EXPECT_EQ(Do(2036, "root", 1), 0);
  EXPECT_TRUE(store.Expanded(Node("a")));
  EXPECT_TRUE(store.Expanded(Node("below")));
  EXPECT_EQ(Do(2037, "a"), 0);
  EXPECT_TRUE(store.Expanded(Node("root")));
  EXPECT_FALSE(store.Expanded(Node("a")));
  EXPECT_FALSE(store.Expanded(Node("below")));
  EXPECT_NE(Do(2036, "missing", 0), 0);
  EXPECT_NE(Do(2037, "missing"), 0);
}

int g_called = 0;
int Count(void*, void*) { return ++g_called; }

TEST_F(NodeOperations, TheProgramsExpansionCallsNoCallback) {
  g_called = 0;
  for (const int reason : {29, 30}) ui_add_action("dev", "tree", reason, Count, nullptr, uiox_test::kEnd);
  Do(2036, "root", 1);
  Do(2037, "root");
  EXPECT_EQ(g_called, 0);
}

TEST_F(NodeOperations, OtherComponentsAreNoTrees) {
  suite.FindDevice("dev")->Add(uiox::WidgetClass::PushButton, "button");
  for (const char* component : {"button", "missing", "dev"}) {
    EXPECT_NE(ui_do_operation("dev", component, 2031, "a", uiox_test::kEnd), 0) << component;
  }
  EXPECT_NE(ui_do_operation("missing", "tree", 2031, "a", uiox_test::kEnd), 0);
  EXPECT_NE(ui_do_operation(nullptr, "tree", 2031, "a", uiox_test::kEnd), 0);
  EXPECT_NE(ui_do_operation("dev", nullptr, 2031, "a", uiox_test::kEnd), 0);
  EXPECT_EQ(Children("root"), "a b");
}

TEST_F(NodeOperations, TypesAreSharedByTheProcess) {
  int exists = 7;
  EXPECT_EQ(Do(2243, "square_255", &exists), 0);
  EXPECT_EQ(exists, 0);
  oxecad_ui::toolkit::NodeTypeRecord record;
  record.name = "square_255";
  record.image = "image";
  record.expandedImage = "open";
  EXPECT_EQ(Do(2139, &record), 0);
  EXPECT_EQ(Do(2243, "square_255", &exists), 0);
  EXPECT_NE(exists, 0);
  const uiox::TypeId type = suite.Types().Intern("square_255");
  EXPECT_EQ(suite.Types().ImageOf(type), "image");
  EXPECT_EQ(suite.Types().ExpandedImageOf(type), "open");
}

TEST_F(NodeOperations, AnUnnamedTypeIsRefused) {
  oxecad_ui::toolkit::NodeTypeRecord record;
  EXPECT_NE(Do(2139, &record), 0);
  record.name = "";
  EXPECT_NE(Do(2139, &record), 0);
  EXPECT_NE(Do(2139, nullptr), 0);
  int exists = 7;
  EXPECT_NE(Do(2243, nullptr, &exists), 0);
  EXPECT_EQ(exists, 7);
}

}  // namespace
