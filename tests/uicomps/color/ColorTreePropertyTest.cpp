// Whatever is added and however it is coloured: every parent says what its children say.
#include <oxcore/ColorPicker.h>
#include <tests/support/Check.h>
#include <tests/support/Soundness.h>
#include <tests/support/TreeFixture.h>
#include <tests/uicomps/color/ImageShop.h>
#include <uicomps/color/ColorTree.h>

#include <ostream>
#include <set>

namespace color_tests {
namespace {

using namespace test_support;
using oxecad_ui::ColorTree;
using oxecad_ui::Tree;

constexpr unsigned int kNone = 0xFFFFFFFFu;

/// One step of an application or a user. `node` and `before` choose among the nodes that are there.
struct Step {
  enum Kind { Add, AddBefore, AddRecord, Change, Pick, PickForSeveral, Cancel };
  Kind kind;
  unsigned node;
  unsigned before;
  unsigned int color;
  friend std::ostream& operator<<(std::ostream& out, const Step& step) {
    constexpr const char* kNames[] = {"add",  "add before",       "add record", "change",
                                      "pick", "pick for several", "cancel"};
    return out << kNames[step.kind] << " node " << step.node << " before " << step.before << " color " << step.color;
  }
};

rc::Gen<Step> AnyStep() {
  return rc::gen::build<Step>(
      rc::gen::set(&Step::kind, rc::gen::weightedElement<Step::Kind>({{4, Step::Add},
                                                                      {3, Step::AddBefore},
                                                                      {2, Step::AddRecord},
                                                                      {3, Step::Change},
                                                                      {2, Step::Pick},
                                                                      {1, Step::PickForSeveral},
                                                                      {1, Step::Cancel}})),
      rc::gen::set(&Step::node, rc::gen::inRange(0u, 1000u)), rc::gen::set(&Step::before, rc::gen::inRange(0u, 1000u)),
      rc::gen::set(&Step::color,
                   rc::gen::weightedOneOf<unsigned int>(
                       {{8, rc::gen::inRange(0u, 3u)}, {1, rc::gen::just(kNone)}, {1, rc::gen::just(0x00C0B0A0u)}})));
}

/// A tree and, beside it, what its nodes' colours have to be, by the plainest means.
class ColoredTree {
 public:
  ColoredTree() : widget_(Fresh()) {
    tree.Init(nullptr);
    AddTo(-1, -1, 1);
  }

  void Do(const Step& step) {
    const int node = static_cast<int>(step.node % nodes_.size());
    switch (step.kind) {
      case Step::Add:
        return AddTo(node, -1, step.color);
      case Step::AddBefore: {
        const std::vector<int>& children = nodes_[node].children;
        return AddTo(node, children.empty() ? -1 : children[step.before % children.size()], step.color);
      }
      case Step::AddRecord:
        return AddRecord(step.color);
      case Step::Change:
        tree.ChangeNodeColor(nodes_[node].name.c_str(), step.color);
        return Give(node, step.color);
      case Step::Pick:
        return Ask(node, step.color);
      case Step::PickForSeveral: {
        const int other = static_cast<int>(step.before % nodes_.size());
        if (step.color == kNone) return;
        oxcore::QueueColorAnswer(step.color);
        tree.ChangeNodeColor({nodes_[node].name, nodes_[other].name});
        Give(node, step.color);
        return Give(other, step.color);
      }
      case Step::Cancel:
        return Ask(node, kNone);
    }
  }

  void Check() const {
    const uiox::TreeStore& store = widget_.Store();
    for (const Node& node : nodes_) {
      const uiox::NodeId id = store.Find(node.name);
      RC_ASSERT(id != uiox::kNoNode);
      const auto color = static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(store.UserData(id)));
      RC_ASSERT(color == node.color);
      const std::string type = color == kNone ? "mix" : "color_square.png_" + std::to_string(color);
      RC_ASSERT(uiox::Suite::Get().Types().Name(store.Type(id)) == type);
      if (!node.children.empty()) RC_ASSERT(node.color == Summary(node));
    }
    RC_ASSERT(static_cast<bool>(IsSound(tree)));
  }

  ColorTree tree{"dev", "tree"};

 private:
  struct Node {
    std::string name;
    int parent;
    unsigned int color;
    std::vector<int> children;
  };

  static uiox::TreeWidget& Fresh() {
    ForgetIcons();
    oxcore::ResetColorPicker();
    uiox::Suite::Get().Reset();
    return uiox::Suite::Get().ObtainTree("dev", "tree");
  }

  void AddTo(int parent, int before, unsigned int color) {
    const std::string name = parent < 0 ? "root" : "n" + std::to_string(nodes_.size());
    const char* const parent_name = parent < 0 ? "" : nodes_[parent].name.c_str();
    if (before < 0) {
      RC_ASSERT(tree.AddNode(name.c_str(), L"", parent_name, color, 0, L"", 1, 0));
    } else {
      RC_ASSERT(tree.AddNodeBefore(name.c_str(), L"", parent_name, nodes_[before].name.c_str(), color, 0, L"", 1, 0));
    }
    Enter(name, parent, color);
  }

  void AddRecord(unsigned int color) {
    ColorTree::ColorNodeInfo info;
    info.name = "n" + std::to_string(nodes_.size());
    info.color = color;
    RC_ASSERT(tree.AddNode(info));
    Enter(info.name, 0, color);
  }

  void Ask(int node, unsigned int color) {
    oxcore::QueueColorAnswer(color);
    tree.OnActivate(nodes_[node].name.c_str());
    if (color != kNone) Give(node, color);
  }

  void Enter(const std::string& name, int parent, unsigned int color) {
    nodes_.push_back({name, parent, color, {}});
    if (parent < 0) return;
    nodes_[parent].children.push_back(static_cast<int>(nodes_.size()) - 1);
    SumUpAbove(static_cast<int>(nodes_.size()) - 1);
  }

  void Give(int node, unsigned int color) {
    Paint(node, color);
    SumUpAbove(node);
  }
  void Paint(int node, unsigned int color) {
    nodes_[node].color = color;
    for (const int child : nodes_[node].children) Paint(child, color);
  }
  void SumUpAbove(int node) {
    for (int up = nodes_[node].parent; up >= 0; up = nodes_[up].parent) nodes_[up].color = Summary(nodes_[up]);
  }
  unsigned int Summary(const Node& node) const {
    std::set<unsigned int> colors;
    for (const int child : node.children) colors.insert(nodes_[child].color);
    return colors.size() == 1 ? *colors.begin() : kNone;
  }

  uiox::TreeWidget& widget_;
  std::vector<Node> nodes_;
};

RC_GTEST_PROP(ColorTreeProperty, EveryParentSaysWhatItsChildrenSay, ()) {
  const auto steps = *rc::gen::container<std::vector<Step>>(AnyStep());
  ColoredTree colored;
  for (const Step& step : steps) {
    colored.Do(step);
    colored.Check();
  }
}

}  // namespace
}  // namespace color_tests
