/// \file
/// The figures for other programs.
#ifndef OXECAD_BENCH_REPORTING_JSON_H
#define OXECAD_BENCH_REPORTING_JSON_H

#include <string>

#include "bench/reporting/Figure.h"

namespace oxecad_bench {

/// An array with one object for each figure; null stands for what was not measured.
std::string JsonOf(const Figures& figures);

}  // namespace oxecad_bench

#endif
