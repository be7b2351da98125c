#include <gtest/gtest.h>
#include <uiox/TreeStore.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

using uiox::CellPlace;
using uiox::kNoNode;
using uiox::kTop;
using uiox::NewNode;
using uiox::NodeId;
using uiox::TreeStore;

NodeId Add(TreeStore& store, std::string_view name, NodeId parent, NodeId before = kNoNode) {
  NewNode node;
  node.name = name;
  return store.Add(node, parent, before);
}

std::string Names(const TreeStore& store, NodeId parent) {
  std::vector<NodeId> children;
  store.AppendChildren(parent, children);
  std::string names;
  for (const NodeId child : children) names += store.Name(child);
  return names;
}

TEST(TreeStore, StartsEmpty) {
  const TreeStore store;
  EXPECT_EQ(store.Size(), 0u);
  EXPECT_EQ(store.Root(), kNoNode);
  EXPECT_EQ(store.ChildCount(kTop), 0u);
  EXPECT_EQ(store.ChildAt(kTop, 0), kNoNode);
  EXPECT_EQ(store.Find("a"), kNoNode);
}

TEST(TreeStore, KeepsWhatANodeIsGiven) {
  TreeStore store;
  int data = 0;
  NewNode node;
  node.name = "n";
  node.label = L"label";
  node.type = 7;
  node.second_text = L"second";
  node.first_int = -5;
  node.expanded = 1;
  node.third_int = 9;
  node.user_data = &data;
  const NodeId id = store.Add(node, kTop);
  EXPECT_EQ(store.Find("n"), id);
  EXPECT_STREQ(store.Name(id), "n");
  EXPECT_EQ(store.Label(id), L"label");
  EXPECT_EQ(store.Type(id), 7u);
  EXPECT_EQ(store.SecondText(id), L"second");
  EXPECT_EQ(store.FirstInt(id), -5);
  EXPECT_EQ(store.Expanded(id), 1);
  EXPECT_EQ(store.ThirdInt(id), 9);
  EXPECT_EQ(store.UserData(id), &data);
  EXPECT_EQ(store.CheckState(id), 0u);
  EXPECT_TRUE(store.CheckSensitive(id));
  EXPECT_EQ(store.Parent(id), kTop);
}

TEST(TreeStore, PlacesNodesInOrder) {
  TreeStore store;
  const NodeId root = Add(store, "r", kTop);
  const NodeId b = Add(store, "b", root);
  Add(store, "d", root);
  Add(store, "a", root, b);
  Add(store, "c", root, store.Find("d"));
  EXPECT_EQ(Names(store, root), "abcd");
  EXPECT_EQ(store.RowOf(store.Find("c")), 2u);
  EXPECT_EQ(store.ChildAt(root, 3), store.Find("d"));
  EXPECT_EQ(store.ChildAt(root, 4), kNoNode);
}

TEST(TreeStore, RefusesNamesThatAreEmptyOrInUse) {
  TreeStore store;
  const NodeId root = Add(store, "r", kTop);
  EXPECT_EQ(Add(store, "", root), kNoNode);
  EXPECT_EQ(Add(store, "r", root), kNoNode);
  EXPECT_EQ(Add(store, std::string_view("a\0b", 3), root), kNoNode);
  EXPECT_EQ(store.Size(), 1u);
}

TEST(TreeStore, RefusesASiblingOfAnotherParent) {
  TreeStore store;
  const NodeId root = Add(store, "r", kTop);
  const NodeId a = Add(store, "a", root);
  const NodeId below = Add(store, "b", a);
  EXPECT_EQ(Add(store, "c", root, below), kNoNode);
  EXPECT_FALSE(store.Move(a, root, below));
  EXPECT_EQ(store.Size(), 3u);
}

TEST(TreeStore, RemovesWithTheSubtree) {
  TreeStore store;
  const NodeId root = Add(store, "r", kTop);
  const NodeId a = Add(store, "a", root);
  Add(store, "x", Add(store, "b", a));
  Add(store, "c", root);
  store.Remove(a);
  EXPECT_EQ(Names(store, root), "c");
  EXPECT_EQ(store.Size(), 2u);
  EXPECT_EQ(store.Find("x"), kNoNode);
  EXPECT_NE(Add(store, "x", root), kNoNode);
}

TEST(TreeStore, MovesWithTheSubtree) {
  TreeStore store;
  const NodeId root = Add(store, "r", kTop);
  const NodeId a = Add(store, "a", root);
  Add(store, "x", a);
  const NodeId b = Add(store, "b", root);
  EXPECT_TRUE(store.Move(a, b));
  EXPECT_EQ(Names(store, root), "b");
  EXPECT_EQ(Names(store, b), "a");
  EXPECT_EQ(Names(store, a), "x");
  EXPECT_FALSE(store.Move(b, a)) << "under itself";
  EXPECT_FALSE(store.Move(b, b)) << "under itself";
  EXPECT_TRUE(store.Move(a, kTop));
  EXPECT_EQ(Names(store, kTop), "ra");
}

