/// \file
/// Counts the toolkit's calls beside the time.
#ifndef OXECAD_BENCH_CALLCOUNTER_H
#define OXECAD_BENCH_CALLCOUNTER_H

#include <benchmark/benchmark.h>
#include <uiox/Backend.h>

#include <cstdint>

namespace oxecad_bench {

/// Hands every call on to the stand-in and counts it.
class CallCounter : public uiox::Backend {
 public:
  int Handle(uiox::Call& call) override {
    ++count_;
    return uiox::BuiltIn().Handle(call);
  }
  std::uint64_t Count() const { return count_; }

 private:
  std::uint64_t count_ = 0;
};

/// Runs `work` once, untimed, and reports how many calls it made.
template <class Work>
void ReportCalls(benchmark::State& state, const Work& work) {
  CallCounter counter;
  {
    const uiox::BackendScope scope(counter);
    work();
  }
  state.counters["calls"] = static_cast<double>(counter.Count());
}

}  // namespace oxecad_bench

#endif
