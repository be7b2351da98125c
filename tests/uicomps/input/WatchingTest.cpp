// How a control comes under watch and out of it.
#include <tests/uicomps/input/InputVerifierTest.h>

namespace oxecad_ui {
namespace {

using Watching = InputVerifierTest;

constexpr const char* kAdded = R"(
  retrieve dlg:width | 282->"InputPanel" | 0
  add_action dlg:width 8 Input f1 &verifier 1
  add_action dlg:width 32 FocusOut f2 &verifier 1
  add_action dlg:width 31 FocusIn f3 &verifier 1
  retrieve dlg:width | 15->L"1" | 0)";

TEST_F(Watching, AsksForTheClassRegistersAndReadsTheText) {
  EXPECT_TRUE(Add("width"));
  EXPECT_TRUE(toolkit.Took(kAdded));
  EXPECT_EQ(verifier.GetInputTest("width"), test);
}

TEST_F(Watching, TakesOptionMenusToo) {
  toolkit.When(Retrieving(282)).Give(282, "OptionMenu");
  EXPECT_TRUE(Add("width"));
  EXPECT_EQ(toolkit.Registered().size(), 3u);
}

TEST_F(Watching, RefusesEveryOtherClass) {
  for (const char* const name : {"PushButton", "Tree", "inputpanel", "InputPanel ", "InputPane", "OptionMenus", ""}) {
    SCOPED_TRACE(name);
    toolkit.When(Retrieving(282)).Give(282, name);
    EXPECT_FALSE(Add("width"));
    EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 282->\"" + std::string(name) + "\" | 0"));
    EXPECT_FALSE(verifier.GetInputTest("width"));
  }
}

TEST_F(Watching, RefusesAClassThatCannotBeRead) {
  for (const Failure failure : {Failure::Refused, Failure::Scribbled}) {
    toolkit.FailCall(1, failure);
    EXPECT_FALSE(Add("width"));
    EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 282=? | 0 => 1"));
  }
  for (const Failure failure : {Failure::Ignored, Failure::NullAnswers}) {
    toolkit.FailCall(1, failure);
    EXPECT_FALSE(Add("width"));
    EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 282->null | 0"));
  }
}

TEST_F(Watching, RefusesANameThatIsWatchedWithoutACall) {
  ASSERT_TRUE(Add("width"));
  toolkit.TakeLines();
  const SmartPtr<InputTest> other(new ScriptedTest);
  EXPECT_FALSE(verifier.AddControl("width", other));
  EXPECT_FALSE(verifier.AddControl(std::string("width").c_str(), test)) << "names count, not where they stand";
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(verifier.GetInputTest("width"), test);
  EXPECT_TRUE(Add("Width"));
}

TEST_F(Watching, StopsAtARefusedRegistrationAndKeepsTheEarlierOnes) {
  for (std::size_t refused = 0; refused < 3; ++refused) {
    SCOPED_TRACE(refused);
    RecordingToolkit fresh;
    fresh.When(Retrieving(282)).Give(282, "InputPanel");
    InputVerifier half("dlg");
    fresh.FailCall(2 + refused, Failure::Refused);
    EXPECT_FALSE(half.AddControl("width", test));
    EXPECT_EQ(fresh.Lines().size(), 2 + refused) << "nothing after the refusal";
    EXPECT_EQ(fresh.Registered().size(), refused);
    EXPECT_FALSE(half.GetInputTest("width"));
    for (const auto& registration : fresh.Registered()) {
      fresh.TakeLines();
      EXPECT_EQ(registration.callback(registration.client_data, registration.value), 0);
      EXPECT_TRUE(fresh.Took("")) << "a callback without a control does nothing";
    }
    fresh.TakeLines();
    half.RemoveControl("width");
    half.Clear();
    EXPECT_TRUE(fresh.Took("")) << "what was registered half-way stays";
    fresh.FailNone();
    EXPECT_TRUE(half.AddControl("width", test));
  }
}

TEST_F(Watching, SpendsTheIndexOfARefusedRegistration) {
  toolkit.FailCall(3, Failure::Refused);
  EXPECT_FALSE(Add("width"));
  toolkit.TakeLines();
  EXPECT_TRUE(Add("width"));
  EXPECT_TRUE(toolkit.Took("...\nadd_action dlg:width 8 Input f1 &verifier 2\n..."));
}

TEST_F(Watching, SpendsNoIndexBeforeTheClassIsKnownToFit) {
  toolkit.FailCall(1, Failure::Refused);
  EXPECT_FALSE(Add("width"));
  toolkit.When(Retrieving(282).On("button")).Give(282, "PushButton");
  EXPECT_FALSE(Add("button"));
  EXPECT_TRUE(Add("width"));
  EXPECT_FALSE(Add("width"));
  EXPECT_TRUE(Add("height"));
  EXPECT_EQ(toolkit.Registered()[0].value, reinterpret_cast<void*>(1));
  EXPECT_EQ(toolkit.Registered()[3].value, reinterpret_cast<void*>(2));
}

