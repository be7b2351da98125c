/// \file
/// The whole library: the user-interface components of an electronic-CAD viewer.
#ifndef OXECAD_UI_OXECAD_UI_H
#define OXECAD_UI_OXECAD_UI_H

#include <uicomps/Version.h>
#include <uicomps/base/BaseTree.h>
#include <uicomps/base/Component.h>
#include <uicomps/color/ColorIconBag.h>
#include <uicomps/color/ColorTree.h>
#include <uicomps/color/EcadTree.h>
#include <uicomps/compare/CompareColorTree.h>
#include <uicomps/dialogs/BalloonMessage.h>
#include <uicomps/dialogs/DefaultActions.h>
#include <uicomps/dialogs/MarkupTags.h>
#include <uicomps/dialogs/RenameWithBalloonDlg.h>
#include <uicomps/input/InputTest.h>
#include <uicomps/input/InputVerifier.h>
#include <uicomps/toolkit/Toolkit.h>
#include <uicomps/tree/Comparators.h>
#include <uicomps/tree/Tree.h>
#include <uicomps/userdata/UserDataTree.h>

#endif
