/// \file
/// Trees as text.
#ifndef OXECAD_VIEWER_TREES_DUMP_H
#define OXECAD_VIEWER_TREES_DUMP_H

#include <string>

#include <uiox/TreeWidget.h>

namespace oxviewer {

/// Writes what the toolkit holds of a tree, in display order. First a line "# " and the component's name, then one line
/// for each node that can be shown:
///
///     <two blanks per level><label>\ttype=<type>\tstate=<0|1|2>\tcolor=<#rrggbb|mix|none>
///
/// The label is what a person reads: in a markup column tags are left out and entities resolved. In labels and values a
/// tab, a line feed, a carriage return and a backslash are written "\t", "\n", "\r" and "\\". The colour is that of the
/// square shown. A tree with the five columns of a comparison has these fields behind each node too:
///
///     \ta=<colour>\tb=<colour>\toverlap=<colour>\tshow=<both|a|b|a-b|b-a|overlap|diff|mix|none>\tdim=<0|1|2|none>
///
/// Any other column gives a field of its own name with the cell's text, where there is one.
/// Linear in the number of nodes.
std::string DumpTree(const uiox::TreeWidget& tree);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_DUMP_H
