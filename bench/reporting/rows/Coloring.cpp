// A new colour for a whole tree.
#include <memory>

#include "bench/reporting/Floors.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::ColorTree;

unsigned int Red(std::size_t) { return kRed; }
unsigned int Other(unsigned int color) { return color ^ kRed ^ kBlue; }

/// Trees stay as they are between runs: each run gives the root the other one of two colours.
Contender Ours(const GroupedNets& nets) {
  struct Filled {
    Staged<ColorTree> tree;
    unsigned int color = kRed;
  };
  auto filled = std::make_shared<Filled>();
  filled->tree.AddNodes(RecordsOf<ColorTree::ColorNodeInfo>(
      nets, [](ColorTree::ColorNodeInfo& record, std::size_t) { record.color = kRed; }));
  return {"ChangeNodeColor", [filled, last = nets.nets.names.back()](Meter& meter) {
            meter.Run([&] { filled->tree.ChangeNodeColor("root", filled->color = Other(filled->color)); });
            Check(filled->tree.GetNodeColor(last.c_str()) == filled->color, "the last leaf has the new colour");
          }};
}

/// `Owner` is a QStandardItemModel or a QTreeWidget.
template <class Owner>
Contender Peer(std::string name, const GroupedNets& nets) {
  struct Filled {
    Owner owner;
    ColorIcons icons;
    unsigned int color = kRed;
  };
  auto filled = std::make_shared<Filled>();
  auto* const owner = filled->owner.invisibleRootItem();
  auto* const root = GroupedItems(*owner, nets, filled->icons, Red).root;
  return {std::move(name), [filled, root](Meter& meter) {
            meter.Run([&] {
              SetBranchColor(*root, filled->color = Other(filled->color), filled->icons);
              SumUpColors(root->parent(), filled->icons);
            });
          }};
}

Contender FloorByName(const GroupedNets& nets) {
  const auto nodes = std::make_shared<NamedNodes<unsigned int>>(nets, Red);
  return {"by name", [nodes](Meter& meter) { meter.Run([&] { nodes->SetBranch("root", Other(nodes->At("root"))); }); }};
}

Figure MeasureNodes(std::size_t count) {
  const GroupedNets nets = GroupedNets::OfNodes(count);
  const auto outcomes = Race({Ours(nets), Peer<QStandardItemModel>("QStandardItemModel", nets), FloorByName(nets),
                              Peer<QTreeWidget>("QTreeWidget", nets)},
                             nets.Nodes());
  const std::string workload = "a new colour at the root of " + Grouped(nets.Nodes()) + " nodes, per node";
  return AgainstPeer(WithOther(WithFloor(FigureOf(5, workload, outcomes), outcomes[2]), outcomes[3]), 0.5);
}

}  // namespace

Figures MeasureColoring(const Settings& settings) {
  return {MeasureNodes(settings.Size(100'000)), MeasureNodes(settings.Size(1'000'000))};
}

}  // namespace oxecad_bench
