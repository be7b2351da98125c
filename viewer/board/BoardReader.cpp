#include <viewer/board/BoardParser.h>
#include <viewer/board/BoardReader.h>
#include <viewer/board/RegularFile.h>
#include <viewer/board/SexprLexer.h>

#include <utility>
#include <variant>

namespace oxviewer {

namespace {

Result<ParsedBoard> Parsed(std::string_view text, const std::string& name, const ReaderLimits& limits) {
  if (text.size() > limits.fileBytes) {
    return ReadError{name, 0, 0, "expected a file of at most " + std::to_string(limits.fileBytes) + " bytes"};
  }
  try {
    ParsedBoard parsed = ParseBoard(text, limits);
    parsed.board.name = name;
    return parsed;
  } catch (const SyntaxError& error) {
    const TextPlace place = PlaceOf(text, error.offset);
    return ReadError{name, place.line, place.column, error.message};
  }
}

std::string ProjectPath(const std::string& boardPath) {
  const std::size_t nameStart = boardPath.rfind('/') + 1;  // npos + 1 is 0
  const std::size_t dot = boardPath.rfind('.');
  const bool hasExtension = dot != std::string::npos && dot > nameStart;
  return boardPath.substr(0, hasExtension ? dot : boardPath.size()) + ".kicad_pro";
}

}  // namespace

Result<Board> ReadBoardText(std::string_view text, const std::string& name, const ReaderLimits& limits) {
  Result<ParsedBoard> parsed = Parsed(text, name, limits);
  if (!parsed) return parsed.error();
  return std::move(parsed->board);
}

Result<Board> ReadBoard(const std::string& path, const ReaderLimits& limits) {
  std::string text;
  const FileStatus boardFile = ReadRegularFile(path, limits.fileBytes, text);
  if (boardFile.kind != FileStatus::Kind::Read) return ReadError{path, 0, 0, boardFile.message};
  Result<ParsedBoard> parsed = Parsed(text, path, limits);
  if (!parsed) return parsed.error();
  if (parsed->hasNetClasses) return std::move(parsed->board);

  const std::string projectPath = ProjectPath(path);
  const FileStatus projectFile = ReadRegularFile(projectPath, limits.projectBytes, text);
  if (projectFile.kind == FileStatus::Kind::Missing) return std::move(parsed->board);
  if (projectFile.kind == FileStatus::Kind::Failed) return ReadError{projectPath, 0, 0, projectFile.message};
  ReadError error;
  if (!ApplyNetClasses(text, projectPath, limits, parsed->board, error)) return error;
  return std::move(parsed->board);
}

}  // namespace oxviewer
