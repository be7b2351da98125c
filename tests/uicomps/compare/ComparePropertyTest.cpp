// Whatever is added, changed and clicked: every cell shows what a plain model says.
#include <oxcore/ColorPicker.h>
#include <tests/support/Check.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/color/ImageShop.h>
#include <tests/uicomps/compare/CompareModel.h>
#include <tests/uicomps/compare/CompareWire.h>

#include <ostream>

namespace compare_tests {
namespace {

using namespace test_support;
using C = CompareColorTree;

const std::vector<std::string> kColumns = {"a", "b", "overlap", "showMode", "dimOverlap"};
constexpr const char* kOptions[] = {"both_show", "a_show",       "b_show",   "a-b_show",
                                    "b-a_show",  "overlap_show", "diff_show"};

/// One step of an application or a user. `node` and `before` choose among the nodes that are there.
struct Step {
  enum Kind { Add, AddHeading, Change, SumUp, PickColor, CancelColor, ToggleDim, ChooseShow, ChooseNone, ClickShow };
  Kind kind;
  unsigned node;
  unsigned before;
  ModelValues values;
  friend std::ostream& operator<<(std::ostream& out, const Step& step) {
    constexpr const char* kNames[] = {"add",    "add heading", "change",      "sum up",      "pick colour",
                                      "cancel", "toggle dim",  "choose show", "choose none", "click show"};
    const ModelValues& v = step.values;
    return out << kNames[step.kind] << " node " << step.node << " before " << step.before << " a " << v.a << " b "
               << v.b << " overlap " << v.overlap << " show " << v.show << " dim " << v.dim << " flag " << v.flag;
  }
};

rc::Gen<unsigned> AnyColor() {
  return rc::gen::weightedOneOf<unsigned>({{6, rc::gen::inRange(1u, 4u)}, {1, rc::gen::just(kUnread)}});
}

rc::Gen<Step> AnyStep() {
  const auto values = rc::gen::build<ModelValues>(
      rc::gen::set(&ModelValues::a, AnyColor()), rc::gen::set(&ModelValues::b, AnyColor()),
      rc::gen::set(&ModelValues::overlap, AnyColor()), rc::gen::set(&ModelValues::show, rc::gen::inRange(-1, 7)),
      rc::gen::set(&ModelValues::dim, rc::gen::inRange(0u, 3u)),
      rc::gen::set(&ModelValues::flag, rc::gen::inRange(0u, 4u)));
  return rc::gen::build<Step>(rc::gen::set(&Step::kind, rc::gen::weightedElement<Step::Kind>({{8, Step::Add},
                                                                                              {1, Step::AddHeading},
                                                                                              {3, Step::Change},
                                                                                              {1, Step::SumUp},
                                                                                              {3, Step::PickColor},
                                                                                              {1, Step::CancelColor},
                                                                                              {3, Step::ToggleDim},
                                                                                              {3, Step::ChooseShow},
                                                                                              {1, Step::ChooseNone},
                                                                                              {1, Step::ClickShow}})),
                              rc::gen::set(&Step::node, rc::gen::inRange(0u, 1000u)),
                              rc::gen::set(&Step::before, rc::gen::inRange(0u, 1000u)),
                              rc::gen::set(&Step::values, values));
}

/// Counts how often a parent is asked for: once for each node that the climb writes, and once to begin it.
class ParentCounter : public uiox::Backend {
 public:
  int Handle(uiox::Call& call) override {
    if (call.function == uiox::Function::DoOperation && call.code == 2202 && call.Find(283)) ++count;
    return uiox::BuiltIn().Handle(call);
  }
  int count = 0;
};

/// A tree and its model. Half of the headings and compare nodes stand below headings, others below compare nodes.
class ComparedTree {
 public:
  ComparedTree() : widget_(Fresh()) {
    tree.Init(nullptr);
    model_.Add("root", -1, -1, false);
    RC_ASSERT(tree.BaseTree::AddNode("root", L"root", "", "heading", L"", 1, 1, 0, nullptr));
  }

  void Do(const Step& step) {
    const int node = static_cast<int>(step.node % model_.nodes.size());
    const std::string name = model_.nodes[node].name;
    switch (step.kind) {
      case Step::Add:
      case Step::AddHeading:
        return Add(node, step);
      case Step::Change:
        return Change(node, step.values);
      case Step::SumUp:
        tree.ChildInfoChanged(name.c_str());
        model_.SumUp(node);
        return;
      case Step::PickColor:
      case Step::CancelColor:
        return Pick(node, kColumns[step.before % 3], step.kind == Step::PickColor ? step.values.a : kUnread);
      case Step::ToggleDim:
        return ToggleDim(node);
      case Step::ChooseShow:
      case Step::ChooseNone:
      case Step::ClickShow:
        return ClickShow(node, step);
    }
  }

