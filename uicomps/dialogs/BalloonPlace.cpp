#include <uicomps/dialogs/BalloonPlace.h>

#include <algorithm>
#include <cstdint>

namespace oxecad_ui {

namespace {

/// From the tip of a balloon's arrow to the edge that is nearer to it.
constexpr int kArrowInset = 24;
constexpr wire::Position kNoAnchorPlace{100, 100};

/// Wide enough for sums of any two coordinates.
using Coordinate = std::int64_t;

int PulledInside(Coordinate start, int length, int screenLength) {
  start = std::max<Coordinate>(start, 0);
  if (start + length >= screenLength) start = Coordinate{screenLength} - length - 1;
  return static_cast<int>(start);
}

}  // namespace

unsigned char QuadrantOf(const Screen& screen, const wire::Position& position) {
  const int column = position.x > screen.width / 2 ? 2 : 0;
  const int row = position.y < screen.height / 2 ? 1 : 7;
  return static_cast<unsigned char>(column + row);
}

wire::Position BalloonPlace(const Screen& screen, unsigned char quadrant, const wire::Position& anchor,
                            const wire::Size& anchorSize, const wire::Size& balloon) {
  if (anchorSize.width < 1) return kNoAnchorPlace;
  const bool isLeft = quadrant == 1 || quadrant == 7;
  const bool isUpper = quadrant == 1 || quadrant == 3;
  const Coordinate middle = Coordinate{anchor.x} + anchorSize.width / 2;
  const Coordinate x = isLeft ? middle - kArrowInset : middle + kArrowInset - balloon.width;
  const Coordinate y = isUpper ? Coordinate{anchor.y} + anchorSize.height : Coordinate{anchor.y} - balloon.height;
  return {PulledInside(x, balloon.width, screen.width), PulledInside(y, balloon.height, screen.height)};
}

}  // namespace oxecad_ui
