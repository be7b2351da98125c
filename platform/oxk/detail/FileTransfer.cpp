#include <oxk/detail/FileTransfer.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace oxk {
namespace {

/// Closes a file on every path.
class OpenFile {
 public:
  OpenFile(FileOperations& operations, int file) : m_operations(operations), m_file(file) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (IsOpen()) m_operations.Close(m_file);
  }

  bool IsOpen() const { return m_file >= 0; }
  int Get() const { return m_file; }
  /// Closes now, where the result matters.
  int Close() { return m_operations.Close(std::exchange(m_file, -1)); }

 private:
  FileOperations& m_operations;
  int m_file;
};

int WriteAll(FileOperations& operations, int file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = operations.Write(file, content.data(), content.size());
    if (written > 0) {
      content.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0) {
      return EIO;  // no progress, and no reason for it
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

int MakeFolders(FileOperations& operations, const std::string& folder) {
  for (std::size_t slash = folder.find('/', 1);; slash = folder.find('/', slash + 1)) {
    const bool whole = slash == std::string::npos;
    if (operations.MakeFolder(folder.substr(0, slash)) != 0 && errno != EEXIST && whole) return errno;
    if (whole) return 0;  // a parent that could not be made has made the last one fail
  }
}

int WriteTemporary(FileOperations& operations, const std::string& folder, const std::string& temporary,
                   std::string_view content) {
  int descriptor = operations.OpenForWriting(temporary);
  if (descriptor < 0 && errno == ENOENT) {
    if (const int error = MakeFolders(operations, folder)) return error;
    descriptor = operations.OpenForWriting(temporary);
  }
  OpenFile file(operations, descriptor);
  if (!file.IsOpen()) return errno;
  if (const int error = WriteAll(operations, file.Get(), content)) return error;
  if (operations.Flush(file.Get()) != 0) return errno;
  return file.Close() == 0 ? 0 : errno;
}

int FlushFolder(FileOperations& operations, const std::string& folder) {
  const OpenFile opened(operations, operations.OpenFolder(folder));
  if (!opened.IsOpen()) return errno;
  // EINVAL: a file system whose folders need no flushing.
  return operations.Flush(opened.Get()) == 0 || errno == EINVAL ? 0 : errno;
}

}  // namespace

int ReadWholeFile(FileOperations& operations, const std::string& path, std::size_t limit, std::string& content) {
  const OpenFile file(operations, operations.OpenForReading(path));
  if (!file.IsOpen()) return errno;
  content.clear();
  char block[16384];
  for (;;) {
    const ssize_t size = operations.Read(file.Get(), block, sizeof block);
    if (size == 0) return 0;
    if (size > 0) {
      content.append(block, static_cast<std::size_t>(size));
      if (content.size() > limit) return EFBIG;
    } else if (errno != EINTR) {
      return errno;
    }
  }
}

int ReplaceFile(FileOperations& operations, const std::string& folder, const std::string& temporary,
                const std::string& path, std::string_view content) {
  int error = WriteTemporary(operations, folder, temporary, content);
  if (!error && operations.Rename(temporary, path) != 0) error = errno;
  if (error) {
    operations.Remove(temporary);
    return error;
  }
  return FlushFolder(operations, folder);
}

std::string ErrorText(int error) {
  // Neither strerror nor an error category: their texts follow the locale.
  const char* const text = strerrordesc_np(error);
  return text ? text : "error " + std::to_string(error);
}

}  // namespace oxk
