#ifndef OXECAD_VIEWER_DIFF_NETCONTENTS_H
#define OXECAD_VIEWER_DIFF_NETCONTENTS_H

#include <viewer/board/Board.h>
#include <viewer/diff/BoardDiff.h>
#include <viewer/diff/OutlineKey.h>

#include <compare>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace oxviewer {

/// Numbers layer names alike for several boards.
class LayerNumbering {
 public:
  /// The common number of each layer of the board; the texts must outlive this object.
  std::vector<std::int32_t> Number(const Board& board);

 private:
  std::map<std::string_view, std::int32_t> numbers_;
};

struct PadKey {
  std::string_view reference;
  std::string_view number;
  friend auto operator<=>(const PadKey&, const PadKey&) = default;
};

/// Where a track runs, whichever end it starts from.
struct PathKey {
  std::int32_t layer;
  bool arc;
  Point first;
  Point mid;
  Point last;
  friend auto operator<=>(const PathKey&, const PathKey&) = default;
};

struct PathWidth {
  PathKey path;
  Nm width;
  friend auto operator<=>(const PathWidth&, const PathWidth&) = default;
};

struct ViaKey {
  Point position;
  std::int32_t lowLayer;
  std::int32_t highLayer;
  friend auto operator<=>(const ViaKey&, const ViaKey&) = default;
};

struct ZoneKey {
  std::vector<std::int32_t> layers;
  OutlineKey outer;
  std::vector<OutlineKey> holes;
  friend auto operator<=>(const ZoneKey&, const ZoneKey&) = default;
};

/// What a net consists of: sorted sets, free of everything that is only a way of writing it down.
struct NetContents {
  std::vector<PadKey> pads;
  std::vector<PathWidth> tracks;
  std::vector<ViaKey> vias;
  std::vector<ZoneKey> zones;
};

/// The contents of every net of the board, by NetId. The keys refer to the board's texts.
std::vector<NetContents> ContentsOfNets(const Board& board, LayerNumbering& numbering);

/// How two nets differ, in the order of Finding.
std::vector<Finding> CompareContents(const NetContents& a, const NetContents& b);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_DIFF_NETCONTENTS_H
