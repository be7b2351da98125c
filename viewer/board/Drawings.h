#ifndef OXECAD_VIEWER_BOARD_DRAWINGS_H
#define OXECAD_VIEWER_BOARD_DRAWINGS_H

#include <viewer/board/ItemContext.h>

#include <optional>
#include <string_view>

namespace oxviewer {

/// The kind of drawing that a keyword such as "gr_line" or "fp_poly" begins; nothing for other keywords.
std::optional<DrawingKind> DrawingKindOf(std::string_view keyword);

/// Reads the drawing that the context's cursor has just stepped into, in the coordinates of the text; the caller leaves
/// the list. Arcs of up to version 5, a centre with an angle, come back as three points.
Drawing ReadDrawing(ItemContext& context, DrawingKind kind);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_DRAWINGS_H
