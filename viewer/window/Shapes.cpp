#include <viewer/board/Geometry.h>
#include <viewer/window/BoardGeometry.h>
#include <viewer/window/Shapes.h>

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace oxviewer {
namespace {

constexpr Nm kTolerance = 2000;
constexpr double kToleranceMm = kTolerance * kMillimetresPerNm;
constexpr int kMostPieces = 256;
constexpr int kCurvePieces = 24;
constexpr qsizetype kCornersOfPiece = 256;
constexpr int kMostHalvings = 12;
constexpr double kOverlapShare = 1.0 / 128;  // of an area that is halved

double Mm(Nm length) { return length * kMillimetresPerNm; }

QPainterPath RoundedBox(double width, double height, double radius) {
  QPainterPath path;
  path.addRoundedRect(QRectF(-width / 2, -height / 2, width, height), radius, radius);
  return path;
}

QPainterPath Trapezoid(const Pad& pad) {
  const double x = Mm(pad.size.width) / 2;
  const double y = Mm(pad.size.height) / 2;
  const double dx = Mm(pad.delta.width) / 2;
  const double dy = Mm(pad.delta.height) / 2;
  QPainterPath path(QPointF(-x - dy, y + dx));
  path.lineTo(-x + dy, -y - dx);
  path.lineTo(x - dy, -y + dx);
  path.lineTo(x + dy, y - dx);
  path.closeSubpath();
  return path;
}

// Around the origin, before it is turned.
QPainterPath FlatPad(const Pad& pad) {
  const double width = Mm(pad.size.width);
  const double height = Mm(pad.size.height);
  const double shorter = std::min(width, height);
  switch (pad.shape) {
    case PadShape::Circle:
      return RoundedBox(width, width, width / 2);
    case PadShape::Oval:
      return RoundedBox(width, height, shorter / 2);
    case PadShape::RoundRect:
      return RoundedBox(width, height, shorter * pad.roundRatioMillionths * 1e-6);
    case PadShape::Trapezoid:
      return Trapezoid(pad);
    case PadShape::Rect:
    case PadShape::Custom:
      break;
  }
  return RoundedBox(width, height, 0);
}

// To the place on the board; a board's angles are counter-clockwise, those of a QTransform are not.
QPainterPath Placed(const QPainterPath& path, QPointF place, MicroDegrees rotation) {
  QTransform transform = QTransform::fromTranslate(place.x(), place.y());
  transform.rotate(-rotation * 1e-6);
  return transform.map(path);
}

int PiecesOf(double radius, double sweep) {
  if (radius <= kToleranceMm) return 4;
  const double step = 2 * std::acos(1 - kToleranceMm / radius);
  return std::clamp(static_cast<int>(std::ceil(std::abs(sweep) / step)), 4, kMostPieces);
}

std::vector<QPointF> CirclePoints(QPointF center, double radius, double start, double sweep) {
  const int pieces = PiecesOf(radius, sweep);
  std::vector<QPointF> points;
  points.reserve(static_cast<std::size_t>(pieces) + 1);
  for (int i = 0; i <= pieces; ++i) {
    const double angle = start + sweep * i / pieces;
    points.emplace_back(center.x() + radius * std::cos(angle), center.y() + radius * std::sin(angle));
  }
  return points;
}

std::vector<QPointF> CurvePoints(const Drawing& drawing) {
  std::vector<QPointF> points;
  const auto& p = drawing.points;
  for (int i = 0; i <= kCurvePieces; ++i) {
    const double t = static_cast<double>(i) / kCurvePieces;
    const double s = 1 - t;
    points.push_back(s * s * s * ToMillimetres(p[0]) + 3 * s * s * t * ToMillimetres(p[1]) +
                     3 * s * t * t * ToMillimetres(p[2]) + t * t * t * ToMillimetres(p[3]));
  }
  return points;
}

std::vector<QPointF> Closed(const std::vector<Point>& corners) {
  std::vector<QPointF> points;
  points.reserve(corners.size() + 1);
  for (const Point corner : corners) points.push_back(ToMillimetres(corner));
  if (!points.empty()) points.push_back(points.front());
  return points;
}

// The part of a closed line on one side of an upright or level line. Where it leaves that side it follows the cut and
// comes back along it, which covers nothing.
QPolygonF Clipped(const QPolygonF& corners, bool upright, double cut, bool keepsLower) {
  const auto across = [&](QPointF point) { return upright ? point.x() : point.y(); };
  const auto isKept = [&](QPointF point) { return keepsLower ? across(point) <= cut : across(point) >= cut; };
  QPolygonF clipped;
  for (qsizetype i = 0; i < corners.size(); ++i) {
    const QPointF from = corners[i];
    const QPointF to = corners[(i + 1) % corners.size()];
    if (isKept(from)) clipped << from;
    if (isKept(from) != isKept(to) && across(from) != cut && across(to) != cut) {
      QPointF at = from + (to - from) * ((cut - across(from)) / (across(to) - across(from)));
      (upright ? at.rx() : at.ry()) = cut;
      clipped << at;
    }
  }
  return clipped;
}

// Halves the area as long as it has many corners. The halves overlap a little: where they only met, pixels on the seam
// would be covered in part by each.
void AppendPieces(const QPolygonF& corners, int depth, std::vector<QPainterPath>& pieces) {
  if (corners.size() < 3) return;
  if (corners.size() <= kCornersOfPiece || depth == kMostHalvings) {
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    pieces.push_back(std::move(path));
    return;
  }
  const QRectF box = corners.boundingRect();
  const bool upright = box.width() >= box.height();
  const double middle = upright ? box.center().x() : box.center().y();
  const double overlap = (upright ? box.width() : box.height()) * kOverlapShare;
  for (const bool lower : {true, false}) {
    const double cut = middle + (lower ? overlap : -overlap);
    AppendPieces(Clipped(corners, upright, cut, lower), depth + 1, pieces);
  }
}

// What a drawing covers: its inside when it is filled, and its line.
QPainterPath DrawnPath(const Drawing& drawing) {
  const std::vector<QPointF> points = DrawingPoints(drawing);
  QPainterPath line;
  line.addPolygon(QPolygonF(QList<QPointF>(points.begin(), points.end())));
  QPainterPath covered;
  if (drawing.filled) covered.addPath(line);
  if (drawing.width > 0) {
    QPainterPathStroker stroker;
    stroker.setWidth(Mm(drawing.width));
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    covered.addPath(stroker.createStroke(line));
  }
  return covered;
}

}  // namespace

QPainterPath PadPath(const Pad& pad) {
  const QPointF place = ToMillimetres(pad.position) + ToMillimetres(pad.offset);
  QPainterPath path = Placed(FlatPad(pad), place, pad.rotation);
  for (const Drawing& primitive : pad.primitives) path.addPath(DrawnPath(primitive));
  path.setFillRule(Qt::WindingFill);
  return path;
}

QPainterPath HolePath(const Pad& pad) {
  if (pad.drill.width <= 0 || pad.drill.height <= 0) return {};
  const double radius = Mm(std::min(pad.drill.width, pad.drill.height)) / 2;
  return Placed(RoundedBox(Mm(pad.drill.width), Mm(pad.drill.height), radius), ToMillimetres(pad.position),
                pad.rotation);
}

QPainterPath CirclePath(Point center, Nm diameter) {
  QPainterPath path;
  path.addEllipse(ToMillimetres(center), Mm(diameter) / 2, Mm(diameter) / 2);
  return path;
}

std::vector<QPainterPath> PiecesOf(const Polygon& polygon) {
  QPolygonF corners;
  for (const Point point : Flattened(polygon, kTolerance)) corners << ToMillimetres(point);
  std::vector<QPainterPath> pieces;
  AppendPieces(corners, 0, pieces);
  return pieces;
}

std::vector<QPointF> ArcPoints(Point start, Point mid, Point end) {
  const auto arc = ArcThrough(start, mid, end);
  if (!arc) return {ToMillimetres(start), ToMillimetres(mid), ToMillimetres(end)};
  const QPointF center(arc->centerX * kMillimetresPerNm, arc->centerY * kMillimetresPerNm);
  return CirclePoints(center, arc->radius * kMillimetresPerNm, arc->start, arc->sweep);
}

std::vector<QPointF> DrawingPoints(const Drawing& drawing) {
  const auto& points = drawing.points;
  switch (drawing.kind) {
    case DrawingKind::Line:
      return {ToMillimetres(points[0]), ToMillimetres(points[1])};
    case DrawingKind::Arc:
      return ArcPoints(points[0], points[1], points[2]);
    case DrawingKind::Circle: {
      const QPointF center = ToMillimetres(points[0]);
      const double radius = QLineF(center, ToMillimetres(points[1])).length();
      return CirclePoints(center, radius, 0, 2 * std::numbers::pi);
    }
    case DrawingKind::Rect:
      return Closed({points.begin(), points.end()});
    case DrawingKind::Curve:
      return CurvePoints(drawing);
    case DrawingKind::Polygon:
      break;
  }
  return Closed(Flattened(drawing.polygon, kTolerance));
}

}  // namespace oxviewer
