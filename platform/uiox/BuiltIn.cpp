#include <uiox/Backend.h>
#include <uiox/StrictMode.h>
#include <uiox/Suite.h>
#include <uiox/detail/FoundComponent.h>
#include <uiox/detail/Watchers.h>
#include <uiox/detail/wire/Handlers.h>

#include <new>

namespace uiox {

namespace wire {

using oxecad_ui::toolkit::GlobalOperation;

namespace {

/// The failure that the function's result can say.
int Refuse(const Call& call) { return call.function == Function::CreateDeviceExt ? 0 : kBadList; }

int OfComponent(const Call& call) {
  Widget* widget = detail::g_found_component.Find(call.device, call.component);
  if (!widget) return kNoComponent;
  switch (call.function) {
    case Function::DoOperation:
      return Operate(*widget, call);
    case Function::Retrieve:
      return Retrieve(*widget, call);
    case Function::Modify:
      return Modify(*widget, call);
    default:
      return HandleAction(*widget, call);
  }
}

int Answer(Call& call) {
  if (call.fault != Fault::None) return Refuse(call);
  if (call.function == Function::DoOperation) return OfComponent(call);  // almost all calls are operations
  switch (call.function) {
    case Function::DoOperation:
    case Function::Retrieve:
    case Function::Modify:
    case Function::AddAction:
    case Function::RemoveAction:
    case Function::SetAction:
      return OfComponent(call);
    case Function::Free:
      return Release(call.options[0]);
    case Function::GlobalInquire:
      return GlobalInquire(call);
    case Function::GlobalDoOperation:
      return call.code == static_cast<int>(GlobalOperation::LoadImage) ? LoadImage(call) : DefineImage(call);
    case Function::Beep:
      Suite::Get().Beep();
      return kOk;
    case Function::ReleaseMemory:
    case Function::BalloonStyle:
      return call.answer ? call.answer(call) : kRefused;
    case Function::CreateSearchPath:
    case Function::CreateDeviceExt:
    case Function::CreateDevice:
    case Function::ManageDevice:
    case Function::ActivateDevice:
    case Function::UnmanageDevice:
    case Function::ExitDevice:
      return HandleDevice(call);
  }
  return kBadList;
}

}  // namespace

int Handle(Call& call) {
  try {
    StrictMode* strict = detail::g_watchers.strict;
    return strict ? strict->Handle(call, Answer) : Answer(call);
  } catch (const std::bad_alloc&) {
    return call.function == Function::ActivateDevice ? Suite::kNoResult : kNoMemory;
  }
}

}  // namespace wire

namespace {

/// Answers from the one suite of the process.
class SuiteBackend final : public Backend {
 public:
  int Handle(Call& call) override { return wire::Handle(call); }
};

/// Never ended: components may still call the toolkit while the process ends.
union Immortal {
  constexpr Immortal() : backend() {}
  ~Immortal() {}
  SuiteBackend backend;
};
constinit Immortal g_built_in;

}  // namespace

Backend& BuiltIn() { return g_built_in.backend; }

}  // namespace uiox
