// Every call of every operation goes wrong in every way.
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/color/ColorTreeWire.h>
#include <uicomps/color/EcadTree.h>

#include <memory>
#include <set>

namespace color_tests {
namespace {

using namespace test_support;
using oxecad_ui::EcadTree;

/// A fresh suite before each run.
void Begin(RecordingToolkit&) {
  ForgetIcons();
  oxcore::ResetColorPicker();
  uiox::Suite::Get().Reset();
  Plant(uiox::Suite::Get().ObtainTree("dev", "tree"), R"(
    root
      p      [x] <t> =0x5
        a    [x] <t> * =0x5
        b    [x] <t> * =0x6
      SelAll_q
        c    [ ] <t> =0x7)");
}

void ExpectSound() { EXPECT_TRUE(IsSound(uiox::Suite::Get().ObtainTree("dev", "tree"))); }

TEST(ColorTreeFailure, AddingMindsNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    ColorTree tree("dev", "tree");
    tree.AddNode("n1", L"n1", "p", 7, 0, L"", 1, 0);
    tree.AddNodeBefore("n2", L"n2", "p", "a", 8, 0, L"", 1, 0);
    ColorTree::ColorNodeInfo info;
    info.name = "p/n3";
    info.state = Tree::Checked;
    info.color = 9;
    tree.AddNode(info);
    info.name = "p/n4";
    tree.AddNodeBefore(info, "p/n3");
    info.type = "colorless";
    info.name = "p/n5";
    tree.AddNode(info);
    ExpectSound();
  });
}

TEST(ColorTreeFailure, ChangingColorsMindsNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    ColorTree tree("dev", "tree");
    tree.ChangeNodeColor("p", 7);
    tree.ChildColorChanged("p");
    oxcore::QueueColorAnswer(8);
    tree.OnActivate("a");
    oxcore::QueueColorAnswer(9);
    tree.ChangeNodeColor(Names{"a", "c"});
    ExpectSound();
  });
}

TEST(ColorTreeFailure, ReadingMindsNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    ColorTree tree("dev", "tree");
    tree.GetNodeColor("a");
    EXPECT_TRUE(std::unique_ptr<Tree::NodeInfo>(tree.GetNodeInfo("a")));
    Tree::TreeInfo info;
    tree.GetTreeInfo(info, Tree::Everything(), true);
    for (const Tree::NodeInfo* record : info.records) {
      EXPECT_NE(dynamic_cast<const ColorTree::ColorNodeInfo*>(record), nullptr);
    }
  });
}

TEST(ColorTreeFailure, ChecksMindNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    ColorTree tree("dev", "tree");
    DirtySpy spy;
    Names changed;
    tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed);
    tree.AddSingleCheckBranch("p");
    for (const char* node : {"a", "b", "c", "nowhere"}) tree.OnCheck(node);
    EXPECT_EQ(spy.TakeReasons(), (Reasons{2, 2, 2, 2}));
    ExpectSound();
  });
}

TEST(ColorTreeFailure, ItsLifeMindsNoFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    ColorTree tree("dev", "tree");
    tree.Init(nullptr);
    ColorTree copy(tree);
    copy = tree;
  });
}

TEST(EcadTreeFailure, NothingMindsAFailedCall) {
  ForEachFailure(RecordingToolkit::StandIn, Begin, [](RecordingToolkit&) {
    EcadTree tree("dev", "tree");
    tree.Init();
    DirtySpy spy;
    std::set<void*> objects;
    tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &objects);
    uiox::TreeWidget& widget = uiox::Suite::Get().ObtainTree("dev", "tree");
    widget.SetActivatedNode(widget.Store().Find("SelAll_q"));
    std::string names[] = {"a", "SelAll_q", "p"};
    char* nodes[] = {names[0].data(), names[1].data(), names[2].data()};
    for (const int kind : {0, 2}) {
      tree.OnSelect(3, nodes, kind);
      tree.OnSelect(1, nodes, kind);
      tree.OnActivate("p");
    }
    EXPECT_EQ(spy.TakeReasons(), (Reasons{2, 2, 1, 2, 2, 1}));
    ExpectSound();
  });
}

TEST(ColorTreeFailure, NoToolkitAtAllIsSurvived) {
  for (const Failure failure : kAllFailures) {
    SCOPED_TRACE(Name(failure));
    RecordingToolkit toolkit;
    Begin(toolkit);
    toolkit.FailAll(failure);
    ColorTree tree("dev", "tree");
    tree.Init(nullptr);
    tree.AddNode("n1", L"n1", "p", 7, 0, L"", 1, 0);
    tree.ChangeNodeColor("p", 7);
    tree.OnCheck("a");
    EXPECT_TRUE(std::unique_ptr<Tree::NodeInfo>(tree.GetNodeInfo("a")));
  }
}

}  // namespace
}  // namespace color_tests
