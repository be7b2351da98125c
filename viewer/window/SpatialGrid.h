/// \file
/// Finding the items of an area.
#ifndef OXECAD_VIEWER_WINDOW_SPATIALGRID_H
#define OXECAD_VIEWER_WINDOW_SPATIALGRID_H

#include <QRectF>

#include <cstdint>
#include <vector>

namespace oxviewer {

/// Squares over a set of boxes, each with the items whose boxes touch it: small squares for small boxes, larger ones
/// for larger boxes, so that no item stands in more than four. Does not change once it is made, so that several threads
/// may read it.
class SpatialGrid {
 public:
  SpatialGrid() = default;
  /// Item i has the box `boxes[i]`. Linear.
  explicit SpatialGrid(const std::vector<QRectF>& boxes);

  /// Puts the items whose boxes may touch the area into `items`, in ascending order and each once; replaces what was
  /// there.
  void Find(const QRectF& area, std::vector<std::uint32_t>& items) const;

  /// In how many squares the items stand, all together.
  std::size_t EntryCount() const;

 private:
  struct Cells {
    int left;
    int top;
    int right;
    int bottom;
  };
  // Squares of one size; a level's are twice as wide as those of the one before.
  struct Level {
    double cellSide = 1;
    int columns = 1;
    int rows = 1;
    std::vector<std::size_t> starts;  // by cell: where its items begin
    std::vector<std::uint32_t> items;
  };
  Cells CellsOf(const Level& level, const QRectF& box) const;
  void Fill(Level& level, const std::vector<QRectF>& boxes, const std::vector<std::uint32_t>& items) const;

  QRectF bounds_;
  std::uint32_t count_ = 0;
  std::vector<Level> levels_;  // those that hold something
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_SPATIALGRID_H
