/// \file
/// Conversion between UTF-8 and the suite's wide strings.
///
/// A wide string holds UTF-16 code units, one in each `wchar_t`, whatever the width of `wchar_t`: a character beyond
/// U+FFFF is two of them. Input that is not well-formed is replaced, never refused: only `std::bad_alloc` and
/// `std::length_error` leave these functions. Zero characters inside a text are kept. The cost is linear.
#ifndef OXECAD_OXECADUTILS_STRINGCONVERSION_H
#define OXECAD_OXECADUTILS_STRINGCONVERSION_H

#include <string>

#include <oxkutils/Export.h>

namespace oxecadutils {

/// Reads UTF-8. Each maximal ill-formed part (a truncated sequence, or a byte that can begin none) becomes one U+FFFD;
/// surrogates, overlong forms and values beyond U+10FFFF are ill-formed byte by byte.
OXECAD_PLATFORM_EXPORT std::wstring Utf8ToWideStr(const std::string& text);

/// Writes UTF-8. A surrogate without its partner, and an element that is no UTF-16 code unit, each become one U+FFFD.
OXECAD_PLATFORM_EXPORT std::string WideStrToUtf8(const std::wstring& text);

/// Reads a narrow string of the suite, which is UTF-8: the same as `Utf8ToWideStr`, independent of the locale.
OXECAD_PLATFORM_EXPORT std::wstring StringToWString(const std::string& text);

}  // namespace oxecadutils

#endif
