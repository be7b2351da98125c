// Many nodes at once: the same tree, results and memory as one by one, in fewer calls.
#include <tests/support/Check.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/tree/TreeTest.h>

#include <algorithm>
#include <optional>

namespace oxecad_ui {
namespace {

using test_support::Drawn;
using test_support::kEverything;
using test_support::kNothingMore;
using test_support::Plant;

using EcadNode = Tree::EcadNode;

EcadNode Net(const char* name, const wchar_t* label, const char* parent = "root") {
  return {name, label, parent, "net", L"", 1, 0, 0, nullptr};
}

bool AddByItself(Tree& tree, const EcadNode& node, Tree::NodeComparableType order = Tree::ByLabel) {
  return tree.AddEcadNode(node.name, node.label, node.parent, order, node.type, node.text2, node.i1, node.i2, node.i3,
                          node.data);
}

class AddEcadNodes : public test_support::TreeFixture {
 protected:
  AddEcadNodes() { Plant(tree, "root"); }
  RecordingToolkit toolkit{RecordingToolkit::StandIn};
  OpenTree tree{"dev", "tree"};
};

TEST_F(AddEcadNodes, SortsThemAmongThemselvesAndAmongThoseBefore) {
  AddByItself(tree, Net("n5", L"item5"));
  AddByItself(tree, Net("n20", L"item20"));
  EXPECT_EQ(tree.AddEcadNodes({Net("n10", L"item10"), Net("n1", L"item1"), Net("n7", L"ITEM7"), Net("n30", L"item30"),
                               Net("n7b", L"item7"), Net("n5b", L"item5")},
                              Tree::ByLabel),
            std::vector<bool>(6, true));
  EXPECT_EQ(Drawn(tree, kNothingMore), R"(
    root
      n1 "item1"
      n5b "item5"
      n5 "item5"
      n7b "item7"
      n7 "ITEM7"
      n10 "item10"
      n20 "item20"
      n30 "item30")");
}

TEST_F(AddEcadNodes, HandsAllArgumentsOn) {
  int data = 0;
  toolkit.NamePointer(&data, "&data");
  tree.AddEcadNodes({Net("b", L"b"), {"a", L"A", "root", "kind", L"second", 3, 1, 7, &data}}, Tree::ByLabel);
  const std::vector<std::string> lines = toolkit.TakeLines();
  const auto isCall = [](const std::string& line) {
    return line.find(R"(AddNodeBefore "a" L"A" "root" "b" "kind" | )") != std::string::npos;
  };
  const auto call = std::find_if(lines.begin(), lines.end(), isCall);
  ASSERT_NE(call, lines.end());
  for (const char* const value : {"=L\"second\"", "=3", "=1", "=7", "=&data"}) {
    EXPECT_NE(call->find(value), std::string::npos) << value << " in " << *call;
  }
}

TEST_F(AddEcadNodes, RedrawsOnce) {
  toolkit.WriteOnly([](const uiox::Call& call) { return call.function == uiox::Function::Modify; });
  tree.AddEcadNodes({Net("b", L"b"), Net("a", L"a")}, Tree::ByLabel);
  EXPECT_EQ(toolkit.TakeLines().size(), 2u) << "off and on";
  tree.AddEcadNodes({}, Tree::ByLabel);
  EXPECT_TRUE(toolkit.TakeLines().empty()) << "nothing to add";
}

TEST_F(AddEcadNodes, ReadsNoNodeOfAFreshParentButTheFirst) {
  std::vector<std::string> names;
  for (int i = 0; i < 200; ++i) names.push_back("n" + std::to_string(i * 37 % 200));
  std::vector<EcadNode> nodes;
  for (const std::string& name : names) nodes.push_back(Net(name.c_str(), L"x"));
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2202 || call.code == 2203; });
  tree.AddEcadNodes(nodes, Tree::ByLabel);
  EXPECT_LE(toolkit.TakeLines().size(), 10u) << "one node is read back, and read once more as a sibling";
}

TEST_F(AddEcadNodes, SearchesAPlaceForFewAmongMany) {
  for (int i = 0; i < 100; ++i) {
    const std::wstring label = L"R" + std::to_wstring(i);
    const std::string name = "r" + std::to_string(i);
    AddByItself(tree, Net(name.c_str(), label.c_str()));
  }
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2203; });
  tree.AddEcadNodes({Net("x", L"R50"), Net("y", L"R20")}, Tree::ByLabel);
  EXPECT_LE(toolkit.TakeLines().size(), 2u * 8u + 1u) << "one state is read for each record";
}

