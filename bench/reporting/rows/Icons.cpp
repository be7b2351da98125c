// Squares of many colours, made and found again.
#include <uicomps/color/ColorIconBag.h>

#include <QPixmapCache>

#include <unordered_map>

#include "bench/reporting/Numbers.h"
#include "bench/reporting/Peers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

using oxecad_ui::ColorIconBag;

constexpr unsigned int kCount = 10'000;
constexpr unsigned int kSide = 16;  // as wide and high as "color_square.png"
constexpr int kRepetitions = 9;

/// Colours that no run before has had, behind those that are there. The library makes an icon once in a process and
/// keeps it; where new icons are compared, the others keep theirs too, so that all tables grow alike and nobody gets
/// back the memory of a run before.
class NewColors {
 public:
  template <class MakeIcon>
  void ForEach(const MakeIcon& make_icon) {
    for (const unsigned int end = next_ + kCount; next_ < end; ++next_) Keep(make_icon(next_));
  }

 private:
  unsigned int next_ = kCount;
};

/// Colours whose icons are there.
template <class MakeIcon>
void ForOldColors(const MakeIcon& make_icon) {
  for (unsigned int color = 0; color < kCount; ++color) Keep(make_icon(color));
}

const char* IconOfLibrary(unsigned int color) { return ColorIconBag::Get().GetColorIcon("color_square.png", color); }

Contender NewIcons() {
  return {"ColorIconBag",
          [colors = NewColors()](Meter& meter) mutable { meter.Run([&] { colors.ForEach(IconOfLibrary); }); }};
}

Contender OldIcons() {
  return {"ColorIconBag", [](Meter& meter) { meter.Run([&] { ForOldColors(IconOfLibrary); }); }};
}

Contender NewHashedIcons() {
  return {"QPixmap::fill", [colors = NewColors(), icons = ColorIcons()](Meter& meter) mutable {
            meter.Run([&] { colors.ForEach([&](unsigned int color) -> const QIcon& { return icons.Icon(color); }); });
          }};
}

Contender OldHashedIcons() {
  return {"QHash of QIcon", [](Meter& meter) {
            ColorIcons icons;
            const auto find = [&](unsigned int color) -> const QIcon& { return icons.Icon(color); };
            ForOldColors(find);
            meter.Run([&] { ForOldColors(find); });
          }};
}

QPixmap CachedIcon(unsigned int color) {
  const QString name = QStringLiteral("color_square.png_") + QString::number(color);
  QPixmap pixmap;
  if (!QPixmapCache::find(name, &pixmap)) {
    pixmap = QPixmap(kSide, kSide);
    pixmap.fill(QColor(static_cast<QRgb>(color)));
    QPixmapCache::insert(name, pixmap);
  }
  return pixmap;
}

Contender NewCachedIcons() {
  return {"QPixmapCache",
          [colors = NewColors()](Meter& meter) mutable { meter.Run([&] { colors.ForEach(CachedIcon); }); }};
}

Contender OldCachedIcons() {
  return {"QPixmapCache", [](Meter& meter) { meter.Run([&] { ForOldColors(CachedIcon); }); }};
}

Contender Painting() {
  return {"painting", [images = std::vector<std::vector<std::uint32_t>>()](Meter& meter) mutable {
            meter.Run([&] {
              for (unsigned int color = 0; color < kCount; ++color) images.emplace_back(kSide * kSide, color);
            });
          }};
}

Contender Table() {
  return {"table", [](Meter& meter) {
            std::unordered_map<unsigned int, const char*> names;
            for (unsigned int color = 0; color < kCount; ++color) names.emplace(color, "name");
            meter.Run([&] {
              for (unsigned int color = 0; color < kCount; ++color) Keep(names.find(color)->second);
            });
          }};
}

}  // namespace

Figures MeasureIcons(const Settings&) {
  SetStage();
  QPixmapCache::clear();
  QPixmapCache::setCacheLimit(1 << 20);  // in kilobytes
  ForOldColors(IconOfLibrary);
  ForOldColors(CachedIcon);
  const std::string count = Grouped(kCount);
  const auto found = Race({OldIcons(), OldHashedIcons(), Table(), OldCachedIcons()}, kCount, kRepetitions);
  const auto made = Race({NewIcons(), NewHashedIcons(), Painting(), NewCachedIcons()}, kCount, kRepetitions);
  QPixmapCache::clear();
  const Figure again = WithOther(WithFloor(FigureOf(10, count + " icons that are there", found), found[2]), found[3]);
  return {AgainstPeer(WithOther(WithFloor(FigureOf(10, count + " new icons", made), made[2]), made[3]), 1.2),
          Absolute(again, again.ours, 60, "ns")};
}

}  // namespace oxecad_bench
