#include <viewer/diff/OutlineKey.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace oxviewer {

namespace {

OutlineKey WithoutRepeats(const Polygon& polygon) {
  OutlineKey vertices;
  vertices.reserve(polygon.points.size());
  std::size_t arc = 0;
  for (std::size_t i = 0; i < polygon.points.size(); ++i) {
    const bool onArc = arc < polygon.arcs.size() && polygon.arcs[arc] == i;
    if (onArc) ++arc;
    const OutlineVertex vertex{polygon.points[i], onArc};
    if (vertices.empty() || onArc || vertices.back() != vertex) vertices.push_back(vertex);
  }
  while (vertices.size() > 1 && !vertices.back().onArc && vertices.back() == vertices.front()) vertices.pop_back();
  return vertices;
}

// Where the smallest of all rotations of the ring begins: two candidates run towards each other, and the one that loses
// a comparison skips everything that lost with it.
std::size_t LeastRotation(const OutlineKey& ring) {
  const std::size_t count = ring.size();
  std::size_t a = 0;
  std::size_t b = 1;
  std::size_t same = 0;
  while (a < count && b < count && same < count) {
    const OutlineVertex& ofA = ring[(a + same) % count];
    const OutlineVertex& ofB = ring[(b + same) % count];
    if (ofA == ofB) {
      ++same;
      continue;
    }
    (ofA > ofB ? a : b) += same + 1;
    if (a == b) ++b;
    same = 0;
  }
  return std::min(a, b);
}

void StartAtLeast(OutlineKey& ring) {
  if (ring.empty()) return;
  std::rotate(ring.begin(), ring.begin() + static_cast<std::ptrdiff_t>(LeastRotation(ring)), ring.end());
}

}  // namespace

OutlineKey KeyOf(const Polygon& polygon) {
  OutlineKey forward = WithoutRepeats(polygon);
  OutlineKey backward(forward.rbegin(), forward.rend());
  StartAtLeast(forward);
  StartAtLeast(backward);
  return std::min(std::move(forward), std::move(backward));
}

}  // namespace oxviewer