TEST_F(AddEcadNodes, ReadsNoNodeOfFreshParentsThatTakeTurns) {
  Plant(tree, "root\n  p\n  q");
  std::vector<std::string> names;
  for (int i = 0; i < 200; ++i) names.push_back("n" + std::to_string(i));
  std::vector<EcadNode> nodes;
  for (std::size_t i = 0; i < names.size(); ++i) nodes.push_back(Net(names[i].c_str(), L"x", i % 2 == 0 ? "p" : "q"));
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2202 || call.code == 2203; });
  tree.AddEcadNodes(nodes, Tree::ByLabel);
  EXPECT_LE(toolkit.TakeLines().size(), 10u) << "one node is read back, and read once more as a sibling";
}

TEST_F(AddEcadNodes, ASiblingThatWasDeletedAndComesAgainCountsTwiceAsOneByOne) {
  AddByItself(tree, Net("a", L"a"));
  AddByItself(tree, Net("m", L"m"));
  tree.DeleteNode("a");
  // Where a is remembered first it reads "z" as soon as it is back, and what is less goes before it.
  tree.AddEcadNodes({Net("k", L"k"), Net("a", L"z"), Net("b", L"b")}, Tree::ByLabel);
  EXPECT_EQ(Drawn(tree, kNothingMore), R"(
    root
      k
      m
      b
      a "z")");
}

TEST_F(AddEcadNodes, ReadsEachRememberedSiblingOnceAmongMany) {
  std::vector<std::string> names;
  std::vector<std::wstring> labels;
  for (int i = 0; i < 80; ++i) {
    names.push_back("r" + std::to_string(i));
    labels.push_back(L"R" + std::to_wstring(i));
  }
  std::vector<EcadNode> nodes;
  for (std::size_t i = 0; i < 80; ++i) {
    const EcadNode node = Net(names[i].c_str(), labels[i].c_str());
    if (i % 2 == 0) {
      AddByItself(tree, node);
    } else {
      nodes.push_back(node);
    }
  }
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.code == 2203; });
  tree.AddEcadNodes(nodes, Tree::ByLabel);
  EXPECT_LE(toolkit.TakeLines().size(), 41u + 10u) << "one state is read for each record, and the first is searched";
}

/// "R10", "R11" and so on, as names and labels.
struct Numbered {
  explicit Numbered(int count) {
    for (int i = 0; i < count; ++i) {
      names.push_back("r" + std::to_string(10 + i));
      labels.push_back(L"R" + std::to_wstring(10 + i));
    }
  }
  EcadNode Node(std::size_t i, const char* parent) const { return Net(names[i].c_str(), labels[i].c_str(), parent); }
  std::vector<std::string> names;
  std::vector<std::wstring> labels;
};

TEST_F(AddEcadNodes, OneAmongManySiblingsFindsItsPlaceBesideALargeGroup) {
  Plant(tree, "root\n  p\n  q");
  const Numbered many(40);
  for (std::size_t i = 0; i < 40; ++i) AddByItself(tree, many.Node(i, "p"));
  const Numbered fresh(10);
  std::vector<std::string> names;
  for (const std::string& name : fresh.names) names.push_back("q" + name);
  std::vector<EcadNode> nodes;
  for (std::size_t i = 0; i < 10; ++i) nodes.push_back(Net(names[i].c_str(), fresh.labels[i].c_str(), "q"));
  nodes.push_back(Net("new", L"R15b", "p"));
  tree.AddEcadNodes(nodes, Tree::ByLabel);
  Names children;
  tree.GetChildren("p", children);
  ASSERT_EQ(children.size(), 41u);
  EXPECT_EQ(children[5], "r15");
  EXPECT_EQ(children[6], "new");
}

TEST_F(AddEcadNodes, ASiblingOfManyThatComesAgainElsewhereIsThereWhenTheNextIsPlaced) {
  OpenTree one("dev", "one");
  OpenTree many("dev", "many");
  const Numbered siblings(60);
  const std::vector<EcadNode> nodes = {Net("x", L"R20b", "p"), Net("a", L"z", "q"), Net("b", L"b", "p")};
  std::vector<bool> expected;
  for (OpenTree* const each : {&one, &many}) {
    Plant(*each, "root\n  p\n  q");
    AddByItself(*each, Net("a", L"a", "p"));
    for (std::size_t i = 0; i < 60; ++i) AddByItself(*each, siblings.Node(i, "p"));
    each->DeleteNode("a");
    if (each == &one) {
      for (const EcadNode& node : nodes) expected.push_back(AddByItself(one, node));
    } else {
      EXPECT_EQ(many.AddEcadNodes(nodes, Tree::ByLabel), expected);
    }
  }
  EXPECT_EQ(Drawn(many, kNothingMore), Drawn(one, kNothingMore).text);
}

