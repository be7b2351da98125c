#include "TreeFixture.h"

#include <uiox_qt/Text.h>

#include <QSignalSpy>

#include <random>

namespace uiox_qt_tests {
namespace {

using uiox::kNoNode;
using uiox::kTop;
using uiox::NodeId;

class TreeModelTest : public TreeFixture {};

TEST_F(TreeModelTest, HasAColumnForTheLabelsAndOneForEachCell) {
  Make(R"("label": {"title": "Net"}, "columns": [{"name": "a", "title": "A"}, {"name": "b", "title": "B"}])");
  Show();
  EXPECT_EQ(Model().columnCount(), 3);
  EXPECT_EQ(Model().headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Net"));
  EXPECT_EQ(Model().headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("B"));
}

TEST_F(TreeModelTest, ReadsLabelsFromTheStore) {
  Make();
  Show();
  Add("root");
  Add("r9", "root", L"<b>R9</b> &amp; more");
  EXPECT_EQ(Index("r9").data().toString(), QStringLiteral("R9 & more"));
  EXPECT_EQ(Index("r9").data(uiox_qt::TreeModel::MarkupRole).toString(), QStringLiteral("<b>R9</b> &amp; more"));
  Store().SetLabel(Id("r9"), L"C1");
  EXPECT_EQ(Index("r9").data().toString(), QStringLiteral("C1"));
}

TEST_F(TreeModelTest, ShowsTextsOfAPlainColumnLiterally) {
  Make(R"("label": {"markup": false}, "columns": [{"name": "a", "markup": false}])");
  Show();
  Add("root", {}, L"<b>&amp;");
  Store().SetCellLabel({Id("root"), 0}, L"<i>&lt;");
  EXPECT_EQ(Index("root").data().toString(), QStringLiteral("<b>&amp;"));
  EXPECT_EQ(Index("root", 1).data().toString(), QStringLiteral("<i>&lt;"));
}

TEST_F(TreeModelTest, TellsAdditionsRemovalsAndMovesOneByOne) {
  Make();
  Show();
  QSignalSpy added(&Model(), &QAbstractItemModel::rowsInserted);
  QSignalSpy removed(&Model(), &QAbstractItemModel::rowsRemoved);
  QSignalSpy moved(&Model(), &QAbstractItemModel::rowsMoved);
  QSignalSpy reset(&Model(), &QAbstractItemModel::modelReset);
  Add("root");
  Add("a", "root");
  Add("c", "root");
  Add("b", "root", {}, "c");
  Store().Move(Id("c"), Id("root"), Id("a"));
  Store().Move(Id("b"), Id("a"));
  Store().Remove(Id("a"));
  EXPECT_EQ(added.count(), 4);
  EXPECT_EQ(moved.count(), 2);
  EXPECT_EQ(removed.count(), 1);
  EXPECT_EQ(reset.count(), 0);
  EXPECT_EQ(Model().rowCount(Index("root")), 1);
}

TEST_F(TreeModelTest, CollectsChangesUntilTheEventLoopIsBack) {
  Make(R"("columns": [{"name": "a"}])");
  Show();
  Add("root");
  Add("a", "root");
  Settle();
  QSignalSpy changed(&Model(), &QAbstractItemModel::dataChanged);
  Store().SetLabel(Id("a"), L"A");
  Store().SetCheckState(Id("a"), 1);
  Store().SetCellLabel({Id("a"), 0}, L"cell");
  EXPECT_EQ(changed.count(), 0);
  Settle();
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed.at(0).at(0).toModelIndex(), Index("a"));
  EXPECT_EQ(changed.at(0).at(1).toModelIndex(), Index("a", 1));
}

TEST_F(TreeModelTest, TellsManyChangesAsOneRangePerParent) {
  Make();
  Show();
  Add("root");
  for (int i = 0; i < 200; ++i) Add("n" + std::to_string(i), "root");
  Settle();
  QSignalSpy changed(&Model(), &QAbstractItemModel::dataChanged);
  for (int i = 0; i < 200; ++i) Store().SetLabel(Id("n" + std::to_string(i)), L"x");
  Settle();
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed.at(0).at(0).toModelIndex(), Index("n0"));
  EXPECT_EQ(changed.at(0).at(1).toModelIndex(), Index("n199"));
}

TEST_F(TreeModelTest, SaysNothingOfNodesThatWentBeforeItCould) {
  Make();
  Show();
  Add("root");
  Add("a", "root");
  Settle();
  QSignalSpy changed(&Model(), &QAbstractItemModel::dataChanged);
  Store().SetLabel(Id("a"), L"A");
  Store().Remove(Id("a"));
  Settle();
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(TreeModelTest, ComesBackWithOneResetAfterALoadWithoutRedraw) {
  Make();
  Show();
  Add("root");
  Store().SetExpanded(Id("root"), 1);
  QSignalSpy added(&Model(), &QAbstractItemModel::rowsInserted);
  QSignalSpy reset(&Model(), &QAbstractItemModel::modelReset);
  Tree().SetRedraw(false);
  for (int i = 0; i < 1000; ++i) Add("n" + std::to_string(i), "root");
  EXPECT_TRUE(Model().IsSuspended());
  EXPECT_EQ(Model().rowCount(), 0);
  Tree().SetRedraw(true);
  View().FollowWidget();
  EXPECT_FALSE(Model().IsSuspended());
  EXPECT_EQ(Model().rowCount(Index("root")), 1000);
  EXPECT_LT(added.count(), 100);
  EXPECT_EQ(reset.count(), 2);
  EXPECT_TRUE(View().isExpanded(Index("root")));
}

TEST_F(TreeModelTest, IsEmptyAfterItsTreeHasEnded) {
  Make();
  Show();
  Add("root");
  View().Detach();
  EXPECT_EQ(Model().rowCount(), 0);
  EXPECT_EQ(View().Tree(), nullptr);
  Settle();
}

/// A drawing of the store, to hold the model against.
std::string Drawn(const uiox::TreeStore& store, NodeId node, int depth) {
  std::string text;
  for (std::uint32_t row = 0; row < store.ChildCount(node); ++row) {
    const NodeId child = store.ChildAt(node, row);
    text += std::string(static_cast<std::size_t>(depth), ' ') + store.Name(child) + '\n';
    text += Drawn(store, child, depth + 1);
  }
  return text;
}

std::string Drawn(const uiox_qt::TreeModel& model, const QModelIndex& parent, int depth) {
  std::string text;
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QModelIndex child = model.index(row, 0, parent);
    text += std::string(static_cast<std::size_t>(depth), ' ') +
            child.data(uiox_qt::TreeModel::NameRole).toString().toStdString() + '\n';
    text += Drawn(model, child, depth + 1);
  }
  return text;
}

std::uint32_t Roll(std::mt19937& random, std::size_t sides) { return static_cast<std::uint32_t>(random() % sides); }

/// The model tester and the view watch while the store changes at random.
class ModelUnderChange : public TreeFixture, public ::testing::WithParamInterface<unsigned> {
 protected:
  NodeId Any(std::mt19937& random, bool top_too) {
    std::vector<NodeId> nodes;
    if (top_too) nodes.push_back(kTop);
    for (int i = 0; i < next_; ++i) {
      const NodeId node = Id("n" + std::to_string(i));
      if (node != kNoNode) nodes.push_back(node);
    }
    if (nodes.empty()) return kNoNode;
    return nodes[Roll(random, nodes.size())];
  }

