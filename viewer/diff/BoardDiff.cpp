#include <viewer/diff/BoardDiff.h>
#include <viewer/diff/ComponentMatcher.h>
#include <viewer/diff/NetContents.h>

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace oxviewer {

namespace {

using Ids = std::map<std::string_view, std::int32_t>;

// Puts lists of named things in natural order; what has the same name stands as it lies on the board.
class Sorter {
 public:
  explicit Sorter(const NameOrder& order) : order_(order) {}

  template <class T, class TieBreak>
  void Sort(std::vector<T>& list, TieBreak tieBreak) const {
    std::vector<std::pair<std::wstring, T>> labelled;
    labelled.reserve(list.size());
    for (T& entry : list) {
      std::wstring label = order_.widen(entry.name);
      labelled.emplace_back(std::move(label), std::move(entry));
    }
    std::sort(labelled.begin(), labelled.end(), [&](const auto& x, const auto& y) {
      if (order_.less(x.first, y.first)) return true;
      if (order_.less(y.first, x.first)) return false;
      if (x.second.name != y.second.name) return x.second.name < y.second.name;
      return tieBreak(x.second, y.second);
    });
    for (std::size_t i = 0; i < list.size(); ++i) list[i] = std::move(labelled[i].second);
  }

 private:
  const NameOrder& order_;
};

// Components may share a name, and then also a place: only their contents are the same in every file.
auto PlaceOf(const std::vector<Component>& components, std::int32_t id) {
  const Component& c = components[static_cast<std::size_t>(id)];
  return std::tie(c.position, c.rotation, c.side, c.value, c.footprint);
}

void SortComponents(SectionDiff& diff, const Board& a, const Board& b, const Sorter& sorter) {
  const auto inA = [&a](const Unmatched& x, const Unmatched& y) {
    return PlaceOf(a.components, x.id) < PlaceOf(a.components, y.id);
  };
  const auto inB = [&b](const Unmatched& x, const Unmatched& y) {
    return PlaceOf(b.components, x.id) < PlaceOf(b.components, y.id);
  };
  // Of pairs at one place the contents may be changed round between the boards: the smaller one of each leads.
  const auto inBoth = [&](const Matched& x, const Matched& y) {
    const auto xs = std::minmax({PlaceOf(a.components, x.a), PlaceOf(b.components, x.b)});
    const auto ys = std::minmax({PlaceOf(a.components, y.a), PlaceOf(b.components, y.b)});
    return xs < ys;
  };
  sorter.Sort(diff.onlyA, inA);
  sorter.Sort(diff.onlyB, inB);
  sorter.Sort(diff.changed, inBoth);
  sorter.Sort(diff.equal, inBoth);
}

// For names that a board has once: nothing is left to break.
void SortUnique(SectionDiff& diff, const Sorter& sorter) {
  const auto never = [](const auto&, const auto&) { return false; };
  sorter.Sort(diff.onlyA, never);
  sorter.Sort(diff.onlyB, never);
  sorter.Sort(diff.changed, never);
  sorter.Sort(diff.equal, never);
}

// Matches things whose names are unique. `compare(a, b)` gives the findings of a pair.
template <class Named, class Compare>
SectionDiff MatchByName(const std::vector<Named>& a, std::size_t countA, const std::vector<Named>& b,
                        std::size_t countB, Compare compare) {
  SectionDiff diff;
  Ids inB;
  for (std::size_t i = 0; i < countB; ++i) inB.emplace(b[i].name, static_cast<std::int32_t>(i));
  for (std::size_t i = 0; i < countA; ++i) {
    const auto id = static_cast<std::int32_t>(i);
    const auto found = inB.find(a[i].name);
    if (found == inB.end()) {
      diff.onlyA.push_back({a[i].name, id});
      continue;
    }
    Matched pair{a[i].name, id, found->second, compare(id, found->second)};
    (pair.findings.empty() ? diff.equal : diff.changed).push_back(std::move(pair));
    inB.erase(found);
  }
  for (const auto& [name, id] : inB) diff.onlyB.push_back({std::string(name), id});
  return diff;
}

// A layer without a name of the user's goes by its own.
const std::string& ShownName(const Layer& layer) {
  return layer.userName.empty() ? layer.name : layer.userName;
}

SectionDiff MatchLayers(const Board& a, const Board& b) {
  const auto compare = [&](std::int32_t idA, std::int32_t idB) {
    const Layer& layerA = a.layers[static_cast<std::size_t>(idA)];
    const Layer& layerB = b.layers[static_cast<std::size_t>(idB)];
    std::vector<Finding> findings;
    if (ShownName(layerA) != ShownName(layerB)) findings.push_back(Finding::Renamed);
    if (layerA.type != layerB.type) findings.push_back(Finding::Type);
    return findings;
  };
  return MatchByName(a.layers, a.DeclaredLayerCount(), b.layers, b.DeclaredLayerCount(), compare);
}

// Both lists are in natural order already: the first of the one meets the first of the other with the same pads.
std::vector<RenamedNet> FindRenamed(const SectionDiff& nets, const std::vector<NetContents>& a,
                                    const std::vector<NetContents>& b) {
  struct Candidates {
    std::vector<const Unmatched*> ofB;
    std::size_t used = 0;
  };
  std::map<std::vector<PadKey>, Candidates> byPads;
  for (const Unmatched& net : nets.onlyB) {
    const std::vector<PadKey>& pads = b[static_cast<std::size_t>(net.id)].pads;
    if (!pads.empty()) byPads[pads].ofB.push_back(&net);
  }
  std::vector<RenamedNet> renamed;
  for (const Unmatched& net : nets.onlyA) {
    const auto found = byPads.find(a[static_cast<std::size_t>(net.id)].pads);
    if (found == byPads.end() || found->second.used == found->second.ofB.size()) continue;
    renamed.push_back({net, *found->second.ofB[found->second.used++]});
  }
  return renamed;
}

}  // namespace

const char* NameOf(Finding finding) {
  switch (finding) {
    case Finding::Renamed:
      return "renamed";
    case Finding::Type:
      return "type";
    case Finding::Moved:
      return "moved";
    case Finding::Rotated:
      return "rotated";
    case Finding::Side:
      return "side";
    case Finding::Value:
      return "value";
    case Finding::Footprint:
      return "footprint";
    case Finding::Pads:
      return "pads";
    case Finding::Tracks:
      return "tracks";
    case Finding::Width:
      return "width";
    case Finding::Vias:
      return "vias";
    case Finding::Zones:
      return "zones";
  }
  return "";
}

BoardDiff CompareBoards(const Board& a, const Board& b, const NameOrder& order) {
  const Sorter sorter(order);
  LayerNumbering numbering;
  const std::vector<NetContents> contentsA = ContentsOfNets(a, numbering);
  const std::vector<NetContents> contentsB = ContentsOfNets(b, numbering);
  const auto compareNets = [&](std::int32_t idA, std::int32_t idB) {
    return CompareContents(contentsA[static_cast<std::size_t>(idA)], contentsB[static_cast<std::size_t>(idB)]);
  };
  BoardDiff diff;
  diff.layers = MatchLayers(a, b);
  SortUnique(diff.layers, sorter);
  diff.components = MatchComponents(a, b);
  SortComponents(diff.components, a, b, sorter);
  diff.nets = MatchByName(a.nets, a.nets.size(), b.nets, b.nets.size(), compareNets);
  SortUnique(diff.nets, sorter);
  diff.renamed = FindRenamed(diff.nets, contentsA, contentsB);
  return diff;
}

}  // namespace oxviewer
