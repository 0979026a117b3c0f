#include "app/profiles/Translations.h"

#include <string>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"
#include "i18n/SystemLanguage.h"

namespace {

// Texts that Qt's own translation lacks.
[[maybe_unused]] constexpr struct {
  const char* source;
  const char* comment;
} kFileDialogTexts[] = {
    QT_TRANSLATE_NOOP3("QAbstractFileIconProvider", "Drive", "All other platforms"),
    QT_TRANSLATE_NOOP3("QAbstractFileIconProvider", "Folder", "All other platforms"),
};

/// The folder with a file for each language; empty if there is none.
QString TranslationsFolder() {
  for (const std::string& folder : CatalogFolders()) {
    const QString found = QString::fromStdString(folder) + QStringLiteral("/translations");
    if (!folder.empty() && QFileInfo::exists(found + QStringLiteral("/en.qm"))) return found;
  }
  return {};
}

/// The name of the file that has the language, such as "pt_BR" for Portuguese of Portugal.
std::optional<QString> FileNameOf(const QString& folder, std::uint32_t languageId) {
  std::vector<CatalogLanguage> languages;
  for (const QString& file : QDir(folder).entryList({QStringLiteral("*.qm")}, QDir::Files)) {
    const std::string name = file.chopped(3).toStdString();
    const auto id = LanguageIdOf(name);
    if (id) languages.push_back({*id, name, name, name, name, {*id}});
  }
  const auto found = FindLanguage(languages, std::to_string(languageId));
  for (const CatalogLanguage& language : languages) {
    if (found == language.id) return QString::fromStdString(language.locale);
  }
  return {};
}

}  // namespace

void InstallTranslations(std::uint32_t languageId) {
  static QTranslator english;  // its plurals
  static QTranslator toolkit;
  static QTranslator program;
  for (QTranslator* const installed : {&english, &toolkit, &program}) {
    QCoreApplication::removeTranslator(installed);
  }
  const QLocale locale(QString::fromStdString(LocaleOf(languageId)));
  QLocale::setDefault(locale);
  const QString folder = TranslationsFolder();
  const auto install = [](QTranslator& translator, const QString& name, const QString& place) {
    if (translator.load(name, place)) QCoreApplication::installTranslator(&translator);
  };
  install(english, QStringLiteral("en"), folder);
  if (languageId == kEnglishUnitedStates) return;
  if (toolkit.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&toolkit);
  }
  if (const auto name = FileNameOf(folder, languageId)) install(program, *name, folder);
}

std::optional<std::uint32_t> NamedLanguage(const QStringList& arguments) {
  const QString option = QStringLiteral("--language");
  QString named;
  for (qsizetype i = 0; i < arguments.size(); ++i) {
    if (i > 0 && arguments[i - 1] == option) named = arguments[i];
    if (arguments[i].startsWith(option + '=')) named = arguments[i].mid(option.size() + 1);
  }
  if (named.isEmpty()) return {};
  return FindLanguage(CatalogLanguages(CatalogFolders()), named.toStdString());
}
