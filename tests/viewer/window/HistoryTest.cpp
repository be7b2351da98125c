#include <viewer/window/History.h>

#include <QSignalSpy>

#include <gtest/gtest.h>
#include <tests/viewer/window/WindowFixture.h>

#include <random>
#include <string>
#include <vector>

#include <uiox/UserEvents.h>

namespace oxviewer::testing {
namespace {

class HistoryTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    Show(SmallBoard(kWindowBoard));
  }

  void Undo() { PressKeys(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { PressKeys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
  static void ShowTab(TreePanel& panel) {
    for (QTabWidget* tabs : panel.window()->findChildren<QTabWidget*>()) {
      if (tabs->indexOf(&panel) >= 0) tabs->setCurrentWidget(&panel);
    }
    Settle();
  }
  static std::string Part(const std::string& reference) {
    return "(footprint \"lib:part\" (layer \"F.Cu\") (at 30 10) (fp_text reference \"" + reference +
           "\" (at 0 0) (layer \"F.SilkS\")))";
  }
  void PressKeys(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&Window(), key, modifiers);
    Settle();
  }

  bool IsHiddenPart(const std::string& node) {
    return Window().PartsPanel().View().Tree()->Store().Find(node) == uiox::kNoNode;
  }

  /// All that there is to see: the trees as text, what is selected in them, and what the application takes for
  /// selected.
  std::string Everything() {
    std::string all = Session().Trees().Dump();
    for (TreePanel* panel : {&Window().LayersPanel(), &Window().NetsPanel(), &Window().ComponentsPanel(),
                             &Window().PartsPanel(), &Window().Comparison().Panel()}) {
      const uiox::TreeStore& store = panel->View().Tree()->Store();
      for (const uiox::NodeId node : store.Selection()) all += std::string(" ") + store.Name(node);
      all += '|';
    }
    for (const NetId net : Session().SelectedNets()) all += ' ' + std::to_string(net);
    for (std::size_t i = 0; i < Session().A().nets.size(); ++i) {
      all += ' ' + std::to_string(Session().NetColor(static_cast<NetId>(i)));
    }
    for (const std::string& node : Session().Trees().Layers().Selection()) all += ' ' + node;
    for (const std::string& node : Session().Trees().Parts().SelectedNodes()) all += ' ' + node;
    for (const Component* part : Session().Trees().Parts().Selected()) all += ' ' + part->reference;
    return all;
  }
};

TEST_F(HistoryTest, UndoneCheckIsBackInTheTreeAndOnTheBoard) {
  const QRgb before = ColorAt(10.3, 5.3);
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  ASSERT_NE(ColorAt(10.3, 5.3), before);
  Undo();
  EXPECT_EQ(ColorAt(10.3, 5.3), before);
  EXPECT_TRUE(Session().Trees().Layers().IsVisible(0));
  Redo();
  EXPECT_NE(ColorAt(10.3, 5.3), before);
}

TEST_F(HistoryTest, OneGestureIsOneStep) {
  const std::string before = Everything();
  ClickNode(Window().LayersPanel(), "layers:copper");
  ClickCheckBox(Window().LayersPanel(), "layers:copper");
  Undo();
  EXPECT_TRUE(Session().Trees().Layers().IsVisible(0));
  EXPECT_EQ(Session().Trees().Layers().Selection(), std::vector<std::string>{"layers:copper"});
  Undo();
  EXPECT_EQ(Everything(), before);
  EXPECT_FALSE(Window().Steps().CanUndo());
}

TEST_F(HistoryTest, AllNetsOfAClassAreSelectedAgain) {
  ClickNode(Window().NetsPanel(), "SelAll_Default");
  ASSERT_EQ(Session().SelectedNets().size(), 2u);
  Undo();
  EXPECT_EQ(Session().SelectedNets().size(), 0u);
  Redo();
  EXPECT_EQ(Session().SelectedNets().size(), 2u);
  EXPECT_FALSE(Window().NetsPanel().View().selectionModel()->hasSelection());
}

TEST_F(HistoryTest, ColourOfANetIsTakenBack) {
  Session().SetNetColors({0}, ColorOf(9, 8, 7));
  Settle();
  Undo();
  EXPECT_EQ(Session().NetColor(0), kNoColor);
  Redo();
  EXPECT_EQ(Session().NetColor(0), ColorOf(9, 8, 7));
}

TEST_F(HistoryTest, KindAndItsPartsAreSelectedAgain) {
  TreePanel& kinds = Window().PartsPanel();
  ShowTab(kinds);
  ClickNode(kinds, "root");
  ASSERT_EQ(Session().Trees().Parts().Selected().size(), 1u);
  const std::string selected = Everything();
  ClickNode(kinds, "kind:3");
  Undo();
  EXPECT_EQ(Everything(), selected);
  EXPECT_TRUE(kinds.View().selectionModel()->isSelected(IndexOf(kinds, "root")));
  EXPECT_FALSE(kinds.View().selectionModel()->isSelected(IndexOf(kinds, "kind:3")));
  Undo();
  EXPECT_TRUE(Session().Trees().Parts().Selected().empty());
  EXPECT_FALSE(Window().Steps().CanUndo());
  Redo();
  EXPECT_EQ(Everything(), selected);
}

TEST_F(HistoryTest, PartThatAFilterHidesIsSelectedAgainBehindIt) {
  TreePanel& kinds = Window().PartsPanel();
  ShowTab(kinds);
  kinds.View().expandAll();
  ClickNode(kinds, "component:R1");
  QTest::keyClicks(&kinds.Filter(), "nosuch");
  Settle();
  ASSERT_TRUE(IsHiddenPart("component:R1"));
  Undo();
  Redo();
  EXPECT_TRUE(Session().Trees().Parts().Selected().empty());
  kinds.Filter().clear();
  Settle();
  ASSERT_EQ(Session().Trees().Parts().Selected().size(), 1u);
  EXPECT_EQ(Session().Trees().Parts().Selected()[0]->reference, "R1");
  Undo();
  EXPECT_TRUE(Session().Trees().Parts().Selected().empty());
}

TEST_F(HistoryTest, NewGestureEndsWhatCouldBeRedone) {
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  Undo();
  EXPECT_TRUE(Window().Steps().CanRedo());
  ClickCheckBox(Window().LayersPanel(), "layer:B.Cu");
  EXPECT_FALSE(Window().Steps().CanRedo());
}

TEST_F(HistoryTest, NothingIsLeftOfItForAnotherBoard) {
  ClickCheckBox(Window().LayersPanel(), "layer:F.Cu");
  Show(SmallBoard(kWindowBoard));
  EXPECT_FALSE(Window().Steps().CanUndo());
  Undo();
  EXPECT_TRUE(Session().Trees().Layers().IsVisible(0));
}

TEST_F(HistoryTest, ThousandRandomStepsThereAndBackLeaveNoDifference) {
  const std::string a = R"((net 0 "") (net 1 "GND") (net 2 "VCC") (net 3 "A")
      (segment (start 2 5) (end 28 5) (width 2) (layer "F.Cu") (net 1)))" +
                        Part("R1") + Part("R2") + Part("C1");
  const std::string b = R"((net 0 "") (net 1 "GND") (net 2 "VCC") (net 3 "B")
      (segment (start 2 6) (end 28 6) (width 2) (layer "F.Cu") (net 1)))";
  Compare(SmallBoard(a), SmallBoard(b));
  std::mt19937 random(20);
  const auto any = [&](auto count) { return random() % static_cast<unsigned>(count); };
  ShowTab(Window().PartsPanel());
  Window().PartsPanel().View().expandAll();
  TreePanel* const panels[] = {&Window().LayersPanel(), &Window().NetsPanel(), &Window().Comparison().Panel()};
  const auto nodeOf = [&](uiox::TreeWidget& tree) {
    std::vector<uiox::NodeId> nodes;
    tree.Store().AppendChildren(uiox::kTop, nodes);
    for (std::size_t i = 0; i < nodes.size(); ++i) tree.Store().AppendChildren(nodes[i], nodes);
    return nodes[any(nodes.size())];
  };
  const auto act = [&] {
    uiox::TreeWidget& layers = *panels[0]->View().Tree();
    uiox::TreeWidget& compare = *panels[2]->View().Tree();
    switch (any(7)) {
      case 0:
        return uiox::user::Check(layers, nodeOf(layers));
      case 1: {
        uiox::TreeWidget& tree = *panels[any(3)]->View().Tree();
        return uiox::user::Select(tree, {nodeOf(tree)});
      }
      case 2: {
        uiox::TreeWidget& tree = *panels[any(3)]->View().Tree();
        return uiox::user::ToggleSelected(tree, nodeOf(tree));
      }
      case 3: {
        const uiox::CellPlace cell{nodeOf(compare), compare.FindColumn("showMode")};
        const char* const modes[] = {"a_show", "b_show", "diff_show", "both_show", "none"};
        return uiox::user::ClickCell(compare, cell) && uiox::user::ChooseCellOption(compare, cell, modes[any(5)]);
      }
      case 4:
        return uiox::user::ToggleCellCheck(compare, {nodeOf(compare), compare.FindColumn("dimOverlap")});
      case 5: {
        TreePanel& kinds = Window().PartsPanel();
        const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier};
        ClickNode(kinds, kinds.View().Tree()->Store().Name(nodeOf(*kinds.View().Tree())), modifiers[any(3)]);
        return true;
      }
      default:
        Session().Trees().Layers().ChangeNodeColor(layers.Store().Name(nodeOf(layers)), random() & 0xFFFFFF);
        return true;
    }
  };

  History& history = Window().Steps();
  QSignalSpy steps(&history, &History::StepsChanged);
  std::vector<std::string> states{Everything()};  // after each step
  std::size_t at = 0;
  int moves = 0;  // there or back
  for (int step = 0; moves < 1000; ++step) {
    if (any(3) == 0 || states.size() == 1) {
      steps.clear();
      act();
      history.Settle();
      if (steps.count() == 0) continue;  // it changed nothing
      states.resize(at + 1);
      states.push_back(Everything());
      ++at;
    } else if (any(2) == 0) {
      const bool could = history.CanUndo();
      history.Undo();
      ASSERT_EQ(could, at > 0) << "step " << step;
      if (could) --at, ++moves;
    } else {
      const bool could = history.CanRedo();
      history.Redo();
      ASSERT_EQ(could, at + 1 < states.size()) << "step " << step;
      if (could) ++at, ++moves;
    }
    ASSERT_EQ(Everything(), states[at]) << "step " << step;
  }
  while (history.CanUndo()) history.Undo();
  EXPECT_EQ(Everything(), states[0]);
  EXPECT_GT(states.size(), 20u);
}

}  // namespace
}  // namespace oxviewer::testing
