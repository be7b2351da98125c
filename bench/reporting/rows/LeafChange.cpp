// One leaf changes again and again, and what is above it sums it up.
#include <memory>
#include <utility>

#include "bench/reporting/Floors.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::ColorTree;

constexpr unsigned int kOld = 0x0000FFu;
constexpr unsigned int kNew = 0x00FFFFu;
constexpr std::size_t kChanges = 1000;
constexpr std::size_t kOperations = 2 * kChanges;  // there and back
constexpr int kRepetitions = 11;

/// Ten children to a node, one below the other; all of one colour, but the last leaf now and then.
class Tens {
 public:
  explicit Tens(std::size_t nodes) {
    for (std::size_t node = 0; node < nodes; ++node) m_names.push_back("n" + std::to_string(node));
  }
  std::size_t Size() const { return m_names.size(); }
  const std::string& Name(std::size_t node) const { return m_names[node]; }
  static std::size_t Parent(std::size_t node) { return (node - 1) / 10; }
  const std::string& Leaf() const { return m_names.back(); }

 private:
  std::vector<std::string> m_names;
};

Contender Ours(const Tens& tens) {
  auto tree = std::make_shared<Staged<ColorTree>>();
  for (std::size_t node = 0; node < tens.Size(); ++node) {
    const std::string parent = node == 0 ? std::string() : tens.Name(Tens::Parent(node));
    tree->AddNode(tens.Name(node).c_str(), L"net", parent.c_str(), kOld, 0, L"", 1, 0);
  }
  Check(NodesOnStage() == tens.Size() && tree->GetNodeColor("n0") == kOld, "all nodes were added and summed up");
  return {"ChangeNodeColor", [tree, leaf = tens.Leaf()](Meter& meter) {
            ColorTree& colors = *tree;
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                colors.ChangeNodeColor(leaf.c_str(), kNew);
                colors.ChangeNodeColor(leaf.c_str(), kOld);
              }
            });
            Check(colors.GetNodeColor("n0") == kOld, "the root follows its leaf");
          }};
}

Contender Model(const Tens& tens) {
  struct Filled {
    QStandardItemModel model;
    ColorIcons icons;
  };
  auto filled = std::make_shared<Filled>();
  std::vector<QStandardItem*> items;
  for (std::size_t node = 0; node < tens.Size(); ++node) {
    QStandardItem& parent = node == 0 ? *filled->model.invisibleRootItem() : *items[Tens::Parent(node)];
    items.push_back(AppendItem(parent, QStringLiteral("net")));
    SetColor(*items.back(), kOld, filled->icons);
  }
  return {"QStandardItemModel", [filled, leaf = items.back()](Meter& meter) {
            const auto give = [&](unsigned int color) {
              SetColor(*leaf, color, filled->icons);
              SumUpColors(leaf->parent(), filled->icons);
            };
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                give(kNew);
                give(kOld);
              }
            });
          }};
}

/// The widget's own summary, of check boxes.
Contender Widget(const Tens& tens) {
  auto widget = std::make_shared<QTreeWidget>();
  std::vector<QTreeWidgetItem*> items;
  for (std::size_t node = 0; node < tens.Size(); ++node) {
    QTreeWidgetItem& parent = node == 0 ? *widget->invisibleRootItem() : *items[Tens::Parent(node)];
    items.push_back(AppendItem(parent, QStringLiteral("net")));
    items.back()->setFlags(items.back()->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    items.back()->setCheckState(0, Qt::Unchecked);
  }
  return {"auto-tristate QTreeWidget", [widget, root = items.front(), leaf = items.back()](Meter& meter) {
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                for (const Qt::CheckState state : {Qt::Checked, Qt::Unchecked}) {
                  leaf->setCheckState(0, state);
                  Keep(root->checkState(0));
                }
              }
            });
          }};
}

/// Children are read by name until one differs; gives whether the summary is another one now.
bool SumUp(NamedNodes<unsigned int>& nodes, const std::string& name) {
  const auto& children = nodes.Children(name);
  unsigned int summary = nodes.At(children.front());
  for (const std::string& child : children) {
    if (nodes.At(child) != summary) {
      summary = kMixed;
      break;
    }
  }
  return std::exchange(nodes.At(name), summary) != summary;
}

Contender FloorByName(const Tens& tens) {
  const auto nodes = std::make_shared<NamedNodes<unsigned int>>();
  for (std::size_t node = 0; node < tens.Size(); ++node) {
    nodes->Add(tens.Name(node), node == 0 ? std::string() : tens.Name(Tens::Parent(node)), kOld);
  }
  std::vector<std::string> above;
  for (std::size_t node = tens.Size() - 1; node != 0;) above.push_back(tens.Name(node = Tens::Parent(node)));
  return {"by name", [nodes, above, leaf = tens.Leaf()](Meter& meter) {
            meter.Run([&] {
              for (std::size_t change = 0; change < kChanges; ++change) {
                for (const unsigned int color : {kNew, kOld}) {
                  nodes->At(leaf) = color;
                  for (const std::string& ancestor : above) {
                    if (!SumUp(*nodes, ancestor)) break;
                  }
                }
              }
            });
          }};
}

}  // namespace

Figures MeasureLeafChange(const Settings& settings) {
  const Tens tens(settings.Size(100'000));
  const auto outcomes = Race({Ours(tens), Model(tens), FloorByName(tens), Widget(tens)}, kOperations, kRepetitions);
  const std::string workload = "one leaf's colour changes below " + Grouped(tens.Size()) + " nodes, ten to a parent";
  return {AgainstPeer(WithOther(WithFloor(FigureOf(7, workload, outcomes), outcomes[2]), outcomes[3]), 1.4)};
}

}  // namespace oxecad_bench
