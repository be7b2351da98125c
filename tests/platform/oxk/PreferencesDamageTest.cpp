#include <gtest/gtest.h>
#include <sys/stat.h>

#include <ostream>

#include "FaultyFiles.h"
#include "PreferencesFixture.h"

namespace {

using namespace std::string_literals;

struct Row {
  const char* name;
  std::string content;
  std::string reason;  // the beginning of it
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class PreferencesDamageTest : public PreferencesFixture {
 protected:
  std::filesystem::path Kept(int number) const { return File().string() + ".damaged-" + std::to_string(number); }
};

class DamagedPreferences : public PreferencesDamageTest, public testing::WithParamInterface<Row> {};

std::string Nested(int levels) {
  return R"({"key": "value", "deep": )" + std::string(static_cast<std::size_t>(levels), '[') +
         std::string(static_cast<std::size_t>(levels), ']') + "}";
}

}  // namespace

TEST_P(DamagedPreferences, AreReportedOnceAndKept) {
  StartWith(GetParam().content);
  const auto lines = ErrorLinesOf([] {
    EXPECT_FALSE(Get("key"));
    EXPECT_FALSE(Get("another"));
  });
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].rfind("oxecad: " + File().string() + ": " + GetParam().reason, 0), 0u) << lines[0];
  const std::string whereKept = "; kept as " + Kept(1).string();
  ASSERT_GT(lines[0].size(), whereKept.size());
  EXPECT_EQ(lines[0].substr(lines[0].size() - whereKept.size()), whereKept);
  EXPECT_EQ(ContentOf(Kept(1)), GetParam().content);
  EXPECT_FALSE(std::filesystem::exists(File()));

  Restart();
  EXPECT_TRUE(ErrorLinesOf([] {
                Set("key", "new");
                Save();
              }).empty());
  EXPECT_EQ(ContentOf(Kept(1)), GetParam().content);
  Restart();
  EXPECT_EQ(Get("key"), "new");
}

INSTANTIATE_TEST_SUITE_P(
    PreferencesDamage, DamagedPreferences,
    testing::Values(Row{"empty", "", "not valid JSON: parse error at line 1, column 1"},
                    Row{"cut", R"({"key": "val)", "not valid JSON: parse error at line 1, column 13"},
                    Row{"no_json", "key=value\n", "not valid JSON: "}, Row{"list", R"(["key"])", "not a JSON object"},
                    Row{"text", R"("key")", "not a JSON object"}, Row{"null", "null", "not a JSON object"},
                    Row{"two_objects", R"({"key": "value"}{})", "not valid JSON: "},
                    Row{"zero_bytes", std::string(100, '\0'), "not valid JSON: a zero byte at offset 0"},
                    Row{"trailing_zeros", R"({"key": "value"})" + std::string(8, '\0'),
                        "not valid JSON: a zero byte at offset 16"},
                    Row{"no_utf8", "{\"key\": \"\xDF\"}", "not valid JSON: "},
                    Row{"number_too_large", R"({"key": "value", "n": 1e999})", "not valid JSON: "},
                    Row{"too_deep", Nested(64), "nested more than 64 levels deep"},
                    Row{"much_too_deep", Nested(1'000'000), "nested more than 64 levels deep"},
                    Row{"too_large", std::string((16 << 20) + 1, ' '), "cannot be read: File too large"}),
    [](const testing::TestParamInfo<Row>& row) { return row.param.name; });

TEST_F(PreferencesDamageTest, LimitsThemselvesAreNoDamage) {
  StartWith(Nested(63));
  EXPECT_EQ(Get("key"), "value");
  StartWith(R"({"key": "value"})" + std::string((16 << 20) - 16, ' '));
  EXPECT_EQ(Get("key"), "value");
  EXPECT_EQ(NamesIn(Folder()), std::vector<std::string>{"preferences.json"});
}

TEST_F(PreferencesDamageTest, EachDamagedFileGetsANameOfItsOwn) {
  for (int number = 1; number <= 12; ++number) {
    StartWith("damage " + std::to_string(number));
    EXPECT_EQ(ErrorLinesOf([] { EXPECT_FALSE(Get("key")); }).size(), 1u);
  }
  for (int number = 1; number <= 12; ++number) EXPECT_EQ(ContentOf(Kept(number)), "damage " + std::to_string(number));
}

TEST_F(PreferencesDamageTest, FileCutAnywhereIsReadOrKept) {
  Set("key", "v\xC3\xA4lue");
  Set("another", "\"quoted\"");
  Save();
  const std::string whole = ContentOf(File());
  int read = 0;
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const std::string cut = whole.substr(0, size);
    StartWith(cut);
    const auto lines = ErrorLinesOf([] { Get("key"); });
    if (lines.empty()) {
      ++read;
      EXPECT_EQ(Get("key"), "v\xC3\xA4lue") << size;
      EXPECT_EQ(Get("another"), "\"quoted\"") << size;
    } else {
      EXPECT_EQ(lines.size(), 1u) << size;
      EXPECT_EQ(ContentOf(Kept(static_cast<int>(size) + 1)), cut);
    }
  }
  EXPECT_EQ(read, 2) << "the whole file, and the one without its last line end";
}

TEST_F(PreferencesDamageTest, FolderOfThatNameIsKept) {
  std::filesystem::create_directories(File() / "something");
  EXPECT_EQ(ErrorLinesOf([] { EXPECT_FALSE(Get("key")); }),
            std::vector<std::string>{"oxecad: " + File().string() + ": cannot be read: Is a directory; kept as " +
                                     Kept(1).string()});
  EXPECT_TRUE(std::filesystem::exists(Kept(1) / "something"));
}

TEST_F(PreferencesDamageTest, PipeOfThatNameDoesNotBlock) {
  std::filesystem::create_directories(Folder());
  ASSERT_EQ(::mkfifo(File().c_str(), 0600), 0);
  EXPECT_EQ(ErrorLinesOf([] { EXPECT_FALSE(Get("key")); }).size(), 1u);
  EXPECT_TRUE(std::filesystem::is_fifo(Kept(1)));
}

TEST_F(PreferencesDamageTest, FileThatCannotBeKeptIsNotWrittenOver) {
  StartWith("damage");
  FaultyFiles files;
  files.FailAll(Step::RenameToNew, EACCES);
  Restart(files);
  const std::string notKept = "; cannot be kept under another name: Permission denied; preferences are not saved";
  const auto lines = ErrorLinesOf([] { EXPECT_FALSE(Get("key")); });
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_NE(lines[0].find(notKept), std::string::npos) << lines[0];

  Set("key", "new");
  EXPECT_EQ(ErrorLinesOf([] { Save(); }),
            std::vector<std::string>{"oxecad: " + File().string() + ": damaged since it was read" + notKept});
  EXPECT_EQ(ContentOf(File()), "damage");
  EXPECT_EQ(Get("key"), "new") << "the preference is in force all the same";

  files.Mend();
  EXPECT_EQ(ErrorLinesOf([] { Save(); }).size(), 1u) << "where the damaged file has gone";
  EXPECT_EQ(ContentOf(Kept(1)), "damage");
  EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
  Restart();
  EXPECT_EQ(Get("key"), "new");
}

TEST_F(PreferencesDamageTest, FileThatIsGoneByThenNeedsNoKeeping) {
  StartWith("damage");
  FaultyFiles files;
  files.FailAll(Step::RenameToNew, EACCES);
  Restart(files);
  ErrorLinesOf([] { Get("key"); });
  files.Mend();
  std::filesystem::remove(File());
  Set("key", "new");
  EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
  Restart();
  EXPECT_EQ(Get("key"), "new");
}
