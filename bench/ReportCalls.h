/// \file
/// Counts the toolkit's calls beside the time that a benchmark takes.
#ifndef OXECAD_BENCH_REPORTCALLS_H
#define OXECAD_BENCH_REPORTCALLS_H

#include <benchmark/benchmark.h>

#include "bench/CallCounter.h"

namespace oxecad_bench {

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
