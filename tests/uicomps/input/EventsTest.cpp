// What happens while the user types, and when the focus comes and goes.
#include <tests/uicomps/input/InputVerifierTest.h>

namespace oxecad_ui {
namespace {

class InputEvents : public InputVerifierTest {
 protected:
  InputEvents() {
    Add("width");
    toolkit.TakeLines();
  }

  void Type(const wchar_t* text) {
    GiveText(text);
    EXPECT_EQ(toolkit.Fire("width", kInput), 0);
  }
};

TEST_F(InputEvents, AcceptedTextIsOnlyRead) {
  Type(L"12");
  EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 15->L\"12\" | 0"));
  EXPECT_EQ(script->typed, (std::vector<std::wstring>{L"12"}));
}

TEST_F(InputEvents, RefusedTextIsUndoneWithABeep) {
  Type(L"12");
  script->accepts = false;
  toolkit.TakeLines();
  Type(L"12a");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"12a" | 0
    modify dlg:width | 15=L"12" | 0
    beep)"));
  Type(L"12b");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"12b" | 0
    modify dlg:width | 15=L"12" | 0
    beep)"))
      << "a refused text is not the last good one";
}

TEST_F(InputEvents, TheTextOfTheRegistrationIsGood) {
  script->accepts = false;
  Type(L"abc");
  EXPECT_TRUE(toolkit.Took("...\nmodify dlg:width | 15=L\"1\" | 0\nbeep"));
}

TEST_F(InputEvents, ARefusedCharacterMarksTheWholeTextBeforeTheBeep) {
  script->accepts = false;
  Type(L"a");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"a" | 0
    modify dlg:width | 15=L"1" | 0
    do dlg:width 2094 SelectText 0 4294967295 | 0
    beep)"));
}

TEST_F(InputEvents, ARefusedEmptyTextMarksNothing) {
  script->accepts = false;
  Type(L"");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"" | 0
    modify dlg:width | 15=L"1" | 0
    beep)"));
}

TEST_F(InputEvents, GaugesTheRefusedTextNotTheGoodOne) {
  Type(L"12345");
  script->accepts = false;
  toolkit.TakeLines();
  Type(L"x");
  EXPECT_TRUE(toolkit.Took(R"(
    ...
    modify dlg:width | 15=L"12345" | 0
    do dlg:width 2094 SelectText 0 4294967295 | 0
    beep)"));
}

TEST_F(InputEvents, BeepsAlsoWhenTheTextCannotBePutBack) {
  script->accepts = false;
  toolkit.When(Modifying(15)).Refuse();
  toolkit.When(test_support::Doing(2094)).Refuse();
  Type(L"a");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"a" | 0
    modify dlg:width | 15=L"1" | 0 => 1
    do dlg:width 2094 SelectText 0 4294967295 | 0 => 1
    beep)"));
}

TEST_F(InputEvents, ReadsWhatCannotBeReadAsEmpty) {
  for (const Failure failure : test_support::kAllFailures) {
    script->typed.clear();
    script->left.clear();
    for (const int reason : {kInput, kFocusOut}) {
      toolkit.FailCall(1, failure);
      toolkit.Fire("width", reason);
    }
    EXPECT_EQ(script->typed, (std::vector<std::wstring>{L""})) << Name(failure);
    EXPECT_EQ(script->left, (std::vector<std::wstring>{L""})) << Name(failure);
  }
}

TEST_F(InputEvents, TakesThePresetForALastGoodTextThatCannotBeRead) {
  toolkit.FailCall(1, Failure::Scribbled);
  EXPECT_EQ(toolkit.Fire("width", kFocusIn), 0);
  toolkit.TakeLines();
  EXPECT_EQ(toolkit.Fire("width", kFocusOut), 0);
  EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 15->L\"1\" | 0\nmodify dlg:width | 15=L\"\" | 0"));
}

TEST_F(InputEvents, GainingTheFocusOnlyReads) {
  GiveText(L"7");
  EXPECT_EQ(toolkit.Fire("width", kFocusIn), 0);
  EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 15->L\"7\" | 0"));
  EXPECT_TRUE(script->typed.empty() && script->left.empty()) << "the test is not asked";
}

TEST_F(InputEvents, GainingTheFocusSetsTheLastGoodText) {
  GiveText(L"7");
  toolkit.Fire("width", kFocusIn);
  script->accepts = false;
  toolkit.TakeLines();
  Type(L"7x");
  EXPECT_TRUE(toolkit.Took("...\nmodify dlg:width | 15=L\"7\" | 0\nbeep"));
}

TEST_F(InputEvents, LeavingWritesTheValidText) {
  script->valid = L"10";
  GiveText(L"15");
  EXPECT_EQ(toolkit.Fire("width", kFocusOut), 0);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"15" | 0
    modify dlg:width | 15=L"10" | 0)"));
  EXPECT_EQ(script->left, (std::vector<std::wstring>{L"15"}));
  EXPECT_TRUE(script->typed.empty());
}

