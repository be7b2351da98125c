// Lengths: a range that follows its unit.
#include <oxg/LengthUnit.h>
#include <tests/uicomps/VirtualSlot.h>
#include <tests/uicomps/input/InputVerifierTest.h>

#include <type_traits>

namespace oxecad_ui {
namespace {

using oxg::LengthUnit;

/// The limits, as numbers far beyond them are left behind.
std::wstring RangeOf(const InputTest& test) {
  std::wstring low;
  std::wstring high;
  if (!test.GetValidInput(L"-1e300", low) || !test.GetValidInput(L"1e300", high)) return L"none";
  return low + L" to " + high;
}

TEST(LengthInput, AnEmptyTextIsAllowed) {
  const LengthInputTest test(-1, 1, LengthUnit::Millimetre);
  EXPECT_TRUE(test.CanBeAPartOfValidInput(L""));
  std::wstring out = L"x";
  EXPECT_TRUE(test.GetValidInput(L"", out));
  EXPECT_EQ(out, L"");
  EXPECT_TRUE(LengthInputTest(1, 2, LengthUnit::Inch).CanBeAPartOfValidInput(nullptr));
  EXPECT_FALSE(LengthInputTest(1, 2, LengthUnit::Inch).GetValidInput(nullptr, out));
}

TEST(LengthInput, ItIsANumberInARange) {
  const LengthInputTest test(0, 25.4, LengthUnit::Millimetre);
  EXPECT_EQ(RangeOf(test), L"0 to 25.4");
  EXPECT_TRUE(test.CanBeAPartOfValidInput(L"-"));
  EXPECT_FALSE(test.CanBeAPartOfValidInput(L"1mm"));
}

TEST(LengthInput, ANewUnitConvertsTheRange) {
  LengthInputTest test(0, 25.4, LengthUnit::Millimetre);
  test.SetUnit(LengthUnit::Inch);
  EXPECT_EQ(RangeOf(test), L"0 to 1");
  test.SetUnit(LengthUnit::Mil);
  EXPECT_EQ(RangeOf(test), L"0 to 1000");
  test.SetUnit(LengthUnit::Millimetre);
  EXPECT_EQ(RangeOf(test), L"0 to 25.4") << "each time from the unit in force";
}

TEST(LengthInput, BothLimitsAreLengthsAndNotAreas) {
  LengthInputTest test(-2, 3, LengthUnit::Centimetre);
  test.SetUnit(LengthUnit::Millimetre);
  EXPECT_EQ(RangeOf(test), L"-20 to 30");
}

TEST(LengthInput, TheUnitInForceChangesNothing) {
  LengthInputTest test(0.1, 0.7, LengthUnit::Inch);
  test.SetUnit(LengthUnit::Inch);
  EXPECT_EQ(RangeOf(test), L"0.1 to 0.7");
}

TEST(LengthInput, ACopyHasTheUnitToo) {
  const LengthInputTest original(0, 25.4, LengthUnit::Millimetre);
  LengthInputTest copy(original);
  LengthInputTest assigned(0, 1, LengthUnit::Inch);
  assigned = original;
  for (LengthInputTest* const test : {&copy, &assigned}) {
    EXPECT_EQ(RangeOf(*test), L"0 to 25.4");
    test->SetUnit(LengthUnit::Inch);
    EXPECT_EQ(RangeOf(*test), L"0 to 1");
  }
  EXPECT_EQ(RangeOf(original), L"0 to 25.4");
}

TEST(LengthInput, ANewUnitLeavesTheTextOfTheControlAlone) {
  RecordingToolkit toolkit;
  toolkit.When(Retrieving(282)).Give(282, "InputPanel");
  toolkit.When(Retrieving(15)).Give(15, L"20");
  auto* const length = new LengthInputTest(0, 25.4, LengthUnit::Millimetre);
  InputVerifier verifier("dlg");
  ASSERT_TRUE(verifier.AddControl("width", SmartPtr<InputTest>(length)));
  toolkit.TakeLines();
  length->SetUnit(LengthUnit::Inch);
  EXPECT_TRUE(toolkit.Took(""));
  toolkit.Fire("width", kFocusOut);
  EXPECT_TRUE(toolkit.Took("retrieve dlg:width | 15->L\"20\" | 0\nmodify dlg:width | 15=L\"1\" | 0"));
}

TEST(InputTestSlots, AreTheCountsHookAndThenTheTwoQuestions) {
  using Number = NumericInputTest<double>;
  EXPECT_EQ(VirtualSlot(&InputTest::ZeroReferenceCountHook), 1);
  EXPECT_EQ(VirtualSlot(&InputTest::CanBeAPartOfValidInput), 2);
  EXPECT_EQ(VirtualSlot(&InputTest::GetValidInput), 3);
  EXPECT_EQ(VirtualSlot(&Number::CanBeAPartOfValidInput), 2);
  EXPECT_EQ(VirtualSlot(&Number::GetValidInput), 3);
  EXPECT_EQ(VirtualSlot(&LengthInputTest::SetUnit), -1);
  static_assert(std::is_abstract_v<InputTest>);
  static_assert(std::is_base_of_v<oxkutils::RefCounted, InputTest>);
  static_assert(std::is_base_of_v<InputTest, Number> && std::is_base_of_v<Number, LengthInputTest>);
}

TEST(InputTestSlots, ALengthOverridesItsDestructorAlone) {
  const auto slots = [](const InputTest& test) {
    const void* const* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(&test), sizeof table);
    return std::vector<const void*>(table + 2, table + 5);
  };
  const NumericInputTest<double> number(0, 1, false);
  const LengthInputTest length(0, 1, LengthUnit::Inch);
  EXPECT_EQ(slots(number), slots(length));
}

TEST(InputTestSlots, TheHookDecidesOverDeletion) {
  struct Kept : LengthInputTest {
    using LengthInputTest::LengthInputTest;
    bool ZeroReferenceCountHook() override { return false; }
  } kept(0, 1, LengthUnit::Inch);
  RecordingToolkit toolkit;
  toolkit.When(Retrieving(282)).Give(282, "InputPanel");
  InputVerifier verifier("dlg");
  verifier.AddControl("width", SmartPtr<InputTest>(&kept));
  EXPECT_EQ(kept.GetReferenceCount(), 1);
  verifier.Clear();
  EXPECT_EQ(kept.GetReferenceCount(), 0) << "and it still lives on the stack";
}

}  // namespace
}  // namespace oxecad_ui
