#include <uiox_qt/RowRanges.h>

#include <uiox_qt/TreeModel.h>

#include <algorithm>

namespace uiox_qt {
namespace {

using uiox::NodeId;

struct Place {
  NodeId parent;
  int row;
  bool operator<(const Place& other) const { return parent != other.parent ? parent < other.parent : row < other.row; }
  bool operator==(const Place& other) const { return parent == other.parent && row == other.row; }
};

/// The rows from the top of the tree down to an index: rows of a tree in order are in the order of their ways.
std::vector<int> WayTo(QModelIndex index) {
  std::vector<int> way;
  for (; index.isValid(); index = index.parent()) way.push_back(index.row());
  std::reverse(way.begin(), way.end());
  return way;
}

}  // namespace

QItemSelection RowRanges(std::vector<NodeId> nodes, const TreeModel& model) {
  std::vector<Place> places;
  places.reserve(nodes.size());
  for (const NodeId node : nodes) {
    const QModelIndex index = model.IndexOf(node);
    if (index.isValid()) places.push_back({model.NodeOf(index.parent()), index.row()});
  }
  std::sort(places.begin(), places.end());
  places.erase(std::unique(places.begin(), places.end()), places.end());

  QItemSelection ranges;
  const int last_column = model.columnCount() - 1;
  for (std::size_t begin = 0; begin < places.size();) {
    std::size_t end = begin + 1;
    while (end < places.size() && places[end].parent == places[begin].parent &&
           places[end].row == places[end - 1].row + 1) {
      ++end;
    }
    const QModelIndex parent = model.IndexOf(places[begin].parent);
    ranges.append(QItemSelectionRange(model.index(places[begin].row, 0, parent),
                                      model.index(places[end - 1].row, last_column, parent)));
    begin = end;
  }
  return ranges;
}

std::vector<NodeId> NodesOf(const QItemSelection& selection, const TreeModel& model) {
  std::vector<std::pair<std::vector<int>, NodeId>> rows;
  for (const QItemSelectionRange& range : selection) {
    if (!range.isValid()) continue;
    std::vector<int> way = WayTo(range.parent());
    way.push_back(0);
    for (int row = range.top(); row <= range.bottom(); ++row) {
      way.back() = row;
      rows.emplace_back(way, model.NodeOf(model.index(row, 0, range.parent())));
    }
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  std::vector<NodeId> nodes;
  nodes.reserve(rows.size());
  for (const auto& row : rows) nodes.push_back(row.second);
  return nodes;
}

}  // namespace uiox_qt
