// Who holds an input test, and what copies of a verifier share.
#include <tests/uicomps/input/InputVerifierTest.h>

#include <memory>
#include <type_traits>

namespace oxecad_ui {
namespace {

using Sharing = InputVerifierTest;

TEST_F(Sharing, AWatchedControlHoldsOneReference) {
  EXPECT_EQ(test->GetReferenceCount(), 1);
  Add("width");
  EXPECT_EQ(test->GetReferenceCount(), 2);
  Add("height");
  EXPECT_EQ(test->GetReferenceCount(), 3);
  verifier.RemoveControl("width");
  EXPECT_EQ(test->GetReferenceCount(), 2);
  verifier.Clear();
  EXPECT_EQ(test->GetReferenceCount(), 1);
}

TEST_F(Sharing, ARefusedControlHoldsNone) {
  toolkit.FailCall(1, Failure::Refused);
  Add("width");
  EXPECT_EQ(test->GetReferenceCount(), 1);
  for (std::size_t call = 2; call <= 4; ++call) {
    toolkit.FailCall(call, Failure::Refused);
    Add("width");
    EXPECT_EQ(test->GetReferenceCount(), 1);
  }
  toolkit.FailNone();
  Add("width");
  Add("width");
  EXPECT_EQ(test->GetReferenceCount(), 2) << "the second time the name is taken";
}

TEST_F(Sharing, AskingForTheTestGivesAReferenceOfItsOwn) {
  Add("width");
  {
    const SmartPtr<InputTest> asked = verifier.GetInputTest("width");
    EXPECT_EQ(test->GetReferenceCount(), 3);
    verifier.Clear();
    EXPECT_EQ(test->GetReferenceCount(), 2);
    EXPECT_EQ(asked, test);
  }
  EXPECT_EQ(test->GetReferenceCount(), 1);
}

TEST_F(Sharing, TheLastReferenceDeletesTheTest) {
  int ended = 0;
  const auto add = [&](const char* name) {
    auto* const own = new ScriptedTest;
    own->at_end = [&ended] { ++ended; };
    verifier.AddControl(name, SmartPtr<InputTest>(own));
  };
  add("width");
  add("height");
  EXPECT_EQ(ended, 0);
  verifier.RemoveControl("width");
  EXPECT_EQ(ended, 1);
  verifier.Clear();
  EXPECT_EQ(ended, 2);
  {
    InputVerifier brief("dlg");
    auto* const own = new ScriptedTest;
    own->at_end = [&ended] { ++ended; };
    brief.AddControl("width", SmartPtr<InputTest>(own));
  }
  EXPECT_EQ(ended, 3) << "the destructor frees the records";
}

TEST_F(Sharing, ACopyHoldsReferencesOfItsOwn) {
  Add("width");
  {
    const InputVerifier copy(verifier);
    EXPECT_EQ(test->GetReferenceCount(), 3);
    EXPECT_EQ(copy.GetInputTest("width"), test);
  }
  EXPECT_EQ(test->GetReferenceCount(), 2);
}

TEST_F(Sharing, CopyingCallsNothing) {
  Add("width");
  toolkit.TakeLines();
  const InputVerifier copy(verifier);
  InputVerifier assigned;
  assigned = verifier;
  EXPECT_TRUE(toolkit.Took("")) << "callbacks are not duplicated";
  EXPECT_EQ(toolkit.Registered().size(), 3u);
}

TEST_F(Sharing, ACopyKnowsTheSameControlsAndDevice) {
  Add("width");
  InputVerifier copy(verifier);
  EXPECT_FALSE(copy.AddControl("width", test));
  toolkit.TakeLines();
  copy.RemoveControl("width");
  EXPECT_TRUE(toolkit.Took("remove_action dlg:width 8 Input f1\n..."));
  EXPECT_TRUE(verifier.GetInputTest("width")) << "the maps are the copy's own";
}

TEST_F(Sharing, ACopyKeepsTextsOfItsOwn) {
  Add("width");
  InputVerifier copy(verifier);
  GiveText(L"5");
  toolkit.Fire("width", kFocusIn);
  script->accepts = false;
  toolkit.TakeLines();
  InputVerifier::InputCB(&copy, reinterpret_cast<void*>(1));
  InputVerifier::InputCB(&verifier, reinterpret_cast<void*>(1));
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve dlg:width | 15->L"5" | 0
    modify dlg:width | 15=L"1" | 0
    do dlg:width 2094 SelectText 0 4294967295 | 0
    beep
    retrieve dlg:width | 15->L"5" | 0
    modify dlg:width | 15=L"5" | 0
    do dlg:width 2094 SelectText 0 4294967295 | 0
    beep)"));
}

TEST_F(Sharing, AssignmentReplacesControlsAndReleasesTheirTests) {
  auto* const own = new ScriptedTest;
  const SmartPtr<InputTest> other(own);
  InputVerifier target("panel");
  target.AddControl("depth", other);
  Add("width");
  EXPECT_EQ(other->GetReferenceCount(), 2);
  target = verifier;
  EXPECT_EQ(other->GetReferenceCount(), 1);
  EXPECT_EQ(test->GetReferenceCount(), 3);
  EXPECT_FALSE(target.GetInputTest("depth"));
  EXPECT_EQ(target.GetInputTest("width"), test);
  InputVerifier& same = target;
  target = same;
  EXPECT_EQ(test->GetReferenceCount(), 3);
}

TEST_F(Sharing, TestsAreCopiedWithoutTheirCount) {
  const SmartPtr<LengthInputTest> original(new LengthInputTest(0, 10, 0));
  const SmartPtr<LengthInputTest> copy(new LengthInputTest(*original));
  EXPECT_EQ(original->GetReferenceCount(), 1);
  EXPECT_EQ(copy->GetReferenceCount(), 1);
  *copy = *original;
  EXPECT_EQ(copy->GetReferenceCount(), 1);
}

}  // namespace
}  // namespace oxecad_ui
