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

Contender Ours(const Shape& shape) {
  struct Filled {
    Staged<CompareColorTree> tree;
    bool first = true;
  };
  const Values values(true);
  std::vector<CompareColorTree::CompareNodeInfo> records;
  for (const auto& node : ColorRecords(shape, [](std::size_t) { return kRed; })) {
    auto& record = records.emplace_back();
    record.name = node.name;
    record.label = node.label;
    record.type = CompareColorTree::s_compareType;
    record.colorA = record.colorB = record.colorOverlap = values.color;
    record.showMode = values.mode;
    record.dim = values.dim;
    record.designFlag = CompareColorTree::DesignBoth;
  }
  auto filled = std::make_shared<Filled>();
  filled->tree.AddNodes(records);
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

/// A colour shows itself as a square, a mode as a number, the dimming as a check box.
void SetRow(QStandardItem& parent, int row, const Values& values) {
  const QColor color(static_cast<int>(values.color & 0xFF), 0, static_cast<int>(values.color >> 16));
  for (const int column : {kColorAColumn, kColorBColumn, kOverlapColumn}) {
    parent.child(row, column)->setData(color, Qt::DecorationRole);
  }
  parent.child(row, kModeColumn)->setData(static_cast<int>(values.mode), kValueRole);
  parent.child(row, kDimColumn)->setCheckState(values.dim == Tree::Checked ? Qt::Checked : Qt::Unchecked);
}

void SetBranch(QStandardItem& parent, const Values& values) {
  for (int row = 0; row < parent.rowCount(); ++row) {
    SetBranch(*parent.child(row), values);
    SetRow(parent, row, values);
  }
}

Contender Model(const Shape& shape) {
  struct Filled {
    QStandardItemModel model;
    bool first = true;
  };
  auto filled = std::make_shared<Filled>();
  AppendRow(*filled->model.invisibleRootItem(), QStringLiteral("net"));
  QStandardItem& root = *filled->model.item(0);
  for (std::size_t group = 0; group < shape.groups; ++group) {
    AppendRow(root, QStringLiteral("net"));
    QStandardItem& parent = *root.child(static_cast<int>(group));
    for (std::size_t leaf = 0; leaf < shape.leaves; ++leaf) AppendRow(parent, QStringLiteral("net"));
  }
  SetBranch(*filled->model.invisibleRootItem(), Values(true));
  return {"QStandardItemModel", [filled](Meter& meter) {
            filled->first = !filled->first;
            meter.Run([&] { SetBranch(*filled->model.invisibleRootItem(), Values(filled->first)); });
          }};
}

void SetBranch(QTreeWidgetItem& item, const Values& values) {
  for (int row = 0; row < item.childCount(); ++row) SetBranch(*item.child(row), values);
  const QColor color(static_cast<int>(values.color & 0xFF), 0, static_cast<int>(values.color >> 16));
  for (const int column : {kColorAColumn, kColorBColumn, kOverlapColumn}) {
    item.setData(column, Qt::DecorationRole, color);
  }
  item.setData(kModeColumn, kValueRole, static_cast<int>(values.mode));
  item.setCheckState(kDimColumn, values.dim == Tree::Checked ? Qt::Checked : Qt::Unchecked);
}

Contender Widget(const Shape& shape) {
  struct Filled {
    QTreeWidget widget;
    bool first = true;
  };
  auto filled = std::make_shared<Filled>();
  filled->widget.setColumnCount(kColumns);
  QTreeWidgetItem* const root = AppendItem(*filled->widget.invisibleRootItem(), QStringLiteral("net"));
  for (std::size_t group = 0; group < shape.groups; ++group) {
    QTreeWidgetItem* const parent = AppendItem(*root, QStringLiteral("net"));
    for (std::size_t leaf = 0; leaf < shape.leaves; ++leaf) AppendItem(*parent, QStringLiteral("net"));
  }
  SetBranch(*root, Values(true));
  return {"QTreeWidget", [filled, root](Meter& meter) {
            filled->first = !filled->first;
            meter.Run([&] { SetBranch(*root, Values(filled->first)); });
          }};
}

Contender FloorByName(const Shape& shape) {
  auto nodes = std::make_shared<NamedNodes<Values>>();
  for (const auto& record : ColorRecords(shape, [](std::size_t) { return kRed; })) {
    std::string parent;
    std::wstring label;
    Tree::NodeInfoToNames(record, parent, label);
    nodes->Add(record.name, parent, Values(true));
  }
  return {"by name", [nodes](Meter& meter) {
            const Values next(nodes->At("root").mode != ShowMode::Both);
            meter.Run([&] { nodes->SetBranch("root", next); });
          }};
}

}  // namespace

Figures MeasureCompareValues(const Settings& settings) {
  const Shape shape = Shape::OfNodes(settings.Size(100'000));
  const auto outcomes = Race({Ours(shape), Model(shape), FloorByName(shape), Widget(shape)}, shape.Nodes());
  const std::string workload = "five compare values at the root of " + Grouped(shape.Nodes()) + " nodes, per node";
  return {AgainstPeer(WithOther(WithFloor(FigureOf(6, workload, outcomes), outcomes[2]), outcomes[3]), 0.5)};
}

}  // namespace oxecad_bench
