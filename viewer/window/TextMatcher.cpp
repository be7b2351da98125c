#include <viewer/window/TextMatcher.h>

#include <algorithm>

#include <uiox_qt/Text.h>

namespace oxviewer {
namespace {

// Wildcards are no paths: "/" and "[" are characters like others.
QString ExpressionOf(const QString& wildcards) {
  QString expression = QStringLiteral("\\A");
  for (const QChar c : wildcards) {
    if (c == u'*') {
      expression += QStringLiteral(".*");
    } else if (c == u'?') {
      expression += u'.';
    } else {
      expression += QRegularExpression::escape(QString(c));
    }
  }
  return expression + QStringLiteral("\\z");
}

constexpr wchar_t kFirstBeyondAscii = 0x80;

wchar_t Folded(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }

bool IsAscii(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), [](wchar_t c) { return c < kFirstBeyondAscii; });
}

}  // namespace

TextMatcher::TextMatcher(const QString& text, SearchSyntax syntax) : text_(text), syntax_(syntax) {
  const std::wstring wide = uiox_qt::ToWide(text);
  if (syntax == SearchSyntax::Text && IsAscii(wide)) {
    for (const wchar_t c : wide) folded_ += Folded(c);
  }
  if (syntax == SearchSyntax::Text || text.isEmpty()) return;
  expression_.setPatternOptions(QRegularExpression::CaseInsensitiveOption |
                                QRegularExpression::DotMatchesEverythingOption);
  expression_.setPattern(syntax == SearchSyntax::Wildcards ? ExpressionOf(text) : text);
  if (expression_.isValid()) expression_.optimize();
}

QString TextMatcher::Error() const {
  if (syntax_ == SearchSyntax::Text || expression_.isValid()) return {};
  return expression_.errorString();
}

bool TextMatcher::Matches(const QString& name) const {
  if (text_.isEmpty()) return true;
  if (syntax_ == SearchSyntax::Text) return name.contains(text_, Qt::CaseInsensitive);
  return expression_.isValid() && expression_.match(name).hasMatch();
}

bool TextMatcher::MatchesWide(std::wstring_view name) const {
  if (folded_.empty() || !IsAscii(name)) return Matches(uiox_qt::FromWide(name));
  return std::search(name.begin(), name.end(), folded_.begin(), folded_.end(),
                     [](wchar_t a, wchar_t b) { return Folded(a) == b; }) != name.end();
}

bool TextMatcher::MatchesUtf8(std::string_view name) const {
  return Matches(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

const char* NameOf(SearchSyntax syntax) {
  switch (syntax) {
    case SearchSyntax::Wildcards:
      return "wildcards";
    case SearchSyntax::Expression:
      return "expression";
    case SearchSyntax::Text:
      break;
  }
  return "text";
}

SearchSyntax SyntaxNamed(std::string_view name) {
  for (const SearchSyntax syntax : {SearchSyntax::Wildcards, SearchSyntax::Expression}) {
    if (name == NameOf(syntax)) return syntax;
  }
  return SearchSyntax::Text;
}

}  // namespace oxviewer
