/// \file
/// All comparators: those of strings, and that of node records by their labels (`Tree::NodeInfoLabelComperator`).
#ifndef OXECAD_UI_TREE_COMPARATORS_H
#define OXECAD_UI_TREE_COMPARATORS_H

#include <uicomps/tree/StringComparators.h>
#include <uicomps/tree/Tree.h>

#endif
