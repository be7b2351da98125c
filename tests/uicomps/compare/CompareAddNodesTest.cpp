// Many compare nodes at once: the same cells, controls and indices as one by one, with each parent summed up once.
#include <tests/support/Check.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/color/ImageShop.h>
#include <tests/uicomps/compare/CompareModel.h>
#include <tests/uicomps/compare/CompareWire.h>

#include <ostream>

namespace compare_tests {
namespace {

using namespace test_support;
using C = CompareColorTree;
using Record = C::CompareNodeInfo;

const std::vector<std::string> kColumns = {"a", "b", "overlap", "showMode", "dimOverlap"};

Record Compared(std::string name, unsigned a, unsigned b, ShowMode mode = ShowMode::Both) {
  Record info;
  info.name = std::move(name);
  info.type = "colorvis";
  info.colorA = a;
  info.colorB = b;
  info.colorOverlap = 3;
  info.showMode = mode;
  info.designFlag = C::DesignBoth;
  return info;
}

class CompareAddNodes : public TreeFixture {
 protected:
  CompareAddNodes() : TreeFixture(kColumns) {
    ForgetIcons();
    Plant(tree, "root");
  }
  ~CompareAddNodes() override { ForgetIcons(); }
  RecordingToolkit toolkit{RecordingToolkit::StandIn};
  C tree{"dev", "tree"};
};

TEST_F(CompareAddNodes, SumUpEachParent) {
  Record onlyA = Compared("p/x", 1, 0, ShowMode::OnlyA);
  onlyA.designFlag = C::DesignA;
  onlyA.dim = Tree::Checked;
  EXPECT_EQ(tree.AddNodes({Compared("p", 7, 7), Compared("p/y", 1, 2, ShowMode::OnlyA), onlyA, Compared("p/y", 5, 5)}),
            (std::vector<bool>{true, true, true, false}));
  const uiox::TreeStore& store = widget.Store();
  const uiox::NodeId p = store.Find("p");
  EXPECT_EQ(store.CellLabel({p, 0}), std::wstring(L"<img src=\"color_square.png_1\">"));
  EXPECT_EQ(store.CellLabel({p, 1}), std::wstring(L"<img src=\"color_square.png_2\">")) << "x has no say about b";
  EXPECT_EQ(store.CellLabel({p, 2}), std::wstring(L"<img src=\"color_square.png_3\">"));
  EXPECT_EQ(store.CellLabel({p, 3}), std::wstring(L"<a_show>"));
  ASSERT_NE(widget.ControlIn({p, 4}), nullptr);
  EXPECT_EQ(widget.ControlIn({p, 4})->CheckState(), 2);
}

TEST_F(CompareAddNodes, GiveIndicesInTheirOrder) {
  tree.AddNodes({Compared("b", 1, 1), Compared("a", 1, 1), Compared("a", 1, 1), Compared("c", 1, 1)});
  EXPECT_EQ(tree.GetIndex("b"), 0u);
  EXPECT_EQ(tree.GetIndex("a"), 1u);
  EXPECT_EQ(tree.GetIndex("c"), 2u);
}

TEST_F(CompareAddNodes, RedrawOnceAndReadNoSiblingTwice) {
  tree.AddNodes({Compared("p", 1, 1), Compared("p/0", 1, 1)});
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) {
    return call.function == uiox::Function::Modify || call.code == 2202 || call.code == 2203;
  });
  std::vector<Record> records;
  for (int i = 1; i < 101; ++i) records.push_back(Compared("p/" + std::to_string(i), 1, 1));
  tree.AddNodes(records);
  EXPECT_LE(toolkit.TakeLines().size(), 2u + 20u);
  tree.AddNodes({});
  EXPECT_TRUE(toolkit.TakeLines().empty());
}

TEST_F(CompareAddNodes, TryTheIconOfAColorAgain) {
  toolkit.When(DoingGlobally(6030)).Refuse().Once();
  tree.AddNodes({Compared("x", 5, 5), Compared("y", 5, 5)});
  const uiox::TreeStore& store = widget.Store();
  EXPECT_EQ(store.CellLabel({store.Find("x"), 0}), std::wstring(L"<mix>"));
  EXPECT_EQ(store.CellLabel({store.Find("x"), 1}), std::wstring(L"<img src=\"color_square.png_5\">"))
      << "what could not be loaded once may be loaded now";
  EXPECT_EQ(store.CellLabel({store.Find("y"), 0}), std::wstring(L"<img src=\"color_square.png_5\">"));
}

TEST_F(CompareAddNodes, WriteEachParentOnce) {
  tree.AddNodes({Compared("p", 1, 1)});
  toolkit.TakeLines();
  toolkit.WriteOnly(
      [](const uiox::Call& call) { return call.code == 2160 && call.positional[0].Text() == std::string("p"); });
  tree.AddNodes({Compared("p/1", 1, 1), Compared("p/2", 2, 2), Compared("p/3", 2, 2), Compared("p/4", 3, 3)});
  EXPECT_EQ(toolkit.TakeLines().size(), 4u) << "show mode and three colours";
}

