#ifndef OXECAD_VIEWER_BOARD_SEXPRCURSOR_H
#define OXECAD_VIEWER_BOARD_SEXPRCURSOR_H

#include <viewer/board/Board.h>
#include <viewer/board/SexprLexer.h>

#include <optional>
#include <string_view>

namespace oxviewer {

/// Walks the lists of an S-expression in the order of the text:
///
///     while (cursor.NextChild()) {            // each list directly inside the current one
///       if (cursor.Keyword() == "size") { size = cursor.ReadSize(); }
///       cursor.Leave();                       // whatever of it was not read is skipped
///     }
///
/// Bare words between the lists are passed over by NextChild and read by TryAtom. Everything throws SyntaxError.
class SexprCursor {
 public:
  explicit SexprCursor(SexprLexer lexer) : lexer_(std::move(lexer)) {}

  /// Steps into the outermost list, which must begin with `keyword`.
  void EnterRoot(std::string_view keyword);

  /// Demands that nothing follows the outermost list.
  void ExpectEnd();

  /// Steps into the next list inside the current one. False at the current list's end, which is left unread.
  bool NextChild();

  /// First word of the list stepped into last, empty for a list without one. Good until the next NextChild.
  std::string_view Keyword() const { return keyword_; }

  /// Where that list begins.
  std::size_t Offset() const { return offset_; }

  /// Skips to the end of the current list, nested ones included, and steps out of it.
  void Leave();

  /// The next word of the current list, or nothing when a list or the end comes first. The text is good until the next
  /// token is read; `quoted`, if given, tells whether it stood in quotes.
  std::optional<std::string_view> TryAtom(bool* quoted = nullptr);

  /// The same where a word must stand; `what` names it in the error.
  std::string_view Atom(std::string_view what, bool* quoted = nullptr);

  /// Whether the next token is a word, or this word; reads nothing.
  bool AtomFollows() { return Peek().kind == Token::Kind::Atom; }
  bool WordFollows(std::string_view word) { return AtomFollows() && Peek().text == word; }

  /// A number of any spelling, finite.
  double ReadNumber();

  /// A number of millimetres, rounded to whole nanometres after its range has been checked.
  Nm ReadLength();
  Point ReadPoint();
  Size ReadSize();

  /// A number of degrees, brought to 0 ... 360.
  MicroDegrees ReadAngle();

  /// "yes", "true", or no word at all (the list's presence says it) are true.
  bool ReadFlag();

  [[noreturn]] void Fail(std::size_t offset, std::string message) const;

 private:
  const Token& Peek();
  Token Take();

  SexprLexer lexer_;
  Token ahead_;
  bool hasAhead_ = false;
  std::string keyword_;
  std::size_t offset_ = 0;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_SEXPRCURSOR_H
