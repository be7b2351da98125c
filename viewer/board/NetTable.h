#ifndef OXECAD_VIEWER_BOARD_NETTABLE_H
#define OXECAD_VIEWER_BOARD_NETTABLE_H

#include <viewer/board/Board.h>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace oxviewer {

/// The nets of a board while it is read. Files up to version 9 number them, in a table or where an item names both;
/// newer ones name them only. A number may be used before its name is known: such a net stands under a provisional id
/// until Finish.
class NetTable {
 public:
  /// The net of that name; kNoNet for the empty name.
  NetId ByName(std::string_view name);

  /// The net of that number; kNoNet for 0 and less.
  NetId ByNumber(std::int64_t number);

  /// Binds a number to a name; the empty name makes the number stand for no net. False when the number has another name
  /// already; the first one is then kept.
  bool Bind(std::int64_t number, std::string_view name);

  std::size_t size() const { return entries_.size(); }

  /// Closes the table. A number that nothing names becomes a net named by its digits: it is all that is known of it.
  /// `finalIds[id]` is what every id handed out so far has become.
  std::vector<Net> Finish(std::vector<NetId>& finalIds);

 private:
  struct Entry {
    std::string name;         // empty as long as only the number is known
    std::int64_t number = 0;  // of an entry that began without a name
    NetId sameAs = kNoNet;    // the entry that had the name already
    bool nothing = false;     // the number of the empty name
  };

  NetId Add(Entry entry);

  std::vector<Entry> entries_;
  // Ordered, so that no choice of names or numbers in a file makes a search slow.
  std::map<std::string, NetId, std::less<>> byName_;
  std::map<std::int64_t, NetId> byNumber_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_NETTABLE_H
