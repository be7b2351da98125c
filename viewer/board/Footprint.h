#ifndef OXECAD_VIEWER_BOARD_FOOTPRINT_H
#define OXECAD_VIEWER_BOARD_FOOTPRINT_H

#include <viewer/board/ItemContext.h>

namespace oxviewer {

/// Reads the `(footprint ...)` or `(module ...)` that the context's cursor has just stepped into: the component, its
/// pads, drawings and zones. The caller leaves the list.
void ReadFootprint(ItemContext& context);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_FOOTPRINT_H
