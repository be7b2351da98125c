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

/// Icons of the library are made once in a process: each run takes colours that none has had.
Contender NewIcons() {
  return {"ColorIconBag", [](Meter& meter) {
            static unsigned int next = 0;
            meter.Run([&] {
              for (const unsigned int end = next + kCount; next < end; ++next) {
                Keep(ColorIconBag::Get().GetColorIcon("color_square.png", next));
              }
            });
          }};
}

Contender OldIcons() {
  return {"ColorIconBag", [](Meter& meter) {
            meter.Run([&] {
              for (unsigned int color = 0; color < kCount; ++color) {
                Keep(ColorIconBag::Get().GetColorIcon("color_square.png", color));
              }
            });
          }};
}

Contender HashOfIcons(bool again) {
  return {again ? "QHash of QIcon" : "QPixmap::fill", [again](Meter& meter) {
            ColorIcons icons;
            const auto all = [&] {
              for (unsigned int color = 0; color < kCount; ++color) Keep(icons.Icon(color));
            };
            if (again) all();
            meter.Run(all);
          }};
}

Contender Cache(bool again) {
  return {"QPixmapCache", [again](Meter& meter) {
            QPixmapCache::clear();
            QPixmapCache::setCacheLimit(1 << 20);  // in kilobytes
            const auto all = [&] {
              for (unsigned int color = 0; color < kCount; ++color) {
                const QString name = QStringLiteral("color_square.png_") + QString::number(color);
                QPixmap pixmap;
                if (!QPixmapCache::find(name, &pixmap)) {
                  pixmap = QPixmap(kSide, kSide);
                  pixmap.fill(QColor(static_cast<QRgb>(color)));
                  QPixmapCache::insert(name, pixmap);
                }
                Keep(pixmap);
              }
            };
            if (again) all();
            meter.Run(all);
            QPixmapCache::clear();
          }};
}

Contender Painting() {
  return {"painting", [](Meter& meter) {
            std::vector<std::vector<std::uint32_t>> images(kCount);
            meter.Run([&] {
              for (unsigned int color = 0; color < kCount; ++color) images[color].assign(kSide * kSide, color);
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
  const std::string count = Grouped(kCount);
  const auto made = Race({NewIcons(), HashOfIcons(false), Painting(), Cache(false)}, kCount, kRepetitions);
  const auto found = Race({OldIcons(), HashOfIcons(true), Table(), Cache(true)}, kCount, kRepetitions);
  const Figure again = WithOther(WithFloor(FigureOf(10, count + " icons that are there", found), found[2]), found[3]);
  return {AgainstPeer(WithOther(WithFloor(FigureOf(10, count + " new icons", made), made[2]), made[3]), 1.2),
          Absolute(again, again.ours, 60, "ns")};
}

}  // namespace oxecad_bench
