#include "bench/reporting/Json.h"

#include <nlohmann/json.hpp>

namespace oxecad_bench {

namespace {

using nlohmann::ordered_json;

ordered_json NumberOrNull(const std::optional<double>& number) { return number ? ordered_json(*number) : nullptr; }

ordered_json ObjectOf(const Figure& figure) {
  ordered_json object = {{"row", figure.row},
                         {"workload", figure.workload},
                         {"unit", figure.unit},
                         {"ours", figure.ours},
                         {"peer", NumberOrNull(figure.peer)},
                         {"peer_name", figure.peer_name},
                         {"floor", NumberOrNull(figure.floor)},
                         {"floor_name", figure.floor_name},
                         {"ratio", figure.ratio},
                         {"goal", figure.goal},
                         {"goal_text", figure.goal_text},
                         {"met", figure.Met()},
                         {"calls", NumberOrNull(figure.calls)},
                         {"allocations", NumberOrNull(figure.allocations)}};
  ordered_json others = ordered_json::object();
  for (const Outcome& other : figure.others) others[other.name] = other.nanoseconds;
  object["other_peers"] = std::move(others);
  return object;
}

}  // namespace

std::string JsonOf(const Figures& figures) {
  ordered_json array = ordered_json::array();
  for (const Figure& figure : figures) array.push_back(ObjectOf(figure));
  return array.dump(2) + '\n';
}

}  // namespace oxecad_bench
