#include <viewer/trees/Panels.h>
#include <viewer/window/Languages.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace oxviewer {

TableTranslator::TableTranslator(std::string_view table) {
  const QByteArray json(table.data(), static_cast<qsizetype>(table.size()));
  const QJsonObject texts = QJsonDocument::fromJson(json).object();
  for (auto text = texts.begin(); text != texts.end(); ++text) texts_.insert(text.key(), text->toString());
}

QString TableTranslator::translate(const char* /*context*/, const char* text, const char* /*disambiguation*/,
                                   int /*n*/) const {
  return texts_.value(QString::fromUtf8(text));
}

std::unique_ptr<TableTranslator> TranslatorFor(const std::string& language) {
  const bool german = language == "de" || (language == "system" && QLocale::system().language() == QLocale::German);
  if (!german) return nullptr;
  return std::make_unique<TableTranslator>(EmbeddedResource("language-de.json"));
}

void UseLanguage(const std::string& language) {
  QCoreApplication* const application = QCoreApplication::instance();
  const QString name = QStringLiteral("oxviewer.language");
  if (auto* former = application->findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly)) {
    QCoreApplication::removeTranslator(former);
    delete former;
  }
  std::unique_ptr<TableTranslator> translator = TranslatorFor(language);
  if (!translator) return;
  translator->setObjectName(name);
  translator->setParent(application);
  QCoreApplication::installTranslator(translator.release());
}

std::string TranslatedResourceText(const std::string& text) {
  return QCoreApplication::translate("resources", text.c_str()).toStdString();
}

}  // namespace oxviewer
