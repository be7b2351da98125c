#include <gtest/gtest.h>
#include <stdlib.h>
#include <tests/viewer/board/Texts.h>

#include <fstream>

namespace oxviewer::testing {

std::string BoardText(const std::string& sections) {
  const std::string layers =
      "(layers (0 \"F.Cu\" signal) (31 \"B.Cu\" signal) (37 \"F.SilkS\" user) (44 \"Edge.Cuts\" user))\n";
  const bool ownLayers = sections.find("(layers (") != std::string::npos;
  return "(kicad_pcb (version 20211014) (generator pcbnew)\n" + (ownLayers ? "" : layers) + sections + "\n)\n";
}

Board Read(const std::string& text, const ReaderLimits& limits) {
  Result<Board> result = ReadBoardText(text, "test.kicad_pcb", limits);
  if (result) return std::move(*result);
  ADD_FAILURE() << result.error().ToLine();
  return {};
}

std::string Refusal(const std::string& text, const ReaderLimits& limits) {
  const Result<Board> result = ReadBoardText(text, "test.kicad_pcb", limits);
  if (result) return "read";
  const ReadError& error = result.error();
  EXPECT_EQ(error.file, "test.kicad_pcb");
  return std::to_string(error.line) + ':' + std::to_string(error.column) + ": " + error.message;
}

std::vector<std::string> NamesOf(const std::vector<Net>& nets) {
  std::vector<std::string> names;
  for (const Net& net : nets) names.push_back(net.name);
  return names;
}

std::string NetNameOf(const Board& board, NetId net) {
  return net == kNoNet ? "no net" : board.nets.at(static_cast<std::size_t>(net)).name;
}

std::string LayerNameOf(const Board& board, LayerId layer) {
  return layer == kNoLayer ? "no layer" : board.layers.at(static_cast<std::size_t>(layer)).name;
}

std::string LayerNamesOf(const Board& board, const LayerSet& layers) {
  std::string names;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (layers[i]) names += (names.empty() ? "" : " ") + board.layers.at(i).name;
  }
  return names;
}

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "oxecad-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Write(const std::string& name, const std::string& content) const {
  std::ofstream(path_ / name, std::ios::binary) << content;
  return PathOf(name);
}

bool LongTests() {
  const char* value = std::getenv("OXECAD_LONG_TESTS");
  return value != nullptr && std::string(value) == "1";
}

}  // namespace oxviewer::testing
