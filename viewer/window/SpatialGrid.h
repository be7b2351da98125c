/// \file
/// Finding the items of an area.
#ifndef OXECAD_VIEWER_WINDOW_SPATIALGRID_H
#define OXECAD_VIEWER_WINDOW_SPATIALGRID_H

#include <QRectF>

#include <cstdint>
#include <vector>

namespace oxviewer {

/// Squares over a set of boxes, each with the items whose boxes touch it. Does not change once it is made, so that
/// several threads may read it.
class SpatialGrid {
 public:
  SpatialGrid() = default;
  /// Item i has the box `boxes[i]`.
  explicit SpatialGrid(const std::vector<QRectF>& boxes);

  /// Puts the items whose boxes may touch the area into `items`, in ascending order and each once; replaces what was
  /// there.
  void Find(const QRectF& area, std::vector<std::uint32_t>& items) const;

 private:
  struct Cells {
    int left;
    int top;
    int right;
    int bottom;
  };
  Cells CellsOf(const QRectF& box) const;

  QRectF bounds_;
  int columns_ = 0;
  int rows_ = 0;
  double cellSide_ = 1;
  std::uint32_t count_ = 0;
  std::vector<std::uint32_t> starts_;  // by cell: where its items begin
  std::vector<std::uint32_t> items_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_SPATIALGRID_H
