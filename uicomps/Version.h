/// \file
/// The version of the library. The build reads it from here; nothing else states it.
#ifndef OXECAD_UI_VERSION_H
#define OXECAD_UI_VERSION_H

/// Goes up when programs that were built before no longer run; the SONAME bears it.
#define OXECAD_UI_VERSION_MAJOR 1
/// Goes up when something was added.
#define OXECAD_UI_VERSION_MINOR 0
/// Goes up when something was mended.
#define OXECAD_UI_VERSION_PATCH 0

#endif
