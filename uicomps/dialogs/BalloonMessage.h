/// \file
/// A small modal message in a balloon that points at a control.
#ifndef OXECAD_UI_DIALOGS_BALLOONMESSAGE_H
#define OXECAD_UI_DIALOGS_BALLOONMESSAGE_H

#include <string>

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// What a balloon says and offers.
struct BalloonMessage {
  std::string text;                ///< UTF-8
  int type = 0;                    ///< a `BalloonType`; any other number is an error
  int textMode = 2;                ///< how the toolkit lays the text out
  unsigned int buttons = 0;        ///< a set of `BalloonButton`s
  unsigned int defaultButton = 0;  ///< one of them, or 0
  std::string anchor;              ///< the control of the current device to point at; empty: the current control
  void* style = nullptr;           ///< the skin's style, found while the balloon is placed
};

/// Which sign a balloon bears.
enum BalloonType : int { BalloonError = 0, BalloonWarning = 1, BalloonInfo = 2, BalloonQuestion = 3 };

/// The buttons of a balloon, from left to right; bits that can be combined.
enum BalloonButton : unsigned int {
  BalloonAbort = 1,
  BalloonRetry = 2,
  BalloonIgnore = 4,
  BalloonYes = 8,
  BalloonNo = 16,
  BalloonOk = 32,
  BalloonConfirm = 64,
  BalloonCancel = 128  ///< lets the user close the balloon through its window as well
};

/// Shows a balloon and waits until the user has answered. Gives the `BalloonButton` that ended it (128 when it was
/// closed through its window), or -1 when it could not be built or shown. The dialog is made at the first balloon and
/// kept.
OXECAD_UI_EXPORT int ShowBalloonMessage(int type, const std::string& text, int textMode, unsigned int buttons,
                                        unsigned int defaultButton, const std::string& anchor);

}  // namespace oxecad_ui

#endif
