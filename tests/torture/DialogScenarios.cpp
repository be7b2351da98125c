#include <oxk/PreferencesFolder.h>
#include <tests/torture/Scenarios.h>
#include <uicomps/dialogs/BalloonMessage.h>
#include <uicomps/dialogs/DefaultActions.h>
#include <uicomps/dialogs/MarkupTags.h>
#include <uicomps/dialogs/RenameWithBalloonDlg.h>
#include <uicomps/input/InputTest.h>
#include <uicomps/input/InputVerifier.h>

#include <cstdlib>
#include <memory>

namespace torture {
namespace {

using namespace oxecad_ui;
using oxkutils::SmartPtr;

constexpr const char* kBalloon = "ui_balloon_message_dialog.res";

void Fields(Stage& stage) {
  stage.CallbacksMayStay("dlg");
  auto verifier = std::make_unique<InputVerifier>();
  stage.Step("device", [&] { verifier->SetDev("dlg"); });
  const SmartPtr<InputTest> numbers(new NumericInputTest<double>(-1, 100, true));
  auto* const inches = new LengthInputTest(0, 10, 1);
  const SmartPtr<InputTest> lengths(inches);
  stage.Step("add", [&] { return verifier->AddControl("name", numbers); });
  stage.Step("add again", [&] { return verifier->AddControl("name", lengths); });
  stage.Step("add another", [&] { return verifier->AddControl("other", lengths); });
  stage.Step("add a menu", [&] { return verifier->AddControl("menu", numbers); });
  stage.Step("add nothing", [&] { return verifier->AddControl("nowhere", numbers); });
  stage.StepOfAnyResult("test", [&] { return bool(verifier->GetInputTest("name")); });
  stage.Step("unit", [&] { inches->SetUnit(2); });
  for (const char* field : {"name", "other"}) {
    stage.dialog.FocusIn(field);
    stage.dialog.Type(field, L"12x-.e5");
    stage.dialog.SetText(field, L"1e400");
    stage.dialog.SetText(field, L"a text of no meaning that is long enough for the heap");
    stage.dialog.FocusOut(field);
  }
  stage.StepOfAnyResult("copy", [&] {
    InputVerifier copy(*verifier);
    InputVerifier other("dlg");
    other = copy;
    return true;
  });
  stage.Step("callbacks without a verifier", [&] {
    return InputVerifier::InputCB(nullptr, nullptr) + InputVerifier::FocusInCB(nullptr, nullptr) +
           InputVerifier::FocusOutCB(nullptr, nullptr);
  });
  stage.Step("remove", [&] { verifier->RemoveControl("other"); });
  stage.Step("remove again", [&] { verifier->RemoveControl("other"); });
  stage.Step("clear", [&] { verifier->Clear(); });
  stage.Calm();
  verifier->Clear();
  if (!verifier->AddControl("name", numbers)) stage.Complain("no field can be added any more");
  verifier->Clear();
}

void Inputs(Stage& stage) {
  NumericInputTest<double> numbers(-10, 10, true);
  LengthInputTest lengths(1, 2, 3);
  std::wstring out;
  for (const wchar_t* text : {L"", L"-", L"5", L"99", L"a long text that is no number but needs the heap", L"1e3"}) {
    stage.Step("part of a number", [&] { return numbers.CanBeAPartOfValidInput(text); });
    stage.Step("number", [&] { return numbers.GetValidInput(text, out); });
    stage.Step("part of a length", [&] { return lengths.CanBeAPartOfValidInput(text); });
    stage.Step("length", [&] { return lengths.GetValidInput(text, out); });
  }
}

/// What stands on the screen whatever goes wrong behind it.
void Tolerate(Stage& stage) {
  stage.DeviceMayStay(kBalloon);
  stage.CallbacksMayStay(kBalloon);
}

void Balloons(Stage& stage) {
  Tolerate(stage);
  const uiox::Driver balloon(kBalloon);
  const std::string text = "A text that is long enough for the heap";
  for (const unsigned buttons : {BalloonOk | BalloonCancel, BalloonYes | BalloonNo | BalloonAbort | BalloonRetry}) {
    const int results = stage.suite.QueuedUserActions() != 0;
    stage.suite.QueueUserAction([=] { balloon.Press(buttons & BalloonOk ? "ok" : "no"); });
    stage.StepOfAnyResult("show", [&] {
      return ShowBalloonMessage(BalloonWarning + results, text, 2, buttons, buttons & (BalloonOk | BalloonYes), "name");
    });
  }
  stage.StepOfAnyResult("at the current control",
                        [&] { return ShowBalloonMessage(BalloonQuestion, text, 1, 255, 0, ""); });
  stage.StepOfAnyResult("at no control", [&] { return ShowBalloonMessage(9, text, 2, 0, 0, "nowhere"); });
  stage.StepOfAnyResult("standard", [&] {
    RenameWithBalloonDlg::StandardBaloon("name", text);
    return true;
  });
}

void Renames(Stage& stage) {
  Tolerate(stage);
  stage.CallbacksMayStay("RenameDlg");
  stage.DeviceMayStay("RenameDlg");
  const uiox::Driver rename("RenameDlg");
  const std::set<std::wstring> taken = {L"VCC", L"A name that is long enough for the heap"};
  const std::string message = "There is such a net, and this has to be long enough for the heap";
  stage.suite.QueueUserAction([=] {
    rename.SetText("Name_Text", L"VCC");
    rename.Press("OK");
  });
  stage.suite.QueueUserAction([] { uiox::Driver(kBalloon).Press("ok"); });
  stage.suite.QueueUserAction([=] {
    rename.SetText("Name_Text", L"Another name that is long enough for the heap");
    rename.Press("OK");
  });
  stage.StepOfAnyResult("rename", [&] {
    RenameWithBalloonDlg dialog(taken, message, true);
    dialog.Run();
    RenameWithBalloonDlg copy(dialog);
    copy = dialog;
    return copy.IsAccepted();
  });
}

void Markup(Stage& stage) {
  std::string opening;
  std::string closing;
  std::wstring wide_opening;
  std::wstring wide_closing;
  for (const unsigned color : {0x0000FFu, 0xFFFFFFFFu}) {
    stage.Step("font", [&] { GetFontColorTags(color, opening, closing); });
    stage.Step("wide font", [&] { GetFontColorTags(color, wide_opening, wide_closing); });
    stage.Step("opening", [&] { return GetFontColorOpeningTag(color); });
    stage.Step("closing", [&] { return GetFontColorClosingTag(); });
    stage.Step("background", [&] { GetBgColorTags(color, opening, closing); });
    stage.Step("wide background", [&] { GetBgColorTags(color, wide_opening, wide_closing); });
  }
}

void Preferences(Stage& stage) {
  std::string folder = "/tmp/oxecad_torture_XXXXXX";
  if (!mkdtemp(folder.data())) return stage.Complain("there is no temporary folder");
  oxk::UsePreferencesFolder(folder);
  for (const char* action : {"add_highlight", "highlight"}) {
    stage.Step("set highlight", [&] { SetHighlightDefaultAction(action); });
    stage.StepOfAnyResult("highlight", [&] { return std::string(GetHighlightDefaultAction()); });
    stage.StepOfAnyResult("adds", [&] { return IsAddToHighlightsDefaultAction(); });
  }
  for (const char* action : {"add_isolate", "isolate"}) {
    stage.Step("set isolate", [&] { SetIsolateDefaultAction(action); });
    stage.StepOfAnyResult("isolate", [&] { return std::string(GetIsolateDefaultAction()); });
    stage.StepOfAnyResult("adds", [&] { return IsAddToIsolatesDefaultAction(); });
  }
  stage.Calm();
  SetIsolateDefaultAction("add_isolate");
  if (!IsAddToIsolatesDefaultAction()) stage.Complain("a preference is not kept any more");
  oxk::UsePreferencesFolder("/nowhere");
  std::remove((folder + "/preferences.json").c_str());
  if (std::remove(folder.c_str()) != 0) stage.Complain("files are left in the folder of preferences");
}

}  // namespace

std::vector<Scenario> DialogScenarios() {
  return {{"fields", Fields},         {"inputs", Inputs}, {"balloons", Balloons, true},
          {"renames", Renames, true}, {"markup", Markup}, {"preferences", Preferences}};
}

}  // namespace torture
