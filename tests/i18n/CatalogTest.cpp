#include <cstdlib>
#include <filesystem>
#include <span>
#include <unistd.h>
#include <utility>

#include <QString>
#include <QTemporaryDir>

#include "i18n/Catalog.h"
#include "i18n/CatalogTexts.h"
#include "i18n/SystemLanguage.h"
#include "tests/i18n/ModuleBuilder.h"
#include "tests/support/Record.h"

namespace {

namespace fs = std::filesystem;

static_assert(MessageId(4, 156) == 0x0104009C);
static_assert(MessageId(2201, 61) == 0x0999003D);
static_assert(MessageId(-256, 0xFFFF) == 0x0000FFFF);

constexpr const char* kNoCatalog = "No Message Catalog";

constexpr std::uint32_t kFirst = MessageId(4, 1);

// Runs in an empty current directory with its own locale and modules.
class CatalogTest : public testing::Test {
 protected:
  CatalogTest() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(name);
    fs::current_path(folder_.path().toStdString());
  }

  ~CatalogTest() override {
    ReleaseCatalog();
    fs::current_path(home_);
  }

  static void SetLocale(const char* locale) { setenv("LC_ALL", locale, 1); }
  static void Touch(const char* name) { std::ofstream{name}; }

  static int LoadHere() {
    const std::string here;
    return LoadCatalog(std::span(&here, 1));
  }

  // Loads the same catalog for every language.
  static void LoadTables(const std::vector<TestTable>& tables) {
    for (const char* name : {"mcdll.dll", "mcschn.dll"}) TestModule(tables).Save(name);
    ASSERT_EQ(LoadHere(), 0);
  }

  // Loads the English messages (4, 1), (4, 2) and so on.
  static void LoadTexts(const std::vector<const char16_t*>& texts) {
    TestBlock block{kFirst, {}};
    for (const char16_t* text : texts) block.entries.push_back(Unicode(text));
    LoadTables({{1033, {block}}});
  }

 private:
  const fs::path home_ = fs::current_path();
  const QTemporaryDir folder_;
};

TEST_F(CatalogTest, SystemLanguage) {
  EXPECT_EQ(SystemLanguageId(), 1033U);
  ExpectAnswers(TEST_SOURCE_DIR "/i18n/SystemLanguages.txt", [](const std::string& locale) {
    SetLocale(locale.c_str());
    return std::to_string(SystemLanguageId());
  });
  for (const auto& [length, expected] : {std::pair(58U, 1031U), {59U, 1033U}, {100000U, 1033U}}) {
    SetLocale(("de_DE_" + std::string(length, 'z')).c_str());
    EXPECT_EQ(SystemLanguageId(), expected) << length;
  }

  setenv("LANG", "de_DE", 1);
  setenv("LC_MESSAGES", "zh_CN", 1);
  SetLocale("ja_JP");
  EXPECT_EQ(SystemLanguageId(), 1041U);
  SetLocale("");
  EXPECT_EQ(SystemLanguageId(), 2052U);
  unsetenv("LC_MESSAGES");
  EXPECT_EQ(SystemLanguageId(), 1031U);
  char** const variables = std::exchange(environ, nullptr);
  EXPECT_EQ(SystemLanguageId(), 1033U);
  environ = variables;
}

TEST_F(CatalogTest, ChoosesTheModule) {
  TestModule({{1033, {{kFirst, {Unicode(u"english\r\n")}}}}}).Save("mcdll.dll");
  TestModule({{1033, {{kFirst, {Unicode(u"chinese\r\n")}}}}}).Save("mcschn.dll");
  const auto expectLoaded = [](const char* locale, const char* module) {
    SetLocale(locale);
    EXPECT_EQ(LoadHere() == 0 ? CatalogText(4, 1) : "(failed)", module) << locale;
  };
  expectLoaded("", "english");
  expectLoaded("zh_TW", "english");
  for (const char* locale : {"zh_CN", "zh_SG"}) expectLoaded(locale, "chinese");
  Touch("GETENG");
  expectLoaded("zh_CN", "chinese");
  expectLoaded("en_US", "english");
  Touch("GETSCH");
  expectLoaded("en_US", "chinese");
}

