#include <oxk/FileOperations.h>
#include <oxk/detail/FileTransfer.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace oxk {

FileOperations::~FileOperations() = default;

FileOperations& FileOperations::System() {
  static FileOperations& operations = *new FileOperations;  // never destroyed: preferences are saved until the very end
  return operations;
}

int FileOperations::OpenForReading(const std::string& path) {
  // Without O_NONBLOCK a pipe of that name would block for ever.
  return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

int FileOperations::OpenForWriting(const std::string& path) {
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

int FileOperations::OpenFolder(const std::string& path) {
  return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

ssize_t FileOperations::Read(int file, void* buffer, std::size_t size) { return ::read(file, buffer, size); }

ssize_t FileOperations::Write(int file, const void* data, std::size_t size) { return ::write(file, data, size); }

int FileOperations::Flush(int file) { return ::fsync(file); }

int FileOperations::Close(int file) { return ::close(file); }

int FileOperations::Rename(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str());
}

int FileOperations::RenameToNew(const std::string& from, const std::string& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return -1;
  // This file system cannot do it in one step.
  struct stat existing;
  if (::lstat(to.c_str(), &existing) == 0) {
    errno = EEXIST;
    return -1;
  }
  return std::rename(from.c_str(), to.c_str());
}

int FileOperations::Remove(const std::string& path) { return ::unlink(path.c_str()); }

int FileOperations::MakeFolder(const std::string& path) { return ::mkdir(path.c_str(), S_IRWXU); }

bool MoveAside(FileOperations& operations, const std::string& path, std::string& outcome) {
  constexpr int kMostFiles = 1000;
  outcome.clear();
  int error = 0;
  for (int number = 1; number <= kMostFiles; ++number) {
    const std::string aside = path + ".damaged-" + std::to_string(number);
    if (operations.RenameToNew(path, aside) == 0) {
      outcome = "kept as " + aside;
      return true;
    }
    error = errno;
    if (error == ENOENT) return true;  // gone by now: nothing can be lost
    if (error != EEXIST) break;
  }
  outcome = "cannot be kept under another name: " + ErrorText(error);
  return false;
}

}  // namespace oxk
