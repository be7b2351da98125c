#include <tests/support/RecordingToolkit.h>

#include <algorithm>
#include <cstdint>

namespace test_support {
namespace {

using uiox::Function;

std::string_view Trimmed(std::string_view line) {
  const auto first = line.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
}

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    const std::string_view line = Trimmed(text.substr(0, end));
    if (!line.empty()) lines.emplace_back(line);
    text.remove_prefix(std::min(text.size(), end + 1));
  }
  return lines;
}

/// How many lines agree from the start; `...` swallows lines up to the first that goes on as expected.
bool Agree(const std::vector<std::string>& expected, std::size_t e, const std::vector<std::string>& took, std::size_t t,
           std::size_t& furthest) {
  for (; e < expected.size(); ++e, ++t) {
    furthest = std::max(furthest, t);
    if (expected[e] == "...") {
      for (std::size_t skip = t; skip <= took.size(); ++skip) {
        if (Agree(expected, e + 1, took, skip, furthest)) return true;
      }
      return false;
    }
    if (t == took.size() || expected[e] != took[t]) return false;
  }
  furthest = std::max(furthest, t);
  return t == took.size();
}

int FailedResult(Function function) {
  if (function == Function::CreateDeviceExt) return 0;
  return function == Function::CreateSearchPath ? oxecad_ui::toolkit::kNoSearchPath : 1;
}

std::string Text(const char* text) { return text ? text : ""; }

/// Whether a call is the last that its caller can do about something: it is performed even where it says that it
/// failed.
bool IsLastWord(const uiox::Call& call) {
  return call.function == Function::Free || call.function == Function::ReleaseMemory ||
         call.function == Function::RemoveAction ||
         (call.function == Function::DoOperation &&
          call.code == static_cast<int>(oxecad_ui::toolkit::Operation::DestroyControl));
}

bool ChangesShape(const uiox::Call& call) {
  return call.function == Function::DoOperation && ((call.code >= 2029 && call.code <= 2032) || call.code == 2331);
}

}  // namespace

const char* Name(Failure failure) {
  switch (failure) {
    case Failure::Refused:
      return "refused";
    case Failure::Scribbled:
      return "refused with garbage";
    case Failure::Ignored:
      return "successful without an answer";
    case Failure::NullAnswers:
      return "answered with nulls";
    case Failure::NullNames:
      return "answered with null names";
  }
  return "?";
}

RecordingToolkit::RecordingToolkit(Source source) : source_(source), before_(uiox::SetBackend(this)) {}

RecordingToolkit::~RecordingToolkit() {
  uiox::SetBackend(before_);
  for (const std::string& complaint : TakeComplaints()) ADD_FAILURE() << complaint;
}

void RecordingToolkit::FailCall(std::size_t n, Failure failure) {
  call_count_ = 0;
  failing_call_ = n;
  failure_ = failure;
  fail_all_ = false;
}

void RecordingToolkit::FailAll(Failure failure) {
  FailCall(0, failure);
  fail_all_ = true;
}

void RecordingToolkit::FailNone() { FailCall(0, Failure::Refused); }

int RecordingToolkit::Handle(uiox::Call& call) {
  ++call_count_;
  const bool goes_wrong = fail_all_ || call_count_ == failing_call_;
  CallText text(call, names_, call.function != Function::Free || hand_outs_.IsReadable(call));
  const bool written = !wanted_ || wanted_(call);
  const std::size_t place = lines_.size();
  if (written) {  // calls that callbacks make during this one come after it
    lines_.emplace_back();
    explained_.emplace_back();
  }
  const int result = goes_wrong ? GoWrong(call) : Answer(call);
  if (written && place < lines_.size()) {
    lines_[place] = text.Finish(result);
    explained_[place] = text.Explained();
  }
  KeepBooks(call, result);
  if (ChangesShape(call)) script_.EndLent();
  return result;
}

int RecordingToolkit::Answer(uiox::Call& call) {
  if (call.function == Function::Free) return Release(call);
  int result = call.function == Function::CreateDeviceExt ? 1 : 0;
  if (script_.Answer(call, result)) return result;
  if (call.fault != uiox::Fault::None) return FailedResult(call.function);
  return source_ == StandIn ? uiox::BuiltIn().Handle(call) : result;
}

