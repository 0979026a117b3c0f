#include <limits>
#include <vector>

#include <QJsonArray>
#include <QJsonDocument>

#include "i18n/MessageFormat.h"
#include "tests/support/Record.h"

namespace {

constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr auto kHighest = std::numeric_limits<std::uint64_t>::max();

TEST(MessageFormat, ExpandsMessages) {
  using Inserts = std::vector<CatalogInsert>;
  EXPECT_EQ(ExpandMessage("%1 %1!I64u!", Inserts{kHighest}),
            "18446744073709551615 18446744073709551615");
  EXPECT_EQ(ExpandMessage("%1!c!%2!c!%3!c!", Inserts{0xD7FF, 0xE000, 0x10FFFF}),
            "\uD7FF\uE000\U0010FFFF");
  EXPECT_EQ(ExpandMessage("%1", Inserts{static_cast<const char*>(nullptr)}), "");
  ExpectAnswers(TEST_SOURCE_DIR "/i18n/Messages.txt", [](const std::string& question) {
    const auto parts = QJsonDocument::fromJson(QByteArray::fromStdString(question)).array();
    std::vector<std::string> texts;
    for (const auto& part : parts) texts.push_back(part.toString().toStdString());
    std::vector<CatalogInsert> inserts;
    for (int i = 1; i < parts.size(); ++i) {
      const CatalogInsert number(std::int64_t{parts[i].toInteger()});
      inserts.push_back(parts[i].isString() ? CatalogInsert(texts[std::size_t(i)]) : number);
    }
    const auto expanded = ExpandMessage(texts.at(0), inserts);
    if (!expanded) return std::string("nothing");
    const QJsonArray text{QString::fromStdString(*expanded)};
    return QJsonDocument(text).toJson(QJsonDocument::Compact).toStdString();
  });
}

TEST(MessageFormat, SizesAreBounded) {
  const std::vector<CatalogInsert> one{1};
  EXPECT_EQ(ExpandMessage("%1!4096d!", one)->size(), 4096U);
  EXPECT_EQ(ExpandMessage("%1!#.4096x!", one)->size(), 4098U);
  for (const char* text : {"%1!4097d!", "%1!.4097d!", "%1!99999999999999999999d!"}) {
    EXPECT_FALSE(ExpandMessage(text, one)) << text;
  }
  EXPECT_FALSE(ExpandMessage("%1!*d!", std::vector<CatalogInsert>{kLowest, 1}));
  std::string wide;
  for (int i = 0; i < 16; ++i) wide += "%1!4096d!";
  EXPECT_EQ(ExpandMessage(wide, one)->size(), kMaxMessageBytes);
  EXPECT_EQ(ExpandMessage(wide + "%0", one)->size(), kMaxMessageBytes);
  EXPECT_FALSE(ExpandMessage(wide + ".", one));
  EXPECT_FALSE(ExpandMessage(wide + wide, one));
}

}  // namespace
