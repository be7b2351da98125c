#include <uicomps/dialogs/DefaultActions.h>

#include <cstring>
#include <string>
#include <string_view>

#include <oxk/Preferences.h>
#include <oxk/World.h>
#include <oxkutils/SmartPtr.h>
#include <oxkutils/Symbol.h>

namespace oxecad_ui {

namespace {

/// A command that replaces a set, or adds to it, and the preference that says which.
struct Command {
  oxkutils::Symbol key;
  const char* replace;
  const char* add;

  const char* ActionFor(std::string_view word) const { return word == add ? add : replace; }
};

const Command kHighlight{oxkutils::Symbol("GUI/EcadView/HighlightAddToHighlight"), "highlight", "add_highlight"};
const Command kIsolate{oxkutils::Symbol("GUI/EcadView/IsolateAddToIsolate"), "isolate", "add_isolate"};

const char* Stored(const Command& command) {
  std::string word;
  oxk::World::GetWorld()->GetPreferences()->GetString(command.key, word, nullptr);
  return command.ActionFor(word);
}

void Store(const Command& command, const char* action) {
  oxk::World::GetWorld()->GetPreferences()->SetString(command.key, command.ActionFor(action), false);
  oxk::World::GetWorld()->SaveAndApplyPreferences();
}

bool IsAdd(const Command& command, const char* action) { return std::strcmp(action, command.add) == 0; }

}  // namespace

const char* GetHighlightDefaultAction() { return Stored(kHighlight); }
void SetHighlightDefaultAction(const char* action) { Store(kHighlight, action); }
bool IsAddToHighlightsDefaultAction() { return IsAdd(kHighlight, GetHighlightDefaultAction()); }

const char* GetIsolateDefaultAction() { return Stored(kIsolate); }
void SetIsolateDefaultAction(const char* action) { Store(kIsolate, action); }
bool IsAddToIsolatesDefaultAction() { return IsAdd(kIsolate, GetIsolateDefaultAction()); }

}  // namespace oxecad_ui
