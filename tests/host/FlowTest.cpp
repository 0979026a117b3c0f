// What the user sees and can do while the projector is slow.

#include <gmock/gmock.h>

#include <QAbstractItemView>

#include "host/ProjectorStrip.h"
#include "pages/rows/RowMarks.h"
#include "tests/host/PacedDialog.h"
#include "tests/support/Soon.h"
#include "toolkit/CSliderCtrl.h"

namespace {

using namespace std::chrono_literals;
using testing::IsEmpty;

constexpr int kPictureTab = 1, kAudioTab = 5, kOptionTab = 7, kOtherTab = 8;
constexpr int kIris = 20293, kCustomGamma = 20133, kAutoOff = 20369;
constexpr int kBrightness = 20136, kBrightnessPlus = 20135, kBrightnessField = 20329;
constexpr int kClose = 1, kInputSource = 20103;

using FlowTest = PacedDialog;

struct SilentProjectorTest : FlowTest {
  SilentProjectorTest() : FlowTest(std::chrono::seconds(3)) {}
};

TEST_F(FlowTest, ClosingActsAtOnceDuringReadsAndChangesAndSendsNothingMore) {
  const std::pair<std::string, std::function<void()>> ways[] = {
      {"Close", [this] { QTest::mouseClick(dialog_.GetDlgItem(kClose), Qt::LeftButton); }},
      {"Esc", [this] { QTest::keyClick(Focused(), Qt::Key_Escape); }},
      {"window", [this] { dialog_.close(); }},
  };
  const QLabel& age = *dialog_.findChild<ProjectorStrip*>()->findChildren<QLabel*>().last();
  for (const auto& [name, leave] : ways) {
    for (const std::string moment : {"opening", "refresh", "change"}) {
      SCOPED_TRACE(testing::Message() << name << " while " << moment);
      if (moment != "opening") Open(kPictureTab);
      projector_->Take();
      std::size_t sent = 0;
      InTheWait([&, &leave = leave] {
        EXPECT_EQ(age.text().isEmpty(), moment != "change") << "the page was not read yet";
        sent = projector_->Take().size();
        leave();
        EXPECT_FALSE(dialog_.isVisible());
      });
      QElapsedTimer whole;
      whole.start();
      MessageBoxes boxes;
      if (moment == "opening") {
        EXPECT_EQ(dialog_.DoModal(), name == "Close");
      } else if (moment == "refresh") {
        ClickTab(kAudioTab);
      } else {
        projector_->refuses = true;  // a refusal would show an error
        Page().Choose(kIris, 1);
        projector_->refuses = false;
      }
      EXPECT_FALSE(whole.hasExpired(kTooLong.count()));
      EXPECT_GT(sent, 0U);
      projector_->Pace(0ms);
      QTest::qWait(50);
      EXPECT_THAT(projector_->Take(), IsEmpty());
      EXPECT_THAT(boxes.Take(), IsEmpty());
      EXPECT_EQ(dialog_.findChild<RowMarks*>(), nullptr) << "nor is a refusal marked";
    }
  }
}

TEST_F(FlowTest, ClosingAPopUpClosesOnlyThePopUp) {
  Open();
  for (const auto& [tab, button] : {std::pair{kPictureTab, kCustomGamma}, {kOptionTab, 20373}}) {
    ClickTab(tab);
    InTheWait([this] {
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
      projector_->Pace(0ms);
    });
    Page().Click(button);
  }
  EXPECT_TRUE(dialog_.isVisible() && Status().isEmpty());
}

TEST_F(FlowTest, AnotherTabIsShownAtOnceAndReadFromItsStart) {
  Open();
  const std::vector<PjtCommand> status = projector_->Take();
  const std::function<void()> ways[] = {
      [this] { ClickTab(0); },
      [this] { QTest::keyClick(&dialog_, Qt::Key_PageUp, Qt::ControlModifier); },
      [this] { Tabs().setCurrentIndex(0); },
  };
  for (const auto& leave : ways) {
    for (const bool inChange : {false, true}) {
      SCOPED_TRACE(testing::Message()
                   << "way " << &leave - ways << (inChange ? " in a change" : ""));
      if (inChange) ClickTab(kPictureTab);
      InTheWait(
          [&] {
            projector_->Take();
            QApplication::setActiveWindow(&dialog_);  // a list may have been the active window
            leave();
            EXPECT_EQ(dialog_.ShownPage(), &dialog_.Page(PageId::Status));
            projector_->Pace(0ms);
          },
          &leave == ways);
      inChange ? Page().Choose(kIris, 1) : ClickTab(kPictureTab);
      EXPECT_TRUE(Soon([&] { return dialog_.ShownPage()->isVisible(); }));
      std::vector<PjtCommand> sent;
      const auto isWhole = [&] {
        std::ranges::copy(projector_->Take(), std::back_inserter(sent));
        return sent.size() >= status.size();
      };
      EXPECT_TRUE(Soon(isWhole));
      QTest::qWait(30);
      EXPECT_TRUE(isWhole() && sent == status) << "whole, once, and nothing else";
      EXPECT_EQ(Veil(), nullptr);
    }
  }
}

TEST_F(FlowTest, SourcesThatAreReplacedDuringAWaitAreReadAfterIt) {
  Open(kOtherTab);
  SourceList sources;
  AddSource(sources, 1, "Camera");
  auto& list = Page().Item<CComboBox>(kInputSource);
  InTheWait([&] {
    list.showPopup();
    dialog_.ReplaceSources(sources);
    EXPECT_FALSE(list.view()->isVisible()) << "its entries are others now";
    projector_->Take();
    projector_->Pace(0ms);
  });
  dialog_.DispTabScreen();
  EXPECT_EQ(Page().Entries(kInputSource), QStringList{"Camera"});
  const auto sent = projector_->Take();
  dialog_.DispTabScreen();
  EXPECT_GT(sent.size(), projector_->Take().size());
  dialog_.reject();
  dialog_.ReplaceSources({});
  EXPECT_THAT(projector_->Take(), IsEmpty());
}

TEST_F(FlowTest, AReadingThatWasDueAtTheEndIsNotMadeAtTheNextOpening) {
  Open();
  const auto sent = projector_->Take();
  const QString power = Page().Text(20008);
  InTheWait([this] {
    dialog_.DispTabScreen();
    dialog_.reject();
    projector_->Pace(0ms);
  });
  dialog_.DispTabScreen();
  EXPECT_EQ(Page().Text(20008), power) << "the reading that was left shows nothing";
  projector_->Take();
  Open();
  QTest::qWait(0);
  EXPECT_EQ(projector_->Take(), sent);
}

TEST_F(FlowTest, InputDuringAWaitIsDropped) {
  Open();
  projector_->Take();
  ClickTab(kPictureTab);
  const int iris = Page().Selected(kIris);
  const std::vector<PjtCommand> reads = projector_->Take();
  InTheWait([&] {
    Page().Click(kBrightnessPlus);
    Page().Press(kIris, Qt::Key_Down);
    Page().Wheel(kIris, -1);
    Page().Press(kBrightness, Qt::Key_Right);
    QTest::mouseClick(&Page().Item<QWidget>(kBrightness), Qt::LeftButton, {}, QPoint(3, 5));
    QTest::mouseClick(&Page().Item<QWidget>(kIris), Qt::LeftButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    projector_->Pace(0ms);
  });
  dialog_.DispTabScreen();
  QTest::qWait(50);
  EXPECT_TRUE(projector_->Take() == reads) << "once";
  EXPECT_EQ(Page().Selected(kIris), iris);
}

TEST_F(FlowTest, TheWindowIsShownBeforeTheFirstReadAndShowsProgress) {
  projector_->Pace(200ms);
  QStringList seen;
  QTimer look;
  look.callOnTimeout([&] {
    EXPECT_TRUE(dialog_.isVisible());
    if (!seen.contains(Status())) seen << Status();
    EXPECT_TRUE(Status().isEmpty() || Veil() != nullptr);
  });
  look.start(20);
  Open();
  EXPECT_GT(seen.size(), 4) << seen.join('|').toStdString();
  EXPECT_TRUE(seen.contains(CatalogString(5, 4300, std::int64_t{4}, std::int64_t{8})));
  EXPECT_TRUE(Status().isEmpty() && Veil() == nullptr);

  dialog_.Projector().SetChannel(projector_);
  projector_->Pace(0ms);
  seen.clear();
  for (int tab = 0; tab < Tabs().count(); ++tab) ClickTab(tab);
  QTest::qWait(250);
  EXPECT_THAT(seen, testing::Each(QString())) << "a fast projector shows no line";
}

TEST_F(SilentProjectorTest, ShowsThatNobodyAnswersAndTriesAgain) {
  Open();
  projector_->Pace(kForEver);
  ClickTab(kPictureTab);
  EXPECT_EQ(Status(), CatalogString(5, 4302));
  EXPECT_TRUE(Retry().isVisible() && Retry().text() == QStringLiteral("Retry"));
  EXPECT_FALSE(Page().IsEnabled(kIris));
  EXPECT_EQ(Page().Item<QWidget>(kIris).toolTip(), CatalogString(5, 4304));
  EXPECT_EQ(Page().Item<QWidget>(kIris).accessibleDescription(), CatalogString(5, 4304));
  EXPECT_FALSE(dialog_.ShownPage()->Reader().SinceRead());

  projector_->Pace(0ms);
  QTest::mouseClick(&Retry(), Qt::LeftButton);
  EXPECT_TRUE(Soon([this] { return !Retry().isVisible(); }));
  EXPECT_TRUE(Status().isEmpty() && Page().IsEnabled(kIris));
  EXPECT_EQ(Page().Item<QWidget>(kIris).toolTip(), QString());
}

TEST_F(FlowTest, ShowsABusyProjectorAndAPendingChange) {
  Open(kPictureTab);
  projector_->late = true;
  Page().Choose(kIris, 1);
  EXPECT_TRUE(Status() == "Accepted, not yet so" && !Retry().isVisible());
  projector_->late = false;
  Page().Choose(kIris, 2);
  EXPECT_EQ(Status(), QString());
  projector_->refuses = true;
  projector_->busy = true;
  MessageBoxes boxes;
  Page().Choose(kIris, 1);
  EXPECT_EQ(Status(), QStringLiteral("Not possible now: the projector is busy or in standby"));
  EXPECT_EQ(boxes.Take().size(), 1U) << "the row's own rule holds as well";
}

TEST_F(SilentProjectorTest, APopUpShowsThatNobodyAnswersAndTriesAgain) {
  Open(kPictureTab);
  projector_->Pace(kForEver);
  QTimer look;
  look.callOnTimeout([&] {
    QWidget* popUp = QApplication::activeModalWidget();
    auto* line = popUp != nullptr ? popUp->findChild<StatusLine*>() : nullptr;
    auto* retry = line != nullptr ? line->findChild<QPushButton*>() : nullptr;
    if (retry == nullptr || !retry->isVisible()) return;
    look.stop();
    EXPECT_EQ(line->findChild<QLabel*>()->text(), CatalogString(5, 4302));
    projector_->Pace(0ms);
    QTest::mouseClick(retry, Qt::LeftButton);
    EXPECT_TRUE(!retry->isVisible() && popUp->findChild<CSliderCtrl*>()->isEnabled());
    QTest::keyClick(popUp, Qt::Key_Escape);
  });
  look.start(20);
  Page().Click(kCustomGamma);
  EXPECT_FALSE(look.isActive());
}

TEST_F(FlowTest, AHeldButtonStepsOnceForEachReply) {
  Open(kPictureTab);
  const int before = Page().SliderAt(kBrightness);
  auto& plus = Page().Item<QPushButton>(kBrightnessPlus);
  projector_->Take();
  projector_->Pace(60ms);
  QTest::mousePress(&plus, Qt::LeftButton);
  const int steps = projector_->sent + 8;
  EXPECT_TRUE(Soon([&] { return projector_->sent >= steps; }));
  QTest::mouseRelease(&plus, Qt::LeftButton);
  projector_->Pace(0ms);
  EXPECT_TRUE(Soon([this] { return !dialog_.Projector().IsWaiting(); }));
  QTest::qWait(200);
  const std::vector<PjtCommand> sent = projector_->Take();
  EXPECT_GE(sent.size(), 6U);
  for (std::size_t i = 0; i < sent.size(); ++i)
    EXPECT_EQ(sent[i].operation, i % 2 == 0 ? PjtOperation::Inc : PjtOperation::Get);
  EXPECT_EQ(Page().SliderAt(kBrightness), before + static_cast<int>(sent.size()) / 2);
}

TEST_F(FlowTest, ADragShowsTheNumberThatReleasingWouldSend) {
  Open(kPictureTab);
  auto& slider = Page().Item<CSliderCtrl>(kBrightness);
  const QString number = Page().Text(kBrightnessField);
  const auto bubbles = [this] {
    return dialog_.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  };
  const QPoint at = slider.HandleRect().center();
  QTest::mousePress(&slider, Qt::LeftButton, {}, at);
  QTest::mouseMove(&slider, at + QPoint(20, 0));
  ASSERT_EQ(bubbles().size(), 1);
  EXPECT_EQ(bubbles().first()->text(), QString::number(slider.value()));
  EXPECT_TRUE(bubbles().first()->text() != number && Page().Text(kBrightnessField) == number);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, at + QPoint(20, 0));
  EXPECT_TRUE(Soon([&] { return bubbles().isEmpty(); }));
  EXPECT_EQ(Page().Text(kBrightnessField), QString::number(slider.value()));
  QTest::keyPress(&slider, Qt::Key_Left);
  ASSERT_EQ(bubbles().size(), 1);
  EXPECT_EQ(bubbles().first()->text(), QString::number(slider.value()));
  QTest::keyRelease(&slider, Qt::Key_Left);
  ClickTab(kOptionTab);
  Page().Item<CSliderCtrl>(kAutoOff).DragTo(60);
  ASSERT_TRUE(Soon([&] { return bubbles().size() == 1; }));
  EXPECT_EQ(bubbles().first()->text(), QStringLiteral("60\u00a0min"));
}

}  // namespace
