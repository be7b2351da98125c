/// \file
/// Texts as they stand in call logs and tree drawings.
#ifndef OXECAD_TESTS_SUPPORT_QUOTED_H
#define OXECAD_TESTS_SUPPORT_QUOTED_H

#include <string>
#include <string_view>

namespace test_support {

/// `"text"`: quotes and backslashes behind a backslash, line end and tab as `\n` and `\t`, other control characters as
/// `\xNN`, all else as it is. Null gives `null`.
std::string Quoted(const char* text);

/// `L"text"` in UTF-8. A pair of surrogates is shown as the character that it stands for; a unit that is no UTF-16 (a
/// lone surrogate, or a value above 0xFFFF) as `\u{HEX}`. Null gives `null`.
std::string Quoted(const wchar_t* text);

/// The characters of the wide text in UTF-8, escaped as in `Quoted`, without the quotes.
std::string Escaped(std::wstring_view text);
std::string Escaped(std::string_view text);

/// Reads `Escaped` text back: UTF-8 with its escapes into UTF-16 units, one in each `wchar_t`.
std::wstring Unescaped(std::string_view text);

/// A number in hexadecimal with "0x" and lower case letters.
std::string Hex(unsigned long long value);

}  // namespace test_support

#endif
