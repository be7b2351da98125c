/// \file
/// Reading and replacing whole files. Results are 0 or an `errno` code.
#ifndef OXECAD_OXK_DETAIL_FILETRANSFER_H
#define OXECAD_OXK_DETAIL_FILETRANSFER_H

#include <cstddef>
#include <string>
#include <string_view>

#include <oxk/FileOperations.h>

namespace oxk {

/// Reads a file of at most `limit` bytes; a larger one gives `EFBIG`.
int ReadWholeFile(FileOperations& operations, const std::string& path, std::size_t limit, std::string& content);

/// Writes `temporary`, flushes it, puts it in the place of `path` and flushes `folder`, which all three lie in and
/// which is made where it is missing. After a failure `path` is as it was, unless the folder alone could not be
/// flushed.
int ReplaceFile(FileOperations& operations, const std::string& folder, const std::string& temporary,
                const std::string& path, std::string_view content);

/// The system's English words for an error code, whatever the locale.
std::string ErrorText(int error);

}  // namespace oxk

#endif
