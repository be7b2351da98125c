#ifndef OXECAD_TESTS_VIEWER_BOARD_TEXTS_H
#define OXECAD_TESTS_VIEWER_BOARD_TEXTS_H

#include <viewer/board/BoardReader.h>

#include <filesystem>
#include <string>
#include <vector>

namespace oxviewer::testing {

/// A board's text around the given sections: header, and a table of four layers unless the sections bring their own.
std::string BoardText(const std::string& sections);

/// Reads it; a refusal fails the test and gives an empty board.
Board Read(const std::string& text, const ReaderLimits& limits = {});

/// "line:column: message" of the refusal of a text, or "read" when it was not refused.
std::string Refusal(const std::string& text, const ReaderLimits& limits = {});

std::vector<std::string> NamesOf(const std::vector<Net>& nets);
std::string NetNameOf(const Board& board, NetId net);
std::string LayerNameOf(const Board& board, LayerId layer);
/// The names of a set's layers in board order, with blanks between.
std::string LayerNamesOf(const Board& board, const LayerSet& layers);

/// Millimetres as the model has them.
constexpr Nm Mm(double mm) { return static_cast<Nm>(mm * 1e6 + (mm < 0 ? -0.5 : 0.5)); }

/// A folder of its own that goes with its content when the test ends.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string PathOf(const std::string& name) const { return (path_ / name).string(); }
  std::string Write(const std::string& name, const std::string& content) const;

 private:
  std::filesystem::path path_;
};

/// Whether the long tests were asked for.
bool LongTests();

}  // namespace oxviewer::testing

#endif  // OXECAD_TESTS_VIEWER_BOARD_TEXTS_H
