#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"

namespace {

struct StatusTest : testing::Test {
  OpenDialog open{[] {
    CModelInfo2 model = MakeModel(5, 30);
    AddSource(model.MySourceList, 4, "Computer2");
    AddSource(model.MySourceList, 1, "Video");
    model.MySourceList.firstValues[15] = 77;
    model.MySourceList.names[15] = MakeNameSlot("Left over");
    return model;
  }()};
  DialogDriver driver = open.Driver();
  RecordingChannel& projector = open.Projector();

  QString Shown(const char* key, int value, int id) {
    projector.Answer(key, value);
    open.Page().InitDisp();
    return driver.Text(id);
  }
};

TEST_F(StatusTest, EachValueHasItsText) {
  const struct {
    const char* key;
    int id;
    std::vector<std::pair<int, int>> texts;
  } rows[] = {
      // clang-format off
      {"Get 0x6000", 20008, {{1, 31}, {2, 3309}, {0, 30}, {3, 30}, {0xFFFF, 30}}},
      {"Get 0x6020", 20010, {{0, 332}, {1, 3310}, {2, 3311}, {3, 3312}, {4, 3313}, {5, 3314}, {6, 3315}, {7, 3316},
                             {8, 3317}, {9, 3318}, {11, 3318}, {12, 413}, {13, 3318}, {200, 3318}}},
      {"Get 0x3020", 20011, {{1, 31}, {0, 30}, {2, 30}}},
      {"Get 0x2002", 20012, {{1, 31}, {0, 30}, {2, 30}}},
      {"Get 0x3002", 20013, {{1, 3333}, {0, 3336}, {2, 3336}}},
      // clang-format on
  };
  for (const auto& row : rows) {
    for (const auto& [value, number] : row.texts) {
      EXPECT_EQ(Shown(row.key, value, row.id), CatalogString(5, number))
          << row.key << " = " << value;
    }
  }
  EXPECT_EQ(Shown("Get 0x1090", 40000, 20014), CatalogString(5, 320, 40000)) << "unsigned hours";
  EXPECT_TRUE(Shown("Get 0x10A0", 12, 20015).contains(QStringLiteral("12")));
}

TEST_F(StatusTest, TheInputSourceIsTheNameInAnySlot) {
  EXPECT_EQ(Shown("Get 0x2000", 1, 20009), QStringLiteral("Video"));
  EXPECT_EQ(Shown("Get 0x2000", 77, 20009), QStringLiteral("Left over")) << "beyond the count";
  EXPECT_EQ(Shown("Get 0x2000", 5, 20009), QString());
}

}  // namespace
