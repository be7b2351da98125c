// The structured tree on the stand-in toolkit: sorted insertion and filtered walks.
#include <benchmark/benchmark.h>

#include <uiox/Suite.h>

#include <string>

#include "bench/Labels.h"
#include "uicomps/tree/Tree.h"

namespace {

using oxecad_ui::Tree;

class PlainTree : public Tree {
 public:
  PlainTree() : Tree("bench", "tree") {
    uiox::Suite::Get().Reset();
    uiox::Suite::Get().ObtainTree("bench", "tree");
    Init();
    BaseTree::AddNode("root", L"root", "", "", L"", 1, 1, 0, nullptr);
  }
};

std::vector<std::string> Names(std::size_t count) {
  std::vector<std::string> names;
  for (std::size_t number = 0; number < count; ++number) names.push_back("n" + std::to_string(number));
  return names;
}

void AddEcadNode(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const std::vector<std::wstring> labels = oxecad_bench::NetLabels(count);
  const std::vector<std::string> names = Names(count);
  for (auto _ : state) {
    state.PauseTiming();
    auto tree = std::make_unique<PlainTree>();
    state.ResumeTiming();
    for (std::size_t node = 0; node < count; ++node) {
      tree->AddEcadNode(names[node].c_str(), labels[node].c_str(), "root", Tree::ByLabel, "net", L"", 1, 0, 0, nullptr);
    }
    state.PauseTiming();
    tree.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(AddEcadNode)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

/// Takes every fourth node and walks all of them.
class EveryFourth : public Tree::NodeFilter {
 public:
  Result operator()(const Tree*, const char*) const override { return Accept; }
  Result operator()(const Tree::NodeInfo& info) const override { return info.name.back() % 4 == 0 ? Accept : SkipNode; }
};

void FilteredWalk(benchmark::State& state) {
  PlainTree tree;
  constexpr std::size_t kGroups = 1000;
  const auto perGroup = static_cast<std::size_t>(state.range(0)) / kGroups;
  std::size_t number = 0;
  for (std::size_t group = 0; group < kGroups; ++group) {
    const std::string parent = "g" + std::to_string(group);
    tree.BaseTree::AddNode(parent.c_str(), L"group", "root", "", L"", 1, 0, 0, nullptr);
    for (std::size_t node = 0; node < perGroup; ++node) {
      const std::string name = "n" + std::to_string(number++);
      tree.BaseTree::AddNode(name.c_str(), L"DDR_DQ17", parent.c_str(), "net", L"", 1, 0, 0, nullptr);
    }
  }
  for (auto _ : state) {
    Tree::TreeInfo info;
    tree.GetTreeInfo(info, EveryFourth(), true);
    benchmark::DoNotOptimize(info.records.size());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(FilteredWalk)->Arg(1000000)->Unit(benchmark::kMillisecond);

void SortNodes(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const std::vector<std::wstring> labels = oxecad_bench::NetLabels(count);
  const std::vector<std::string> names = Names(count);
  for (auto _ : state) {
    state.PauseTiming();
    auto tree = std::make_unique<PlainTree>();
    for (std::size_t node = 0; node < count; ++node) {
      tree->BaseTree::AddNode(names[node].c_str(), labels[node].c_str(), "root", "net", L"", 1, 0, 0, nullptr);
    }
    state.ResumeTiming();
    tree->SortNodesByType("root", Tree::ByLabel);
    state.PauseTiming();
    tree.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(SortNodes)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
