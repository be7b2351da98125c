#include <uiox/Backend.h>
#include <uiox/StrictMode.h>
#include <uiox/Suite.h>
#include <uiox/detail/wire/Handlers.h>

#include <new>

namespace uiox {

namespace {

using oxecad_ui::toolkit::GlobalOperation;

/// Answers from the one suite of the process.
class SuiteBackend final : public Backend {
 public:
  int Handle(Call& call) override {
    try {
      StrictMode* strict = StrictMode::Current();
      return strict ? strict->Handle(call, Judged) : Judged(call);
    } catch (const std::bad_alloc&) {
      return call.function == Function::ActivateDevice ? Suite::kNoResult : wire::kNoMemory;
    }
  }

 private:
  static int Judged(Call& call) { return call.fault == Fault::None ? Answered(call) : Refused(call); }

  /// The failure that the function's result can say.
  static int Refused(const Call& call) { return call.function == Function::CreateDeviceExt ? 0 : wire::kBadList; }

  static int Answered(Call& call) {
    switch (call.function) {
      case Function::DoOperation:
      case Function::Retrieve:
      case Function::Modify:
      case Function::AddAction:
      case Function::RemoveAction:
      case Function::SetAction:
        return OfComponent(call);
      case Function::Free:
        return wire::Free(call);
      case Function::GlobalInquire:
        return wire::GlobalInquire(call);
      case Function::GlobalDoOperation:
        return call.code == static_cast<int>(GlobalOperation::LoadImage) ? wire::LoadImage(call)
                                                                         : wire::DefineImage(call);
      case Function::Beep:
        Suite::Get().Beep();
        return wire::kOk;
      case Function::ReleaseMemory:
      case Function::BalloonStyle:
        return call.answer ? call.answer(call) : wire::kRefused;
      case Function::CreateSearchPath:
      case Function::CreateDeviceExt:
      case Function::CreateDevice:
      case Function::ManageDevice:
      case Function::ActivateDevice:
      case Function::UnmanageDevice:
      case Function::ExitDevice:
        return wire::HandleDevice(call);
    }
    return wire::kBadList;
  }

  static int OfComponent(const Call& call) {
    Widget* widget = Suite::Get().FindAgain(call.device, call.component);
    if (!widget) return wire::kNoComponent;
    if (call.function == Function::DoOperation) return wire::Operate(*widget, call);
    if (call.function == Function::Retrieve) return wire::Retrieve(*widget, call);
    if (call.function == Function::Modify) return wire::Modify(*widget, call);
    return wire::HandleAction(*widget, call);
  }
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
