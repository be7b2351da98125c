#include <viewer/app/OutputFile.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace oxviewer {

namespace {

// Not strerror: its text follows the locale.
std::string Reason(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return "there is no such folder";
    case EACCES:
    case EPERM:
      return "permission denied";
    case EROFS:
      return "the file system is read-only";
    case EISDIR:
      return "it is a directory";
    case ENOSPC:
    case EDQUOT:
      return "no space is left";
    case EFBIG:
      return "the file would be too large";
    case ENAMETOOLONG:
      return "the name is too long";
    default:
      return "system error " + std::to_string(error);
  }
}

ReadError Unwritable(const std::string& path, int error) {
  return {path, 0, 0, "expected a writable file: " + Reason(error)};
}

// 0, or the error number. Closes `fd` in any case.
int WriteAndClose(int fd, const std::string& text, bool flush) {
  std::size_t written = 0;
  int error = 0;
  while (error == 0 && written < text.size()) {
    const ssize_t count = ::write(fd, text.data() + written, text.size() - written);
    if (count >= 0) {
      written += static_cast<std::size_t>(count);
    } else if (errno != EINTR) {
      error = errno;
    }
  }
  if (error == 0 && flush && ::fsync(fd) != 0) error = errno;
  if (::close(fd) != 0 && error == 0) error = errno;
  return error;
}

// A link is written through, so that it stays one.
std::string FollowedLinks(const std::string& path) {
  const std::unique_ptr<char, void (*)(void*)> real(::realpath(path.c_str(), nullptr), std::free);
  return real ? std::string(real.get()) : path;
}

int WriteInPlace(const std::string& path, const std::string& text, int flags) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | flags);
  return fd < 0 ? errno : WriteAndClose(fd, text, false);
}

// A new file for the content before it takes the place of the old one; one that is there already belongs to somebody
// else, or was left by a run that was ended in the middle. -1 when it cannot be made.
int OpenBeside(const std::string& folder, mode_t mode, std::string& name) {
  constexpr int kMostTries = 100;
  const std::string stem = folder + ".oxviewer-" + std::to_string(::getpid());
  int fd = -1;
  for (int i = 0; i < kMostTries && fd < 0 && (i == 0 || errno == EEXIST); ++i) {
    name = stem + '-' + std::to_string(i);
    fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  }
  return fd;
}

// Where the folder takes no further file there is only the old one to write into.
int WriteBeside(const std::string& path, const std::string& text, bool exists, mode_t mode) {
  const std::string folder = path.substr(0, path.rfind('/') + 1);  // npos + 1 is 0
  std::string besides;
  const int fd = OpenBeside(folder, mode, besides);
  if (fd < 0 && exists && (errno == EACCES || errno == EPERM)) return WriteInPlace(path, text, O_TRUNC);
  if (fd < 0) return errno;
  int error = WriteAndClose(fd, text, true);
  if (error == 0 && std::rename(besides.c_str(), path.c_str()) != 0) error = errno;
  if (error != 0) ::unlink(besides.c_str());
  return error;
}

}  // namespace

std::optional<ReadError> WriteFile(const std::string& path, const std::string& text) {
  struct stat status {};
  const bool exists = ::stat(path.c_str(), &status) == 0;
  int error = 0;
  if (exists && S_ISDIR(status.st_mode)) {
    error = EISDIR;
  } else if (exists && !S_ISREG(status.st_mode)) {
    error = WriteInPlace(path, text, 0);
  } else if (exists && ::access(path.c_str(), W_OK) != 0) {
    error = errno;
  } else {
    error = WriteBeside(FollowedLinks(path), text, exists, exists ? status.st_mode & 0777 : mode_t{0666});
  }
  if (error == 0) return std::nullopt;
  return Unwritable(path, error);
}

}  // namespace oxviewer
