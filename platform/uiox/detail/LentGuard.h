/// \file
/// Lends answers for exactly as long as they must be good.
#ifndef OXECAD_UIOX_DETAIL_LENTGUARD_H
#define OXECAD_UIOX_DETAIL_LENTGUARD_H

#include <uiox/Call.h>
#include <uiox/Suite.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace uiox::detail {

/// Puts copies in the place of answers that stay the toolkit's, and overwrites and frees them in time.
class LentGuard {
 public:
  LentGuard() = default;
  ~LentGuard() { EndAll(); }
  LentGuard(const LentGuard&) = delete;
  LentGuard& operator=(const LentGuard&) = delete;

  /// Whether a call only reads, so that every answer stays good.
  static bool OnlyReads(const Call& call);
  /// Around a call that may change something. What the caller hands back as an argument is good until the call is over,
  /// everything else that the call may take away ends before it.
  class ChangeScope {
   public:
    ChangeScope(LentGuard& guard, const Call& change);
    ~ChangeScope();
    ChangeScope(const ChangeScope&) = delete;
    ChangeScope& operator=(const ChangeScope&) = delete;

   private:
    LentGuard& guard_;
    const std::uint64_t deferred_;
  };
  /// After a successful call: replaces what it answered.
  void Replace(const Call& call);
  /// All of them, as when the user does something.
  void EndAll() noexcept;

 private:
  enum class Until { AnyChange, ChangeBelow, ChangeOfSelection };
  struct Loan {
    void* block;
    std::size_t bytes;
    Until until;
    std::string device;
    std::string tree;
    std::string node;
    std::uint64_t ends_with = 0;  // the call under way that it was given to; 0: none
  };

  static bool IsArgument(const Loan& loan, const Call& call);
  static bool IsOver(const Loan& loan, const Call& change);
  void LendText(const Call& call, const Option& option, std::size_t unit);
  void LendList(const Call& call, const Option& option);
  void Lend(const Call& call, void* block, std::size_t bytes, Until until);
  static void End(Loan& loan) noexcept;
  /// Ends those that a predicate accepts.
  template <class Predicate>
  void EndIf(Predicate is_over);

  std::vector<Loan> loans_;
  std::uint64_t last_change_ = 0;
};

}  // namespace uiox::detail

#endif
