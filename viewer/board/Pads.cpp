#include <viewer/board/Drawings.h>
#include <viewer/board/Pads.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace oxviewer {

namespace {

PadType PadTypeOf(std::string_view word) {
  if (word == "thru_hole") return PadType::ThroughHole;
  if (word == "np_thru_hole") return PadType::NonPlatedHole;
  if (word == "connect") return PadType::Connector;
  return PadType::Smd;
}

PadShape PadShapeOf(std::string_view word) {
  if (word == "circle") return PadShape::Circle;
  if (word == "oval") return PadShape::Oval;
  if (word == "trapezoid") return PadShape::Trapezoid;
  if (word == "roundrect") return PadShape::RoundRect;
  if (word == "custom") return PadShape::Custom;
  return PadShape::Rect;
}

// (drill 0.8), (drill oval 0.8 1.2), each with or without an (offset x y).
void ReadDrill(SexprCursor& cursor, Pad& pad) {
  bool oval = false;
  if (cursor.WordFollows("oval")) {
    oval = true;
    cursor.TryAtom();
  }
  if (cursor.AtomFollows()) {
    pad.drill.width = cursor.ReadLength();
    pad.drill.height = oval && cursor.AtomFollows() ? cursor.ReadLength() : pad.drill.width;
  }
  while (cursor.NextChild()) {
    if (cursor.Keyword() == "offset") pad.offset = cursor.ReadPoint();
    cursor.Leave();
  }
}

void ReadPrimitives(ItemContext& context, Pad& pad) {
  while (context.cursor.NextChild()) {
    const auto kind = DrawingKindOf(context.cursor.Keyword());
    if (kind) pad.primitives.push_back(ReadDrawing(context, *kind));
    context.cursor.Leave();
  }
}

void ReadPadPart(ItemContext& context, Pad& pad) {
  SexprCursor& cursor = context.cursor;
  const std::string_view keyword = cursor.Keyword();
  if (keyword == "at") {
    pad.position = cursor.ReadPoint();
    if (cursor.AtomFollows() && !cursor.WordFollows("unlocked")) pad.rotation = cursor.ReadAngle();
  } else if (keyword == "size") {
    pad.size = cursor.ReadSize();
  } else if (keyword == "rect_delta") {
    pad.delta = cursor.ReadSize();
  } else if (keyword == "drill") {
    ReadDrill(cursor, pad);
  } else if (keyword == "layers" || keyword == "layer") {
    pad.layers |= context.ReadLayerSet();
  } else if (keyword == "roundrect_rratio") {
    pad.roundRatioMillionths = static_cast<std::int32_t>(std::lround(std::clamp(cursor.ReadNumber(), 0.0, 0.5) * 1e6));
  } else if (keyword == "net") {
    pad.net = context.ReadNet();
  } else if (keyword == "primitives") {
    ReadPrimitives(context, pad);
  }
}

}  // namespace

Pad ReadPad(ItemContext& context) {
  context.CountItem();
  SexprCursor& cursor = context.cursor;
  Pad pad;
  pad.number = cursor.TryAtom().value_or("");
  pad.type = PadTypeOf(cursor.TryAtom().value_or(""));
  pad.shape = PadShapeOf(cursor.TryAtom().value_or(""));
  while (cursor.NextChild()) {
    ReadPadPart(context, pad);
    cursor.Leave();
  }
  return pad;
}

}  // namespace oxviewer
