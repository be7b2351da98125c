/// \file
/// Lets allocations of the library fail. Replaces the allocator of the program.
#ifndef OXECAD_TESTS_TORTURE_ALLOCATIONS_H
#define OXECAD_TESTS_TORTURE_ALLOCATIONS_H

#include <tests/torture/Spread.h>

namespace torture {

/// What allocations are counted: those made between `EnterLibrary` and the end of its scope, but for those that the
/// toolkit makes meanwhile.
class Allocations {
 public:
  /// Counts from 0 again. The n-th allocation fails (0: none), and those behind it that the spread says.
  static void Start(long failing, Spread spread);
  /// Neither counts nor fails any until `Resume`.
  static void Pause();
  static void Resume();
  static long Count();
  static bool HasFailed();
};

/// Says for a scope whether the library works (and its allocations count) or somebody else does.
class WhoWorks {
 public:
  enum Who { Library, Others };
  explicit WhoWorks(Who who);
  ~WhoWorks();
  WhoWorks(const WhoWorks&) = delete;
  WhoWorks& operator=(const WhoWorks&) = delete;

 private:
  const bool before_;
};

}  // namespace torture

#endif
