#include <functional>
#include <gmock/gmock.h>

#include <QJsonArray>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "app/host/ProfileDocument.h"
#include "tests/support/Programs.h"

namespace {

const QJsonValue kNone(QJsonValue::Undefined);

struct EditCase {
  QByteArray text;
  std::function<QByteArray(const QByteArray&)> edit;
  QByteArray result;
};

EditCase Set(const char* text, JsonEdit::Path path, JsonEdit::Member member, const char* result) {
  return {text, [=](const QByteArray& all) { return JsonEdit::SetMember(all, path, member); },
          result};
}
EditCase Insert(const char* text, qsizetype after, const char* result) {
  return {text,
          [=](const QByteArray& all) { return JsonEdit::InsertElement(all, {"a"}, after, "9"); },
          result};
}
EditCase Remove(const char* text, qsizetype position, const char* result) {
  return {text,
          [=](const QByteArray& all) { return JsonEdit::RemoveElement(all, {"a"}, position); },
          result};
}

TEST(JsonEdit, LeavesAllElseAsItWasWritten) {
  const EditCase cases[] = {
      Set("{ \"a\" :1 ,\"b\": 2}", {}, {"a", 5}, "{ \"a\" :5 ,\"b\": 2}"),
      Set("{\n  \"a\": 1,\n  \"b\": 2\n}", {}, {"c", "x"},
          "{\n  \"a\": 1,\n  \"b\": 2,\n  \"c\": \"x\"\n}"),
      Set("{\r\n\t\"a\": 1\r\n}", {}, {"c", true}, "{\r\n\t\"a\": 1,\r\n\t\"c\": true\r\n}"),
      Set("{}", {}, {"c", QJsonArray{1, 2}}, "{\"c\": [1,2]}"),
      Set("{\"a\": 1}", {}, {"b", kNone}, "{\"a\": 1}"),
      Set("{\"a\": 1, \"b\": 2}", {}, {"a", kNone}, "{\"b\": 2}"),
      Set("{\"a\": 1,  \"b\": 2 }", {}, {"b", kNone}, "{\"a\": 1 }"),
      Set("{ \"a\": 1 }", {}, {"a", kNone}, "{  }"),
      Set("\xEF\xBB\xBF [0, {\"x\\\"}\": \"]\\\\\", \"\\u0061\": {\"b\": [{}]}}]",
          {qsizetype{1}, "a"}, {"b", 1},
          "\xEF\xBB\xBF [0, {\"x\\\"}\": \"]\\\\\", \"\\u0061\": {\"b\": 1}}]"),
      Insert("{\"a\": [1,\n 2]}", 0, "{\"a\": [1,\n 9,\n 2]}"),
      Insert("{\"a\": [\n {}\n]}", 0, "{\"a\": [\n {},\n 9\n]}"),
      Remove("{\"a\": [1 , 2 , 3 ]}", 1, "{\"a\": [1 , 3 ]}"),
      Remove("{\"a\": [1 , 2 , 3 ]}", 2, "{\"a\": [1 , 2 ]}"),
      Remove("{\"a\": [{\"b\": [1, 2]}, 2]}", 0, "{\"a\": [2]}"),
  };
  for (const EditCase& edit : cases) {
    EXPECT_EQ(edit.edit(edit.text).toStdString(), edit.result.toStdString()) << edit.text.data();
  }
}

class ProfileDocumentFile : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QFile::copy(TEST_CATALOG_DIR "/projectors.json", name));
    ASSERT_EQ(document.Load(name), "");
  }

  const QTemporaryDir folder;
  const QString name = folder.filePath("p.json");
  ProfileDocument document;
};

TEST_F(ProfileDocumentFile, EachProjectorIsCopiedAndRemovedWithoutATrace) {
  const QByteArray before = Contents(name);
  const std::size_t count = document.Projectors().size();
  for (std::size_t i = 0; i < count; i += 7) {
    ASSERT_EQ(document.Duplicate(i, "copy"), "");
    ASSERT_EQ(document.Projectors().size(), count + 1);
    EXPECT_EQ(document.Projectors()[i].Model, document.Projectors()[i + 1].Model);
    EXPECT_NE(Contents(name), before);
    ASSERT_EQ(document.Remove(i + 1), "");
    ASSERT_EQ(Contents(name), before) << i;
  }
}

TEST_F(ProfileDocumentFile, WhatCannotBeDoneChangesNothing) {
  using testing::HasSubstr;
  const QByteArray before = Contents(name);
  const QString taken = QString::fromStdString(document.Projectors()[0].Name);
  EXPECT_THAT(document.Duplicate(1, taken).toStdString(), HasSubstr("is the name of"));
  EXPECT_THAT(document.Change(1, {{"modelCode", "x"}}).toStdString(), HasSubstr("whole number"));
  EXPECT_THAT(document.Change(1, {{"name", kNone}}).toStdString(), HasSubstr("is missing"));
  EXPECT_EQ(Contents(name), before);

  Write(name, before + "\n");
  EXPECT_THAT(document.Remove(1).toStdString(), HasSubstr("changed by another program"));
  EXPECT_EQ(Contents(name), before + "\n");
  EXPECT_EQ(document.Load(name), "");
  EXPECT_EQ(document.Remove(1), "");

  const std::size_t count = document.Projectors().size();
  QFile::remove(name);
  EXPECT_THAT(document.Remove(1).toStdString(), HasSubstr("cannot read"));
  EXPECT_THAT(document.SaveAs("/nowhere/p.json").toStdString(), HasSubstr("/nowhere/p.json"));
  EXPECT_EQ(document.Projectors().size(), count);
  EXPECT_EQ(document.SaveAs(name), "");
  EXPECT_EQ(document.Remove(1), "");
}

}  // namespace
