#include <uiox/Describe.h>
#include <uiox/StrictMode.h>
#include <uiox/Suite.h>
#include <uiox/detail/LentGuard.h>
#include <uiox/detail/StrictLedger.h>
#include <uiox/detail/Watchers.h>

#include <algorithm>
#include <optional>
#include <set>

namespace uiox {

using oxecad_ui::toolkit::GlobalOperation;
using oxecad_ui::toolkit::Operation;

namespace {

/// A status that means failure whatever the function.
int Refusal(Function function) { return function == Function::CreateDeviceExt ? 0 : 1; }

bool IsOperation(const Call& call, Operation operation) {
  return call.function == Function::DoOperation && call.code == static_cast<int>(operation);
}

bool LoadsImage(const Call& call) {
  return call.function == Function::GlobalDoOperation && call.code == static_cast<int>(GlobalOperation::LoadImage);
}

std::string FaultText(const Call& call) {
  switch (call.fault) {
    case Fault::UnknownOperation:
      return "unknown operation " + std::to_string(call.fault_code);
    case Fault::UnknownOption:
      return "unknown option " + std::to_string(call.fault_code);
    case Fault::MissingEnd:
      return "the list has no end";
    case Fault::None:
      break;
  }
  return "";
}

void AppendCallbacks(const Widget& widget, std::vector<std::string>& lines) {
  for (const Action& action : widget.Actions().All()) {
    if (action.callback == &ui_exit_device) continue;
    const char* reason = CodeName(CodeGroup::Reason, action.reason);
    lines.push_back(std::string("callback ") + widget.Owner().Name() + ':' + widget.Name() + ' ' +
                    (reason ? reason : "?"));
  }
}

}  // namespace

struct StrictMode::Books : SuiteObserver {
  Report report;
  detail::StrictLedger ledger;
  detail::LentGuard lent;
  std::vector<std::string> expected;
  std::vector<std::string> gone_with_reset;
  std::set<std::string, std::less<>> shown;
  std::size_t faults = 0;

  void Fault(const std::string& what) {
    ++faults;
    if (report) report(what);
  }
  void UserActed() override { lent.EndAll(); }
  void AboutToDestroyDevice(Device& device) override { shown.erase(device.Name()); }

  void NoteShown(const Call& call) {
    if (call.function == Function::ManageDevice) shown.insert(call.device);
    if (call.function == Function::UnmanageDevice) shown.erase(call.device);
  }
  /// Callbacks and devices that are left in the suite as it is.
  void AppendLeftInSuite(std::vector<std::string>& lines) const {
    for (const Device* device : Suite::Get().Devices()) {
      AppendCallbacks(*device, lines);
      for (const Widget* widget : device->Components()) {
        AppendCallbacks(*widget, lines);
        if (!widget->AsTree()) continue;
        for (const Widget* control : widget->AsTree()->Controls()) AppendCallbacks(*control, lines);
      }
      if (device->OnScreen() && shown.count(device->Name()) != 0)
        lines.push_back(std::string("device ") + device->Name());
    }
  }
};

StrictMode::StrictMode(Report report) : books_(std::make_shared<Books>()), before_(detail::g_watchers.strict) {
  books_->report = std::move(report);
  Suite::Get().AddObserver(books_.get());
  detail::g_watchers.strict = this;
}

StrictMode::~StrictMode() {
  std::vector<std::string> left = Leftovers();
  for (const std::string& expected : books_->expected) {
    if (const auto found = std::find(left.begin(), left.end(), expected); found != left.end()) left.erase(found);
  }
  for (const std::string& leftover : left) books_->Fault("left: " + leftover);
  Suite::Get().RemoveObserver(books_.get());
  detail::g_watchers.strict = before_;
}

StrictMode* StrictMode::Current() { return detail::g_watchers.strict; }

void StrictMode::Expect(std::string leftover) { books_->expected.push_back(std::move(leftover)); }

std::size_t StrictMode::Faults() const { return books_->faults; }

std::vector<std::string> StrictMode::Leftovers() const {
  std::vector<std::string> lines = books_->gone_with_reset;
  books_->ledger.AppendLeft(lines);
  books_->AppendLeftInSuite(lines);
  std::sort(lines.begin(), lines.end());
  return lines;
}

void StrictMode::BeforeReset() {
  books_->AppendLeftInSuite(books_->gone_with_reset);
  books_->lent.EndAll();
}

int StrictMode::Handle(Call& call, int (*answer)(Call&)) {
  const std::shared_ptr<Books> kept = books_;  // a callback may end this object
  Books& books = *kept;
  if (call.fault != Fault::None) {
    books.Fault(FaultText(call) + ": " + Describe(call));
    return answer(call);
  }
  std::optional<detail::LentGuard::ChangeScope> change;
  if (!detail::LentGuard::OnlyReads(call)) change.emplace(books.lent, call);
  std::string wrong;
  if (call.function == Function::Free) wrong = books.ledger.Return(call);
  if (call.function == Function::ReleaseMemory) wrong = books.ledger.ReturnPixels(call);
  if (!wrong.empty()) {
    books.Fault(wrong + ": " + Describe(call));
    return Refusal(call.function);
  }
  const int result = answer(call);
  if (result != 0 || detail::g_watchers.strict != this) return result;
  books.NoteShown(call);
  if (IsOperation(call, Operation::GetNode)) books.ledger.EnterCopies(call);
  if (LoadsImage(call)) books.ledger.EnterPixels(call);
  if (detail::LentGuard::OnlyReads(call)) books.lent.Replace(call);
  return result;
}

}  // namespace uiox
