#include <uiox/detail/JsonValue.h>

#include <nlohmann/json.hpp>
#include <utility>

namespace uiox::detail {

JsonValue::JsonValue() = default;
JsonValue::JsonValue(JsonValue&&) noexcept = default;
JsonValue& JsonValue::operator=(JsonValue&&) noexcept = default;
JsonValue::~JsonValue() = default;

const JsonValue* JsonValue::Find(std::string_view key) const {
  for (const auto& entry : entries) {
    if (entry.first == key) return &entry.second;
  }
  return nullptr;
}

namespace {

/// Builds a value from the parser's events.
class Builder : public nlohmann::json_sax<nlohmann::json> {
 public:
  Builder(JsonValue& root, std::size_t deepest) : root_(root), deepest_(deepest) {}

  bool null() override { return Put({}); }
  bool boolean(bool flag) override {
    JsonValue value;
    value.kind = JsonValue::kFlag;
    value.flag = flag;
    return Put(std::move(value));
  }
  bool number_integer(number_integer_t number) override { return PutInteger(number); }
  bool number_unsigned(number_unsigned_t number) override {
    if (number > INT64_MAX) return number_float(0, {});
    return PutInteger(static_cast<std::int64_t>(number));
  }
  bool number_float(number_float_t, const string_t&) override {
    JsonValue value;
    value.kind = JsonValue::kNumber;
    return Put(std::move(value));
  }
  bool string(string_t& text) override {
    JsonValue value;
    value.kind = JsonValue::kText;
    value.text = std::move(text);
    return Put(std::move(value));
  }
  bool binary(binary_t&) override { return false; }
  bool start_object(std::size_t) override { return Open(JsonValue::kObject); }
  bool start_array(std::size_t) override { return Open(JsonValue::kArray); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }
  bool key(string_t& name) override {
    if (open_.back()->Find(name)) throw BadDescription("", "the key \"" + name + "\" stands twice");
    key_ = std::move(name);
    return true;
  }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) override {
    throw BadDescription("", error.what());
  }

 private:
  /// Where the next value goes. What is open stands last in its parent, so that nothing moves while it is open.
  JsonValue& Place() {
    if (open_.empty()) return root_;
    JsonValue& parent = *open_.back();
    if (parent.kind == JsonValue::kArray) return parent.elements.emplace_back();
    parent.entries.push_back({std::move(key_), JsonValue()});
    return parent.entries.back().second;
  }
  bool Put(JsonValue value) {
    Place() = std::move(value);
    return true;
  }
  bool PutInteger(std::int64_t integer) {
    JsonValue value;
    value.kind = JsonValue::kInteger;
    value.integer = integer;
    return Put(std::move(value));
  }
  bool Open(JsonValue::Kind kind) {
    if (open_.size() == deepest_) throw BadDescription("", "the description is nested too deep");
    JsonValue& value = Place();
    value.kind = kind;
    open_.push_back(&value);
    return true;
  }
  bool Close() {
    open_.pop_back();
    return true;
  }

  JsonValue& root_;
  std::size_t deepest_;
  std::vector<JsonValue*> open_;
  std::string key_;
};

}  // namespace

JsonValue ParseJson(std::string_view text, std::size_t deepest) {
  JsonValue root;
  Builder builder(root, deepest);
  if (!nlohmann::json::sax_parse(text.begin(), text.end(), &builder)) {
    throw BadDescription("", "the text is no JSON");
  }
  return root;
}

}  // namespace uiox::detail
