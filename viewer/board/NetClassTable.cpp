#include <viewer/board/NetClassTable.h>

#include <limits>
#include <utility>

namespace oxviewer {

namespace {

constexpr const char* kDefaultName = "Default";

bool Continues(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

std::size_t NextCharacter(std::string_view text, std::size_t at) {
  ++at;
  while (at < text.size() && Continues(text[at])) ++at;
  return at;
}

}  // namespace

void NetClassTable::Add(std::string_view className) { classes_.emplace_back(className); }

void NetClassTable::Assign(std::string_view net, std::string_view className) { assignments_.emplace(net, className); }

void NetClassTable::AddPattern(std::string pattern, std::string className, std::size_t offset) {
  patterns_.push_back({std::move(pattern), std::move(className), offset});
}

void NetClassTable::Apply(Board& board) const { Apply(board, std::numeric_limits<std::uint64_t>::max()); }

std::size_t NetClassTable::Apply(Board& board, std::uint64_t steps) const {
  std::vector<NetClass> classes{{kDefaultName}};
  std::map<std::string, NetClassId> ids{{kDefaultName, 0}};
  for (const std::string& name : classes_) {
    if (ids.emplace(name, static_cast<NetClassId>(classes.size())).second) classes.push_back({name});
  }
  const auto idOf = [&ids](const std::string& name) {
    const auto found = ids.find(name);
    return found == ids.end() ? NetClassId{0} : found->second;
  };
  std::vector<NetClassId> ofNets(board.nets.size(), 0);
  for (std::size_t i = 0; i < ofNets.size(); ++i) {
    const std::string& net = board.nets[i].name;
    const auto assigned = assignments_.find(net);
    if (assigned != assignments_.end()) {
      ofNets[i] = idOf(assigned->second);
      continue;
    }
    for (const Pattern& pattern : patterns_) {
      const bool matches = MatchesPattern(net, pattern.text, steps);
      if (steps == 0) return pattern.offset;
      if (!matches) continue;
      ofNets[i] = idOf(pattern.className);
      break;
    }
  }
  board.netClasses = std::move(classes);
  for (std::size_t i = 0; i < ofNets.size(); ++i) board.nets[i].netClass = ofNets[i];
  return kDone;
}

bool MatchesPattern(std::string_view text, std::string_view pattern, std::uint64_t& steps) {
  std::size_t t = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;  // the last "*" so far, and the text that it leaves to what follows it
  std::size_t afterStar = 0;
  while (steps != 0) {
    --steps;
    if (t == text.size()) {
      while (p < pattern.size() && pattern[p] == '*') ++p;
      return p == pattern.size();
    }
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      afterStar = t;
    } else if (p < pattern.size() && pattern[p] == '?') {
      t = NextCharacter(text, t);
      ++p;
    } else if (p < pattern.size() && pattern[p] == text[t]) {
      ++t;
      ++p;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      t = ++afterStar;
    } else {
      return false;
    }
  }
  return false;
}

}  // namespace oxviewer
