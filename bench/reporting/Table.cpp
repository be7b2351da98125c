#include "bench/reporting/Table.h"

#include <algorithm>
#include <cstddef>

#include "bench/reporting/Numbers.h"

namespace oxecad_bench {

namespace {

using Line = std::vector<std::string>;

const Line kHeads = {"#", "workload", "ours", "peers", "floor", "ratio", "goal", "met", "calls", "allocations"};

std::string OrNothing(const std::optional<double>& number) { return number ? Measured(*number) : std::string("–"); }

/// Long times are told in milliseconds.
std::string ValueOf(double value, const std::string& unit) {
  constexpr double kMillisecond = 1e6;
  if (unit == "ns") return value < kMillisecond ? Measured(value) : Measured(value / kMillisecond) + " ms";
  return Measured(value) + ' ' + unit;
}

std::string PeersOf(const Figure& figure) {
  if (!figure.peer) return "–";
  std::string text = ValueOf(*figure.peer, figure.unit) + ' ' + figure.peer_name;
  for (const Outcome& other : figure.others) text += "; " + ValueOf(other.nanoseconds, figure.unit) + ' ' + other.name;
  return text;
}

std::string FloorOf(const Figure& figure) {
  return figure.floor ? ValueOf(*figure.floor, figure.unit) + ' ' + figure.floor_name : std::string("–");
}

Line LineOf(const Figure& figure) {
  return {std::to_string(figure.row),
          figure.workload,
          ValueOf(figure.ours, figure.unit),
          PeersOf(figure),
          FloorOf(figure),
          Measured(figure.ratio),
          figure.goal_text,
          figure.Met() ? "yes" : "**no**",
          OrNothing(figure.calls),
          OrNothing(figure.allocations)};
}

/// The number of characters of a text in UTF-8.
std::size_t Width(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Joined(const Line& cells, const std::vector<std::size_t>& widths) {
  std::string text = "|";
  for (std::size_t column = 0; column < cells.size(); ++column) {
    text += ' ' + cells[column] + std::string(widths[column] - Width(cells[column]), ' ') + " |";
  }
  return text + '\n';
}

}  // namespace

std::string TableOf(const Figures& figures) {
  std::vector<Line> lines = {kHeads};
  for (const Figure& figure : figures) lines.push_back(LineOf(figure));
  std::vector<std::size_t> widths(kHeads.size(), 3);
  for (const Line& line : lines) {
    for (std::size_t column = 0; column < line.size(); ++column) {
      widths[column] = std::max(widths[column], Width(line[column]));
    }
  }
  std::string text = Joined(lines.front(), widths) + '|';
  for (const std::size_t width : widths) text += ' ' + std::string(width, '-') + " |";
  text += '\n';
  for (std::size_t line = 1; line < lines.size(); ++line) text += Joined(lines[line], widths);
  return text;
}

}  // namespace oxecad_bench
