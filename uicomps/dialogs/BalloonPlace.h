/// \file
/// Where a balloon stands on the screen.
#ifndef OXECAD_UI_DIALOGS_BALLOONPLACE_H
#define OXECAD_UI_DIALOGS_BALLOONPLACE_H

#include <uicomps/toolkit/DeviceCalls.h>

namespace oxecad_ui {

struct Screen {
  int width = 0;
  int height = 0;
};

/// The quadrant of the screen that a position lies in, as the skin counts: 1 left upper, 3 right upper, 7 left lower, 9
/// right lower. Halves of the screen are whole pixels.
unsigned char QuadrantOf(const Screen& screen, const wire::Position& position);

/// The position of a balloon that points at an anchor: below it in the upper half of the screen, above it in the lower
/// half, with its arrow at the anchor's middle, and pulled inside the screen. An anchor without width has no place: its
/// balloon stands at (100, 100).
wire::Position BalloonPlace(const Screen& screen, unsigned char quadrant, const wire::Position& anchor,
                            const wire::Size& anchorSize, const wire::Size& balloon);

}  // namespace oxecad_ui

#endif
