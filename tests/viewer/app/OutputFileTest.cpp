#include <gtest/gtest.h>
#include <sys/stat.h>
#include <tests/viewer/board/Texts.h>
#include <unistd.h>
#include <viewer/app/OutputFile.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace oxviewer::testing {
namespace {

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(OutputFile, IsWrittenAndReplaced) {
  const TemporaryFolder folder;
  const std::string path = folder.PathOf("report.json");
  EXPECT_FALSE(WriteFile(path, "first, and longer\n"));
  EXPECT_EQ(ContentOf(path), "first, and longer\n");
  EXPECT_FALSE(WriteFile(path, "second\n"));
  EXPECT_EQ(ContentOf(path), "second\n");
  const auto begin = std::filesystem::directory_iterator(folder.PathOf(""));
  EXPECT_EQ(std::distance(begin, std::filesystem::directory_iterator()), 1);
}

TEST(OutputFile, KeepsTheRightsAndTheLinkOfTheOldOne) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("report.json", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  std::filesystem::create_symlink("report.json", folder.PathOf("link"));
  EXPECT_FALSE(WriteFile(folder.PathOf("link"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf("link")));
  EXPECT_EQ(ContentOf(path), "new");
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640u);
}

TEST(OutputFile, ThatCannotBeWrittenIsAnError) {
  const TemporaryFolder folder;
  const auto missing = WriteFile(folder.PathOf("no/report.json"), "x");
  ASSERT_TRUE(missing);
  EXPECT_EQ(missing->ToLine(), folder.PathOf("no/report.json") + ": expected a writable file: there is no such folder");
  const auto directory = WriteFile(folder.PathOf(""), "x");
  ASSERT_TRUE(directory);
  EXPECT_EQ(directory->ToLine(), folder.PathOf("") + ": expected a writable file: it is a directory");
  const auto full = WriteFile("/dev/full", "x");
  ASSERT_TRUE(full);
  EXPECT_EQ(full->ToLine(), "/dev/full: expected a writable file: no space is left");
}

TEST(OutputFile, OfTheLongestNameIsWritten) {
  const TemporaryFolder folder;
  const std::string path = folder.PathOf(std::string(255, 'r'));
  EXPECT_FALSE(WriteFile(path, "x"));
  EXPECT_EQ(ContentOf(path), "x");
}

// Nobody is kept from a folder who may do everything, so the test is somebody else.
TEST(OutputFile, InAFolderThatTakesNoFurtherOneIsWrittenInto) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can become somebody else";
  const TemporaryFolder folder;
  const std::string path = folder.Write("report.json", "old, and longer");
  ASSERT_EQ(::chmod(folder.PathOf("").c_str(), 0755), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  constexpr uid_t kNobody = 65534;
  ASSERT_EQ(::seteuid(kNobody), 0);
  const auto written = WriteFile(path, "new");
  const auto refused = WriteFile(folder.PathOf("other.json"), "new");
  ASSERT_EQ(::seteuid(0), 0);
  EXPECT_FALSE(written) << written->ToLine();
  EXPECT_EQ(ContentOf(path), "new");
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->ToLine(), folder.PathOf("other.json") + ": expected a writable file: permission denied");
}

TEST(OutputFile, IsNotStoppedByWhatAnEndedRunHasLeft) {
  const TemporaryFolder folder;
  const std::string left = folder.Write(".oxviewer-" + std::to_string(::getpid()) + "-0", "half of");
  EXPECT_FALSE(WriteFile(folder.PathOf("report.json"), "x"));
  EXPECT_EQ(ContentOf(folder.PathOf("report.json")), "x");
  EXPECT_EQ(ContentOf(left), "half of");
}

TEST(OutputFile, MayBeADevice) {
  EXPECT_FALSE(WriteFile("/dev/null", "x"));
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

}  // namespace
}  // namespace oxviewer::testing
