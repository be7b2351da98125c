/// \file
/// What answers a `ColorPickerDlg`: a front installs its window, a test prepares answers.
#ifndef OXECAD_OXCORE_COLORPICKER_H
#define OXECAD_OXCORE_COLORPICKER_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <oxcore/Mainframe.h>
#include <oxkutils/Export.h>

namespace oxcore {

/// The answer of a user who cancels, and the initial colour where there is none.
constexpr unsigned int kNoPickedColor = 0xFFFFFFFFu;

/// One showing of the dialog.
struct ColorPickerRequest {
  Mainframe* parent = nullptr;  ///< not owned, may be null
  std::wstring title;           ///< UTF-16 code units
  /// The colour the dialog opens with, 0x00BBGGRR.
  unsigned int initialColor = kNoPickedColor;
};

/// Runs a dialog and gives the chosen colour (0x00BBGGRR), or `kNoPickedColor` when the user cancels.
using ColorPicker = std::function<unsigned int(const ColorPickerRequest&)>;

/// Makes `picker` answer from now on and gives the one before. An empty one, as at the start, means the queue below.
/// What is said here, and the queue, belong to the user-interface thread.
OXECAD_PLATFORM_EXPORT ColorPicker SetColorPicker(ColorPicker picker);

/// Appends an answer to the queue. Without a picker each showing takes the oldest one; an empty queue cancels.
OXECAD_PLATFORM_EXPORT void QueueColorAnswer(unsigned int color);

/// How many answers have not been taken.
OXECAD_PLATFORM_EXPORT std::size_t CountColorAnswers();

/// The showings since the last call of this function, oldest first, whoever answered them. No more than the latest 1024
/// are remembered.
OXECAD_PLATFORM_EXPORT std::vector<ColorPickerRequest> TakeColorPickerRequests();

/// Back to the start: no picker, no answers, no remembered showings.
OXECAD_PLATFORM_EXPORT void ResetColorPicker();

}  // namespace oxcore

#endif
