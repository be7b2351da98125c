#include "FrontFixture.h"

#include <uiox/UserEvents.h>

#include <QClipboard>
#include <QInputMethodEvent>

namespace uiox_qt_tests {
namespace {

constexpr std::uint32_t kEnd = 0xFFFFFFFFu;

class FieldTest : public FrontFixture {
 protected:
  void SetUp() override {
    FrontFixture::SetUp();
    device_ = &Make("d", R"({"components": [
        {"name": "field", "class": "InputPanel", "text": "12"},
        {"name": "other", "class": "InputPanel"}]})");
    window_ = &Show(*device_);
    Listen(*device_, "field", 8);
    Edit().setFocus();
    Heard();
  }

  uiox::Widget& Field() { return *device_->Find("field"); }
  QLineEdit& Edit() { return Part<QLineEdit>(*device_, "field"); }
  std::string Text() { return Edit().text().toStdString(); }

  /// The program puts back each text that holds a character which is no digit, as it was before.
  void TakeDigitsOnly() {
    good_ = Field().Text();
    on_hear_ = [this](const std::string& word) {
      if (word != "field:8") return;
      const std::wstring text = Field().Text();
      if (text.find_first_not_of(L"0123456789") == std::wstring::npos) {
        good_ = text;
        return;
      }
      const bool single = text.size() == 1;
      Field().SetText(good_);
      if (single) Field().SelectText(0, kEnd);
    };
  }

  uiox::Device* device_ = nullptr;
  QWidget* window_ = nullptr;
  std::wstring good_;
};

TEST_F(FieldTest, ShowsTheTextOfTheComponent) {
  EXPECT_EQ(Text(), "12");
  Field().SetText(L"R\u00e4dchen");
  EXPECT_EQ(Edit().text(), QStringLiteral("R\u00e4dchen"));
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(FieldTest, TellsEachKeystroke) {
  Edit().end(false);
  QTest::keyClicks(&Edit(), QStringLiteral("34"));
  EXPECT_EQ(Heard(), (Words{"field:8", "field:8"}));
  EXPECT_EQ(Field().Text(), L"1234");
  QTest::keyClick(&Edit(), Qt::Key_Backspace);
  EXPECT_EQ(Heard(), Words{"field:8"});
  EXPECT_EQ(Field().Text(), L"123");
}

TEST_F(FieldTest, TellsAPasteOnce) {
  QGuiApplication::clipboard()->setText(QStringLiteral("999"));
  Edit().selectAll();
  Edit().paste();
  EXPECT_EQ(Heard(), Words{"field:8"});
  EXPECT_EQ(Field().Text(), L"999");
}

TEST_F(FieldTest, TellsWhatAnInputMethodCommits) {
  Edit().end(false);
  QInputMethodEvent composing(QStringLiteral("3"), {});
  QApplication::sendEvent(&Edit(), &composing);
  EXPECT_EQ(Heard(), Words{});
  QInputMethodEvent committed;
  committed.setCommitString(QStringLiteral("34"));
  QApplication::sendEvent(&Edit(), &committed);
  EXPECT_EQ(Heard(), Words{"field:8"});
  EXPECT_EQ(Field().Text(), L"1234");
}

TEST_F(FieldTest, KeepsCharactersBeyondTheFirstPlaneAsTwoUnits) {
  Edit().clear();
  Heard();
  QInputMethodEvent committed;
  const char32_t face = 0x1F600;
  committed.setCommitString(QString::fromUcs4(&face, 1));
  QApplication::sendEvent(&Edit(), &committed);
  EXPECT_EQ(Field().Text(), (std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)}));
}

/// A keystroke is refused wherever the caret is, and leaves it there.
class RefusedKeystroke : public FieldTest, public ::testing::WithParamInterface<int> {};

TEST_P(RefusedKeystroke, LeavesTextAndCaretAsTheyWere) {
  Field().SetText(L"1234");
  TakeDigitsOnly();
  Edit().setCursorPosition(GetParam());
  QTest::keyClicks(&Edit(), QStringLiteral("x"));
  EXPECT_EQ(Heard(), Words{"field:8"});
  EXPECT_EQ(Text(), "1234");
  EXPECT_EQ(Edit().cursorPosition(), GetParam());
  QTest::keyClicks(&Edit(), QStringLiteral("5"));
  EXPECT_EQ(Text(), std::string("1234").insert(static_cast<std::size_t>(GetParam()), "5"));
  EXPECT_EQ(Edit().cursorPosition(), GetParam() + 1);
}
INSTANTIATE_TEST_SUITE_P(At, RefusedKeystroke, ::testing::Range(0, 5));

