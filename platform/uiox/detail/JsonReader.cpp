#include <uiox/detail/JsonReader.h>

#include <utf8.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace uiox::detail {

JsonReader::JsonReader(const JsonValue& object, std::string where) : object_(object), where_(std::move(where)) {
  if (object.kind != JsonValue::kObject) throw BadDescription(where_, "an object is expected");
}

std::string JsonReader::Text(const char* key, const char* fallback) const {
  const JsonValue* found = object_.Find(key);
  if (!found) return fallback;
  if (found->kind != JsonValue::kText) Fail(key, "a text is expected");
  if (found->text.find('\0') != std::string::npos) Fail(key, "the text holds the character 0");
  return found->text;
}

std::wstring JsonReader::Wide(const char* key) const { return Widened(Text(key, "")); }

bool JsonReader::Flag(const char* key, bool fallback) const {
  const JsonValue* found = object_.Find(key);
  if (!found) return fallback;
  if (found->kind != JsonValue::kFlag) Fail(key, "true or false is expected");
  return found->flag;
}

int JsonReader::Number(const char* key, int fallback, int least, int most) const {
  const JsonValue* found = object_.Find(key);
  if (!found) return fallback;
  const std::string limits =
      "a whole number from " + std::to_string(least) + " to " + std::to_string(most) + " is expected";
  if (found->kind != JsonValue::kInteger || found->integer < least || found->integer > most) Fail(key, limits);
  return static_cast<int>(found->integer);
}

JsonReader JsonReader::Object(const char* key) const { return JsonReader(*object_.Find(key), Where(key)); }

void JsonReader::ForEach(const char* key,
                         const std::function<void(const JsonValue&, const std::string&)>& visit) const {
  const JsonValue* found = object_.Find(key);
  if (!found) return;
  if (found->kind != JsonValue::kArray) Fail(key, "an array is expected");
  std::size_t number = 0;
  for (const JsonValue& element : found->elements) visit(element, Where(key) + '[' + std::to_string(number++) + ']');
}

void JsonReader::ForEachText(const char* key,
                             const std::function<void(const std::string&, const std::string&)>& visit) const {
  if (!Has(key)) return;
  const JsonReader texts = Object(key);
  for (const auto& entry : texts.object_.entries) visit(entry.first, texts.Text(entry.first.c_str(), ""));
}

void JsonReader::AllowOnly(std::initializer_list<std::string_view> keys) const {
  for (const auto& entry : object_.entries) {
    if (std::find(keys.begin(), keys.end(), entry.first) == keys.end())
      Fail(entry.first.c_str(), "there is no such key");
  }
}

void JsonReader::Fail(const char* key, const std::string& what) const { throw BadDescription(Where(key), what); }

std::wstring Widened(const std::string& utf8) {
  std::u16string units;
  utf8::utf8to16(utf8.begin(), utf8.end(), std::back_inserter(units));
  return std::wstring(units.begin(), units.end());
}

}  // namespace uiox::detail