TEST(TreeStore, EveryUnitOfALabelSurvives) {
  TreeStore store;
  const NodeId node = Add(store, "n", kTop);
  const std::wstring labels[] = {L"plain",
                                 L"\x00FF\x0100",
                                 L"\xD83D\xDE00",
                                 std::wstring{wchar_t(0xD800)},
                                 std::wstring{wchar_t(-1), wchar_t(0x7FFFFFFF)},
                                 std::wstring(16382, L'x'),
                                 std::wstring(16383, L'y'),
                                 std::wstring(100000, L'\x20AC'),
                                 std::wstring(20000, wchar_t(0x10FFFF)),
                                 std::wstring(1, L'\x1'),
                                 L""};
  for (const std::wstring& label : labels) {
    store.SetLabel(node, label);
    EXPECT_EQ(store.Label(node), label) << label.size();
  }
}

TEST(TreeStore, NamesMayBeVeryLong) {
  TreeStore store;
  const std::string name(10000, 'x');
  const NodeId node = Add(store, name, kTop);
  EXPECT_EQ(store.Find(name), node);
  EXPECT_EQ(store.Find(name + "y"), kNoNode);
  EXPECT_EQ(store.Name(node), name);
  store.Remove(node);
  EXPECT_EQ(store.Find(name), kNoNode);
}

TEST(TreeStore, MixedIsAThirdCheckState) {
  TreeStore store;
  const NodeId node = Add(store, "n", kTop);
  store.SetCheckState(node, 1);
  store.SetPartlyChecked(node, true);
  EXPECT_EQ(store.CheckState(node), 2u);
  store.SetPartlyChecked(node, false);
  EXPECT_EQ(store.CheckState(node), 1u) << "what was there before the mark";
  store.SetCheckState(node, 2);
  EXPECT_TRUE(store.PartlyChecked(node));
  store.SetCheckState(node, 0);
  EXPECT_EQ(store.CheckState(node), 0u);
  store.SetCheckState(node, 77);
  EXPECT_EQ(store.CheckState(node), 1u);
}

TEST(TreeStore, IntsKeepAnyValue) {
  TreeStore store;
  const NodeId node = Add(store, "n", kTop);
  for (const int value : {1, 0, 2, -2147483647 - 1, 2147483647, 1, 0}) {
    store.SetFirstInt(node, value);
    store.SetExpanded(node, value);
    store.SetThirdInt(node, value);
    EXPECT_EQ(store.FirstInt(node), value);
    EXPECT_EQ(store.Expanded(node), value);
    EXPECT_EQ(store.ThirdInt(node), value);
    EXPECT_EQ(store.IsSelected(node), value != 0);
  }
}

TEST(TreeStore, TheSelectionKeepsItsOrder) {
  TreeStore store;
  std::vector<NodeId> nodes;
  for (const char* name : {"a", "b", "c", "d"}) nodes.push_back(Add(store, name, kTop));
  store.Select({nodes[2], nodes[0], nodes[3]});
  EXPECT_EQ(store.Selection(), (std::vector<NodeId>{nodes[2], nodes[0], nodes[3]}));
  store.SetThirdInt(nodes[0], 0);
  store.SetThirdInt(nodes[1], 1);
  EXPECT_EQ(store.Selection(), (std::vector<NodeId>{nodes[2], nodes[3], nodes[1]}));
  store.Remove(nodes[3]);
  EXPECT_EQ(store.Selection(), (std::vector<NodeId>{nodes[2], nodes[1]}));
  store.Select({});
  EXPECT_EQ(store.SelectionSize(), 0u);
  EXPECT_FALSE(store.IsSelected(nodes[2]));
}

TEST(TreeStore, AHundredThousandLeaveTheSelectionOneByOne) {
  TreeStore store;
  std::vector<NodeId> nodes;
  for (int i = 0; i < 100000; ++i) nodes.push_back(Add(store, std::to_string(i), kTop));
  store.Select(nodes);
  for (std::size_t i = 0; i < nodes.size(); i += 2) store.SetThirdInt(nodes[i], 0);
  EXPECT_EQ(store.SelectionSize(), 50000u);
  EXPECT_EQ(store.Selection()[7], nodes[15]);
}

TEST(TreeStore, CellsHoldLabelsAndControls) {
  TreeStore store(3);
  const NodeId a = Add(store, "a", kTop);
  const NodeId b = Add(store, "b", kTop);
  EXPECT_STREQ(store.CellLabel({a, 2}), L"");
  store.SetCellLabel({a, 2}, L"x");
  store.SetCellLabel({b, 0}, L"x");
  EXPECT_STREQ(store.CellLabel({a, 2}), L"x");
  EXPECT_STREQ(store.CellLabel({a, 1}), L"");
  store.SetCellLabel({a, 2}, store.CellLabel({a, 2}) + 1);
  EXPECT_STREQ(store.CellLabel({a, 2}), L"");
  EXPECT_STREQ(store.CellLabel({b, 0}), L"x");

  store.SetCellControl({a, 1}, 5);
  EXPECT_EQ(store.PlaceOf(5), (CellPlace{a, 1}));
  store.SetCellControl({b, 1}, 5);
  EXPECT_EQ(store.CellControl({a, 1}), uiox::kNoControl) << "a control moved elsewhere leaves its cell";
  store.SetCellControl({b, 1}, 6);
  EXPECT_FALSE(store.PlaceOf(5)) << "the cell holds one control";
  store.Remove(b);
  EXPECT_FALSE(store.PlaceOf(6)) << "its node is gone";
}

