/// \file
/// The whole library: the user-interface components of an electronic-CAD viewer.
#ifndef OXECAD_UI_OXECAD_UI_H
#define OXECAD_UI_OXECAD_UI_H

#include <uicomps/Version.h>
#include <uicomps/base/BaseTree.h>
#include <uicomps/base/Component.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uicomps/tree/Comparators.h>
#include <uicomps/tree/Tree.h>

#endif
