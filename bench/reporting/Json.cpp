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

std::optional<double> NumberIn(const ordered_json& value) {
  return value.is_null() ? std::nullopt : std::optional(value.get<double>());
}

Figure FigureIn(const ordered_json& object) {
  Figure figure;
  figure.row = object.at("row").get<int>();
  figure.workload = object.at("workload").get<std::string>();
  figure.unit = object.at("unit").get<std::string>();
  figure.ours = object.at("ours").get<double>();
  figure.peer = NumberIn(object.at("peer"));
  figure.peer_name = object.at("peer_name").get<std::string>();
  figure.floor = NumberIn(object.at("floor"));
  figure.floor_name = object.at("floor_name").get<std::string>();
  figure.ratio = object.at("ratio").get<double>();
  figure.goal = object.at("goal").get<double>();
  figure.goal_text = object.at("goal_text").get<std::string>();
  figure.calls = NumberIn(object.at("calls"));
  figure.allocations = NumberIn(object.at("allocations"));
  for (const auto& [name, value] : object.at("other_peers").items()) {
    figure.others.push_back({name, value.get<double>()});
  }
  return figure;
}

}  // namespace

Figures FiguresIn(const std::string& json) {
  Figures figures;
  for (const ordered_json& object : ordered_json::parse(json)) figures.push_back(FigureIn(object));
  return figures;
}

std::string JsonOf(const Figures& figures) {
  ordered_json array = ordered_json::array();
  for (const Figure& figure : figures) array.push_back(ObjectOf(figure));
  return array.dump(2) + '\n';
}

}  // namespace oxecad_bench