  void Check() const {
    const uiox::TreeStore& store = widget_.Store();
    for (const ModelNode& node : model_.nodes) {
      const uiox::NodeId id = store.Find(node.name);
      RC_ASSERT(id != uiox::kNoNode);
      for (uiox::ColumnIndex column = 0; column < 4; ++column) {
        const auto cell = node.cells.find(kColumns[column]);
        const std::wstring expected = cell == node.cells.end() ? L"" : ColorLabel(cell->second);
        const bool shows_it = store.CellLabel({id, column}) == expected;
        RC_ASSERT(shows_it);
      }
      const uiox::Widget* const dim = widget_.ControlIn({id, 4});
      RC_ASSERT((dim != nullptr) == node.compare);
      if (dim) RC_ASSERT(dim->CheckState() == node.dim);
    }
    RC_ASSERT(static_cast<bool>(IsSound(tree)));
  }

  C tree{"dev", "tree"};

 private:
  static uiox::TreeWidget& Fresh() {
    ForgetIcons();
    oxcore::ResetColorPicker();
    uiox::Suite::Get().Reset();
    return uiox::Suite::Get().ObtainTree("dev", "tree", kColumns);
  }

  void Add(int parent, const Step& step) {
    const bool compare = step.kind == Step::Add;
    const std::vector<int>& row = model_.nodes[parent].children;
    const int before = row.empty() || step.before % 2 == 0 ? -1 : row[step.before / 2 % row.size()];
    C::CompareNodeInfo info;
    info.name = "n" + std::to_string(model_.nodes.size());
    info.type = compare ? "colorvis" : "heading";
    const char* const sibling = before < 0 ? nullptr : model_.nodes[before].name.c_str();
    RC_ASSERT(tree.BaseTree::AddNodeBefore(info.name.c_str(), L"", model_.nodes[parent].name.c_str(), sibling,
                                           info.type.c_str(), L"", 1, 0, 0, nullptr));
    const int node = model_.Add(info.name, parent, before, compare);
    if (!compare) return;
    info.colorA = step.values.a;
    info.colorB = step.values.b;
    info.colorOverlap = step.values.overlap;
    info.showMode = static_cast<ShowMode>(step.values.show);
    info.dim = static_cast<Tree::NodeState>(step.values.dim);
    info.designFlag = static_cast<C::DesignFlag>(step.values.flag);
    RC_ASSERT(tree.OnNodeAdded(info));
    model_.WriteBranch(node, step.values);
    model_.SumUp(parent);
  }

  void Change(int node, const ModelValues& v) {
    ParentCounter parents;
    {
      const uiox::BackendScope scope(parents);
      tree.ChangeNodeInfo(model_.nodes[node].name.c_str(), v.a, v.b, v.overlap, static_cast<ShowMode>(v.show),
                          static_cast<Tree::NodeState>(v.dim), static_cast<C::DesignFlag>(v.flag));
    }
    if (!model_.nodes[node].compare) return RC_ASSERT(parents.count == 0);
    model_.WriteBranch(node, v);
    RC_ASSERT(parents.count == 1 + model_.SumUp(model_.nodes[node].parent));
  }

  void Pick(int node, const std::string& column, unsigned color) {
    oxcore::QueueColorAnswer(color);
    RC_ASSERT(user_.ClickCell("tree", model_.nodes[node].name, column));
    RC_ASSERT(!widget_.SelectedCell());
    if (color == kUnread) return;
    model_.WriteBranch(node, column, CompareModel::ColorText(color));
    model_.SumColorUp(model_.nodes[node].parent, column);
  }

  void ToggleDim(int node) {
    ModelNode& n = model_.nodes[node];
    RC_ASSERT(user_.ToggleCellCheck("tree", n.name, "dimOverlap") == n.compare);
    if (!n.compare) return;
    model_.WriteDimBranch(node, n.dim == 1 ? 0 : 1);
    model_.SumDimUp(n.parent);
  }

  void ClickShow(int node, const Step& step) {
    if (!model_.nodes[node].compare) return;
    const std::string name = model_.nodes[node].name;
    RC_ASSERT(user_.ClickCell("tree", name, "showMode"));
    if (step.kind == Step::ClickShow) return;
    const unsigned mode = step.before % 7;
    RC_ASSERT(
        user_.ChooseCellOption("tree", name, "showMode", step.kind == Step::ChooseNone ? "none" : kOptions[mode]));
    RC_ASSERT(widget_.ControlIn({widget_.Store().Find(name), 3}) == nullptr);
    if (step.kind == Step::ChooseNone) return;
    model_.WriteBranch(node, "showMode", CompareModel::ShowText(static_cast<int>(mode)));
    model_.SumShowUp(model_.nodes[node].parent);
  }

  uiox::TreeWidget& widget_;
  uiox::Driver user_{"dev"};
  CompareModel model_;
};

RC_GTEST_PROP(CompareProperty, EveryCellShowsWhatAPlainModelSays, ()) {
  const auto steps = *rc::gen::container<std::vector<Step>>(AnyStep());
  ComparedTree compared;
  for (const Step& step : steps) {
    compared.Do(step);
    compared.Check();
  }
}

}  // namespace
}  // namespace compare_tests
