/// \file
/// Strict mode of the stand-in toolkit around every test.
#ifndef OXECAD_TESTS_SUPPORT_STRICTWATCH_H
#define OXECAD_TESTS_SUPPORT_STRICTWATCH_H

#include <uiox/StrictMode.h>

#include <string>

namespace test_support {

/// Every case of a program that is linked with this runs under `uiox::StrictMode`; each fault, and each leftover at the
/// end of the case, fails it. A case that works with the toolkit on purpose as nobody should says so here.
class StrictWatch {
 public:
  /// A leftover that is no fault, as `StrictMode::Leftovers` writes it; once for each.
  static void Expect(std::string leftover);
  /// A fault whose line begins so may be told from now on, any number of times.
  static void Allow(std::string beginning);
  /// The same for all cases of the program; for its `main`.
  static void AllowAlways(std::string beginning);
};

}  // namespace test_support

#endif
