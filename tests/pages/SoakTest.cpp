// Thousands of random user actions on the whole dialog of every model, with a projector that
// refuses and fails at random; afterwards the dialog must show what the projector says.

#include <chrono>
#include <cstdlib>
#include <random>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "device/LoggingChannel.h"
#include "device/ModelDataIntake.h"
#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/DialogDriver.h"

namespace {

constexpr int kActionsPerModel = 6000;
constexpr auto kTimePerModel = std::chrono::milliseconds(2500);

CModelInfo2 SoakModel(int modelCode) {
  CModelInfo2 model = MakeModel(5, modelCode);
  for (const int value : {16, 17, 32, 33}) AddEntry(model.GammaList, value, "gamma");
  for (const int value : {1, 2, 3, 17}) AddEntry(model.ColorTempList, value, "temperature");
  for (const char* name : {"Normal", "Whisper"}) {
    AddEntry(model.WhisperList, model.WhisperList.count, name);
  }
  for (const int value : {0, 4, 3, 16, 17, 255}) AddEntry(model.MyButtonList, value, "button");
  for (const char* name : {"Computer1", "Computer2", "Component", "S-Video", "Video"}) {
    AddSource(model.MySourceList, model.MySourceList.count, name);
  }
  return model;
}

class RandomUser {
 public:
  RandomUser(CAdvanceDlg& dialog, FaultChannel& faults, unsigned seed)
      : dialog_(dialog), faults_(faults), random_(seed) {
    // Whatever comes up above the dialog is used for a moment and closed.
    QObject::connect(&popups_, &QTimer::timeout, [this] { UsePopup(); });
    QObject::connect(&boxes_, &QTimer::timeout, [this] { AnswerBox(); });
    popups_.start(0);
    boxes_.start(0);
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
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }

  void ActOn(CDialog& dialog) {
    std::vector<QWidget*> usable;
    for (const RowTemplate& row : dialog.Template()->rows) {
      for (const ControlTemplate& control : row.controls) {
        QWidget* widget = dialog.GetDlgItem(control.id);
        if (widget == nullptr || !widget->isVisible() || !widget->isEnabled() ||
            control.kind == ControlKind::Close) {
          continue;
        }
        usable.push_back(widget);
      }
    }
    if (usable.empty()) return;
    Use(*usable[static_cast<std::size_t>(Pick(static_cast<int>(usable.size())))]);
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
      const QPointF at = widget.rect().center();
      QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, Pick(2) == 0 ? 120 : -120},
                        Qt::NoButton, {}, Qt::NoScrollPhase, false);
      QApplication::sendEvent(&widget, &event);
    } else {
      QTest::keyClick(&widget, keys[Pick(std::size(keys))]);
      if (QWidget* popup = QApplication::activePopupWidget()) {
        QTest::keyClick(popup->focusWidget() != nullptr ? popup->focusWidget() : popup,
                        Qt::Key_Enter);
      }
      if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    }
  }

  void AnswerBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    const auto buttons = box->buttons();
    QTest::mouseClick(buttons[Pick(static_cast<int>(buttons.size()))], Qt::LeftButton);
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
  QTimer boxes_;  // a timer of its own: boxes come up while a pop-up is in use
};

// What a page shows: text, position and state of every control that follows the projector.
std::vector<std::string> Shown(const CTabPage& page) {
  std::set<int> passive;
  for (const Notification& entry : page.Notifications().Entries()) {
    if (entry.event == Notification::Event::Passive) passive.insert(entry.id);
  }
  std::vector<std::string> shown;
  for (const RowTemplate& row : page.Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      const QWidget* widget = page.GetDlgItem(control.id);
      if (widget == nullptr || !widget->isVisible() || passive.contains(control.id)) continue;
      std::string text = std::to_string(control.id) + (widget->isEnabled() ? " on" : " off");
      if (const auto* slider = qobject_cast<const QSlider*>(widget)) {
        text += ' ' + std::to_string(slider->value());
      } else if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        text += ' ' + std::to_string(combo->currentIndex());
      } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        text += button->isChecked() ? " checked" : "";
      } else if (const auto* field = qobject_cast<const QLineEdit*>(widget)) {
        text += ' ' + field->text().toStdString();
      } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        text += ' ' + label->text().toStdString();
      }
      shown.push_back(text);
    }
  }
  return shown;
}

class SoakTest : public testing::TestWithParam<int> {};

TEST_P(SoakTest, EveryControlEndsUpShowingTheProjectorsValue) {
  const char* given = std::getenv("SOAK_SEED");
  const unsigned seed = given != nullptr ? static_cast<unsigned>(std::strtoul(given, nullptr, 10))
                                         : std::random_device()();
  SCOPED_TRACE("SOAK_SEED=" + std::to_string(seed));

  const CModelInfo2 model = SoakModel(GetParam());
  const auto projector = std::make_shared<SimulatedProjector>(DescribeModel(MakeModelData(model)));
  const auto faults = std::make_shared<FaultChannel>(projector);
  int changes = 0;
  const auto counted = std::make_shared<LoggingChannel>(
      faults, [&changes](const PjtCommand& command, const PjtReply&, auto) {
        changes += !IsRead(command.operation);
      });
  const auto open = [&](CAdvanceDlg& dialog) {
    dialog.CopyData(&model, 0);
    dialog.Projector().SetChannel(counted);
    ASSERT_TRUE(dialog.Create());
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  };

  CAdvanceDlg used;
  open(used);
  {
    RandomUser user(used, *faults, seed);
    const auto end = std::chrono::steady_clock::now() + kTimePerModel;
    for (int i = 0; i < kActionsPerModel && std::chrono::steady_clock::now() < end; ++i) {
      user.Act();
      ASSERT_TRUE(used.isVisible()) << "action " << i << " closed the dialog";
    }
  }

  EXPECT_GT(changes, 100) << "the user reached hardly any control";

  faults->Clear();
  CAdvanceDlg fresh;
  open(fresh);
  auto* usedTabs = used.findChild<QTabBar*>();
  auto* freshTabs = fresh.findChild<QTabBar*>();
  for (int tab = 0; tab < usedTabs->count(); ++tab) {
    usedTabs->setCurrentIndex(tab);
    freshTabs->setCurrentIndex(tab);
    used.ShownPage()->InitDisp();
    fresh.ShownPage()->InitDisp();
    EXPECT_EQ(Shown(*used.ShownPage()), Shown(*fresh.ShownPage())) << "tab " << tab;
  }
}

INSTANTIATE_TEST_SUITE_P(EveryModel, SoakTest,
                         testing::Values(30, 31, 32, 33, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46,
                                         49, 50, 51, 52, 53, 54));

}  // namespace
