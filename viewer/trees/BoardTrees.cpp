#include <viewer/trees/BoardTrees.h>
#include <viewer/trees/Dump.h>
#include <viewer/trees/Panels.h>

#include <uiox/Suite.h>

namespace oxviewer {
namespace {

std::string DumpOf(const char* device, const char* tree) {
  const uiox::Device* found = uiox::Suite::Get().FindDevice(device);
  const uiox::TreeWidget* widget = found ? found->FindTree(tree) : nullptr;
  return widget ? DumpTree(*widget) : std::string();
}

}  // namespace

BoardTrees::BoardTrees(const Board& board, oxcore::Mainframe* mainframe)
    : layers_(kLayersPanel, board),
      nets_(kNetsPanel, board),
      components_(kComponentsPanel, board),
      parts_(kObjectsPanel, board) {
  CreatePanels();
  layers_.Fill(mainframe);
  nets_.Fill();
  components_.Fill();
  parts_.Fill();
}

BoardTrees::BoardTrees(const Board& board, const Board& b, const BoardDiff& diff, oxcore::Mainframe* mainframe)
    : BoardTrees(board, mainframe) {
  compare_ = std::make_unique<CompareTree>(kComparePanel, board, b, diff);
  compare_->Fill(mainframe);
}

std::string BoardTrees::Dump() const {
  return DumpOf(kLayersPanel, LayerTree::kName) + DumpOf(kNetsPanel, NetTree::kName) +
         DumpOf(kComponentsPanel, ComponentTree::kName) + DumpOf(kObjectsPanel, PartTree::kName) +
         (compare_ ? DumpOf(kComparePanel, CompareTree::kName) : std::string());
}

}  // namespace oxviewer
