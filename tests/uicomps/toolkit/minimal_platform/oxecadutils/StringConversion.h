#ifndef OXECAD_TESTS_MINIMAL_OXECADUTILS_STRINGCONVERSION_H
#define OXECAD_TESTS_MINIMAL_OXECADUTILS_STRINGCONVERSION_H

#include <string>

namespace oxecadutils {

std::wstring Utf8ToWideStr(const std::string& text);
std::string WideStrToUtf8(const std::wstring& text);
std::wstring StringToWString(const std::string& text);

}  // namespace oxecadutils

#endif
