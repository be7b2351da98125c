/// \file
/// Stands between the library and the stand-in toolkit and lets calls fail.
#ifndef OXECAD_TESTS_TORTURE_FAULTYTOOLKIT_H
#define OXECAD_TESTS_TORTURE_FAULTYTOOLKIT_H

#include <tests/support/HandOuts.h>
#include <tests/support/RecordingToolkit.h>
#include <tests/support/Script.h>
#include <tests/torture/Spread.h>
#include <uiox/Backend.h>

#include <string>
#include <vector>

namespace torture {

using test_support::Failure;

/// Hands every call on to the stand-in, but for those that are to fail. While it lives it keeps the books of what 2202
/// hands out, and calls the library's callbacks as a toolkit written in C has to: what one throws ends there.
///
/// A release is performed even where its result is a failure, and so is the removal of a callback and the end of a
/// control: the caller can do no more than ask for it.
class FaultyToolkit : public uiox::Backend {
 public:
  FaultyToolkit();
  ~FaultyToolkit() override;

  /// Counts from 0 again. The n-th call fails (0: none), and those behind it that the spread says.
  void Start(long failing, Failure failure, Spread spread);
  /// Neither counts nor fails calls from now on; `Resume` goes on where it stopped.
  void Pause() { active_ = false; }
  void Resume() { active_ = true; }

  long Count() const { return count_; }
  bool HasFailed() const { return failed_; }
  /// Whether a callback threw something else than an allocation or a length error.
  const std::vector<std::string>& Complaints() const { return complaints_; }
  std::vector<std::string> Outstanding() const { return hand_outs_.Outstanding(); }

  int Handle(uiox::Call& call) override;

  /// For the callbacks' stand-ins.
  int CallBack(ui_callback callback, void* client, void* value);
  static FaultyToolkit* Current();

 private:
  bool FailsNow();
  int Fail(uiox::Call& call);
  int Answer(uiox::Call& call);

  uiox::Backend* const before_;
  test_support::HandOuts hand_outs_;
  test_support::Script script_;
  std::vector<std::string> complaints_;
  Failure failure_ = Failure::Refused;
  long count_ = 0;
  long failing_ = 0;
  Spread spread_ = Spread::Once;
  bool active_ = true;
  bool failed_ = false;
};

}  // namespace torture

#endif
