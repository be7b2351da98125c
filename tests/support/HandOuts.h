/// \file
/// What operation 2202 handed out and has to come back through `ui_free`.
#ifndef OXECAD_TESTS_SUPPORT_HANDOUTS_H
#define OXECAD_TESTS_SUPPORT_HANDOUTS_H

#include <uiox/Call.h>

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace test_support {

/// Keeps the books: each thing that was handed out is released exactly once, with its attribute, its count and its
/// address. Nulls may be released at will.
class HandOuts {
 public:
  /// Enters what a successful 2202 answered; nulls and a count that was asked for alone are nothing to release.
  void Enter(const uiox::Call& get_node);
  /// Whether what a `ui_free` names may be read: null, or handed out with that count and not released.
  bool IsReadable(const uiox::Call& free) const;
  /// Crosses out what a `ui_free` names. Gives what is wrong with it, or an empty text.
  std::string Return(const uiox::Call& free);
  /// What has not come back, one line each.
  std::vector<std::string> Outstanding() const;
  std::size_t Releases() const { return releases_; }

 private:
  struct Entry {
    int attribute;
    int count;  // -1: a text
    std::string what;
  };
  std::map<const void*, Entry> entries_;
  std::size_t releases_ = 0;
};

}  // namespace test_support

#endif
