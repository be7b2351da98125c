#include <fuzz/Input.h>
#include <uicomps/color/ColorIconBag.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/dialogs/MarkupTags.h>
#include <uicomps/userdata/CountedLabel.h>

namespace {

using fuzz::Require;
using oxecad_ui::ColorIconBag;
using oxecad_ui::CompareColorTree;

bool EndsWith(const std::wstring& text, const std::wstring& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void CheckTotals(const std::wstring& label) {
  const std::wstring counted = oxecad_ui::CountedLabel(label, L"12");
  const std::wstring again = oxecad_ui::CountedLabel(counted, L"345");
  Require(EndsWith(counted, L" (12)") || EndsWith(counted, L" (12)</b>"));
  Require(EndsWith(again, L" (345)") || EndsWith(again, L" (345)</b>"));
  if (label.find(L'<') == std::wstring::npos) Require(oxecad_ui::CountedLabel(again, L"12") == counted);
}

void CheckColor(unsigned color) {
  std::string opening = "as it was";
  std::string closing = "as it was";
  oxecad_ui::GetFontColorTags(color, opening, closing);
  Require((color == 0xFFFFFFFFu) == (opening == "as it was"));
  Require(opening.size() == 9 || opening.size() == std::string("<font color=#000000>").size());
  Require(oxecad_ui::GetFontColorOpeningTag(color).size() == 20);
  oxecad_ui::GetBgColorTags(color, opening, closing);
  Require(color == 0xFFFFFFFFu || closing == "</span>");

  const std::wstring label = CompareColorTree::ColorToLabel(color);
  Require(CompareColorTree::LabelToColor(label) == color);
  const std::string icon = "color_square.png_" + std::to_string(color);
  if (color != 0xFFFFFFFFu) Require(ColorIconBag::Get().GetColorFromIcon(icon.c_str(), "color_square.png") == color);
}

void CheckReading(const std::wstring& label, const std::string& icon) {
  const unsigned color = CompareColorTree::LabelToColor(label);
  Require(color == 0xFFFFFFFFu || CompareColorTree::LabelToColor(CompareColorTree::ColorToLabel(color)) == color);
  const auto show = CompareColorTree::LabelToShowMode(label.c_str());
  Require(show >= -1 && show <= 6);
  Require(CompareColorTree::LabelToShowMode(CompareColorTree::ShowModeToLabel(show)) == show);
  Require(CompareColorTree::LabelToShowModeName(label.c_str()) != nullptr);
  CompareColorTree::ShowModeNameToValue(icon.c_str());
  Require(static_cast<unsigned>(CompareColorTree::LabelToDim(label.c_str())) <= 2u);
  ColorIconBag::Get().GetColorFromIcon(icon.c_str(), "color_square.png");
  ColorIconBag::Get().GetColorFromIcon(icon.c_str(), "");
}

}  // namespace

// Labels with totals, colours in labels, tags and icon names: what is written is read back, and anything else is read
// as something.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  CheckColor(input.Word());
  const std::string text = input.Rest();
  const std::wstring label(text.begin(), text.end());
  CheckTotals(label);
  CheckReading(label, text);
  CheckReading(L"<img src=\"color_square.png_" + label + L"\">", "color_square.png_" + text);
  return 0;
}
