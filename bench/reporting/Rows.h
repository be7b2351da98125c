/// \file
/// What each row of the table measures.
#ifndef OXECAD_BENCH_REPORTING_ROWS_H
#define OXECAD_BENCH_REPORTING_ROWS_H

#include <cstddef>
#include <string>
#include <vector>

#include "bench/reporting/Figure.h"

namespace oxecad_bench {

/// How much is to be measured.
struct Settings {
  bool quick = false;   ///< smaller sizes
  std::string program;  ///< this program's file, to start it anew
  std::string folder;   ///< for files that are measured with

  /// A size, or half of it, or, of a million nodes, a quarter.
  std::size_t Size(std::size_t full) const { return !quick ? full : full >= 1'000'000 ? full / 4 : full / 2; }
};

Figures MeasureComparison(const Settings& settings);     // 1
Figures MeasureSorting(const Settings& settings);        // 2
Figures MeasureInsertion(const Settings& settings);      // 3, 4
Figures MeasureColoring(const Settings& settings);       // 5
Figures MeasureCompareValues(const Settings& settings);  // 6
Figures MeasureLeafChange(const Settings& settings);     // 7
Figures MeasureSiblings(const Settings& settings);       // 8
Figures MeasureMemory(const Settings& settings);         // 9
Figures MeasureIcons(const Settings& settings);          // 10
Figures MeasureFront(const Settings& settings);          // 11
Figures MeasureViewer(const Settings& settings);         // 12
Figures MeasureLoading(const Settings& settings);        // 13

/// A function above with the rows it measures.
struct RowMeasurement {
  std::vector<int> rows;
  Figures (*measure)(const Settings& settings);
};

const std::vector<RowMeasurement>& AllRows();

}  // namespace oxecad_bench

#endif
