#include "bench/reporting/Measure.h"

#include <time.h>

#include <algorithm>
#include <stdexcept>

#include "bench/CallCounter.h"

namespace oxecad_bench {

double ProcessorTime() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return 1e9 * static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec);
}

void Meter::Count(const std::function<void()>& work) {
  CallCounter counter;
  const std::uint64_t before = AllocationCount();
  {
    const uiox::BackendScope scope(counter);
    work();
  }
  allocations_ += AllocationCount() - before;
  calls_ += counter.Count();
}

void Check(bool holds, const char* fact) {
  if (!holds) throw std::logic_error(std::string("expected: ") + fact);
}

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::vector<Outcome> Race(const std::vector<Contender>& contenders, std::size_t operations, int repetitions) {
  const auto count = static_cast<double>(operations);
  std::vector<std::vector<double>> times(contenders.size());
  for (int repetition = 0; repetition < repetitions; ++repetition) {
    for (std::size_t index = 0; index < contenders.size(); ++index) {
      Meter meter(Meter::Mode::Time);
      contenders[index].run(meter);
      times[index].push_back(meter.Nanoseconds() / count);
    }
  }
  std::vector<Outcome> outcomes;
  for (std::size_t index = 0; index < contenders.size(); ++index) {
    outcomes.push_back({contenders[index].name, Median(times[index])});
  }
  Meter meter(Meter::Mode::Count);
  contenders.front().run(meter);
  outcomes.front().calls = static_cast<double>(meter.Calls()) / count;
  outcomes.front().allocations = static_cast<double>(meter.Allocations()) / count;
  return outcomes;
}

}  // namespace oxecad_bench
