// Five compare values for a whole tree.
#include <memory>

#include "bench/reporting/Floors.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::CompareColorTree;
using oxecad_ui::Tree;
using ShowMode = CompareColorTree::ShowMode;

/// The values in turn: each run changes all five.
struct Values {
  explicit Values(bool first)
      : color(first ? kRed : kBlue),
        mode(first ? ShowMode::Both : ShowMode::Diff),
        dim(first ? Tree::Unchecked : Tree::Checked) {}
  unsigned int color;
  ShowMode mode;
  Tree::NodeState dim;
};

Contender Ours(const GroupedNets& nets) {
  struct Filled {
    Staged<CompareColorTree> tree;
    bool first = true;
  };
  const Values values(true);
  using Info = CompareColorTree::CompareNodeInfo;
  const auto records = RecordsOf<Info>(nets, [&](Info& record, std::size_t) {
    record.type = CompareColorTree::s_compareType;
    record.colorA = record.colorB = record.colorOverlap = values.color;
    record.showMode = values.mode;
    record.dim = values.dim;
    record.designFlag = CompareColorTree::DesignBoth;
  });
  auto filled = std::make_shared<Filled>();
  filled->tree.AddNodes(records);
  Check(NodesOnStage() == nets.Nodes(), "all nodes were added");
  return {"ChangeNodeInfo", [filled](Meter& meter) {
            filled->first = !filled->first;
            const Values next(filled->first);
            meter.Run([&] {
              filled->tree.ChangeNodeInfo("root", next.color, next.color, next.color, next.mode, next.dim,
                                          CompareColorTree::DesignBoth);
            });
          }};
}

// --- Qt --------------------------------------------------------------------------------------------------------------

enum Column { kNameColumn, kColorAColumn, kColorBColumn, kOverlapColumn, kModeColumn, kDimColumn, kColumns };

void AppendRow(QStandardItem& parent, const QString& text) {
  QList<QStandardItem*> row = {new QStandardItem(text)};
  for (int column = kColorAColumn; column < kColumns; ++column) row.append(new QStandardItem);
  parent.appendRow(row);
}

QString TextOf(ShowMode mode) { return mode == ShowMode::Both ? QStringLiteral("both") : QStringLiteral("diff"); }
Qt::CheckState CheckOf(Tree::NodeState dim) { return dim == Tree::Checked ? Qt::Checked : Qt::Unchecked; }

void SetRow(QStandardItem& parent, int row, const Values& values, ColorIcons& icons) {
  for (const int column : {kColorAColumn, kColorBColumn, kOverlapColumn}) {
    SetColor(*parent.child(row, column), values.color, icons);
  }
  parent.child(row, kModeColumn)->setText(TextOf(values.mode));
  parent.child(row, kDimColumn)->setCheckState(CheckOf(values.dim));
}

void SetBranch(QStandardItem& parent, const Values& values, ColorIcons& icons) {
  for (int row = 0; row < parent.rowCount(); ++row) {
    SetBranch(*parent.child(row), values, icons);
    SetRow(parent, row, values, icons);
  }
}

Contender Model(const GroupedNets& nets) {
  struct Filled {
    QStandardItemModel model;
    ColorIcons icons;
    bool first = true;
  };
  auto filled = std::make_shared<Filled>();
  AppendRow(*filled->model.invisibleRootItem(), QStringLiteral("net"));
  QStandardItem& root = *filled->model.item(0);
  for (std::size_t group = 0; group < nets.groups; ++group) AppendRow(root, QStringLiteral("Group"));
  for (std::size_t net = 0; net < nets.nets.texts.size(); ++net) {
    AppendRow(*root.child(static_cast<int>(nets.GroupOf(net))), nets.nets.texts[net]);
  }
  SetBranch(*filled->model.invisibleRootItem(), Values(true), filled->icons);
  return {"QStandardItemModel", [filled](Meter& meter) {
            filled->first = !filled->first;
            meter.Run([&] { SetBranch(*filled->model.invisibleRootItem(), Values(filled->first), filled->icons); });
          }};
}

void SetBranch(QTreeWidgetItem& item, const Values& values, ColorIcons& icons) {
  for (int row = 0; row < item.childCount(); ++row) SetBranch(*item.child(row), values, icons);
  for (const int column : {kColorAColumn, kColorBColumn, kOverlapColumn}) {
    item.setData(column, kColorRole, values.color);
    item.setIcon(column, icons.Icon(values.color));
  }
  item.setText(kModeColumn, TextOf(values.mode));
  item.setCheckState(kDimColumn, CheckOf(values.dim));
}

Contender Widget(const GroupedNets& nets) {
  struct Filled {
    QTreeWidget widget;
    ColorIcons icons;
    bool first = true;
  };
  auto filled = std::make_shared<Filled>();
  filled->widget.setColumnCount(kColumns);
  QTreeWidgetItem* const root = AppendItem(*filled->widget.invisibleRootItem(), QStringLiteral("net"));
  for (std::size_t group = 0; group < nets.groups; ++group) AppendItem(*root, QStringLiteral("Group"));
  for (std::size_t net = 0; net < nets.nets.texts.size(); ++net) {
    AppendItem(*root->child(static_cast<int>(nets.GroupOf(net))), nets.nets.texts[net]);
  }
  SetBranch(*root, Values(true), filled->icons);
  return {"QTreeWidget", [filled, root](Meter& meter) {
            filled->first = !filled->first;
            meter.Run([&] { SetBranch(*root, Values(filled->first), filled->icons); });
          }};
}

Contender FloorByName(const GroupedNets& nets) {
  const auto nodes = std::make_shared<NamedNodes<Values>>(nets, [](std::size_t) { return Values(true); });
  return {"by name", [nodes](Meter& meter) {
            const Values next(nodes->At("root").mode != ShowMode::Both);
            meter.Run([&] { nodes->SetBranch("root", next); });
          }};
}

}  // namespace

Figures MeasureCompareValues(const Settings& settings) {
  const GroupedNets nets = GroupedNets::OfNodes(settings.Size(100'000));
  const auto outcomes = Race({Ours(nets), Model(nets), FloorByName(nets), Widget(nets)}, nets.Nodes());
  const std::string workload = "five compare values at the root of " + Grouped(nets.Nodes()) + " nodes, per node";
  return {AgainstPeer(WithOther(WithFloor(FigureOf(6, workload, outcomes), outcomes[2]), outcomes[3]), 0.5)};
}

}  // namespace oxecad_bench
