#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/toolkit/SampleDialog.h"
#include "toolkit/CurveView.h"

namespace {

constexpr auto kManyRows = [] {
  std::array<RowTemplate, 62> rows{};
  for (int i = 0; i < 60; ++i) {
    rows[static_cast<std::size_t>(i)] =
        Row(i % 2 == 0 ? Left : Right, Label(100 + i, "Row:"), Combo(200 + i, kEntries));
  }
  rows[60] = Row(Bottom, Button(300, "Do"));
  rows[61] = Row(Bottom, Close(301, "Close"));
  return rows;
}();
constexpr DialogTemplate kTall{.number = 901, .caption = "Tall", .rows = kManyRows};
constexpr const DialogTemplate* kTallTemplates[] = {&kTall};
constexpr ResourceModule kTallModule{kTallTemplates};

TEST(TallDialog, ScrollsAndKeepsCloseInSight) {
  ResourceChain::Register(kTallModule);
  CDialog dialog(901);
  QTimer::singleShot(0, &dialog, [&dialog] {
    const DialogDriver driver(dialog);
    Activate(dialog);
    EXPECT_LT(dialog.height(), dialog.screen()->availableGeometry().height());
    const auto isInSight = [&dialog](int id) {
      const QWidget& control = *dialog.GetDlgItem(id);
      const QRect place(control.mapTo(&dialog, QPoint()), control.size());
      return dialog.rect().contains(place) && !control.visibleRegion().isEmpty();
    };
    EXPECT_TRUE(isInSight(200) && isInSight(301));
    EXPECT_FALSE(isInSight(259));
    dialog.GetDlgItem(259)->setFocus();
    EXPECT_TRUE(isInSight(259) && isInSight(301));
    EXPECT_FALSE(isInSight(200));
    driver.Click(301);
  });
  EXPECT_EQ(dialog.DoModal(), QDialog::Accepted);
  ResourceChain::SetCurrent(&kTallModule);
  ResourceChain::Unregister(kTallModule);
  EXPECT_EQ(ResourceChain::Current(), nullptr) << "it may be unloaded now";
}

struct Curve : testing::Test {
  Curve() {
    curve.resize(300, 300);
    curve.Show({{.accepted = {{0.2, 0.2}}, .values = {7}},
                {.hue = 0, .accepted = {{0.8, 0.8}}, .values = {8}, .movable = true}});
    curve.show();
    QObject::connect(&curve, &CurveView::Dragged, [this](int value) { told.push_back(value); });
    QObject::connect(&curve, &CurveView::Dropped, [this](int value) { told.push_back(-value); });
  }
  QPoint At(double point) const { return curve.PlaceOf({point, point}).toPoint(); }

  CurveView curve{nullptr};
  std::vector<int> told;
};

TEST_F(Curve, OnlyMovablePointsAreDraggedAndOnlyWithTheLeftButton) {
  for (const auto& [point, button, drags] : {std::tuple{0.2, Qt::LeftButton, false},
                                             {0.8, Qt::RightButton, false},
                                             {0.8, Qt::LeftButton, true}}) {
    QTest::mousePress(&curve, button, {}, At(point));
    QTest::mouseMove(&curve, At(point) - QPoint(0, 30));
    QTest::mouseRelease(&curve, button, {}, At(point) - QPoint(0, 30));
    EXPECT_EQ(std::exchange(told, {}), drags ? std::vector({8, -8}) : std::vector<int>());
  }
  QTest::mouseClick(&curve, Qt::LeftButton, {}, At(0.8));
  EXPECT_TRUE(told.empty()) << "it was not moved";
  for (const double point : {0.8, 0.2}) {
    QTest::mouseMove(&curve, At(point));
    EXPECT_EQ(curve.cursor().shape(), point == 0.8 ? Qt::SizeVerCursor : Qt::ArrowCursor);
  }
}

}  // namespace
