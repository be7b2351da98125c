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

struct Leaf {
  std::size_t group;
  std::size_t leaf;
};

/// Leaves all over the tree, the same ones each time.
std::vector<Leaf> Leaves(const Shape& shape) {
  std::vector<Leaf> leaves;
  std::uint64_t state = 1;
  const auto next = [&](std::size_t choices) {
    state = state * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::size_t>((state >> 33) % choices);
  };
  for (std::size_t change = 0; change < kChanges; ++change) leaves.push_back({next(shape.groups), next(shape.leaves)});
  return leaves;
}

Contender Ours(const Shape& shape) {
  auto tree = std::make_shared<Staged<ColorTree>>();
  tree->AddNodes(ColorRecords(shape, ColorOfGroup));
  struct Change {
    std::string name;
    unsigned int color;
  };
  std::vector<Change> changes;
  for (const Leaf& leaf : Leaves(shape)) {
    changes.push_back({LeafName(leaf.group, leaf.leaf), ColorOfGroup(leaf.group)});
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

Contender Model(const Shape& shape) {
  struct Filled {
    QStandardItemModel model;
    ColorIcons icons;
  };
  auto filled = std::make_shared<Filled>();
  QStandardItem* const root = AppendItem(*filled->model.invisibleRootItem(), QStringLiteral("net"));
  AddItems(*root, shape, filled->icons, ColorOfGroup);
  SumUpColors(root, filled->icons);
  struct Change {
    QStandardItem* item;
    unsigned int color;
  };
  std::vector<Change> changes;
  for (const Leaf& leaf : Leaves(shape)) {
    changes.push_back(
        {root->child(static_cast<int>(leaf.group))->child(static_cast<int>(leaf.leaf)), ColorOfGroup(leaf.group)});
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
Contender Widget(const Shape& shape) {
  auto widget = std::make_shared<QTreeWidget>();
  const auto append = [](QTreeWidgetItem& parent) {
    QTreeWidgetItem* const item = AppendItem(parent, QStringLiteral("net"));
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    item->setCheckState(0, Qt::Unchecked);
    return item;
  };
  QTreeWidgetItem* const root = append(*widget->invisibleRootItem());
  for (std::size_t group = 0; group < shape.groups; ++group) {
    QTreeWidgetItem* const parent = append(*root);
    for (std::size_t leaf = 0; leaf < shape.leaves; ++leaf) {
      append(*parent)->setCheckState(0, group % 2 == 0 ? Qt::Checked : Qt::Unchecked);
    }
  }
  std::vector<QTreeWidgetItem*> leaves;
  for (const Leaf& leaf : Leaves(shape)) {
    leaves.push_back(root->child(static_cast<int>(leaf.group))->child(static_cast<int>(leaf.leaf)));
  }
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

Contender FloorByName(const Shape& shape) {
  auto nodes = std::make_shared<NamedNodes<unsigned int>>();
  for (const auto& record : ColorRecords(shape, ColorOfGroup)) {
    std::string parent;
    std::wstring label;
    oxecad_ui::Tree::NodeInfoToNames(record, parent, label);
    nodes->Add(record.name, parent, record.color);
  }
  return {"by name", [nodes, leaves = Leaves(shape)](Meter& meter) {
            std::vector<std::pair<std::string, std::string>> names;
            for (const Leaf& leaf : leaves) {
              names.emplace_back(LeafName(leaf.group, leaf.leaf), GroupName(leaf.group));
            }
            meter.Run([&] {
              for (std::size_t change = 0; change < names.size(); ++change) {
                for (const unsigned int color : {kNew, ColorOfGroup(leaves[change].group)}) {
                  nodes->At(names[change].first) = color;
                  SumUp(*nodes, names[change].second);
                  SumUp(*nodes, "root");
                }
              }
            });
          }};
}

}  // namespace

Figures MeasureLeafChange(const Settings& settings) {
  const Shape shape = Shape::OfNodes(settings.Size(100'000));
  const auto outcomes = Race({Ours(shape), Model(shape), FloorByName(shape), Widget(shape)}, kOperations, kRepetitions);
  const std::string workload = "one leaf's colour changes below " + Grouped(shape.Nodes()) + " nodes";
  return {AgainstPeer(WithOther(WithFloor(FigureOf(7, workload, outcomes), outcomes[2]), outcomes[3]), 1.4)};
}

}  // namespace oxecad_bench
