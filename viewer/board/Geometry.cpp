#include <viewer/board/Geometry.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>

namespace oxviewer {

namespace {

constexpr MicroDegrees kQuarterTurn = kFullTurn / 4;
constexpr double kPi = std::numbers::pi;

std::optional<Point> Checked(std::int64_t x, std::int64_t y) {
  constexpr std::int64_t kMost = std::numeric_limits<Nm>::max();
  if (x < -kMost || x > kMost || y < -kMost || y > kMost) return std::nullopt;
  return Point{static_cast<Nm>(x), static_cast<Nm>(y)};
}

double AngleOf(double x, double y, double centerX, double centerY) { return std::atan2(y - centerY, x - centerX); }

// The turn from `from` to `to` in the positive sense, 0 to 2 pi.
double PositiveTurn(double from, double to) {
  const double turn = std::fmod(to - from, 2 * kPi);
  return turn < 0 ? turn + 2 * kPi : turn;
}

ArcShape FullCircle(Point start, Point mid) {
  ArcShape arc{};
  arc.centerX = (static_cast<double>(start.x) + mid.x) / 2;
  arc.centerY = (static_cast<double>(start.y) + mid.y) / 2;
  arc.radius = std::hypot(start.x - arc.centerX, start.y - arc.centerY);
  arc.start = AngleOf(start.x, start.y, arc.centerX, arc.centerY);
  arc.sweep = 2 * kPi;
  return arc;
}

int PieceCount(const ArcShape& arc, double tolerance) {
  constexpr double kMostPieces = 1024;
  if (tolerance >= arc.radius) return 2;
  const double step = 2 * std::acos(1 - tolerance / arc.radius);
  return static_cast<int>(std::clamp(std::ceil(std::abs(arc.sweep) / step), 2.0, kMostPieces));
}

void AppendArc(Point start, Point mid, Point end, double tolerance, std::vector<Point>& points) {
  const std::optional<ArcShape> arc = ArcThrough(start, mid, end);
  if (!arc) {
    points.push_back(mid);
    return;
  }
  const int pieces = PieceCount(*arc, tolerance);
  for (int piece = 1; piece < pieces; ++piece) {
    const double angle = arc->start + arc->sweep * piece / pieces;
    const auto point = Checked(std::llround(arc->centerX + arc->radius * std::cos(angle)),
                               std::llround(arc->centerY + arc->radius * std::sin(angle)));
    if (point) points.push_back(*point);
  }
}

class BoxBuilder {
 public:
  void Add(Point point) {
    if (!box_) box_ = Box{point, point};
    box_->low = {std::min(box_->low.x, point.x), std::min(box_->low.y, point.y)};
    box_->high = {std::max(box_->high.x, point.x), std::max(box_->high.y, point.y)};
  }
  void Add(const std::vector<Point>& points) {
    for (const Point point : points) Add(point);
  }
  void AddAround(Point center, double radius) {
    for (const double sign : {-1.0, 1.0}) {
      const auto corner = Checked(std::llround(center.x + sign * radius), std::llround(center.y + sign * radius));
      if (corner) Add(*corner);
    }
  }
  void AddArc(Point start, Point mid, Point end);
  void Add(const Drawing& drawing);
  std::optional<Box> Get() const { return box_; }

