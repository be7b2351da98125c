// Every call to the toolkit fails in turn, in every way, once and from then on; then every allocation.

#include <gtest/gtest.h>
#include <tests/torture/ChildProcess.h>
#include <tests/torture/Scenarios.h>

#include <cstdlib>
#include <iostream>
#include <sstream>

namespace torture {

namespace {

constexpr int kMostFailures = 5;
constexpr int kSpreads = static_cast<int>(std::size(kAllSpreads));
/// Ways of a call to fail, and of an allocation.
constexpr int kCallWays = kSpreads * static_cast<int>(std::size(test_support::kAllFailures));
constexpr int kAllocationWays = kSpreads;

bool AllInjections() {
  const char* wanted = std::getenv("OXECAD_LONG_TESTS");
  return wanted && *wanted && std::string(wanted) != "0";
}
/// Of ten injections in a row one is made, unless all are wanted; every way comes round.
bool IsWanted(long at, int way) { return AllInjections() || (at + way) % 10 == 0; }

struct Totals {
  long calls = 0;
  long allocations = 0;
  long Injections() const { return calls * kCallWays + allocations * kAllocationWays; }
};

class Torture : public testing::TestWithParam<Scenario> {
 protected:
  std::vector<std::string> Play(const Injection& injection) {
    Stage stage(injection, records_);
    GetParam().play(stage);
    if (injection.at == 0) totals_ = {stage.Calls(), Allocations::Count()};
    if (injection.at != 0 && injection.kind == Injection::Call && !stage.HasHit()) {
      stage.Complain("the call was not reached");
    }
    return stage.Finish();
  }
  /// The undisturbed run. What another process found out comes back as lines of its own.
  std::vector<std::string> PlayUndisturbed() {
    if (!GetParam().in_fresh_process) return Play({});
    std::vector<std::string> complaints;
    for (const std::string& line : InChild([&] { return Reported(Play({})); })) {
      std::istringstream words(line);
      std::string kind;
      StepRecord record;
      words >> kind;
      if (kind == "total") {
        words >> totals_.calls >> totals_.allocations;
      } else if (kind == "step") {
        words >> record.calls;
        std::getline(words >> std::ws, record.result);
        records_.push_back(record);
      } else {
        complaints.push_back(line);
      }
    }
    return complaints;
  }
  std::vector<std::string> Reported(std::vector<std::string> lines) const {
    for (const StepRecord& record : records_)
      lines.push_back("step " + std::to_string(record.calls) + ' ' + record.result);
    lines.push_back("total " + std::to_string(totals_.calls) + ' ' + std::to_string(totals_.allocations));
    return lines;
  }

  void Note(const Injection& injection, const std::vector<std::string>& complaints) {
    for (const std::string& line : complaints) {
      ADD_FAILURE() << Text(injection) << ": " << line;
      ++failures_;
    }
  }
  void Run(const Injection& injection) {
    ++runs_;
    Note(injection, GetParam().in_fresh_process ? InChild([&] { return Play(injection); }) : Play(injection));
  }

  void FailCalls() {
    for (long at = 1; at <= totals_.calls; ++at) {
      for (int way = 0; way < kCallWays && failures_ < kMostFailures; ++way) {
        if (IsWanted(at, way)) {
          Run({Injection::Call, at, test_support::kAllFailures[way / kSpreads], kAllSpreads[way % kSpreads]});
        }
      }
    }
  }
  void FailAllocations() {
    for (long at = 1; at <= totals_.allocations; ++at) {
      for (int way = 0; way < kAllocationWays && failures_ < kMostFailures; ++way) {
        if (IsWanted(at, way)) Run({Injection::Allocation, at, {}, kAllSpreads[way]});
      }
    }
  }

  std::vector<StepRecord> records_;
  Totals totals_;
  int failures_ = 0;
  long runs_ = 0;
};

TEST_P(Torture, LosesLeaksAndHangsNothing) {
  Note({}, PlayUndisturbed());
  ASSERT_EQ(failures_, 0);
  ASSERT_GT(totals_.calls + totals_.allocations, 0);
  FailCalls();
  FailAllocations();
  std::cout << runs_ << " of " << totals_.Injections() << " injections (" << totals_.calls << " calls, "
            << totals_.allocations << " allocations)\n";
}

/// What all runs of all scenarios come to, without making them.
TEST(TortureCount, IsLargeEnough) {
  Totals all;
  for (const Scenario& scenario : AllScenarios()) {
    if (scenario.in_fresh_process) continue;
    std::vector<StepRecord> records;
    Stage stage({}, records);
    scenario.play(stage);
    all.calls += stage.Calls();
    all.allocations += Allocations::Count();
    EXPECT_EQ(stage.Finish(), std::vector<std::string>()) << scenario.name;
  }
  std::cout << all.Injections() << " injections in all, besides those in processes of their own\n";
  EXPECT_GE(all.Injections(), 100'000);
}

std::string NameOf(const testing::TestParamInfo<Scenario>& info) { return info.param.name; }
INSTANTIATE_TEST_SUITE_P(Scenario, Torture, testing::ValuesIn(AllScenarios()), NameOf);

}  // namespace
}  // namespace torture
