/// \file
/// What the tests of the input verifier share.
#ifndef OXECAD_TESTS_UICOMPS_INPUT_INPUTVERIFIERTEST_H
#define OXECAD_TESTS_UICOMPS_INPUT_INPUTVERIFIERTEST_H

#include <gtest/gtest.h>
#include <oxkutils/SmartPtr.h>
#include <tests/support/RecordingToolkit.h>
#include <uicomps/input/InputVerifier.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace oxecad_ui {

using oxkutils::SmartPtr;
using test_support::Failure;
using test_support::Modifying;
using test_support::RecordingToolkit;
using test_support::Retrieving;

constexpr int kInput = 8;
constexpr int kFocusIn = 31;
constexpr int kFocusOut = 32;

/// Answers as the test wants it to, and remembers what it was asked.
class ScriptedTest : public InputTest {
 public:
  ~ScriptedTest() override {
    if (at_end) at_end();
  }
  bool CanBeAPartOfValidInput(const wchar_t* text) const override {
    typed.emplace_back(text ? text : L"(null)");
    if (when_asked) when_asked();
    return accepts;
  }
  bool GetValidInput(const wchar_t* text, std::wstring& out) const override {
    left.emplace_back(text ? text : L"(null)");
    if (when_asked) when_asked();
    if (valid) out = *valid;
    return valid.has_value();
  }

  bool accepts = true;
  std::optional<std::wstring> valid;
  std::function<void()> when_asked;
  std::function<void()> at_end;
  mutable std::vector<std::wstring> typed;
  mutable std::vector<std::wstring> left;
};

/// A verifier of the dialog "dlg" in front of a toolkit in which every control is an entry field with the text "1".
class InputVerifierTest : public testing::Test {
 protected:
  InputVerifierTest() {
    toolkit.NamePointer(&verifier, "&verifier");
    toolkit.When(Retrieving(282)).Give(282, "InputPanel");
    toolkit.When(Retrieving(15)).Give(15, L"1");
  }

  void GiveText(const wchar_t* text) { toolkit.When(Retrieving(15)).Give(15, text); }
  void GiveText(const char* control, const wchar_t* text) { toolkit.When(Retrieving(15).On(control)).Give(15, text); }
  bool Add(const char* name) { return verifier.AddControl(name, test); }

  RecordingToolkit toolkit;
  InputVerifier verifier{"dlg"};
  ScriptedTest* const script = new ScriptedTest;
  const SmartPtr<InputTest> test{script};
};

}  // namespace oxecad_ui

#endif
