#include <oxcore/ColorPicker.h>
#include <tests/torture/Stage.h>
#include <tests/uicomps/color/ImageShop.h>
#include <uiox/StrictMode.h>

#include <algorithm>
#include <memory>

namespace torture {
namespace {

std::vector<std::string> g_told;
std::unique_ptr<uiox::StrictMode> g_strict;

constexpr const char* kDialog = R"({ "x": 100, "y": 100, "width": 400, "height": 200, "components": [
  { "name": "name", "class": "InputPanel", "width": 200 },
  { "name": "other", "class": "InputPanel", "width": 200 },
  { "name": "menu", "class": "OptionMenu", "width": 200 } ] })";

}  // namespace

std::string Text(const Injection& injection) {
  if (injection.at == 0) return "nothing goes wrong";
  std::string text = injection.kind == Injection::Call
                         ? "call " + std::to_string(injection.at) + ' ' + Name(injection.failure)
                         : "allocation " + std::to_string(injection.at) + " fails";
  return text + Name(injection.spread);
}

std::string ResultText(bool value) { return value ? "true" : "false"; }
std::string ResultText(int value) { return std::to_string(value); }
std::string ResultText(unsigned value) { return std::to_string(value); }
std::string ResultText(const std::string& value) { return '"' + value + '"'; }
std::string ResultText(const std::wstring& value) { return '"' + std::string(value.begin(), value.end()) + '"'; }
std::string ResultText(const char* value) { return value ? '"' + std::string(value) + '"' : "null"; }
std::string ResultText(const void* value) { return value ? "a pointer" : "null"; }
std::string ResultText(const std::vector<std::string>& value) {
  std::string text = "[";
  for (const std::string& name : value) text += ' ' + name;
  return text + " ]";
}

std::string ResultText(const std::vector<bool>& value) {
  std::string text;
  for (const bool each : value) text += each ? '1' : '0';
  return text;
}

Stage::Stage(const Injection& injection, std::vector<StepRecord>& records) : injection_(injection), records_(records) {
  toolkit_.Pause();
  suite.Reset();
  color_tests::ForgetIcons();
  oxcore::ResetColorPicker();
  suite.ObtainTree("dev", "tree", {"a", "b", "overlap", "showMode", "dimOverlap"});
  suite.LoadDevice(kDialog, "dlg");
  suite.SetCurrent("dlg", "name");
  g_told.clear();
  g_strict = std::make_unique<uiox::StrictMode>([](const std::string& line) { g_told.push_back(line); });
  const bool calls = injection.kind == Injection::Call;
  toolkit_.Start(calls ? injection.at : 0, injection.failure, injection.spread);
  Allocations::Start(calls ? 0 : injection.at, injection.spread);
}

Stage::~Stage() {
  g_strict.reset();
  toolkit_.Pause();
  Allocations::Pause();
}

void Stage::Calm() {
  toolkit_.Pause();
  Allocations::Pause();
}

void Stage::Storm() {
  toolkit_.Resume();
  Allocations::Resume();
}

void Stage::Complain(std::string what) { complaints_.push_back(std::move(what)); }

void Stage::Judge(const std::string& what, const std::optional<std::string>& failed, const std::string& result,
                  bool threw, bool hit_before, long calls) {
  if (IsClean()) {
    if (threw) Complain(what + " threw");
    records_.push_back({result, calls});
    return;
  }
  if (next_ == records_.size()) return Complain(what + " is no step of the undisturbed run");
  const StepRecord& record = records_[next_++];
  if (threw) {
    if (injection_.kind != Injection::Allocation) Complain(what + " threw without a reason");
    return;
  }
  if (!HasHit()) {
    if (result != record.result) Complain(what + " gave " + result + " instead of " + record.result);
    return;
  }
  if (!failed || injection_.kind == Injection::Allocation) return;
  const bool answered = injection_.failure == Failure::NullAnswers || injection_.failure == Failure::NullNames;
  if (answered) return;  // a zero or a list of nothing is an answer like any other
  if (!hit_before) {
    const bool any_truth = record.result == "true" || record.result == "false";
    if (!any_truth && result != record.result && result != *failed) {
      Complain(what + " gave " + result + " and neither " + record.result + " nor " + *failed);
    }
    return;
  }
  const bool all_refused = injection_.spread == Spread::AllLater &&
                           (injection_.failure == Failure::Refused || injection_.failure == Failure::Scribbled);
  if (all_refused && calls > 0 && result != *failed) Complain(what + " gave " + result + " and not " + *failed);
}

bool Stage::MayStay(const std::string& leftover) const {
  return std::any_of(may_stay_.begin(), may_stay_.end(), [&](const std::string& beginning) {
    return leftover.compare(0, beginning.size(), beginning) == 0;
  });
}

std::vector<std::string> Stage::Finish() {
  Calm();
  suite.Reset();
  for (const std::string& line : g_strict->Leftovers()) {
    if (IsClean() || !MayStay(line)) complaints_.push_back("left: " + line);
  }
  for (const std::string& line : g_strict->Leftovers()) g_strict->Expect(line);
  g_strict.reset();
  for (const std::string& line : g_told) complaints_.push_back(line);
  for (const std::string& line : toolkit_.Complaints()) complaints_.push_back(line);
  for (const std::string& line : toolkit_.Outstanding()) complaints_.push_back(line);
  if (!IsClean() && next_ != records_.size()) complaints_.push_back("not every step was made");
  return std::exchange(complaints_, {});
}

}  // namespace torture
