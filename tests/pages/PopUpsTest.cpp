// Behaviour of the pop-ups that the files in listing/ do not show.

#include <tuple>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/common/StatusLine.h"
#include "pages/rows/RowMarks.h"
#include "settings/PageTables.h"
#include "tests/support/DialogDriver.h"
#include "toolkit/CurveView.h"
#include "toolkit/FittedScroll.h"

namespace {

struct OpenPopUp : OpenDialog {
  explicit OpenPopUp(PopUp kind, int code = 30, int fontSize = 9)
      : OpenDialog(MakeModel(5, code)), popUp(MakePopUp(kind, Dialog())) {
    popUp->setFont(QFont(popUp->font().family(), fontSize));
    Open(*popUp);
    EXPECT_TRUE(QTest::qWaitForWindowActive(popUp.get()));
  }
  Strings Click(int id) {
    Projector().Take();
    driver.Click(id);
    return Projector().Take();
  }

  std::unique_ptr<RowDialog> popUp;
  DialogDriver driver{*popUp};
};

TEST(PopUps, ResetsStopAtThePagesBoundAndAreNotRemembered) {
  for (const auto& [kind, table, bound] :
       {std::tuple{PopUp::Gamma, &kGammaRows, -16}, {PopUp::ColorTemp, &kColorTempRows, -32}}) {
    OpenPopUp open(kind);
    for (const PageRow& row : table->rows) {
      const auto* number = std::get_if<ValueRow>(&row);
      if (number == nullptr) continue;
      // The shown value is 5, and the next step starts from it. A value below the page's bound is
      // not shown.
      open.driver.Drag(number->ids.slider, 5);
      const std::string read = open.Click(number->reset->button).back();
      for (const int value : {bound, bound - 1}) {
        open.Projector().Answer(read, value + 128);
        open.Click(number->reset->button);
        EXPECT_EQ(open.driver.Text(number->ids.field), QString::number(bound)) << number->key;
      }
      EXPECT_FALSE(open.Click(number->ids.minus).empty());
    }
  }
}

TEST(ColorTempPopUp, ItsPictureFollowsEachRowAndIsDescribedByCaptionsAndValues) {
  OpenPopUp open(PopUp::ColorTemp);
  auto& curve = *open.popUp->findChild<CurveView*>();
  const auto redAt = [&](QPointF point) {
    const QColor drawn = curve.grab().toImage().pixelColor(curve.PlaceOf(point).toPoint());
    return drawn.red() > drawn.green() + 50 && drawn.red() > drawn.blue() + 50;
  };
  for (const auto& [gain, offset] : {std::pair{0, 0}, {30, 0}, {-30, 0}, {0, 30}, {-20, -30}}) {
    open.driver.Drag(20181, gain);
    open.driver.Drag(21026, offset);
    const double start = offset / 256.0;
    EXPECT_TRUE(redAt({0, start})) << offset;
    EXPECT_TRUE(redAt({1, 1 + start + gain / 128.0})) << gain;
  }
  EXPECT_TRUE(curve.accessibleDescription().startsWith(
      QStringLiteral("Color Temp Gain R -20, Color Temp Gain G -128, ")));
}

TEST(GammaPopUp, APendingPressIsNotDescribedAsAccepted) {
  OpenPopUp open(PopUp::Gamma);
  open.Projector().Answer("Get 0x3090", 129);
  QString whilePending;
  const auto& field = open.driver.Item<QLineEdit>(20162);
  QObject::connect(
      &field, &QLineEdit::textChanged, &field,
      [&] {
        open.driver.Click(20161);
        EXPECT_NE(field.text(), QStringLiteral("1"));
        whilePending = open.popUp->findChild<CurveView*>()->accessibleDescription();
      },
      Qt::SingleShotConnection);
  open.driver.Click(20161);
  EXPECT_TRUE(whilePending.startsWith(QStringLiteral("User Gamma Point 1 1,")))
      << whilePending.toStdString();
}

TEST(GammaPopUp, APointOfTheCurveCanBeDraggedAndSendsWhatItsSliderSends) {
  OpenPopUp open(PopUp::Gamma);
  auto& curve = *open.popUp->findChild<CurveView*>();
  const auto drag = [&](double toValue) {
    Q_EMIT curve.Dragged(2, 3.0 / 9 + toValue / 48);
    EXPECT_TRUE(open.Projector().Take().empty()) << "not before the end";
    Q_EMIT curve.Dropped(2);
    return open.Projector().Take();
  };
  open.driver.Drag(21025, 1);
  open.Projector().Take();
  const Strings byCurve = drag(9);
  EXPECT_EQ(open.driver.Text(20168), QStringLiteral("9"));
  open.driver.Drag(21025, 1);
  open.Projector().Take();
  open.driver.Drag(21025, 9);
  EXPECT_EQ(open.Projector().Take(), byCurve);
  Activate(*open.popUp);
  for (const auto& [control, point] : {std::pair{20181, 0}, {20341, 5}, {20168, 2}}) {
    open.popUp->GetDlgItem(control)->setFocus();
    EXPECT_EQ(curve.Marked(), point) << "the point of the row with the focus";
  }
  drag(100);
  EXPECT_EQ(open.driver.SliderAt(21025), open.driver.Item<QSlider>(21025).maximum());
}

TEST(GammaPopUp, ThatScrollsShowsItsLineAndTheMarksAndMenusOfTheVisibleRows) {
  OpenPopUp open(PopUp::Gamma, 30, 40);
  const MessageBoxes boxes;
  open.Projector().Refuse("Inc 0x3090");
  open.Click(20161);
  const auto& line = *open.popUp->findChild<StatusLine*>();
  EXPECT_EQ(line.visibleRegion().boundingRect(), line.rect());
  auto& area = *open.popUp->findChild<FittedScroll*>();
  EXPECT_EQ(open.popUp->findChild<RowMarks*>()->geometry(),
            area.viewport()->geometry().translated(area.pos()));
  area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum() / 2);
  for (const RowTemplate& row : open.popUp->Template()->rows) {
    const auto& [kind, id, text, entries] = row.controls.front();
    if (kind != ControlKind::Label) continue;
    const QWidget& caption = *open.popUp->GetDlgItem(id);
    const bool isVisible = caption.visibleRegion().contains(caption.rect().center());
    QApplication::clipboard()->setText({});
    Menu(*open.popUp, id, "Copy");
    EXPECT_EQ(QApplication::clipboard()->text().section(':', 0, 0),
              isVisible ? open.driver.Text(id) : QString());
  }
}

