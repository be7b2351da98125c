#include <uicomps/userdata/CountedLabel.h>

namespace oxecad_ui {

namespace {

constexpr const wchar_t* kBeforeNumber = L" (";
constexpr const wchar_t* kBehindNumber = L")";
constexpr const wchar_t* kBold = L"<b>";
constexpr const wchar_t* kEndOfBold = L"</b>";

void CutAtLast(std::wstring& label, const wchar_t* mark) {
  if (const std::size_t place = label.rfind(mark); place != std::wstring::npos) label.erase(place);
}

}  // namespace

std::wstring CountedLabel(std::wstring label, const std::wstring& digits) {
  CutAtLast(label, kBeforeNumber);
  CutAtLast(label, kEndOfBold);
  const bool isBold = label.find(kBold) != std::wstring::npos;
  label += kBeforeNumber + digits + kBehindNumber;
  if (isBold) label += kEndOfBold;
  return label;
}

}  // namespace oxecad_ui