TEST_F(AddEcadNodes, AnUnsupportedOrderAddsAtTheEnd) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(
      tree.AddEcadNodes({Net("b", L"b"), Net("a", L"a"), Net("c", L"c")}, static_cast<Tree::NodeComparableType>(1)),
      std::vector<bool>(3, true));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), std::string(kNotSupported) + kNotSupported)
      << "as one by one, where siblings are remembered";
  EXPECT_EQ(Drawn(tree, kNothingMore), "root\n  b\n  a\n  c");
}

TEST_F(AddEcadNodes, AmongSiblingsOutOfOrderASearchDecidesAsOneByOne) {
  for (const char* const name : {"a", "b", "c"}) AddByItself(tree, Net(name, L"m-1"));
  // Behind a minus sign the greater number is the greater label: 50, 40, 30 is no order.
  tree.ModifyNodeLabel("c", L"m-50");
  tree.ModifyNodeLabel("b", L"m-40");
  tree.ModifyNodeLabel("a", L"m-30");
  tree.AddEcadNodes({Net("pin", L"pin", "b"), Net("new", L"m-45")}, Tree::ByLabel);
  EXPECT_EQ(Drawn(tree, kNothingMore), R"(
    root
      c "m-50"
      b "m-40"
        pin
      a "m-30"
      new "m-45")");
}

/// Its records cannot be read into a plain one.
class UnreadableTree : public Tree {
 public:
  using Tree::GetNodeInfo;
  using Tree::Tree;
  bool GetNodeInfo(const char*, NodeInfo&) const override { return false; }
};

TEST_F(AddEcadNodes, WithoutReadableRecordsTheyStandInTheOrderInWhichTheyCame) {
  UnreadableTree unreadable("dev", "tree");
  unreadable.AddEcadNodes({Net("b", L"b"), Net("a", L"a"), Net("c", L"c")}, Tree::ByLabel);
  EXPECT_EQ(Drawn(tree, kNothingMore), "root\n  b\n  a\n  c");
}

/// One of its records cannot be read into a plain one.
class PartlyUnreadableTree : public Tree {
 public:
  using Tree::GetNodeInfo;
  using Tree::Tree;
  bool GetNodeInfo(const char* node, NodeInfo& info) const override {
    return std::string(node) != "g" && Tree::GetNodeInfo(node, info);
  }
};

TEST_F(AddEcadNodes, AmongSiblingsThatCannotBeReadASearchDecidesAsOneByOne) {
  PartlyUnreadableTree partly("dev", "tree");
  for (const char* const name : {"b", "g", "x"}) AddByItself(partly, Net(name, name[0] == 'b' ? L"b" : L"x"));
  partly.AddEcadNodes({Net("pin", L"pin", "g"), Net("a", L"a")}, Tree::ByLabel);
  EXPECT_EQ(Drawn(tree, kNothingMore), R"(
    root
      b
      g "x"
        pin
      x
      a)")
      << "who cannot be placed stands at the end";
}

/// Sorts by something else than what the nodes show.
class BackwardTree : public Tree {
 public:
  using Tree::GetNodeInfo;
  using Tree::Tree;
  bool GetNodeInfo(const char* node, NodeInfo& info) const override {
    if (!Tree::GetNodeInfo(node, info)) return false;
    for (wchar_t& c : info.label) c = static_cast<wchar_t>(L'a' + L'z' - c);
    return true;
  }
};

TEST_F(AddEcadNodes, OtherLabelsInTheRecordsDecideAsOneByOne) {
  BackwardTree one("dev", "one");
  BackwardTree many("dev", "many");
  Plant(one, "root");
  Plant(many, "root");
  const std::vector<EcadNode> nodes = {Net("b", L"b"), Net("a", L"a"), Net("x", L"x"), Net("c", L"c")};
  for (const EcadNode& node : nodes) AddByItself(one, node);
  many.AddEcadNodes(nodes, Tree::ByLabel);
  EXPECT_EQ(Drawn(many, kNothingMore), Drawn(one, kNothingMore).text);
}

TEST_F(AddEcadNodes, ARefusedNodeIsNotRememberedAndDoesNotStopTheRest) {
  toolkit.When(Doing(2030, "b")).Refuse(1);
  EXPECT_EQ(tree.AddEcadNodes({Net("c", L"c"), Net("b", L"b"), Net("a", L"a")}, Tree::ByLabel),
            (std::vector<bool>{true, false, true}));
  AddByItself(tree, Net("ab", L"ab"));
  EXPECT_EQ(Drawn(tree, kNothingMore), "root\n  a\n  ab\n  c");
}

