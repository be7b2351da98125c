/// \file
/// The version of the library. The build reads it from here; nothing else states it.
#ifndef OXECAD_UI_VERSION_H
#define OXECAD_UI_VERSION_H

#define OXECAD_UI_VERSION_MAJOR 1
#define OXECAD_UI_VERSION_MINOR 0
#define OXECAD_UI_VERSION_PATCH 0

#endif
