#ifndef OXECAD_VIEWER_DIFF_BOARDDIFF_H
#define OXECAD_VIEWER_DIFF_BOARDDIFF_H

#include <viewer/board/Board.h>

#include <functional>
#include <string>
#include <vector>

namespace oxviewer {

/// How names are put in order: each is widened once, then `less` compares the labels, as a tree that shows them would.
/// Names that `less` holds for equivalent stand in the order of their bytes.
struct NameOrder {
  std::function<std::wstring(const std::string& utf8)> widen;
  std::function<bool(const std::wstring& a, const std::wstring& b)> less;
};

/// What may differ between two things that belong together; within one thing always in this order.
enum class Finding : std::uint8_t {
  // layers
  Renamed,
  Type,
  // components
  Moved,
  Rotated,
  Side,
  Value,
  Footprint,
  // nets
  Pads,
  Tracks,
  Width,
  Vias,
  Zones,
};

/// The finding's name in a report: "renamed", "moved" ...
const char* NameOf(Finding finding);

/// Something that only one of the boards has; `id` is its position in that board's vector.
struct Unmatched {
  std::string name;
  std::int32_t id;
};

/// Two things that belong together, by their positions in board A and in board B. Without findings they are equal.
struct Matched {
  std::string name;
  std::int32_t a;
  std::int32_t b;
  std::vector<Finding> findings;
};

/// All layers, components or nets of two boards, each in one of the lists, every list in natural order of the names.
struct SectionDiff {
  std::vector<Unmatched> onlyA;
  std::vector<Unmatched> onlyB;
  std::vector<Matched> changed;
  std::vector<Matched> equal;

  bool Equal() const { return onlyA.empty() && onlyB.empty() && changed.empty(); }
};

/// A net of `onlyA` and one of `onlyB` that join the same pads.
struct RenamedNet {
  Unmatched a;
  Unmatched b;
};

struct BoardDiff {
  SectionDiff layers;      ///< declared layers, by canonical name
  SectionDiff components;  ///< by reference; without one, or with one used twice, by reference and place
  SectionDiff nets;        ///< by name
  std::vector<RenamedNet> renamed;

  bool Equal() const { return layers.Equal() && components.Equal() && nets.Equal(); }
};

/// Compares two boards by what they say: positions to 1 nm and angles to a millionth of a degree, modulo 360. Where
/// things stand in the file, their unique ids, the direction of a track, the order of a via's layers, the first corner
/// and the sense of an outline make no difference; nor do sizes of pads and vias, fills and drawings.
/// With A and B changed round the answer is the same changed round. O(n log n).
BoardDiff CompareBoards(const Board& a, const Board& b, const NameOrder& order);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_DIFF_BOARDDIFF_H