TEST_F(InputEvents, LeavingWritesAnUnchangedTextToo) {
  script->valid = L"15";
  GiveText(L"15");
  toolkit.Fire("width", kFocusOut);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"15" | 0
    modify dlg:width | 15=L"15" | 0)"));
}

TEST_F(InputEvents, LeavingWithoutAValidTextRestoresTheTextOfTheFocus) {
  GiveText(L"7");
  toolkit.Fire("width", kFocusIn);
  Type(L"78");
  toolkit.TakeLines();
  GiveText(L"x");
  toolkit.Fire("width", kFocusOut);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"x" | 0
    modify dlg:width | 15=L"7" | 0)"))
      << "not the last good text, which is 78";
}

TEST_F(InputEvents, AControlThatNeverHadTheFocusGoesBackToItsFirstText) {
  Type(L"2");
  toolkit.TakeLines();
  toolkit.Fire("width", kFocusOut);
  EXPECT_TRUE(toolkit.Took("...\nmodify dlg:width | 15=L\"1\" | 0"));
}

TEST_F(InputEvents, TextBeyondTheBasicPlaneSurvives) {
  GiveText(L"\xD83D\xDD0C \x00E4");
  toolkit.Fire("width", kFocusIn);
  script->accepts = false;
  toolkit.TakeLines();
  Type(L"\xD83D");
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"\u{d83d}" | 0
    modify dlg:width | 15=L"🔌 ä" | 0
    do dlg:width 2094 SelectText 0 4294967295 | 0
    beep)"));
}

TEST_F(InputEvents, ControlsAreToldApart) {
  GiveText("height", L"5");
  GiveText("width", L"6");
  Add("height");
  for (const char* const name : {"width", "height"}) toolkit.Fire(name, kFocusIn);
  toolkit.TakeLines();
  for (const char* const name : {"width", "height"}) toolkit.Fire(name, kFocusOut);
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"6" | 0
    modify dlg:width | 15=L"6" | 0
    retrieve dlg:height | 15->L"5" | 0
    modify dlg:height | 15=L"5" | 0)"));
}

TEST_F(InputEvents, NobodyAndUnknownIndexesAreIgnored) {
  for (const auto callback : {InputVerifier::InputCB, InputVerifier::FocusInCB, InputVerifier::FocusOutCB}) {
    EXPECT_EQ(callback(nullptr, reinterpret_cast<void*>(1)), 0);
    EXPECT_EQ(callback(&verifier, nullptr), 0);
    EXPECT_EQ(callback(&verifier, reinterpret_cast<void*>(2)), 0);
    EXPECT_EQ(callback(&verifier, reinterpret_cast<void*>(~std::uintptr_t{0})), 0);
  }
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(InputEvents, AStaleCallbackIsIgnored) {
  const auto registered = toolkit.Registered();
  verifier.RemoveControl("width");
  Add("width");
  toolkit.TakeLines();
  for (const auto& registration : registered) {
    EXPECT_EQ(registration.callback(registration.client_data, registration.value), 0);
  }
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(InputEvents, TheTestMayEndTheWatchWhileItIsAsked) {
  script->accepts = false;
  script->when_asked = [this] { verifier.RemoveControl("width"); };
  for (const int reason : {kInput, kFocusOut}) {
    if (!verifier.GetInputTest("width")) Add("width");
    toolkit.Fire("width", reason);
    EXPECT_FALSE(verifier.GetInputTest("width"));
  }
}

TEST_F(InputEvents, TheTestMayEndTheWatchAndAcceptTheText) {
  script->when_asked = [this] { verifier.RemoveControl("width"); };
  toolkit.TakeLines();
  toolkit.WriteOnly([](const uiox::Call& call) { return call.function == uiox::Function::Modify; });
  toolkit.Fire("width", kInput);
  EXPECT_FALSE(verifier.GetInputTest("width"));
  EXPECT_TRUE(toolkit.Took("")) << "the text stays";
}

TEST_F(InputEvents, TheTestMayLoseItsLastReferenceWhileItIsAsked) {
  for (const int reason : {kInput, kFocusOut}) {
    bool ended = false;
    auto* const own = new ScriptedTest;
    own->accepts = false;
    own->when_asked = [&] {
      verifier.RemoveControl("depth");
      EXPECT_FALSE(ended) << "it still has to answer";
    };
    own->at_end = [&] { ended = true; };
    verifier.AddControl("depth", SmartPtr<InputTest>(own));
    toolkit.Fire("depth", reason);
    EXPECT_TRUE(ended);
  }
}

}  // namespace
}  // namespace oxecad_ui