TEST_F(Watching, NeverUsesAnIndexAgain) {
  Add("width");
  verifier.RemoveControl("width");
  Add("width");
  verifier.Clear();
  InputVerifier other("dlg");
  other.AddControl("width", test);
  EXPECT_EQ(toolkit.Registered().back().value, reinterpret_cast<void*>(3)) << "all verifiers count together";
}

TEST_F(Watching, ReadsAnUnreadableTextAsEmpty) {
  for (const Failure failure : test_support::kAllFailures) {
    SCOPED_TRACE(Name(failure));
    InputVerifier fresh("dlg");
    toolkit.FailCall(5, failure);
    EXPECT_TRUE(fresh.AddControl("width", test));
    toolkit.TakeLines();
    script->accepts = false;
    toolkit.Fire("width", kInput);
    EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 15->L\"1\" | 0\nmodify dlg:width | 15=L\"\" | 0\n..."));
    fresh.Clear();
  }
}

TEST_F(Watching, RemovesTheCallbacksInTheOrderOfRegistration) {
  Add("width");
  toolkit.TakeLines();
  verifier.RemoveControl("width");
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dlg:width 8 Input f1
    remove_action dlg:width 32 FocusOut f2
    remove_action dlg:width 31 FocusIn f3)"));
  EXPECT_TRUE(toolkit.Registered().empty());
  EXPECT_FALSE(verifier.GetInputTest("width"));
  verifier.RemoveControl("width");
  verifier.RemoveControl("unknown");
  EXPECT_TRUE(toolkit.Took(""));
}

TEST_F(Watching, ForgetsAControlBeforeItsCallbacksAreRemoved) {
  int asked = 0;
  toolkit.When(test_support::Calling(uiox::Function::RemoveAction)).Run([&](const uiox::Call&) {
    ++asked;
    EXPECT_FALSE(verifier.GetInputTest("width"));
    EXPECT_EQ(test->GetReferenceCount(), 1);
  });
  Add("width");
  verifier.RemoveControl("width");
  EXPECT_EQ(asked, 3);
}

TEST_F(Watching, ForgetsAControlAlsoWhenTheRemovalsFail) {
  Add("width");
  toolkit.FailAll(Failure::Refused);
  verifier.RemoveControl("width");
  toolkit.FailNone();
  EXPECT_FALSE(verifier.GetInputTest("width"));
  EXPECT_TRUE(Add("width"));
}

TEST_F(Watching, ClearsInTheOrderOfTheIndexes) {
  for (const char* const name : {"z", "m", "a"}) Add(name);
  verifier.RemoveControl("m");
  Add("m");
  toolkit.TakeLines();
  verifier.Clear();
  EXPECT_TRUE(toolkit.Took(R"(
    remove_action dlg:z 8 Input f1
    remove_action dlg:z 32 FocusOut f2
    remove_action dlg:z 31 FocusIn f3
    remove_action dlg:a 8 Input f1
    remove_action dlg:a 32 FocusOut f2
    remove_action dlg:a 31 FocusIn f3
    remove_action dlg:m 8 Input f1
    remove_action dlg:m 32 FocusOut f2
    remove_action dlg:m 31 FocusIn f3)"));
  EXPECT_FALSE(verifier.GetInputTest("a"));
  EXPECT_TRUE(Add("a")) << "the name is free again";
  EXPECT_EQ(toolkit.Registered().back().value, reinterpret_cast<void*>(5)) << "clearing does not start anew";
}

TEST_F(Watching, IsNotEndedByTheDestructor) {
  {
    InputVerifier brief("dlg");
    brief.AddControl("width", test);
    toolkit.TakeLines();
  }
  EXPECT_TRUE(toolkit.Took(""));
  EXPECT_EQ(toolkit.Registered().size(), 3u);
  EXPECT_EQ(test->GetReferenceCount(), 1);
}

TEST_F(Watching, AddressesTheDeviceThatIsSet) {
  InputVerifier moved;
  toolkit.NamePointer(&moved, "&moved");
  std::string device = "panel";
  moved.SetDev(device.c_str());
  device = "other";
  EXPECT_TRUE(moved.AddControl("width", test));
  EXPECT_TRUE(toolkit.Took(R"(
    retrieve panel:width | 282->"InputPanel" | 0
    add_action panel:width 8 Input f1 &moved 1
    ...)"));
  moved.SetDev("dlg");
  moved.Clear();
  EXPECT_TRUE(toolkit.Took("remove_action dlg:width 8 Input f1\n..."));
}

TEST_F(Watching, StartsWithoutADevice) {
  InputVerifier lost;
  EXPECT_TRUE(lost.AddControl("width", test));
  EXPECT_TRUE(toolkit.Took("retrieve :width | 282->\"InputPanel\" | 0\n..."));
}

TEST_F(Watching, KnowsNoTestOfUnknownControls) {
  EXPECT_FALSE(verifier.GetInputTest("width"));
  EXPECT_TRUE(toolkit.Took(""));
}

}  // namespace
}  // namespace oxecad_ui
