/// \file
/// Outlines of a board's items, in millimetres.
#ifndef OXECAD_VIEWER_WINDOW_SHAPES_H
#define OXECAD_VIEWER_WINDOW_SHAPES_H

#include <viewer/board/Board.h>

#include <QPainterPath>
#include <QPointF>

#include <vector>

namespace oxviewer {

/// The copper of a pad.
QPainterPath PadPath(const Pad& pad);
/// The hole of a pad; empty without one.
QPainterPath HolePath(const Pad& pad);
QPainterPath CirclePath(Point center, Nm diameter);
/// The inside of a closed line, cut into pieces of a few hundred corners each, which overlap a
/// little.
std::vector<QPainterPath> PiecesOf(const Polygon& polygon);

/// Points along an arc through three points, both ends included. Three points on one line give that line.
std::vector<QPointF> ArcPoints(Point start, Point mid, Point end);
/// Points along the line of a drawing; the first again at the end of a closed one.
std::vector<QPointF> DrawingPoints(const Drawing& drawing);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_SHAPES_H
