// A user types into fields of the stand-in toolkit, key by key.
#include <gtest/gtest.h>
#include <oxkutils/SmartPtr.h>
#include <tests/support/DecimalComma.h>
#include <uicomps/input/InputVerifier.h>
#include <uiox/Driver.h>
#include <uiox/Suite.h>

#include <functional>

namespace oxecad_ui {
namespace {

using oxkutils::SmartPtr;

/// The dialog "dlg" with the fields "width" and "height", the menu "grid" and a button.
class Editing : public testing::Test {
 protected:
  Editing() {
    suite.Reset();
    std::string why;
    device = suite.LoadDevice(R"({ "components": [ { "name": "width", "class": "InputPanel", "text": "1" },
                                                   { "name": "height", "class": "InputPanel" },
                                                   { "name": "grid", "class": "OptionMenu", "text": "1" },
                                                   { "name": "ok", "class": "PushButton" } ] })",
                              "dlg", &why);
    EXPECT_NE(device, nullptr) << why;
  }
  ~Editing() override {
    verifier.Clear();
    suite.Reset();
  }

  bool Watch(const char* name, double min, double max, bool allow_empty = false) {
    return verifier.AddControl(name, SmartPtr<InputTest>(new NumericInputTest<double>(min, max, allow_empty)));
  }
  std::wstring Text(const char* name) const { return device->Find(name)->Text(); }
  /// What the field holds after these keys, typed into the text that is there.
  std::wstring Typed(const wchar_t* keys) const {
    user.Type("width", keys);
    return Text("width");
  }
  std::wstring Pasted(const wchar_t* text) const {
    user.SetText("width", text);
    return Text("width");
  }
  std::wstring LeftBehind() const {
    user.FocusOut("width");
    return Text("width");
  }

  uiox::Suite& suite = uiox::Suite::Get();
  uiox::Device* device = nullptr;
  uiox::Driver user{"dlg"};
  InputVerifier verifier{"dlg"};
};

TEST_F(Editing, DigitsGoIn) {
  ASSERT_TRUE(Watch("width", 0, 1000));
  EXPECT_EQ(Typed(L"2.5"), L"12.5");
  EXPECT_EQ(suite.Beeps(), 0u);
}

TEST_F(Editing, ALetterIsUndoneWithABeep) {
  ASSERT_TRUE(Watch("width", 0, 1000));
  EXPECT_EQ(Typed(L"2a"), L"12");
  EXPECT_EQ(suite.Beeps(), 1u);
  EXPECT_EQ(Typed(L"3"), L"123") << "typing goes on";
}

TEST_F(Editing, AMinusStaysOrGoesWithTheRange) {
  ASSERT_TRUE(Watch("width", 0, 10));
  EXPECT_EQ(Pasted(L"-"), L"-");
  EXPECT_EQ(suite.Beeps(), 0u);
  verifier.Clear();
  device->Find("width")->SetText(L"-5");
  ASSERT_TRUE(Watch("width", -10, -1));
  EXPECT_EQ(Pasted(L"-"), L"-5");
  EXPECT_EQ(suite.Beeps(), 1u);
}

TEST_F(Editing, AnExponentCanOnlyBePasted) {
  ASSERT_TRUE(Watch("width", 0, 10000));
  user.FocusIn("width");
  EXPECT_EQ(Typed(L"e"), L"1");
  EXPECT_EQ(suite.Beeps(), 1u);
  EXPECT_EQ(Pasted(L"1e3"), L"1e3");
  EXPECT_EQ(suite.Beeps(), 1u);
  EXPECT_EQ(LeftBehind(), L"1000");
}

TEST_F(Editing, ANumberBeyondTheRangeWaitsUntilTheFieldIsLeft) {
  ASSERT_TRUE(Watch("width", 0, 10));
  user.FocusIn("width");
  EXPECT_EQ(Typed(L"5"), L"15");
  EXPECT_EQ(LeftBehind(), L"10");
  user.FocusIn("width");
  EXPECT_EQ(Pasted(L"-3"), L"-3");
  EXPECT_EQ(LeftBehind(), L"0");
  EXPECT_EQ(suite.Beeps(), 0u);
}

