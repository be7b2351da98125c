#include <viewer/board/CopperItems.h>
#include <viewer/board/Drawings.h>
#include <viewer/board/Footprint.h>
#include <viewer/board/Geometry.h>
#include <viewer/board/Pads.h>

#include <optional>
#include <string>
#include <utility>

namespace oxviewer {

namespace {

// Carries what a component holds from its own coordinates to the board's.
class Placement {
 public:
  Placement(Point position, MicroDegrees rotation) : position_(position), rotation_(rotation) {}

  /// False when a place leaves the range of coordinates; so for all below.
  bool Apply(Point& point) const {
    const std::optional<Point> turned = Turned(point, rotation_);
    const std::optional<Point> shifted = turned ? Shifted(*turned, position_) : std::nullopt;
    if (shifted) point = *shifted;
    return shifted.has_value();
  }

  bool Apply(Drawing& drawing) const {
    for (Point& point : drawing.points) {
      if (!Apply(point)) return false;
    }
    for (Point& point : drawing.polygon.points) {
      if (!Apply(point)) return false;
    }
    return true;
  }

  // A pad's own angle already holds the component's.
  bool Apply(Pad& pad) const {
    if (!Apply(pad.position)) return false;
    const std::optional<Point> offset = Turned(pad.offset, pad.rotation);
    if (!offset) return false;
    pad.offset = *offset;
    const Placement ofPad(pad.position, pad.rotation);
    for (Drawing& primitive : pad.primitives) {
      if (!ofPad.Apply(primitive)) return false;
    }
    return true;
  }

 private:
  Point position_;
  MicroDegrees rotation_;
};

// What a component's list says, beside the items that go straight to the board.
struct FootprintParts {
  Component component;
  std::string propertyReference;
  std::string propertyValue;
  LayerId layer = kNoLayer;
};

void ReadAttributes(SexprCursor& cursor, Component& component) {
  while (const auto word = cursor.TryAtom()) {
    unsigned bit = 0;
    if (*word == "smd") bit = kAttributeSmd;
    if (*word == "through_hole") bit = kAttributeThroughHole;
    if (*word == "virtual") bit = kAttributeVirtual;
    if (*word == "board_only") bit = kAttributeBoardOnly;
    if (*word == "exclude_from_pos_files") bit = kAttributeExcludeFromPositions;
    if (*word == "exclude_from_bom") bit = kAttributeExcludeFromBom;
    if (*word == "dnp") bit = kAttributeDoNotPopulate;
    component.attributes = static_cast<std::uint16_t>(component.attributes | bit);
  }
}

// (fp_text reference "R1" ...) up to version 7; (property "Reference" "R1" ...) since.
void ReadText(SexprCursor& cursor, Component& component) {
  const std::string kind(cursor.TryAtom().value_or(""));
  if (kind == "reference") component.reference = cursor.TryAtom().value_or("");
  if (kind == "value") component.value = cursor.TryAtom().value_or("");
}

void ReadProperty(SexprCursor& cursor, FootprintParts& parts) {
  const std::string name(cursor.TryAtom().value_or(""));
  if (name == "Reference") parts.propertyReference = cursor.TryAtom().value_or("");
  if (name == "Value") parts.propertyValue = cursor.TryAtom().value_or("");
}

void ReadFootprintPart(ItemContext& context, ComponentId id, FootprintParts& parts) {
  SexprCursor& cursor = context.cursor;
  Component& component = parts.component;
  const std::string_view keyword = cursor.Keyword();
  if (keyword == "pad") {
    Pad pad = ReadPad(context);
    pad.component = id;
    context.board.pads.push_back(std::move(pad));
  } else if (const auto kind = DrawingKindOf(keyword)) {
    Drawing drawing = ReadDrawing(context, *kind);
    drawing.component = id;
    context.board.drawings.push_back(std::move(drawing));
  } else if (keyword == "fp_text") {
    ReadText(cursor, component);
  } else if (keyword == "property") {
    ReadProperty(cursor, parts);
  } else if (keyword == "at") {
    component.position = cursor.ReadPoint();
    if (cursor.AtomFollows() && !cursor.WordFollows("unlocked")) component.rotation = cursor.ReadAngle();
  } else if (keyword == "layer") {
    parts.layer = context.ReadLayer();
  } else if (keyword == "attr") {
    ReadAttributes(cursor, component);
  } else if (keyword == "zone") {
    ReadZone(context, id);  // states its places on the board
  } else if (keyword == "locked") {
    if (cursor.ReadFlag()) component.attributes |= kAttributeLocked;
  }
}

}  // namespace

void ReadFootprint(ItemContext& context) {
  SexprCursor& cursor = context.cursor;
  Board& board = context.board;
  const std::size_t offset = cursor.Offset();
  const auto id = static_cast<ComponentId>(board.components.size());
  const std::size_t firstPad = board.pads.size();
  const std::size_t firstDrawing = board.drawings.size();
  FootprintParts parts;
  parts.component.footprint = cursor.TryAtom().value_or("");
  while (const auto word = cursor.TryAtom()) {
    if (*word == "locked") parts.component.attributes |= kAttributeLocked;
  }
  while (cursor.NextChild()) {
    ReadFootprintPart(context, id, parts);
    cursor.Leave();
  }
  Component& component = parts.component;
  if (component.reference.empty()) component.reference = std::move(parts.propertyReference);
  if (component.value.empty()) component.value = std::move(parts.propertyValue);
  if (parts.layer != kNoLayer && context.Layers().IsBackCopper(parts.layer)) component.side = Side::Back;
  // Only now is it certain where the component lies: its place may follow its pads.
  const Placement placement(component.position, component.rotation);
  bool inRange = true;
  for (std::size_t i = firstPad; i < board.pads.size(); ++i) inRange = placement.Apply(board.pads[i]) && inRange;
  for (std::size_t i = firstDrawing; i < board.drawings.size(); ++i) {
    inRange = placement.Apply(board.drawings[i]) && inRange;
  }
  if (!inRange) cursor.Fail(offset, "expected all of this component within +-2147.483647 mm");
  board.components.push_back(std::move(component));
  context.CheckCount(board.components.size(), "components");
}

}  // namespace oxviewer
