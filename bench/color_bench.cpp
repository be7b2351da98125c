// Colour trees on the stand-in toolkit: a colour for a whole branch, the way up from a leaf, icons, filling.
#include <benchmark/benchmark.h>

#include <uiox/Suite.h>

#include <memory>
#include <string>

#include "bench/ReportCalls.h"
#include "uicomps/color/ColorIconBag.h"
#include "uicomps/color/ColorTree.h"

namespace {

using oxecad_bench::ReportCalls;
using oxecad_ui::ColorIconBag;
using oxecad_ui::ColorTree;

constexpr unsigned int kRed = 0x0000FF;
constexpr unsigned int kBlue = 0xFF0000;

std::string Numbered(const char* letters, std::size_t number) {
  std::string name = letters;
  name += std::to_string(number);
  return name;
}

class EmptyColorTree : public ColorTree {
 public:
  EmptyColorTree() : ColorTree("bench", "tree") {
    uiox::Suite::Get().Reset();
    uiox::Suite::Get().ObtainTree("bench", "tree");
    Init(nullptr);
    Append("root", "", kRed);
  }
  /// Adds a node without summing up above it.
  void Append(const std::string& name, const std::string& parent, unsigned int color) {
    BaseTree::AddNode(name.c_str(), L"net", parent.c_str(), GetType(color), L"", 1, 0, 0,
                      reinterpret_cast<void*>(std::uintptr_t{color}));
  }
};

/// Adds red nodes below "root", ten to a parent; node n is "n<n>".
void Fill(EmptyColorTree& tree, std::size_t nodes) {
  for (std::size_t node = 1; node < nodes; ++node) {
    const std::size_t parent = (node - 1) / 10;
    tree.Append(Numbered("n", node), parent == 0 ? "root" : Numbered("n", parent), kRed);
  }
}

void GiveColorToRoot(benchmark::State& state) {
  EmptyColorTree tree;
  Fill(tree, static_cast<std::size_t>(state.range(0)));
  unsigned int color = kRed;
  const auto change = [&] { tree.ChangeNodeColor("root", color ^= kRed ^ kBlue); };
  for (auto _ : state) change();
  ReportCalls(state, change);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(GiveColorToRoot)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

/// A tree of depth 8, `range` children to a node on the way down to the leaf that changes.
class DeepTree {
 public:
  explicit DeepTree(benchmark::State& state) {
    std::string parent = "root";
    for (std::size_t level = 1; level <= 8; ++level) {
      std::string first;
      for (std::size_t child = 0; child < static_cast<std::size_t>(state.range(0)); ++child) {
        const std::string name = Numbered(Numbered("l", level).append("c").c_str(), child);
        tree.Append(name, parent, kRed);
        if (child == 0) first = name;
      }
      parent = first;
    }
    leaf = parent;
  }
  EmptyColorTree tree;
  std::string leaf;
};

/// Every ancestor changes between red and mixed.
void ChangeLeafUpToRoot(benchmark::State& state) {
  DeepTree deep(state);
  unsigned int color = kRed;
  const auto change = [&] { deep.tree.ChangeNodeColor(deep.leaf.c_str(), color ^= kRed ^ kBlue); };
  for (auto _ : state) change();
  ReportCalls(state, change);
}
BENCHMARK(ChangeLeafUpToRoot)->Arg(2)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

/// The leaf's parent is mixed before and after.
void ChangeLeafBelowMixedParent(benchmark::State& state) {
  DeepTree deep(state);
  deep.tree.ChangeNodeColor("l8c1", 0x00FF00);
  unsigned int color = kRed;
  const auto change = [&] { deep.tree.ChangeNodeColor(deep.leaf.c_str(), color ^= kRed ^ kBlue); };
  for (auto _ : state) change();
  ReportCalls(state, change);
}
BENCHMARK(ChangeLeafBelowMixedParent)->Arg(2)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

void MakeIcons(benchmark::State& state) {
  const auto count = static_cast<unsigned int>(state.range(0));
  unsigned int next = 0;  // icons are made once in a process
  const auto make = [&] {
    for (const unsigned int end = next + count; next < end; ++next) {
      benchmark::DoNotOptimize(ColorIconBag::Get().GetColorIcon("color_square.png", next));
    }
  };
  for (auto _ : state) {
    make();
    state.PauseTiming();
    uiox::Suite::Get().Images().Clear();
    state.ResumeTiming();
  }
  ReportCalls(state, make);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(MakeIcons)->Arg(10000)->Iterations(20)->Unit(benchmark::kMillisecond);

void LookIconsUp(benchmark::State& state) {
  const auto count = static_cast<unsigned int>(state.range(0));
  const auto look = [&] {
    for (unsigned int color = 0; color < count; ++color) {
      benchmark::DoNotOptimize(ColorIconBag::Get().GetColorIcon("color_square.png", color));
    }
  };
  look();
  for (auto _ : state) look();
  ReportCalls(state, look);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(LookIconsUp)->Arg(10000)->Unit(benchmark::kMillisecond);

/// Adds siblings one by one; `different`: of two colours in turn, so that the parent is mixed from the second on.
void AddSiblings(benchmark::State& state, bool different) {
  std::vector<std::string> names;
  for (std::size_t node = 0; node < static_cast<std::size_t>(state.range(0)); ++node) {
    names.push_back(Numbered("n", node));
  }
  std::unique_ptr<EmptyColorTree> tree;
  const auto fill = [&] {
    for (std::size_t node = 0; node < names.size(); ++node) {
      const unsigned int color = different && node % 2 == 1 ? kBlue : kRed;
      tree->AddNode(names[node].c_str(), L"net", "root", color, 0, L"", 1, 0);
    }
  };
  for (auto _ : state) {
    state.PauseTiming();
    tree = std::make_unique<EmptyColorTree>();
    state.ResumeTiming();
    fill();
    state.PauseTiming();
    tree.reset();
    state.ResumeTiming();
  }
  tree = std::make_unique<EmptyColorTree>();
  ReportCalls(state, fill);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK_CAPTURE(AddSiblings, equal, false)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AddSiblings, different, true)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
