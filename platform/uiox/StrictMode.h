/// \file
/// Watches over the rules of the wire that a forgiving toolkit would not notice.
#ifndef OXECAD_UIOX_STRICTMODE_H
#define OXECAD_UIOX_STRICTMODE_H

#include <uiox/Call.h>
#include <uiox/Export.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace uiox {

/// While it lives, the built-in toolkit keeps books and lends nothing for longer than it promises. For tests. Of
/// several the newest watches and the others rest.
///
/// Faults, told at once:
///  - a list of codes that is wrong in itself: an unknown code, a missing end;
///  - a release of what operation 2202 did not hand out, under another attribute, with another count or at another
///    address, or a second time; a `relmem` of what is no pixel block. Such a release is refused and frees nothing.
///
/// Leftovers, told at the end unless they are expected: copies and pixel blocks that were not released, callbacks that
/// are still registered (but for `ui_exit_device`, which is the toolkit's own), devices that a call has shown and none
/// has hidden again. A `Suite::Reset` sets down those that it makes an end to; what a `Suite::DestroyDevice` ends is no
/// leftover.
///
/// Answers that stay the toolkit's are given as copies of its own, which are overwritten and freed as soon as they need
/// not be good any more, so that a later look at them is found: texts and names at the next call that may change
/// anything, or when the user does something; the children of a node at the next change below it; the selection at the
/// next change of it.
class OXECAD_UIOX_API StrictMode {
 public:
  /// Takes one line that says what is wrong.
  using Report = std::function<void(const std::string&)>;

  /// `report` is called with each fault, and at the end with each unexpected leftover.
  explicit StrictMode(Report report);
  ~StrictMode();
  StrictMode(const StrictMode&) = delete;
  StrictMode& operator=(const StrictMode&) = delete;

  /// What is left now, one line each, sorted:
  ///     copy 2 of do_operation dev:tree GetNode "n1" | Label
  ///     pixels of global_do_operation LoadImage "color_square.png"
  ///     callback dev:field Input
  ///     device dlg
  std::vector<std::string> Leftovers() const;
  /// A leftover that is no fault, as `Leftovers` writes it; once for each.
  void Expect(std::string leftover);
  /// How many faults were told so far; leftovers are not counted.
  std::size_t Faults() const;

  /// The one that lives, or null.
  static StrictMode* Current();
  /// For the built-in toolkit: answers a call between the checks.
  int Handle(Call& call, int (*answer)(Call&));
  /// For the suite: everything is about to go.
  void BeforeReset();

 private:
  struct Books;
  std::shared_ptr<Books> books_;
  StrictMode* const before_;
};

}  // namespace uiox

#endif
