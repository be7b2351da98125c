#ifndef OXECAD_VIEWER_BOARD_SEXPRLEXER_H
#define OXECAD_VIEWER_BOARD_SEXPRLEXER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace oxviewer {

/// What stopped the reading of a text, and at which byte. Thrown inside the reader only; its interface turns it into a
/// ReadError.
struct SyntaxError {
  std::size_t offset;
  std::string message;
};

/// One event of an S-expression: a list opens or closes, a name or number or quoted text, or the text has ended.
struct Token {
  enum class Kind : std::uint8_t { Open, Close, Atom, End };
  Kind kind = Kind::End;
  bool quoted = false;
  std::size_t offset = 0;  ///< of its first byte in the text
  std::string_view text;   ///< of an atom, escapes resolved; good until the next token is read
};

/// Cuts a text into tokens, one at a time and in one pass; knows nothing of boards.
///
/// Lists may nest as deep as the limit says: the depth is a counter and a list of offsets, never the call stack. A line
/// whose first character is '#' is a comment. The text is borrowed and must outlive the lexer.
class SexprLexer {
 public:
  SexprLexer(std::string_view text, std::uint32_t maxNesting, std::uint32_t maxStringBytes);

  /// Reads the next token. Throws SyntaxError for a closing parenthesis too many, an end of the text within a list or
  /// within quotes, a NUL byte, and where a limit is passed. After the end it gives End again.
  Token Next();

  /// How many lists are open.
  std::size_t Depth() const { return open_.size(); }

  std::string_view Text() const { return text_; }

 private:
  void SkipBlanksAndComments();
  Token Quoted();
  Token Plain();
  std::size_t ClosingQuote(bool& escaped);
  void Unescape(std::string_view raw, std::size_t offset);
  [[noreturn]] void FailAtEnd() const;

  std::string_view text_;
  std::size_t at_ = 0;
  std::uint32_t maxNesting_;
  std::uint32_t maxStringBytes_;
  std::vector<std::size_t> open_;  // offset of each open parenthesis
  std::string unescaped_;
};

/// Line and column of a byte of a text, both from 1; the column counts characters of UTF-8.
struct TextPlace {
  int line;
  int column;
};
TextPlace PlaceOf(std::string_view text, std::size_t offset);

/// The token as an error message names it: `"abc"`, `"("` or `the end of the file`. Long texts are cut.
std::string Described(const Token& token);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_SEXPRLEXER_H
