#ifndef OXECAD_VIEWER_BOARD_ITEMCONTEXT_H
#define OXECAD_VIEWER_BOARD_ITEMCONTEXT_H

#include <viewer/board/Board.h>
#include <viewer/board/BoardReader.h>
#include <viewer/board/LayerTable.h>
#include <viewer/board/NetTable.h>
#include <viewer/board/SexprCursor.h>

#include <optional>
#include <string>
#include <string_view>

namespace oxviewer {

/// A net as an item names it.
struct NetReference {
  std::optional<std::int64_t> number;
  std::optional<std::string> name;
};

/// What the readers of the single items share: the text, the board that grows, and its two tables of names.
/// The functions that read stand inside a list and leave its end to the caller.
class ItemContext {
 public:
  ItemContext(std::string_view text, const ReaderLimits& limits);

  SexprCursor cursor;
  Board board;
  NetTable nets;

  /// One more pad, track, arc, via, zone or drawing, the list at `cursor.Offset()`.
  void CountItem();
  /// One more component or net.
  void CheckCount(std::size_t count, const char* what) const;

  /// The board's own table of layers.
  void ReadLayerTable();
  /// The table, which is looked for further down the text if no one has come by yet.
  LayerTable& Layers();

  LayerId ReadLayer();
  LayerSet ReadLayerSet();

  /// `(net 5 "GND")`, `(net 5)` or `(net "GND")`. Items may name a net otherwise than the table: the name counts.
  NetReference ReadNetReference();
  NetId Resolved(const NetReference& reference);
  NetId ReadNet() { return Resolved(ReadNetReference()); }

  /// The places of a `(pts ...)` list.
  Polygon ReadPoints();

  const ReaderLimits& Limits() const { return limits_; }

 private:
  void ReadLayerLine(SexprCursor& from);
  void ReadLayerLines(SexprCursor& from);
  void ReadArcPoints(Polygon& polygon);

  std::string_view text_;
  const ReaderLimits& limits_;
  std::uint32_t items_ = 0;
  LayerTable layers_;
  bool layersRead_ = false;
  bool layersUsed_ = false;
  bool layersReadAhead_ = false;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_ITEMCONTEXT_H
