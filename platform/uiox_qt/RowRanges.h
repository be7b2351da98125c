/// \file
/// Nodes as ranges of rows and back.
#ifndef OXECAD_UIOX_QT_ROWRANGES_H
#define OXECAD_UIOX_QT_ROWRANGES_H

#include <uiox/NodeId.h>

#include <QItemSelection>

#include <vector>

namespace uiox_qt {

class TreeModel;

/// The rows of these nodes, those that follow each other as one range.
QItemSelection RowRanges(std::vector<uiox::NodeId> nodes, const TreeModel& model);

/// The nodes of a selection of whole rows, each once, in the order of the rows from top to bottom.
std::vector<uiox::NodeId> NodesOf(const QItemSelection& selection, const TreeModel& model);

}  // namespace uiox_qt

#endif
