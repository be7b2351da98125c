// One leaf changes, and what is above it sums it up.
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
constexpr std::size_t kOperations = 2 * kChanges;  // each leaf is changed and changed back
constexpr int kRepetitions = 11;

/// Neighbouring groups differ: above them the tree is mixed.
unsigned int ColorOfGroup(std::size_t group) { return static_cast<unsigned int>(group % 16) << 4; }

/// Nets all over the tree, the same ones each time.
std::vector<std::size_t> ChangingNets(const GroupedNets& nets) {
  std::vector<std::size_t> chosen;
  std::uint64_t state = 1;
  for (std::size_t change = 0; change < kChanges; ++change) {
    state = state * 6364136223846793005u + 1442695040888963407u;
    chosen.push_back(static_cast<std::size_t>((state >> 33) % nets.nets.names.size()));
  }
  return chosen;
}

Contender Ours(const GroupedNets& nets) {
  auto tree = std::make_shared<Staged<ColorTree>>();
  using Info = ColorTree::ColorNodeInfo;
  tree->AddNodes(RecordsOf<Info>(nets, [](Info& record, std::size_t group) { record.color = ColorOfGroup(group); }));
  Check(NodesOnStage() == nets.Nodes() && tree->GetNodeColor("root") == kMixed, "all nodes were added and summed up");
  struct Change {
    std::string name;
    unsigned int color;
  };
  std::vector<Change> changes;
  for (const std::size_t net : ChangingNets(nets)) {
    changes.push_back({nets.nets.names[net], ColorOfGroup(nets.GroupOf(net))});
  }
  return {"ChangeNodeColor", [tree, changes](Meter& meter) {
            ColorTree& colors = *tree;
            meter.Run([&] {
              for (const Change& change : changes) {
                colors.ChangeNodeColor(change.name.c_str(), kNew);
                colors.ChangeNodeColor(change.name.c_str(), change.color);
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
  struct Change {
    QStandardItem* item;
    unsigned int color;
  };
  std::vector<Change> changes;
  for (const std::size_t net : ChangingNets(nets)) {
    changes.push_back({items.nets[net], ColorOfGroup(nets.GroupOf(net))});
  }
  return {"QStandardItemModel", [filled, changes](Meter& meter) {
            const auto give = [&](QStandardItem* item, unsigned int color) {
              SetColor(*item, color, filled->icons);
              SumUpColors(item->parent(), filled->icons);
            };
            meter.Run([&] {
              for (const Change& change : changes) {
                give(change.item, kNew);
                give(change.item, change.color);
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
  std::vector<QTreeWidgetItem*> leaves;
  for (const std::size_t net : ChangingNets(nets)) leaves.push_back(items[net]);
  return {"auto-tristate QTreeWidget", [widget, root, leaves](Meter& meter) {
            meter.Run([&] {
              for (QTreeWidgetItem* leaf : leaves) {
                const Qt::CheckState before = leaf->checkState(0);
                for (const Qt::CheckState state : {before == Qt::Checked ? Qt::Unchecked : Qt::Checked, before}) {
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
  struct Change {
    std::string name;
    std::string group;
    unsigned int color;
  };
  std::vector<Change> changes;
  for (const std::size_t net : ChangingNets(nets)) {
    const std::size_t group = nets.GroupOf(net);
    changes.push_back({nets.nets.names[net], GroupName(group), ColorOfGroup(group)});
  }
  return {"by name", [nodes, changes](Meter& meter) {
            meter.Run([&] {
              for (const Change& change : changes) {
                for (const unsigned int color : {kNew, change.color}) {
                  nodes->At(change.name) = color;
                  SumUp(*nodes, change.group);
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
