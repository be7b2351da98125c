#include <viewer/trees/TreeTexts.h>

#include <utility>

#include <oxecadutils/StringConversion.h>

namespace oxviewer {
namespace {

TranslateText& Translation() {
  static TranslateText translation;
  return translation;
}

}  // namespace

void SetTreeTexts(TranslateText translate) { Translation() = std::move(translate); }

std::string TreeText(const char* text) { return Translation() ? Translation()(text) : text; }

std::wstring WideTreeText(const char* text) { return oxecadutils::Utf8ToWideStr(TreeText(text)); }

}  // namespace oxviewer
