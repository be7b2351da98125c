// What highlight and isolate do by default, as the user's preferences say.
#include <tests/platform/oxk/FaultyFiles.h>
#include <tests/platform/oxk/PreferencesFixture.h>
#include <tests/support/DecimalComma.h>
#include <uicomps/dialogs/DefaultActions.h>

#include <string>

namespace oxecad_ui {
namespace {

/// One of the two actions.
struct Action {
  const char* name;
  const char* key;
  const char* word;
  const char* add_word;
  const char* (*get)();
  void (*set)(const char*);
  bool (*is_add)();
};
void PrintTo(const Action& action, std::ostream* out) { *out << action.name; }

class DefaultAction : public PreferencesFixture, public testing::WithParamInterface<Action> {
 protected:
  const Action& action = GetParam();
};

INSTANTIATE_TEST_SUITE_P(
    Of, DefaultAction,
    testing::Values(Action{"highlight", "GUI/EcadView/HighlightAddToHighlight", "highlight", "add_highlight",
                           GetHighlightDefaultAction, SetHighlightDefaultAction, IsAddToHighlightsDefaultAction},
                    Action{"isolate", "GUI/EcadView/IsolateAddToIsolate", "isolate", "add_isolate",
                           GetIsolateDefaultAction, SetIsolateDefaultAction, IsAddToIsolatesDefaultAction}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(DefaultAction, ReplacesWithoutAPreference) {
  EXPECT_STREQ(action.get(), action.word);
  EXPECT_FALSE(action.is_add());
  EXPECT_EQ(Get(action.key), std::nullopt) << "asking stores nothing";
  EXPECT_FALSE(std::filesystem::exists(Folder()));
}

TEST_P(DefaultAction, AddsOnlyForTheExactWord) {
  const std::string add = action.add_word;
  Set(action.key, add);
  EXPECT_STREQ(action.get(), action.add_word);
  EXPECT_TRUE(action.is_add());
  std::string capital = add;
  capital[0] = 'A';
  for (const std::string& other :
       {add + " ", " " + add, add.substr(0, add.size() - 1), capital, add + std::string(1, '\0'), std::string(),
        std::string(action.word), std::string("anything")}) {
    Set(action.key, other);
    EXPECT_STREQ(action.get(), action.word) << '"' << other << '"';
    EXPECT_FALSE(action.is_add()) << '"' << other << '"';
  }
}

TEST_P(DefaultAction, IsStoredAsOneOfTwoWords) {
  const std::string add = action.add_word;
  std::string capital = add;
  capital[0] = 'A';
  action.set(add.c_str());
  EXPECT_EQ(Get(action.key), add);
  for (const std::string& other : {std::string(action.word), std::string(), std::string("other"), capital, add + " "}) {
    action.set(add.c_str());
    action.set(other.c_str());
    EXPECT_EQ(Get(action.key), action.word) << '"' << other << '"';
  }
}

TEST_P(DefaultAction, IsSavedAtOnceAndSurvivesARestart) {
  action.set(action.add_word);
  EXPECT_NE(ContentOf(File()).find(action.add_word), std::string::npos);
  Restart();
  EXPECT_TRUE(action.is_add());
  action.set(action.word);
  Restart();
  EXPECT_FALSE(action.is_add());
  EXPECT_EQ(Get(action.key), action.word) << "the default is stored, not left out";
}

TEST_P(DefaultAction, IsReadAfreshEachTime) {
  EXPECT_FALSE(action.is_add());
  Set(action.key, action.add_word);
  EXPECT_TRUE(action.is_add());
  StartWith("{}");
  EXPECT_FALSE(action.is_add());
}

TEST_P(DefaultAction, IsAConstantThatStaysGood) {
  const char* const replaced = action.get();
  action.set(action.add_word);
  const char* const added = action.get();
  EXPECT_EQ(action.get(), added);
  action.set(added);
  EXPECT_EQ(action.get(), added) << "what was given may be set";
  action.set(action.word);
  EXPECT_EQ(action.get(), replaced);
  EXPECT_STREQ(added, action.add_word);
}

TEST_P(DefaultAction, LeavesOtherPreferencesAlone) {
  Set("GUI/Other", "kept");
  action.set(action.add_word);
  Restart();
  EXPECT_EQ(Get("GUI/Other"), "kept");
  EXPECT_NE(IsAddToHighlightsDefaultAction(), IsAddToIsolatesDefaultAction()) << "the two have keys of their own";
}

TEST_P(DefaultAction, ReadsADamagedFileAsTheDefault) {
  for (const char* const content : {"", "{", "[]"}) {
    ErrorLinesOf([&] {
      StartWith(content);
      EXPECT_STREQ(action.get(), action.word);
    });
  }
  StartWith("{ \"" + std::string(action.key) + "\": 1 }");
  EXPECT_STREQ(action.get(), action.word) << "no text, no word";
}

TEST_P(DefaultAction, IsInForceAlsoWhenItCannotBeSaved) {
  FaultyFiles files;
  files.FailFrom(1, ENOSPC);
  Restart(files);
  ErrorLinesOf([&] { action.set(action.add_word); });
  EXPECT_TRUE(action.is_add());
  Restart();
  EXPECT_FALSE(action.is_add());
}

TEST_P(DefaultAction, KeepsNoReference) {
  const auto world = oxk::World::GetWorld();
  const auto preferences = world->GetPreferences();
  const long worlds = world->GetReferenceCount();
  const long before = preferences->GetReferenceCount();
  action.set(action.get());
  action.is_add();
  EXPECT_EQ(world->GetReferenceCount(), worlds);
  EXPECT_EQ(preferences->GetReferenceCount(), before);
}

TEST_P(DefaultAction, IsTheSameWithADecimalComma) {
  const test_support::DecimalComma locale;
  action.set(action.add_word);
  Restart();
  EXPECT_TRUE(action.is_add());
}

}  // namespace
}  // namespace oxecad_ui
