/// \file
/// Answers that a test writes down for the toolkit's calls.
#ifndef OXECAD_TESTS_SUPPORT_SCRIPT_H
#define OXECAD_TESTS_SUPPORT_SCRIPT_H

#include <uiox/Call.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace test_support {

/// A value that the toolkit answers.
struct NullText {};
/// Names in order; an empty `optional` is a null name.
using NameList = std::vector<std::optional<std::string>>;
/// A count without an array.
struct NullArray {
  int count;
};
using AnswerValue = std::variant<std::intptr_t, std::string, std::wstring, NullText, NameList, NullArray>;

/// Which calls a rule is for. Made by `Doing`, `Retrieving` and their kin; all conditions that are set must hold.
struct Match {
  uiox::Function function;
  std::optional<int> code;           ///< operation, reason, kind, selector
  std::optional<std::string> first;  ///< the first positional text (the node; of 2331 the sibling, see `second`)
  std::optional<std::string> second;
  std::optional<std::string> component;
  std::vector<int> options;  ///< option codes that the call must have

  Match& With(int option) { return options.push_back(option), *this; }
  Match& Second(std::string text) { return second = std::move(text), *this; }
  Match& On(std::string name) { return component = std::move(name), *this; }
  bool Fits(const uiox::Call& call) const;
};

inline Match Calling(uiox::Function function) { return {function, {}, {}, {}, {}, {}}; }
inline Match Doing(int operation) { return {uiox::Function::DoOperation, operation, {}, {}, {}, {}}; }
inline Match Doing(int operation, std::string node) {
  return {uiox::Function::DoOperation, operation, std::move(node), {}, {}, {}};
}
inline Match Retrieving(int attribute) { return {uiox::Function::Retrieve, {}, {}, {}, {}, {attribute}}; }
inline Match Modifying(int attribute) { return {uiox::Function::Modify, {}, {}, {}, {}, {attribute}}; }
inline Match Inquiring(int code) { return {uiox::Function::GlobalInquire, {}, {}, {}, {}, {code}}; }
inline Match DoingGlobally(int operation) { return {uiox::Function::GlobalDoOperation, operation, {}, {}, {}, {}}; }
inline Match Freeing(int attribute) { return {uiox::Function::Free, {}, {}, {}, {}, {attribute}}; }

/// What to answer. A rule without `Give…` leaves every out-value as it is; without `Refuse` or `Result` it succeeds.
class Rule {
 public:
  explicit Rule(Match match) : match_(std::move(match)) {}

  /// Fails with this result. Out-values are left alone unless `Scribble` says otherwise.
  Rule& Refuse(int result = 1) { return Result(result); }
  /// Gives this result, whatever it means.
  Rule& Result(int result) { return result_ = result, *this; }
  /// Writes an option's answer: a text, a wide text, a number, a pointer, null, or a list of names.
  Rule& Give(int option, const char* text) {
    return Set(option, text ? AnswerValue(std::string(text)) : AnswerValue(NullText{}));
  }
  Rule& Give(int option, const wchar_t* text) { return Set(option, std::wstring(text)); }
  Rule& Give(int option, std::nullptr_t) { return Set(option, NullText{}); }
  Rule& Give(int option, int number) { return Set(option, std::intptr_t{number}); }
  Rule& Give(int option, unsigned number) { return Set(option, static_cast<std::intptr_t>(number)); }
  Rule& Give(int option, void* pointer) { return Set(option, reinterpret_cast<std::intptr_t>(pointer)); }
  Rule& Give(int option, std::initializer_list<const char*> names);
  Rule& Give(int option, std::vector<std::string> names);
  Rule& GiveNullArray(int option, int count) { return Set(option, NullArray{count}); }
  /// Writes the positional answers in their order (2003, 2005, 2243) and the address of a balloon's style.
  Rule& GiveInOrder(std::vector<std::intptr_t> values) { return in_order_ = std::move(values), *this; }
  /// Writes garbage into every out-value, also when the call fails: pointers that nobody may follow, wild counts.
  Rule& Scribble() { return scribble_ = true, *this; }
  /// Holds for this many calls; later ones go to older rules.
  Rule& Times(int times) { return left_ = times, *this; }
  Rule& Once() { return Times(1); }
  /// Is run before anything is answered.
  Rule& Run(std::function<void(const uiox::Call&)> action) { return action_ = std::move(action), *this; }

 private:
  friend class Script;
  Rule& Set(int option, AnswerValue value);

  Match match_;
  std::optional<int> result_;
  std::vector<std::pair<int, AnswerValue>> values_;
  std::vector<std::intptr_t> in_order_;
  bool scribble_ = false;
  int left_ = -1;
  std::function<void(const uiox::Call&)> action_;
};

/// The rules, newest first, and the memory of what they answer.
///
/// What 2202 gives is a block of its own for each text, each array and each name, and lives until it is released. What
/// other calls give lives until the next call that changes the shape of a tree (2029 to 2032, 2331): whoever keeps it
/// longer reads freed memory, which the address sanitizer sees.
class Script {
 public:
  Rule& When(Match match);
  /// Answers by the newest rule that fits; false when none does.
  bool Answer(const uiox::Call& call, int& result);
  /// Frees what `ui_free` names when it came from here; false when it did not.
  bool Release(const uiox::Call& free);
  void ForgetRules() { rules_.clear(); }
  void EndLent() { lent_.clear(); }

  /// Writes garbage into every out-value of a call.
  static void Scribble(const uiox::Call& call);
  /// Answers every text with null, every list with `count` names and a null array, every number with 0.
  void GiveNulls(const uiox::Call& call, int count);
  /// Answers every list with `count` names that are all null; texts with null, numbers with 0.
  void GiveNullNames(const uiox::Call& call, int count);

 private:
  struct Block;
  void Fill(const uiox::Call& call, const uiox::Option& option, const AnswerValue& value);
  std::shared_ptr<Block> Text(const std::string& text);
  std::shared_ptr<Block> Wide(const std::wstring& text);
  std::shared_ptr<Block> Array(const NameList& names);
  void* Keep(const uiox::Call& call, std::shared_ptr<Block> block);

  std::list<Rule> rules_;
  std::unordered_map<const void*, std::shared_ptr<Block>> handed_out_;
  std::vector<std::shared_ptr<Block>> lent_;
};

}  // namespace test_support

#endif
