// Operations of compare trees with all nodes below one parent.
#include "bench/reporting/Curves.h"
#include "bench/reporting/Measure.h"
#include "bench/reporting/Stage.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::CompareColorTree;
using oxecad_ui::Tree;
using ShowMode = CompareColorTree::ShowMode;
using Records = std::vector<CompareColorTree::CompareNodeInfo>;

CompareColorTree::CompareNodeInfo RecordOf(std::string name) {
  CompareColorTree::CompareNodeInfo record;
  record.name = std::move(name);
  record.label = L"net";
  record.type = CompareColorTree::s_compareType;
  record.colorA = record.colorB = record.colorOverlap = kRed;
  record.designFlag = CompareColorTree::DesignBoth;
  return record;
}

/// A heading with a compare node, and equal leaves below that, so that a summary reads them all.
struct Compared {
  explicit Compared(std::size_t nodes) {
    for (std::size_t node = 0; node < nodes; ++node) records.push_back(RecordOf("top/n" + std::to_string(node)));
    Fill();
  }
  void Empty() {
    tree.reset();  // leaves the stage before the next one comes
    tree = std::make_unique<Staged<CompareColorTree>>();
    tree->Append("root", "");
    tree->AddNode(RecordOf("top"));
  }
  void Fill() {
    Empty();
    tree->AddNodes(records);
    Check(NodesOnStage() == 2 + records.size(), "all nodes were added");
  }
  void Change(const char* node) {
    color ^= kRed ^ kBlue;
    const bool red = color == kRed;
    tree->ChangeNodeInfo(node, color, color, color, red ? ShowMode::Both : ShowMode::Diff,
                         red ? Tree::Unchecked : Tree::Checked, CompareColorTree::DesignBoth);
  }

  Records records;
  std::unique_ptr<Staged<CompareColorTree>> tree;
  unsigned int color = kRed;
};

}  // namespace

std::vector<Operation> CompareOperations(std::size_t nodes) {
  const auto all = std::make_shared<Compared>(nodes);
  const auto once = [&all](std::string name, auto call) {
    return Operation{std::move(name), 1, [all = all, call] { call(*all); }};
  };
  Operation adding = once("AddNode", [](Compared& compared) { compared.tree->AddNode(RecordOf("top/added")); });
  adding.restore = [all] { all->tree->DeleteNode("top/added"); };
  Operation loading =
      once("AddNodes, n at once", [](Compared& compared) { compared.tree->AddNodes(compared.records); });
  loading.prepare = [all] { all->Empty(); };
  return {
      loading,
      once("ChildInfoChanged", [](Compared& compared) { compared.tree->ChildInfoChanged("top"); }),
      once("ChangeNodeInfo, of a leaf",
           [](Compared& compared) { compared.Change(compared.records.back().name.c_str()); }),
      once("ChangeNodeInfo, of the parent", [](Compared& compared) { compared.Change("top"); }),
      adding,
  };
}

}  // namespace oxecad_bench
