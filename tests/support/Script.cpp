#include <tests/support/Script.h>

#include <cctype>
#include <cstring>

namespace test_support {
namespace {

constexpr int kGetNode = 2202;
constexpr std::uintptr_t kGarbage = 0xDEADBEEFu;

bool IsOut(char shape) { return std::isupper(static_cast<unsigned char>(shape)) != 0; }

/// The n-th positional text, or null.
const char* PositionalText(const uiox::Call& call, int number) {
  for (std::size_t i = 0; i < call.positional_count; ++i) {
    if (call.positional_shape[i] == 's' && number-- == 0) return call.positional[i].Text();
  }
  return nullptr;
}

bool Equal(const std::optional<std::string>& wanted, const char* text) { return !wanted || (text && *wanted == text); }

void WriteNumber(char shape, uiox::Slot place, std::intptr_t value) {
  if (!place.Pointer()) return;
  switch (shape) {
    case 'I':
      *place.Out<std::int32_t>() = static_cast<std::int32_t>(value);
      break;
    case 'U':
      *place.Out<std::uint32_t>() = static_cast<std::uint32_t>(value);
      break;
    default:
      *place.Out<std::intptr_t>() = value;
  }
}

}  // namespace

/// One or more allocations that live and die together. Each is exactly as long as what it holds, so that reading past
/// its end is seen.
struct Script::Block {
  std::vector<std::unique_ptr<char[]>> texts;
  std::unique_ptr<wchar_t[]> wide;
  std::unique_ptr<char*[]> array;

