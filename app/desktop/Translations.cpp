#include "app/desktop/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

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

}  // namespace

void InstallTranslations() {
  static QTranslator toolkit;
  static QTranslator program;
  QCoreApplication::removeTranslator(&toolkit);
  QCoreApplication::removeTranslator(&program);
  const bool isChinese = SystemLanguageId() == kChineseSimplified;
  const QLocale locale = isChinese ? QLocale(QLocale::Chinese, QLocale::China)
                                   : QLocale(QLocale::English, QLocale::UnitedStates);
  QLocale::setDefault(locale);
  if (toolkit.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&toolkit);
  }
  // The English texts are in the sources.
  if (isChinese && program.load(QStringLiteral(":/advanced-control_zh_CN.qm"))) {
    QCoreApplication::installTranslator(&program);
  }
}
