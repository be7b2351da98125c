/// \file
/// What the suite holds.
#ifndef OXECAD_UIOX_DETAIL_SUITESTATE_H
#define OXECAD_UIOX_DETAIL_SUITESTATE_H

#include <uiox/Suite.h>
#include <uiox/detail/WidgetIndex.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace uiox {

struct Suite::State {
  /// A modal run, innermost last. The device may end before the run's loop returns.
  struct Run {
    Device* device;
    int result = kNoResult;
    bool over = false;
  };

  std::vector<std::unique_ptr<Device>> owned;
  std::vector<Device*> devices;
  detail::WidgetIndex index;

  ResourcePath resources;
  ImageBag images;
  NodeTypes types;
  ScreenSize screen;
  std::string current_device;
  std::string current_component;
  std::size_t beeps = 0;

  std::vector<std::unique_ptr<Run>> runs;
  std::deque<std::function<void()>> queue;

  Front* front = nullptr;
  std::vector<SuiteObserver*> observers;

  Run* InnermostRun(const Device& device) const {
    for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
      if ((*run)->device == &device) return run->get();
    }
    return nullptr;
  }
};

}  // namespace uiox

#endif
