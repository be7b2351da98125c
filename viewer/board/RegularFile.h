#ifndef OXECAD_VIEWER_BOARD_REGULARFILE_H
#define OXECAD_VIEWER_BOARD_REGULARFILE_H

#include <cstdint>
#include <string>

namespace oxviewer {

/// How reading a file ended.
struct FileStatus {
  enum class Kind { Read, Missing, Failed };
  Kind kind = Kind::Read;
  std::string message;  ///< unless read: what was expected, without the file's name
};

/// Reads a whole regular file of at most `maxBytes` into `text`. Never waits: pipes, devices and directories are
/// refused by what they are, before anything is read from them.
FileStatus ReadRegularFile(const std::string& path, std::uint64_t maxBytes, std::string& text);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_REGULARFILE_H
