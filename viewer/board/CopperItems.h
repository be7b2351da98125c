#ifndef OXECAD_VIEWER_BOARD_COPPERITEMS_H
#define OXECAD_VIEWER_BOARD_COPPERITEMS_H

#include <viewer/board/ItemContext.h>

namespace oxviewer {

/// Each reads the list that the context's cursor has just stepped into and adds what it holds to the board; the caller
/// leaves the list. What a list does not say has the value that the structs give it.
void ReadTrack(ItemContext& context, bool arc);
void ReadVia(ItemContext& context);
void ReadZone(ItemContext& context, ComponentId component);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_COPPERITEMS_H
