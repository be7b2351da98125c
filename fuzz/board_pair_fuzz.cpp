#include <fuzz/BoardChecks.h>
#include <viewer/diff/BoardDiff.h>
#include <viewer/diff/DiffReport.h>
#include <viewer/trees/CompareTree.h>

#include <uiox/Suite.h>

#include <cstdint>
#include <string_view>

namespace {

oxviewer::NameOrder ByteOrder() {
  return {[](const std::string& name) { return std::wstring(name.begin(), name.end()); },
          [](const std::wstring& a, const std::wstring& b) { return a < b; }};
}

void RequireMirrored(const oxviewer::SectionDiff& ab, const oxviewer::SectionDiff& ba) {
  using oxviewer::fuzz::Require;
  Require(ab.onlyA.size() == ba.onlyB.size() && ab.onlyB.size() == ba.onlyA.size());
  Require(ab.changed.size() == ba.changed.size() && ab.equal.size() == ba.equal.size());
  for (std::size_t i = 0; i < ab.changed.size(); ++i) Require(ab.changed[i].findings == ba.changed[i].findings);
}

/// The comparison in its tree: filled, walked and emptied.
void RequireShown(const oxviewer::Board& a, const oxviewer::Board& b, const oxviewer::BoardDiff& diff) {
  using oxviewer::fuzz::Require;
  uiox::Suite& suite = uiox::Suite::Get();
  suite.Reset();
  const uiox::TreeStore& store =
      suite.ObtainTree("dev", "compare", {"a", "b", "overlap", "showMode", "dimOverlap", "difference"}).Store();
  {
    oxviewer::CompareTree tree("dev", a, b, diff);
    tree.Fill(nullptr);
    std::vector<std::string> leaves;
    tree.GetLeaves(nullptr, leaves);
    Require(store.Size() > leaves.size() || store.Size() <= 1);
  }
  Require(store.Size() == 0);
}

}  // namespace

// Two boards, parted by a byte 0: each equals itself, and the answers both ways round are mirrored.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace oxviewer;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::size_t middle = text.find('\0');
  if (middle == std::string_view::npos) return 0;
  const Result<Board> a = ReadBoardText(text.substr(0, middle), "a", fuzz::FuzzLimits());
  const Result<Board> b = ReadBoardText(text.substr(middle + 1), "b", fuzz::FuzzLimits());
  if (!a || !b) return 0;
  fuzz::Require(CompareBoards(*a, *a, ByteOrder()).Equal());
  const BoardDiff ab = CompareBoards(*a, *b, ByteOrder());
  const BoardDiff ba = CompareBoards(*b, *a, ByteOrder());
  RequireMirrored(ab.layers, ba.layers);
  RequireMirrored(ab.components, ba.components);
  RequireMirrored(ab.nets, ba.nets);
  fuzz::Require(ab.renamed.size() == ba.renamed.size());
  RequireShown(*a, *b, ab);
  fuzz::Require(ReportText(ab, "a", "b").back() == '\n');
  return 0;
}
