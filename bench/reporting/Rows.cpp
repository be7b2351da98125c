#include "bench/reporting/Rows.h"

namespace oxecad_bench {

const std::vector<RowMeasurement>& AllRows() {
  static const std::vector<RowMeasurement> rows = {
      {{1}, &MeasureComparison},    {{2}, &MeasureSorting},    {{3, 4}, &MeasureInsertion}, {{5}, &MeasureColoring},
      {{6}, &MeasureCompareValues}, {{7}, &MeasureLeafChange}, {{8}, &MeasureSiblings},     {{9}, &MeasureMemory},
      {{10}, &MeasureIcons},        {{11}, &MeasureFront},     {{12}, &MeasureViewer},      {{13}, &MeasureLoading}};
  return rows;
}

}  // namespace oxecad_bench
