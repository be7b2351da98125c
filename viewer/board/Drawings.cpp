#include <viewer/board/Drawings.h>
#include <viewer/board/Geometry.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace oxviewer {

namespace {

// What a drawing's list holds, before it is known what the points mean.
struct Parts {
  Point start, mid, end, center;
  bool hasCenter = false;
  std::optional<double> angle;
  std::optional<Polygon> points;
  std::optional<bool> filled;
};

void ReadStroke(SexprCursor& cursor, Drawing& drawing) {
  while (cursor.NextChild()) {
    if (cursor.Keyword() == "width") drawing.width = cursor.ReadLength();
    cursor.Leave();
  }
}

void ReadPart(ItemContext& context, Drawing& drawing, Parts& parts) {
  SexprCursor& cursor = context.cursor;
  const std::string_view keyword = cursor.Keyword();
  if (keyword == "start") {
    parts.start = cursor.ReadPoint();
  } else if (keyword == "end") {
    parts.end = cursor.ReadPoint();
  } else if (keyword == "mid") {
    parts.mid = cursor.ReadPoint();
  } else if (keyword == "center") {
    parts.center = cursor.ReadPoint();
    parts.hasCenter = true;
  } else if (keyword == "angle") {
    parts.angle = std::clamp(cursor.ReadNumber(), -360.0, 360.0);
  } else if (keyword == "pts") {
    parts.points = context.ReadPoints();
  } else if (keyword == "layer" || keyword == "layers") {
    drawing.layer = context.ReadLayer();
  } else if (keyword == "width") {
    drawing.width = cursor.ReadLength();
  } else if (keyword == "stroke") {
    ReadStroke(cursor, drawing);
  } else if (keyword == "fill") {
    const auto word = cursor.TryAtom();
    parts.filled = word && (*word == "solid" || *word == "yes" || *word == "true");
  } else if (keyword == "net") {
    drawing.net = context.ReadNet();
  }
}

Point TurnedAbout(ItemContext& context, std::size_t offset, Point point, Point center, double degrees) {
  const auto relative = Shifted(point, {-center.x, -center.y});
  const long long millionths = std::llround(degrees * 1e6) % kFullTurn;
  const auto angle = static_cast<MicroDegrees>(millionths < 0 ? millionths + kFullTurn : millionths);
  const auto turned = relative ? Turned(*relative, angle) : std::nullopt;
  const auto place = turned ? Shifted(*turned, center) : std::nullopt;
  if (!place) context.cursor.Fail(offset, "expected an arc within +-2147.483647 mm");
  return *place;
}

// Up to version 5 "start" is the centre, "end" the start of the arc, and a positive angle runs clockwise.
void SetLegacyArc(ItemContext& context, std::size_t offset, const Parts& parts, Drawing& drawing) {
  if (std::abs(*parts.angle) >= 360) {
    drawing.kind = DrawingKind::Circle;
    drawing.points = {parts.start, parts.end};
    return;
  }
  drawing.points = {parts.end, TurnedAbout(context, offset, parts.end, parts.start, -*parts.angle / 2),
                    TurnedAbout(context, offset, parts.end, parts.start, -*parts.angle)};
}

void SetCurve(ItemContext& context, std::size_t offset, const Parts& parts, Drawing& drawing) {
  if (!parts.points) return;
  if (parts.points->points.size() != drawing.points.size()) {
    context.cursor.Fail(offset,
                        "expected four points in a curve, found " + std::to_string(parts.points->points.size()));
  }
  std::copy(parts.points->points.begin(), parts.points->points.end(), drawing.points.begin());
}

}  // namespace

std::optional<DrawingKind> DrawingKindOf(std::string_view keyword) {
  if (keyword == "bezier") return DrawingKind::Curve;
  const std::string_view prefix = keyword.substr(0, 3);
  if (prefix != "gr_" && prefix != "fp_") return std::nullopt;
  const std::string_view kind = keyword.substr(3);
  if (kind == "line") return DrawingKind::Line;
  if (kind == "arc") return DrawingKind::Arc;
  if (kind == "circle") return DrawingKind::Circle;
  if (kind == "rect") return DrawingKind::Rect;
  if (kind == "poly") return DrawingKind::Polygon;
  if (kind == "curve") return DrawingKind::Curve;
  return std::nullopt;
}

Drawing ReadDrawing(ItemContext& context, DrawingKind kind) {
  context.CountItem();
  const std::size_t offset = context.cursor.Offset();
  Drawing drawing;
  drawing.kind = kind;
  Parts parts;
  while (context.cursor.NextChild()) {
    ReadPart(context, drawing, parts);
    context.cursor.Leave();
  }
  // A polygon that does not say how it is filled comes from a version that filled all of them.
  drawing.filled = parts.filled.value_or(kind == DrawingKind::Polygon);
  const Point a = parts.start;
  const Point b = parts.end;
  switch (kind) {
    case DrawingKind::Line:
      drawing.points = {a, b};
      break;
    case DrawingKind::Arc:
      drawing.points = {a, parts.mid, b};
      if (parts.angle) SetLegacyArc(context, offset, parts, drawing);
      break;
    case DrawingKind::Circle:
      drawing.points = {parts.hasCenter ? parts.center : a, b};
      break;
    case DrawingKind::Rect:
      drawing.points = {a, Point{b.x, a.y}, b, Point{a.x, b.y}};
      break;
    case DrawingKind::Curve:
      SetCurve(context, offset, parts, drawing);
      break;
    case DrawingKind::Polygon:
      if (parts.points) drawing.polygon = std::move(*parts.points);
      break;
  }
  return drawing;
}

}  // namespace oxviewer
