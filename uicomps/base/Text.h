/// \file
/// Names and labels as they come from outside, where null means empty.
#ifndef OXECAD_UI_BASE_TEXT_H
#define OXECAD_UI_BASE_TEXT_H

namespace oxecad_ui {

inline const char* TextOrEmpty(const char* text) { return text != nullptr ? text : ""; }
inline const wchar_t* TextOrEmpty(const wchar_t* text) { return text != nullptr ? text : L""; }

inline bool IsEmpty(const char* text) { return text == nullptr || text[0] == '\0'; }
inline bool IsEmpty(const wchar_t* text) { return text == nullptr || text[0] == L'\0'; }

}  // namespace oxecad_ui

#endif
