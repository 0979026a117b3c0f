#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "i18n/CatalogLanguages.h"
#include "i18n/CatalogTexts.h"
#include "i18n/SystemLanguage.h"

namespace {

const std::vector<std::string> kFolders{TEST_CATALOG_DIR};

TEST(CatalogLanguages, AreThoseOfBothModules) {
  std::string all;
  for (const CatalogLanguage& language : CatalogLanguages(kFolders)) {
    all += language.tag + ' ' + language.name + ' ' + language.englishName + '\n';
  }
  EXPECT_EQ(all,
            "cs Čeština Czech\nde Deutsch German\nen English English\nes Español Spanish\n"
            "fi Suomi Finnish\nfr Français French\nhe עברית Hebrew\nhu magyar Hungarian\n"
            "it Italiano Italian\nja 日本語 Japanese\nko 한국어 Korean\nnl Nederlands Dutch\n"
            "pl polski Polish\npt Português Portuguese\nru Русский Russian\n"
            "zh-CN 简体中文 Simplified Chinese\nzh-TW 繁體中文 Traditional Chinese\n");
}

TEST(CatalogLanguages, AreFoundByWhatPeopleCallThem) {
  const std::vector<CatalogLanguage> languages = CatalogLanguages(kFolders);
  const std::pair<std::uint32_t, std::vector<const char*>> kCases[] = {
      {1033, {"en", "1033", "English", "en-GB", "2057", "en_US.UTF-8"}},
      {1031, {"de", "DE", "de-DE", "German", "deutsch", "1031"}},
      {3079, {"de_AT", "de-AT.UTF-8@euro", "3079"}},
      {3084, {"fr-CA"}},
      {2058, {"es_MX"}},
      {2070, {"pt-PT"}},
      {1046, {"pt", "português", "pt-BR"}},
      {2052, {"zh", "zh-CN", "zh-Hans", "zh-SG", "2052", "简体中文"}},
      {1028, {"zh-TW", "zh-Hant", "traditional chinese"}},
      {3076, {"zh-HK"}},
  };
  for (const auto& [id, names] : kCases) {
    for (const char* name : names) EXPECT_EQ(FindLanguage(languages, name), id) << name;
  }
  for (const char* name : {"", "sv", "1053", "C", "klingon", "0", "99999999999", "x\xFF"}) {
    EXPECT_FALSE(FindLanguage(languages, name)) << name;
  }
}

// What --language chooses becomes the system language, and every region has its language's texts.
TEST(CatalogLanguages, EveryRegionIsALocaleWithTheTextsOfItsLanguage) {
  constexpr std::uint32_t kTraditionalSort = 1034;  // of Spanish, with the locale of the modern one
  const CatalogTexts texts(kFolders);
  const std::vector<CatalogLanguage> languages = CatalogLanguages(kFolders);
  for (const CatalogLanguage& language : languages) {
    const auto text = texts.Find(language.id, 4, 73);
    ASSERT_TRUE(text) << language.tag;
    for (const std::uint32_t id : language.regions) {
      EXPECT_EQ(texts.Find(id, 4, 73), text) << id;
      EXPECT_EQ(IsRightToLeft(id), language.tag == "he") << id;
      if (id == kTraditionalSort) continue;
      EXPECT_EQ(FindLanguage(languages, LocaleOf(id)), id) << LocaleOf(id);
    }
  }
}

}  // namespace
