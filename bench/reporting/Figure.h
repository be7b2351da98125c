/// \file
/// One line of the table.
#ifndef OXECAD_BENCH_REPORTING_FIGURE_H
#define OXECAD_BENCH_REPORTING_FIGURE_H

#include <optional>
#include <string>
#include <vector>

#include "bench/reporting/Measure.h"

namespace oxecad_bench {

/// What was measured of one workload, and whether that is good enough: `ratio` must not be greater than `goal`.
struct Figure {
  int row = 0;
  std::string workload;
  std::string unit = "ns";  ///< of ours, peer and floor, for one operation
  double ours = 0;
  std::optional<double> peer;
  std::optional<double> floor;
  std::string peer_name;
  std::string floor_name;
  std::vector<Outcome> others;  ///< further peers, that no goal is about
  double ratio = 0;
  double goal = 0;
  std::string goal_text;
  std::optional<double> calls;  ///< of the toolkit, for one operation
  std::optional<double> allocations;

  bool Met() const { return ratio <= goal; }
};

using Figures = std::vector<Figure>;

/// A figure of a race that "ours" won or lost: the first outcome is ours, the second the peer. A goal has to be given
/// with one of the three functions below.
Figure FigureOf(int row, std::string workload, const std::vector<Outcome>& outcomes);

/// The outcome is the floor and no further peer.
Figure WithFloor(Figure figure, const Outcome& floor);
Figure WithOther(Figure figure, const Outcome& other);

/// At most so many times what the peer, or the floor, needs.
Figure AgainstPeer(Figure figure, double goal);
Figure AgainstFloor(Figure figure, double goal);
/// At most so much, whatever others need. `value` is what ours needs, in the goal's unit.
Figure Absolute(Figure figure, double value, double goal, const std::string& unit);

}  // namespace oxecad_bench

#endif
