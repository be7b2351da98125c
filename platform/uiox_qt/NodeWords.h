/// \file
/// What a row of a tree says, in words: for tooltips, for screen readers and for the clipboard.
#ifndef OXECAD_UIOX_QT_NODEWORDS_H
#define OXECAD_UIOX_QT_NODEWORDS_H

#include <uiox/NodeId.h>
#include <uiox_qt/Export.h>

#include <QModelIndex>
#include <QString>

namespace uiox_qt {

class TreeModel;

/// The name of a node or the words of a cell: a label without its markup, a colour as its word, a check button as its
/// state.
OXECAD_UIOX_QT_API QString ItemWords(const TreeModel& model, const QModelIndex& index);

/// What there is to know of a node beside its name: its colour, its check, how many nodes are below it and how many of
/// them are checked, its level from 1, and whether it is expanded. Of a cell: the column's title. Parts are separated
/// by a comma. Linear in the number of the node's children.
OXECAD_UIOX_QT_API QString ItemFacts(const TreeModel& model, const QModelIndex& index);

/// For a person who rests on an item with the mouse: the name in full, the colour with its digits, and the counts, a
/// line each; empty when that would say no more than is to be seen.
OXECAD_UIOX_QT_API QString ItemTip(const TreeModel& model, const QModelIndex& index, bool clipped);

}  // namespace uiox_qt

#endif
