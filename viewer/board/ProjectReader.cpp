#include <viewer/board/BoardReader.h>
#include <viewer/board/NetClassTable.h>
#include <viewer/board/SexprLexer.h>

#include <cstddef>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

namespace oxviewer {

namespace {

// Walks a text and leaves word of how far it came, for the place in an error.
class TrackedIterator {
 public:
  using iterator_category = std::forward_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  TrackedIterator(const char* at, const char** reached) : at_(at), reached_(reached) {}
  reference operator*() const { return *at_; }
  TrackedIterator& operator++() {
    *reached_ = ++at_;
    return *this;
  }
  TrackedIterator operator++(int) {
    TrackedIterator before = *this;
    ++*this;
    return before;
  }
  bool operator==(const TrackedIterator& other) const { return at_ == other.at_; }

 private:
  const char* at_;
  const char** reached_;
};

// Where in the project the parser stands. What interests nobody is Other, with everything below it.
enum class Place {
  Root,
  Other,
  Settings,         // net_settings
  Classes,          // net_settings.classes
  Class,            // one of them
  ClassNets,        // its "nets" (version 6)
  Assignments,      // net_settings.netclass_assignments (version 7 on)
  AssignedClasses,  // the classes of one net (version 9)
  Patterns,         // net_settings.netclass_patterns
  Pattern           // one of them
};

// Collects the net classes from the events of a JSON parser; false from an event stops it.
class ClassCollector {
 public:
  ClassCollector(const char* begin, const char* const* reached, const ReaderLimits& limits)
      : begin_(begin), reached_(reached), limits_(limits) {}

  NetClassTable table;
  SyntaxError error{0, {}};

  bool null() { return Scalar("null"); }
  bool boolean(bool) { return Scalar("a boolean"); }
  bool number_integer(std::int64_t) { return Number(); }
  bool number_unsigned(std::uint64_t) { return Number(); }
  bool number_float(double, const std::string&) { return Number(); }
  bool binary(std::vector<std::uint8_t>&) { return Scalar("bytes"); }
  bool string(std::string& value);
  bool key(std::string& name);
  bool start_object(std::size_t) { return Enter(true); }
  bool start_array(std::size_t) { return Enter(false); }
  bool end_object();
  bool end_array() { return Leave(); }
  bool parse_error(std::size_t position, const std::string& lastToken, const nlohmann::detail::exception&);

 private:
  bool Fail(std::string message);
  bool Enter(bool object);
  bool Leave();
  bool Scalar(const char* what);
  bool Number();
  bool TooLong(const std::string& text);
  Place Below(bool object) const;
  const char* Wanted() const;
  bool WantsString() const;