  void* Address() const {
    if (array) return array.get();
    return wide ? static_cast<void*>(wide.get()) : texts.front().get();
  }
};

bool Match::Fits(const uiox::Call& call) const {
  if (call.function != function || (code && call.code != *code)) return false;
  if (!Equal(first, PositionalText(call, 0)) || !Equal(second, PositionalText(call, 1))) return false;
  if (!Equal(component, call.component)) return false;
  for (const int option : options) {
    if (!call.Find(option)) return false;
  }
  return true;
}

Rule& Rule::Set(int option, AnswerValue value) {
  values_.emplace_back(option, std::move(value));
  return *this;
}

Rule& Rule::Give(int option, std::initializer_list<const char*> names) {
  NameList list;
  for (const char* name : names) list.push_back(name ? std::optional<std::string>(name) : std::nullopt);
  return Set(option, std::move(list));
}

Rule& Rule::Give(int option, std::vector<std::string> names) {
  return Set(option, NameList(names.begin(), names.end()));
}

Rule& Script::When(Match match) { return rules_.emplace_front(std::move(match)); }

bool Script::Answer(const uiox::Call& call, int& result) {
  for (Rule& rule : rules_) {
    if (rule.left_ == 0 || !rule.match_.Fits(call)) continue;
    if (rule.left_ > 0) --rule.left_;
    if (rule.action_) rule.action_(call);
    if (rule.scribble_) Scribble(call);
    for (const auto& [code, value] : rule.values_) {
      for (const uiox::Option& option : call) {
        if (option.code == code) Fill(call, option, value);
      }
    }
    std::size_t next = 0;
    for (std::size_t i = 0; i < call.positional_count && next < rule.in_order_.size(); ++i) {
      if (IsOut(call.positional_shape[i])) {
        WriteNumber(call.positional_shape[i], call.positional[i], rule.in_order_[next++]);
      }
    }
    if (call.function == uiox::Function::BalloonStyle && !rule.in_order_.empty()) {
      WriteNumber('P', {reinterpret_cast<std::intptr_t>(call.value)}, rule.in_order_.front());
    }
    result = rule.result_.value_or(call.function == uiox::Function::CreateDeviceExt ? 1 : 0);
    return true;
  }
  return false;
}

std::shared_ptr<Script::Block> Script::Text(const std::string& text) {
  auto block = std::make_shared<Block>();
  block->texts.push_back(std::make_unique<char[]>(text.size() + 1));
  std::memcpy(block->texts.back().get(), text.c_str(), text.size() + 1);
  return block;
}

std::shared_ptr<Script::Block> Script::Wide(const std::wstring& text) {
  auto block = std::make_shared<Block>();
  block->wide = std::make_unique<wchar_t[]>(text.size() + 1);
  std::memcpy(block->wide.get(), text.c_str(), (text.size() + 1) * sizeof(wchar_t));
  return block;
}

std::shared_ptr<Script::Block> Script::Array(const NameList& names) {
  auto block = std::make_shared<Block>();
  block->array = std::make_unique<char*[]>(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (!names[i]) continue;
    block->texts.push_back(std::make_unique<char[]>(names[i]->size() + 1));
    std::memcpy(block->texts.back().get(), names[i]->c_str(), names[i]->size() + 1);
    block->array[i] = block->texts.back().get();
  }
  return block;
}

void* Script::Keep(const uiox::Call& call, std::shared_ptr<Block> block) {
  void* const address = block->Address();
  if (call.function == uiox::Function::DoOperation && call.code == kGetNode) {
    handed_out_[address] = std::move(block);
  } else {
    lent_.push_back(std::move(block));
  }
  return address;
}

void Script::Fill(const uiox::Call& call, const uiox::Option& option, const AnswerValue& value) {
  if (!IsOut(option.shape)) return;
  const auto point = [](uiox::Slot place, void* to) {
    if (place.Pointer()) *place.Out<void*>() = to;
  };
  if (const auto* number = std::get_if<std::intptr_t>(&value)) {
    WriteNumber(option.shape, option.value, *number);
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    point(option.value, Keep(call, Text(*text)));
  } else if (const auto* wide = std::get_if<std::wstring>(&value)) {
    point(option.value, Keep(call, Wide(*wide)));
  } else if (std::holds_alternative<NullText>(value)) {
    point(option.value, nullptr);
  } else if (const auto* none = std::get_if<NullArray>(&value)) {
    WriteNumber('I', option.value, none->count);
    point(option.array, nullptr);
  } else if (const auto* names = std::get_if<NameList>(&value)) {
    WriteNumber('I', option.value, static_cast<std::intptr_t>(names->size()));
    if (option.array.Pointer()) point(option.array, names->empty() ? nullptr : Keep(call, Array(*names)));
  }
}

bool Script::Release(const uiox::Call& free) {
  if (free.option_count != 1) return false;
  const uiox::Option& option = free.options[0];
  const uiox::Slot place = option.shape == 'l' ? option.array : option.value;
  return place.Pointer() && handed_out_.erase(*place.Out<void*>()) == 1;
}

void Script::Scribble(const uiox::Call& call) {
  for (std::size_t i = 0; i < call.positional_count; ++i) {
    if (IsOut(call.positional_shape[i])) WriteNumber(call.positional_shape[i], call.positional[i], kGarbage);
  }
  for (const uiox::Option& option : call) {
    if (!IsOut(option.shape)) continue;
    WriteNumber(option.shape == 'L' ? 'I' : option.shape, option.value, option.shape == 'L' ? 77 : kGarbage);
    if (option.shape == 'L') WriteNumber('P', option.array, kGarbage);
  }
}

void Script::GiveNulls(const uiox::Call& call, int count) {
  for (const uiox::Option& option : call) {
    if (!IsOut(option.shape)) continue;
    Fill(call, option, option.shape == 'L' ? AnswerValue(NullArray{count}) : AnswerValue(std::intptr_t{0}));
  }
}

void Script::GiveNullNames(const uiox::Call& call, int count) {
  for (const uiox::Option& option : call) {
    if (!IsOut(option.shape)) continue;
    const NameList names(static_cast<std::size_t>(count));
    Fill(call, option, option.shape == 'L' ? AnswerValue(names) : AnswerValue(std::intptr_t{0}));
  }
}

}  // namespace test_support
