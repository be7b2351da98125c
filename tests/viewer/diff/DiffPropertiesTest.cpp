#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <tests/viewer/diff/DiffTexts.h>
#include <tests/viewer/diff/RandomDesign.h>

#include <algorithm>
#include <set>

namespace oxviewer::testing {
namespace {

Board ReadOrStop(const std::string& text) {
  Result<Board> result = ReadBoardText(text, "random");
  if (!result) RC_FAIL(result.error().ToLine() + "\n" + text);
  return std::move(*result);
}

std::vector<std::string> Names(const std::vector<Unmatched>& list) {
  std::vector<std::string> names;
  for (const Unmatched& entry : list) names.push_back(entry.name);
  return names;
}

void AssertMirrored(const SectionDiff& ab, const SectionDiff& ba) {
  RC_ASSERT(Names(ab.onlyA) == Names(ba.onlyB));
  RC_ASSERT(Names(ab.onlyB) == Names(ba.onlyA));
  RC_ASSERT(ab.changed.size() == ba.changed.size());
  RC_ASSERT(ab.equal.size() == ba.equal.size());
  for (std::size_t i = 0; i < ab.changed.size(); ++i) {
    RC_ASSERT(ab.changed[i].name == ba.changed[i].name);
    RC_ASSERT(ab.changed[i].findings == ba.changed[i].findings);
  }
}

std::set<std::pair<std::string, std::string>> Pairs(const std::vector<RenamedNet>& renamed, bool turned) {
  std::set<std::pair<std::string, std::string>> pairs;
  for (const RenamedNet& pair : renamed) {
    pairs.insert(turned ? std::pair(pair.b.name, pair.a.name) : std::pair(pair.a.name, pair.b.name));
  }
  return pairs;
}

// Everything of a board stands in exactly one list, once.
void AssertComplete(const SectionDiff& diff, std::size_t countA, std::size_t countB) {
  std::multiset<std::int32_t> a;
  std::multiset<std::int32_t> b;
  for (const Unmatched& entry : diff.onlyA) a.insert(entry.id);
  for (const Unmatched& entry : diff.onlyB) b.insert(entry.id);
  for (const auto* list : {&diff.changed, &diff.equal}) {
    for (const Matched& pair : *list) {
      a.insert(pair.a);
      b.insert(pair.b);
      RC_ASSERT(pair.findings.empty() == (list == &diff.equal));
      RC_ASSERT(std::is_sorted(pair.findings.begin(), pair.findings.end()));
    }
  }
  const auto isEachOnce = [](const std::multiset<std::int32_t>& ids, std::size_t count) {
    std::int32_t next = 0;
    for (const std::int32_t id : ids) {
      if (id != next++) return false;
    }
    return ids.size() == count;
  };
  RC_ASSERT(isEachOnce(a, countA));
  RC_ASSERT(isEachOnce(b, countB));
}

RC_GTEST_PROP(RandomBoards, WrittenAnotherWayAreEqual, (std::uint64_t seed)) {
  Dice dice(seed);
  const RandomDesign design = RandomDesign::Make(dice);
  const std::string first = design.Write(dice);
  const std::string second = design.Write(dice);
  const BoardDiff diff = CompareBoards(ReadOrStop(first), ReadOrStop(second), EcadOrder());
  if (!diff.Equal()) RC_FAIL(Drawn(diff) + "\n" + first + second);
  RC_ASSERT(diff.components.equal.size() == design.parts.size());
  RC_ASSERT(diff.renamed.empty());
}

RC_GTEST_PROP(RandomBoards, ComparedTheOtherWayGiveTheMirroredAnswer, (std::uint64_t seed)) {
  Dice dice(seed);
  RandomDesign design = RandomDesign::Make(dice);
  const Board a = ReadOrStop(design.Write(dice));
  design.Change(dice);
  const Board b = ReadOrStop(design.Write(dice));
  const BoardDiff ab = CompareBoards(a, b, EcadOrder());
  const BoardDiff ba = CompareBoards(b, a, EcadOrder());
  AssertMirrored(ab.layers, ba.layers);
  AssertMirrored(ab.components, ba.components);
  AssertMirrored(ab.nets, ba.nets);
  RC_ASSERT(Pairs(ab.renamed, false) == Pairs(ba.renamed, true));
  AssertComplete(ab.layers, a.DeclaredLayerCount(), b.DeclaredLayerCount());
  AssertComplete(ab.components, a.components.size(), b.components.size());
  AssertComplete(ab.nets, a.nets.size(), b.nets.size());
}

RC_GTEST_PROP(RandomBoards, ChangedAndWrittenAnotherWayDifferAlike, (std::uint64_t seed)) {
  Dice dice(seed);
  const RandomDesign before = RandomDesign::Make(dice);
  RandomDesign after = before;
  after.Change(dice);
  const std::string once =
      Drawn(CompareBoards(ReadOrStop(before.Write(dice)), ReadOrStop(after.Write(dice)), EcadOrder()));
  const std::string again =
      Drawn(CompareBoards(ReadOrStop(before.Write(dice)), ReadOrStop(after.Write(dice)), EcadOrder()));
  RC_ASSERT(once == again);
}

}  // namespace
}  // namespace oxviewer::testing