  const char* begin_;
  const char* const* reached_;
  const ReaderLimits& limits_;
  std::vector<Place> places_;
  std::string key_;
  std::string className_;
  std::vector<std::string> classNets_;
  std::string patternText_;
  std::string patternClass_;
  std::string assignedNet_;
};

bool ClassCollector::Fail(std::string message) {
  const auto reached = static_cast<std::size_t>(*reached_ - begin_);
  error = {reached == 0 ? 0 : reached - 1, std::move(message)};
  return false;
}

// The place that a list or object opens here, by the key before it.
Place ClassCollector::Below(bool object) const {
  if (places_.empty()) return Place::Root;
  switch (places_.back()) {
    case Place::Root:
      return key_ == "net_settings" ? Place::Settings : Place::Other;
    case Place::Settings:
      if (key_ == "classes") return Place::Classes;
      if (key_ == "netclass_assignments") return Place::Assignments;
      return key_ == "netclass_patterns" ? Place::Patterns : Place::Other;
    case Place::Classes:
      return Place::Class;
    case Place::Class:
      return key_ == "nets" ? Place::ClassNets : Place::Other;
    case Place::Assignments:
      return object ? Place::Other : Place::AssignedClasses;
    case Place::Patterns:
      return Place::Pattern;
    default:
      return Place::Other;
  }
}

// What must stand here, or null where anything may.
const char* ClassCollector::Wanted() const {
  if (places_.empty()) return "an object";
  const Place place = places_.back();
  if (place == Place::Root && key_ == "net_settings") return "an object";
  if (place == Place::Settings && (key_ == "classes" || key_ == "netclass_patterns")) return "an array";
  if (place == Place::Settings && key_ == "netclass_assignments") return "an object";
  if (place == Place::Classes || place == Place::Patterns) return "an object";
  if (place == Place::Class && key_ == "nets") return "an array";
  if (WantsString()) return place == Place::Assignments ? "the name of a net class" : "a string";
  return nullptr;
}

bool ClassCollector::WantsString() const {
  if (places_.empty()) return false;
  switch (places_.back()) {
    case Place::Class:
      return key_ == "name";
    case Place::Pattern:
      return key_ == "pattern" || key_ == "netclass";
    case Place::ClassNets:
    case Place::Assignments:
    case Place::AssignedClasses:
      return true;
    default:
      return false;
  }
}

bool ClassCollector::Enter(bool object) {
  if (places_.size() >= limits_.nesting) {
    return Fail("expected at most " + std::to_string(limits_.nesting) + " nested values");
  }
  const Place below = Below(object);
  const char* wanted = Wanted();
  const bool fits = !wanted || wanted == std::string_view(object ? "an object" : "an array") ||
                    (below == Place::AssignedClasses && !object);
  if (!fits) return Fail(std::string("expected ") + wanted + ", found " + (object ? "an object" : "an array"));
  if (below == Place::Class) {
    className_.clear();
    classNets_.clear();
  }
  if (below == Place::Pattern) {
    patternText_.clear();
    patternClass_.clear();
  }
  if (below == Place::AssignedClasses) assignedNet_ = key_;
  places_.push_back(below);
  return true;
}

bool ClassCollector::end_object() {
  const Place place = places_.back();
  if (place == Place::Class && !className_.empty()) {
    table.Add(className_);
    for (const std::string& net : classNets_) table.Assign(net, className_);
  }
  if (place == Place::Pattern && !patternText_.empty()) {
    const auto reached = static_cast<std::size_t>(*reached_ - begin_);
    table.AddPattern(std::move(patternText_), std::move(patternClass_), reached - 1);
  }
  return Leave();
}

bool ClassCollector::Leave() {
  places_.pop_back();
  return true;
}

bool ClassCollector::Scalar(const char* what) {
  const char* wanted = Wanted();
  if (!wanted || (what == std::string_view("null") && !places_.empty())) return true;  // null: not set
  return Fail(std::string("expected ") + wanted + ", found " + what);
}

// The parser sees that a number ends by the character behind it.
bool ClassCollector::Number() {
  if (Scalar("a number")) return true;
  const char last = begin_[error.offset];
  if ((last < '0' || last > '9') && error.offset > 0) --error.offset;
  return false;
}

bool ClassCollector::TooLong(const std::string& text) {
  if (text.size() <= limits_.stringBytes) return false;
  Fail("expected a text of at most " + std::to_string(limits_.stringBytes) + " bytes");
  return true;
}

bool ClassCollector::key(std::string& name) {
  if (TooLong(name)) return false;
  key_ = std::move(name);
  return true;
}

bool ClassCollector::string(std::string& value) {
  if (TooLong(value)) return false;
  if (!WantsString()) return Scalar("a string");
  if (value.find('\0') != std::string::npos) return Fail("expected text, found a NUL");
  switch (places_.back()) {
    case Place::Class:
      className_ = std::move(value);
      break;
    case Place::Pattern:
      (key_ == "pattern" ? patternText_ : patternClass_) = std::move(value);
      break;
    case Place::ClassNets:
      classNets_.push_back(std::move(value));
      break;
    case Place::Assignments:
      table.Assign(key_, value);
      break;
    default:
      table.Assign(assignedNet_, value);  // of several classes the first counts
      break;
  }
  return true;
}

// The parser counts the end of the text as one more character.
bool ClassCollector::parse_error(std::size_t position, const std::string& lastToken,
                                 const nlohmann::detail::exception&) {
  constexpr std::size_t kMostBytes = 40;
  const auto reached = static_cast<std::size_t>(*reached_ - begin_);
  if (position > reached) {
    error = {reached, "expected JSON, found the end of the file"};
    return false;
  }
  return Fail("expected JSON, found \"" + lastToken.substr(0, kMostBytes) + '"');
}

}  // namespace

bool ApplyNetClasses(std::string_view projectText, const std::string& name, const ReaderLimits& limits, Board& board,
                     ReadError& error) {
  const char* begin = projectText.data();
  const char* end = begin + projectText.size();
  const char* reached = begin;
  ClassCollector collector(begin, &reached, limits);
  bool sound = nlohmann::json::sax_parse(TrackedIterator(begin, &reached), TrackedIterator(end, &reached), &collector);
  if (sound) {
    const std::size_t stopped = collector.table.Apply(board, limits.patternSteps);
    sound = stopped == NetClassTable::kDone;
    if (!sound) collector.error = {stopped, "expected simpler net class patterns or fewer of them"};
  }
  if (sound) return true;
  const TextPlace place = PlaceOf(projectText, collector.error.offset);
  error = {name, place.line, place.column, collector.error.message};
  return false;
}

}  // namespace oxviewer
