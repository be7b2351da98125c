/// \file
/// The label of a branch with the number of its leaves.
#ifndef OXECAD_UI_USERDATA_COUNTEDLABEL_H
#define OXECAD_UI_USERDATA_COUNTEDLABEL_H

#include <string>

namespace oxecad_ui {

/// Puts a number behind a label: "Parts" and "Parts (1)" both become "Parts (2)", "<b>Parts</b>" becomes "<b>Parts
/// (2)</b>". The label loses everything from its last " (" on, whether that was a number or not.
std::wstring CountedLabel(std::wstring label, const std::wstring& digits);

}  // namespace oxecad_ui

#endif
