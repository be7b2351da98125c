/// \file
/// A dirty handler that remembers what it was told.
#ifndef OXECAD_TESTS_SUPPORT_DIRTYSPY_H
#define OXECAD_TESTS_SUPPORT_DIRTYSPY_H

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace test_support {

/// Give `Handler` and `this` to `Tree::SetOnDirtyHandler`; the second client is yours to choose.
///
///     DirtySpy spy;
///     tree.SetOnDirtyHandler(DirtySpy::Handler, &spy, &changed);
///     …
///     EXPECT_EQ(spy.TakeReasons(), (std::vector<std::intptr_t>{1}));
struct DirtySpy {
  static int Handler(void* client, void* reason) {
    auto& spy = *static_cast<DirtySpy*>(client);
    spy.reasons.push_back(reinterpret_cast<std::intptr_t>(reason));
    if (spy.action) spy.action();
    return spy.result;
  }
  /// The reasons since the last time, in order.
  std::vector<std::intptr_t> TakeReasons() { return std::exchange(reasons, {}); }

  std::vector<std::intptr_t> reasons;
  /// Is run inside each notification: to look at the list of changed nodes, or to destroy the tree.
  std::function<void()> action;
  /// What the handler gives; trees have to ignore it.
  int result = 0;
};

}  // namespace test_support

#endif
