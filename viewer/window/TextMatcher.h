/// \file
/// What a person types to find things by their names.
#ifndef OXECAD_VIEWER_WINDOW_TEXTMATCHER_H
#define OXECAD_VIEWER_WINDOW_TEXTMATCHER_H

#include <QRegularExpression>
#include <QString>

#include <string>
#include <string_view>

namespace oxviewer {

/// How a typed text is to be understood.
enum class SearchSyntax {
  Text,       ///< as it stands, anywhere in a name
  Wildcards,  ///< the whole name; "*" stands for any text, "?" for one character
  Expression  ///< a regular expression, found anywhere in a name
};

/// Finds names by a text in one syntax, letters in any case. Copies are independent; threads may share one.
class TextMatcher {
 public:
  TextMatcher() = default;
  TextMatcher(const QString& text, SearchSyntax syntax);

  /// Nothing was typed: every name matches.
  bool IsEmpty() const { return text_.isEmpty(); }
  /// What is wrong with the expression, for the user; empty when nothing is. A wrong expression matches nothing.
  QString Error() const;
  bool Matches(const QString& name) const;
  /// The same for the toolkit's labels; what is plain ASCII is searched where it stands.
  bool MatchesWide(std::wstring_view name) const;
  /// The same for UTF-8.
  bool MatchesUtf8(std::string_view name) const;

 private:
  QString text_;
  SearchSyntax syntax_ = SearchSyntax::Text;
  std::wstring folded_;  // in lower case; empty where it is not ASCII
  QRegularExpression expression_;
};

/// The word by which a syntax is remembered ("text", "wildcards", "expression").
const char* NameOf(SearchSyntax syntax);
/// Text for any other word.
SearchSyntax SyntaxNamed(std::string_view name);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_TEXTMATCHER_H
