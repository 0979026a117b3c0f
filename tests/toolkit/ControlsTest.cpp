#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/toolkit/SampleDialog.h"
#include "toolkit/Contrast.h"
#include "toolkit/CurveView.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/NumberField.h"

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

TEST(FittedScroll, ShowsTheControlWithTheFocusInBothDirections) {
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    auto* contents = new QWidget;
    contents->setMinimumSize(2000, 50);
    FittedScroll scroll(contents, nullptr);
    scroll.setLayoutDirection(direction);
    auto* left = new QPushButton(contents);
    auto* right = new QPushButton(contents);
    right->move(1800, 0);
    scroll.resize(400, 100);
    Activate(scroll);
    for (QPushButton* field : {right, left, right}) {
      field->setFocus();
      const QRect place(field->mapTo(scroll.viewport(), QPoint()), field->size());
      EXPECT_TRUE(scroll.viewport()->rect().contains(place)) << direction << ' ' << place.x();
    }
  }
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

TEST_F(Curve, ItsLinesCanBeSeenWithAnyPalette) {
  for (const QColor& base : {QColor(Qt::white), QColor(30, 30, 30)}) {
    QPalette palette = curve.palette();
    palette.setColor(QPalette::Base, base);
    curve.setPalette(palette);
    EXPECT_GE(ContrastOf(curve.grab().toImage().pixelColor(At(0.8)), base), 3);
  }
}

// A word stands before the number where the text runs from right to left, a sign never.
TEST(NumberField, DrawsItsUnitBesideTheNumber) {
  for (const auto& [direction, unit, isRight] : {std::tuple{Qt::LeftToRight, "min", true},
                                                 {Qt::RightToLeft, "min", false},
                                                 {Qt::RightToLeft, "%", true},
                                                 {Qt::LeftToRight, "", true}}) {
    NumberField field(nullptr);
    field.setLayoutDirection(direction);
    field.setText(QStringLiteral("5"));
    field.setFixedWidth(150);
    const QImage without = field.grab().toImage();
    const int room = field.textMargins().right();
    field.SetUnit(QString::fromUtf8(unit), QStringLiteral("5"));
    EXPECT_EQ(field.textMargins().right() > room, isRight && *unit != 0);
    EXPECT_EQ(field.grab().toImage() == without, *unit == 0);
  }
}

}  // namespace
