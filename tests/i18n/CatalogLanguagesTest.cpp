#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <QLocale>
#include <QString>
#include <gtest/gtest.h>

#include "i18n/CatalogLanguages.h"
#include "i18n/CatalogTexts.h"
#include "i18n/SystemLanguage.h"

namespace {

const std::vector<std::string> kFolders{TEST_CATALOG_DIR};

TEST(CatalogLanguages, AreThoseOfBothModules) {
  QStringList all;
  for (const CatalogLanguage& one : CatalogLanguages(kFolders)) {
    all << QString::fromStdString(one.tag + ' ' + one.name + ' ' + one.englishName);
  }
  EXPECT_EQ(all.size(), CATALOG_LANGUAGE_COUNT);
  EXPECT_TRUE(std::ranges::is_sorted(all));
  const QString known =
      "cs Čeština Czech, de Deutsch German, en English English, es Español Spanish, "
      "fi Suomi Finnish, fr Français French, he עברית Hebrew, hu magyar Hungarian, "
      "it Italiano Italian, ja 日本語 Japanese, ko 한국어 Korean, nl Nederlands Dutch, "
      "pl polski Polish, pt Português Portuguese, ru Русский Russian, "
      "zh-CN 简体中文 Simplified Chinese, zh-TW 繁體中文 Traditional Chinese";
  for (const QString& one : known.split(", ")) EXPECT_TRUE(all.contains(one)) << one.toStdString();
}

TEST(CatalogLanguages, AreFoundByWhatPeopleCallThem) {
  const std::vector<CatalogLanguage> languages = CatalogLanguages(kFolders);
  const std::pair<std::uint32_t, std::vector<const char*>> kCases[] = {
      {1033, {"en", "1033", "English", "en-GB", "2057", "en_US.UTF-8"}},
      {1031, {"de", "DE", "de-DE", "German", "deutsch", "1031"}},
      {3079, {"de_AT", "de-AT.UTF-8@euro", "3079"}},
      {3084, {"fr-CA"}},
      {2058, {"es_MX"}},
      {1034, {"es", "64522"}},
      {2070, {"pt-PT"}},
      {1046, {"pt", "português", "pt-BR"}},
      {2052, {"zh", "zh-CN", "zh-Hans", "zh-SG", "2052", "简体中文"}},
      {1028, {"zh-TW", "zh-Hant", "64516", "traditional chinese"}},
      {3076, {"zh-HK"}},
  };
  for (const auto& [id, names] : kCases) {
    for (const char* name : names) EXPECT_EQ(FindLanguage(languages, name), id) << name;
  }
  for (const char* name :
       {"", "smn", "9275", "C", "klingon", "0", "99999999999", "1033x", "x\xFF"}) {
    EXPECT_FALSE(FindLanguage(languages, name)) << name;
  }
  EXPECT_FALSE(FindLanguage(std::span(languages).first(1), "zh-HK"));
}

TEST(CatalogLanguages, HaveALocale) {
  const std::pair<std::uint32_t, const char*> kCases[] = {{kPseudo, "qps_PLOC.UTF-8"},
                                                          {kPseudoMirrored, "qps_PLOCM.UTF-8"},
                                                          {9, "en.UTF-8"},
                                                          {3079, "de_AT.UTF-8"},
                                                          {0x3FF, "en_US.UTF-8"}};
  for (const auto& [id, locale] : kCases) EXPECT_EQ(LocaleOf(id), locale);
  EXPECT_TRUE(IsRightToLeft(kPseudoMirrored));
  EXPECT_FALSE(IsRightToLeft(kPseudo));
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
