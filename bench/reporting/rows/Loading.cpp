// Many nodes at once, against one by one with order and summaries kept at each.
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::ColorTree;
using oxecad_ui::CompareColorTree;
using oxecad_ui::Tree;

constexpr int kRow = 13;

std::string Below(std::size_t parents) {
  return parents == 1 ? " under one parent" : " over " + Grouped(parents) + " parents";
}

// --- Sorted by label -------------------------------------------------------------------------------------------------

Contender LoadNets(const Nets& nets, std::size_t parents) {
  return {"AddEcadNodes", [&nets, parents](Meter& meter) {
            NetTree tree;
            std::vector<std::string> groups;
            for (std::size_t group = 0; group < parents; ++group) {
              tree.Append(groups.emplace_back(GroupName(group)), "root");
            }
            meter.Run([&] {
              std::vector<Tree::EcadNode> nodes(nets.names.size());
              for (std::size_t net = 0; net < nodes.size(); ++net) {
                nodes[net] = {nets.names[net].c_str(),
                              nets.labels[net].c_str(),
                              groups[net % parents].c_str(),
                              "net",
                              L"",
                              1,
                              0,
                              0,
                              nullptr};
              }
              tree.AddEcadNodes(nodes, Tree::ByLabel);
            });
            Check(NodesOnStage() == 1 + parents + nets.names.size(), "all nets were added");
          }};
}

/// The items of groups below the invisible root of a model.
std::vector<QStandardItem*> AppendGroups(QStandardItemModel& model, std::size_t count) {
  std::vector<QStandardItem*> groups;
  for (std::size_t group = 0; group < count; ++group) {
    groups.push_back(AppendItem(*model.invisibleRootItem(), QString::fromStdString(GroupName(group))));
  }
  return groups;
}

Contender InsertNets(const Nets& nets, std::size_t parents) {
  return {"QStandardItemModel", [&nets, parents](Meter& meter) {
            QStandardItemModel model;
            const auto groups = AppendGroups(model, parents);
            const QCollator collator = NaturalCollator();
            meter.Run([&] {
              for (std::size_t net = 0; net < nets.texts.size(); ++net) {
                InsertSorted(*groups[net % parents], collator, nets.texts[net]);
              }
            });
          }};
}

Figure MeasureSorted(std::size_t count, std::size_t parents, double goal) {
  const Nets nets(count);
  return AgainstPeer(FigureOf(kRow, "load " + Grouped(count) + " sorted" + Below(parents),
                              Race({LoadNets(nets, parents), InsertNets(nets, parents)}, count)),
                     goal);
}

// --- With colours ----------------------------------------------------------------------------------------------------

/// Nodes of a load, spread over parents that are there; the nodes of a parent have one colour.
template <class Info>
std::vector<Info> LoadRecords(const Nets& nets, std::size_t parents) {
  std::vector<Info> records(nets.names.size());
  for (std::size_t net = 0; net < records.size(); ++net) {
    records[net].name = GroupName(net % parents).append("/").append(nets.names[net]);
    records[net].label = nets.labels[net];
  }
  return records;
}

unsigned int ColorOfParent(std::size_t parent) { return kRed + (static_cast<unsigned int>(parent % 16) << 12); }

Contender LoadColors(const Nets& nets, std::size_t parents) {
  auto records = LoadRecords<ColorTree::ColorNodeInfo>(nets, parents);
  for (std::size_t net = 0; net < records.size(); ++net) records[net].color = ColorOfParent(net % parents);
  return {"ColorTree::AddNodes", [records = std::move(records), parents](Meter& meter) {
            Staged<ColorTree> tree;
            tree.Append("root", "");
            for (std::size_t group = 0; group < parents; ++group) tree.Append(GroupName(group), "root");
            meter.Run([&] { tree.AddNodes(records); });
            Check(NodesOnStage() == 1 + parents + records.size(), "all nets were added");
            Check(tree.GetNodeColor(GroupName(0).c_str()) == ColorOfParent(0), "parents are summed up");
          }};
}

Contender InsertColors(const Nets& nets, std::size_t parents, bool sorted) {
  return {sorted ? "QStandardItemModel" : "QStandardItemModel, not sorted", [&nets, parents, sorted](Meter& meter) {
            QStandardItemModel model;
            const auto groups = AppendGroups(model, parents);
            const QCollator collator = NaturalCollator();
            ColorIcons icons;
            meter.Run([&] {
              for (std::size_t net = 0; net < nets.texts.size(); ++net) {
                QStandardItem& group = *groups[net % parents];
                QStandardItem* item =
                    sorted ? InsertSorted(group, collator, nets.texts[net]) : AppendItem(group, nets.texts[net]);
                SetColor(*item, ColorOfParent(net % parents), icons);
                SumUpColors(&group, icons);
              }
            });
          }};
}

Figure MeasureColors(std::size_t count, std::size_t parents, double goal) {
  const Nets nets(count);
  const auto outcomes =
      Race({LoadColors(nets, parents), InsertColors(nets, parents, true), InsertColors(nets, parents, false)}, count);
  const std::string what = parents == 1 ? " of one colour" : " with colours";
  return AgainstPeer(WithOther(FigureOf(kRow, "load " + Grouped(count) + what + Below(parents), outcomes), outcomes[2]),
                     goal);
}

// --- The same for many siblings as for few ---------------------------------------------------------------------------

Contender LoadCompared(const Nets& nets, std::size_t parents) {
  auto records = LoadRecords<CompareColorTree::CompareNodeInfo>(nets, parents);
  for (auto& record : records) {
    record.type = CompareColorTree::s_compareType;
    record.colorA = record.colorB = record.colorOverlap = kRed;
    record.designFlag = CompareColorTree::DesignBoth;
  }
  return {"CompareColorTree::AddNodes", [records = std::move(records), parents](Meter& meter) {
            Staged<CompareColorTree> tree;
            tree.Append("root", "");
            for (std::size_t group = 0; group < parents; ++group) {
              tree.Append(GroupName(group), "root", CompareColorTree::s_compareType);
            }
            meter.Run([&] { tree.AddNodes(records); });
            Check(NodesOnStage() == 1 + parents + records.size(), "all nets were added");
          }};
}

Figure MeasureGrowth(const std::string& tree, Contender (*load)(const Nets& nets, std::size_t parents)) {
  constexpr std::size_t kMany = 10'000;
  constexpr std::size_t kFew = 100;
  const Nets nets(kMany);
  Contender few = load(nets, kMany / kFew);
  few.name = "the same at " + Grouped(kFew);
  Figure figure = AgainstPeer(FigureOf(kRow, "load " + Grouped(kMany) + " siblings into a " + tree + " tree",
                                       Race({load(nets, 1), few}, kMany, 9)),
                              1.5);
  return figure;
}

}  // namespace

Figures MeasureLoading(const Settings& settings) {
  const std::size_t count = settings.Size(100'000);
  return {MeasureSorted(count, 1, 0.13),           MeasureSorted(count, count / 100, 0.30),
          MeasureColors(count, count / 100, 0.20), MeasureColors(10'000, 1, 0.006),
          MeasureGrowth("colour", &LoadColors),    MeasureGrowth("compare", &LoadCompared)};
}

}  // namespace oxecad_bench
