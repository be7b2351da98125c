/// \file
/// What the report is asked to do.
#ifndef OXECAD_BENCH_REPORTING_OPTIONS_H
#define OXECAD_BENCH_REPORTING_OPTIONS_H

#include <set>
#include <string>
#include <variant>
#include <vector>

namespace oxecad_bench {

struct Options {
  bool help = false;
  bool quick = false;
  std::string json;    ///< a file for the figures; empty: none
  std::string page;    ///< a Markdown file that gets the table and the curves; empty: none
  std::set<int> rows;  ///< empty: all
};

/// Reads the arguments behind the program's name; gives what is wrong with them.
std::variant<Options, std::string> ParseOptions(const std::vector<std::string>& arguments);

}  // namespace oxecad_bench

#endif
