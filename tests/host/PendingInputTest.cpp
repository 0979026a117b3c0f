// What the user does to a row with a number while it waits for a slow projector.

#include <gmock/gmock.h>

#include <QLineEdit>

#include "device/channels/LoggingChannel.h"
#include "tests/host/PacedDialog.h"
#include "tests/support/Soon.h"
#include "toolkit/CSliderCtrl.h"

namespace {

using namespace std::chrono_literals;
using testing::ElementsAreArray;

constexpr int kPictureTab = 1;
constexpr int kPlus = 20135, kSlider = 20136, kMinus = 20134, kField = 20329;
constexpr int kContrastPlus = 20137, kIris = 20293;

struct PendingInputTest : PacedDialog {
  /// Presses +, or drags the slider to a position, acts while the command waits, and returns all
  /// commands.
  Strings SentBy(const std::function<void()>& act, std::optional<int> position = {}) {
    projector_->Take();
    InTheWait([this, act] {
      act();
      projector_->Pace(0ms);
    });
    position ? Page().Drag(kSlider, *position) : Page().Click(kPlus);
    EXPECT_TRUE(Soon([this] { return !dialog_.IsBusy(); }));
    Strings sent;
    for (const PjtCommand& command : projector_->Take()) sent.push_back(FormatCommand(command));
    return sent;
  }
  void Press(int times, int control) {
    for (int i = 0; i < times; ++i) Page().Click(control);
  }
  bool IsLight() {
    const auto& field = Page().Item<QLineEdit>(kField);
    return field.palette().color(QPalette::Text) ==
           field.palette().color(QPalette::PlaceholderText);
  }
};

TEST_F(PendingInputTest, IsCarriedOutInOrder) {
  Open(kPictureTab);
  const int start = Page().SliderAt(kSlider);
  const Strings one = SentBy([] {});
  ASSERT_EQ(one.size(), 2U) << "a step and its read";
  Page().Drag(kSlider, start);
  const std::string &up = one[0], &read = one[1];
  const std::string down = "Dec" + up.substr(3);
  const auto set = [](int shown) { return "SetBrightness(" + std::to_string(shown + 128) + ")"; };
  // What is done meanwhile, what is sent besides, and how far it leads.
  const std::tuple<const char*, std::function<void()>, Strings, int> cases[] = {
      {"presses", [this] { Press(3, kPlus); }, {up, read, up, read, up, read}, 4},
      {"both ways",
       [this] { Press(1, kPlus), Press(2, kMinus); },
       {up, read, down, read, down, read},
       0},
      {"by keys, beside Shift and a click into the field",
       [this] {
         for (const Qt::Key key :
              {Qt::Key_Space, Qt::Key_Return, Qt::Key_Shift, Qt::Key_ScrollLock, Qt::Key_Enter})
           Page().Press(kPlus, key);
         QTest::mouseClick(&Page().Item<QWidget>(kField), Qt::LeftButton);
       },
       {up, read, up, read, up, read},
       4},
      {"the last position",
       [this] { Page().Drag(kSlider, -7), Page().Drag(kSlider, 9); },
       {set(9)},
       9},
      {"a position between presses",
       [this] { Press(1, kPlus), Page().Drag(kSlider, -5), Press(1, kPlus); },
       {up, read, set(-5), up, read},
       -4},
  };
  for (const auto& [name, act, more, pending] : cases) {
    SCOPED_TRACE(name);
    Strings all{up, read};
    all.insert(all.end(), more.begin(), more.end());
    EXPECT_THAT(SentBy([&, &act = act, &pending = pending] {
                  act();
                  EXPECT_EQ(Page().Text(kField), QString::number(start + pending));
                  EXPECT_TRUE(IsLight());
                }),
                ElementsAreArray(all));
    EXPECT_EQ(Page().Text(kField), QString::number(start + pending));
    EXPECT_EQ(Page().SliderAt(kSlider), start + pending);
    EXPECT_FALSE(IsLight());
    Page().Drag(kSlider, start);
  }
  InTheWait([this] { Press(2, kPlus), projector_->Pace(0ms); });
  Page().Choose(kIris, 1);
  EXPECT_EQ(Page().SliderAt(kSlider), start) << "not while another row waits";
}

TEST_F(PendingInputTest, IsShownUntilTheLastPressIsAnswered) {
  Open(kPictureTab);
  const int start = Page().SliderAt(kSlider);
  std::vector<int> shown;
  QObject::connect(&Page().Item<QLineEdit>(kField), &QLineEdit::textChanged, &dialog_,
                   [&](const QString& text) { shown.push_back(text.toInt()); });
  SentBy([this] { Press(3, kPlus); });
  EXPECT_THAT(shown, testing::ElementsAre(start + 2, start + 3, start + 4));
}

TEST_F(PendingInputTest, PositionsFollowTheOneThatIsSent) {
  Open(kPictureTab);
  const auto drag = [this] {
    Page().Drag(kSlider, 7), Page().Drag(kSlider, 9);
    QObject::connect(&Page().Item<CSliderCtrl>(kSlider), &CSliderCtrl::valueChanged, &dialog_,
                     [] { ADD_FAILURE() << "a reply moves the handle"; });
  };
  EXPECT_THAT(SentBy(drag, 5), testing::ElementsAre("SetBrightness(133)", "SetBrightness(137)"));
}

TEST_F(PendingInputTest, AReplyDoesNotMoveTheHandleThatIsBeingDragged) {
  Open(kPictureTab);
  auto& slider = Page().Item<CSliderCtrl>(kSlider);
  const QPoint from = slider.HandleRect().center(), to = from + QPoint(40, 0);
  int dragged = 0;
  SentBy([&] {
    QTest::mousePress(&slider, Qt::LeftButton, {}, from);
    QTest::mouseMove(&slider, to);
    dragged = slider.value();
  });
  EXPECT_EQ(slider.value(), dragged);
  projector_->Take();
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, to);
  ASSERT_EQ(projector_->Take().size(), 1U);
  EXPECT_EQ(slider.value(), dragged);
}

