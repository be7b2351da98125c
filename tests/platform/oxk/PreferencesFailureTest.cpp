#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <set>

#include "FaultyFiles.h"
#include "PreferencesFixture.h"

namespace {

constexpr const char* kKey = "GUI/EcadView/HighlightAddToHighlight";
constexpr const char* kOther = "GUI/EcadView/IsolateAddToIsolate";

/// Files are saved with old values; then a new value is saved with something going wrong.
class PreferencesFailureTest : public PreferencesFixture {
 protected:
  void SaveOldValues() {
    std::filesystem::remove_all(Folder());
    Restart();
    Set(kKey, "highlight");
    Set(kOther, "add_isolate");
    Save();
    m_old = ContentOf(File());
  }
  const std::string& Old() const { return m_old; }

  /// What a later process finds: both old values, or the new and the old one.
  void ExpectOldOrNew() {
    Restart();
    EXPECT_TRUE(ErrorLinesOf([] {
                  const auto value = Get(kKey);
                  EXPECT_TRUE(value == "highlight" || value == "add_highlight") << value.value_or("nothing");
                  EXPECT_EQ(Get(kOther), "add_isolate");
                }).empty());
    EXPECT_EQ(NamesIn(Folder()), std::vector<std::string>{"preferences.json"});
  }

  /// Runs a save of a new value in another process. True when that process was killed.
  bool IsKilledWhileSaving(FaultyFiles& files) {
    const pid_t child = ::fork();
    if (child == 0) {
      Restart(files);
      Set(kKey, "add_highlight");
      Save();
      ::_exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) ? WTERMSIG(status) == SIGKILL : WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
  }

 private:
  std::string m_old;
};

constexpr int kErrors[] = {EIO, ENOSPC, EACCES, EROFS, EMFILE, ENOENT, EINVAL};

}  // namespace

TEST_F(PreferencesFailureTest, EachStepOfASaveFailsInTurn) {
  std::set<Step> reached;
  for (const int error : kErrors) {
    bool clean = false;
    for (int number = 1; !clean; ++number) {
      ASSERT_LT(number, 100);
      SCOPED_TRACE("step " + std::to_string(number) + ", error " + std::to_string(error));
      SaveOldValues();
      FaultyFiles files;
      Restart(files);
      Set(kKey, "add_highlight");
      const std::size_t before = files.Steps().size();
      files.FailAt(static_cast<int>(before) + number, error);
      const auto lines = ErrorLinesOf([] { Save(); });
      clean = files.Steps().size() < before + static_cast<std::size_t>(number);
      EXPECT_EQ(Get(kKey), "add_highlight") << "the preference is in force whether it is saved or not";
      if (clean) {
        EXPECT_TRUE(lines.empty());
      } else {
        reached.insert(files.Steps()[before + static_cast<std::size_t>(number) - 1]);
        EXPECT_LE(lines.size(), 1u);
        for (const std::string& line : lines) EXPECT_EQ(line.rfind("oxecad: " + File().string() + ": ", 0), 0u) << line;
        const bool saved = ContentOf(File()) != Old();
        EXPECT_TRUE(saved || lines.size() == 1) << "a value is lost without a word";
      }
      ExpectOldOrNew();
    }
  }
  EXPECT_EQ(reached, (std::set<Step>{Step::OpenForWriting, Step::Write, Step::Flush, Step::Close, Step::Rename,
                                     Step::OpenFolder}));
}

TEST_F(PreferencesFailureTest, EverythingFailsFromEachStepOfASaveOn) {
  bool clean = false;
  for (int number = 1; !clean; ++number) {
    ASSERT_LT(number, 100);
    SCOPED_TRACE("from step " + std::to_string(number));
    SaveOldValues();
    FaultyFiles files;
    Restart(files);
    Set(kKey, "add_highlight");
    const std::size_t before = files.Steps().size();
    files.FailFrom(static_cast<int>(before) + number, EIO);
    const auto lines = ErrorLinesOf([] { Save(); });
    clean = files.Steps().size() < before + static_cast<std::size_t>(number);
    const bool saved = ContentOf(File()) != Old();
    EXPECT_TRUE(saved || lines.size() == 1) << "a value is lost without a word";
    Restart();
    EXPECT_EQ(Get(kOther), "add_isolate");
  }
}

TEST_F(PreferencesFailureTest, EachStepOfALoadFailsInTurn) {
  std::set<Step> reached;
  bool clean = false;
  for (int number = 1; !clean; ++number) {
    ASSERT_LT(number, 100);
    SCOPED_TRACE("step " + std::to_string(number));
    SaveOldValues();
    FaultyFiles files;
    files.FailAt(number, EIO);
    Restart(files);
    const auto lines = ErrorLinesOf([] { Get(kKey); });
    clean = files.Steps().size() < static_cast<std::size_t>(number);
    if (!clean) reached.insert(files.Steps()[static_cast<std::size_t>(number) - 1]);
    if (lines.empty()) {
      EXPECT_EQ(Get(kKey), "highlight");
      EXPECT_EQ(ContentOf(File()), Old());
    } else {
      EXPECT_EQ(lines, std::vector<std::string>{"oxecad: " + File().string() +
                                                ": cannot be read: Input/output error; kept as " + File().string() +
                                                ".damaged-1"});
      EXPECT_EQ(ContentOf(File().string() + ".damaged-1"), Old());
    }
  }
  EXPECT_EQ(reached, (std::set<Step>{Step::OpenForReading, Step::Read, Step::Close}));
}

