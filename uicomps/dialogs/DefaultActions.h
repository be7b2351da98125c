/// \file
/// What the highlight and isolate commands do by default: replace the set that is there, or add to it. The user's
/// choice is a preference; each call reads or writes the platform's store.
#ifndef OXECAD_UI_DIALOGS_DEFAULTACTIONS_H
#define OXECAD_UI_DIALOGS_DEFAULTACTIONS_H

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// "highlight", or "add_highlight" when that exact word is stored. The text is a constant of the library.
OXECAD_UI_EXPORT const char* GetHighlightDefaultAction();
/// Stores "add_highlight" when given that exact word and "highlight" for any other; saves and applies the preferences.
/// The action must not be null.
OXECAD_UI_EXPORT void SetHighlightDefaultAction(const char* action);
/// Whether highlighting adds to what is highlighted.
OXECAD_UI_EXPORT bool IsAddToHighlightsDefaultAction();

/// "isolate", or "add_isolate" when that exact word is stored. The text is a constant of the library.
OXECAD_UI_EXPORT const char* GetIsolateDefaultAction();
/// Stores "add_isolate" when given that exact word and "isolate" for any other; saves and applies the preferences. The
/// action must not be null.
OXECAD_UI_EXPORT void SetIsolateDefaultAction(const char* action);
/// Whether isolating adds to what is isolated.
OXECAD_UI_EXPORT bool IsAddToIsolatesDefaultAction();

}  // namespace oxecad_ui

#endif
