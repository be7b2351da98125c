/// \file
/// The languages of the program.
#ifndef OXECAD_VIEWER_WINDOW_LANGUAGES_H
#define OXECAD_VIEWER_WINDOW_LANGUAGES_H

#include <QHash>
#include <QString>
#include <QTranslator>

#include <memory>
#include <string>
#include <string_view>

namespace oxviewer {

/// Translates by a table of texts, whatever their context. A text that the table does not have stays as it is.
class TableTranslator : public QTranslator {
 public:
  /// `table`: a JSON object whose names are the English texts.
  explicit TableTranslator(std::string_view table);

  bool isEmpty() const override { return texts_.isEmpty(); }
  QString translate(const char* context, const char* text, const char* disambiguation, int n) const override;
  bool Has(const QString& text) const { return texts_.contains(text); }

 private:
  QHash<QString, QString> texts_;
};

/// The translator into a language ("de"); null for English, in which all texts are written, and for any other language.
/// "system" is the language of the user's desktop.
std::unique_ptr<TableTranslator> TranslatorFor(const std::string& language);

/// Puts the program's texts in a language from now on; windows are sent an event of it. Names as for `TranslatorFor`.
/// There must be an application, to which the translator belongs.
void UseLanguage(const std::string& language);

/// A text of a resource in the program's language.
std::string TranslatedResourceText(const std::string& text);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_LANGUAGES_H
