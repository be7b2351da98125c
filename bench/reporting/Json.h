/// \file
/// The figures for other programs.
#ifndef OXECAD_BENCH_REPORTING_JSON_H
#define OXECAD_BENCH_REPORTING_JSON_H

#include <string>

#include "bench/reporting/Figure.h"

namespace oxecad_bench {

/// An array with one object for each figure; null stands for what was not measured.
std::string JsonOf(const Figures& figures);

/// The figures that `JsonOf` wrote.
Figures FiguresIn(const std::string& json);

}  // namespace oxecad_bench

#endif
