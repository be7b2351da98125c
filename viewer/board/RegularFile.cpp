#include <viewer/board/RegularFile.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>

namespace oxviewer {

namespace {

class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  int get() const { return fd_; }

 private:
  int fd_;
};

// Not strerror: its text follows the locale.
std::string Reason(int error) {
  switch (error) {
    case ENOENT:
      return "there is no such file";
    case ENOTDIR:
      return "part of the path is no directory";
    case EACCES:
    case EPERM:
      return "permission denied";
    case ENAMETOOLONG:
      return "the name is too long";
    case ELOOP:
      return "too many symbolic links";
    case EIO:
      return "input error";
    default:
      return "system error " + std::to_string(error);
  }
}

std::string Unreadable(int error) { return "expected a readable file: " + Reason(error); }

FileStatus Failed(std::string message) { return {FileStatus::Kind::Failed, std::move(message)}; }

const char* KindOf(mode_t mode) {
  if (S_ISDIR(mode)) return "a directory";
  if (S_ISFIFO(mode)) return "a pipe";
  if (S_ISCHR(mode) || S_ISBLK(mode)) return "a device";
  if (S_ISSOCK(mode)) return "a socket";
  return "something else";
}

std::string TooLarge(std::uint64_t maxBytes) {
  return "expected a file of at most " + std::to_string(maxBytes) + " bytes";
}

}  // namespace

FileStatus ReadRegularFile(const std::string& path, std::uint64_t maxBytes, std::string& text) {
  if (path.find('\0') != std::string::npos) return Failed("expected a file name without NUL");
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (file.get() < 0) {
    const int error = errno;
    // A socket cannot be opened at all.
    if (error == ENXIO) return Failed("expected a regular file, found a socket or an absent device");
    return {error == ENOENT ? FileStatus::Kind::Missing : FileStatus::Kind::Failed, Unreadable(error)};
  }
  struct stat status {};
  if (::fstat(file.get(), &status) != 0) return Failed(Unreadable(errno));
  if (!S_ISREG(status.st_mode)) return Failed(std::string("expected a regular file, found ") + KindOf(status.st_mode));
  if (static_cast<std::uint64_t>(status.st_size) > maxBytes) return Failed(TooLarge(maxBytes));
  // One byte more than expected, to see the end; a file that grows meanwhile is followed up to the limit.
  text.resize(static_cast<std::size_t>(status.st_size) + 1);
  std::size_t filled = 0;
  for (;;) {
    const ssize_t count = ::read(file.get(), text.data() + filled, text.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return Failed(Unreadable(errno));
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
    if (filled > maxBytes) return Failed(TooLarge(maxBytes));
    if (filled == text.size()) text.resize(std::max<std::size_t>(text.size() * 2, 4096));
  }
  text.resize(filled);
  return {};
}

}  // namespace oxviewer
