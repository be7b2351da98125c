/// \file
/// A JSON document in memory.
#ifndef OXECAD_UIOX_DETAIL_JSONVALUE_H
#define OXECAD_UIOX_DETAIL_JSONVALUE_H

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace uiox::detail {

struct JsonEntry;

/// A value. Unlike the parser library's own it is ended without memory, so that a lack of it stays an exception.
struct JsonValue {
  enum Kind { kNull, kFlag, kInteger, kNumber, kText, kArray, kObject };

  Kind kind = kNull;
  bool flag = false;
  std::int64_t integer = 0;
  std::string text;
  std::vector<JsonValue> elements;  // of an array
  std::vector<JsonEntry> entries;   // of an object, in the order of the text

  JsonValue();
  JsonValue(JsonValue&&) noexcept;
  JsonValue& operator=(JsonValue&&) noexcept;
  ~JsonValue();
  /// The value of a key of an object, or null.
  const JsonValue* Find(std::string_view key) const;
};

/// A key of an object and its value.
struct JsonEntry {
  std::string first;
  JsonValue second;
};

/// What is wrong with a description, and where ("components[2].class: …").
class BadDescription : public std::runtime_error {
 public:
  BadDescription(const std::string& where, const std::string& what)
      : std::runtime_error(where.empty() ? what : where + ": " + what) {}
};

/// Parses a whole text. Throws `BadDescription` for a text that is no JSON, is nested deeper than `deepest`, or names a
/// key of an object twice.
JsonValue ParseJson(std::string_view text, std::size_t deepest);

}  // namespace uiox::detail

#endif
