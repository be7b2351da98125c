/// \file
/// A toolkit for tests that writes down what it is asked, and answers as the test wants it to.
#ifndef OXECAD_TESTS_SUPPORT_RECORDINGTOOLKIT_H
#define OXECAD_TESTS_SUPPORT_RECORDINGTOOLKIT_H

#include <gtest/gtest.h>
#include <tests/support/CallText.h>
#include <tests/support/HandOuts.h>
#include <tests/support/Script.h>
#include <uiox/Backend.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace test_support {

/// Ways in which a toolkit call can go wrong.
enum class Failure {
  Refused,      ///< a non-zero result (zero where that means failure); out-values untouched
  Scribbled,    ///< the same, with garbage in every out-value
  Ignored,      ///< success, out-values untouched
  NullAnswers,  ///< success; texts null, lists with a count of 3 and a null array, numbers 0
  NullNames     ///< success; texts null, lists of 3 null names, numbers 0
};
constexpr Failure kAllFailures[] = {Failure::Refused, Failure::Scribbled, Failure::Ignored, Failure::NullAnswers,
                                    Failure::NullNames};
const char* Name(Failure failure);

/// Takes the place of the stand-in toolkit while it lives and writes each call as one line:
///
///     do dev:tree 2029 AddNode "n1" L"n1" "root" "net" | 2=L"" 128=1 256=0 512=0 1024=null | 0
///     do dev:tree 2032 MoveNode "n1" "root" null
///     do dev:tree 2202 GetNode "n1" | 2->L"R9" | 0          (answered)
///     do dev:tree 2202 GetNode "n1" | 2=? | 0 => 1          (refused with 1: nothing was answered)
///     do dev:tree 2202 GetNode "n1" | 284->["a" "b"] | 0    (a list; `3 null` is a count without an array)
///     do dev:tree 2202 GetNode "n1" | 284->count 2 | 0      (the address of the array was 0; refused: 284=?count)
///     do dlg:dlg 2003 GetSize ->400 ->300 | 0
///     free 2 L"R9" | 0
///     free 284 ["a" "b"] | 0                                (`free 284 [] | 0`: count 0 and null)
///     retrieve dev:tree | 72->["a"] | 0
///     modify dev:tree | 5=1 | 0
///     add_action dev:tree 4 Activate f1 &tree 0             (callback, client data, further value or closing 0)
///     remove_action dev:tree 4 Activate f1
///     global_do 6031 DefineImage "square_7.png" image{23 16x16} | 0
///     do dev:tree 2139 DefineNodeType type{"t" "t.png" null} | 0
///
/// in this order: function, `device:component`, code and its name, positional values, ` |` and the option pairs, `| 0`
/// for the closing 0, ` => ` and the result where it is not 0 (of `create_search_path`, `create_device_ext` and
/// `activate_device` always). `!no-closing-0`, `!unknown-option:N` and `!badly-widened:0x…` mark calls that the wire
/// does not allow. A callback is f1, f2 … in the order of appearance, and so is a pointer that `NamePointer` has not
/// named (p1, p2 …); pointers of 32 bits are numbers in hexadecimal. Texts are UTF-8, wide ones too; a unit that is no
/// UTF-16 is written `\u{d800}`.
///
/// Every toolkit checks the releases: each text and list that 2202 hands out comes back once, under its attribute, with
/// its count and address. What is wrong, or has not come back at its end, fails the test.
///
///     RecordingToolkit toolkit;                                        // alone: answers by rules
///     toolkit.When(Doing(2202, "n1").With(2)).Give(2, L"R9");
///     toolkit.When(Retrieving(54)).Give(54, "root");
///     EXPECT_EQ(tree.GetNodeLabel("n1"), L"R9");
///     EXPECT_TRUE(toolkit.Took(R"(
///       do dev:tree 2202 GetNode "n1" | 2->L"R9" | 0
///       free 2 L"R9" | 0
///     )"));
class RecordingToolkit : public uiox::Backend {
 public:
  /// Who answers where no rule does.
  enum Source {
    Nobody,  ///< every call succeeds and leaves the out-values as they are
    StandIn  ///< the built-in stand-in
  };

  explicit RecordingToolkit(Source source = Nobody);
  ~RecordingToolkit() override;

  int Handle(uiox::Call& call) override;

  // --- What it answers -----------------------------------------------------------------------------------------------

  /// A rule; the newest that fits a call answers it. The reference is good as long as the toolkit.
  Rule& When(Match match) { return script_.When(std::move(match)); }
  void ForgetRules() { script_.ForgetRules(); }
  /// Makes the n-th call from now (1: the next) go wrong; takes the place of an earlier wish. `ui_free` counts too.
  void FailCall(std::size_t n, Failure failure);
  /// Makes every call from now on go wrong.
  void FailAll(Failure failure);
  void FailNone();
  /// Calls since the start or the last `FailCall`, `FailAll` or `FailNone`.
  std::size_t CallCount() const { return call_count_; }

  // --- What it was asked ---------------------------------------------------------------------------------------------

  /// Whether the lines since the last time are these; forgets them. Indentation and blank lines do not count, and `...`
  /// on a line of its own stands for any number of lines. The message of a failure shows where they part, with the
  /// names of the options.
  testing::AssertionResult Took(std::string_view expected);
  /// The lines since the last time; forgets them.
  std::vector<std::string> TakeLines();
  const std::vector<std::string>& Lines() const { return lines_; }
  /// Writes lines only for calls that this accepts; the others are answered all the same.
  void WriteOnly(std::function<bool(const uiox::Call&)> wanted) { wanted_ = std::move(wanted); }
  /// What a pointer is called in the lines.
  void NamePointer(const void* pointer, std::string name) { names_.Name(pointer, std::move(name)); }

  /// Complaints about releases up to now, those that have not come back included; forgets the former.
  std::vector<std::string> TakeComplaints();

  // --- Callbacks -----------------------------------------------------------------------------------------------------

  struct Registration {
    std::string device;
    std::string component;
    int reason;
    ui_callback callback;
    void* client_data;
    void* value;
  };
  /// The callbacks that are registered now, in order.
  const std::vector<Registration>& Registered() const { return registered_; }
  /// Calls the callbacks of a component's reason as the toolkit does; gives the last result. Fails the test when there
  /// are none.
  int Fire(std::string_view component, int reason);

 private:
  int Answer(uiox::Call& call);
  int Release(uiox::Call& call);
  int GoWrong(const uiox::Call& call);
  void KeepBooks(const uiox::Call& call, int result);

  const Source source_;
  uiox::Backend* const before_;
  Script script_;
  HandOuts hand_outs_;
  PointerNames names_;
  std::function<bool(const uiox::Call&)> wanted_;
  std::vector<std::string> lines_;
  std::vector<std::string> explained_;
  std::vector<std::string> complaints_;
  std::vector<Registration> registered_;
  std::size_t call_count_ = 0;
  std::size_t failing_call_ = 0;  // 0: none
  bool fail_all_ = false;
  Failure failure_ = Failure::Refused;
};

/// Runs a scenario once with all calls answered, then once for each call of it and each way in which that call can go
/// wrong. `scenario` is given a fresh toolkit that the call is set up on; what it leaves unreleased fails the test.
/// `prepare` may write rules.
void ForEachFailure(RecordingToolkit::Source source, const std::function<void(RecordingToolkit&)>& prepare,
                    const std::function<void(RecordingToolkit&)>& scenario);

}  // namespace test_support

#endif
