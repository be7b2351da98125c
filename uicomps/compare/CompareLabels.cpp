#include <string>
#include <string_view>

#include <oxecadutils/StringConversion.h>

#include <uicomps/base/Text.h>
#include <uicomps/color/ColorIconBag.h>
#include <uicomps/compare/CompareColorTree.h>

namespace oxecad_ui {

namespace {

constexpr const char* kColorImage = "color_square.png";
constexpr const wchar_t* kMixLabel = L"<mix>";

struct ShowModeText {
  CompareColorTree::ShowMode value;
  const char* name;
  const wchar_t* label;
};

using ShowMode = CompareColorTree::ShowMode;

constexpr ShowModeText kShowModes[] = {
    {ShowMode::Mixed, "mix_show", L"<mix_show>"},
    {ShowMode::Both, "both_show", L"<both_show>"},
    {ShowMode::OnlyA, "a_show", L"<a_show>"},
    {ShowMode::OnlyB, "b_show", L"<b_show>"},
    {ShowMode::AMinusB, "a-b_show", L"<a-b_show>"},
    {ShowMode::BMinusA, "b-a_show", L"<b-a_show>"},
    {ShowMode::Overlap, "overlap_show", L"<overlap_show>"},
    {ShowMode::Diff, "diff_show", L"<diff_show>"},
};

}  // namespace

std::wstring CompareColorTree::ColorToLabel(unsigned int color) {
  const char* const icon = ColorIconBag::Get().GetColorIcon(kColorImage, color);
  if (IsEmpty(icon)) return kMixLabel;
  return s_imgOpen + oxecadutils::Utf8ToWideStr(icon) + s_imgClose;
}

unsigned int CompareColorTree::LabelToColor(const std::wstring& label) {
  constexpr std::size_t kBefore = std::wstring_view(s_imgOpen).size();
  constexpr std::size_t kBehind = std::wstring_view(s_imgClose).size();
  if (label.size() <= kBefore + kBehind) return 0xFFFFFFFFu;
  const std::string icon = oxecadutils::WideStrToUtf8(label.substr(kBefore, label.size() - kBefore - kBehind));
  return ColorIconBag::Get().GetColorFromIcon(icon.c_str(), kColorImage);
}

const wchar_t* CompareColorTree::DimToLabel(NodeState dim) {
  switch (dim) {
    case Unchecked:
      return L"<off>";
    case Checked:
      return L"<on>";
    case PartlyChecked:
      return kMixLabel;
  }
  return L"";
}

Tree::NodeState CompareColorTree::LabelToDim(const wchar_t* label) {
  const std::wstring_view text = TextOrEmpty(label);
  if (text == L"<off>") return Unchecked;
  return text == L"<on>" ? Checked : PartlyChecked;
}

const wchar_t* CompareColorTree::ShowModeToLabel(ShowMode showMode) {
  for (const ShowModeText& known : kShowModes) {
    if (known.value == showMode) return known.label;
  }
  return L"";
}

CompareColorTree::ShowMode CompareColorTree::LabelToShowMode(const wchar_t* label) {
  const std::wstring_view text = TextOrEmpty(label);
  for (const ShowModeText& known : kShowModes) {
    if (known.label == text) return known.value;
  }
  return ShowMode::Mixed;
}

const char* CompareColorTree::LabelToShowModeName(const wchar_t* label) {
  const std::wstring_view text = TextOrEmpty(label);
  for (const ShowModeText& known : kShowModes) {
    if (known.label == text && known.value != ShowMode::Mixed) return known.name;
  }
  return s_noShowMode;
}

CompareColorTree::ShowMode CompareColorTree::ShowModeNameToValue(const char* name) {
  const std::string_view text = TextOrEmpty(name);
  for (const ShowModeText& known : kShowModes) {
    if (known.name == text) return known.value;
  }
  return ShowMode::Mixed;
}

}  // namespace oxecad_ui
