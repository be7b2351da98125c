// Nodes of one colour added one by one below one parent, which is summed up each time.
#include "bench/reporting/Floors.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::ColorTree;

Contender Ours(const Nets& nets) {
  return {"ColorTree::AddNode", [&nets](Meter& meter) {
            Staged<ColorTree> tree;
            tree.Append("root", "");
            meter.Run([&] {
              for (std::size_t net = 0; net < nets.names.size(); ++net) {
                tree.AddNode(nets.names[net].c_str(), nets.labels[net].c_str(), "root", kRed, 0, L"", 1, 0);
              }
            });
            Check(NodesOnStage() == 1 + nets.names.size() && tree.GetNodeColor("root") == kRed, "all nets were added");
          }};
}

Contender Model(const Nets& nets) {
  return {"QStandardItemModel", [&nets](Meter& meter) {
            QStandardItemModel model;
            ColorIcons icons;
            QStandardItem& root = *AppendItem(*model.invisibleRootItem(), QStringLiteral("net"));
            meter.Run([&] {
              for (const QString& text : nets.texts) {
                SetColor(*AppendItem(root, text), kRed, icons);
                SumUpColors(&root, icons);
              }
            });
          }};
}

/// A parent that counts its children's colours needs to read none of them.
Contender Counters(const Nets& nets) {
  return {"counters", [&nets](Meter& meter) {
            NamedNodes<unsigned int> nodes;
            nodes.Add("root", "", kRed);
            std::unordered_map<unsigned int, std::size_t> counts;
            meter.Run([&] {
              for (const std::string& name : nets.names) {
                nodes.Add(name, "root", kRed);
                ++counts[kRed];
                nodes.At("root") = counts.size() == 1 ? counts.begin()->first : kMixed;
              }
            });
          }};
}

}  // namespace

Figures MeasureSiblings(const Settings& settings) {
  const std::size_t count = settings.Size(10'000);
  const Nets nets(count);
  const auto outcomes = Race({Ours(nets), Model(nets), Counters(nets)}, count);
  const std::string workload = "ColorTree::AddNode one by one, " + Grouped(count) + " siblings of one colour";
  return {AgainstPeer(WithFloor(FigureOf(8, workload, outcomes), outcomes[2]), 1.1)};
}

}  // namespace oxecad_bench
