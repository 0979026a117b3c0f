#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include "i18n/Catalog.h"
#include "i18n/LocalizeControlTexts.h"

namespace {

QString Localized(const char* caption) {
  QDialog dialog;
  QLabel label(QString::fromUtf8(caption), &dialog);
  LocalizeControlTexts(4, dialog);
  return label.text();
}

TEST(LocalizeControlTexts, ReplacesCaptionsThatParse) {
  for (const char* caption : {"73;Brightness\t:", "  73;x", "+73; \t x"})
    EXPECT_EQ(Localized(caption), QStringLiteral("Brightness"));
  EXPECT_EQ(Localized("64999;x"), QStringLiteral("No Message Catalog"));
  for (const char* kept : {"12;", "12; \t", "Brightness", ";x", "a73;x", "+;x", "+-73;x", "73 ;x",
                           "73.5;x", "", ":", "99999999999999;x"}) {
    EXPECT_EQ(Localized(kept), QString::fromUtf8(kept));
  }
}

TEST(LocalizeControlTexts, LocalizesOnlyTheDialogAndItsDirectChildren) {
  QDialog dialog;
  dialog.setWindowTitle(QStringLiteral("28;Gamma -Custom-"));
  QPushButton button(QStringLiteral("27;Close"), &dialog);
  QLineEdit field(QStringLiteral("27;Close"), &dialog);
  QWidget group(&dialog);
  QLabel nested(QStringLiteral("27;Close"), &group);
  LocalizeControlTexts(4, dialog);
  EXPECT_FALSE(dialog.windowTitle().contains(QLatin1Char(';')));
  EXPECT_EQ(button.text(), QStringLiteral("Close"));
  EXPECT_EQ(field.text(), QStringLiteral("27;Close")) << "content is no caption";
  EXPECT_EQ(nested.text(), QStringLiteral("27;Close"));
}

TEST(LocalizeControlTexts, KeepsTheTemplateTextsWithoutACatalog) {
  ReleaseCatalog();
  EXPECT_EQ(Localized("73;Brightness\t:"), QStringLiteral("73;Brightness\t:"));
  EXPECT_EQ(CatalogString(4, 73), QStringLiteral("No Message Catalog"));
  ASSERT_EQ(LoadCatalog(), 0);
}

}  // namespace
