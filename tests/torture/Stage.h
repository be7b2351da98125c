/// \file
/// Where scenarios are played: a device with a tree, a user, and results that are judged.
#ifndef OXECAD_TESTS_TORTURE_STAGE_H
#define OXECAD_TESTS_TORTURE_STAGE_H

#include <tests/torture/Allocations.h>
#include <tests/torture/FaultyToolkit.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

#include <new>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace torture {

/// One thing that goes wrong during a run; none when `at` is 0.
struct Injection {
  enum Kind { Call, Allocation } kind = Call;
  long at = 0;
  Failure failure = Failure::Refused;
  Spread spread = Spread::Once;
};
std::string Text(const Injection& injection);

/// What a step gave in the run in which nothing went wrong.
struct StepRecord {
  std::string result;
  long calls;
};

std::string ResultText(bool value);
std::string ResultText(int value);
std::string ResultText(unsigned value);
std::string ResultText(const std::string& value);
std::string ResultText(const std::wstring& value);
std::string ResultText(const char* value);
std::string ResultText(const void* value);
std::string ResultText(const std::vector<std::string>& value);
std::string ResultText(const std::vector<bool>& value);

/// What an operation gives when the toolkit refuses everything.
template <class T>
std::string FailedText() {
  if constexpr (std::is_same_v<T, unsigned>) {
    return ResultText(0xFFFFFFFFu);
  } else if constexpr (std::is_pointer_v<T>) {
    return ResultText(static_cast<const void*>(nullptr));
  } else {
    return ResultText(T{});
  }
}

/// One run of one scenario. It starts with a suite that holds the device "dev" with the tree "tree" (columns of a
/// compare tree) and the device "dlg" with the fields "name" and "menu", and with no icons, colours or handlers.
class Stage {
 public:
  /// `records` holds the steps of the undisturbed run, or is filled when `injection.at` is 0.
  Stage(const Injection& injection, std::vector<StepRecord>& records);
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  uiox::Suite& suite = uiox::Suite::Get();
  uiox::Driver user{"dev"};
  uiox::Driver dialog{"dlg"};

  /// Lets the library do something and judges what it gives:
  ///  - as long as nothing has gone wrong, it is what it was in the undisturbed run;
  ///  - when something goes wrong for the first time, it is that or `failed`;
  ///  - when the toolkit refuses every call of the step, it is `failed`.
  template <class F>
  void Step(const char* what, F&& act) {
    using Result = std::decay_t<std::invoke_result_t<F>>;
    if constexpr (std::is_void_v<Result>) {
      Do(what, std::nullopt, [&] { return act(), std::string(); });
    } else {
      Do(what, FailedText<Result>(), [&] { return ResultOf(act()); });
    }
  }
  template <class F>
  void Step(const char* what, const std::string& failed, F&& act) {
    Do(what, failed, [&] { return ResultOf(act()); });
  }
  /// For results that failures may change in ways of their own.
  template <class F>
  void StepOfAnyResult(const char* what, F&& act) {
    Do(what, std::nullopt, [&] { return ResultOf(act()); });
  }

  /// From now on nothing goes wrong, and nothing is counted.
  void Calm();
  /// Goes on as before `Calm`.
  void Storm();
  bool IsClean() const { return injection_.at == 0; }
  /// Callbacks of this device may be left when something has gone wrong.
  void CallbacksMayStay(std::string device) { may_stay_.insert("callback " + std::move(device) + ':'); }
  void DeviceMayStay(const std::string& device) { may_stay_.insert("device " + device); }

  /// Ends the run; gives what was wrong with it, one line each.
  std::vector<std::string> Finish();
  long Calls() const { return toolkit_.Count(); }
  bool HasHit() const { return toolkit_.HasFailed() || Allocations::HasFailed(); }
  void Complain(std::string what);

 private:
  template <class T>
  static std::string ResultOf(T&& value) {
    const WhoWorks others(WhoWorks::Others);
    return ResultText(value);
  }
  template <class F>
  void Do(const char* what, const std::optional<std::string>& failed, F&& act) {
    const bool hit_before = HasHit();
    const long calls_before = toolkit_.Count();
    std::string result;
    bool threw = false;
    try {
      const WhoWorks library(WhoWorks::Library);
      result = act();
    } catch (const std::bad_alloc&) {
      threw = true;
    } catch (const std::length_error&) {
      threw = true;
    } catch (...) {
      Complain(std::string(what) + " threw what is neither an allocation nor a length error");
    }
    Judge(what, failed, result, threw, hit_before, toolkit_.Count() - calls_before);
  }
  void Judge(const std::string& what, const std::optional<std::string>& failed, const std::string& result, bool threw,
             bool hit_before, long calls);
  bool MayStay(const std::string& leftover) const;

  const Injection injection_;
  std::vector<StepRecord>& records_;
  std::size_t next_ = 0;
  std::vector<std::string> complaints_;
  std::set<std::string> may_stay_;
  FaultyToolkit toolkit_;
};

}  // namespace torture

#endif
