#ifndef OXECAD_VIEWER_BOARD_BOARD_H
#define OXECAD_VIEWER_BOARD_BOARD_H

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <vector>

namespace oxviewer {

/// A length in nanometres. What a file gives lies within +-2147483647 nm, about two metres either way.
using Nm = std::int32_t;

/// A place on the board in nanometres, x to the right and y down, as the file format has it.
struct Point {
  Nm x = 0;
  Nm y = 0;
  friend bool operator==(const Point&, const Point&) = default;
  friend auto operator<=>(const Point&, const Point&) = default;
};

/// A width and a height in nanometres.
struct Size {
  Nm width = 0;
  Nm height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

/// A turn in millionths of a degree, 0 to 359999999, counter-clockwise as seen on the screen.
using MicroDegrees = std::int32_t;
inline constexpr MicroDegrees kFullTurn = 360'000'000;

/// Positions in the vectors of a Board; the negative ones stand for nothing.
using LayerId = std::int16_t;
using NetId = std::int32_t;
using NetClassId = std::int32_t;
using ComponentId = std::int32_t;
inline constexpr LayerId kNoLayer = -1;
inline constexpr NetId kNoNet = -1;
inline constexpr ComponentId kNoComponent = -1;

/// The most layers that a board may name; the format itself knows about a hundred.
inline constexpr int kMaxLayers = 256;

/// A set of layers; bit n is Board::layers[n].
using LayerSet = std::bitset<kMaxLayers>;

/// One layer, known by its name alone: numbers differ between versions of the format.
struct Layer {
  std::string name;      ///< canonical name ("F.Cu"); UTF-8, as all texts of a board
  std::string userName;  ///< the user's own name, empty where there is none
  std::string type;      ///< "signal", "power", "mixed", "jumper" or "user", as in the file
  bool copper = false;   ///< carries nets
  /// Stands in the board's table of layers. The others are only referred to by an item and follow after the last
  /// declared one; they are no part of the board's stack and are drawn only.
  bool declared = true;
};

/// A net by its true name: never empty, each name once. "{slash}" stays as the file has it.
struct Net {
  std::string name;
  NetClassId netClass = 0;
};

struct NetClass {
  std::string name;
};

enum class Side : std::uint8_t { Front, Back };

/// Attributes of a component, one bit each.
enum ComponentAttribute : std::uint16_t {
  kAttributeSmd = 1,
  kAttributeThroughHole = 2,
  kAttributeVirtual = 4,
  kAttributeBoardOnly = 8,
  kAttributeExcludeFromPositions = 16,
  kAttributeExcludeFromBom = 32,
  kAttributeDoNotPopulate = 64,
  kAttributeLocked = 128,
};

struct Component {
  std::string reference;  ///< "R105"; may be empty, and need not be unique
  std::string value;
  std::string footprint;  ///< library identifier, "Resistor_SMD:R_0805_2012Metric"
  Point position;
  MicroDegrees rotation = 0;
  Side side = Side::Front;
  std::uint16_t attributes = 0;  ///< bits of ComponentAttribute
};

/// A closed line. Where arcs lists an index, that point is the middle of an arc from the point before to the one after
/// (round the end, if need be); everything else is straight.
struct Polygon {
  std::vector<Point> points;
  std::vector<std::uint32_t> arcs;  ///< ascending
};

/// A straight piece of track or, with `arc`, one through three points.
struct Track {
  Point start;
  Point mid;  ///< of an arc only
  Point end;
  Nm width = 0;
  NetId net = kNoNet;
  LayerId layer = kNoLayer;
  bool arc = false;
};

enum class ViaType : std::uint8_t { Through, Blind, Micro };

struct Via {
  Point position;
  Nm size = 0;
  Nm drill = 0;
  NetId net = kNoNet;
  LayerId firstLayer = kNoLayer;  ///< the two have no order
  LayerId lastLayer = kNoLayer;
  ViaType type = ViaType::Through;
};

struct ZoneFill {
  LayerId layer = kNoLayer;
  Polygon polygon;
};

struct Zone {
  NetId net = kNoNet;
  ComponentId component = kNoComponent;
  bool keepout = false;  ///< a rule area: it keeps others away and holds no copper
  LayerSet layers;
  std::vector<Polygon> outlines;  ///< the first is the outer line, further ones are cut out of it
  std::vector<ZoneFill> fills;
};

enum class DrawingKind : std::uint8_t { Line, Arc, Circle, Rect, Polygon, Curve };

/// A line drawing of the board or of a component, in the board's coordinates.
struct Drawing {
  DrawingKind kind = DrawingKind::Line;
  bool filled = false;
  LayerId layer = kNoLayer;
  Nm width = 0;
  ComponentId component = kNoComponent;
  NetId net = kNoNet;
  /// Line: two ends. Arc: start, middle, end. Circle: centre and a point on it. Rect: four corners in turn.
  /// Curve: the four points of a cubic Bezier. Polygon: unused.
  std::array<Point, 4> points{};
  Polygon polygon;  ///< Polygon only
};

enum class PadShape : std::uint8_t { Circle, Rect, Oval, Trapezoid, RoundRect, Custom };
enum class PadType : std::uint8_t { Smd, ThroughHole, NonPlatedHole, Connector };

struct Pad {
  std::string number;  ///< "1", "A12"; empty for a pad without one
  ComponentId component = kNoComponent;
  NetId net = kNoNet;
  Point position;  ///< on the board, of the hole where there is one
  Point offset;    ///< from the position to the middle of the copper, already turned
  Size size;       ///< before it is turned
  Size drill;      ///< zero without a hole; both equal for a round one
  Size delta;      ///< of a trapezoid
  MicroDegrees rotation = 0;
  std::int32_t roundRatioMillionths = 0;  ///< radius of a rounded corner, as a share of the shorter side
  PadShape shape = PadShape::Rect;
  PadType type = PadType::Smd;
  LayerSet layers;
  std::vector<Drawing> primitives;  ///< further copper of a custom pad, on the board; their layer is not set
};

/// A board as the file has it: plain values, no reference to the file.
/// Every id stored in an item is either its "nothing" value or a valid position in the vector it belongs to.
struct Board {
  std::string name;                   ///< the path or name that it was read under
  std::int32_t version = 0;           ///< of the format, a date such as 20211014; 0 where the file states none
  std::vector<Layer> layers;          ///< the declared ones in board order, then the undeclared
  std::vector<NetClass> netClasses;   ///< at least one; position 0 is "Default"
  std::vector<Net> nets;              ///< in the order of their first appearance
  std::vector<Component> components;  ///< in the order of the file, as everything below
  std::vector<Pad> pads;
  std::vector<Track> tracks;
  std::vector<Via> vias;
  std::vector<Zone> zones;
  std::vector<Drawing> drawings;

  /// How many of `layers` the board's own table declares; those come first.
  std::size_t DeclaredLayerCount() const {
    std::size_t count = 0;
    while (count < layers.size() && layers[count].declared) ++count;
    return count;
  }
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_BOARD_H
