#include <tests/support/CallText.h>
#include <tests/support/Quoted.h>

#include <cctype>
#include <cstdint>

namespace test_support {
namespace {

using oxecad_ui::toolkit::ImageBuffer;
using oxecad_ui::toolkit::NodeTypeRecord;
using uiox::Function;

const char* Verb(Function function) {
  switch (function) {
    case Function::DoOperation:
      return "do";
    case Function::Retrieve:
      return "retrieve";
    case Function::Modify:
      return "modify";
    case Function::AddAction:
      return "add_action";
    case Function::RemoveAction:
      return "remove_action";
    case Function::SetAction:
      return "set_action";
    case Function::Free:
      return "free";
    case Function::CreateSearchPath:
      return "create_search_path";
    case Function::CreateDeviceExt:
      return "create_device_ext";
    case Function::CreateDevice:
      return "create_device";
    case Function::ManageDevice:
      return "manage_device";
    case Function::ActivateDevice:
      return "activate_device";
    case Function::UnmanageDevice:
      return "unmanage_device";
    case Function::ExitDevice:
      return "exit_device";
    case Function::GlobalInquire:
      return "global_inquire";
    case Function::GlobalDoOperation:
      return "global_do";
    case Function::Beep:
      return "beep";
    case Function::ReleaseMemory:
      return "relmem";
    case Function::BalloonStyle:
      return "balloon_style";
  }
  return "?";
}

bool HasOptionList(const uiox::Call& call) {
  switch (call.function) {
    case Function::Retrieve:
    case Function::Modify:
    case Function::GlobalInquire:
      return true;
    case Function::DoOperation:
      return call.option_group != uiox::CodeGroup::None;
    default:
      return false;
  }
}

bool EndsWithZero(const uiox::Call& call) {
  switch (call.function) {
    case Function::Retrieve:
    case Function::Modify:
    case Function::GlobalInquire:
    case Function::Free:
      return true;
    case Function::DoOperation:
    case Function::GlobalDoOperation: {
      const std::string_view shape = call.positional_shape;
      return shape.empty() || shape.back() != '.';
    }
    default:
      return false;
  }
}

std::string List(int count, const char* const* names) {
  if (!names) return count == 0 ? "[]" : std::to_string(count) + " null";
  std::string text = "[";
  for (int i = 0; i < count; ++i) {
    if (i > 0) text += ' ';
    text += Quoted(names[i]);
  }
  return text + ']';
}

/// A number in its slot, with a mark when the slot was not filled as its sign wants it.
std::string Number(char shape, std::intptr_t word) {
  const std::intptr_t widened = shape == 'u' ? static_cast<std::intptr_t>(static_cast<std::uint32_t>(word))
                                             : static_cast<std::intptr_t>(static_cast<std::int32_t>(word));
  if (widened == word) return std::to_string(word);
  return "!badly-widened:" + Hex(static_cast<std::uintptr_t>(word));
}

}  // namespace

bool IsSuccess(Function function, int result) {
  switch (function) {
    case Function::CreateDeviceExt:
      return result != 0;
    case Function::CreateSearchPath:
      return result != oxecad_ui::toolkit::kNoSearchPath;
    case Function::ActivateDevice:
      return true;
    default:
      return result == 0;
  }
}

std::string PointerNames::Of(const void* pointer) {
  const auto known = pointers_.find(pointer);
  if (known != pointers_.end()) return known->second;
  if (!pointer) return "null";
  const auto number = reinterpret_cast<std::uintptr_t>(pointer);
  if (number <= 0xFFFFFFFFu) return Hex(number);
  if (unnamed_ == AllAlike) return "pointer";
  return pointers_[pointer] = "p" + std::to_string(++next_);
}

std::string PointerNames::Of(ui_callback callback) {
  if (!callback) return "null";
  const auto known = callbacks_.find(callback);
  if (known != callbacks_.end()) return known->second;
  return callbacks_[callback] = "f" + std::to_string(++next_callback_);
}

CallText::CallText(const uiox::Call& call, PointerNames& names, bool readable)
    : call_(call), names_(names), readable_(readable) {
  WriteHead();
  WritePositional();
  WriteOptions();
  WriteEnd();
}

void CallText::WriteHead() {
  Text(Verb(call_.function));
  switch (call_.function) {
    case Function::DoOperation:
    case Function::GlobalDoOperation: {
      const auto group =
          call_.function == Function::DoOperation ? uiox::CodeGroup::Operation : uiox::CodeGroup::GlobalOperation;
      if (call_.function == Function::DoOperation) {
        Text(std::string(" ") + (call_.device ? call_.device : "null") + ':' +
             (call_.component ? call_.component : "null"));
      }
      const char* const name = uiox::CodeName(group, call_.code);
      Text(' ' + std::to_string(call_.code) + ' ' + (name ? name : "?"));
      break;
    }
    case Function::Retrieve:
    case Function::Modify:
      Text(std::string(" ") + (call_.device ? call_.device : "null") + ':' +
           (call_.component ? call_.component : "null"));
      break;
    case Function::AddAction:
    case Function::SetAction:
    case Function::RemoveAction: {
      const char* const name = uiox::CodeName(uiox::CodeGroup::Reason, call_.code);
      Text(std::string(" ") + (call_.device ? call_.device : "null") + ':' +
           (call_.component ? call_.component : "null") + ' ' + std::to_string(call_.code) + ' ' + (name ? name : "?") +
           ' ' + names_.Of(call_.callback));
      if (call_.function == Function::RemoveAction) break;
      Text(' ' + names_.Of(call_.client_data) + ' ' + std::to_string(reinterpret_cast<std::intptr_t>(call_.value)));
      break;
    }
    case Function::CreateSearchPath:
      Text(' ' + std::to_string(call_.code) + ' ' + Quoted(call_.resource));
      break;
    case Function::CreateDeviceExt:
      Text(' ' + Quoted(call_.resource) + ' ' + Quoted(call_.device) + ' ' + std::to_string(call_.search_path));
      break;
    case Function::CreateDevice:
      Text(' ' + Quoted(call_.resource) + ' ' + Quoted(call_.device));
      break;
    case Function::ManageDevice:
    case Function::ActivateDevice:
    case Function::UnmanageDevice:
      Text(' ' + Quoted(call_.device));
      break;
    case Function::ExitDevice:
      Text(' ' + Quoted(static_cast<const char*>(call_.client_data)) + ' ' +
           std::to_string(reinterpret_cast<std::intptr_t>(call_.value)));
      break;
    case Function::ReleaseMemory:
      Text(' ' + (call_.value ? names_.Of(*static_cast<void**>(call_.value)) : "no-address"));
      break;
    case Function::BalloonStyle:
      Text(' ' + std::to_string(call_.code));
      Value('P', {reinterpret_cast<std::intptr_t>(call_.value)}, {}, " ", {});
      break;
    case Function::Free:
    case Function::GlobalInquire:
    case Function::Beep:
      break;
  }
}

void CallText::WritePositional() {
  for (std::size_t i = 0; i < call_.positional_count; ++i) {
    const char shape = call_.positional_shape[i];
    if (shape == 'p') {
      parts_.push_back({" ", 'R', call_.positional[i], {}, {}});
    } else {
      Value(shape, call_.positional[i], {}, " ", {});
    }
  }
}

void CallText::WriteOptions() {
  if (call_.function == Function::Free) {
    for (const uiox::Option& option : call_) {
      Text(' ' + std::to_string(option.code) + ' ');
      const auto deref = [](uiox::Slot s) { return s.Pointer() ? *s.Out<std::intptr_t>() : 0; };
      if (!readable_) {
        Text("!not-handed-out");
      } else if (option.shape == 'l') {
        Text(List(option.value.Int(), uiox::Slot{deref(option.array)}.Names()));
      } else {
        Text(Given(option.shape, {deref(option.value)}, {}));
      }
    }
    return;
  }
  if (!HasOptionList(call_)) return;
  Text(" |");
  for (const uiox::Option& option : call_) {
    const char* const name = uiox::CodeName(call_.option_group, option.code);
    Value(option.shape, option.value, option.array, ' ' + std::to_string(option.code), name ? name : "?");
  }
}

void CallText::WriteEnd() {
  switch (call_.fault) {
    case uiox::Fault::None:
      if (EndsWithZero(call_)) Text(" | 0");
      break;
    case uiox::Fault::UnknownOperation:
      Text(" !unknown-operation");
      break;
    case uiox::Fault::UnknownOption:
      Text(" !unknown-option:" + std::to_string(call_.fault_code));
      break;
    case uiox::Fault::MissingEnd:
      Text(" !no-closing-0");
      break;
  }
}

void CallText::Value(char shape, uiox::Slot value, uiox::Slot array, std::string prefix, std::string name) {
  if (std::isupper(static_cast<unsigned char>(shape)) != 0) {
    parts_.push_back({std::move(prefix), shape, value, array, std::move(name)});
    return;
  }
  const bool is_option = !name.empty();
  parts_.push_back({std::move(prefix), 0, {}, {}, std::move(name)});
  Text((is_option ? "=" : "") + Given(shape, value, array));
}

std::string CallText::Given(char shape, uiox::Slot value, uiox::Slot array) {
  switch (shape) {
    case 's':
      return Quoted(value.Text());
    case 'w':
      return Quoted(value.Wide());
    case 'l':
      return List(value.Int(), array.Names());
    case 'p':
      return names_.Of(value.Pointer());
    default:
      return Number(shape, value.word);
  }
}

std::string CallText::Record(uiox::Slot value) const {
  if (!value.Pointer()) return "null";
  if (call_.function == Function::GlobalDoOperation) {
    const auto& image = *static_cast<const ImageBuffer*>(value.Pointer());
    return "image{" + std::to_string(image.kind) + ' ' + std::to_string(image.width) + 'x' +
           std::to_string(image.height) + '}';
  }
  const auto& type = *static_cast<const NodeTypeRecord*>(value.Pointer());
  std::string text = "type{" + Quoted(type.name) + ' ' + Quoted(type.image) + ' ' + Quoted(type.expandedImage);
  for (int i = 0; i < 3; ++i) {
    if (type.unused1to3[i]) text += " !slot" + std::to_string(1 + i);
    if (type.unused6to8[i]) text += " !slot" + std::to_string(6 + i);
  }
  return text + '}';
}

std::string CallText::Answer(const Part& part, bool answered) {
  if (part.answer == 'R') return Record(part.value);
  if (!part.value.Pointer()) return "->no-address";
  const bool count_only = part.answer == 'L' && !part.array.Pointer();
  if (!answered) return count_only ? "=?count" : "=?";
  switch (part.answer) {
    case 'S':
      return "->" + Quoted(*part.value.Out<const char*>());
    case 'W':
      return "->" + Quoted(*part.value.Out<const wchar_t*>());
    case 'L':
      if (count_only) return "->count " + std::to_string(*part.value.Out<int>());
      return "->" + List(*part.value.Out<int>(), *part.array.Out<const char* const*>());
    case 'P':
      return "->" + names_.Of(*part.value.Out<void*>());
    case 'U':
      return "->" + std::to_string(*part.value.Out<std::uint32_t>());
    default:
      return "->" + std::to_string(*part.value.Out<std::int32_t>());
  }
}

std::string CallText::Finish(int result) {
  const bool succeeded = IsSuccess(call_.function, result) && call_.fault == uiox::Fault::None;
  std::string line;
  explained_.clear();
  for (const Part& part : parts_) {
    std::string text = part.text;
    line += text;
    explained_ += text;
    if (!part.name.empty()) explained_ += '.' + part.name;
    if (part.answer == 0) continue;
    text = Answer(part, succeeded);
    line += text;
    explained_ += text;
  }
  const bool always = call_.function == Function::CreateDeviceExt || call_.function == Function::CreateSearchPath ||
                      call_.function == Function::ActivateDevice;
  if (always || result != 0) {
    line += " => " + std::to_string(result);
    explained_ += " => " + std::to_string(result);
  }
  return line;
}

}  // namespace test_support
