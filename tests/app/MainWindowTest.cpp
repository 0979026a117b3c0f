#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "app/CommandLog.h"
#include "app/FaultPanel.h"
#include "app/MainWindow.h"
#include "app/ProjectorView.h"
#include "host/CAdvanceDlg.h"

namespace {

using namespace std::chrono_literals;

ProjectorProfile Profile(const char* name) {
  ProjectorProfile profile;
  profile.Name = name;
  profile.Model.ModelName = name;
  profile.Model.DialogType = 5;
  profile.Model.ModelCode = 30;
  return profile;
}

/// The child that shows or is called so.
template <typename Widget>
Widget& Child(const QWidget& window, const char* name) {
  for (auto* child : window.findChildren<Widget*>()) {
    if (child->accessibleName() == name || child->property("text") == name) return *child;
  }
  ADD_FAILURE() << "there is no " << name;
  std::abort();
}

void ClickButton(const QWidget& window, const char* text) {
  QTest::mouseClick(&Child<QPushButton>(window, text), Qt::LeftButton);
}

/// Runs the steps, each from the program's event loop, as in the running program, and not before
/// the one before it is done: a command that waits lets timers fire.
void RunProgram(const std::vector<std::function<void()>>& steps) {
  QTimer watchdog;
  watchdog.callOnTimeout([] { QApplication::exit(-1); });
  watchdog.start(20s);
  std::function<void(std::size_t)> run = [&](std::size_t step) {
    steps[step]();
    if (step + 1 == steps.size()) return;
    QTimer::singleShot(20ms, &watchdog, [&run, step] { run(step + 1); });
  };
  QTimer::singleShot(20ms, &watchdog, [&run] { run(0); });
  EXPECT_EQ(QApplication::exec(), 0) << "the program did not come to its end";
}

// Closes dialog or window while a tab change waits for a late projector.
void CloseWhileACommandWaits(bool wholeWindow) {
  auto window = std::make_unique<MainWindow>(std::vector{Profile("A")});
  window->show();
  QPointer<CAdvanceDlg> dialog;
  bool waited = false;
  RunProgram({
      [&] { dialog = window->OpenDialog(0); },
      [&] {
        auto& panel = *window->findChild<FaultPanel*>();
        Child<QComboBox>(panel, "Fault").setCurrentText("Delay");
        panel.findChild<QSpinBox*>()->setValue(200);
        ClickButton(panel, "&Set Fault");
        QWidget* closed = wholeWindow ? static_cast<QWidget*>(window.get()) : dialog.data();
        QTimer::singleShot(100ms, closed, &QWidget::close);
        dialog->findChild<QTabBar*>()->setCurrentIndex(1);
        ASSERT_NE(dialog, nullptr) << "deleted under its own handler";
        waited = true;
        if (wholeWindow) return;
        EXPECT_EQ(window->Dialog(0), nullptr);
        QTimer::singleShot(200ms, window.get(), &QWidget::close);
      },
  });
  EXPECT_TRUE(waited);
  EXPECT_EQ(dialog.isNull(), !wholeWindow);
  window.reset();
  EXPECT_EQ(dialog, nullptr);
}

TEST(MainWindow, DialogClosedWhileACommandWaits) { CloseWhileACommandWaits(false); }
TEST(MainWindow, WindowClosedWhileACommandWaits) { CloseWhileACommandWaits(true); }

void ExpectEntry(const QAbstractItemModel& log, int row, const QStringList& expected) {
  QStringList entry;
  for (const auto column : {CommandLogModel::Projector, CommandLogModel::Command,
                            CommandLogModel::Value, CommandLogModel::Result}) {
    entry += log.index(row, column).data().toString();
  }
  EXPECT_EQ(entry, expected);
}

TEST(MainWindow, HasOneDialogPerProjectorAndLogsTheirCommands) {
  MainWindow window({Profile("A"), Profile("B")});
  window.show();
  auto& table = *window.findChild<ProjectorView*>()->findChild<QTableView*>();
  RunProgram({
      [&] {
        table.setCurrentIndex(table.model()->index(1, 2));
        QTest::keyClick(&table, Qt::Key_Return);
        ASSERT_NE(window.Dialog(1), nullptr);
        EXPECT_TRUE(window.Dialog(1)->windowTitle().contains("B"));
        EXPECT_EQ(window.OpenDialog(1), window.Dialog(1));
        ClickButton(window, "&Open");
        EXPECT_EQ(window.Dialog(0), nullptr);
        EXPECT_NE(window.OpenDialog(0), nullptr);
        EXPECT_TRUE(window.isEnabled() && table.isEnabled());
      },
      [&] {
        QTest::qWait(100);  // the log gathers entries
        const auto* log = window.findChild<CommandLog*>()->findChild<QTableView*>()->model();
        EXPECT_GT(log->rowCount(), 10);
        ExpectEntry(*log, 0, {"B", "Get Power Status 0x6000", "1", "ok"});
        window.close();
      },
  });
}

TEST(FaultPanel, SetsAndRemovesFaultsOfTheSelectedProjector) {
  ProjectorSession first(Profile("A"), nullptr);
  ProjectorSession second(Profile("B"), nullptr);
  FaultPanel panel;
  panel.show();
  panel.SetSession(&first);
  QComboBox& target = Child<QComboBox>(panel, "Command");
  auto* list = panel.findChild<QListWidget*>();
  const auto& set = Child<QPushButton>(panel, "&Set Fault");

  target.setEditText("nothing of the kind");
  EXPECT_FALSE(set.isEnabled());
  target.setEditText("0x2003 Brightness");
  ClickButton(panel, "&Set Fault");
  target.setEditText("SetBrightness");
  ClickButton(panel, "&Set Fault");
  EXPECT_EQ(first.Faults().size(), 2U);
  EXPECT_EQ(first.Faults().at(std::uint16_t{0x2003}).kind, Fault::Kind::Refuse);
  EXPECT_EQ(list->item(0)->text(), "SetBrightness: Refuse");

  const auto brightness = [](const ProjectorSession& session) {
    unsigned short value = 0;
    const auto dialog = session.MakeDialog();
    CPjtInterface& projector = dialog->Projector();
    return projector.Get(0x2003, 0, &projector, &value);
  };
  panel.SetSession(&second);
  EXPECT_EQ(list->count(), 0);
  EXPECT_NE(brightness(first), 1);
  EXPECT_EQ(brightness(second), 1);

  QComboBox& power = Child<QComboBox>(panel, "Power");
  auto& delay = *panel.findChild<QSpinBox*>();
  for (QWidget* control : {static_cast<QWidget*>(&power), static_cast<QWidget*>(&delay)}) {
    const QString before = power.currentText() + delay.text();
    QWheelEvent wheel(QPointF(5, 5), control->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &wheel);
    EXPECT_EQ(power.currentText() + delay.text(), before);
  }

  panel.SetSession(&first);
  ClickButton(panel, "&Remove");
  EXPECT_EQ(first.Faults().size(), 1U);
  ClickButton(panel, "Remove &All");
  EXPECT_TRUE(first.Faults().empty());
  EXPECT_EQ(brightness(first), 1);
}

}  // namespace
