#ifndef OXECAD_FUZZ_BOARDCHECKS_H
#define OXECAD_FUZZ_BOARDCHECKS_H

#include <viewer/board/BoardReader.h>

#include <cstdlib>
#include <string>

namespace oxviewer::fuzz {

inline void Require(bool holds) {
  if (!holds) std::abort();
}

template <class Id, class List>
void RequireInside(Id id, const List& list) {
  Require(id >= -1 && (id == -1 || static_cast<std::size_t>(id) < list.size()));
}

/// Every id of a board must name something that is there.
inline void RequireSound(const Board& board) {
  Require(!board.netClasses.empty());
  for (const Net& net : board.nets) {
    Require(!net.name.empty());
    Require(static_cast<std::size_t>(net.netClass) < board.netClasses.size());
  }
  for (const Pad& pad : board.pads) {
    RequireInside(pad.net, board.nets);
    RequireInside(pad.component, board.components);
    Require((pad.layers >> board.layers.size()).none());
  }
  for (const Track& track : board.tracks) {
    RequireInside(track.net, board.nets);
    RequireInside(track.layer, board.layers);
  }
  for (const Via& via : board.vias) {
    RequireInside(via.net, board.nets);
    RequireInside(via.firstLayer, board.layers);
    RequireInside(via.lastLayer, board.layers);
  }
  for (const Zone& zone : board.zones) {
    RequireInside(zone.net, board.nets);
    for (const ZoneFill& fill : zone.fills) RequireInside(fill.layer, board.layers);
  }
  for (const Drawing& drawing : board.drawings) {
    RequireInside(drawing.net, board.nets);
    RequireInside(drawing.layer, board.layers);
    RequireInside(drawing.component, board.components);
  }
}

/// An error must be one line that says what was expected.
inline void RequireOneLine(const ReadError& error) {
  const std::string line = error.ToLine();
  Require(line.find("expected") != std::string::npos);
  for (const char c : line) Require(static_cast<unsigned char>(c) >= 0x20);
}

/// Small enough for thousands of texts a second, and small enough for a fuzzer to find what happens past them.
inline ReaderLimits FuzzLimits() {
  ReaderLimits limits;
  limits.nesting = 12;
  limits.stringBytes = 100;
  limits.items = 50;
  limits.patternSteps = 10'000;
  return limits;
}

}  // namespace oxviewer::fuzz

#endif  // OXECAD_FUZZ_BOARDCHECKS_H
