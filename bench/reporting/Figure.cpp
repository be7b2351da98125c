#include "bench/reporting/Figure.h"

#include <utility>

#include "bench/reporting/Numbers.h"

namespace oxecad_bench {

Figure FigureOf(int row, std::string workload, const std::vector<Outcome>& outcomes) {
  Figure figure;
  figure.row = row;
  figure.workload = std::move(workload);
  figure.ours = outcomes.front().nanoseconds;
  figure.calls = outcomes.front().calls;
  figure.allocations = outcomes.front().allocations;
  if (outcomes.size() > 1) {
    figure.peer = outcomes[1].nanoseconds;
    figure.peer_name = outcomes[1].name;
  }
  return figure;
}

Figure WithFloor(Figure figure, const Outcome& floor) {
  figure.floor = floor.nanoseconds;
  figure.floor_name = floor.name;
  return figure;
}

Figure WithOther(Figure figure, const Outcome& other) {
  figure.others.push_back(other);
  return figure;
}

Figure AgainstPeer(Figure figure, double goal) {
  figure.ratio = figure.ours / figure.peer.value();
  figure.goal = goal;
  figure.goal_text = "≤ " + Decimal(goal) + " × " + figure.peer_name;
  return figure;
}

Figure AgainstFloor(Figure figure, double goal) {
  figure.ratio = figure.ours / figure.floor.value();
  figure.goal = goal;
  figure.goal_text = "≤ " + Decimal(goal) + " × floor";
  return figure;
}

Figure Absolute(Figure figure, double value, double goal, const std::string& unit) {
  figure.ratio = value;
  figure.goal = goal;
  figure.goal_text = "≤ " + Decimal(goal) + " " + unit;
  return figure;
}

}  // namespace oxecad_bench
