#include <cstdlib>
#include <vector>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "app/host/CommandLog.h"
#include "app/host/FaultPanel.h"
#include "app/host/MainWindow.h"
#include "app/host/ProjectorView.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"
#include "tests/support/Models.h"

namespace {

ProjectorProfile Profile(const char* name) {
  ProjectorProfile profile{name, MakeModel(5, 30), {}};
  profile.Model.ModelName = name;
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

TEST(MainWindow, HasOneDialogPerProjectorAndLogsTheirCommands) {
  MainWindow window({Profile("A"), Profile("B")});
  window.show();
  auto& table = *window.findChild<ProjectorView*>()->findChild<QTableView*>();
  table.setCurrentIndex(table.model()->index(1, 2));
  QTest::keyClick(&table, Qt::Key_Return);
  ASSERT_NE(window.Dialog(1), nullptr);
  EXPECT_TRUE(window.Dialog(1)->windowTitle().contains("B"));
  EXPECT_EQ(window.OpenDialog(1), window.Dialog(1));
  ClickButton(window, "&Open");
  EXPECT_EQ(window.Dialog(0), nullptr);
  EXPECT_NE(window.OpenDialog(0), nullptr);
  EXPECT_TRUE(window.isEnabled() && table.isEnabled());
  QTest::qWait(100);  // the log gathers entries
  const auto* log = window.findChild<CommandLog*>()->findChild<QTableView*>()->model();
  EXPECT_GT(log->rowCount(), 10);
  QStringList first;
  for (const auto column : {CommandLogModel::Projector, CommandLogModel::Command,
                            CommandLogModel::Value, CommandLogModel::Result}) {
    first += log->index(0, column).data().toString();
  }
  EXPECT_EQ(first, (QStringList{"B", "Get Power Status 0x6000", "1", "ok"}));
}

TEST(MainWindow, SaysWhyThereIsNoCatalog) {
  const std::string nowhere = "/nowhere";
  ASSERT_EQ(LoadCatalog(std::span(&nowhere, 1)), -1);
  const MainWindow window({Profile("A")});
  EXPECT_TRUE(Child<QLabel>(window, CatalogProblem().c_str()).text().contains("/nowhere"));
  ASSERT_EQ(LoadCatalog(), 0);
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
