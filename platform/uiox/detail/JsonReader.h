/// \file
/// Reads JSON objects strictly and says where something is wrong.
#ifndef OXECAD_UIOX_DETAIL_JSONREADER_H
#define OXECAD_UIOX_DETAIL_JSONREADER_H

#include <uiox/detail/JsonValue.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace uiox::detail {

/// One object of a description. Getters give the fallback for a key that is not there and throw `BadDescription` for a
/// value of another kind.
class JsonReader {
 public:
  /// `where` is empty for the outermost object.
  JsonReader(const JsonValue& object, std::string where);

  bool Has(const char* key) const { return object_.Find(key) != nullptr; }
  std::string Text(const char* key, const char* fallback) const;
  std::wstring Wide(const char* key) const;
  bool Flag(const char* key, bool fallback) const;
  /// Within the limits, both included.
  int Number(const char* key, int fallback, int least, int most) const;
  /// The object of that key; only where it is there.
  JsonReader Object(const char* key) const;
  /// Calls `visit(element, where)` for each element of the array of that key; not at all where it is not there.
  void ForEach(const char* key, const std::function<void(const JsonValue&, const std::string&)>& visit) const;
  /// Calls `visit(key, text)` for each entry of the object of that key, all of which are texts.
  void ForEachText(const char* key, const std::function<void(const std::string&, const std::string&)>& visit) const;
  /// Throws where the object has another key than these.
  void AllowOnly(std::initializer_list<std::string_view> keys) const;
  [[noreturn]] void Fail(const char* key, const std::string& what) const;

 private:
  std::string Where(const char* key) const { return where_.empty() ? key : where_ + '.' + key; }

  const JsonValue& object_;
  std::string where_;
};

/// UTF-8, as JSON texts are, to UTF-16 units, one in each `wchar_t`.
std::wstring Widened(const std::string& utf8);

}  // namespace uiox::detail

#endif
