/// \file
/// Measures contenders in turn on the same work.
#ifndef OXECAD_BENCH_REPORTING_MEASURE_H
#define OXECAD_BENCH_REPORTING_MEASURE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace oxecad_bench {

/// The time that the processors have spent on this process so far, in nanoseconds. Steady, and not spoilt by what else
/// the machine has to do.
double ProcessorTime();

/// What one run of a contender took. Whatever a contender does outside of `Run` is not measured.
class Meter {
 public:
  enum class Mode {
    Time,  ///< the clock runs
    Count  ///< toolkit calls and allocations are counted, and the clock says nothing
  };
  explicit Meter(Mode mode) : mode_(mode) {}

  /// Does the work and measures it. What several calls measure adds up.
  template <class Work>
  void Run(const Work& work) {
    if (mode_ == Mode::Count) return Count(work);
    const double start = ProcessorTime();
    work();
    time_ += ProcessorTime() - start;
  }

  /// The same, but of several calls the longest stands.
  template <class Work>
  void RunLongest(const Work& work) {
    const auto before = std::exchange(time_, 0);
    Run(work);
    time_ = std::max(time_, before);
  }

  double Nanoseconds() const { return time_; }
  std::uint64_t Calls() const { return calls_; }
  std::uint64_t Allocations() const { return allocations_; }

 private:
  void Count(const std::function<void()>& work);

  Mode mode_;
  double time_ = 0;
  std::uint64_t calls_ = 0;
  std::uint64_t allocations_ = 0;
};

/// One way to do the work. `run` prepares, hands the work itself to the meter, and tidies up.
struct Contender {
  std::string name;
  std::function<void(Meter& meter)> run;
};

/// What a contender needs for one operation.
struct Outcome {
  std::string name;
  double nanoseconds = 0;  ///< the median of all runs
  double calls = 0;        ///< of the toolkit; counted for the first contender alone, as are the allocations
  double allocations = 0;
};

/// Runs the contenders in turn, as often as said, and then counts for the first one. `operations` is how many a run
/// does.
std::vector<Outcome> Race(const std::vector<Contender>& contenders, std::size_t operations, int repetitions = 5);

double Median(std::vector<double> values);

/// Makes the compiler believe that a value is needed.
template <class T>
void Keep(const T& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

/// Throws std::logic_error, which tells the fact, when something is not as the work should have left it.
void Check(bool holds, const char* fact);

/// The memory that the program has asked for so far, in blocks.
std::uint64_t AllocationCount();

}  // namespace oxecad_bench

#endif
