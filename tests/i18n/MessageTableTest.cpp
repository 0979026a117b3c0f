#include <atomic>
#include <chrono>
#include <filesystem>
#include <sys/stat.h>
#include <thread>
#include <tuple>

#include <QTemporaryDir>

#include "i18n/MessageTable.h"
#include "tests/i18n/ModuleBuilder.h"
#include "tests/support/Record.h"

namespace {

namespace fs = std::filesystem;

std::string TextIn(const MessageTable& table, std::uint32_t language, std::uint32_t id) {
  const auto message = table.Find(language, id);
  return message ? std::string(message->text) : "(none)";
}

std::vector<TestTable> SampleTables() {
  return {
      {1033,
       {{0x01040001,
         {Unicode(u"One\r\n"), Unicode(u"Two\r\n"), Unicode(u"\x7F\u0080\u07FF\u0800\r")}},
        {0xFFFFFFFE, {Ansi("Stra\337e\r\n"), Ansi("")}}}},
      {2052, {{0x01040001, {Unicode(u"\u4EAE\u5EA6\r\n"), Ansi("\xD6\xD0\xCE\xC4\r\n")}}}},
      {1041,
       {{7,
         {Ansi("\x93\xFA\x96\x7B"), Unicode(u"\xD83D\xDE00|\xD83D|"), Unicode(u"\xD83D\xDE00")}}},
       9},
  };
}

TEST(MessageTable, ReadsBothModuleKindsAndBothEncodings) {
  for (const bool wide : {false, true}) {
    const auto table = MessageTable::Parse(TestModule(SampleTables(), wide).bytes);
    ASSERT_TRUE(table) << wide;
    const auto texts = [&table](std::uint32_t language, const std::vector<std::uint32_t>& ids) {
      std::string all;
      for (const std::uint32_t id : ids) all += TextIn(*table, language, id) + ';';
      return all;
    };
    EXPECT_EQ(table->Count(), 10U);
    EXPECT_EQ(texts(1033, {0x01040001, 0x01040002}), "One\r\n;Two\r\n;");
    EXPECT_EQ(texts(1033, {0x01040003}), "\x7F\u0080\u07FF\u0800\r;");
    EXPECT_EQ(texts(1033, {0xFFFFFFFE, 0xFFFFFFFF}), "Straße\r\n;;");
    EXPECT_EQ(texts(2052, {0x01040001, 0x01040002}), "亮度\r\n;中文\r\n;");
    EXPECT_EQ(texts(1041, {7, 8, 9}), "日本;😀|\uFFFD|;😀;");
    // Finds neither messages of another language nor neighbours of a block.
    EXPECT_EQ(texts(1041, {0x01040001}) + texts(9, {0x01040001}), "(none);(none);");
    EXPECT_EQ(texts(1033, {0x01040000, 0x01040004, 0xFFFFFFFD, 0}), "(none);(none);(none);(none);");
  }
}

TEST(MessageTable, ReadsAnsiTextsInTheCodePageOfTheirLanguage) {
  ExpectAnswers(TEST_SOURCE_DIR "/i18n/CodePages.txt", [](const std::string& number) {
    const auto language = static_cast<std::uint32_t>(std::stoul(number, nullptr, 0));
    const TestTable english{1033, {{1, {Ansi("\xD0\xC3")}}}}, own{language, english.blocks};
    const TestModule module(language == 1033 ? std::vector{english} : std::vector{own, english});
    const auto table = MessageTable::Parse(module.bytes);
    return table ? TextIn(*table, language, 1) : "refused";
  });
}

TEST(MessageTable, FindsNumbersFarApartInManyCategories) {
  std::vector<std::uint32_t> ids;
  for (std::uint32_t category = 1; category <= 12; ++category) {
    for (const std::uint32_t number : {0U, 1U, 8191U, 8192U, 65535U})
      ids.push_back(category << 16 | number);
  }
  const auto tableOf = [&ids](std::uint32_t language, bool isLeftOut) {
    TestTable table{language, {}};
    for (const std::uint32_t id : ids) {
      if (!isLeftOut || id % 3 != 0) table.blocks.push_back({id, {Unicode(u"x")}});
    }
    return table;
  };
  const auto table =
      MessageTable::Parse(TestModule({tableOf(0xFFFF, true), tableOf(1033, false)}).bytes);
  ASSERT_TRUE(table);
  for (const std::uint32_t id : ids) {
    EXPECT_EQ(TextIn(*table, 1033, id), "x") << id;
    EXPECT_EQ(TextIn(*table, 0xFFFF, id), id % 3 != 0 ? "x" : "(none)") << id;
    EXPECT_EQ(TextIn(*table, 1033, id ^ 4), "(none)") << id;
  }
}

TEST(MessageTable, LowerResourceComesFirst) {
  const TestModule module({{1033, {{1, {Unicode(u"second"), Unicode(u"only here")}}}, 5},
                           {1033, {{2, {Unicode(u"last")}}}, 9},
                           {1033, {{1, {Unicode(u"first")}}, {3, {Unicode(u"third")}}}, 1}});
  const auto table = MessageTable::Parse(module.bytes);
  ASSERT_TRUE(table);
  EXPECT_EQ(TextIn(*table, 1033, 1), "first");
  EXPECT_EQ(TextIn(*table, 1033, 2), "only here");
  EXPECT_EQ(TextIn(*table, 1033, 3), "third");
  const auto part = table->PartOf(1033);
  EXPECT_EQ(part->end - part->begin, 3U);
}

TEST(MessageTable, MarksTextsThatExpandingWouldNotChange) {
  const std::pair<const char*, bool> kTexts[] = {
      {"", true},     {"plain\r\n", true}, {"a\r\nb\r\n", true}, {"100%\r\n", false},
      {"a\n", false}, {"\r\n\n", false},   {"a\rb", false},      {"a\r", false}};
  for (const auto& [text, plain] : kTexts) {
    const auto table = MessageTable::Parse(TestModule({{1033, {{1, {Ansi(text)}}}}}).bytes);
    EXPECT_EQ(table && table->FindEnglish(1).plain, plain) << text;
  }
}

TEST(MessageTable, MarksEnglishTextsThatEveryLanguageHas) {
  const auto table = MessageTable::Parse(
      TestModule(
          {{1031, {{2, {Ansi("two"), Ansi("drei"), Ansi("four")}}, {6, {Ansi("six")}}}},
           {1033,
            {{1, {Ansi("one"), Ansi("two"), Ansi("three"), Ansi("four")}}, {6, {Ansi("six")}}}},
           {1036, {{1, {Ansi("one")}}, {4, {Ansi("quatre"), Ansi("cinq"), Ansi("six")}}}}})
          .bytes);
  ASSERT_TRUE(table);
  std::vector<std::uint32_t> same;
  for (const std::uint32_t id : {1U, 2U, 3U, 4U, 6U}) {
    if (table->FindEnglish(id).sameEverywhere) same.push_back(id);
  }
  EXPECT_EQ(same, (std::vector<std::uint32_t>{1, 2, 6}));
}

// Texts in an ANSI code page differ by language, although the bytes are the same.
TEST(MessageTable, LanguagesWithTheSameTableShareItsUnicodeTexts) {
  const auto parse = [](const TestEntry& entry) {
    TestModule module({{1036, {{1, {entry}}}}, {1049, {{1, {entry}}}}});
    const std::size_t slots = module.names + 24 + 20;
    std::copy_n(module.bytes.begin() + static_cast<std::ptrdiff_t>(slots), 4,
                module.bytes.begin() + static_cast<std::ptrdiff_t>(slots) + 8);
    return MessageTable::Parse(module.bytes);
  };
  const auto unicode = parse(Unicode(u"\u00E9"));
  const auto ansi = parse(Ansi("\xE9"));
  ASSERT_TRUE(unicode && ansi);
  EXPECT_EQ(TextIn(*unicode, 1036, 1) + TextIn(*unicode, 1049, 1), "éé");
  EXPECT_EQ(unicode->Count(), 1U);
  EXPECT_EQ(unicode->Languages().back().first, 1036U);
  EXPECT_EQ(TextIn(*ansi, 1036, 1) + TextIn(*ansi, 1049, 1), "éй");
}

TEST(MessageTable, RefusesDamagedModules) {
  const TestModule m(SampleTables());
  const std::size_t header = m.kHeader, options = m.kOptional, section = m.section;
  const std::size_t types = m.types, names = m.names, leaf = m.lastLeaf, table = m.LastTable();
  using Places = std::vector<std::pair<std::size_t, std::uint32_t>>;
  const std::tuple<const char*, int, Places> damages[] = {
      {"first magic, kind of module", 2, {{0, 0}, {options, 0x0107}}},
      {"second magic", 4, {{header, 0x4551}}},
      {"header outside", 4, {{0x3C, 0xFFFFFFF0}}},
      {"header too small or absent", 2, {{header + 20, 100}, {header + 20, 0}}},
      {"no section, too many", 2, {{header + 6, 0}, {header + 6, 0xFFFF}}},
      {"too few directories, no resources", 4, {{options + 108, 2}, {options + 128, 0}}},
      {"sections outside, too long", 4, {{section + 20, 0xFFFFFF00}, {section + 16, 0xFFFFFFFF}}},
      {"no message table", 4, {{types + 16, 10}}},
      {"directories that are leaves", 4, {{types + 20, 24}, {names + 20, 24}}},
      {"directories in themselves, outside", 4, {{types + 20, m.kDirectory}, {names + 20, ~0U}}},
      {"too many entries", 4, {{types + 12, ~0U}, {names + 12, ~0U}}},
      {"a number among names", 4, {{names + 12, 1}}},
      {"leaves as directories, outside", 4, {{leaf - 4, m.kDirectory}, {leaf - 4, 0x7FFFFFFF}}},
      {"a leaf of no language", 4, {{leaf - 8, 0x10000}}},
      {"tables outside, too long, too short", 4, {{leaf, ~0U}, {leaf + 4, ~0U}, {leaf + 4, 3}}},
      {"blocks too many, upside down", 4, {{table, 0x15555556}, {table + 4, 9}}},
      {"blocks endless, outside", 4, {{table + 8, ~0U}, {table + 12, 0xFFFFFFFC}}},
      {"entries without length, too long", 2, {{table + 16, 0}, {table + 16, 0xFFFF}}},
      {"an unknown encoding, not of whole words", 2, {{table + 18, 4}, {table + 24, 14}}},
  };
  for (const auto& [what, bytes, places] : damages) {
    for (const auto& [at, value] : places) {
      TestModule module = m;
      module.Put(at, value, bytes);
      EXPECT_FALSE(MessageTable::Parse(module.bytes)) << what << ": " << value;
    }
  }
  TestModule unknown(SampleTables(), false);
  unknown.Put16(options, 0x0107);
  EXPECT_FALSE(MessageTable::Parse(unknown.bytes)) << "kind of module";
  for (auto end = m.bytes.begin(); end != m.bytes.end(); ++end) {
    EXPECT_FALSE(MessageTable::Parse(std::vector(m.bytes.begin(), end))) << end - m.bytes.begin();
  }
  for (const std::uint32_t padding : {3U, 4U}) {
    TestModule padded = m;
    padded.bytes.resize(m.bytes.size() + padding);
    padded.Put32(section + 16, U32(m.bytes, section + 16) + padding);
    padded.Put32(leaf + 4, U32(m.bytes, leaf + 4) + padding);
    EXPECT_EQ(MessageTable::Parse(padded.bytes).has_value(), padding < 4);
  }
  // A section with the messages behind others without content, which may lie anywhere.
  for (const std::uint32_t sections : {96U, 97U}) {
    TestModule many = m;
    const auto moved = static_cast<std::uint32_t>(m.bytes.size());
    for (std::size_t i = header; i < section; ++i) many.bytes.push_back(m.bytes[i]);
    many.bytes.resize(many.bytes.size() + 40UL * (sections - 1));
    for (std::size_t i = 0; i < 40; ++i) many.bytes.push_back(m.bytes[section + i]);
    many.Put32(0x3C, moved);
    many.Put16(moved + 6, sections);
    many.Put32(moved + section - header + 20, ~0U);
    EXPECT_EQ(MessageTable::Parse(many.bytes).has_value(), sections == 96);
  }
  // Two texts for one message, and descending identifiers.
  for (const std::uint32_t second : {2U, 0U}) {
    const TestModule blocks({{1033, {{1, {Ansi("a"), Ansi("b")}}, {second, {Ansi("c")}}}}});
    EXPECT_FALSE(MessageTable::Parse(blocks.bytes)) << second;
  }
  EXPECT_FALSE(MessageTable::Parse(TestModule({{1033, {{1, {Ansi("a")}}, {3, {}}}}}).bytes));
  const TestTable english{1033, {{1, {Unicode(u"a")}}}};
  EXPECT_FALSE(MessageTable::Parse(TestModule({english, english}).bytes)) << "twice in a resource";
}

// A module with a flipped bit is refused, or only the text with the bit differs.
TEST(MessageTable, NoFlippedBitAssignsATextToAnotherNumber) {
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

TEST(MessageTable, SharedBytesDoNotMultiply) {
  const std::vector<TestEntry> ansi{Ansi(std::string(60000, 'x'))};
  const std::vector<TestEntry> unicode{Unicode(u"x")};
  constexpr std::size_t kMost = std::size_t{1} << 18;
  const std::vector<TestEntry> half(kMost / 2 + 1, Unicode(u""));
  const std::vector<TestEntry> all(kMost + 1, Unicode(u""));
  using Case = std::tuple<const char*, std::uint32_t, std::uint32_t, std::vector<TestEntry>, bool>;
  const Case cases[] = {
      {"a text read twice", 1, 2, ansi, true},
      {"a text read three times", 1, 3, ansi, false},
      {"a text read very often", 1, 3000, ansi, false},
      {"a directory read twice", 2, 300, unicode, true},
      {"a directory read very often", 300, 300, unicode, false},
      {"too many messages", 1, 1, all, false},
      {"too many messages in two resources", 2, 1, half, false},
  };
  for (const auto& [what, resources, languages, entries, isRead] : cases) {
    const TestModule module = Overlapping(resources, languages, entries);
    EXPECT_EQ(MessageTable::Parse(module.bytes).has_value(), isRead) << what;
  }
}

TEST(MessageTable, ReadsOnlyRegularFiles) {
  const QTemporaryDir folder;
  const auto path = [&](const char* name) { return folder.filePath(name).toStdString(); };
  fs::create_directory(path("directory"));
  // Truncating a mapped file would crash the program.
  const TestModule good({{1033, {{1, std::vector(20000, Ansi(std::string(100, 'x')))}}}});
  good.Save(path("good"));
  EXPECT_TRUE(MessageTable::Read(path("good")));
  for (const std::size_t more : {0U, 1U}) {
    fs::resize_file(path("good"), kMaxModuleBytes + more);
    EXPECT_EQ(MessageTable::Read(path("good")).has_value(), more == 0);
  }
  std::atomic<bool> done = false;
  std::thread cutter([&] {
    for (int i = 0; i < 30; ++i) {
      good.Save(path("good"));
      std::this_thread::sleep_for(std::chrono::milliseconds(i % 10));
      fs::resize_file(path("good"), 4096);
    }
    done = true;
  });
  while (!done) std::ignore = MessageTable::Read(path("good"));
  cutter.join();

  std::ofstream empty(path("empty"));
  std::ofstream(path("huge")).put('M');
  fs::resize_file(path("huge"), std::uintmax_t{1} << 40);
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  for (const char* name : {"absent", "directory", "empty", "huge", "pipe"}) {
    EXPECT_FALSE(MessageTable::Read(path(name))) << name;
  }
  EXPECT_FALSE(MessageTable::Read("/dev/zero"));
}

}  // namespace
