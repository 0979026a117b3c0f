// The dialog in the languages that the build makes from English: each text between brackets is from
// the catalog, and each text with both brackets is whole.

#include <QComboBox>
#include <QFile>
#include <QRegularExpression>

#include "i18n/Catalog.h"
#include "pages/common/NumberQuestion.h"
#include "tests/pages/EachPage.h"

namespace {

// Texts that are the same in every language: names of signals, the model's own names, and what the
// templates of some pages show without the catalog.
QStringList Untranslated() {
  QFile texts(TEST_SOURCE_DIR "/pages/UntranslatedTexts.txt");
  EXPECT_TRUE(texts.open(QFile::ReadOnly));
  return QString::fromUtf8(texts.readAll()).split('\n', Qt::SkipEmptyParts);
}

// Without what is in brackets and without the letter of a mnemonic, "[...](&C)".
bool IsTranslated(QString text) {
  static const QRegularExpression known(QStringLiteral("\\[[^\\]]*\\]|\\(&.\\)"));
  text.remove(known);
  if (text.endsWith(':')) text.chop(1);
  static const QStringList untranslated = Untranslated();
  return untranslated.contains(text) ||
         std::ranges::none_of(text, [](QChar character) { return character.isLetter(); });
}

void ExpectTranslated(const QWidget& window) {
  EXPECT_TRUE(IsTranslated(window.windowTitle())) << window.windowTitle().toStdString();
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    QStringList texts{widget->toolTip(), widget->accessibleName(),
                      widget->property("text").toString()};
    if (const auto* list = qobject_cast<const QComboBox*>(widget))
      for (int i = 0; i < list->count(); ++i) texts += list->itemText(i);
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
      for (int i = 0; i < tabs->count(); ++i) texts += tabs->tabText(i);
    for (const QString& text : texts)
      EXPECT_TRUE(IsTranslated(text)) << NameOf(*widget) << ": " << text.toStdString();
  }
}

struct PseudoLanguageTest : testing::Test {
  ~PseudoLanguageTest() override { Load("en_US.UTF-8", TEST_CATALOG_DIR); }

  static void Load(const char* locale, const std::string& folder) {
    qputenv("LC_ALL", locale);
    EXPECT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
  }
};

TEST_F(PseudoLanguageTest, EveryTextOfEveryPageAndPopUpIsFromTheCatalog) {
  Load("qps-ploc", TEST_PSEUDO_DIR);
  ForEachPage([](OpenDialog& open, CTabPage&) { ExpectTranslated(open.Dialog()); });
  ForEachPopup(ExpectTranslated);
  NumberQuestion question({}, {.minimum = 0, .maximum = 9}, 3, nullptr);
  question.show();
  ExpectTranslated(question);
}

TEST_F(PseudoLanguageTest, TheMirroredLanguageTurnsTheDialogAround) {
  for (const char* locale : {"qps-plocm", "qps-ploc"}) {
    Load(locale, TEST_PSEUDO_DIR);
    const bool isMirrored = std::string(locale) == "qps-plocm";
    OpenDialog open(FullModel(5, 30), 1);
    EXPECT_EQ(open.Page().isRightToLeft(), isMirrored);
    EXPECT_EQ(open.Page().GetDlgItem(20134)->x() > open.Page().GetDlgItem(20135)->x(), isMirrored);
  }
}

}  // namespace
