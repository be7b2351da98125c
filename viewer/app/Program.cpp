#include <viewer/app/OutputFile.h>
#include <viewer/app/Program.h>
#include <viewer/board/BoardReader.h>
#include <viewer/diff/DiffReport.h>
#include <viewer/trees/BoardTrees.h>
#include <viewer/trees/NaturalNames.h>

#include <cstdio>
#include <exception>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace oxviewer {
namespace {

bool WriteOut(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  return std::fflush(stdout) == 0 && written;
}

int Print(const std::string& text) {
  if (WriteOut(text)) return kSuccess;
  PrintError("standard output cannot be written");
  return kFailure;
}

int Compared(const LoadedBoards& boards) { return boards.diff && !boards.diff->Equal() ? kDifferent : kSuccess; }

int WriteReportFile(const Options& options, const LoadedBoards& boards) {
  const std::string text = ReportText(*boards.diff, boards.a->name, boards.b->name);
  if (const auto error = WriteFile(*options.report, text)) {
    PrintError(error->ToLine());
    return kFailure;
  }
  return Compared(boards);
}

int DumpTrees(const LoadedBoards& boards) {
  const auto trees = boards.b ? std::make_unique<BoardTrees>(*boards.a, *boards.b, *boards.diff, nullptr)
                              : std::make_unique<BoardTrees>(*boards.a, nullptr);
  const int status = Print(trees->Dump());
  return status == kSuccess ? Compared(boards) : status;
}

int Run(const Options& options, const WindowRunner& window) {
  if (options.help) return Print(HelpText());
  if (options.version) return Print(VersionText());
  LoadedBoards boards;
  if (!options.board.empty()) {
    auto loaded = LoadBoards(options.board, options.compare);
    if (!loaded) {
      PrintError(loaded.error().ToLine());
      return kFailure;
    }
    boards = std::move(*loaded);
  }
  int status = kSuccess;
  if (options.report) status = WriteReportFile(options, boards);
  if (status != kFailure && options.dump) status = DumpTrees(boards);
  if (status == kFailure) return status;
  if (options.screenshot || options.IsInteractive()) {
    const int windowStatus = window(options, boards);
    if (windowStatus != kSuccess) return windowStatus;
  }
  return status;
}

}  // namespace

void PrintError(const std::string& message) {
  const std::string line = ReadError{"oxviewer", 0, 0, message}.ToLine() + '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

Result<LoadedBoards> LoadBoards(const std::string& a, const std::optional<std::string>& b) {
  LoadedBoards boards;
  auto first = ReadBoard(a);
  if (!first) return first.error();
  boards.a = std::make_shared<const Board>(std::move(*first));
  if (!b) return boards;
  auto second = ReadBoard(*b);
  if (!second) return second.error();
  boards.b = std::make_shared<const Board>(std::move(*second));
  boards.diff = std::make_shared<const BoardDiff>(CompareBoards(*boards.a, *boards.b, NaturalNameOrder()));
  return boards;
}

int RunProgram(int argc, char** argv, const WindowRunner& window) {
  try {
    std::vector<std::string_view> arguments;
    for (int i = 1; i < argc; ++i) arguments.emplace_back(argv[i]);
    auto parsed = ParseCommandLine(arguments);
    if (const auto* error = std::get_if<std::string>(&parsed)) {
      PrintError(*error);
      return kFailure;
    }
    return Run(std::get<Options>(parsed), window);
  } catch (const std::bad_alloc&) {
    PrintError("not enough memory");
  } catch (const std::exception& error) {
    PrintError(error.what());
  }
  return kFailure;
}

}  // namespace oxviewer
