// What a damaged module may not do.

#include <filesystem>
#include <fstream>
#include <span>
#include <string>

#include <QString>
#include <gtest/gtest.h>

#include "i18n/Catalog.h"
#include "i18n/MessageTable.h"
#include "tests/i18n/ModuleBuilder.h"

namespace {

// A flipped bit is refused, or changes nothing but the text in which it lies.
TEST(DamagedTable, NoFlippedBitShowsATextUnderAnotherNumber) {
  TestBlock low{10, {}}, high{20, {}};
  for (const char* text : {"one....\r\n..", "twotwo\r\n"}) low.entries.push_back(Ansi(text));
  for (const char* text : {"three.\r\n", "four..\r\n"}) high.entries.push_back(Ansi(text));
  TestModule module({{1033, {low, high}}});
  const auto intact = MessageTable::Parse(module.bytes);
  ASSERT_TRUE(intact);
  ASSERT_EQ(intact->Count(), 4U);
  int accepted = 0;
  for (std::size_t at = module.LastTable(); at < module.bytes.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      TestModule flipped = module;
      flipped.bytes[at] ^= std::byte(1 << bit);
      const auto table = MessageTable::Parse(flipped.bytes);
      if (!table) continue;
      ++accepted;
      EXPECT_EQ(table->Count(), 4U) << at << '.' << bit;
      int changed = 0;
      for (const std::uint32_t id : {10U, 11U, 20U, 21U}) {
        const auto text = table->Find(1033, id);
        ASSERT_TRUE(text) << id << " at " << at << '.' << bit;
        changed += text->text != intact->Find(1033, id)->text;
      }
      EXPECT_LE(changed, 1) << at << '.' << bit;
    }
  }
  EXPECT_GT(accepted, 0) << "a changed letter is a text all the same";
}

TEST(CatalogProblem, SaysWhichModuleWasRefusedOrWhereNoneWas) {
  static std::string logged;
  const auto before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& text) {
        logged = std::string(context.category) + ": " + text.toStdString();
      });
  const std::string folder = testing::TempDir() + "no-catalog";
  std::filesystem::create_directory(folder);
  std::filesystem::remove(folder + "/mcdll.dll");
  EXPECT_EQ(LoadCatalog(std::span(&folder, 1)), -1);
  EXPECT_NE(CatalogProblem().find("mcdll.dll is not found in " + folder), std::string::npos);
  std::ofstream(folder + "/mcdll.dll") << "no module";
  EXPECT_EQ(LoadCatalog(std::span(&folder, 1)), -1);
  EXPECT_NE(CatalogProblem().find(folder + "/mcdll.dll is refused"), std::string::npos);
  EXPECT_EQ(logged, "advancedcontrol.catalog: " + CatalogProblem());
  EXPECT_EQ(LoadCatalog(), 0);
  EXPECT_EQ(CatalogProblem(), "");
  qInstallMessageHandler(before);
}

}  // namespace
