#include <oxg/LengthUnit.h>

#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <numeric>

namespace oxg {
namespace {

/// By code. Each unit is a whole number of nanometres, so that every factor is an exact fraction.
constexpr std::int64_t kNanometres[] = {1'000'000, 1'000, 25'400'000, 25'400, 1, 10'000'000, 1'000'000'000};
static_assert(std::size(kNanometres) == LengthUnit::Metre + 1);

double Power(std::int64_t base, int exponent) {
  return std::pow(static_cast<double>(base), std::abs(static_cast<double>(exponent)));
}

}  // namespace

double LengthUnit::Convert(unsigned char from, unsigned char to, double value, int exponent) {
  if (from == to || exponent == 0) return value;
  if (from >= std::size(kNanometres) || to >= std::size(kNanometres)) return std::numeric_limits<double>::quiet_NaN();

  const std::int64_t common = std::gcd(kNanometres[from], kNanometres[to]);
  std::int64_t factor = kNanometres[from] / common;
  std::int64_t divisor = kNanometres[to] / common;
  if (exponent < 0) std::swap(factor, divisor);

  const double product = value * Power(factor, exponent);
  if (std::isfinite(product)) return product / Power(divisor, exponent);
  return value / Power(divisor, exponent) * Power(factor, exponent);  // the product alone may be beyond the range
}

}  // namespace oxg
