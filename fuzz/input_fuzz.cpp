#include <fuzz/Input.h>
#include <uicomps/input/InputTest.h>

#include <cmath>

namespace {

using fuzz::Require;

/// What a test calls valid must be valid when it is read again, and be the same then.
void CheckValid(const oxecad_ui::InputTest& test, const std::wstring& text) {
  std::wstring valid = L"as it was";
  test.CanBeAPartOfValidInput(text.c_str());
  if (!test.GetValidInput(text.c_str(), valid)) {
    Require(valid == L"as it was");
    return;
  }
  Require(valid.size() < 32 && (!valid.empty() || text.c_str()[0] == 0));
  std::wstring again;
  Require(test.GetValidInput(valid.c_str(), again));
}

}  // namespace

// Any text in any field: accepted, changed or refused, and what comes out goes in again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  double min = input.Number();
  double max = input.Number();
  const unsigned choice = input.Byte();
  if (!std::isfinite(min) || !std::isfinite(max)) min = -100, max = 100;
  if (max < min) std::swap(min, max);
  const std::wstring text = choice & 1 ? input.Units(size) : [&] {
    const std::string bytes = input.Rest();
    return std::wstring(bytes.begin(), bytes.end());
  }();
  CheckValid(oxecad_ui::NumericInputTest<double>(min, max, (choice & 2) != 0), text);
  oxecad_ui::LengthInputTest lengths(min, max, static_cast<unsigned char>(choice >> 4));
  CheckValid(lengths, text);
  lengths.SetUnit(static_cast<unsigned char>(choice >> 2));
  std::wstring out;
  lengths.GetValidInput(text.c_str(), out);
  lengths.GetValidInput(nullptr, out);
  lengths.CanBeAPartOfValidInput(nullptr);
  return 0;
}
