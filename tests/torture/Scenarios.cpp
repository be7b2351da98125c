#include <tests/torture/Scenarios.h>

namespace torture {

std::vector<Scenario> AllScenarios() {
  std::vector<Scenario> all;
  for (const auto& family : {BaseTreeScenarios(), TreeScenarios(), ColorScenarios(), CompareScenarios(),
                             UserDataScenarios(), DialogScenarios()}) {
    all.insert(all.end(), family.begin(), family.end());
  }
  return all;
}

}  // namespace torture
