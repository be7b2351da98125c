// A board from its file to the viewer's filled trees.
#include <viewer/app/Program.h>
#include <viewer/trees/BoardTrees.h>

#include <optional>
#include <stdexcept>

#include "bench/reporting/BoardFile.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

oxviewer::LoadedBoards Read(const std::string& path) {
  auto boards = oxviewer::LoadBoards(path, std::nullopt);
  if (!boards) throw std::runtime_error(boards.error().ToLine());
  return std::move(*boards);
}

Contender Reading(const std::string& path) {
  return {"reading alone", [path](Meter& meter) {
            oxviewer::LoadedBoards boards;
            meter.Run([&] { boards = Read(path); });
          }};
}

Contender FillingTrees(const std::string& path) {
  return {"file to trees", [path](Meter& meter) {
            oxviewer::LoadedBoards boards;
            std::optional<oxviewer::BoardTrees> trees;
            meter.Run([&] {
              boards = Read(path);
              trees.emplace(*boards.a, nullptr);
            });
          }};
}

}  // namespace

Figures MeasureViewer(const Settings& settings) {
  const std::size_t nets = settings.Size(100'000);
  const std::string path = settings.folder + "/board.kicad_pcb";
  WriteBoard(path, nets);
  const auto outcomes = Race({FillingTrees(path), Reading(path)}, 1);
  return {
      AgainstPeer(FigureOf(12, "a board of " + Grouped(nets) + " nets from the file to filled trees", outcomes), 2)};
}

}  // namespace oxecad_bench
