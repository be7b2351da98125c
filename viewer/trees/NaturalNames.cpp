#include <viewer/trees/NaturalNames.h>

#include <oxecadutils/StringConversion.h>
#include <uicomps/tree/StringComparators.h>

namespace oxviewer {

NameOrder NaturalNameOrder() {
  return {[](const std::string& name) { return oxecadutils::Utf8ToWideStr(name); },
          [comparator = oxecad_ui::CAlphaNumericWStringEcadComparator()](const std::wstring& a, const std::wstring& b) {
            return comparator.Compare(a, b);
          }};
}

}  // namespace oxviewer
