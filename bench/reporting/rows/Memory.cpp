// Resident memory of nodes that are found by name.
#include "bench/reporting/MemoryProbe.h"
#include "bench/reporting/Numbers.h"
#include "bench/reporting/Rows.h"

namespace oxecad_bench {

Figures MeasureMemory(const Settings& settings) {
  constexpr int kRepetitions = 5;
  const std::size_t count = settings.Size(1'000'000);
  std::vector<Outcome> outcomes;
  for (const std::string& kind : ProbeKinds()) {
    std::vector<double> bytes;
    for (int repetition = 0; repetition < kRepetitions; ++repetition) {
      bytes.push_back(BytesPerNode(settings.program, kind, count));
    }
    outcomes.push_back({kind, Median(bytes)});
  }
  Figure figure = FigureOf(9, "resident bytes per node, " + Grouped(count) + " nodes found by name", outcomes);
  figure.unit = "bytes";
  figure.calls = figure.allocations = std::nullopt;
  figure = WithFloor(WithOther(figure, outcomes[2]), outcomes[3]);
  return {Absolute(figure, figure.ours, 132, "bytes")};
}

}  // namespace oxecad_bench
