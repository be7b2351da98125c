#include "bench/reporting/Options.h"

#include <charconv>

#include "bench/reporting/Rows.h"

namespace oxecad_bench {

namespace {

bool IsRow(int number) {
  for (const RowMeasurement& each : AllRows()) {
    for (const int row : each.rows) {
      if (row == number) return true;
    }
  }
  return false;
}

bool ParseRow(const std::string& text, std::set<int>& rows) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end || !IsRow(number)) return false;
  rows.insert(number);
  return true;
}

}  // namespace

std::variant<Options, std::string> ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    const std::string& argument = arguments[index];
    const bool takesValue = argument == "--json" || argument == "--write" || argument == "--row";
    if (takesValue && (index + 1 == arguments.size() || arguments[index + 1].empty())) {
      return "option " + argument + " needs a value";
    }
    if (argument == "--quick") {
      options.quick = true;
    } else if (argument == "--json") {
      options.json = arguments[++index];
    } else if (argument == "--write") {
      options.page = arguments[++index];
    } else if (argument == "--row") {
      if (!ParseRow(arguments[++index], options.rows)) {
        return "option --row needs the number of a row, not \"" + arguments[index] + '"';
      }
    } else {
      return "unknown argument \"" + argument + '"';
    }
  }
  if (!options.page.empty() && !options.rows.empty()) return "the page needs all rows: leave out --row";
  return options;
}

}  // namespace oxecad_bench