TEST_F(CompareAddNodes, ForgetWhatTheFirstChildSaidBefore) {
  Plant(tree, "root\n  p <colorvis>\n    x <colorvis>");
  tree.SetCellLabel("x", "a", L"<img src=\"color_square.png_1\">");
  // p is summed up while x shows 1; then x becomes what its own child shows.
  tree.AddNodes({Compared("p/y", 2, 2), Compared("x/1", 2, 2)});
  const uiox::TreeStore& store = widget.Store();
  EXPECT_EQ(store.CellLabel({store.Find("p"), 0}), std::wstring(L"<img src=\"color_square.png_2\">"));
}

// --- Against one by one ----------------------------------------------------------------------------------------------

struct Addition {
  std::string name;
  bool other_type;
  unsigned a, b, overlap, dim, flag;
  int mode;
  Record Info() const {
    Record info = Compared(name, a, b, static_cast<ShowMode>(mode));
    info.colorOverlap = overlap;
    info.dim = static_cast<Tree::NodeState>(dim);
    info.designFlag = static_cast<C::DesignFlag>(flag);
    if (other_type) info.type = "other";
    return info;
  }
  friend std::ostream& operator<<(std::ostream& out, const Addition& node) {
    return out << node.name << (node.other_type ? " (other)" : "") << " a " << node.a << " b " << node.b << " overlap "
               << node.overlap << " mode " << node.mode << " dim " << node.dim << " flag " << node.flag;
  }
};

rc::Gen<unsigned> AnyColor() {
  return rc::gen::weightedOneOf<unsigned>({{6, rc::gen::inRange(1u, 3u)}, {1, rc::gen::just(kUnread)}});
}

std::vector<Addition> AnyAdditions() {
  const auto head = rc::gen::weightedElement<std::string>(
      {{4, ""}, {3, "p/"}, {3, "q/"}, {3, "deep/"}, {2, "n0/"}, {2, "n1/"}, {1, "heading/"}, {1, "nowhere/"}});
  // "p/n1" and "p_n1" ask for one check button.
  const auto name = rc::gen::weightedOneOf<std::string>(
      {{20, rc::gen::apply([](const std::string& h, int i) { return h + "n" + std::to_string(i); }, head,
                           rc::gen::inRange(0, 8))},
       {2, rc::gen::element<std::string>("p_n1", "q_n2", "root", "", "nowhere")}});
  const auto often = rc::gen::weightedElement<bool>({{9, false}, {1, true}});
  return *rc::gen::container<std::vector<Addition>>(rc::gen::build<Addition>(
      rc::gen::set(&Addition::name, name), rc::gen::set(&Addition::other_type, often),
      rc::gen::set(&Addition::a, AnyColor()), rc::gen::set(&Addition::b, AnyColor()),
      rc::gen::set(&Addition::overlap, AnyColor()), rc::gen::set(&Addition::mode, rc::gen::inRange(-1, 2)),
      rc::gen::set(&Addition::dim, rc::gen::inRange(0u, 3u)), rc::gen::set(&Addition::flag, rc::gen::inRange(0u, 4u))));
}

/// What a tree shows, and what its check buttons are called and show.
std::string Shown(const C& tree) {
  std::string text = Drawn(tree, kEverything).text;
  for (const auto& [node, control] : tree.m_dimControls) {
    const uiox::Widget* const button = uiox::Suite::Get().Find(tree.GetDevice(), control);
    text += node + ' ' + control + ' ' + (button ? std::to_string(button->CheckState()) : "gone") + '\n';
  }
  for (const std::string& node : tree.m_nodes) text += node + ' ';
  return text;
}

RC_GTEST_PROP(CompareAddNodesProperties, LeaveWhatOneByOneLeaves, ()) {
  ForgetIcons();
  uiox::Suite::Get().Reset();
  C one("one", "tree");
  C many("many", "tree");
  // Among headings a change goes no further than to the parent, among compare nodes up to the root.
  const auto planted = *rc::gen::element<const char*>(
      "root\n  p\n    q <colorvis>\n      deep\n  heading\n    other",
      "root\n  p <colorvis>\n    q <colorvis>\n      deep <colorvis>\n  heading\n    other");
  for (C* const tree : {&one, &many}) {
    uiox::Suite::Get().ObtainTree(tree->GetDevice(), "tree", kColumns);
    tree->Init(nullptr);
    Plant(*tree, planted);
    tree->AddNodes({Compared("deep/first", 1, 2), Compared("q/first", 2, 1)});
  }
  RC_ASSERT(Shown(many) == Shown(one));
  for (int round = 0; round < 2; ++round) {
    // Parents do not have to say what their children say, nor in labels that the tree itself would write.
    const auto label = *rc::gen::element<std::wstring>(L"", L"<mix>", L"odd", L"<img src=\"color_square.png_1\">");
    const auto node = *rc::gen::element<std::string>("root", "p", "q", "deep", "n0", "p/n1");
    const auto column = *rc::gen::elementOf(kColumns);
    for (C* const tree : {&one, &many}) tree->SetCellLabel(node.c_str(), column.c_str(), label.c_str());

    std::vector<Record> records;
    std::vector<bool> expected;
    for (const Addition& addition : AnyAdditions()) {
      records.push_back(addition.Info());
      expected.push_back(one.AddNode(records.back()));
    }
    RC_ASSERT(many.AddNodes(records) == expected);
    RC_ASSERT(Shown(many) == Shown(one));
  }
}

}  // namespace
}  // namespace compare_tests
