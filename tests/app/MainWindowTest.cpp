// The main window: its questions, its stored state and the controls of the simulation.

#include <QFileDialog>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSessionManager>
#include <QSettings>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>

#include "app/desktop/Preferences.h"
#include "app/desktop/alerts/AlertList.h"
#include "app/desktop/groups/GroupList.h"
#include "app/desktop/log/CommandLog.h"
#include "app/desktop/projectors/ByModel.h"
#include "app/desktop/simulation/FaultPanel.h"
#include "app/profiles/SettingsFile.h"
#include "i18n/Catalog.h"
#include "tests/app/Windows.h"
#include "tests/support/DialogDriver.h"
#include "toolkit/Accessibility.h"
#include "toolkit/FittedScroll.h"

namespace {

TEST(MainWindow, HasOneDialogPerProjectorAndLogsTheirCommands) {
  ShownWindow window({Profile("A"), Profile("B")});
  QTableView& table = Table(window);
  window.findChild<ProjectorView*>()->Select(1);
  QTest::keyClick(&table, Qt::Key_Return);
  ASSERT_NE(window.Dialog(1), nullptr);
  EXPECT_TRUE(window.Dialog(1)->windowTitle().contains("B"));
  EXPECT_EQ(window.OpenDialog(1), window.Dialog(1));
  Find<QAction>(window, "Open Settings").trigger();
  EXPECT_EQ(window.Dialog(0), nullptr);
  EXPECT_NE(window.OpenDialog(0), nullptr);
  EXPECT_TRUE(window.isEnabled() && table.isEnabled());
  const auto* log = window.findChild<CommandLog*>()->findChild<QTableView*>()->model();
  EXPECT_TRUE(Soon([log] { return log->rowCount() > 10; })) << "the log gathers entries";
  EXPECT_TRUE(LogText(*log, {0}).contains("\tB\tPower Status\tGet 0x6000\tOn (1)\tok\t"));
  EXPECT_FALSE(window.findChild<CommandLog*>()->isVisible()) << "it takes no room at first";
  const CAdvanceDlg& dialog = *window.Dialog(0);
  EXPECT_EQ(dialog.size(), FittedToScreen(dialog, dialog.sizeHint())) << "no smaller for the log";
}

TEST(MainWindow, QuestionsAndWorkHoldUpNoDialog) {
  ShownWindow window({Profile("A")});
  ASSERT_TRUE(AreWatched(window));
  CAdvanceDlg* dialog = window.OpenDialog(0);
  ProjectorSession& session = *window.Session(0);
  session.SetFault({}, {Fault::Kind::Late, std::chrono::milliseconds(20)});
  const QTemporaryDir folder;
  const QString file = folder.filePath("settings.json");
  const auto inTheWait = [&](const auto& act) {
    QTimer::singleShot(25, &window, [&] {
      EXPECT_TRUE(dialog->Projector().IsWaiting());
      act();
    });
    dialog->DispTabScreen();
  };
  inTheWait([&] { Find<QAction>(window, "Keyboard Shortcuts").trigger(); });
  EXPECT_EQ(Modal<QDialog>().windowTitle(), "Keyboard Shortcuts") << "and the page is read";
  Modal<QDialog>().close();

  inTheWait([&] {
    Find<QAction>(window, "Save Settings").trigger();
    window.findChild<GroupList*>()->Choose({ProjectorGroup::Kind::Off});  // it leaves the list
    Modal<QFileDialog>().selectFile(file);
    QMetaObject::invokeMethod(&Modal<QFileDialog>(), "accept");
  });
  ASSERT_TRUE(Soon([&] { return QFile::exists(file); }));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "nothing went wrong";
  EXPECT_EQ(ReadSettingsFile(file).error, "");
  window.findChild<ProjectorView*>()->Select(0);
  Find<QAction>(window, "Compare with File").trigger();
  EXPECT_EQ(Modal<QFileDialog>().directory().path(), folder.path()) << "where the last file was";
}

TEST(MainWindow, SaysThatAFileWasSaved) {
  ShippedWindow window;
  for (const char* save : {"Export Table", "Save Log As", "Save Profiles As"}) {
    const QString path = window.folder.filePath(QString(save) + ".saved");
    AnswerQuestionOf(Find<QAction>(window, save), [&path](QDialog& question) {
      Q_EMIT qobject_cast<QFileDialog*>(&question)->fileSelected(path);
    });
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(window.statusBar()->currentMessage(), "Saved in " + path + '.');
  }
}

TEST(MainWindow, SaysWhyThereIsNoCatalog) {
  const std::string nowhere = "/nowhere";
  ASSERT_EQ(LoadCatalog(std::span(&nowhere, 1)), -1);
  const MainWindow window({Profile("A")});
  EXPECT_TRUE(
      Find<QLabel>(window, QString::fromStdString(CatalogProblem())).text().contains("/nowhere"));
  ASSERT_EQ(LoadCatalog(), 0);
}

TEST(FaultPanel, SetsAndRemovesFaultsOfTheSelectedProjector) {
  InstallAccessibility();  // as the window of the panel does
  ProjectorSession first(Profile("A"), nullptr);
  ProjectorSession second(Profile("B"), nullptr);
  FaultPanel panel;
  panel.show();
  panel.SetSession(&first);
  QComboBox& target = Find<QComboBox>(panel, "Command");
  auto* list = panel.findChild<QListWidget*>();
  auto& set = Find<QPushButton>(panel, "Set Fault");

  target.setEditText("nothing of the kind");
  EXPECT_FALSE(set.isEnabled());
  target.setEditText("0x2003 Brightness");
  set.click();
  Choose(panel, "Command", "SetBrightness");
  set.click();
  EXPECT_EQ(first.Faults().size(), 2U);
  EXPECT_EQ(first.Faults().at(std::uint16_t{0x2003}).kind, Fault::Kind::Refuse);
  EXPECT_EQ(list->item(0)->text(), "SetBrightness: Refuse");

  const auto brightness = [](const ProjectorSession& session) {
    return session.Channel()->Execute({PjtOperation::Get, 0x2003}).result;
  };
  panel.SetSession(&second);
  EXPECT_EQ(list->count(), 0);
  EXPECT_NE(brightness(first), 1);
  EXPECT_EQ(brightness(second), 1);

  Choose(panel, "Fault", "Delay");
  auto& delay = *panel.findChild<QSpinBox*>();
  delay.clearFocus();
  Wheel(delay, -1);
  EXPECT_EQ(delay.value(), 500);

  panel.SetSession(&first);
  Find<QPushButton>(panel, "Remove").click();
  EXPECT_EQ(first.Faults().size(), 1U);
  Find<QPushButton>(panel, "Remove All").click();
  EXPECT_TRUE(first.Faults().empty());
  EXPECT_EQ(brightness(first), 1);
}

TEST(MainWindow, PreferencesTakeEffectAtOnce) {
  const QTemporaryDir folder;
  QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
  MainWindow window(Shipped(folder), &settings);
  window.show();
  const auto isDark = [&] { return window.palette().color(QPalette::Base).lightness() < 128; };
  ASSERT_FALSE(isDark());
  const auto open = [&window] {
    Find<QAction>(window, "Preferences").trigger();
    return &Modal<QDialog>();
  };
  QDialog* dialog = open();
  Choose(*dialog, "Colors", "Dark");
  EXPECT_TRUE(Soon(isDark)) << "as soon as it is chosen";
  dialog->reject();
  EXPECT_TRUE(Soon([&] { return !isDark(); })) << "the dialog was left with Esc";
  dialog = open();
  Choose(*dialog, "Colors", "Dark");
  qobject_cast<QSpinBox*>(Find<QLabel>(*dialog, "Ask each projector every").buddy())->setValue(30);
  qobject_cast<QSpinBox*>(Find<QLabel>(*dialog, "Silent for").buddy())->setValue(7);
  dialog->accept();
  EXPECT_TRUE(Soon(isDark));
  EXPECT_EQ(Preferences::ThemeOf(settings), Theme::Dark);
  EXPECT_EQ(Preferences::Interval(&settings), 30);
  EXPECT_EQ(AlertRules::Read(&settings).silent, std::chrono::minutes(7));
  Apply(Theme::Desktop);
  EXPECT_TRUE(Soon([&] { return !isDark(); }));
}

TEST(MainWindow, OpensTheDialogsOfTheSelectedUntilItIsClosed) {
  ShippedWindow window;
  for (const std::size_t i : {0U, 1U, 2U, 3U})
    window.Session(i)->SetFault({}, {Fault::Kind::Late, std::chrono::milliseconds(20)});
  const auto openThree = [&](const auto& whileTheFirstIsRead) {
    const QAbstractItemModel& list = *Table(window).model();
    Table(window).selectionModel()->select({list.index(0, 0), list.index(2, 8)},
                                           QItemSelectionModel::ClearAndSelect);
    QTimer::singleShot(25, &window, whileTheFirstIsRead);
    Find<QAction>(window, "Open Settings").trigger();
  };
  const std::weak_ptr second = Rows(window)[1].profile.model;
  Table(window).selectRow(1);
  Q_EMIT Find<QAction>(window, "Input").menu()->aboutToShow();
  openThree([&] {
    EXPECT_EQ(Shipped(window.folder).Remove({1}), "");
    Find<QAction>(window, "Reload").trigger();
  });
  EXPECT_TRUE(window.Dialog(0) && window.Dialog(1) && !window.Dialog(2)) << "the third is second";
  for (const std::size_t i : {0U, 1U}) window.Dialog(i)->close();
  EXPECT_TRUE(Soon([&] { return second.expired(); })) << "though its inputs are known";
  QTimer::singleShot(0, &window, [&] { openThree([&] { window.close(); }); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_FALSE(window.Dialog(0) || window.Dialog(1) || window.Dialog(2));
}

TEST(MainWindow, RemembersWhatMattersWithoutBeingClosed) {
  const QTemporaryDir folder;
  const QString other = folder.filePath("other.json");
  QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
  MainWindow window(Shipped(folder), &settings);
  window.show();
  window.Session(0)->Simulator().SetValue(SettingId::ErrorStatus, 4);
  ASSERT_TRUE(Soon([&] { return Rows(window)[0].hasAlert; }));
  Find<QPushButton>(window, "Acknowledge All").click();
  AnswerQuestionOf(Find<QAction>(window, "Save Profiles As"), [&other](QDialog& question) {
    Q_EMIT qobject_cast<QFileDialog*>(&question)->fileSelected(other);
  });
  EXPECT_EQ(WindowMemory::LastProfiles(settings), other);
  window.resize(700, 500);
  QObject session;  // which nobody asks anything
  Q_EMIT qApp->commitDataRequest(static_cast<QSessionManager&>(session));
  const MainWindow next(Shipped(folder), &settings);
  EXPECT_EQ(next.size(), QSize(700, 500));
  EXPECT_EQ(next.findChild<AlertList*>()->Acknowledged().size(), 1);
}

TEST(ByModel, KeepsWhatBelongsToAModelAsLongAsTheModel) {
  ByModel<int, std::shared_ptr<int>> all;
  const auto made = std::make_shared<int>();
  auto model = std::make_shared<const int>();
  const auto use = [&](const auto& of) { return all.Of(of, [&] { return made; }).use_count(); };
  EXPECT_EQ(use(model), 2);
  EXPECT_EQ(use(std::make_shared<const int>()), 3);
  EXPECT_EQ(use(model), 3) << "it has it already";
  model.reset();
  EXPECT_EQ(use(std::make_shared<const int>()), 2);
}

TEST(MainWindow, RestoresItsStateAndClosesWithoutWaiting) {
  const QTemporaryDir folder;
  QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
  QRect place;
  {
    MainWindow window(Shipped(folder), &settings);
    window.show();
    window.setGeometry(30, 40, 700, 500);
    Table(window).setColumnWidth(0, 123);
    CAdvanceDlg* dialog = window.OpenDialog(5);
    dialog->findChild<QTabBar*>()->setCurrentIndex(2);
    place = window.geometry();
    window.Session(5)->SetFault({}, {Fault::Kind::DropOut});
    QTimer::singleShot(0, dialog, [dialog] { dialog->DispTabScreen(); });
    QTimer::singleShot(50, &window, &QWidget::close);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(dialog->Projector().Sent().unanswered, 0) << "what waited was left";
    EXPECT_FALSE(dialog->isVisible());
  }
  MainWindow window(Shipped(folder), &settings);
  window.show();
  EXPECT_EQ(window.geometry(), place);
  EXPECT_EQ(Table(window).columnWidth(0), 123);
  EXPECT_EQ(window.findChild<ProjectorView*>()->CurrentPosition(), 5);
  EXPECT_EQ(window.OpenDialog(5)->findChild<QTabBar*>()->currentIndex(), 2);
}

}  // namespace
