// Compare trees on the stand-in toolkit: one pass down a branch, a climb that stops, filling.
#include <benchmark/benchmark.h>

#include <uiox/Suite.h>

#include <memory>
#include <string>

#include "bench/ReportCalls.h"
#include "uicomps/compare/CompareColorTree.h"

namespace {

using oxecad_bench::ReportCalls;
using oxecad_ui::CompareColorTree;
using ShowMode = CompareColorTree::ShowMode;

constexpr unsigned int kRed = 0x0000FF;
constexpr unsigned int kBlue = 0xFF0000;

std::string Numbered(const char* letters, std::size_t number) {
  std::string name = letters;
  name += std::to_string(number);
  return name;
}

class EmptyCompareTree : public CompareColorTree {
 public:
  EmptyCompareTree() : CompareColorTree("bench", "tree") {
    uiox::Suite::Get().Reset();
    uiox::Suite::Get().ObtainTree("bench", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
    Init(nullptr);
    BaseTree::AddNode("root", L"nets", "", "heading", L"", 1, 1, 0, nullptr);
  }
  /// Adds a compare node of both designs.
  void Add(const std::string& name, unsigned int color) {
    CompareNodeInfo info;
    info.name = name;
    info.type = s_compareType;
    info.colorA = info.colorB = info.colorOverlap = color;
    info.showMode = Mode(color);
    info.dim = Dim(color);
    info.designFlag = DesignBoth;
    AddNode(info);
  }
  void Change(const char* node, unsigned int color) {
    ChangeNodeInfo(node, color, color, color, Mode(color), Dim(color), DesignBoth);
  }

 private:
  // Another colour goes with other values in every cell.
  static ShowMode Mode(unsigned int color) { return color == kRed ? ShowMode::Both : ShowMode::Diff; }
  static NodeState Dim(unsigned int color) { return color == kRed ? Unchecked : Checked; }
};

/// Compare nodes, ten to a parent: n0 below "root", node n below node (n - 1) / 10.
void Fill(EmptyCompareTree& tree, std::size_t nodes) {
  for (std::size_t node = 0; node < nodes; ++node) {
    const std::string name = Numbered("n", node);
    tree.Add(name, kRed);
    if (node > 0) tree.MoveNodeBefore(name.c_str(), Numbered("n", (node - 1) / 10).c_str(), nullptr);
  }
}

void ChangeRoot(benchmark::State& state) {
  EmptyCompareTree tree;
  Fill(tree, static_cast<std::size_t>(state.range(0)));
  unsigned int color = kRed;
  const auto change = [&] { tree.Change("n0", color ^= kRed ^ kBlue); };
  for (auto _ : state) change();
  ReportCalls(state, change);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(ChangeRoot)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

/// The deepest leaf of a tree of that many nodes.
std::string LastLeaf(const benchmark::State& state) {
  return Numbered("n", static_cast<std::size_t>(state.range(0)) - 1);
}

/// Every ancestor of the leaf changes.
void ClimbToRoot(benchmark::State& state) {
  EmptyCompareTree tree;
  Fill(tree, static_cast<std::size_t>(state.range(0)));
  tree.Change("n0", kRed);
  const std::string leaf = LastLeaf(state);
  unsigned int color = kRed;
  const auto change = [&] { tree.Change(leaf.c_str(), color ^= kRed ^ kBlue); };
  for (auto _ : state) change();
  ReportCalls(state, change);
}
BENCHMARK(ClimbToRoot)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

/// The leaf's parent is mixed in all cells before and after.
void ClimbStopsAtParent(benchmark::State& state) {
  EmptyCompareTree tree;
  Fill(tree, static_cast<std::size_t>(state.range(0)));
  tree.Change("n0", kRed);
  const std::string leaf = LastLeaf(state);
  const std::string sibling = Numbered("n", static_cast<std::size_t>(state.range(0)) - 2);
  tree.ChangeNodeInfo(sibling.c_str(), 1, 1, 1, ShowMode::Overlap, oxecad_ui::Tree::PartlyChecked,
                      CompareColorTree::DesignBoth);
  unsigned int color = kRed;
  const auto change = [&] { tree.Change(leaf.c_str(), color ^= kRed ^ kBlue); };
  change();
  for (auto _ : state) change();
  ReportCalls(state, change);
}
BENCHMARK(ClimbStopsAtParent)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

/// Adds siblings one by one; `different`: of two colours in turn, so that the parent is mixed from the second on.
void FillSiblings(benchmark::State& state, bool different) {
  std::unique_ptr<EmptyCompareTree> tree;
  const auto fill = [&] {
    for (std::size_t node = 0; node < static_cast<std::size_t>(state.range(0)); ++node) {
      tree->Add(Numbered("top/n", node), different && node % 2 == 1 ? kBlue : kRed);
    }
  };
  const auto begin = [&] {
    tree.reset();
    tree = std::make_unique<EmptyCompareTree>();
    tree->Add("top", kRed);
  };
  for (auto _ : state) {
    state.PauseTiming();
    begin();
    state.ResumeTiming();
    fill();
  }
  begin();
  ReportCalls(state, fill);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK_CAPTURE(FillSiblings, equal, false)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FillSiblings, different, true)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
