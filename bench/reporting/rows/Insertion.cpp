// Nodes added one by one where they belong among sorted siblings.
#include "bench/reporting/Floors.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::Tree;

Contender Ours(const Nets& nets, std::size_t parents) {
  return {"AddEcadNode", [&nets, parents](Meter& meter) {
            NetTree tree;
            std::vector<std::string> groups;
            for (std::size_t group = 0; group < parents; ++group) {
              tree.Append(groups.emplace_back(GroupName(group)), "root");
            }
            meter.Run([&] {
              for (std::size_t net = 0; net < nets.names.size(); ++net) {
                tree.AddEcadNode(nets.names[net].c_str(), nets.labels[net].c_str(), groups[net % parents].c_str(),
                                 Tree::ByLabel, "net", L"", 1, 0, 0, nullptr);
              }
            });
            Check(NodesOnStage() == 1 + parents + nets.names.size(), "all nets were added");
          }};
}

/// `Owner` is a QStandardItemModel or a QTreeWidget.
template <class Owner>
Contender Peer(std::string name, const Nets& nets, std::size_t parents) {
  return {std::move(name), [&nets, parents](Meter& meter) {
            Owner owner;
            std::vector<decltype(owner.invisibleRootItem())> groups;
            for (std::size_t group = 0; group < parents; ++group) {
              groups.push_back(AppendItem(*owner.invisibleRootItem(), QString::fromStdString(GroupName(group))));
            }
            const QCollator collator = NaturalCollator();
            meter.Run([&] {
              for (std::size_t net = 0; net < nets.texts.size(); ++net) {
                InsertSorted(*groups[net % parents], collator, nets.texts[net]);
              }
            });
          }};
}

Contender Floor(const Nets& nets, std::size_t parents) {
  return {"chunked keys", [&nets, parents](Meter& meter) {
            std::vector<ChunkedKeys> groups(parents);
            meter.Run([&] {
              for (std::size_t net = 0; net < nets.labels.size(); ++net) {
                groups[net % parents].Insert(nets.labels[net].c_str());
              }
            });
          }};
}

Figure MeasureParents(int row, std::size_t count, std::size_t parents) {
  const Nets nets(count);
  const auto outcomes = Race({Ours(nets, parents), Peer<QStandardItemModel>("QStandardItemModel", nets, parents),
                              Floor(nets, parents), Peer<QTreeWidget>("QTreeWidget", nets, parents)},
                             count);
  const std::string below = parents == 1 ? " under one parent" : " over " + Grouped(parents) + " parents";
  const std::string workload = "AddEcadNode one by one, " + Grouped(count) + below;
  return WithOther(WithFloor(FigureOf(row, workload, outcomes), outcomes[2]), outcomes[3]);
}

}  // namespace

Figures MeasureInsertion(const Settings& settings) {
  const std::size_t count = settings.Size(100'000);
  return {AgainstPeer(MeasureParents(3, count, 1), 0.7), AgainstPeer(MeasureParents(4, count, count / 100), 1.1)};
}

}  // namespace oxecad_bench
