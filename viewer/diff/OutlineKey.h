#ifndef OXECAD_VIEWER_DIFF_OUTLINEKEY_H
#define OXECAD_VIEWER_DIFF_OUTLINEKEY_H

#include <viewer/board/Board.h>

#include <compare>
#include <vector>

namespace oxviewer {

/// A corner of an outline, or the middle of one of its arcs.
struct OutlineVertex {
  Point point;
  bool onArc;
  friend auto operator<=>(const OutlineVertex&, const OutlineVertex&) = default;
};

using OutlineKey = std::vector<OutlineVertex>;

/// The same for every way to write down one closed line: whichever corner it starts at, whichever way round it runs,
/// and with or without corners said twice in a row. Linear.
OutlineKey KeyOf(const Polygon& polygon);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_DIFF_OUTLINEKEY_H