  void AddOne(std::mt19937& random) {
    const NodeId parent = Any(random, true);
    uiox::NewNode node;
    const std::string name = "n" + std::to_string(next_++);
    node.name = name;
    node.label = L"<b>label</b>";
    node.expanded = static_cast<int>(Roll(random, 2));
    node.third_int = Roll(random, 5) == 0;
    const std::uint32_t count = Store().ChildCount(parent);
    Store().Add(node, parent, Roll(random, 2) || count == 0 ? kNoNode : Store().ChildAt(parent, Roll(random, count)));
  }

  void MoveOne(std::mt19937& random) {
    const NodeId node = Any(random, false);
    const NodeId parent = Any(random, true);
    if (node == kNoNode) return;
    const std::uint32_t count = Store().ChildCount(parent);
    Store().Move(node, parent, Roll(random, 2) || count == 0 ? kNoNode : Store().ChildAt(parent, Roll(random, count)));
  }

  void ChangeOne(std::mt19937& random) {
    const NodeId node = Any(random, false);
    if (node == kNoNode) return;
    switch (Roll(random, 6)) {
      case 0:
        return Store().SetLabel(node, L"<font color=#ff0000>x</font>" + std::to_wstring(Roll(random, 9)));
      case 1:
        return Store().SetCheckState(node, Roll(random, 3));
      case 2:
        return Store().SetExpanded(node, static_cast<int>(Roll(random, 2)));
      case 3:
        return Store().SetBranchExpanded(node, Roll(random, 2) == 0);
      case 4:
        return Store().SetThirdInt(node, static_cast<int>(Roll(random, 2)));
      default:
        return Store().SetCellLabel({node, 0}, L"<mix>");
    }
  }

  void Step(std::mt19937& random) {
    switch (Roll(random, 10)) {
      case 0:
      case 1:
      case 2:
      case 3:
        return AddOne(random);
      case 4:
        if (const NodeId node = Any(random, false); node != kNoNode) Store().Remove(node);
        return;
      case 5:
      case 6:
        return MoveOne(random);
      case 7:
        if (Roll(random, 8) == 0) {
          Tree().SetRedraw(!Tree().Redraw());
          View().FollowWidget();
        }
        return;
      default:
        return ChangeOne(random);
    }
  }

  int next_ = 0;
};

TEST_P(ModelUnderChange, ShowsWhatTheStoreHolds) {
  Make(R"("checkBoxes": true, "columns": [{"name": "a"}], "rootShown": )" +
       std::string(GetParam() % 2 ? "true" : "false"));
  Show();
  std::mt19937 random(GetParam());
  for (int step = 0; step < 400; ++step) {
    Step(random);
    if (step % 10 == 0) Settle();
    if (step % 50 == 0 && !Model().IsSuspended()) {
      ASSERT_EQ(Drawn(Model(), {}, 0), Drawn(Store(), kTop, 0)) << "seed " << GetParam() << " step " << step;
    }
  }
  Tree().SetRedraw(true);
  View().FollowWidget();
  Settle();
  EXPECT_EQ(Drawn(Model(), {}, 0), Drawn(Store(), kTop, 0));
  std::vector<std::string> selected;
  for (QModelIndex index = Model().index(0, 0, View().rootIndex()); index.isValid(); index = View().indexBelow(index)) {
    const NodeId node = Model().NodeOf(index);
    EXPECT_EQ(View().selectionModel()->isSelected(index), Store().IsSelected(node)) << Store().Name(node);
    if (Store().ChildCount(node) > 0) {
      EXPECT_EQ(View().isExpanded(index), Store().Expanded(node) != 0) << Store().Name(node);
    }
  }
  EXPECT_EQ(Heard(), Words{});
}

INSTANTIATE_TEST_SUITE_P(Seeds, ModelUnderChange, ::testing::Range(1u, 13u));

}  // namespace
}  // namespace uiox_qt_tests
