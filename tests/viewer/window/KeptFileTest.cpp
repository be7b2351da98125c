#include <viewer/window/KeptFile.h>

#include <QJsonObject>

#include <sys/stat.h>

#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace oxviewer::testing {
namespace {

/// Cannot rename anything until it is mended.
class NoRenames : public oxk::FileOperations {
 public:
  void Mend() { mended_ = true; }
  int RenameToNew(const std::string& from, const std::string& to) override {
    if (mended_) return FileOperations::RenameToNew(from, to);
    errno = EACCES;
    return -1;
  }

 private:
  bool mended_ = false;
};

class KeptFileTest : public ::testing::Test {
 protected:
  KeptFile Make(oxk::FileOperations& operations = oxk::FileOperations::System()) {
    return KeptFile(
        path_, [this](const std::string& line) { told_.push_back(line); }, operations);
  }

  std::string Aside(int number) const { return path_ + ".damaged-" + std::to_string(number); }
  void Put(const std::string& content) const { folder_.Write("kept.json", content); }
  static std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  TemporaryFolder folder_;
  std::string path_ = folder_.PathOf("kept.json");
  std::vector<std::string> told_;
};

const QJsonObject kContent{{"name", "value"}};

TEST_F(KeptFileTest, WhatWasWrittenIsReadAgain) {
  path_ = folder_.PathOf("new/folder/kept.json");
  EXPECT_TRUE(Make().Write(kContent));
  EXPECT_EQ(Make().Read(), kContent);
  EXPECT_TRUE(told_.empty());
}

TEST_F(KeptFileTest, MissingFileSaysNothing) {
  EXPECT_TRUE(Make().Read().isEmpty());
  EXPECT_TRUE(told_.empty());
}

TEST_F(KeptFileTest, WithoutAPathNothingIsKept) {
  KeptFile none({}, [](const std::string& line) { ADD_FAILURE() << line; });
  EXPECT_TRUE(none.Write(kContent));
  EXPECT_TRUE(none.Read().isEmpty());
}

TEST_F(KeptFileTest, EachDamagedFileGetsANameOfItsOwn) {
  const std::vector<std::string> damages{"", "{\"name\": ", "[1, 2]", "7", "{} {}"};
  for (const std::string& damage : damages) {
    Put(damage);
    EXPECT_TRUE(Make().Read().isEmpty()) << damage;
  }
  for (std::size_t i = 0; i < damages.size(); ++i) {
    EXPECT_EQ(ContentOf(Aside(static_cast<int>(i) + 1)), damages[i]);
    EXPECT_NE(told_.at(i).find("kept as " + Aside(static_cast<int>(i) + 1)), std::string::npos) << told_[i];
  }
  EXPECT_EQ(told_.size(), damages.size());
}

TEST_F(KeptFileTest, FolderOfThatNameIsMovedWithAllThatIsInIt) {
  std::filesystem::create_directories(path_ + "/something");
  KeptFile file = Make();
  EXPECT_TRUE(file.Read().isEmpty());
  EXPECT_EQ(told_,
            std::vector<std::string>{path_ + ": expected a regular file, found a directory; kept as " + Aside(1)});
  EXPECT_TRUE(file.Write(kContent));
  EXPECT_TRUE(std::filesystem::exists(Aside(1) + "/something"));
  EXPECT_EQ(file.Read(), kContent);
}

TEST_F(KeptFileTest, PipeOfThatNameDoesNotBlock) {
  ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
  EXPECT_TRUE(Make().Read().isEmpty());
  EXPECT_TRUE(std::filesystem::is_fifo(Aside(1)));
}

TEST_F(KeptFileTest, FileWhoseReadingFailsIsMoved) {
  // What this names can be opened by its own process, and nothing is at its beginning.
  std::filesystem::create_symlink("/proc/self/mem", path_);
  EXPECT_TRUE(Make().Read().isEmpty());
  EXPECT_EQ(told_, std::vector<std::string>{path_ + ": expected a readable file: input error; kept as " + Aside(1)});
  EXPECT_TRUE(std::filesystem::is_symlink(Aside(1)));
}

TEST_F(KeptFileTest, WhatCannotBeMovedIsNotWrittenOverAndToldOnce) {
  Put("damage");
  NoRenames operations;
  KeptFile file = Make(operations);
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(file.Read().isEmpty());
    EXPECT_FALSE(file.Write(kContent));
  }
  EXPECT_EQ(ContentOf(path_), "damage");
  ASSERT_EQ(told_.size(), 1u);
  EXPECT_NE(told_[0].find("; cannot be kept under another name: Permission denied; "), std::string::npos) << told_[0];

  operations.Mend();
  EXPECT_TRUE(file.Read().isEmpty());
  EXPECT_TRUE(file.Write(kContent));
  EXPECT_EQ(ContentOf(Aside(1)), "damage");
  EXPECT_EQ(told_.size(), 2u);
}

TEST_F(KeptFileTest, FileThatCannotBeWrittenIsToldOnce) {
  folder_.Write("file", "");
  path_ = folder_.PathOf("file/kept.json");
  KeptFile file = Make();
  EXPECT_FALSE(file.Write(kContent));
  EXPECT_FALSE(file.Write(kContent));
  EXPECT_EQ(told_, std::vector<std::string>{path_ + ": not saved: expected a writable file: there is no such folder"});
}

}  // namespace
}  // namespace oxviewer::testing
