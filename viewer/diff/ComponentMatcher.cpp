#include <viewer/diff/ComponentMatcher.h>

#include <algorithm>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>

namespace oxviewer {

namespace {

using Ids = std::vector<std::int32_t>;

// The components that a pair is sought among: one reference, and the place if the reference is not enough.
using GroupKey = std::pair<std::string_view, Point>;
struct Group {
  Ids a;
  Ids b;
};

std::map<std::string_view, int> CountReferences(const Board& board) {
  std::map<std::string_view, int> counts;
  for (const Component& component : board.components) ++counts[component.reference];
  return counts;
}

auto Content(const Component& component) {
  return std::tie(component.rotation, component.side, component.value, component.footprint);
}

std::vector<Finding> Compare(const Component& a, const Component& b) {
  std::vector<Finding> findings;
  if (a.position != b.position) findings.push_back(Finding::Moved);
  if (a.rotation != b.rotation) findings.push_back(Finding::Rotated);
  if (a.side != b.side) findings.push_back(Finding::Side);
  if (a.value != b.value) findings.push_back(Finding::Value);
  if (a.footprint != b.footprint) findings.push_back(Finding::Footprint);
  return findings;
}

class Matcher {
 public:
  Matcher(const Board& a, const Board& b) : a_(a.components), b_(b.components) {
    const auto countsA = CountReferences(a);
    const auto countsB = CountReferences(b);
    const auto isEnough = [&](std::string_view reference) {
      const auto inA = countsA.find(reference);
      const auto inB = countsB.find(reference);
      return !reference.empty() && (inA == countsA.end() || inA->second == 1) &&
             (inB == countsB.end() || inB->second == 1);
    };
    const auto keyOf = [&](const Component& component) {
      return GroupKey(component.reference, isEnough(component.reference) ? Point{} : component.position);
    };
    for (std::size_t i = 0; i < a_.size(); ++i) groups_[keyOf(a_[i])].a.push_back(static_cast<std::int32_t>(i));
    for (std::size_t i = 0; i < b_.size(); ++i) groups_[keyOf(b_[i])].b.push_back(static_cast<std::int32_t>(i));
  }

  SectionDiff Match() {
    for (auto& [key, group] : groups_) MatchGroup(group);
    return std::move(diff_);
  }

 private:
  const Component& OfA(std::int32_t id) const { return a_[static_cast<std::size_t>(id)]; }
  const Component& OfB(std::int32_t id) const { return b_[static_cast<std::size_t>(id)]; }

  void Pair(std::int32_t a, std::int32_t b) {
    Matched pair{OfA(a).reference, a, b, Compare(OfA(a), OfB(b))};
    (pair.findings.empty() ? diff_.equal : diff_.changed).push_back(std::move(pair));
  }

  // Walks both sides in the order of their content: what is equal meets, and the rest keeps its order.
  void MatchGroup(Group& group) {
    std::stable_sort(group.a.begin(), group.a.end(),
                     [this](auto x, auto y) { return Content(OfA(x)) < Content(OfA(y)); });
    std::stable_sort(group.b.begin(), group.b.end(),
                     [this](auto x, auto y) { return Content(OfB(x)) < Content(OfB(y)); });
    Ids restA;
    Ids restB;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < group.a.size() && j < group.b.size()) {
      const auto contentA = Content(OfA(group.a[i]));
      const auto contentB = Content(OfB(group.b[j]));
      if (contentA == contentB) {
        Pair(group.a[i++], group.b[j++]);
      } else if (contentA < contentB) {
        restA.push_back(group.a[i++]);
      } else {
        restB.push_back(group.b[j++]);
      }
    }
    restA.insert(restA.end(), group.a.begin() + static_cast<std::ptrdiff_t>(i), group.a.end());
    restB.insert(restB.end(), group.b.begin() + static_cast<std::ptrdiff_t>(j), group.b.end());
    const std::size_t pairs = std::min(restA.size(), restB.size());
    for (std::size_t n = 0; n < pairs; ++n) Pair(restA[n], restB[n]);
    for (std::size_t n = pairs; n < restA.size(); ++n) diff_.onlyA.push_back({OfA(restA[n]).reference, restA[n]});
    for (std::size_t n = pairs; n < restB.size(); ++n) diff_.onlyB.push_back({OfB(restB[n]).reference, restB[n]});
  }

  const std::vector<Component>& a_;
  const std::vector<Component>& b_;
  std::map<GroupKey, Group> groups_;
  SectionDiff diff_;
};

}  // namespace

SectionDiff MatchComponents(const Board& a, const Board& b) {
  return Matcher(a, b).Match();
}

}  // namespace oxviewer
