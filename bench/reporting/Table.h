/// \file
/// The figures for people.
#ifndef OXECAD_BENCH_REPORTING_TABLE_H
#define OXECAD_BENCH_REPORTING_TABLE_H

#include <string>

#include "bench/reporting/Figure.h"

namespace oxecad_bench {

/// A Markdown table with aligned columns, one line for each figure.
std::string TableOf(const Figures& figures);

}  // namespace oxecad_bench

#endif
