#include "app/profiles/Translations.h"

#include <span>
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

// Texts that some of Qt's own translations lack.
[[maybe_unused]] constexpr struct {
  const char* source;
  const char* comment;
} kFileDialogTexts[] = {
    QT_TRANSLATE_NOOP3("QAbstractFileIconProvider", "Drive", "All other platforms"),
    QT_TRANSLATE_NOOP3("QAbstractFileIconProvider", "Folder", "All other platforms"),
};
[[maybe_unused]] constexpr const char* kCommandLineTexts[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Usage: %1"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "[options]"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Options:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays version information."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'."),
};

/// The folder with a file for each language; empty if there is none.
QString TranslationsFolder(std::span<const std::string> folders) {
  for (const std::string& folder : folders) {
    QString found = QString::fromStdString(folder) + QStringLiteral("/translations");
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
  InstallTranslations(languageId, CatalogFolders());
}

void InstallTranslations(std::uint32_t languageId, std::span<const std::string> folders) {
  static QTranslator english;  // its plurals
  static QTranslator toolkit;
  static QTranslator program;
  for (QTranslator* const installed : {&english, &toolkit, &program}) {
    QCoreApplication::removeTranslator(installed);
  }
  const QLocale locale(QString::fromStdString(LocaleOf(languageId)));
  QLocale::setDefault(locale);
  const QString folder = TranslationsFolder(folders);
  const auto install = [](QTranslator& translator, const QString& name, const QString& place) {
    if (translator.load(name, place)) QCoreApplication::installTranslator(&translator);
  };
  install(english, QStringLiteral("en"), folder);
  if (languageId == kEnglishUnitedStates) return;
  const auto name = FileNameOf(folder, languageId);
  // A region without a file of its own takes the same language's from Qt as from the program.
  const QString place = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  install(toolkit, QStringLiteral("qtbase_") + name.value_or(locale.name()), place);
  if (name) install(program, *name, folder);
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
