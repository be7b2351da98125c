// Operations of colour trees with all nodes below one parent.
#include <uicomps/color/ColorIconBag.h>

#include "bench/reporting/Curves.h"
#include "bench/reporting/Measure.h"
#include "bench/reporting/Stage.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::ColorIconBag;
using oxecad_ui::ColorTree;
using Records = std::vector<ColorTree::ColorNodeInfo>;

/// A root with leaves of one colour, so that a summary reads them all.
struct Colors {
  explicit Colors(std::size_t nodes) : records(nodes) {
    for (std::size_t node = 0; node < nodes; ++node) {
      records[node].name = "n" + std::to_string(node);
      records[node].label = L"net";
      records[node].color = kRed;
    }
    last = records.back().name;
    Fill();
  }
  void Empty() {
    tree.Clear();
    tree.Append("root", "");
  }
  void Fill() {
    Empty();
    tree.AddNodes(records);
    Check(NodesOnStage() == 1 + records.size(), "all nodes were added");
  }
  /// A leaf somewhere in the tree, another one each time.
  const char* Next() {
    at = (at + 7919) % records.size();
    return records[at].name.c_str();
  }
  /// The other one of two colours.
  unsigned int Turn() { return color ^= kRed ^ kBlue; }

  Records records;
  std::string last;
  Staged<ColorTree> tree;
  unsigned int color = kRed;
  std::size_t at = 0;
};

}  // namespace

std::vector<Operation> ColorOperations(std::size_t nodes) {
  const auto all = std::make_shared<Colors>(nodes);
  const auto once = [&all](std::string name, auto call) {
    return Operation{std::move(name), 1, [all = all, call] { call(*all); }};
  };
  const auto often = [&all](std::string name, auto call) {
    constexpr std::size_t kCalls = 64;
    return Operation{std::move(name), kCalls, [all = all, call] {
                       for (std::size_t each = 0; each < kCalls; ++each) call(*all);
                     }};
  };
  Operation adding =
      once("AddNode", [](Colors& colors) { colors.tree.AddNode("added", L"net", "root", kRed, 0, L"", 1, 0); });
  adding.restore = [all] { all->tree.DeleteNode("added"); };
  Operation loading = once("AddNodes, n at once", [](Colors& colors) { colors.tree.AddNodes(colors.records); });
  loading.prepare = [all] { all->Empty(); };
  return {
      adding,
      loading,
      often("GetNodeColor", [](Colors& colors) { Keep(colors.tree.GetNodeColor(colors.Next())); }),
      often("ParentColorChanged, of a leaf",
            [](Colors& colors) { colors.tree.ParentColorChanged(colors.Next(), kRed); }),
      once("ChildColorChanged", [](Colors& colors) { colors.tree.ChildColorChanged("root"); }),
      once("ChangeNodeColor, of a leaf",
           [](Colors& colors) {
             static_cast<ColorTree&>(colors.tree).ChangeNodeColor(colors.last.c_str(), colors.Turn());
           }),
      once("ChangeNodeColor, of the root",
           [](Colors& colors) { static_cast<ColorTree&>(colors.tree).ChangeNodeColor("root", colors.Turn()); }),
      often("ColorIconBag::GetColorIcon",
            [](Colors&) { Keep(ColorIconBag::Get().GetColorIcon("color_square.png", kRed)); }),
  };
}

}  // namespace oxecad_bench