// --- Against one by one ----------------------------------------------------------------------------------------------

struct Record {
  std::optional<std::string> name;
  std::optional<std::wstring> label;
  std::optional<std::string> parent;

  EcadNode Node() const {
    return {name ? name->c_str() : nullptr,
            label ? label->c_str() : nullptr,
            parent ? parent->c_str() : nullptr,
            "net",
            L"",
            1,
            1,
            0,
            nullptr};
  }
  friend std::ostream& operator<<(std::ostream& out, const Record& record) {
    out << (record.name ? *record.name : "null") << " \"";
    for (const wchar_t c : record.label.value_or(L"null")) out << static_cast<char>(c);
    return out << "\" below " << (record.parent ? *record.parent : "null");
  }
};

template <class T>
rc::Gen<std::optional<T>> MostlyNot(rc::Gen<T> gen) {
  return rc::gen::weightedOneOf<std::optional<T>>(
      {{30, rc::gen::map(std::move(gen), [](T value) { return std::optional<T>(std::move(value)); })},
       {1, rc::gen::just(std::optional<T>())}});
}

rc::Gen<Record> AnyRecord() {
  const auto name = rc::gen::weightedOneOf<std::string>(
      {{12, rc::gen::map(rc::gen::inRange(0, 40), [](int i) { return "n" + std::to_string(i); })},
       {3, rc::gen::element<std::string>("g0", "g1", "g2", "late")},
       {1, rc::gen::element<std::string>("", "root")}});
  const auto parent =
      rc::gen::weightedOneOf<std::string>({{12, rc::gen::element<std::string>("root", "g0", "g1", "g2")},
                                           {3, rc::gen::element<std::string>("n0", "n1", "late", "nowhere")},
                                           {1, rc::gen::just(std::string())}});
  return rc::gen::build<Record>(rc::gen::set(&Record::name, MostlyNot<std::string>(name)),
                                rc::gen::set(&Record::label, MostlyNot<std::wstring>(test_support::TextOf(L"01aA-"))),
                                rc::gen::set(&Record::parent, MostlyNot<std::string>(parent)));
}

std::vector<Record> AnyRecords() { return *rc::gen::container<std::vector<Record>>(AnyRecord()); }

/// The same two trees: one is filled one by one, the other one at once.
class TwoTrees {
 public:
  TwoTrees() {
    uiox::Suite::Get().Reset();
    for (Tree* const tree : {&one, &many}) Plant(*tree, "root\n  g0\n    loose \"0\"\n  g1");
  }

  void AddToBoth(const std::vector<Record>& records) {
    for (const Record& record : records) {
      RC_ASSERT(AddByItself(one, record.Node()) == AddByItself(many, record.Node()));
    }
  }
  void Load(const std::vector<Record>& records) {
    std::vector<EcadNode> nodes;
    std::vector<bool> expected;
    for (const Record& record : records) {
      nodes.push_back(record.Node());
      expected.push_back(AddByItself(one, record.Node()));
    }
    RC_ASSERT(many.AddEcadNodes(nodes, Tree::ByLabel) == expected);
    RC_ASSERT(Drawn(many, kEverything) == Drawn(one, kEverything));
  }

  Tree one{"one", "tree"};
  Tree many{"many", "tree"};  // the name of the component decides whose memory it is
};

RC_GTEST_PROP(AddEcadNodesProperties, LeaveWhatOneByOneLeaves, ()) {
  TwoTrees trees;
  trees.AddToBoth(AnyRecords());
  trees.Load(AnyRecords());
  trees.AddToBoth(AnyRecords());
  trees.Load(AnyRecords());
}

RC_GTEST_PROP(AddEcadNodesProperties, HoldAlsoAmongNodesThatWereRelabelledMovedOrDeleted, ()) {
  TwoTrees trees;
  trees.AddToBoth(AnyRecords());
  const auto label = *test_support::TextOf(L"01aA-");
  for (Tree* const tree : {&trees.one, &trees.many}) {
    tree->ModifyNodeLabel("n1", label.c_str());
    tree->DeleteNode("n2");
    tree->MoveNodeBefore("n3", "g1", nullptr);
  }
  trees.Load(AnyRecords());
  trees.AddToBoth(AnyRecords());
  RC_ASSERT(Drawn(trees.many, kEverything) == Drawn(trees.one, kEverything));
}

}  // namespace
}  // namespace oxecad_ui
