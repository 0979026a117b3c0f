#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "tests/i18n/ModuleBuilder.h"

namespace {

namespace fs = std::filesystem;

static_assert(MessageId(4, 156) == 0x0104009C);
static_assert(MessageId(2201, 61) == 0x0999003D);
static_assert(MessageId(-256, 0xFFFF) == 0x0000FFFF);

constexpr const char* kNoCatalog = "No Message Catalog";

// Runs in an empty current directory, with its own locale and modules.
class CatalogTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
      const char* value = std::getenv(name);
      environment_.emplace_back(name, value ? std::optional<std::string>(value) : std::nullopt);
      unsetenv(name);
    }
    home_ = fs::current_path();
    folder_ = fs::path(testing::TempDir()) / "catalog_test";
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    fs::current_path(folder_);
  }

  void TearDown() override {
    ReleaseCatalog();
    fs::current_path(home_);
    fs::remove_all(folder_);
    for (const auto& [name, value] : environment_) {
      value ? setenv(name, value->c_str(), 1) : unsetenv(name);
    }
  }

  static void SetLocale(const char* locale) { setenv("LC_ALL", locale, 1); }
  static void Touch(const char* name) { std::ofstream{name}; }

  static int LoadHere() {
    const std::string here;
    return LoadCatalog(std::span(&here, 1));
  }

  // One catalog for every language, with these messages (4, 1), (4, 2) ... of each.
  static void LoadTables(const std::vector<TestTable>& tables) {
    const bool chinese = SystemLanguageId() == kChineseSimplified || fs::exists("GETSCH");
    TestModule(tables).Save(chinese ? "mcschn.dll" : "mcdll.dll");
    ASSERT_EQ(LoadHere(), 0);
  }

 private:
  std::vector<std::pair<const char*, std::optional<std::string>>> environment_;
  fs::path home_;
  fs::path folder_;
};

constexpr std::uint32_t kFirst = MessageId(4, 1);

TEST_F(CatalogTest, SystemLanguage) {
  struct Case {
    const char* locale;
    std::uint32_t expected;
  };
  constexpr Case kCases[] = {
      {"zh_CN", 2052},       {"zh_CN.UTF-8", 2052}, {"zh_CN.GB18030@pinyin", 2052},
      {"zh_Hans_CN", 2052},  {"zh", 2052},          {"zh_Hans", 2052},
      {"zh_TW", 1028},       {"zh_Hant", 1028},     {"zh_SG", 4100},
      {"zh_HK", 3076},       {"en_US.UTF-8", 1033}, {"en", 1033},
      {"en_GB", 2057},       {"de_DE@euro", 1031},  {"de", 1031},
      {"ja_JP.eucJP", 1041}, {"C", 1033},           {"C.UTF-8", 1033},
      {"POSIX", 1033},       {"xx_YY", 1033},       {"???", 1033},
  };
  EXPECT_EQ(SystemLanguageId(), 1033U);
  for (const Case& c : kCases) {
    SetLocale(c.locale);
    EXPECT_EQ(SystemLanguageId(), c.expected) << c.locale;
  }
  SetLocale(std::string(100000, 'z').c_str());
  EXPECT_EQ(SystemLanguageId(), 1033U);

  setenv("LANG", "de_DE", 1);
  setenv("LC_MESSAGES", "zh_CN", 1);
  SetLocale("ja_JP");
  EXPECT_EQ(SystemLanguageId(), 1041U);
  SetLocale("");
  EXPECT_EQ(SystemLanguageId(), 2052U);
  unsetenv("LC_MESSAGES");
  EXPECT_EQ(SystemLanguageId(), 1031U);
}

TEST_F(CatalogTest, ChoosesTheModule) {
  TestModule({{1033, {{kFirst, {Unicode(u"english\r\n")}}}}}).Save("mcdll.dll");
  TestModule({{1033, {{kFirst, {Unicode(u"chinese\r\n")}}}}}).Save("mcschn.dll");
  const auto loaded = [] { return LoadHere() == 0 ? CatalogText(4, 1) : "(failed)"; };
  EXPECT_EQ(loaded(), "english");
  SetLocale("zh_TW");
  EXPECT_EQ(loaded(), "english");
  SetLocale("zh_CN");
  EXPECT_EQ(loaded(), "chinese");
  Touch("GETENG");
  EXPECT_EQ(loaded(), "chinese");
  SetLocale("en_US");
  EXPECT_EQ(loaded(), "english");
  Touch("GETSCH");
  EXPECT_EQ(loaded(), "chinese");
}

TEST_F(CatalogTest, TakesTheFirstFileAndNoneAfterADamagedOne) {
  fs::create_directories("empty/mcdll.dll");
  fs::create_directories("good");
  TestModule({{1033, {{kFirst, {Unicode(u"good\r\n")}}}}}).Save("good/mcdll.dll");
  const std::vector<std::string> folders = {"absent", "empty", "good", "damaged"};
  EXPECT_EQ(LoadCatalog(folders), 0);
  EXPECT_EQ(CatalogText(4, 1), "good");
  fs::remove("empty/mcdll.dll");
  Touch("empty/mcdll.dll");
  EXPECT_EQ(LoadCatalog(folders), -1);
  // The catalog loaded before is gone too.
  EXPECT_FALSE(IsCatalogLoaded());
  EXPECT_EQ(CatalogText(4, 1), kNoCatalog);
}

