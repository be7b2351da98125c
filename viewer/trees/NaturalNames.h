/// \file
/// The order in which names stand in the trees.
#ifndef OXECAD_VIEWER_TREES_NATURALNAMES_H
#define OXECAD_VIEWER_TREES_NATURALNAMES_H

#include <viewer/diff/BoardDiff.h>

namespace oxviewer {

/// The natural order of the names of an electronic design, as the library's trees have it, for comparisons of boards.
NameOrder NaturalNameOrder();

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_NATURALNAMES_H
