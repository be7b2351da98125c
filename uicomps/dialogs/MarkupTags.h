/// \file
/// Markup that colours the text or the background of a part of a label.
///
/// Colours are 0x00BBGGRR, the top byte is ignored; 0xFFFFFFFF is no colour. Strings are replaced.
#ifndef OXECAD_UI_DIALOGS_MARKUPTAGS_H
#define OXECAD_UI_DIALOGS_MARKUPTAGS_H

#include <string>

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// The tags around text of a colour: "<font color=#ff0000>" and "</font>" for red. For no colour both strings stay.
OXECAD_UI_EXPORT void GetFontColorTags(unsigned int color, std::string& opening, std::string& closing);
/// The same in wide strings, as labels take them.
OXECAD_UI_EXPORT void GetFontColorTags(unsigned int color, std::wstring& opening, std::wstring& closing);

/// The opening tag alone. No colour is not told apart here: it gives "<font color=#ffffff>".
OXECAD_UI_EXPORT std::wstring GetFontColorOpeningTag(unsigned int color);
/// The closing tag, "</font>".
OXECAD_UI_EXPORT std::wstring GetFontColorClosingTag();

/// The tags around text on a background of a colour, whose digits stand without a "#":
/// "<span style="background:ff0000">" and "</span>" for red. For no colour both strings stay.
OXECAD_UI_EXPORT void GetBgColorTags(unsigned int color, std::string& opening, std::string& closing);
/// The same in wide strings, as labels take them.
OXECAD_UI_EXPORT void GetBgColorTags(unsigned int color, std::wstring& opening, std::wstring& closing);

}  // namespace oxecad_ui

#endif
