#include <optional>
#include <vector>

#include <QLocale>
#include <QString>

#include "i18n/CatalogLanguages.h"
#include "i18n/CatalogTexts.h"
#include "i18n/SystemLanguage.h"
#include "tests/support/Record.h"

namespace {

const std::vector<std::string> kFolders{TEST_CATALOG_DIR};

TEST(CatalogLanguages, AreThoseOfBothModules) {
  QStringList all;
  for (const CatalogLanguage& one : CatalogLanguages(kFolders)) {
    all << QString::fromStdString(one.tag + ' ' + one.name + ' ' + one.englishName);
  }
  EXPECT_EQ(all.size(), CATALOG_LANGUAGE_COUNT);
  EXPECT_TRUE(std::ranges::is_sorted(all));
  ExpectRecord(TEST_SOURCE_DIR "/i18n/Shipped.txt", all.join('\n').toStdString() + '\n');
}

TEST(CatalogLanguages, AreFoundByWhatPeopleCallThemAndHaveALocale) {
  const std::vector<CatalogLanguage> languages = CatalogLanguages(kFolders);
  ExpectAnswers(TEST_SOURCE_DIR "/i18n/Languages.txt", [&](const std::string& name) {
    if (name.starts_with("locale ")) {
      return LocaleOf(static_cast<std::uint32_t>(std::stoul(name.substr(7))));
    }
    const auto id = FindLanguage(languages, name);
    return id ? std::to_string(*id) : "none";
  });
  EXPECT_FALSE(FindLanguage(languages, "x\xFF"));
  EXPECT_FALSE(FindLanguage(std::span(languages).first(1), "zh-HK"));
  std::vector<CatalogLanguage> files = languages;
  for (CatalogLanguage& file : files) file.regions = {file.id};
  EXPECT_EQ(FindLanguage(files, "zh-SG"), kChineseSimplified) << "Singapore writes as China does";
  EXPECT_EQ(LocaleOf(kPseudo), "qps_PLOC.UTF-8");
  EXPECT_EQ(LocaleOf(kPseudoMirrored), "qps_PLOCM.UTF-8");
  EXPECT_TRUE(IsRightToLeft(kPseudoMirrored) && !IsRightToLeft(kPseudo));
}

// The captions of a language; those that it lacks are empty.
std::vector<std::optional<std::string>> Captions(const CatalogTexts& texts, std::uint32_t id) {
  std::vector<std::optional<std::string>> captions(400);
  for (int number = 0; auto& caption : captions) caption = texts.Find(id, 4, number++);
  return captions;
}

// What --language chooses becomes the system language, and every region has its language's texts.
TEST(CatalogLanguages, EveryRegionIsALocaleWithTheTextsOfItsLanguage) {
  constexpr std::uint32_t kTraditionalSort = 1034;  // of Spanish, with the locale of the modern one
  const CatalogTexts texts(kFolders);
  const std::vector<CatalogLanguage> languages = CatalogLanguages(kFolders);
  EXPECT_TRUE(texts.Find(1033, 4, 73));
  for (const CatalogLanguage& language : languages) {
    const auto captions = Captions(texts, language.id);
    const bool isMirrored =
        QLocale(QString::fromStdString(language.tag)).textDirection() == Qt::RightToLeft;
    for (const std::uint32_t id : language.regions) {
      EXPECT_EQ(Captions(texts, id), captions) << id;
      EXPECT_EQ(IsRightToLeft(id), isMirrored) << id;
      if (id == kTraditionalSort) continue;
      EXPECT_EQ(FindLanguage(languages, LocaleOf(id)), id) << LocaleOf(id);
    }
  }
}

}  // namespace
