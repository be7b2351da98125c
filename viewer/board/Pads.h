#ifndef OXECAD_VIEWER_BOARD_PADS_H
#define OXECAD_VIEWER_BOARD_PADS_H

#include <viewer/board/ItemContext.h>

namespace oxviewer {

/// Reads the pad that the context's cursor has just stepped into. Its position is the text's own, from the component's
/// origin; `offset` and the primitives are from the pad's position and not turned yet. The caller leaves the list.
Pad ReadPad(ItemContext& context);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_PADS_H
