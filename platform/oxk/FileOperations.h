/// \file
/// The system calls with which preferences are kept, so that a test can let each of them fail.
#ifndef OXECAD_OXK_FILEOPERATIONS_H
#define OXECAD_OXK_FILEOPERATIONS_H

#include <sys/types.h>

#include <cstddef>
#include <string>

#include <oxkutils/Export.h>

namespace oxk {

/// The base class performs the system calls of the same meaning. As with those, -1 is a failure and `errno` its reason.
/// An override may do anything that a system may do: fail, read and write less than it was asked to, be killed.
class OXECAD_PLATFORM_EXPORT FileOperations {
 public:
  FileOperations() = default;
  FileOperations(const FileOperations&) = delete;
  FileOperations& operator=(const FileOperations&) = delete;
  virtual ~FileOperations();

  /// The operations of the system itself.
  static FileOperations& System();

  /// Opens a file without waiting for anybody at its other end; gives its descriptor.
  virtual int OpenForReading(const std::string& path);
  /// Makes an empty file that only the user may read, whatever the path held before.
  virtual int OpenForWriting(const std::string& path);
  /// Opens a folder for `Flush`.
  virtual int OpenFolder(const std::string& path);
  /// Reads up to `size` bytes from where the last reading ended; gives their number, 0 at the end.
  virtual ssize_t Read(int file, void* buffer, std::size_t size);
  /// Writes up to `size` bytes and gives how many were taken.
  virtual ssize_t Write(int file, const void* data, std::size_t size);
  /// Returns when the content is on the medium.
  virtual int Flush(int file);
  /// Gives a descriptor back; it is not valid afterwards, even after a failure.
  virtual int Close(int file);
  /// Puts a file in the place of another one in one step.
  virtual int Rename(const std::string& from, const std::string& to);
  /// As `Rename`, but refuses with `EEXIST` what would replace something.
  virtual int RenameToNew(const std::string& from, const std::string& to);
  /// Removes a file by its name.
  virtual int Remove(const std::string& path);
  /// Makes one folder that only the user may enter.
  virtual int MakeFolder(const std::string& path);
};

/// Moves a file that cannot be used out of the way, to its name with ".damaged-1" behind, or the next number that is
/// free. False where it stays. `outcome` says what became of it: "kept as " and where, or "cannot be kept under another
/// name: " and why in English; it is empty where the file was gone already.
OXECAD_PLATFORM_EXPORT bool MoveAside(FileOperations& operations, const std::string& path, std::string& outcome);

}  // namespace oxk

#endif
