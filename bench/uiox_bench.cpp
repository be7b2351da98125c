// The stand-in toolkit: its store, the bytes that a node takes, and calls on the wire.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Suite.h>
#include <uiox/TreeStore.h>
#include <unistd.h>

#include <cstdint>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "bench/Labels.h"

namespace {

using uiox::kNoNode;
using uiox::kTop;
using uiox::NewNode;
using uiox::NodeId;
using uiox::TreeStore;

constexpr std::intptr_t kEnd = 0;

std::vector<std::string> Names(std::size_t count) {
  std::vector<std::string> names;
  for (std::size_t number = 0; number < count; ++number) names.push_back("net" + std::to_string(number));
  return names;
}

NodeId Add(TreeStore& store, const std::string& name, const std::wstring& label, NodeId parent,
           NodeId before = kNoNode) {
  NewNode node;
  node.name = name;
  node.label = label;
  node.first_int = 1;
  return store.Add(node, parent, before);
}

/// A root with children that have names and labels, for benchmarks that change little of it.
struct Filled {
  explicit Filled(std::size_t count) : names(Names(count)), labels(oxecad_bench::NetLabels(count)) {
    root = Add(store, "root", L"root", kTop);
    for (std::size_t i = 0; i < count; ++i) nodes.push_back(Add(store, names[i], labels[i], root));
  }
  TreeStore store;
  std::vector<std::string> names;
  std::vector<std::wstring> labels;
  NodeId root;
  std::vector<NodeId> nodes;
};

// --- The store -------------------------------------------------------------------------------------------------------

void StoreAddAtEnd(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const std::vector<std::string> names = Names(count);
  const std::vector<std::wstring> labels = oxecad_bench::NetLabels(count);
  for (auto _ : state) {
    auto store = std::make_unique<TreeStore>();
    const NodeId root = Add(*store, "root", L"root", kTop);
    for (std::size_t i = 0; i < count; ++i) Add(*store, names[i], labels[i], root);
    state.PauseTiming();
    store.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(StoreAddAtEnd)->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void StoreAddBeforeRandomSibling(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const std::vector<std::string> names = Names(count);
  const std::vector<std::wstring> labels = oxecad_bench::NetLabels(count);
  for (auto _ : state) {
    std::mt19937 random(1);
    auto store = std::make_unique<TreeStore>();
    const NodeId root = Add(*store, "root", L"root", kTop);
    std::vector<NodeId> nodes{Add(*store, names[0], labels[0], root)};
    for (std::size_t i = 1; i < count; ++i) {
      nodes.push_back(Add(*store, names[i], labels[i], root, nodes[random() % nodes.size()]));
    }
    state.PauseTiming();
    store.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(StoreAddBeforeRandomSibling)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

void StoreMove(benchmark::State& state) {
  Filled tree(static_cast<std::size_t>(state.range(0)));
  std::mt19937 random(1);
  for (auto _ : state) {
    tree.store.Move(tree.nodes[random() % tree.nodes.size()], tree.root, tree.nodes[random() % tree.nodes.size()]);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(StoreMove)->Arg(1000)->Arg(100000)->Arg(1000000);

void StoreRemoveAndAdd(benchmark::State& state) {
  Filled tree(static_cast<std::size_t>(state.range(0)));
  std::mt19937 random(1);
  for (auto _ : state) {
    const std::size_t i = random() % tree.nodes.size();
    tree.store.Remove(tree.nodes[i]);
    tree.nodes[i] = Add(tree.store, tree.names[i], tree.labels[i], tree.root);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(StoreRemoveAndAdd)->Arg(1000)->Arg(100000)->Arg(1000000);

void StoreFindByName(benchmark::State& state) {
  const Filled tree(static_cast<std::size_t>(state.range(0)));
  std::mt19937 random(1);
  for (auto _ : state) benchmark::DoNotOptimize(tree.store.Find(tree.names[random() % tree.names.size()]));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(StoreFindByName)->Arg(1000)->Arg(100000)->Arg(1000000);

void StoreRowOf(benchmark::State& state) {
  const Filled tree(static_cast<std::size_t>(state.range(0)));
  std::mt19937 random(1);
  for (auto _ : state) benchmark::DoNotOptimize(tree.store.RowOf(tree.nodes[random() % tree.nodes.size()]));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(StoreRowOf)->Arg(1000)->Arg(100000)->Arg(1000000);

void StoreChildAt(benchmark::State& state) {
  const Filled tree(static_cast<std::size_t>(state.range(0)));
  std::mt19937 random(1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(tree.store.ChildAt(tree.root, static_cast<std::uint32_t>(random() % tree.nodes.size())));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(StoreChildAt)->Arg(1000)->Arg(100000)->Arg(1000000);

std::size_t ResidentBytes() {
  std::ifstream pages("/proc/self/statm");
  std::size_t all = 0;
  std::size_t resident = 0;
  pages >> all >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

/// The growth of the process by a tree of nodes that are found by name, and what the store says of itself.
void BytesPerNode(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  const std::vector<std::string> names = Names(count);
  const std::vector<std::wstring> labels = oxecad_bench::NetLabels(count);
  double resident = 0;
  double counted = 0;
  for (auto _ : state) {
    ::malloc_trim(0);
    const std::size_t before = ResidentBytes();
    TreeStore store;
    const NodeId root = Add(store, "root", L"root", kTop);
    for (std::size_t i = 0; i < count; ++i) Add(store, names[i], labels[i], root);
    resident = static_cast<double>(ResidentBytes() - before);
    counted = static_cast<double>(store.MemoryUse());
  }
  state.counters["resident"] = resident / static_cast<double>(count);
  state.counters["counted"] = counted / static_cast<double>(count);
}
BENCHMARK(BytesPerNode)->Arg(1000000)->Iterations(1)->Unit(benchmark::kMillisecond);

// --- The wire --------------------------------------------------------------------------------------------------------

/// One tree of the suite with nodes below "root", and a name for each call, the next one or the same.
class WireTree {
 public:
  explicit WireTree(std::size_t count) : names_(Names(count)) {
    uiox::Suite::Get().Reset();
    uiox::Suite::Get().ObtainTree("bench", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
    const std::vector<std::wstring> labels = oxecad_bench::NetLabels(count);
    Node("root", L"root", "");
    for (std::size_t i = 0; i < count; ++i) Node(names_[i].c_str(), labels[i].c_str(), "root");
  }
  ~WireTree() { uiox::Suite::Get().Reset(); }

  const char* Next() {
    at_ = at_ + 1 == names_.size() ? 0 : at_ + 1;
    return names_[at_].c_str();
  }

 private:
  static void Node(const char* name, const wchar_t* label, const char* parent) {
    ui_do_operation("bench", "tree", 2029, name, label, parent, "net", 2, L"", 128, std::intptr_t{1}, 256,
                    std::intptr_t{0}, 512, std::intptr_t{0}, 1024, static_cast<void*>(nullptr), kEnd);
  }
  std::vector<std::string> names_;
  std::size_t at_ = 0;
};

void Rows(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(1000)->Arg(100000)->Arg(1000000); }

void WireInquireUserData(benchmark::State& state) {
  WireTree tree(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    void* data = nullptr;
    ui_do_operation("bench", "tree", 2203, tree.Next(), 260, &data, kEnd);
    benchmark::DoNotOptimize(data);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WireInquireUserData)->Apply(Rows);

void WireInquireSameNode(benchmark::State& state) {
  WireTree tree(1000);
  const char* node = tree.Next();
  for (auto _ : state) {
    void* data = nullptr;
    ui_do_operation("bench", "tree", 2203, node, 260, &data, kEnd);
    benchmark::DoNotOptimize(data);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WireInquireSameNode);

void WireCopyAndReleaseLabel(benchmark::State& state) {
  WireTree tree(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    wchar_t* label = nullptr;
    ui_do_operation("bench", "tree", 2202, tree.Next(), 2, &label, kEnd);
    benchmark::DoNotOptimize(label);
    ui_free(2, &label, kEnd);
  }
  state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK(WireCopyAndReleaseLabel)->Apply(Rows);

void WireCopyAndReleaseChildren(benchmark::State& state) {
  WireTree tree(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    int count = 0;
    char** names = nullptr;
    ui_do_operation("bench", "tree", 2202, "root", 284, &count, &names, kEnd);
    benchmark::DoNotOptimize(names);
    ui_free(284, std::intptr_t{count}, &names, kEnd);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(WireCopyAndReleaseChildren)->Apply(Rows);

void WireSetTypeAndUserData(benchmark::State& state) {
  WireTree tree(static_cast<std::size_t>(state.range(0)));
  std::uintptr_t color = 0;
  for (auto _ : state) {
    ++color;
    ui_do_operation("bench", "tree", 2033, tree.Next(), 8, color % 2 != 0 ? "color_square.png_255" : "mix", 1024, color,
                    kEnd);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WireSetTypeAndUserData)->Apply(Rows);

void WireSetCellLabel(benchmark::State& state) {
  WireTree tree(static_cast<std::size_t>(state.range(0)));
  std::uintptr_t turn = 0;
  for (auto _ : state) {
    ui_do_operation("bench", "tree", 2160, tree.Next(), "overlap", 2,
                    (++turn / 1000 & 1) != 0 ? L"<img src=\"color_square.png_255\">" : L"<mix>", kEnd);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WireSetCellLabel)->Apply(Rows);

void WireGetCellLabel(benchmark::State& state) {
  WireTree tree(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    const wchar_t* label = nullptr;
    ui_do_operation("bench", "tree", 2162, tree.Next(), "overlap", 2, &label, kEnd);
    benchmark::DoNotOptimize(label);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WireGetCellLabel)->Apply(Rows);

void WireRetrieveRoot(benchmark::State& state) {
  WireTree tree(1000);
  for (auto _ : state) {
    const char* root = nullptr;
    ui_retrieve("bench", "tree", 54, &root, kEnd);
    benchmark::DoNotOptimize(root);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WireRetrieveRoot);

}  // namespace
