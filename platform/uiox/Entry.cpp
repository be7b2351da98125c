// The toolkit's C functions: each turns its arguments into a `Call` and hands it on.

#include <uicomps/toolkit/Toolkit.h>
#include <uiox/Backend.h>
#include <uiox/Export.h>
#include <uiox/detail/Watchers.h>
#include <uiox/detail/wire/Decode.h>
#include <uiox/detail/wire/Handlers.h>
#include <uiox/detail/wire/QuickRead.h>

#include <cstdarg>
#include <utility>

namespace uiox {

namespace {

Call ComponentCall(Function function, const char* device, const char* component, int code = 0) {
  Call call(function);
  call.device = device;
  call.component = component;
  call.code = code;
  return call;
}

Call DeviceCall(Function function, const char* device) { return ComponentCall(function, device, nullptr); }

[[gnu::noinline]] int OperationCall(const char* device, const char* component, int operation, va_list* slots) {
  Call call = ComponentCall(Function::DoOperation, device, component, operation);
  const std::size_t number = detail::IndexOf(CodeGroup::Operation).NumberOf(operation);
  if (number == 0) {
    call.fault = Fault::UnknownOperation;
    call.fault_code = operation;
  } else {
    wire::Decoder(call, slots).ReadShape(detail::kOperationShapes[number]);
  }
  return Dispatch(call);
}

int AttributeCall(Function function, const char* device, const char* component, va_list* slots) {
  Call call = ComponentCall(function, device, component);
  call.option_group = CodeGroup::ComponentAttribute;
  wire::Decoder(call, slots).ReadOptions(function == Function::Retrieve);
  return Dispatch(call);
}

/// An option without a letter is in no table.
int FreeCall(const Option& option, bool has_end) {
  Call call(Function::Free);
  call.option_group = CodeGroup::NodeAttribute;
  call.code = option.code;
  if (option.shape == 0) {
    call.fault = Fault::UnknownOption;
    call.fault_code = option.code;
  } else {
    call.options[call.option_count++] = option;
    if (!has_end) call.fault = Fault::MissingEnd;
  }
  return Dispatch(call);
}

int ActionCall(Function function, const char* device, const char* component, int reason, ui_callback callback,
               void* client_data, void* value) {
  Call call = ComponentCall(function, device, component, reason);
  call.callback = callback;
  call.client_data = client_data;
  call.value = value;
  return Dispatch(call);
}

}  // namespace

Backend* SetBackend(Backend* backend) { return std::exchange(detail::g_watchers.backend, backend); }

int Dispatch(Call& call) {
  Backend* const backend = detail::g_watchers.backend;
  return backend ? backend->Handle(call) : wire::Handle(call);
}

}  // namespace uiox

using uiox::Call;
using uiox::CodeGroup;
using uiox::Function;

OXECAD_UIOX_API int ui_do_operation(const char* device, const char* component, int operation, ...) {
  va_list quick_slots;  // its address goes nowhere, so it stays in registers
  va_start(quick_slots, operation);
  const int answer = uiox::wire::AnswerQuickly(device, component, operation, &quick_slots);
  va_end(quick_slots);
  if (answer != uiox::wire::kNotQuick) return answer;
  va_list slots;
  va_start(slots, operation);
  const int result = uiox::OperationCall(device, component, operation, &slots);
  va_end(slots);
  return result;
}

OXECAD_UIOX_API int ui_retrieve(const char* device, const char* component, ...) {
  va_list slots;
  va_start(slots, component);
  const int result = uiox::AttributeCall(Function::Retrieve, device, component, &slots);
  va_end(slots);
  return result;
}

OXECAD_UIOX_API int ui_modify(const char* device, const char* component, ...) {
  va_list slots;
  va_start(slots, component);
  const int result = uiox::AttributeCall(Function::Modify, device, component, &slots);
  va_end(slots);
  return result;
}

