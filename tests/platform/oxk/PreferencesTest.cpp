#include <oxk/Preferences.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <sys/stat.h>

#include <map>
#include <nlohmann/json.hpp>
#include <thread>

#include "PreferencesFixture.h"

using oxk::World;
using oxkutils::Symbol;

namespace {

constexpr const char* kKey = "GUI/EcadView/HighlightAddToHighlight";

class PreferencesTest : public PreferencesFixture {};

}  // namespace

TEST_F(PreferencesTest, MissingOneLeavesTheValueAlone) {
  std::string value = "as before";
  EXPECT_FALSE(World::GetWorld()->GetPreferences()->GetString(Symbol(kKey), value, nullptr));
  EXPECT_EQ(value, "as before");
}

TEST_F(PreferencesTest, MissingOneIsReplacedByTheFallback) {
  std::string value = "as before";
  EXPECT_TRUE(World::GetWorld()->GetPreferences()->GetString(Symbol(kKey), value, "highlight"));
  EXPECT_EQ(value, "highlight");
  EXPECT_FALSE(Get(kKey)) << "a fallback is not stored";
}

TEST_F(PreferencesTest, StoredOneComesBeforeTheFallback) {
  Set(kKey, "");
  std::string value = "as before";
  EXPECT_TRUE(World::GetWorld()->GetPreferences()->GetString(Symbol(kKey), value, "highlight"));
  EXPECT_EQ(value, "");
}

TEST_F(PreferencesTest, SettingGivesTheFormerValue) {
  EXPECT_EQ(Set(kKey, "one"), "");
  EXPECT_EQ(Set(kKey, "two"), "one");
  EXPECT_EQ(World::GetWorld()->GetPreferences()->SetString(Symbol(kKey), "three", true), "two");
  EXPECT_EQ(Get(kKey), "three");
}

TEST_F(PreferencesTest, KeysAreTakenWholeAndInTheirCase) {
  Set("GUI/a", "1");
  EXPECT_FALSE(Get("GUI"));
  EXPECT_FALSE(Get("GUI/A"));
  EXPECT_FALSE(Get("GUI/a/b"));
  EXPECT_FALSE(Get("/GUI/a"));
}

TEST_F(PreferencesTest, AreInForceBeforeTheyAreSaved) {
  const auto handedOutBefore = World::GetWorld()->GetPreferences();
  Set(kKey, "add_highlight");
  std::string value;
  EXPECT_TRUE(handedOutBefore->GetString(Symbol(kKey), value, nullptr));
  EXPECT_EQ(value, "add_highlight");
  EXPECT_FALSE(std::filesystem::exists(Folder()));
}

TEST_F(PreferencesTest, SurviveARestartWhenSaved) {
  Set(kKey, "add_highlight");
  EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
  Set(kKey, "not saved");
  Restart();
  EXPECT_EQ(Get(kKey), "add_highlight");
  EXPECT_EQ(NamesIn(Folder()), std::vector<std::string>{"preferences.json"});
}

TEST_F(PreferencesTest, HandedOutBeforeARestartShowTheNewValues) {
  const auto handedOutBefore = World::GetWorld()->GetPreferences();
  StartWith(R"({"key": "of the file"})");
  std::string value;
  EXPECT_TRUE(handedOutBefore->GetString(Symbol("key"), value, nullptr));
  EXPECT_EQ(value, "of the file");
}

TEST_F(PreferencesTest, StartWithoutAFileAndWithoutAWord) {
  EXPECT_TRUE(ErrorLinesOf([] { EXPECT_FALSE(Get(kKey)); }).empty());
  EXPECT_FALSE(std::filesystem::exists(Folder())) << "reading makes no folder";
}

TEST_F(PreferencesTest, FileIsAJsonObjectThatOnlyTheUserMayRead) {
  Set(kKey, "add_highlight");
  Set("GUI/EcadView/IsolateAddToIsolate", "isolate");
  Save();
  EXPECT_EQ(ContentOf(File()),
            "{\n"
            "  \"GUI/EcadView/HighlightAddToHighlight\": \"add_highlight\",\n"
            "  \"GUI/EcadView/IsolateAddToIsolate\": \"isolate\"\n"
            "}\n");
  struct stat status;
  ASSERT_EQ(::stat(File().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
  ASSERT_EQ(::stat(Folder().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(PreferencesTest, EntriesOfOthersAreKept) {
  const auto others = nlohmann::json::parse(
      R"({"text": "\u00b5 \ud83d\ude00", "number": 1.5, "large": 9007199254740993, "no": null, "yes": true,
          "list": [1, [2, {"deep": "er"}]], "": "empty key", "object": {"a/b": {}}})");
  StartWith(others.dump());
  EXPECT_EQ(Get("text"), "\xC2\xB5 \xF0\x9F\x98\x80");
  EXPECT_EQ(Get(""), "empty key");
  Set(kKey, "highlight");
  Save();
  auto expected = others;
  expected[kKey] = "highlight";
  EXPECT_EQ(nlohmann::json::parse(ContentOf(File())), expected);
}

TEST_F(PreferencesTest, EntryThatIsNoTextCountsAsMissingUntilItIsSet) {
  StartWith(R"({"number": 3})");
  EXPECT_FALSE(Get("number"));
  EXPECT_EQ(Set("number", "three"), "");
  EXPECT_EQ(Get("number"), "three");
}

TEST_F(PreferencesTest, ValuesThatAreNoUtf8AreSavedWithReplacements) {
  Set("latin",
      "Stra\xDF"
      "e");
  EXPECT_EQ(Get("latin"),
            "Stra\xDF"
            "e");
  EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
  Restart();
  EXPECT_EQ(Get("latin"),
            "Stra\xEF\xBF\xBD"
            "e");
}

TEST_F(PreferencesTest, MayBeUsedFromSeveralThreads) {
  constexpr int kValues = 200;
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([thread] {
      const std::string key = "thread/" + std::to_string(thread);
      for (int i = 0; i < kValues; ++i) {
        const std::string former = Set(key.c_str(), std::to_string(i));
        EXPECT_EQ(former, i == 0 ? "" : std::to_string(i - 1));
        if (i % 50 == 0) Save();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  Save();
  Restart();
  for (int thread = 0; thread < 4; ++thread) {
    EXPECT_EQ(Get(("thread/" + std::to_string(thread)).c_str()), std::to_string(kValues - 1));
  }
}

RC_GTEST_FIXTURE_PROP(PreferencesTest, AreAMapThatRestartsDoNotChange, ()) {
  // A key or a value of any characters: its text is what matters, not its encoding.
  const auto text = rc::gen::container<std::string>(rc::gen::inRange<char>(1, 127));
  std::map<std::string, std::string> model;
  const auto settings = *rc::gen::container<std::vector<std::tuple<std::string, std::string, bool>>>(rc::gen::tuple(
      rc::gen::oneOf(text, rc::gen::element<std::string>("a", "b", "a/b")), text, rc::gen::arbitrary<bool>()));
  for (const auto& [key, value, restart] : settings) {
    RC_ASSERT(Set(key.c_str(), value) == model[key]);
    model[key] = value;
    if (!restart) continue;
    Save();
    Restart();
  }
  for (const auto& [key, value] : model) RC_ASSERT(Get(key.c_str()) == value);
}