TEST(TreeStore, ALabelMayBeSetFromItself) {
  TreeStore store(1);
  const NodeId node = Add(store, "n", kTop);
  store.SetCellLabel({node, 0}, L"<mix> and more");
  store.SetCellLabel({node, 0}, std::wstring_view(store.CellLabel({node, 0})).substr(6));
  EXPECT_STREQ(store.CellLabel({node, 0}), L"and more");
}

TEST(TreeStore, MarksGoWithTheirNode) {
  TreeStore store(1);
  const NodeId root = Add(store, "r", kTop);
  const NodeId node = Add(store, "n", root);
  store.SetMark(uiox::NodeMark::Activated, node);
  store.SetSelectedCell({node, 0});
  store.Remove(node);
  EXPECT_EQ(store.Marked(uiox::NodeMark::Activated), kNoNode);
  EXPECT_FALSE(store.SelectedCell());
  Add(store, "other", root);
  EXPECT_EQ(store.Marked(uiox::NodeMark::Activated), kNoNode) << "also when the number is given again";
}

TEST(TreeStore, ClearGivesTheMemoryBack) {
  TreeStore store(2);
  const std::size_t before = store.MemoryUse();
  const NodeId root = Add(store, "root", kTop);
  for (int i = 0; i < 20000; ++i) {
    const NodeId node = Add(store, "node" + std::to_string(i), root);
    store.SetLabel(node, L"label");
    store.SetCellLabel({node, 1}, L"cell");
  }
  EXPECT_GT(store.MemoryUse(), before + 20000 * 60);
  store.Clear();
  EXPECT_EQ(store.Size(), 0u);
  EXPECT_LE(store.MemoryUse(), before + 1024);
  EXPECT_NE(Add(store, "root", kTop), kNoNode);
}

TEST(TreeStore, AMillionNodesTakeAtMost132BytesEach) {
  TreeStore store;
  const NodeId root = Add(store, "root", kTop);
  constexpr int kNodes = 1'000'000;
  for (int i = 0; i < kNodes; ++i) {
    const std::string name = "Net-(R" + std::to_string(i) + "-Pad2)";
    const std::wstring label(name.begin(), name.end());
    NewNode node;
    node.name = name;
    node.label = label;
    node.type = static_cast<uiox::TypeId>(i % 10);
    node.first_int = 1;
    store.Add(node, root);
  }
  EXPECT_LE(store.MemoryUse() / kNodes, 132u);
}

TEST(TreeStore, TenThousandLevelsNeedNoStack) {
  TreeStore store;
  NodeId node = kTop;
  for (int i = 0; i < 10000; ++i) node = Add(store, "n" + std::to_string(i), node);
  store.SetBranchExpanded(store.Root(), true);
  EXPECT_EQ(store.Expanded(node), 1);
  EXPECT_TRUE(store.IsWithin(node, store.Root()));
  Add(store, "other", kTop);
  store.Remove(store.Root());
  EXPECT_EQ(store.Size(), 1u);
}

/// Many siblings at random places against a plain vector: lists of several levels that split, merge and empty.
TEST(TreeStore, ManySiblingsKeepTheirOrder) {
  TreeStore store;
  const NodeId root = Add(store, "root", kTop);
  std::vector<NodeId> plain;
  std::mt19937 random(42);
  int next = 0;
  const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
  const auto check = [&] {
    std::vector<NodeId> children;
    store.AppendChildren(root, children);
    ASSERT_EQ(children, plain);
    ASSERT_EQ(store.ChildCount(root), plain.size());
    for (std::size_t row = 0; row < plain.size(); ++row) {
      ASSERT_EQ(store.RowOf(plain[row]), row);
      ASSERT_EQ(store.ChildAt(root, static_cast<std::uint32_t>(row)), plain[row]);
    }
  };
  // It grows at random places, churns, and shrinks.
  for (const unsigned adds : {9u, 5u, 1u}) {
    for (int step = 0; step < 12000; ++step) {
      if (plain.empty() || random() % 10 < adds) {
        const std::size_t row = below(plain.size() + 1);
        const NodeId before = row == plain.size() ? kNoNode : plain[row];
        plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(row),
                     Add(store, std::to_string(next++), root, before));
      } else if (random() % 3 == 0) {
        const std::size_t from = below(plain.size());
        const std::size_t to = below(plain.size());
        const NodeId node = plain[from];
        const NodeId before = plain[to];
        ASSERT_TRUE(store.Move(node, root, before));
        if (node == before) continue;
        plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(from));
        plain.insert(std::find(plain.begin(), plain.end(), before), node);
      } else {
        const std::size_t row = below(plain.size());
        store.Remove(plain[row]);
        plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(row));
      }
    }
    check();
  }
  while (!plain.empty()) {
    store.Remove(plain.back());
    plain.pop_back();
  }
  check();
}

}  // namespace