int RecordingToolkit::Release(uiox::Call& call) {
  std::string complaint = hand_outs_.Return(call);
  const bool bad = !complaint.empty();
  if (bad) complaints_.push_back(std::move(complaint));
  int result = 0;
  if (script_.Answer(call, result) || script_.Release(call) || bad || source_ != StandIn) return result;
  return uiox::BuiltIn().Handle(call);
}

int RecordingToolkit::GoWrong(const uiox::Call& call) {
  if (IsLastWord(call)) {
    uiox::Call copy = call;
    if (call.function == Function::Free) {
      Release(copy);
    } else {
      Answer(copy);
    }
    return failure_ == Failure::Refused || failure_ == Failure::Scribbled ? 1 : 0;
  }
  switch (failure_) {
    case Failure::Refused:
      return FailedResult(call.function);
    case Failure::Scribbled:
      Script::Scribble(call);
      return FailedResult(call.function);
    case Failure::Ignored:
      break;
    case Failure::NullAnswers:
      script_.GiveNulls(call, 3);
      break;
    case Failure::NullNames:
      script_.GiveNullNames(call, 3);
      break;
  }
  return call.function == Function::CreateDeviceExt ? 1 : 0;
}

void RecordingToolkit::KeepBooks(const uiox::Call& call, int result) {
  if (result != 0) return;
  switch (call.function) {
    case Function::DoOperation:
      if (call.code == 2202) hand_outs_.Enter(call);
      break;
    case Function::SetAction:
      std::erase_if(registered_, [&](const Registration& r) {
        return r.device == Text(call.device) && r.component == Text(call.component) && r.reason == call.code;
      });
      [[fallthrough]];
    case Function::AddAction:
      registered_.push_back(
          {Text(call.device), Text(call.component), call.code, call.callback, call.client_data, call.value});
      break;
    case Function::RemoveAction: {
      const auto found = std::find_if(registered_.begin(), registered_.end(), [&](const Registration& r) {
        return r.device == Text(call.device) && r.component == Text(call.component) && r.reason == call.code &&
               r.callback == call.callback;
      });
      if (found != registered_.end()) registered_.erase(found);
      break;
    }
    default:
      break;
  }
}

testing::AssertionResult RecordingToolkit::Took(std::string_view expected) {
  const std::vector<std::string> wanted = SplitLines(expected);
  std::size_t furthest = 0;
  const bool agree = Agree(wanted, 0, lines_, 0, furthest);
  std::string message = "the toolkit was asked:\n";
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    message += (i == furthest ? "  > " : "    ") + lines_[i] + '\n';
    if (i == furthest) message += "      with names: " + explained_[i] + '\n';
  }
  if (furthest >= lines_.size()) message += "  > (nothing more)\n";
  message += "expected:\n";
  for (const std::string& line : wanted) message += "    " + line + '\n';
  TakeLines();
  return agree ? testing::AssertionSuccess() : testing::AssertionFailure() << message;
}

std::vector<std::string> RecordingToolkit::TakeLines() {
  explained_.clear();
  return std::exchange(lines_, {});
}

std::vector<std::string> RecordingToolkit::TakeComplaints() {
  std::vector<std::string> all = std::exchange(complaints_, {});
  for (std::string& line : hand_outs_.Outstanding()) all.push_back(std::move(line));
  return all;
}

int RecordingToolkit::Fire(std::string_view component, int reason) {
  const std::vector<Registration> now = registered_;
  int result = 0;
  bool called = false;
  for (const Registration& registration : now) {
    if (registration.component != component || registration.reason != reason) continue;
    result = registration.callback(registration.client_data, registration.value);
    called = true;
  }
  if (!called) ADD_FAILURE() << component << " has no callback for reason " << reason;
  return result;
}

void ForEachFailure(RecordingToolkit::Source source, const std::function<void(RecordingToolkit&)>& prepare,
                    const std::function<void(RecordingToolkit&)>& scenario) {
  std::size_t calls = 0;
  {
    RecordingToolkit toolkit(source);
    prepare(toolkit);
    toolkit.FailNone();
    scenario(toolkit);
    calls = toolkit.CallCount();
  }
  ASSERT_GT(calls, 0u) << "the scenario called nothing";
  for (std::size_t n = 1; n <= calls; ++n) {
    for (const Failure failure : kAllFailures) {
      SCOPED_TRACE("call " + std::to_string(n) + " of " + std::to_string(calls) + ' ' + Name(failure));
      RecordingToolkit toolkit(source);
      prepare(toolkit);
      toolkit.FailCall(n, failure);
      scenario(toolkit);
    }
  }
}

}  // namespace test_support
