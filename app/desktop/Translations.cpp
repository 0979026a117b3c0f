#include "app/desktop/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"

namespace {

// Texts that Qt's own translation lacks.
[[maybe_unused]] constexpr struct {
  const char* source;
  const char* comment;
} kFileDialogTexts[] = {
    QT_TRANSLATE_NOOP3("QAbstractFileIconProvider", "Drive", "All other platforms"),
    QT_TRANSLATE_NOOP3("QAbstractFileIconProvider", "Folder", "All other platforms"),
};

}  // namespace

void InstallTranslations() {
  static QTranslator toolkit;
  static QTranslator program;
  QCoreApplication::removeTranslator(&toolkit);
  QCoreApplication::removeTranslator(&program);
  const QLocale locale(QString::fromStdString(LocaleOf(ShownLanguageId())));
  QLocale::setDefault(locale);
  if (toolkit.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&toolkit);
  }
  // The English texts are in the sources.
  if (program.load(locale, QStringLiteral("advanced-control"), QStringLiteral("_"),
                   QStringLiteral(":/"))) {
    QCoreApplication::installTranslator(&program);
  }
}