TEST_F(CatalogTest, LoadsTheBuiltModules) {
  const std::string folder = TEST_CATALOG_DIR;
  ASSERT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
  const std::string english = CatalogText(4, 156);
  SetLocale("zh_CN");
  ASSERT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
  const std::string chinese = CatalogText(4, 156);
  EXPECT_NE(english, kNoCatalog);
  EXPECT_NE(chinese, kNoCatalog);
  EXPECT_NE(english, chinese);
  SetLocale("de_DE");
  EXPECT_EQ(CatalogText(4, 156), chinese);
  ReleaseCatalog();
  EXPECT_FALSE(IsCatalogLoaded());
  EXPECT_EQ(CatalogText(4, 156), kNoCatalog);
}

// Marker files, locale and current directory count at the moment of the call.
TEST_F(CatalogTest, LanguageOfEachCall) {
  SetLocale("zh_CN");
  LoadTables({{1033, {{kFirst, {Unicode(u"in 1033\r\n"), Unicode(u"only in 1033\r\n")}}}},
              {2052, {{kFirst, {Unicode(u"in 2052\r\n")}}, {kFirst + 2, {Unicode(u"only\r\n")}}}}});
  EXPECT_EQ(CatalogText(4, 1), "in 2052");
  EXPECT_EQ(CatalogText(4, 2), "only in 1033");
  EXPECT_EQ(CatalogText(4, 3), "only");
  for (const char* marker : {"GETENG", "GETSCH"}) {
    Touch(marker);
    EXPECT_EQ(CatalogText(4, 1), "in 1033") << marker;
    EXPECT_EQ(CatalogText(4, 3), kNoCatalog) << marker;
    fs::create_directories("elsewhere");
    fs::current_path("elsewhere");
    EXPECT_EQ(CatalogText(4, 1), "in 2052") << marker;
    fs::current_path("..");
    EXPECT_EQ(CatalogText(4, 1), "in 1033") << marker;
    fs::remove(marker);
    EXPECT_EQ(CatalogText(4, 1), "in 2052") << marker;
  }
  SetLocale("de_DE");
  EXPECT_EQ(CatalogText(4, 1), "in 1033");
  EXPECT_EQ(CatalogText(4, 3), kNoCatalog);
  SetLocale("zh_CN");
  EXPECT_EQ(CatalogText(4, 1), "in 2052");
}

TEST_F(CatalogTest, MessageThatCannotBeFormattedFallsBack) {
  SetLocale("zh_CN");
  LoadTables({{1033, {{kFirst, {Unicode(u"no insert\r\n"), Unicode(u"%2\r\n")}}}},
              {2052, {{kFirst, {Unicode(u"%1 %2\r\n"), Unicode(u"%1\r\n")}}}}});
  EXPECT_EQ(CatalogText(4, 1, "a", 5), "a 5");
  EXPECT_EQ(CatalogText(4, 1, "a"), "no insert");
  EXPECT_EQ(CatalogText(4, 2, std::string("a")), "a");
  EXPECT_EQ(CatalogText(4, 2), kNoCatalog);
}

TEST_F(CatalogTest, NumbersThatAreNone) {
  LoadTables({{1033, {{0xFFFF, {Unicode(u"lowest\r\n")}}, {kFirst, {Unicode(u"text\r\n")}}}}});
  EXPECT_EQ(CatalogText(-256, 0xFFFF), "lowest");
  constexpr std::pair<int, int> kNone[] = {{4, 0},       {4, 2},    {3, 0x10001}, {4, -1},
                                           {0x10004, 1}, {-257, 1}, {5, 0x1FFFF}};
  for (const auto& [category, number] : kNone) {
    EXPECT_EQ(CatalogText(category, number), kNoCatalog) << category << ", " << number;
  }
}

TEST_F(CatalogTest, LastTwoCharactersAreDropped) {
  LoadTables({{1033,
               {{kFirst,
                 {Unicode(u"\r\n"), Unicode(u""), Unicode(u"x"), Unicode(u"亮度中文"),
                  Unicode(u"cut%0"), Unicode(u"x%0"), Unicode(u"lone\n")}}}}});
  constexpr const char* kExpected[] = {"", "", "", "亮度", "c", "", "lone"};
  int number = 1;
  for (const char* expected : kExpected) {
    EXPECT_EQ(CatalogText(4, number), expected) << number;
    ++number;
  }
}

TEST_F(CatalogTest, CopyStaysInTheBuffer) {
  LoadTables({{1033, {{kFirst, {Unicode(u"a亮😀z\r\n"), Unicode(u"%1\r\n")}}}}});
  // Bytes of the whole characters that fit, by buffer size.
  constexpr std::size_t kLengths[] = {0, 0, 1, 1, 1, 4, 4, 4, 4, 8, 9, 9};
  for (int size = 1; size < static_cast<int>(std::size(kLengths)); ++size) {
    std::string buffer(16, '#');
    GetCatalogText(4, 1, size, buffer.data());
    const std::size_t length = std::string_view("a亮😀z").substr(0, kLengths[size]).size();
    EXPECT_EQ(buffer.substr(0, length), std::string("a亮😀z").substr(0, length)) << size;
    EXPECT_EQ(buffer[length], '\0') << size;
    EXPECT_EQ(buffer.substr(static_cast<std::size_t>(size)),
              std::string(16 - static_cast<std::size_t>(size), '#'));
  }
  std::string buffer(16, '#');
  GetCatalogText(4, 1, 0, buffer.data());
  GetCatalogText(4, 1, -1, buffer.data());
  GetCatalogText(4, 1, 16, nullptr);
  EXPECT_EQ(buffer, std::string(16, '#'));
  GetCatalogText(4, 999, 3, buffer.data());
  EXPECT_STREQ(buffer.c_str(), "No");

  const std::string wide(3000, 'w');
  EXPECT_EQ(CatalogText(4, 2, wide).size(), 1023U);
  EXPECT_EQ(CatalogText<2048>(4, 2, wide).size(), 2047U);
}

}  // namespace
