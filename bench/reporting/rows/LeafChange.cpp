// One leaf changes again and again, and what is above it sums it up.
#include <memory>

#include "bench/reporting/Floors.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::ColorTree;

constexpr unsigned int kNew = 0x00FFFFu;
constexpr std::size_t kChanges = 1000;
constexpr std::size_t kOperations = 2 * kChanges;  // there and back
constexpr int kRepetitions = 11;

/// Neighbouring groups differ: above them the tree is mixed.
unsigned int ColorOfGroup(std::size_t group) { return static_cast<unsigned int>(group % 16) << 4; }

/// The last leaf of a group in the middle: all its siblings have to be looked at.
std::size_t ChangingNet(const GroupedNets& nets) { return nets.nets.names.size() - nets.groups / 2; }

unsigned int OldColor(const GroupedNets& nets) { return ColorOfGroup(nets.GroupOf(ChangingNet(nets))); }

Contender Ours(const GroupedNets& nets) {
  auto tree = std::make_shared<Staged<ColorTree>>();
  using Info = ColorTree::ColorNodeInfo;
  tree->AddNodes(RecordsOf<Info>(nets, [](Info& record, std::size_t group) { record.color = ColorOfGroup(group); }));
  Check(NodesOnStage() == nets.Nodes() && tree->GetNodeColor("root") == kMixed, "all nodes were added and summed up");
  return {"ChangeNodeColor", [tree, leaf = nets.nets.names[ChangingNet(nets)], old = OldColor(nets)](Meter& meter) {
            ColorTree& colors = *tree;
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                colors.ChangeNodeColor(leaf.c_str(), kNew);
                colors.ChangeNodeColor(leaf.c_str(), old);
              }
            });
          }};
}

Contender Model(const GroupedNets& nets) {
  struct Filled {
    QStandardItemModel model;
    ColorIcons icons;
  };
  auto filled = std::make_shared<Filled>();
  const GroupedItems items(*filled->model.invisibleRootItem(), nets, filled->icons, ColorOfGroup);
  return {"QStandardItemModel", [filled, leaf = items.nets[ChangingNet(nets)], old = OldColor(nets)](Meter& meter) {
            const auto give = [&](unsigned int color) {
              SetColor(*leaf, color, filled->icons);
              SumUpColors(leaf->parent(), filled->icons);
            };
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                give(kNew);
                give(old);
              }
            });
          }};
}

/// The widget's own summary, of check boxes.
Contender Widget(const GroupedNets& nets) {
  auto widget = std::make_shared<QTreeWidget>();
  const auto append = [](QTreeWidgetItem& parent) {
    QTreeWidgetItem* const item = AppendItem(parent, QStringLiteral("net"));
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    item->setCheckState(0, Qt::Unchecked);
    return item;
  };
  QTreeWidgetItem* const root = append(*widget->invisibleRootItem());
  for (std::size_t group = 0; group < nets.groups; ++group) append(*root);
  std::vector<QTreeWidgetItem*> items;
  for (std::size_t net = 0; net < nets.nets.names.size(); ++net) {
    const std::size_t group = nets.GroupOf(net);
    items.push_back(append(*root->child(static_cast<int>(group))));
    items.back()->setCheckState(0, group % 2 == 0 ? Qt::Checked : Qt::Unchecked);
  }
  return {"auto-tristate QTreeWidget", [widget, root, leaf = items[ChangingNet(nets)]](Meter& meter) {
            const Qt::CheckState old = leaf->checkState(0);
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                for (const Qt::CheckState state : {old == Qt::Checked ? Qt::Unchecked : Qt::Checked, old}) {
                  leaf->setCheckState(0, state);
                  Keep(root->checkState(0));
                }
              }
            });
          }};
}

/// Children are read by name until one differs.
void SumUp(NamedNodes<unsigned int>& nodes, const std::string& name) {
  const auto& children = nodes.Children(name);
  unsigned int summary = nodes.At(children.front());
  for (const std::string& child : children) {
    if (nodes.At(child) != summary) {
      summary = kMixed;
      break;
    }
  }
  nodes.At(name) = summary;
}

Contender FloorByName(const GroupedNets& nets) {
  const auto nodes = std::make_shared<NamedNodes<unsigned int>>(nets, ColorOfGroup);
  const std::size_t net = ChangingNet(nets);
  return {"by name", [nodes, leaf = nets.nets.names[net], group = GroupName(nets.GroupOf(net)),
                      old = OldColor(nets)](Meter& meter) {
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                for (const unsigned int color : {kNew, old}) {
                  nodes->At(leaf) = color;
                  SumUp(*nodes, group);
                  SumUp(*nodes, "root");
                }
              }
            });
          }};
}

}  // namespace

Figures MeasureLeafChange(const Settings& settings) {
  const GroupedNets nets = GroupedNets::OfNodes(settings.Size(100'000));
  const auto outcomes = Race({Ours(nets), Model(nets), FloorByName(nets), Widget(nets)}, kOperations, kRepetitions);
  const std::string workload = "one leaf's colour changes below " + Grouped(nets.Nodes()) + " nodes";
  return {AgainstPeer(WithOther(WithFloor(FigureOf(7, workload, outcomes), outcomes[2]), outcomes[3]), 1.4)};
}

}  // namespace oxecad_bench
