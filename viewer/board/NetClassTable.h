#ifndef OXECAD_VIEWER_BOARD_NETCLASSTABLE_H
#define OXECAD_VIEWER_BOARD_NETCLASSTABLE_H

#include <viewer/board/Board.h>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace oxviewer {

/// What a board or project file says about net classes, before it is known which nets there are.
class NetClassTable {
 public:
  /// Declares a class; each name counts once.
  void Add(std::string_view className);

  /// Puts one net into a class; the first word on a net holds.
  void Assign(std::string_view net, std::string_view className);

  /// Puts the nets that are assigned to no class and covered by `pattern` into one; earlier patterns come first.
  /// `offset` is where the text says so.
  void AddPattern(std::string pattern, std::string className, std::size_t offset);

  bool empty() const { return classes_.empty() && assignments_.empty() && patterns_.empty(); }

  /// Gives the board its classes and its nets theirs: "Default", the first, unless something else was said. Classes
  /// that are not declared count as "Default".
  void Apply(Board& board) const;

  /// The same, but gives up, with the board unchanged, once `steps` characters have been compared for the patterns.
  /// Returns where the text states the pattern at which this happened, or `kDone`.
  static constexpr std::size_t kDone = static_cast<std::size_t>(-1);
  std::size_t Apply(Board& board, std::uint64_t steps) const;

 private:
  struct Pattern {
    std::string text;
    std::string className;
    std::size_t offset;
  };

  std::vector<std::string> classes_;
  std::map<std::string, std::string> assignments_;
  std::vector<Pattern> patterns_;
};

/// Whether `pattern` covers all of `text`: "*" stands for any characters, "?" for one, everything else for itself,
/// upper and lower case apart. Each comparison takes one from `steps`; at 0 the answer is false.
bool MatchesPattern(std::string_view text, std::string_view pattern, std::uint64_t& steps);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_NETCLASSTABLE_H
