#ifndef OXECAD_VIEWER_BOARD_GEOMETRY_H
#define OXECAD_VIEWER_BOARD_GEOMETRY_H

#include <viewer/board/Board.h>

#include <optional>

namespace oxviewer {

/// `point` turned round the origin, counter-clockwise on the screen; exact for quarter turns, else rounded to 1 nm.
/// Nothing when a coordinate leaves the range of Nm.
std::optional<Point> Turned(Point point, MicroDegrees angle);

/// The sum; nothing when a coordinate leaves the range of Nm.
std::optional<Point> Shifted(Point point, Point by);

/// A circle's arc: from `start` over `sweep`, in radians, positive clockwise on the screen (from x to y).
struct ArcShape {
  double centerX;
  double centerY;
  double radius;
  double start;
  double sweep;
};

/// The arc through three points; nothing when they lie on one line or two are the same. Start and end alike give the
/// full circle whose diameter runs to the middle point.
std::optional<ArcShape> ArcThrough(Point start, Point mid, Point end);

/// The lines that follow `polygon` with arcs in pieces that leave the true curve by `tolerance` at most (at least 1 nm,
/// and never more than 1024 pieces to an arc).
std::vector<Point> Flattened(const Polygon& polygon, Nm tolerance);

/// The smallest upright box that holds the board's Edge.Cuts drawings or, without any, all items.
struct Box {
  Point low;
  Point high;
};
std::optional<Box> Outline(const Board& board);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_GEOMETRY_H
