#include <uiox/detail/JsonReader.h>

#include <utf8.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace uiox::detail {

JsonReader::JsonReader(const nlohmann::json& object, std::string where) : object_(object), where_(std::move(where)) {
  if (!object.is_object()) throw BadDescription(where_, "an object is expected");
}

std::string JsonReader::Text(const char* key, const char* fallback) const {
  const auto found = object_.find(key);
  if (found == object_.end()) return fallback;
  if (!found->is_string()) Fail(key, "a text is expected");
  std::string text = found->get<std::string>();
  if (text.find('\0') != text.npos) Fail(key, "the text holds the character 0");
  return text;
}

std::wstring JsonReader::Wide(const char* key) const { return Widened(Text(key, "")); }

bool JsonReader::Flag(const char* key, bool fallback) const {
  const auto found = object_.find(key);
  if (found == object_.end()) return fallback;
  if (!found->is_boolean()) Fail(key, "true or false is expected");
  return found->get<bool>();
}

int JsonReader::Number(const char* key, int fallback, int least, int most) const {
  const auto found = object_.find(key);
  if (found == object_.end()) return fallback;
  const std::string limits =
      "a whole number from " + std::to_string(least) + " to " + std::to_string(most) + " is expected";
  if (!found->is_number_integer()) Fail(key, limits);
  if (found->is_number_unsigned() && found->get<std::uint64_t>() > static_cast<std::uint64_t>(INT32_MAX))
    Fail(key, limits);
  const auto number = found->get<std::int64_t>();
  if (number < least || number > most) Fail(key, limits);
  return static_cast<int>(number);
}

JsonReader JsonReader::Object(const char* key) const { return JsonReader(object_.at(key), Where(key)); }

void JsonReader::ForEach(const char* key,
                         const std::function<void(const nlohmann::json&, const std::string&)>& visit) const {
  const auto found = object_.find(key);
  if (found == object_.end()) return;
  if (!found->is_array()) Fail(key, "an array is expected");
  std::size_t number = 0;
  for (const nlohmann::json& element : *found) visit(element, Where(key) + '[' + std::to_string(number++) + ']');
}

void JsonReader::ForEachText(const char* key,
                             const std::function<void(const std::string&, const std::string&)>& visit) const {
  if (!Has(key)) return;
  const JsonReader texts = Object(key);
  for (const auto& entry : texts.object_.items()) visit(entry.key(), texts.Text(entry.key().c_str(), ""));
}

void JsonReader::AllowOnly(std::initializer_list<std::string_view> keys) const {
  for (const auto& entry : object_.items()) {
    if (std::find(keys.begin(), keys.end(), entry.key()) == keys.end())
      Fail(entry.key().c_str(), "there is no such key");
  }
}

void JsonReader::Fail(const char* key, const std::string& what) const { throw BadDescription(Where(key), what); }

std::wstring Widened(const std::string& utf8) {
  std::u16string units;
  utf8::utf8to16(utf8.begin(), utf8.end(), std::back_inserter(units));
  return std::wstring(units.begin(), units.end());
}

}  // namespace uiox::detail
