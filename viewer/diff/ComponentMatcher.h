#ifndef OXECAD_VIEWER_DIFF_COMPONENTMATCHER_H
#define OXECAD_VIEWER_DIFF_COMPONENTMATCHER_H

#include <viewer/diff/BoardDiff.h>

namespace oxviewer {

/// Matches the components of two boards and says how the pairs differ; the lists are in no particular order yet.
///
/// A reference that each board uses at most once is enough. Components without one, or with one that either board uses
/// twice, belong together when reference and place agree; among several at one place those that are equal throughout
/// come first, the rest in the order of what they say.
SectionDiff MatchComponents(const Board& a, const Board& b);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_DIFF_COMPONENTMATCHER_H
