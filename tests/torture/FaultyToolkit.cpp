#include <tests/torture/Allocations.h>
#include <tests/torture/FaultyToolkit.h>

#include <array>
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <utility>

namespace torture {
namespace {

using uiox::Function;

FaultyToolkit* g_current = nullptr;

// A callback is known by its address alone, so each gets a stand-in with an address of its own.
constexpr std::size_t kMostCallbacks = 40;
std::array<ui_callback, kMostCallbacks> g_callbacks{};

template <std::size_t I>
int Stand(void* client, void* value) {
  return FaultyToolkit::Current()->CallBack(g_callbacks[I], client, value);
}

template <std::size_t... I>
constexpr std::array<ui_callback, sizeof...(I)> Stands(std::index_sequence<I...>) {
  return {&Stand<I>...};
}
constexpr auto kStands = Stands(std::make_index_sequence<kMostCallbacks>());

ui_callback StandFor(ui_callback callback) {
  if (!callback || callback == &ui_exit_device) return callback;
  for (std::size_t i = 0; i < kMostCallbacks; ++i) {
    if (!g_callbacks[i]) g_callbacks[i] = callback;
    if (g_callbacks[i] == callback) return kStands[i];
  }
  std::abort();
}

bool IsAction(Function function) {
  return function == Function::AddAction || function == Function::RemoveAction || function == Function::SetAction;
}

bool MustBeDone(const uiox::Call& call) {
  switch (call.function) {
    case Function::Free:
    case Function::ReleaseMemory:
    case Function::RemoveAction:
      return true;
    case Function::DoOperation:
      return call.code == static_cast<int>(oxecad_ui::toolkit::Operation::DestroyControl);
    default:
      return false;
  }
}

int SuccessOf(Function function) { return function == Function::CreateDeviceExt ? 1 : 0; }

int FailureOf(Function function) {
  switch (function) {
    case Function::CreateDeviceExt:
      return 0;
    case Function::CreateSearchPath:
    case Function::ActivateDevice:
      return -1;
    default:
      return 1;
  }
}

}  // namespace

FaultyToolkit* FaultyToolkit::Current() { return g_current; }

FaultyToolkit::FaultyToolkit() : before_(uiox::SetBackend(this)) { g_current = this; }

FaultyToolkit::~FaultyToolkit() {
  uiox::SetBackend(before_);
  g_current = nullptr;
}

void FaultyToolkit::Start(long failing, Failure failure, Spread spread) {
  count_ = 0;
  failing_ = failing;
  failure_ = failure;
  spread_ = spread;
  active_ = true;
  failed_ = false;
}

bool FaultyToolkit::FailsNow() {
  if (!active_) return false;
  ++count_;
  const bool fails = Fails(count_, failing_, spread_);
  failed_ = failed_ || fails;
  return fails;
}

int FaultyToolkit::Handle(uiox::Call& call) {
  const WhoWorks toolkit(WhoWorks::Others);
  if (IsAction(call.function)) call.callback = StandFor(call.callback);
  if (FailsNow()) return Fail(call);
  return Answer(call);
}

int FaultyToolkit::Answer(uiox::Call& call) {
  if (call.function == Function::Free) {
    std::string complaint = hand_outs_.Return(call);
    if (!complaint.empty()) {
      complaints_.push_back(std::move(complaint));
      return 1;
    }
    if (script_.Release(call)) return 0;
  }
  const int result = uiox::BuiltIn().Handle(call);
  if (result == 0 && call.function == Function::DoOperation && call.code == 2202) hand_outs_.Enter(call);
  return result;
}

int FaultyToolkit::Fail(uiox::Call& call) {
  const bool refuses = failure_ == Failure::Refused || failure_ == Failure::Scribbled;
  if (MustBeDone(call)) {
    Answer(call);
    return refuses ? 1 : 0;
  }
  switch (failure_) {
    case Failure::Refused:
    case Failure::Ignored:
      break;
    case Failure::Scribbled:
      test_support::Script::Scribble(call);
      break;
    case Failure::NullAnswers:
      script_.GiveNulls(call, 3);
      break;
    case Failure::NullNames:
      script_.GiveNullNames(call, 3);
      break;
  }
  if (refuses) return FailureOf(call.function);
  if (call.function == Function::DoOperation && call.code == 2202) hand_outs_.Enter(call);
  return SuccessOf(call.function);
}

int FaultyToolkit::CallBack(ui_callback callback, void* client, void* value) {
  const WhoWorks library(WhoWorks::Library);
  try {
    return callback(client, value);
  } catch (const std::bad_alloc&) {
    return -1;
  } catch (const std::length_error&) {
    return -1;
  } catch (...) {
    const WhoWorks others(WhoWorks::Others);
    complaints_.emplace_back("a callback threw what is neither an allocation nor a length error");
    return -1;
  }
}

}  // namespace torture
