/// \file
/// What is played on the stage. Together the scenarios reach every public operation and every callback of the library.
#ifndef OXECAD_TESTS_TORTURE_SCENARIOS_H
#define OXECAD_TESTS_TORTURE_SCENARIOS_H

#include <tests/torture/Stage.h>

#include <vector>

namespace torture {

struct Scenario {
  const char* name;
  void (*play)(Stage& stage);
  /// Each run needs a process that has not shown a balloon before.
  bool in_fresh_process = false;
};

std::vector<Scenario> BaseTreeScenarios();
std::vector<Scenario> TreeScenarios();
std::vector<Scenario> ColorScenarios();
std::vector<Scenario> CompareScenarios();
std::vector<Scenario> UserDataScenarios();
std::vector<Scenario> DialogScenarios();
/// All of them.
std::vector<Scenario> AllScenarios();

}  // namespace torture

#endif
