#include <oxk/PreferencesFolder.h>

#include <gtest/gtest.h>
#include <stdlib.h>

#include "PreferencesFixture.h"

using oxk::UserPreferencesFolder;

namespace {

class PreferencesFolderTest : public PreferencesFixture {
 protected:
  static void SetEnvironment(const char* configuration, const char* home) {
    SetVariable("XDG_CONFIG_HOME", configuration);
    SetVariable("HOME", home);
  }

 private:
  static void SetVariable(const char* name, const char* value) {
    if (value) {
      ::setenv(name, value, 1);
    } else {
      ::unsetenv(name);
    }
  }
};

}  // namespace

TEST_F(PreferencesFolderTest, IsBelowTheConfigurationFolder) {
  SetEnvironment("/configuration of/somebody", "/home/somebody");
  EXPECT_EQ(UserPreferencesFolder(), "/configuration of/somebody/oxecad");
}

TEST_F(PreferencesFolderTest, IsBelowTheHomeFolderOtherwise) {
  for (const char* const configuration : {static_cast<const char*>(nullptr), "", "relative/path"}) {
    SetEnvironment(configuration, "/home/somebody");
    EXPECT_EQ(UserPreferencesFolder(), "/home/somebody/.config/oxecad");
  }
}

TEST_F(PreferencesFolderTest, AsksTheSystemForAHomeThatTheEnvironmentDoesNotName) {
  for (const char* const home : {static_cast<const char*>(nullptr), "", "relative/path"}) {
    SetEnvironment(nullptr, home);
    const std::string folder = UserPreferencesFolder();
    if (folder.empty()) continue;  // this user has none
    EXPECT_EQ(folder.front(), '/');
    EXPECT_EQ(folder.find("relative"), std::string::npos);
  }
}

TEST_F(PreferencesFolderTest, OfTheUserIsReadAndWrittenByDefault) {
  SetEnvironment(Folder().c_str(), nullptr);
  oxk::UsePreferencesFolder("");
  Set("key", "value");
  Save();
  EXPECT_EQ(ContentOf(Folder() / "oxecad" / "preferences.json"), "{\n  \"key\": \"value\"\n}\n");
}

TEST_F(PreferencesFolderTest, IsMadeWithAllItsParents) {
  const auto folder = Folder() / "a" / "b" / "c";
  oxk::UsePreferencesFolder(folder.string());
  Set("key", "value");
  EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
  EXPECT_TRUE(std::filesystem::exists(folder / "preferences.json"));
}

TEST_F(PreferencesFolderTest, DoesNotFollowTheCurrentFolder) {
  std::filesystem::create_directories(Folder() / "elsewhere");
  std::filesystem::current_path(Folder());
  oxk::UsePreferencesFolder("relative");
  std::filesystem::current_path(Folder() / "elsewhere");
  Set("key", "value");
  Save();
  EXPECT_TRUE(std::filesystem::exists(Folder() / "relative" / "preferences.json"));
  std::filesystem::current_path("/");
}

TEST_F(PreferencesFolderTest, ThatCannotBeMadeIsReportedAtEachSave) {
  std::filesystem::create_directories(Folder());
  WriteFile(Folder() / "file", "");
  oxk::UsePreferencesFolder((Folder() / "file" / "config").string());
  EXPECT_TRUE(ErrorLinesOf([] { EXPECT_FALSE(Get("key")); }).empty()) << "there is nothing to be read";
  Set("key", "value");
  for (int save = 0; save < 2; ++save) {
    EXPECT_EQ(ErrorLinesOf([] { Save(); }),
              std::vector<std::string>{"oxecad: " + (Folder() / "file" / "config" / "preferences.json").string() +
                                       ": not saved: Not a directory"});
  }
  EXPECT_EQ(Get("key"), "value") << "the preference is in force all the same";
}
