/// \file
/// Numbers as the report prints them, the same under every locale.
#ifndef OXECAD_BENCH_REPORTING_NUMBERS_H
#define OXECAD_BENCH_REPORTING_NUMBERS_H

#include <cstddef>
#include <string>

namespace oxecad_bench {

/// The shortest decimal form: "0.28", "16".
std::string Decimal(double value);
/// So many digits behind the point: "0.280".
std::string Fixed(double value, int digits);
/// A measured value with three digits or more that count: "0.847", "17.3", "8,030".
std::string Measured(double value);
/// With a comma between thousands: "100,000".
std::string Grouped(std::size_t value);

}  // namespace oxecad_bench

#endif
