#include <uiox/UserEvents.h>
#include <uiox/detail/SuiteState.h>

#include <string>
#include <utility>

namespace uiox {

namespace {

/// Takes a run, and what a callback's exception left above it, off the stack.
template <class Runs>
struct RunEnd {
  Runs& runs;
  std::size_t depth;
  ~RunEnd() { runs.resize(depth); }
};
template <class Runs>
RunEnd(Runs&, std::size_t) -> RunEnd<Runs>;

/// One run performs no more: an action that queues itself for ever must not hang the caller.
constexpr int kMostActions = 1'000'000;

}  // namespace

int Suite::RunModal(Device& device) {
  state_->runs.push_back(std::make_unique<State::Run>(State::Run{&device}));
  State::Run& run = *state_->runs.back();
  const RunEnd end{state_->runs, state_->runs.size() - 1};
  // Afterwards the user is where he was: the next message is shown at a component of that device, not of this one.
  const std::string device_before = CurrentDevice();
  const std::string component_before = CurrentComponent();
  device.Show();
  Tell(&SuiteObserver::ModalRunStarted, device);
  if (!run.over) {
    if (state_->front) {
      state_->front->RunModal(device);
    } else {
      PlayUser(device);
    }
  }
  if (!run.over) {
    run.over = true;
    Tell(&SuiteObserver::ModalRunEnded, device, run.result);
  }
  if (Find(device_before, component_before)) {
    SetCurrent(device_before, component_before);
  } else {
    SetCurrent({}, {});
  }
  return run.result;
}

void Suite::PlayUser(Device& device) {
  State::Run& run = *state_->runs.back();
  int left = kMostActions;
  const auto perform_queue = [&] {
    while (!run.over && !state_->queue.empty() && left-- > 0) {
      const std::function<void()> action = std::move(state_->queue.front());
      state_->queue.pop_front();
      action();
    }
  };
  perform_queue();
  if (!run.over) user::PressDefault(device);
  perform_queue();
  if (!run.over) user::Close(device);
  perform_queue();
}

bool Suite::EndModalRun(std::string_view device, int result) {
  Device* found = FindDevice(device);
  if (!found) return false;
  for (auto run = state_->runs.rbegin(); run != state_->runs.rend(); ++run) {
    if ((*run)->device != found || (*run)->over) continue;
    (*run)->over = true;
    (*run)->result = result;
    Tell(&SuiteObserver::ModalRunEnded, *found, result);
    return true;
  }
  return false;
}

bool Suite::HasModalRun(const Device& device) const {
  const State::Run* run = state_->InnermostRun(device);
  return run && !run->over;
}

bool Suite::IsModalRunOver(const Device& device) const { return !HasModalRun(device); }

Device* Suite::ModalDevice() const { return state_->runs.empty() ? nullptr : state_->runs.back()->device; }

void Suite::QueueUserAction(std::function<void()> action) { state_->queue.push_back(std::move(action)); }

std::size_t Suite::QueuedUserActions() const { return state_->queue.size(); }

}  // namespace uiox
