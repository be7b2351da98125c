#include <uiox/Actions.h>

#include <algorithm>

namespace uiox {

struct ActionTable::List {
  struct Entry {
    Action action;
    std::uint64_t serial;
  };
  std::vector<Entry> entries;
  std::uint64_t last_serial = 0;

  bool Has(std::uint64_t serial) const {
    return std::any_of(entries.begin(), entries.end(), [&](const Entry& entry) { return entry.serial == serial; });
  }
};

ActionTable::ActionTable() = default;

ActionTable::~ActionTable() {
  // A run that is under way holds the list; what it has not called yet must not be called any more.
  if (list_) list_->entries.clear();
}

void ActionTable::Add(const Action& action) {
  if (!list_) list_ = std::make_shared<List>();
  list_->entries.push_back({action, list_->last_serial + 1});
  ++list_->last_serial;
}

void ActionTable::Set(const Action& action) {
  Add(action);
  std::erase_if(list_->entries, [&](const List::Entry& entry) {
    return entry.action.reason == action.reason && entry.serial != list_->last_serial;
  });
}

bool ActionTable::Remove(int reason, ui_callback callback) {
  if (!list_) return false;
  const auto found = std::find_if(list_->entries.begin(), list_->entries.end(), [&](const List::Entry& entry) {
    return entry.action.reason == reason && entry.action.callback == callback;
  });
  if (found == list_->entries.end()) return false;
  list_->entries.erase(found);
  return true;
}

std::size_t ActionTable::Count(int reason) const {
  if (!list_) return 0;
  return static_cast<std::size_t>(
      std::count_if(list_->entries.begin(), list_->entries.end(),
                    [&](const List::Entry& entry) { return entry.action.reason == reason; }));
}

std::vector<Action> ActionTable::All() const {
  std::vector<Action> actions;
  if (list_) {
    for (const List::Entry& entry : list_->entries) actions.push_back(entry.action);
  }
  return actions;
}

std::size_t ActionTable::Call(int reason) const {
  const std::shared_ptr<List> list = list_;
  if (!list) return 0;
  std::vector<List::Entry> due;
  for (const List::Entry& entry : list->entries) {
    if (entry.action.reason == reason) due.push_back(entry);
  }
  std::size_t called = 0;
  for (const List::Entry& entry : due) {
    if (!list->Has(entry.serial)) continue;
    entry.action.callback(entry.action.client_data, entry.action.value);
    ++called;
  }
  return called;
}

}  // namespace uiox