TEST_F(PendingInputTest, IsDroppedByAnythingElse) {
  const std::tuple<const char*, std::function<void()>, bool> cases[] = {
      {"another row", [this] { Page().Click(kContrastPlus); }, true},
      {"a list", [this] { Page().Press(kIris, Qt::Key_Down); }, true},
      {"a refusal", [this] { projector_->refuses = true; }, false},
      {"another tab", [this] { ClickTab(0); }, false},
      {"Esc", [this] { QTest::keyClick(Focused(), Qt::Key_Escape); }, false},
  };
  for (const auto& [name, act, atOnce] : cases) {
    SCOPED_TRACE(name);
    Open(kPictureTab);
    MessageBoxes boxes;
    const auto sent = SentBy([&, &act = act, &atOnce = atOnce] {
      Press(3, kPlus);
      act();
      EXPECT_FALSE(atOnce && IsLight());
    });
    projector_->refuses = false;
    EXPECT_EQ(
        std::ranges::count_if(sent, [](const auto& command) { return command.starts_with("Inc"); }),
        1);
    if (dialog_.isVisible() && Tabs().currentIndex() == kPictureTab) {
      EXPECT_EQ(Page().Text(kField), QString::number(Page().SliderAt(kSlider)));
      EXPECT_FALSE(IsLight());
    }
    dialog_.reject();
  }
}

TEST_F(PendingInputTest, TheSliderLeavesAPositionThatIsDropped) {
  Open();
  const auto popUp = MakePopUp(PopUp::ColorTemp, dialog_);
  ::Open(*popUp);
  const DialogDriver driver(*popUp);
  const int start = driver.SliderAt(20181);
  InTheWait([&] {
    driver.Drag(20181, start + 5);
    projector_->refuses = true;
    projector_->Pace(0ms);
  });
  driver.Click(20188);
  EXPECT_TRUE(Soon([&] { return !look_.isActive() && !popUp->IsBusy(); }));
  EXPECT_EQ(driver.SliderAt(20181), start);
}

TEST_F(PendingInputTest, TheReleaseOfAButtonHeldSinceBeforeIsNoFurtherPress) {
  Open(kPictureTab);
  projector_->Take();
  auto& plus = Page().Item<QPushButton>(kPlus);
  InTheWait(
      [&] {
        EXPECT_FALSE(Veil()->mask().contains(plus.geometry().center())) << "its row can be used";
        EXPECT_TRUE(Veil()->mask().contains(Page().Item<QWidget>(kIris).geometry().center()));
        QTest::mouseRelease(&plus, Qt::LeftButton);
        projector_->Pace(0ms);
      },
      true);
  QTest::mousePress(&plus, Qt::LeftButton);
  EXPECT_TRUE(Soon([&] { return !look_.isActive() && !dialog_.IsBusy(); }));
  EXPECT_FALSE(plus.isDown());
  EXPECT_EQ(projector_->Take().size(), 2U);
}

}  // namespace
