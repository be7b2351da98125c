/// \file
/// What was handed out and has to come back.
#ifndef OXECAD_UIOX_DETAIL_STRICTLEDGER_H
#define OXECAD_UIOX_DETAIL_STRICTLEDGER_H

#include <uiox/Call.h>

#include <map>
#include <string>
#include <vector>

namespace uiox::detail {

/// Copies of operation 2202 by their addresses, and pixel blocks.
class StrictLedger {
 public:
  /// After a successful `GetNode` or `LoadImage`.
  void EnterCopies(const Call& get_node);
  void EnterPixels(const Call& load_image);
  /// Before a `ui_free` or `relmem`: what is wrong with it, or an empty text, and then it is crossed out.
  std::string Return(const Call& free);
  std::string ReturnPixels(const Call& relmem);
  void AppendLeft(std::vector<std::string>& lines) const;

 private:
  struct Copy {
    int attribute;
    int count;  // of a list; -1: a text
    std::string call;
  };
  std::map<const void*, Copy> copies_;
  std::map<const void*, std::string> pixels_;
};

}  // namespace uiox::detail

#endif
