#include <oxcore/Help.h>

#include <utility>

namespace oxcore {
namespace {

HelpViewer& Viewer() {
  static HelpViewer& viewer = *new HelpViewer;
  return viewer;
}

}  // namespace

HelpViewer SetHelpViewer(HelpViewer viewer) { return std::exchange(Viewer(), std::move(viewer)); }

void ShowHelp(const oxkutils::Symbol& topic) {
  if (topic.empty() || !Viewer()) return;
  const HelpViewer viewer = Viewer();  // a viewer may replace itself while it runs
  viewer(topic);
}

}  // namespace oxcore