 private:
  std::optional<Box> box_;
};

// The ends, and the points furthest right, down, left and up where the arc passes them.
void BoxBuilder::AddArc(Point start, Point mid, Point end) {
  Add(start);
  Add(mid);
  Add(end);
  const std::optional<ArcShape> arc = ArcThrough(start, mid, end);
  if (!arc) return;
  const double first = arc->sweep < 0 ? arc->start + arc->sweep : arc->start;
  for (int quarter = 0; quarter < 4; ++quarter) {
    const double angle = quarter * kPi / 2;
    if (PositiveTurn(first, angle) > std::abs(arc->sweep)) continue;
    const auto point = Checked(std::llround(arc->centerX + arc->radius * std::cos(angle)),
                               std::llround(arc->centerY + arc->radius * std::sin(angle)));
    if (point) Add(*point);
  }
}

void BoxBuilder::Add(const Drawing& drawing) {
  const auto& p = drawing.points;
  switch (drawing.kind) {
    case DrawingKind::Line:
      Add(p[0]);
      Add(p[1]);
      return;
    case DrawingKind::Arc:
      AddArc(p[0], p[1], p[2]);
      return;
    case DrawingKind::Circle:
      AddAround(p[0], std::hypot(static_cast<double>(p[1].x) - p[0].x, static_cast<double>(p[1].y) - p[0].y));
      return;
    case DrawingKind::Rect:
    case DrawingKind::Curve:
      for (const Point point : p) Add(point);
      return;
    case DrawingKind::Polygon:
      Add(drawing.polygon.points);
      return;
  }
}

}  // namespace

std::optional<Point> Turned(Point point, MicroDegrees angle) {
  const auto x = static_cast<std::int64_t>(point.x);
  const auto y = static_cast<std::int64_t>(point.y);
  switch (angle) {
    case 0:
      return Checked(x, y);
    case kQuarterTurn:
      return Checked(y, -x);
    case 2 * kQuarterTurn:
      return Checked(-x, -y);
    case 3 * kQuarterTurn:
      return Checked(-y, x);
    default:
      break;
  }
  const double radians = angle * (kPi / (kFullTurn / 2));
  const double sine = std::sin(radians);
  const double cosine = std::cos(radians);
  return Checked(std::llround(point.y * sine + point.x * cosine), std::llround(point.y * cosine - point.x * sine));
}

std::optional<Point> Shifted(Point point, Point by) {
  return Checked(static_cast<std::int64_t>(point.x) + by.x, static_cast<std::int64_t>(point.y) + by.y);
}

std::optional<ArcShape> ArcThrough(Point start, Point mid, Point end) {
  if (start == mid || mid == end) return std::nullopt;
  if (start == end) return FullCircle(start, mid);
  // The circle through the start, taken as the origin, and two points a and b.
  const double ax = static_cast<double>(mid.x) - start.x;
  const double ay = static_cast<double>(mid.y) - start.y;
  const double bx = static_cast<double>(end.x) - start.x;
  const double by = static_cast<double>(end.y) - start.y;
  const double cross = ax * by - ay * bx;
  if (cross == 0) return std::nullopt;
  const double a2 = ax * ax + ay * ay;
  const double b2 = bx * bx + by * by;
  const double dx = (by * a2 - ay * b2) / (2 * cross);
  const double dy = (ax * b2 - bx * a2) / (2 * cross);
  ArcShape arc{};
  arc.centerX = start.x + dx;
  arc.centerY = start.y + dy;
  arc.radius = std::hypot(dx, dy);
  arc.start = AngleOf(start.x, start.y, arc.centerX, arc.centerY);
  const double middle = PositiveTurn(arc.start, AngleOf(mid.x, mid.y, arc.centerX, arc.centerY));
  arc.sweep = PositiveTurn(arc.start, AngleOf(end.x, end.y, arc.centerX, arc.centerY));
  if (middle > arc.sweep) arc.sweep -= 2 * kPi;
  return arc;
}

std::vector<Point> Flattened(const Polygon& polygon, Nm tolerance) {
  if (polygon.arcs.empty()) return polygon.points;
  const std::size_t count = polygon.points.size();
  std::vector<Point> points;
  points.reserve(count);
  std::size_t arc = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (arc == polygon.arcs.size() || polygon.arcs[arc] != i) {
      points.push_back(polygon.points[i]);
      continue;
    }
    ++arc;
    AppendArc(polygon.points[(i + count - 1) % count], polygon.points[i], polygon.points[(i + 1) % count],
              std::max<Nm>(tolerance, 1), points);
  }
  return points;
}

std::optional<Box> Outline(const Board& board) {
  BoxBuilder edge;
  for (const Drawing& drawing : board.drawings) {
    if (drawing.layer == kNoLayer || board.layers[static_cast<std::size_t>(drawing.layer)].name != "Edge.Cuts")
      continue;
    edge.Add(drawing);
  }
  if (edge.Get()) return edge.Get();
  BoxBuilder all;
  for (const Drawing& drawing : board.drawings) all.Add(drawing);
  for (const Pad& pad : board.pads) all.AddAround(pad.position, std::max(pad.size.width, pad.size.height) / 2.0);
  for (const Via& via : board.vias) all.AddAround(via.position, via.size / 2.0);
  for (const Zone& zone : board.zones) {
    for (const Polygon& outline : zone.outlines) all.Add(outline.points);
  }
  for (const Track& track : board.tracks) {
    all.Add(track.start);
    all.Add(track.end);
    if (track.arc) all.AddArc(track.start, track.mid, track.end);
  }
  return all.Get();
}

}  // namespace oxviewer
