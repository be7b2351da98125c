/// \file
/// Marks what leaves the shared library. Everything else stays hidden.
#ifndef OXECAD_UI_TOOLKIT_EXPORT_H
#define OXECAD_UI_TOOLKIT_EXPORT_H

/// \def OXECAD_UI_EXPORT
/// Before a class or function that leaves the library.
/// \def OXECAD_UI_HIDDEN
/// Before a member of such a class that does not.
#if defined(__GNUC__)
#define OXECAD_UI_EXPORT __attribute__((visibility("default")))
#define OXECAD_UI_HIDDEN __attribute__((visibility("hidden")))
#else
#define OXECAD_UI_EXPORT
#define OXECAD_UI_HIDDEN
#endif

#endif