TEST_F(Editing, AnEmptiedFieldStaysEmptyWhereTheRangeHoldsZero) {
  ASSERT_TRUE(Watch("width", -5, 5, true));
  user.FocusIn("width");
  EXPECT_EQ(Pasted(L""), L"");
  EXPECT_EQ(LeftBehind(), L"");
}

TEST_F(Editing, AnEmptiedFieldGetsTheTextOfTheFocusElsewhere) {
  device->Find("width")->SetText(L"3");
  ASSERT_TRUE(Watch("width", 1, 5, true));
  user.FocusIn("width");
  EXPECT_EQ(Typed(L"."), L"3.");
  EXPECT_EQ(Pasted(L""), L"");
  EXPECT_EQ(suite.Beeps(), 0u);
  EXPECT_EQ(LeftBehind(), L"3");
}

TEST_F(Editing, EmptyingIsUndoneWhereItIsNotAllowed) {
  ASSERT_TRUE(Watch("width", 0, 5));
  EXPECT_EQ(Pasted(L""), L"1");
  EXPECT_EQ(suite.Beeps(), 1u);
}

TEST_F(Editing, ARefusedSingleCharacterLeavesTheTextMarked) {
  ASSERT_TRUE(Watch("width", 0, 5));
  EXPECT_EQ(Pasted(L"x"), L"1");
  EXPECT_EQ(suite.Beeps(), 1u);
  const auto marked = device->Find("width")->SelectedText();
  EXPECT_EQ(marked.from, 0u);
  EXPECT_GE(marked.to, 1u);
  EXPECT_EQ(Typed(L"2"), L"2") << "the next key replaces what is marked";
}

TEST_F(Editing, ALongerRefusedTextMarksNothing) {
  ASSERT_TRUE(Watch("width", 0, 500));
  EXPECT_EQ(Typed(L"x"), L"1");
  EXPECT_EQ(Typed(L"2"), L"12");
}

TEST_F(Editing, FieldsWorkSideBySide) {
  ASSERT_TRUE(Watch("width", 0, 10));
  ASSERT_TRUE(Watch("height", 5, 10, true));
  ASSERT_TRUE(Watch("grid", 0, 2));
  user.FocusIn("width");
  user.Type("width", L"9");
  user.FocusIn("height");
  EXPECT_EQ(Text("width"), L"10") << "the focus left for the other field";
  user.Type("height", L"2x");
  EXPECT_EQ(Text("height"), L"2");
  user.FocusOut("height");
  EXPECT_EQ(Text("height"), L"5");
}

TEST_F(Editing, OtherComponentsAreRefused) {
  EXPECT_FALSE(Watch("ok", 0, 10));
  EXPECT_FALSE(Watch("missing", 0, 10));
  EXPECT_TRUE(device->Find("ok")->Actions().All().empty());
}

TEST_F(Editing, AFieldThatIsNotWatchedAnyMoreTakesAnything) {
  ASSERT_TRUE(Watch("width", 0, 10));
  user.FocusIn("width");
  verifier.RemoveControl("width");
  EXPECT_EQ(Typed(L"abc"), L"1abc");
  EXPECT_EQ(LeftBehind(), L"1abc");
  EXPECT_EQ(suite.Beeps(), 0u);
}

TEST_F(Editing, IsTheSameWithADecimalComma) {
  const test_support::DecimalComma locale;
  ASSERT_TRUE(Watch("width", 0, 100000));
  user.FocusIn("width");
  EXPECT_EQ(Typed(L"2,.5"), L"12.5") << "the comma goes, the point stays";
  EXPECT_EQ(suite.Beeps(), 1u);
  EXPECT_EQ(Pasted(L"12345"), L"12345");
  EXPECT_EQ(LeftBehind(), L"12345") << "no grouping";
}

TEST_F(Editing, WhateverIsTypedIsUndoneToANumber) {
  ASSERT_TRUE(Watch("width", -100, 100, true));
  user.FocusIn("width");
  user.Type("width", L"1\xD83D\xDD0C.\x0661 -5e\n+2\x00A0");
  EXPECT_EQ(Text("width"), L"11.52");
  EXPECT_EQ(LeftBehind(), L"11.52");
}

}  // namespace
}  // namespace oxecad_ui