TEST(ServicePopUp, ABoxThatChangedWhileAHandlerRanIsReadAgainUnlessItWasLeft) {
  enum class Left : std::uint8_t { No, Before, After };
  for (const Left left : {Left::No, Left::Before, Left::After}) {
    OpenPopUp open(PopUp::Service);
    auto& box = open.driver.Item<QCheckBox>(20375);
    const QPoint at(6, box.height() / 2);
    QTest::mousePress(&box, Qt::LeftButton, {}, at);
    {
      const CDialog::Busy handler(open.popUp.get());
      QTest::mouseRelease(&box, Qt::LeftButton, {}, at);
      EXPECT_TRUE(box.isChecked());
      if (left == Left::Before) open.popUp->reject();
      open.Projector().Take();
    }
    if (left == Left::After) open.popUp->reject();
    QTest::qWait(0);
    EXPECT_NE(open.Projector().Take().empty(), left == Left::No);
    EXPECT_NE(box.isChecked(), left == Left::No);
  }
}

TEST(ServicePopUp, TheHeightFollowsThePresentRowsAndTopKeepsItsPlaceWithoutRear) {
  const OpenPopUp four(PopUp::Service, 30), five(PopUp::Service, 44);
  EXPECT_LT(four.popUp->height(), five.popUp->height());
  EXPECT_EQ(five.popUp->GetDlgItem(20377)->x(), four.popUp->GetDlgItem(20377)->x());
}

}  // namespace
