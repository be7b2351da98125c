// Asks for a new name of a net and refuses names that are taken.
#include <oxecadutils/StringConversion.h>
#include <uicomps/oxecad_ui.h>

#include <cstdio>

int main() {
  const std::set<std::wstring> taken{L"GND", L"VCC"};
  oxecad_ui::RenameWithBalloonDlg dialog(taken, "There is a net of this name already.", true);
  dialog.SetNewName(L"GND");
  dialog.Run();  // "GND" is refused: a balloon points at the field, and the dialog stays until it is cancelled
  std::printf("%s\n", dialog.IsAccepted() ? "renamed" : "not renamed");

  dialog.SetNewName(L"VDD");
  if (dialog.Run()) std::printf("renamed to %s\n", oxecadutils::WideStrToUtf8(dialog.GetNewName()).c_str());
  return 0;
}
