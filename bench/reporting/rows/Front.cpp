// A tree in a window: shown, expanded, scrolled, changed, filtered.
#include <QScrollBar>

#include "bench/reporting/NetViews.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

constexpr int kRow = 11;
constexpr double kMillisecond = 1e6;
constexpr double kFrame = 16;  // milliseconds
constexpr const char* kPeer = "QTreeView on QStandardItemModel";

using Views = std::vector<std::pair<std::string, std::shared_ptr<NetView>>>;

/// Windows that show the nets, ours first.
Views Filled(const NetsToShow& shown) {
  Views views = {{"ours", std::make_shared<OurView>()}, {kPeer, std::make_shared<PeerView>()}};
  for (const auto& [name, view] : views) {
    view->Fill(shown);
    view->Paint();
  }
  return views;
}

/// Does the same in each of the windows in turn.
template <class Step>
std::vector<Outcome> RaceViews(const Views& views, std::size_t operations, const Step& step) {
  std::vector<Contender> contenders;
  for (const auto& [name, view] : views) {
    contenders.push_back({name, [view = view, step](Meter& meter) { step(*view, meter); }});
  }
  return Race(contenders, operations);
}

Figure WithinMilliseconds(const Figure& figure, double goal) {
  return Absolute(figure, figure.ours / kMillisecond, goal, "ms");
}

// --- From empty to the first frame -----------------------------------------------------------------------------------

template <class View>
Contender ShowNets(std::string name, const NetsToShow& shown) {
  return {std::move(name), [shown](Meter& meter) {
            View view;
            meter.Run([&] {
              view.Fill(shown);
              view.Paint();
            });
          }};
}

Figure MeasureShown(const NetsToShow& shown, const std::string& nets) {
  const auto outcomes = Race({ShowNets<OurView>("ours", shown), ShowNets<PeerView>(kPeer, shown),
                              ShowNets<KeySortedPeerView>("the same, sorted by keys before", shown)},
                             1);
  const Figure figure = FigureOf(kRow, nets + " from empty to the first painted frame", outcomes);
  return AgainstPeer(WithOther(figure, outcomes[2]), 0.5);
}

// --- What follows ----------------------------------------------------------------------------------------------------

Figure MeasureExpanded(const NetsToShow& shown, const std::string& nets) {
  const auto outcomes = RaceViews(Filled(shown), 1, [](NetView& view, Meter& meter) {
    view.CollapseAll();
    view.Paint();
    meter.Run([&] {
      view.ExpandAll();
      view.Paint();
    });
  });
  const std::string workload = nets + " below " + Grouped(shown.parents) + " parents expanded, to the painted frame";
  return AgainstPeer(FigureOf(kRow, workload, outcomes), 1);
}

Figure MeasureScrolled(const Views& views, const std::string& nets) {
  const auto outcomes = RaceViews(views, 1, [](NetView& view, Meter& meter) {
    QScrollBar& bar = *view.View().verticalScrollBar();
    const auto stepTo = [&](int value) {
      meter.RunLongest([&] {
        bar.setValue(value);
        view.Paint();
      });
    };
    constexpr int kSteps = 100;
    for (int step = 0; step < kSteps; ++step) stepTo(step * bar.singleStep());
    for (int step = 0; step < kSteps; ++step) stepTo(step * bar.pageStep());
    for (int step = 0; step <= kSteps; ++step) stepTo(static_cast<int>(std::int64_t{bar.maximum()} * step / kSteps));
    bar.setValue(0);
    view.Paint();
  });
  return WithinMilliseconds(FigureOf(kRow, nets + " scrolled, longest of 301 steps", outcomes), kFrame);
}

Figure MeasureLabel(const Views& views, const std::string& nets) {
  constexpr std::size_t kChanges = 50;
  const auto outcomes = RaceViews(views, kChanges, [](NetView& view, Meter& meter) {
    static int turn = 0;
    for (std::size_t net = 0; net < kChanges; ++net) {
      const std::wstring label = L"DDR_DQ" + std::to_wstring(++turn);
      meter.Run([&] {
        view.SetLabel(net, label);
        view.Paint();
      });
    }
  });
  return WithinMilliseconds(FigureOf(kRow, nets + ", one label changed, to the painted frame", outcomes), kFrame);
}

Figure MeasureFilter(const Views& views, const std::string& nets) {
  const auto outcomes = RaceViews(views, 1, [](NetView& view, Meter& meter) {
    for (const char* text : {"r", "r1", "r10", "r105", "r10", "r1", "r", ""}) {
      meter.RunLongest([&] {
        view.Filter(QString::fromLatin1(text));
        view.Paint();
      });
    }
  });
  return WithinMilliseconds(FigureOf(kRow, nets + ", longest of 8 keystrokes in the filter", outcomes), 50);
}

}  // namespace

Figures MeasureFront(const Settings& settings) {
  const std::size_t count = settings.Size(100'000);
  const Nets nets(count);
  const std::string name = "a tree of " + Grouped(count) + " nets";
  Figures figures = {MeasureShown({nets, 1}, name), MeasureExpanded({nets, count / 100}, name)};
  const Views views = Filled({nets, 1});
  figures.push_back(MeasureScrolled(views, name));
  figures.push_back(MeasureLabel(views, name));
  figures.push_back(MeasureFilter(views, name));
  return figures;
}

}  // namespace oxecad_bench
