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
    : layers_(kLayersPanel, board), nets_(kNetsPanel, board), components_(kComponentsPanel, board) {
  CreatePanels();
  layers_.Fill(mainframe);
  nets_.Fill();
  components_.Fill();
}

std::string BoardTrees::Dump() const {
  return DumpOf(kLayersPanel, LayerTree::kName) + DumpOf(kNetsPanel, NetTree::kName) +
         DumpOf(kComponentsPanel, ComponentTree::kName);
}

}  // namespace oxviewer