TEST_F(PreferencesFailureTest, EachStepOfAFirstSaveFailsInTurn) {
  std::set<Step> reached;
  bool clean = false;
  for (int number = 1; !clean; ++number) {
    ASSERT_LT(number, 100);
    SCOPED_TRACE("step " + std::to_string(number));
    std::filesystem::remove_all(Folder());
    FaultyFiles files;
    Restart(files);
    Set(kKey, "add_highlight");
    const std::size_t before = files.Steps().size();
    files.FailAt(static_cast<int>(before) + number, EACCES);
    const auto lines = ErrorLinesOf([] { Save(); });
    clean = files.Steps().size() < before + static_cast<std::size_t>(number);
    if (!clean) reached.insert(files.Steps()[before + static_cast<std::size_t>(number) - 1]);
    EXPECT_TRUE(std::filesystem::exists(File()) || lines.size() == 1) << "a value is lost without a word";
    EXPECT_TRUE(!clean || lines.empty());
    if (std::filesystem::exists(Folder())) {
      EXPECT_LE(NamesIn(Folder()).size(), 1u) << "no temporary file is left behind";
    }
    files.Mend();
    EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
    Restart();
    EXPECT_EQ(Get(kKey), "add_highlight");
  }
  EXPECT_TRUE(reached.count(Step::MakeFolder));
}

TEST_F(PreferencesFailureTest, WritesAndReadsInPiecesAndAfterInterruptions) {
  FaultyFiles files;
  files.Crawl(3);
  Restart(files);
  Set(kKey, "add_highlight");
  EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
  Restart(files);
  EXPECT_EQ(Get(kKey), "add_highlight");
}

TEST_F(PreferencesFailureTest, WriteWithoutProgressEnds) {
  struct Stuck : FaultyFiles {
    ssize_t Write(int, const void*, std::size_t) override { return 0; }
  } stuck;
  SaveOldValues();
  Restart(stuck);
  Set(kKey, "add_highlight");
  EXPECT_EQ(ErrorLinesOf([] { Save(); }),
            std::vector<std::string>{"oxecad: " + File().string() + ": not saved: Input/output error"});
  EXPECT_EQ(ContentOf(File()), Old());
}

TEST_F(PreferencesFailureTest, ProcessKilledBeforeEachStepLeavesOldOrNewValues) {
  bool killed = true;
  int kills = 0;
  for (int number = 1; killed; ++number) {
    ASSERT_LT(number, 100);
    SCOPED_TRACE("step " + std::to_string(number));
    SaveOldValues();
    FaultyFiles files;
    files.KillBefore(number);
    killed = IsKilledWhileSaving(files);
    kills += killed;
    ExpectOldOrNew();
    EXPECT_EQ(Get(kKey) == "add_highlight", ContentOf(File()) != Old());
  }
  EXPECT_EQ(Get(kKey), "add_highlight") << "the run that nobody killed has saved";
  EXPECT_GE(kills, 10) << "open, read twice, close; open, write, flush, close, rename; open, flush, close";
}

TEST_F(PreferencesFailureTest, ProcessKilledAfterEachByteLeavesOldValues) {
  SaveOldValues();
  const std::size_t size = Old().size() + std::string("add_").size();
  for (std::size_t bytes = 0; bytes <= size; ++bytes) {
    SCOPED_TRACE("bytes " + std::to_string(bytes));
    SaveOldValues();
    FaultyFiles files;
    files.KillAfterBytes(bytes);
    ASSERT_TRUE(IsKilledWhileSaving(files));
    EXPECT_EQ(ContentOf(File()), Old());
    EXPECT_EQ(NamesIn(Folder()).size(), 2u) << "the temporary file of the killed process";
    ExpectOldOrNew();
  }
}

TEST_F(PreferencesFailureTest, TemporaryFileOfALivingProcessIsLeftAlone) {
  SaveOldValues();
  const auto ofOthers = File().string() + ".tmp-" + std::to_string(::getppid());
  const auto noProcess = File().string() + ".tmp-notes";
  WriteFile(ofOthers, "being written");
  WriteFile(noProcess, "somebody's");
  Restart();
  EXPECT_EQ(Get(kKey), "highlight");
  EXPECT_EQ(ContentOf(ofOthers), "being written");
  EXPECT_EQ(ContentOf(noProcess), "somebody's");
}
