#include <viewer/board/NetTable.h>

#include <utility>

namespace oxviewer {

NetId NetTable::ByName(std::string_view name) {
  if (name.empty()) return kNoNet;
  const auto place = byName_.lower_bound(name);
  if (place != byName_.end() && place->first == name) return place->second;
  Entry entry;
  entry.name = name;
  const NetId id = Add(std::move(entry));
  byName_.emplace_hint(place, name, id);
  return id;
}

NetId NetTable::ByNumber(std::int64_t number) {
  if (number <= 0) return kNoNet;
  const auto place = byNumber_.lower_bound(number);
  if (place != byNumber_.end() && place->first == number) return place->second;
  Entry entry;
  entry.number = number;
  const NetId id = Add(std::move(entry));
  byNumber_.emplace_hint(place, number, id);
  return id;
}

bool NetTable::Bind(std::int64_t number, std::string_view name) {
  if (number <= 0) return true;
  const auto place = byNumber_.lower_bound(number);
  if (place == byNumber_.end() || place->first != number) {
    byNumber_.emplace_hint(place, number, ByName(name));
    return true;
  }
  if (place->second == kNoNet) return name.empty();
  Entry& entry = entries_[static_cast<std::size_t>(place->second)];
  if (entry.nothing || !entry.name.empty()) return entry.name == name;
  entry.nothing = name.empty();
  if (entry.nothing) return true;
  entry.name = name;
  const auto [known, isNew] = byName_.emplace(name, place->second);
  if (!isNew) entry.sameAs = known->second;
  return true;
}

NetId NetTable::Add(Entry entry) {
  const auto id = static_cast<NetId>(entries_.size());
  entries_.push_back(std::move(entry));
  return id;
}

std::vector<Net> NetTable::Finish(std::vector<NetId>& finalIds) {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    Entry& entry = entries_[i];
    if (entry.nothing || !entry.name.empty()) continue;
    entry.name = std::to_string(entry.number);
    const auto [known, isNew] = byName_.emplace(entry.name, static_cast<NetId>(i));
    if (!isNew) entry.sameAs = known->second;
  }
  std::vector<Net> nets;
  finalIds.assign(entries_.size(), kNoNet);
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].nothing || entries_[i].sameAs != kNoNet) continue;
    finalIds[i] = static_cast<NetId>(nets.size());
    nets.push_back({std::move(entries_[i].name), 0});
  }
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].sameAs != kNoNet) finalIds[i] = finalIds[static_cast<std::size_t>(entries_[i].sameAs)];
  }
  return nets;
}

}  // namespace oxviewer
