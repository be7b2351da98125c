#include <viewer/window/SpatialGrid.h>

#include <algorithm>
#include <cmath>

namespace oxviewer {
namespace {

constexpr int kMostCellsPerSide = 256;
constexpr double kItemsPerCell = 4;

// QRectF leaves empty boxes out of a union and of an intersection; a line that runs straight has one.
QRectF Joined(const QRectF& a, const QRectF& b) {
  return QRectF(QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
                QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom())));
}

}  // namespace

SpatialGrid::SpatialGrid(const std::vector<QRectF>& boxes) : count_(static_cast<std::uint32_t>(boxes.size())) {
  if (boxes.empty()) return;
  bounds_ = boxes.front();
  for (const QRectF& box : boxes) bounds_ = Joined(bounds_, box);
  const double longer = std::max({bounds_.width(), bounds_.height(), 1e-6});
  const double wanted = std::sqrt(static_cast<double>(boxes.size()) / kItemsPerCell);
  cellSide_ = longer / std::clamp(wanted, 1.0, static_cast<double>(kMostCellsPerSide));
  columns_ = std::min(kMostCellsPerSide, static_cast<int>(bounds_.width() / cellSide_) + 1);
  rows_ = std::min(kMostCellsPerSide, static_cast<int>(bounds_.height() / cellSide_) + 1);

  const auto forEachCell = [this](const QRectF& box, auto visit) {
    const Cells cells = CellsOf(box);
    for (int row = cells.top; row <= cells.bottom; ++row) {
      for (int column = cells.left; column <= cells.right; ++column) {
        visit(static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column));
      }
    }
  };
  starts_.assign(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_) + 1, 0);
  for (const QRectF& box : boxes) {
    forEachCell(box, [this](std::size_t cell) { ++starts_[cell + 1]; });
  }
  for (std::size_t cell = 1; cell < starts_.size(); ++cell) starts_[cell] += starts_[cell - 1];
  items_.resize(starts_.back());
  std::vector<std::uint32_t> next(starts_.begin(), starts_.end() - 1);
  for (std::uint32_t i = 0; i < count_; ++i) {
    forEachCell(boxes[i], [&](std::size_t cell) { items_[next[cell]++] = i; });
  }
}

SpatialGrid::Cells SpatialGrid::CellsOf(const QRectF& box) const {
  const auto cell = [this](double distance, int count) {
    return std::clamp(static_cast<int>(std::clamp(distance / cellSide_, -1.0, 1e6)), 0, count - 1);
  };
  return {cell(box.left() - bounds_.left(), columns_), cell(box.top() - bounds_.top(), rows_),
          cell(box.right() - bounds_.left(), columns_), cell(box.bottom() - bounds_.top(), rows_)};
}

void SpatialGrid::Find(const QRectF& area, std::vector<std::uint32_t>& items) const {
  items.clear();
  if (count_ == 0 || area.right() < bounds_.left() || area.left() > bounds_.right() || area.bottom() < bounds_.top() ||
      area.top() > bounds_.bottom()) {
    return;
  }
  const Cells cells = CellsOf(area);
  if (cells.left == 0 && cells.top == 0 && cells.right == columns_ - 1 && cells.bottom == rows_ - 1) {
    items.resize(count_);
    for (std::uint32_t i = 0; i < count_; ++i) items[i] = i;
    return;
  }
  for (int row = cells.top; row <= cells.bottom; ++row) {
    const auto first = static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_);
    const auto from = starts_[first + static_cast<std::size_t>(cells.left)];
    const auto to = starts_[first + static_cast<std::size_t>(cells.right) + 1];
    items.insert(items.end(), items_.begin() + from, items_.begin() + to);
  }
  std::sort(items.begin(), items.end());
  items.erase(std::unique(items.begin(), items.end()), items.end());
}

}  // namespace oxviewer
