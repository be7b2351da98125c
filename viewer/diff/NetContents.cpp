#include <viewer/diff/NetContents.h>

#include <algorithm>
#include <utility>

namespace oxviewer {

namespace {

template <class Key>
void MakeSet(std::vector<Key>& keys) {
  std::sort(keys.begin(), keys.end());
  keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
}

constexpr std::int32_t kNoCommonLayer = -1;

// Reads the items of one board into the contents of their nets.
class Collector {
 public:
  Collector(const Board& board, std::vector<std::int32_t> layers)
      : board_(board), layers_(std::move(layers)), nets_(board.nets.size()) {}

  std::vector<NetContents> Collect() {
    for (const Pad& pad : board_.pads) Add(pad);
    for (const Track& track : board_.tracks) Add(track);
    for (const Via& via : board_.vias) Add(via);
    for (const Zone& zone : board_.zones) Add(zone);
    for (NetContents& net : nets_) {
      MakeSet(net.pads);
      MakeSet(net.tracks);
      MakeSet(net.vias);
      MakeSet(net.zones);
    }
    return std::move(nets_);
  }

 private:
  NetContents& Net(NetId id) { return nets_[static_cast<std::size_t>(id)]; }
  std::int32_t Common(LayerId id) const { return id < 0 ? kNoCommonLayer : layers_[static_cast<std::size_t>(id)]; }

  void Add(const Pad& pad) {
    if (pad.net == kNoNet) return;
    std::string_view reference;
    if (pad.component >= 0) reference = board_.components[static_cast<std::size_t>(pad.component)].reference;
    Net(pad.net).pads.push_back({reference, pad.number});
  }

  void Add(const Track& track) {
    if (track.net == kNoNet) return;
    const auto [first, last] = std::minmax(track.start, track.end);
    const PathKey path{Common(track.layer), track.arc, first, track.arc ? track.mid : Point{}, last};
    Net(track.net).tracks.push_back({path, track.width});
  }

  void Add(const Via& via) {
    if (via.net == kNoNet) return;
    const auto [low, high] = std::minmax({Common(via.firstLayer), Common(via.lastLayer)});
    Net(via.net).vias.push_back({via.position, low, high});
  }

  void Add(const Zone& zone) {
    if (zone.net == kNoNet) return;
    ZoneKey key;
    for (std::size_t i = 0; i < layers_.size(); ++i) {
      if (zone.layers[i]) key.layers.push_back(layers_[i]);
    }
    std::sort(key.layers.begin(), key.layers.end());
    for (const Polygon& outline : zone.outlines) {
      if (&outline == &zone.outlines.front()) {
        key.outer = KeyOf(outline);
      } else {
        key.holes.push_back(KeyOf(outline));
      }
    }
    std::sort(key.holes.begin(), key.holes.end());
    Net(zone.net).zones.push_back(std::move(key));
  }

  const Board& board_;
  std::vector<std::int32_t> layers_;
  std::vector<NetContents> nets_;
};

struct TrackDifference {
  bool paths = false;
  bool widths = false;
};

// The end of the entries that share the path of the first.
std::vector<PathWidth>::const_iterator EndOfPath(std::vector<PathWidth>::const_iterator first,
                                                 std::vector<PathWidth>::const_iterator end) {
  const PathKey& path = first->path;
  return std::find_if(first, end, [&path](const PathWidth& track) { return track.path != path; });
}

TrackDifference CompareTracks(const std::vector<PathWidth>& a, const std::vector<PathWidth>& b) {
  TrackDifference difference;
  auto ofA = a.begin();
  auto ofB = b.begin();
  while (ofA != a.end() && ofB != b.end()) {
    if (ofA->path != ofB->path) {
      difference.paths = true;
      (ofA->path < ofB->path ? ofA : ofB)++;
      continue;
    }
    const auto endA = EndOfPath(ofA, a.end());
    const auto endB = EndOfPath(ofB, b.end());
    difference.widths = difference.widths || !std::equal(ofA, endA, ofB, endB);
    ofA = endA;
    ofB = endB;
  }
  difference.paths = difference.paths || ofA != a.end() || ofB != b.end();
  return difference;
}

}  // namespace

std::vector<std::int32_t> LayerNumbering::Number(const Board& board) {
  std::vector<std::int32_t> common;
  common.reserve(board.layers.size());
  for (const Layer& layer : board.layers) {
    common.push_back(numbers_.emplace(layer.name, static_cast<std::int32_t>(numbers_.size())).first->second);
  }
  return common;
}

std::vector<NetContents> ContentsOfNets(const Board& board, LayerNumbering& numbering) {
  return Collector(board, numbering.Number(board)).Collect();
}

std::vector<Finding> CompareContents(const NetContents& a, const NetContents& b) {
  std::vector<Finding> findings;
  const TrackDifference tracks = CompareTracks(a.tracks, b.tracks);
  if (a.pads != b.pads) findings.push_back(Finding::Pads);
  if (tracks.paths) findings.push_back(Finding::Tracks);
  if (tracks.widths) findings.push_back(Finding::Width);
  if (a.vias != b.vias) findings.push_back(Finding::Vias);
  if (a.zones != b.zones) findings.push_back(Finding::Zones);
  return findings;
}

}  // namespace oxviewer
