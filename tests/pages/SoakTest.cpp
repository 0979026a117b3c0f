// Random user actions on the whole dialog of every model, with a projector that refuses and fails
// at random. Afterwards every control must show the projector's value. SOAK_SEED selects other
// actions, SOAK_ACTIONS more of them.

#include <random>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "device/ModelDataIntake.h"
#include "device/channels/LoggingChannel.h"
#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/ShownValues.h"

namespace {

constexpr int kActionsPerModel = 750;

class RandomUser {
 public:
  RandomUser(CAdvanceDlg& dialog, FaultChannel& faults, unsigned seed)
      : dialog_(dialog), faults_(faults), random_(seed) {
    // Windows that open above the dialog are used for a moment and closed.
    QObject::connect(&popups_, &QTimer::timeout, [this] { UsePopup(); });
    popups_.start(0);
  }

  void Act() {
    faults_.SetFault({.kind = Pick(10) < 2   ? Fault::Kind::Refuse
                              : Pick(10) < 1 ? Fault::Kind::FailRead
                                             : Fault::Kind::None});
    if (Pick(25) == 0) {
      auto* tabs = dialog_.findChild<QTabBar*>();
      tabs->setCurrentIndex(Pick(tabs->count()));
    } else if (CTabPage* page = dialog_.ShownPage()) {
      ActOn(*page);
    }
  }

 private:
  int Pick(std::ptrdiff_t count) {
    return static_cast<int>(std::uniform_int_distribution<std::ptrdiff_t>(0, count - 1)(random_));
  }

  void ActOn(CDialog& dialog) {
    const std::vector<QWidget*> usable = UsableControls(dialog);
    if (!usable.empty()) Use(*usable[static_cast<std::size_t>(Pick(std::ssize(usable)))]);
  }

  void Use(QWidget& widget) {
    static constexpr Qt::Key keys[] = {Qt::Key_Up,   Qt::Key_Down,     Qt::Key_Left,
                                       Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Space,
                                       Qt::Key_End,  Qt::Key_Return,   Qt::Key_Tab};
    if (qobject_cast<QLabel*>(&widget) != nullptr) return;
    widget.setFocus();
    if (auto* button = qobject_cast<QAbstractButton*>(&widget); button != nullptr && Pick(4) != 0) {
      QTest::mouseClick(button, Qt::LeftButton);
    } else if (qobject_cast<QSlider*>(&widget) != nullptr && Pick(2) == 0) {
      const QPoint from(Pick(widget.width()), Pick(widget.height()));
      const QPoint to(Pick(widget.width()), Pick(widget.height()));
      QTest::mousePress(&widget, Qt::LeftButton, {}, from);
      QTest::mouseMove(&widget, to);
      QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
    } else if (Pick(4) == 0) {
      Wheel(widget, Pick(2) == 0 ? 1 : -1);
    } else {
      QTest::keyClick(&widget, keys[Pick(std::size(keys))]);
      if (QWidget* popup = QApplication::activePopupWidget())
        QTest::keyClick(popup->focusWidget() != nullptr ? popup->focusWidget() : popup,
                        Qt::Key_Enter);
      if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    }
  }

  void UsePopup() {
    auto* popup = qobject_cast<CDialog*>(QApplication::activeModalWidget());
    if (popup == nullptr) return;
    for (int i = 0; i < 10 && popup->isVisible(); ++i) ActOn(*popup);
    popup->reject();
  }

  CAdvanceDlg& dialog_;
  FaultChannel& faults_;
  std::mt19937 random_;
  QTimer popups_;
  MessageBoxes boxes_{random_() % 2 == 0};
};

class SoakTest : public testing::TestWithParam<CModelInfo2> {};

TEST_P(SoakTest, EveryControlEndsUpShowingTheProjectorsValue) {
  const auto seed = static_cast<unsigned>(EnvironmentNumber("SOAK_SEED", GetParam().ModelCode));
  const CModelInfo2& info = GetParam();
  const ModelData model = MakeModelData(info);
  const auto projector = std::make_shared<SimulatedProjector>(DescribeModel(model));
  const auto faults = std::make_shared<FaultChannel>(projector);
  int changes = 0;
  CAdvanceDlg dialog;
  Open(dialog, info,
       std::make_shared<LoggingChannel>(faults, [&changes](const PjtCommand& sent, auto&&...) {
         changes += !IsRead(sent.operation);
       }));
  {
    RandomUser user(dialog, *faults, seed);
    const int actions = EnvironmentNumber("SOAK_ACTIONS", kActionsPerModel);
    for (int i = 0; i < actions; ++i) {
      user.Act();
      ASSERT_TRUE(dialog.isVisible()) << "action " << i << " closed the dialog";
    }
  }
  EXPECT_GT(changes, 50) << "the user reached hardly any control";

  faults->Clear();
  auto* tabs = dialog.findChild<QTabBar*>();
  for (int tab = 0; tab < tabs->count(); ++tab) {
    SCOPED_TRACE("tab " + std::to_string(tab));
    tabs->setCurrentIndex(tab);
    dialog.ShownPage()->InitDisp();
    ExpectShowsProjector(dialog);
  }
}

INSTANTIATE_TEST_SUITE_P(EveryModel, SoakTest, testing::ValuesIn(EveryModel()),
                         [](const auto& model) {
                           return "Type" + std::to_string(model.param.DialogType) + "Code" +
                                  std::to_string(model.param.ModelCode);
                         });

}  // namespace