// The problem must also be in the log.
TEST_F(CatalogTest, LoadsTheFirstFileOrNoneIfItIsDamagedAndSaysWhy) {
  static std::string logged;
  const auto before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& text) {
        logged = std::string(context.category) + ": " + text.toStdString();
      });
  const auto expectFailure = [](std::span<const std::string> folders, const char* why) {
    EXPECT_EQ(LoadCatalog(folders), -1);
    EXPECT_EQ(CatalogProblem().substr(0, std::strlen(why)), why);
    EXPECT_EQ(logged, "advancedcontrol.catalog: " + CatalogProblem());
  };
  fs::create_directories("empty/mcdll.dll");
  fs::create_directories("good");
  TestModule({{1033, {{kFirst, {Unicode(u"good\r\n")}}}}}).Save("good/mcdll.dll");
  const std::vector<std::string> folders = {"absent", "empty", "good"};
  EXPECT_EQ(LoadCatalog(folders), 0);
  EXPECT_EQ(CatalogText(4, 1), "good");
  EXPECT_EQ(CatalogProblem(), "");
  ReleaseCatalog();
  EXPECT_EQ(CatalogText(4, 1), kNoCatalog);
  EXPECT_EQ(LoadCatalog(folders), 0);
  fs::remove("empty/mcdll.dll");
  Touch("empty/mcdll.dll");
  expectFailure(folders, "empty/mcdll.dll is refused: ");
  // The previous catalog must be released too.
  EXPECT_FALSE(IsCatalogLoaded());
  EXPECT_EQ(CatalogText(4, 1), kNoCatalog);
  // The administrator may read every file, and others must reach it.
  fs::permissions("empty/mcdll.dll", fs::perms::none);
  fs::permissions(".", fs::perms(0711));
  const bool isAdministrator = setresuid(65534, 65534, 0) == 0;
  expectFailure(folders, "empty/mcdll.dll is refused: Permission denied");
  EXPECT_TRUE(!isAdministrator || setresuid(0, 0, 0) == 0);
  expectFailure(std::vector<std::string>{"absent", ""}, "mcdll.dll is not found in absent, .");
  EXPECT_EQ(LoadCatalog(), 0);
  EXPECT_EQ(CatalogProblem(), "");
  qInstallMessageHandler(before);
}

// Each call uses the present marker files, locale and current directory.
TEST_F(CatalogTest, TheTextsOfAllModulesNameTheModuleThatIsMissing) {
  const std::string here = ".";
  EXPECT_EQ(CatalogTexts(std::span(&here, 1)).Problem(), "");
  Touch("mcschn.dll");
  for (const std::string module : {"mcschn.dll", "mcdll.dll"}) {
    Touch(module.c_str());
    EXPECT_EQ(CatalogTexts(std::span(&here, 1)).Problem(),
              "./" + module + " is damaged or cannot be read; its texts are missing");
  }
  fs::create_directory("second");
  TestModule({{2052, {{kFirst, {Unicode(u"%%\r\n")}}}}}).Save("second/mcschn.dll");
  const std::string both[] = {".", "second"};
  EXPECT_FALSE(CatalogTexts(both).Find(2052, 4, 1)) << "the first file counts";
  EXPECT_EQ(CatalogTexts(std::span(both).last(1)).Find(2052, 4, 1), "%");
}

TEST_F(CatalogTest, ModulesAreLookedForBesideTheLibraryAndInItsShare) {
  const auto folders = CatalogFolders();
  EXPECT_EQ(folders.at(1), fs::read_symlink("/proc/self/exe").parent_path());
  EXPECT_EQ(folders.back(), "") << "the current one";
  for (const char* share : {"/../share/advanced-control", "/../../share/advanced-control"}) {
    EXPECT_EQ(std::ranges::count(folders, folders.front() + share), 1) << share;
  }
}

TEST_F(CatalogTest, EachCallUsesThePresentLanguage) {
  SetLocale("zh_CN");
  LoadTables({{1031, {{kFirst, {Unicode(u"in 1033\r\n")}}}},
              {1033, {{kFirst, {Unicode(u"in 1033\r\n"), Unicode(u"only in 1033\r\n")}}}},
              {2052, {{kFirst, {Unicode(u"in 2052\r\n")}}, {kFirst + 2, {Unicode(u"only\r\n")}}}}});
  const auto expectTexts = [](const char* first, const char* third) {
    EXPECT_EQ(CatalogText(4, 1), first);
    EXPECT_EQ(CatalogText(4, 2), "only in 1033");
    EXPECT_EQ(CatalogText(4, 3), third);
  };
  expectTexts("in 2052", "only");
  fs::create_directories("elsewhere");
  for (const char* marker : {"GETENG", "GETSCH"}) {
    SCOPED_TRACE(marker);
    Touch(marker);
    expectTexts("in 1033", kNoCatalog);
    fs::current_path("elsewhere");
    expectTexts("in 2052", "only");
    fs::current_path("..");
    expectTexts("in 1033", kNoCatalog);
    fs::remove(marker);
    expectTexts("in 2052", "only");
  }
  for (const char* locale : {"de_DE", "fr_FR"}) {
    SetLocale(locale);
    expectTexts("in 1033", kNoCatalog);
  }
}

TEST_F(CatalogTest, TheShownLanguageIsThatOfTheTexts) {
  const TestTable german{1031, {{kFirst, {Unicode(u"a\r\n")}}}};
  const TestTable english{1033, german.blocks}, chinese{2052, german.blocks};
  const auto shown = [](const char* locale) {
    SetLocale(locale);
    return ShownLanguageId();
  };
  EXPECT_EQ(shown("de_DE"), 1033U) << "without a catalog";
  LoadTables({german, english, chinese});
  EXPECT_EQ(shown("de_DE"), 1031U);
  EXPECT_EQ(shown("fr_FR"), 2052U) << "all texts of such a module are Chinese";
  for (const char* marker : {"GETENG", "GETSCH"}) {
    Touch(marker);
    LoadTables({german, english, chinese});
    EXPECT_EQ(shown("de_DE"), 2052U);
    LoadTables({german, english});
    EXPECT_EQ(shown("de_DE"), 1033U);
    fs::remove(marker);
  }
}

