// Every call goes wrong in every way, in the middle of a user's work.
#include <tests/uicomps/input/InputVerifierTest.h>

namespace oxecad_ui {
namespace {

void GiveFields(RecordingToolkit& toolkit) {
  toolkit.When(Retrieving(282)).Give(282, "InputPanel");
  toolkit.When(Retrieving(15)).Give(15, L"x");
}

/// Calls what is registered, as the toolkit would: controls whose registration failed half-way included.
void FireAll(RecordingToolkit& toolkit) {
  const auto registered = toolkit.Registered();
  for (const auto& registration : registered) {
    EXPECT_EQ(registration.callback(registration.client_data, registration.value), 0);
  }
}

TEST(InputFailure, NoOperationMindsAFailedCall) {
  ForEachFailure(RecordingToolkit::Nobody, GiveFields, [](RecordingToolkit& toolkit) {
    const SmartPtr<InputTest> test(new NumericInputTest<double>(0, 10, false));
    InputVerifier verifier("dlg");
    const bool width = verifier.AddControl("width", test);
    const bool height = verifier.AddControl("height", test);
    EXPECT_EQ(test->GetReferenceCount(), 1 + (width ? 1 : 0) + (height ? 1 : 0));
    EXPECT_EQ(static_cast<bool>(verifier.GetInputTest("width")), width);
    FireAll(toolkit);
    verifier.RemoveControl("width");
    EXPECT_FALSE(verifier.GetInputTest("width"));
    FireAll(toolkit);
    verifier.Clear();
    EXPECT_EQ(test->GetReferenceCount(), 1);
    toolkit.FailNone();
    EXPECT_TRUE(verifier.AddControl("width", test)) << "and it works again";
    verifier.Clear();
  });
}

TEST(InputFailure, NothingIsWatchedWhereEverythingFails) {
  for (const Failure failure : test_support::kAllFailures) {
    SCOPED_TRACE(Name(failure));
    RecordingToolkit toolkit;
    toolkit.FailAll(failure);
    const SmartPtr<InputTest> test(new NumericInputTest<double>(0, 10, true));
    InputVerifier verifier("dlg");
    EXPECT_FALSE(verifier.AddControl("width", test));
    EXPECT_EQ(toolkit.Lines().size(), 1u);
    EXPECT_EQ(test->GetReferenceCount(), 1);
  }
}

}  // namespace
}  // namespace oxecad_ui
