#include "bench/reporting/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace oxecad_bench {

std::string Decimal(double value) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
  return {text.data(), end};
}

std::string Fixed(double value, int digits) {
  std::array<char, 400> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, digits).ptr;
  return {text.data(), end};
}

std::string Measured(double value) {
  if (value >= 99.95) return Grouped(static_cast<std::size_t>(std::llround(value)));
  if (value >= 9.995) return Fixed(value, 1);
  if (value >= 0.9995) return Fixed(value, 2);
  return Fixed(value, 3);
}

std::string Grouped(std::size_t value) {
  std::string text = std::to_string(value);
  for (std::size_t place = text.size(); place > 3;) text.insert(place -= 3, ",");
  return text;
}

}  // namespace oxecad_bench