TEST_F(FieldTest, RefusesAPasteAndKeepsWhatWasMarked) {
  Field().SetText(L"1234");
  TakeDigitsOnly();
  Edit().setSelection(1, 2);
  QGuiApplication::clipboard()->setText(QStringLiteral("ab"));
  Edit().paste();
  EXPECT_EQ(Text(), "1234");
  EXPECT_EQ(Edit().selectionStart(), 1);
  EXPECT_EQ(Edit().selectedText(), QStringLiteral("23"));
  QTest::keyClicks(&Edit(), QStringLiteral("5"));
  EXPECT_EQ(Text(), "154");
}

TEST_F(FieldTest, RefusesWhatAnInputMethodCommits) {
  TakeDigitsOnly();
  Edit().setCursorPosition(1);
  QInputMethodEvent committed;
  committed.setCommitString(QStringLiteral("\u00e9"));
  QApplication::sendEvent(&Edit(), &committed);
  EXPECT_EQ(Text(), "12");
  EXPECT_EQ(Edit().cursorPosition(), 1);
}

TEST_F(FieldTest, RefusesAKeystrokeInAnEmptyField) {
  Field().SetText(L"");
  TakeDigitsOnly();
  QTest::keyClicks(&Edit(), QStringLiteral("x"));
  EXPECT_EQ(Text(), "");
  QTest::keyClicks(&Edit(), QStringLiteral("7"));
  EXPECT_EQ(Text(), "7");
}

TEST_F(FieldTest, MarksTheTextThatTheProgramMarks) {
  Field().SetText(L"7");
  TakeDigitsOnly();
  Edit().selectAll();
  QTest::keyClicks(&Edit(), QStringLiteral("x"));
  EXPECT_EQ(Text(), "7");
  EXPECT_EQ(Edit().selectedText(), QStringLiteral("7"));
  QTest::keyClicks(&Edit(), QStringLiteral("8"));
  EXPECT_EQ(Text(), "8");
}

TEST_F(FieldTest, PutsANewTextOfTheProgramInItsPlace) {
  on_hear_ = [this](const std::string&) {
    on_hear_ = nullptr;
    Field().SetText(L"something else");
  };
  Edit().end(false);
  QTest::keyClicks(&Edit(), QStringLiteral("3"));
  EXPECT_EQ(Text(), "something else");
}

TEST_F(FieldTest, TakesNoKeystrokeWhileItIsNotSensitive) {
  Field().SetSensitive(false);
  QTest::keyClicks(&Edit(), QStringLiteral("3"));
  EXPECT_EQ(Text(), "12");
  EXPECT_EQ(Heard(), Words{});
}

TEST_F(FieldTest, TellsWhenTheFocusComesAndGoes) {
  for (const char* name : {"field", "other"}) {
    Listen(*device_, name, 31);
    Listen(*device_, name, 32);
  }
  QTest::keyClick(&Edit(), Qt::Key_Tab);
  EXPECT_EQ(Heard(), (Words{"field:32", "other:31"}));
  EXPECT_EQ(device_->Focus(), "other");
  QTest::mouseClick(&Edit(), Qt::LeftButton);
  EXPECT_EQ(Heard(), (Words{"other:32", "field:31"}));
}

TEST_F(FieldTest, TellsTheFocusThatTheProgramMovesToo) {
  for (const char* name : {"field", "other"}) {
    Listen(*device_, name, 31);
    Listen(*device_, name, 32);
  }
  device_->SetFocus("other");
  EXPECT_TRUE(Part<QLineEdit>(*device_, "other").hasFocus());
  EXPECT_EQ(Heard(), (Words{"field:32", "other:31"}));
}

TEST_F(FieldTest, OutlivesACallbackThatEndsTheDevice) {
  on_hear_ = [](const std::string&) { Suite().DestroyDevice("d"); };
  QTest::keyClicks(&Edit(), QStringLiteral("3"));
  Settle();
  EXPECT_EQ(Front().ComponentFor("d", "field"), nullptr);
}

}  // namespace
}  // namespace uiox_qt_tests
