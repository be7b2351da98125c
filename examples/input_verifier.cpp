// A dialog whose fields never hold what could not become a length, or a number of layers.
#include <oxecadutils/StringConversion.h>
#include <oxg/LengthUnit.h>
#include <uicomps/oxecad_ui.h>

#include <cstdio>

using oxecad_ui::InputTest;
using oxkutils::SmartPtr;

void Try(const InputTest& test, const wchar_t* text) {
  std::wstring valid;
  const char* const typed = test.CanBeAPartOfValidInput(text) ? "stays" : "is undone";
  if (test.GetValidInput(text, valid)) {
    std::printf("'%ls' %s, becomes '%ls'\n", text, typed, valid.c_str());
  } else {
    std::printf("'%ls' %s, has no valid text\n", text, typed);
  }
}

int main() {
  if (ui_create_device("input_verifier.res", "rules") != 0) return 1;
  const SmartPtr<InputTest> width(new oxecad_ui::LengthInputTest(0.1, 5, oxg::LengthUnit::Millimetre));
  const SmartPtr<InputTest> layers(new oxecad_ui::NumericInputTest<double>(1, 32, false));

  oxecad_ui::InputVerifier verifier("rules");
  if (!verifier.AddControl("width", width) || !verifier.AddControl("layers", layers)) return 2;

  Try(*width, L"0.25");
  Try(*width, L"7");
  Try(*width, L"0.2x");
  Try(*layers, L"4");
  Try(*layers, L"");

  ui_activate_device("rules");
  verifier.Clear();  // before the verifier goes: its callbacks would stay
  return 0;
}
