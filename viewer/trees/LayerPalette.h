/// \file
/// The colours that layers have at first.
#ifndef OXECAD_VIEWER_TREES_LAYERPALETTE_H
#define OXECAD_VIEWER_TREES_LAYERPALETTE_H

#include <viewer/board/Board.h>

#include <cstdint>
#include <vector>

namespace oxviewer {

/// A colour as the trees have it: 0x00BBGGRR.
using Color = std::uint32_t;

/// No single colour: none, or several.
constexpr Color kNoColor = 0xFFFFFFFFu;

constexpr Color ColorOf(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | (green << 8) | (blue << 16);
}
constexpr int RedOf(Color color) { return static_cast<int>(color & 0xFF); }
constexpr int GreenOf(Color color) { return static_cast<int>((color >> 8) & 0xFF); }
constexpr int BlueOf(Color color) { return static_cast<int>((color >> 16) & 0xFF); }

/// The colour of each layer of a board, chosen by its canonical name, so that it is the same for all boards. Copper
/// layers of other names are taken for front, inner and back by their place in the stack; any other layer gets one of a
/// few colours by its name.
std::vector<Color> DefaultLayerColors(const Board& board);

/// Whether the layer is shown at first: copper, silkscreen, outline and the user's own drawings are; what matters in
/// the making only (mask, paste, adhesive, courtyard, fabrication) is not.
bool IsShownAtFirst(const Layer& layer);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_LAYERPALETTE_H
