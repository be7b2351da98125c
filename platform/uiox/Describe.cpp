#include <uiox/Describe.h>

#include <iterator>

namespace uiox {

namespace {

constexpr const char* kFunctions[] = {"do_operation",
                                      "retrieve",
                                      "modify",
                                      "add_action",
                                      "remove_action",
                                      "set_action",
                                      "free",
                                      "create_search_path",
                                      "create_device_ext",
                                      "create_device",
                                      "manage_device",
                                      "activate_device",
                                      "unmanage_device",
                                      "exit_device",
                                      "global_inquire",
                                      "global_do_operation",
                                      "beep",
                                      "relmem",
                                      "uit_SkinGetBalloonDlgStyle"};
static_assert(std::size(kFunctions) == static_cast<std::size_t>(Function::BalloonStyle) + 1);

/// The table that `Call::code` belongs to.
CodeGroup GroupOfCode(Function function) {
  switch (function) {
    case Function::DoOperation:
      return CodeGroup::Operation;
    case Function::GlobalDoOperation:
      return CodeGroup::GlobalOperation;
    case Function::AddAction:
    case Function::RemoveAction:
    case Function::SetAction:
      return CodeGroup::Reason;
    case Function::Free:
      return CodeGroup::NodeAttribute;
    default:
      return CodeGroup::None;
  }
}

std::string NameOf(CodeGroup group, int code) {
  const char* name = CodeName(group, code);
  return name ? name : std::to_string(code);
}

}  // namespace

const char* FunctionName(Function function) { return kFunctions[static_cast<std::size_t>(function)]; }

std::string Describe(const Call& call) {
  std::string text = FunctionName(call.function);
  if (call.device) text += std::string(" ") + call.device;
  if (call.component) text += std::string(":") + call.component;
  const CodeGroup group = GroupOfCode(call.function);
  if (group != CodeGroup::None) text += ' ' + NameOf(group, call.code);
  for (std::size_t i = 0; i < call.positional_count; ++i) {
    if (call.positional_shape[i] != 's') continue;
    text += call.positional[i].Text() ? std::string(" \"") + call.positional[i].Text() + '"' : " null";
  }
  if (call.function == Function::Free || call.option_count == 0) return text;
  text += " |";
  for (const Option& option : call) text += ' ' + NameOf(call.option_group, option.code);
  return text;
}

}  // namespace uiox
