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
Contender Ours(const Shape& shape) {
  struct Filled {
    Staged<ColorTree> tree;
    unsigned int color = kRed;
  };
  auto filled = std::make_shared<Filled>();
  filled->tree.AddNodes(ColorRecords(shape, Red));
  return {"ChangeNodeColor", [filled](Meter& meter) {
            meter.Run([&] { filled->tree.ChangeNodeColor("root", filled->color = Other(filled->color)); });
          }};
}

/// `Owner` is a QStandardItemModel or a QTreeWidget.
template <class Owner>
Contender Peer(std::string name, const Shape& shape) {
  struct Filled {
    Owner owner;
    ColorIcons icons;
    unsigned int color = kRed;
  };
  auto filled = std::make_shared<Filled>();
  auto* const root = AppendItem(*filled->owner.invisibleRootItem(), QStringLiteral("net"));
  AddItems(*root, shape, filled->icons, Red);
  return {std::move(name), [filled, root](Meter& meter) {
            meter.Run([&] {
              SetBranchColor(*root, filled->color = Other(filled->color), filled->icons);
              SumUpColors(root->parent(), filled->icons);
            });
          }};
}

Contender FloorByName(const Shape& shape) {
  auto nodes = std::make_shared<NamedNodes<unsigned int>>();
  for (const auto& record : ColorRecords(shape, Red)) {
    std::string parent;
    std::wstring label;
    oxecad_ui::Tree::NodeInfoToNames(record, parent, label);
    nodes->Add(record.name, parent, record.color);
  }
  return {"by name", [nodes](Meter& meter) { meter.Run([&] { nodes->SetBranch("root", Other(nodes->At("root"))); }); }};
}

Figure MeasureNodes(std::size_t count) {
  const Shape shape = Shape::OfNodes(count);
  const auto outcomes = Race({Ours(shape), Peer<QStandardItemModel>("QStandardItemModel", shape), FloorByName(shape),
                              Peer<QTreeWidget>("QTreeWidget", shape)},
                             shape.Nodes());
  const std::string workload = "a new colour at the root of " + Grouped(shape.Nodes()) + " nodes, per node";
  return AgainstPeer(WithOther(WithFloor(FigureOf(5, workload, outcomes), outcomes[2]), outcomes[3]), 0.5);
}

}  // namespace

Figures MeasureColoring(const Settings& settings) {
  return {MeasureNodes(settings.Size(100'000)), MeasureNodes(settings.Size(1'000'000))};
}

}  // namespace oxecad_bench