TEST_F(CatalogTest, ABatchUsesTheLanguageOfItsBeginning) {
  SetLocale("de_DE");
  {
    const CatalogBatch withoutCatalog;
    EXPECT_EQ(CatalogText(4, 1), kNoCatalog);
  }
  const std::vector<TestTable> tables = {
      {1031, {{kFirst, {Unicode(u"own\r\n")}}}},
      {1033, {{kFirst, {Unicode(u"english\r\n"), Unicode(u"only\r\n")}}}}};
  LoadTables(tables);
  {
    const CatalogBatch batch;
    Touch("GETENG");
    { const CatalogBatch within; }
    EXPECT_EQ(CatalogText(4, 1) + CatalogText(4, 2) + CatalogText(4, 3),
              std::string("ownonly") + kNoCatalog);
  }
  EXPECT_EQ(CatalogText(4, 1), "english");
  const CatalogBatch batch;
  fs::remove("GETENG");
  EXPECT_EQ(CatalogText(4, 1), "english");
  LoadTables(tables);  // another catalog
  EXPECT_EQ(CatalogText(4, 1), "own");
}

TEST_F(CatalogTest, AMessageThatCannotBeFormattedFallsBack) {
  SetLocale("zh_CN");
  LoadTables({{1033, {{kFirst, {Unicode(u"no insert\r\n"), Unicode(u"%2\r\n")}}}},
              {2052, {{kFirst, {Unicode(u"%1 %2\r\n"), Unicode(u"%1\r\n")}}}}});
  EXPECT_EQ(CatalogText(4, 1, "a", 5), "a 5");
  EXPECT_EQ(CatalogText(4, 1, "a"), "no insert");
  EXPECT_EQ(CatalogText(4, 2, std::string("a")), "a");
  EXPECT_EQ(CatalogText(4, 2), kNoCatalog);
}

TEST_F(CatalogTest, InvalidNumbers) {
  LoadTables({{1033,
               {{0xFFFF, {Unicode(u"lowest\r\n")}},
                {kFirst, {Unicode(u"text\r\n")}},
                {0xFFFF0000, {Unicode(u"highest\r\n")}}}}});
  EXPECT_EQ(CatalogText(-256, 0xFFFF), "lowest");
  EXPECT_EQ(CatalogText(0xFEFF, 0), "highest");
  constexpr std::pair<int, int> kNone[] = {
      {4, 0},       {4, 2},    {3, 0x10001}, {4, -1}, {0xFEFF, 0x10000},
      {0x10004, 1}, {-257, 0}, {5, 0x1FFFF}};
  for (const auto& [category, number] : kNone) {
    EXPECT_EQ(CatalogText(category, number), kNoCatalog) << category << ", " << number;
  }
}

TEST_F(CatalogTest, LastTwoCharactersAreDropped) {
  LoadTexts({u"\r\n", u"", u"x", u"亮度中文", u"cut%0", u"x%0", u"lone\n", u"end\r", u"a\rbcd"});
  int number = 0;
  for (const char* expected : {"", "", "", "亮度", "c", "", "lone", "end", "a\r\nb"}) {
    EXPECT_EQ(CatalogText(4, ++number), expected) << number;
  }
}

TEST_F(CatalogTest, CopyStaysInTheBuffer) {
  LoadTexts({u"a亮😀z\r\n", u"%1\r\n"});
  const auto copy = [](int size) {
    std::string buffer(16, '#');
    GetCatalogText(4, 1, size, buffer.data());
    return buffer;
  };
  // Length of the copied text, in bytes, by buffer size.
  constexpr std::size_t kLengths[] = {0, 1, 1, 1, 4, 4, 4, 4, 8, 9, 9};
  std::size_t size = 0;
  for (const std::size_t length : kLengths) {
    const std::string buffer = copy(static_cast<int>(++size));
    EXPECT_TRUE(buffer.starts_with(std::string("a亮😀z", length) + '\0')) << size;
    EXPECT_EQ(buffer.substr(size), std::string(16 - size, '#'));
  }
  EXPECT_EQ(copy(0), std::string(16, '#'));
  EXPECT_EQ(copy(-1), std::string(16, '#'));
  GetCatalogText(4, 1, 16, nullptr);
  std::string buffer(16, '#');
  GetCatalogText(4, 999, 3, buffer.data());
  EXPECT_STREQ(buffer.c_str(), "No");

  const std::string wide(3000, 'w');
  EXPECT_EQ(CatalogText(4, 2, wide).size(), 1023U);
  EXPECT_EQ(CatalogText<2048>(4, 2, wide).size(), 2047U);
}

}  // namespace