OXECAD_UIOX_API int ui_add_action(const char* device, const char* component, int reason, ui_callback callback,
                                  void* client_data, ...) {
  va_list slots;
  va_start(slots, client_data);
  void* value = va_arg(slots, void*);
  va_end(slots);
  return uiox::ActionCall(Function::AddAction, device, component, reason, callback, client_data, value);
}

OXECAD_UIOX_API int ui_remove_action(const char* device, const char* component, int reason, ui_callback callback) {
  return uiox::ActionCall(Function::RemoveAction, device, component, reason, callback, nullptr, nullptr);
}

OXECAD_UIOX_API int ui_set_action(const char* device, const char* component, int reason, ui_callback callback,
                                  void* client_data, ...) {
  va_list slots;
  va_start(slots, client_data);
  void* value = va_arg(slots, void*);
  va_end(slots);
  return uiox::ActionCall(Function::SetAction, device, component, reason, callback, client_data, value);
}

OXECAD_UIOX_API int ui_free(int attribute, ...) {
  const uiox::detail::GroupIndex& attributes = uiox::detail::IndexOf(CodeGroup::NodeAttribute);
  const char letter = attributes.letters[attributes.NumberOf(attribute)];
  uiox::Option option{attribute, letter, {0}, {0}};
  bool has_end = false;
  if (letter != 0) {
    va_list slots;
    va_start(slots, attribute);
    option.value.word = va_arg(slots, std::intptr_t);
    if (letter == 'l') option.array.word = va_arg(slots, std::intptr_t);
    has_end = va_arg(slots, int) == 0;
    va_end(slots);
  }
  if (has_end && uiox::detail::g_watchers.AreNone()) return uiox::wire::Release(option);
  return uiox::FreeCall(option, has_end);
}

OXECAD_UIOX_API int ui_create_search_path(int kind, const char* context) {
  Call call(Function::CreateSearchPath);
  call.code = kind;
  call.resource = context;
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_create_device_ext(const char* resource, const char* device, int search_path) {
  Call call = uiox::DeviceCall(Function::CreateDeviceExt, device);
  call.resource = resource;
  call.search_path = search_path;
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_create_device(const char* resource, const char* device) {
  Call call = uiox::DeviceCall(Function::CreateDevice, device);
  call.resource = resource;
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_manage_device(const char* device) {
  Call call = uiox::DeviceCall(Function::ManageDevice, device);
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_activate_device(const char* device) {
  Call call = uiox::DeviceCall(Function::ActivateDevice, device);
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_unmanage_device(const char* device) {
  Call call = uiox::DeviceCall(Function::UnmanageDevice, device);
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_exit_device(void* client_data, void* value) {
  Call call = uiox::DeviceCall(Function::ExitDevice, static_cast<const char*>(client_data));
  call.client_data = client_data;
  call.value = value;
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_global_inquire(int code, ...) {
  Call call(Function::GlobalInquire);
  call.option_group = CodeGroup::GlobalCode;
  va_list slots;
  va_start(slots, code);
  uiox::wire::Decoder(call, &slots).ReadOptionsFrom(code, true);
  va_end(slots);
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_global_do_operation(int operation, ...) {
  Call call(Function::GlobalDoOperation);
  call.code = operation;
  const std::size_t number = uiox::detail::IndexOf(CodeGroup::GlobalOperation).NumberOf(operation);
  if (number == 0) {
    call.fault = uiox::Fault::UnknownOperation;
    call.fault_code = operation;
    return uiox::Dispatch(call);
  }
  va_list slots;
  va_start(slots, operation);
  uiox::wire::Decoder(call, &slots).ReadShape(uiox::detail::kGlobalOperationShapes[number]);
  va_end(slots);
  return uiox::Dispatch(call);
}

OXECAD_UIOX_API int ui_beep(void) {
  Call call(Function::Beep);
  return uiox::Dispatch(call);
}
