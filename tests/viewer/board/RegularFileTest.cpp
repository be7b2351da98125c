#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <tests/viewer/board/Texts.h>
#include <unistd.h>

#include <cstring>

namespace oxviewer::testing {
namespace {

std::string ErrorOf(const std::string& path, const ReaderLimits& limits = {}) {
  const Result<Board> result = ReadBoard(path, limits);
  return result ? "read" : result.error().ToLine();
}

TEST(BoardFile, IsReadAndRemembersItsPath) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("a.kicad_pcb", BoardText("(net 1 A)"));
  const Result<Board> result = ReadBoard(path);
  ASSERT_TRUE(result);
  EXPECT_EQ(result->name, path);
  EXPECT_EQ(result->nets.size(), 1u);
}

TEST(BoardFile, ThatIsMissingIsRefused) {
  EXPECT_EQ(ErrorOf("/nowhere/a.kicad_pcb"), "/nowhere/a.kicad_pcb: expected a readable file: there is no such file");
  EXPECT_EQ(ErrorOf(""), ": expected a readable file: there is no such file");
  EXPECT_EQ(ErrorOf("/dev/null/a"), "/dev/null/a: expected a readable file: part of the path is no directory");
}

TEST(BoardFile, ThatIsEmptyIsRefusedAtItsBeginning) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("a.kicad_pcb", "");
  EXPECT_EQ(ErrorOf(path), path + ":1:1: expected \"(kicad_pcb\", found the end of the file");
}

TEST(BoardFile, ThatIsADirectoryIsRefused) {
  const TemporaryFolder folder;
  EXPECT_EQ(ErrorOf(folder.PathOf("")), folder.PathOf("") + ": expected a regular file, found a directory");
}

TEST(BoardFile, ThatIsAPipeIsRefusedWithoutWaiting) {
  const TemporaryFolder folder;
  const std::string path = folder.PathOf("pipe");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(ErrorOf(path), path + ": expected a regular file, found a pipe");
}

TEST(BoardFile, ThatIsADeviceIsRefused) {
  EXPECT_EQ(ErrorOf("/dev/zero"), "/dev/zero: expected a regular file, found a device");
  EXPECT_EQ(ErrorOf("/dev/null"), "/dev/null: expected a regular file, found a device");
}

TEST(BoardFile, ThatIsASocketIsRefused) {
  const TemporaryFolder folder;
  const std::string path = folder.PathOf("s");
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof address.sun_path);
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(ErrorOf(path), path + ": expected a regular file, found a socket or an absent device");
  ::close(fd);
}

TEST(BoardFile, ThatMayNotBeReadIsRefused) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("a.kicad_pcb", BoardText(""));
  ASSERT_EQ(::chmod(path.c_str(), 0), 0);
  const bool superuser = ::geteuid() == 0;  // who may read everything
  if (superuser) {
    ASSERT_EQ(::seteuid(65534), 0);
  }
  const std::string error = ErrorOf(path);
  if (superuser) {
    ASSERT_EQ(::seteuid(0), 0);
  }
  EXPECT_EQ(error, path + ": expected a readable file: permission denied");
}

TEST(BoardFile, WithANulInItsNameIsRefused) {
  EXPECT_EQ(ErrorOf(std::string("a\0b", 3)), "a\\x00b: expected a file name without NUL");
}

TEST(BoardFile, IsReadAtTheSizeLimitAndRefusedPastIt) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("a.kicad_pcb", "(kicad_pcb)");
  ReaderLimits limits;
  limits.fileBytes = 11;
  EXPECT_EQ(ErrorOf(path, limits), "read");
  limits.fileBytes = 10;
  EXPECT_EQ(ErrorOf(path, limits), path + ": expected a file of at most 10 bytes");
}

TEST(BoardFile, WithoutASizeOfItsOwnIsReadUpToTheLimit) {
  // The kernel's files report no size but hold text.
  EXPECT_EQ(ErrorOf("/proc/self/status").substr(0, 23), "/proc/self/status:1:1: ");
  ReaderLimits limits;
  limits.fileBytes = 100;
  EXPECT_EQ(ErrorOf("/proc/self/status", limits), "/proc/self/status: expected a file of at most 100 bytes");
}

}  // namespace
}  // namespace oxviewer::testing
