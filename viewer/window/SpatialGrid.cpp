#include <viewer/window/SpatialGrid.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace oxviewer {
namespace {

constexpr int kMostCellsPerSide = 256;
constexpr double kItemsPerCell = 4;
constexpr std::size_t kLevels = 9;  // up to one square of kMostCellsPerSide smallest ones over everything

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
  const double smallest = longer / std::clamp(wanted, 1.0, static_cast<double>(kMostCellsPerSide));
  std::array<std::vector<std::uint32_t>, kLevels> itemsOf;
  for (std::uint32_t i = 0; i < count_; ++i) {
    const double side = std::max(boxes[i].width(), boxes[i].height());
    std::size_t level = 0;
    while (level + 1 < kLevels && side > std::ldexp(smallest, static_cast<int>(level))) ++level;
    itemsOf[level].push_back(i);
  }
  for (std::size_t i = 0; i < kLevels; ++i) {
    if (itemsOf[i].empty()) continue;
    Level level;
    level.cellSide = std::ldexp(smallest, static_cast<int>(i));
    level.columns = std::min(kMostCellsPerSide, static_cast<int>(bounds_.width() / level.cellSide) + 1);
    level.rows = std::min(kMostCellsPerSide, static_cast<int>(bounds_.height() / level.cellSide) + 1);
    Fill(level, boxes, itemsOf[i]);
    levels_.push_back(std::move(level));
  }
}

void SpatialGrid::Fill(Level& level, const std::vector<QRectF>& boxes, const std::vector<std::uint32_t>& items) const {
  const auto forEachCell = [&](std::uint32_t item, auto visit) {
    const Cells cells = CellsOf(level, boxes[item]);
    for (int row = cells.top; row <= cells.bottom; ++row) {
      for (int column = cells.left; column <= cells.right; ++column) {
        visit(static_cast<std::size_t>(row) * static_cast<std::size_t>(level.columns) +
              static_cast<std::size_t>(column));
      }
    }
  };
  level.starts.assign(static_cast<std::size_t>(level.columns) * static_cast<std::size_t>(level.rows) + 1, 0);
  for (const std::uint32_t item : items) {
    forEachCell(item, [&level](std::size_t cell) { ++level.starts[cell + 1]; });
  }
  for (std::size_t cell = 1; cell < level.starts.size(); ++cell) level.starts[cell] += level.starts[cell - 1];
  level.items.resize(level.starts.back());
  std::vector<std::size_t> next(level.starts.begin(), level.starts.end() - 1);
  for (const std::uint32_t item : items) {
    forEachCell(item, [&](std::size_t cell) { level.items[next[cell]++] = item; });
  }
}

SpatialGrid::Cells SpatialGrid::CellsOf(const Level& level, const QRectF& box) const {
  const auto cell = [&level](double distance, int count) {
    return std::clamp(static_cast<int>(std::clamp(distance / level.cellSide, -1.0, 1e6)), 0, count - 1);
  };
  return {cell(box.left() - bounds_.left(), level.columns), cell(box.top() - bounds_.top(), level.rows),
          cell(box.right() - bounds_.left(), level.columns), cell(box.bottom() - bounds_.top(), level.rows)};
}

void SpatialGrid::Find(const QRectF& area, std::vector<std::uint32_t>& items) const {
  items.clear();
  if (count_ == 0 || area.right() < bounds_.left() || area.left() > bounds_.right() || area.bottom() < bounds_.top() ||
      area.top() > bounds_.bottom()) {
    return;
  }
  if (area.left() <= bounds_.left() && area.top() <= bounds_.top() && area.right() >= bounds_.right() &&
      area.bottom() >= bounds_.bottom()) {
    items.resize(count_);
    for (std::uint32_t i = 0; i < count_; ++i) items[i] = i;
    return;
  }
  for (const Level& level : levels_) {
    const Cells cells = CellsOf(level, area);
    for (int row = cells.top; row <= cells.bottom; ++row) {
      const auto first = static_cast<std::size_t>(row) * static_cast<std::size_t>(level.columns);
      const auto from = static_cast<std::ptrdiff_t>(level.starts[first + static_cast<std::size_t>(cells.left)]);
      const auto to = static_cast<std::ptrdiff_t>(level.starts[first + static_cast<std::size_t>(cells.right) + 1]);
      items.insert(items.end(), level.items.begin() + from, level.items.begin() + to);
    }
  }
  std::sort(items.begin(), items.end());
  items.erase(std::unique(items.begin(), items.end()), items.end());
}

std::size_t SpatialGrid::EntryCount() const {
  std::size_t count = 0;
  for (const Level& level : levels_) count += level.items.size();
  return count;
}

}  // namespace oxviewer
