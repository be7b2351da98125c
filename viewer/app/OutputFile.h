#ifndef OXECAD_VIEWER_APP_OUTPUTFILE_H
#define OXECAD_VIEWER_APP_OUTPUTFILE_H

#include <viewer/board/Result.h>

#include <optional>
#include <string>

namespace oxviewer {

/// Writes bytes to a file: it holds either all of them or what it held before, its rights stay, and a link to it stays
/// one. A device or pipe is written to as it is, and so is a file in a folder that takes no further one.
/// Returns the error when that fails.
std::optional<ReadError> WriteFile(const std::string& path, const std::string& bytes);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_APP_OUTPUTFILE_H
