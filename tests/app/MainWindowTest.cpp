// The window, its list, search, profile editor and what it remembers, used as a person does.

#include <cstdlib>
#include <functional>
#include <vector>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>
#include <QTabBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "app/desktop/log/CommandLog.h"
#include "app/desktop/simulation/FaultPanel.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/profiles/ProfileEditor.h"
#include "app/desktop/projectors/ProjectorFilter.h"
#include "app/desktop/projectors/ProjectorView.h"
#include "app/desktop/Translations.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"
#include "tests/support/Models.h"

namespace {

ProjectorProfile Profile(const char* name) {
  ProjectorProfile profile{name, MakeModel(5, 30), {}};
  profile.Model.ModelName = name;
  return profile;
}

/// The part that shows or is called so, but for its mnemonic and the dots of what asks further.
template <typename Part>
Part& Find(const QObject& window, const QString& name) {
  for (auto* part : window.findChildren<Part*>()) {
    const QString text = part->property("text").toString().remove('&').remove(u'…');
    if (text == name || part->property("accessibleName") == name) return *part;
  }
  ADD_FAILURE() << "there is no " << name.toStdString();
  std::abort();
}

QTableView& Table(const QWidget& window) {
  return *window.findChild<ProjectorView*>()->findChild<QTableView*>();
}

TEST(MainWindow, HasOneDialogPerProjectorAndLogsTheirCommands) {
  MainWindow window({Profile("A"), Profile("B")});
  window.show();
  QTableView& table = Table(window);
  table.setCurrentIndex(table.model()->index(1, 2));
  QTest::keyClick(&table, Qt::Key_Return);
  ASSERT_NE(window.Dialog(1), nullptr);
  EXPECT_TRUE(window.Dialog(1)->windowTitle().contains("B"));
  EXPECT_EQ(window.OpenDialog(1), window.Dialog(1));
  Find<QPushButton>(window, "Open").click();
  EXPECT_EQ(window.Dialog(0), nullptr);
  EXPECT_NE(window.OpenDialog(0), nullptr);
  EXPECT_TRUE(window.isEnabled() && table.isEnabled());
  QTest::qWait(100);  // the log gathers entries
  const auto* log = window.findChild<CommandLog*>()->findChild<QTableView*>()->model();
  EXPECT_GT(log->rowCount(), 10);
  EXPECT_TRUE(LogText(*log, {0}).contains("\tB\tGet Power Status 0x6000\t1\tok\t"));
  const QRect newest = window.findChild<CommandLog*>()->NewestRows();
  EXPECT_FALSE(newest.isEmpty() || newest.intersects(window.Dialog(0)->frameGeometry()));
}

TEST(MainWindow, OpensNothingModalWhileADialogWaitsAndThenOnceWhatWasAskedForLast) {
  MainWindow window({Profile("A")});
  CAdvanceDlg* dialog = window.OpenDialog(0);
  window.findChild<ProjectorView*>()->Current()->SetFault(
      {}, {Fault::Kind::Late, std::chrono::milliseconds(20)});
  QStringList opened;
  QTimer close;
  QObject::connect(&close, &QTimer::timeout, [&opened] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) return;
    opened << modal->windowTitle();
    modal->close();
  });
  close.start(10);
  QTimer::singleShot(25, [&window] {
    for (const char* name : {"About", "Keyboard Shortcuts", "Keyboard Shortcuts"}) {
      Find<QAction>(window, name).trigger();
    }
  });
  dialog->DispTabScreen();
  EXPECT_TRUE(opened.empty());
  EXPECT_TRUE(QTest::qWaitFor([&opened] { return !opened.empty(); }));
  QTest::qWait(100);
  EXPECT_EQ(opened, QStringList("Keyboard Shortcuts"));
}

TEST(MainWindow, SaysWhyThereIsNoCatalog) {
  const std::string nowhere = "/nowhere";
  ASSERT_EQ(LoadCatalog(std::span(&nowhere, 1)), -1);
  const MainWindow window({Profile("A")});
  EXPECT_TRUE(
      Find<QLabel>(window, QString::fromStdString(CatalogProblem())).text().contains("/nowhere"));
  ASSERT_EQ(LoadCatalog(), 0);
}

/// As an assistive technology does, which knows a list by its name.
void Choose(const QWidget& window, const QString& name, const QString& entry) {
  auto* list = qobject_cast<QComboBox*>(Find<QLabel>(window, name).buddy());
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(list);
  EXPECT_EQ(told->text(QAccessible::Name), name);
  QAccessibleInterface* chosen = told->child(0)->child(list->findText(entry));
  chosen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
  EXPECT_EQ(told->text(QAccessible::Value), entry);
}

TEST(FaultPanel, SetsAndRemovesFaultsOfTheSelectedProjector) {
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
  QWheelEvent wheel(QPointF(5, 5), delay.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&delay, &wheel);
  EXPECT_EQ(delay.value(), 500);

  panel.SetSession(&first);
  Find<QPushButton>(panel, "Remove").click();
  EXPECT_EQ(first.Faults().size(), 1U);
  Find<QPushButton>(panel, "Remove All").click();
  EXPECT_TRUE(first.Faults().empty());
  EXPECT_EQ(brightness(first), 1);
}

ProfileDocument Shipped(const QTemporaryDir& folder) {
  const QString name = folder.filePath("p.json");
  if (!QFile::exists(name)) QFile::copy(TEST_CATALOG_DIR "/projectors.json", name);
  ProfileDocument document;
  EXPECT_EQ(document.Load(name), "");
  return document;
}

/// Triggers an action that opens a modal dialog and answers that one.
void Answer(QAction& action, const std::function<void(QDialog&)>& answer) {
  bool answered = false;
  QTimer::singleShot(0, qApp, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    answer(*dialog);
    answered = true;
    if (dialog->isVisible()) dialog->reject();
  });
  action.trigger();
  EXPECT_TRUE(answered);
}

QString Selected(const QWidget& window) {
  const QTableView& table = Table(window);
  return table.currentIndex().siblingAtColumn(0).data().toString();
}

TEST(ProjectorList, AtFirstOneWithRowsOnEveryTabIsSelected) {
  const MainWindow window({{"no tabs", MakeModel(9, 30), {}}, Profile("A"), Profile("B")});
  EXPECT_EQ(Selected(window), "A");
}

TEST(ProjectorList, TellsWhenAProjectorAnsweredLast) {
  using std::chrono::seconds;
  const std::tuple<ConnectionState, std::optional<seconds>, const char*> cases[] = {
      {ConnectionState::Unused, {}, "Not connected"},
      {ConnectionState::Connected, seconds(9), "Connected"},
      {ConnectionState::Connected, seconds(10), "Connected · answered 10 s ago"},
      {ConnectionState::Unused, seconds(59), "Not connected · answered 50 s ago"},
      {ConnectionState::Unused, seconds(60), "Not connected · answered 1 min ago"},
      {ConnectionState::Unused, seconds(3599), "Not connected · answered 59 min ago"},
      {ConnectionState::Unused, seconds(7200), "Not connected · answered 2 h ago"},
      {ConnectionState::NotReachable, seconds(60), "Not reachable"},
  };
  for (const auto& [state, since, text] : cases) EXPECT_EQ(ConnectionTold(state, since), text);
  const ProjectorSession session(Profile("A"), nullptr);
  EXPECT_FALSE(session.SinceAnswer());
  session.Channel()->Execute({PjtOperation::Get, 0x2003});
  EXPECT_GE(session.SinceAnswer(), seconds(0));
}

struct Search {
  const char* words;
  int column;
  int role;
  const char* part;  // of what stands there, in each row that is found
};

TEST(ProjectorList, IsSearchedAndSorted) {
  const QTemporaryDir folder;
  MainWindow window(Shipped(folder));
  window.show();
  QTableView& table = Table(window);
  const QAbstractItemModel& found = *table.model();
  const int all = found.rowCount();
  Find<QAction>(window, "Find Projectors").trigger();
  auto* search = window.findChild<ProjectorView*>()->findChild<QLineEdit*>();
  const Search searches[] = {
      {"audio", 0, ProjectorTableModel::kTabsRole, "Audio"},
      {"5-3 SCREEN", 0, Qt::DisplayRole, "5-3"},
      {"SCREEN 5-3", 0, ProjectorTableModel::kTabsRole, "Screen"},
      {"qd-m7450", ProjectorTableModel::Model, Qt::DisplayRole, "QD-M7450"},
  };
  for (const auto& [words, column, role, part] : searches) {
    search->clear();
    QTest::keyClicks(search, words);
    EXPECT_TRUE(found.rowCount() > 0 && found.rowCount() < all) << words;
    EXPECT_TRUE(table.selectionModel()->isSelected(table.currentIndex())) << words;
    for (int row = 0; row < found.rowCount(); ++row) {
      EXPECT_TRUE(found.index(row, column).data(role).toString().contains(part)) << words;
    }
  }
  QTest::keyClicks(search, "zz");
  EXPECT_EQ(found.rowCount(), 0);
  QTest::keyClick(search, Qt::Key_Return);
  EXPECT_FALSE(window.findChild<QPushButton*>()->isEnabled());
  QTest::keyClick(search, Qt::Key_Escape);
  EXPECT_EQ(found.rowCount(), all);

  const auto row = [&found](const char* name) {
    return found.match(found.index(0, 0), Qt::DisplayRole, name)[0].row();
  };
  const int inFile = row("Projector 4-9");
  table.sortByColumn(0, Qt::DescendingOrder);
  EXPECT_GT(row("Projector 4-9"), row("Projector 4-11"));
  table.sortByColumn(-1, Qt::AscendingOrder);
  EXPECT_EQ(row("Projector 4-9"), inFile);
}

QLineEdit& Field(const QDialog& editor, const QString& caption) {
  return *qobject_cast<QLineEdit*>(Find<QLabel>(editor, caption).buddy());
}

void Fill(const QDialog& editor, const QMap<QString, QString>& texts) {
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    Field(editor, text.key()).clear();
    QTest::keyClicks(&Field(editor, text.key()), *text);
  }
}

/// Presses OK; whether that was taken.
bool Accept(const QDialog& editor) {
  auto* buttons = editor.findChild<QDialogButtonBox*>();
  QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
  return !editor.isVisible();
}

TEST(ProjectorList, ProjectorsAreAddedEditedDuplicatedAndRemoved) {
  const QTemporaryDir folder;
  MainWindow window(Shipped(folder));
  window.show();
  auto& list = *window.findChild<ProjectorView*>();
  const auto inFile = [&folder] { return Shipped(folder).Projectors(); };
  const auto before = inFile();

  Answer(Find<QAction>(window, "Add"), [](QDialog& editor) {
    EXPECT_FALSE(Accept(editor)) << "without a name";
    Choose(editor, "Family", "type5");
    Fill(editor, {{"Name", "Hall"}, {"Model", "M"}, {"Model code", "30"}, {"Address", "a"}});
    EXPECT_FALSE(Accept(editor)) << "without a port";
    Fill(editor, {{"Port", "4352"}});
    EXPECT_TRUE(Accept(editor));
  });
  EXPECT_EQ(inFile().size(), before.size() + 1);
  EXPECT_EQ(Selected(window), "Hall");

  CAdvanceDlg* open = window.OpenDialog(0);
  list.Select(1);
  Answer(Find<QAction>(window, "Edit"), [](QDialog& editor) {
    Field(editor, "Name").setText("A \"大厅\"");
    EXPECT_TRUE(Accept(editor));
  });
  auto others = inFile();
  EXPECT_EQ(others[1].Name, "A \"大厅\"");
  EXPECT_EQ(Selected(window), "A \"大厅\"");
  others.erase(others.begin() + 1);
  EXPECT_EQ(others, before);
  EXPECT_EQ(window.Dialog(0), open) << "nothing changed for it";
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(list.Selected().size(), 1U) << "though Ctrl is held";
  EXPECT_EQ(inFile()[2].Name, "A \"大厅\" (2)");
  EXPECT_EQ(Selected(window), "A \"大厅\" (2)");

  Answer(Find<QAction>(window, "Edit"), [](QDialog& editor) {
    Choose(editor, "Reached through", "Serial port");
    EXPECT_FALSE(Field(editor, "Address").isVisible()) << "the connection follows";
    Fill(editor, {{"Device", "ttyUSB0"}, {"Baud", "9600"}});
    EXPECT_FALSE(Accept(editor)) << "no path";
    Fill(editor, {{"Device", "/dev/ttyUSB0"}});
    EXPECT_TRUE(Accept(editor));
  });
  EXPECT_EQ(AddressOf(inFile()[2]), ProjectorAddress(SerialAddress{"/dev/ttyUSB0", 9600}));
  Answer(Find<QAction>(window, "Edit"), [](QDialog& editor) {
    Choose(editor, "Reached through", "PJLink");
    Fill(editor, {{"Address", "192.0.2"}, {"Port", "4352"}});
    EXPECT_FALSE(Accept(editor)) << "no address";
    EXPECT_EQ(editor.focusWidget(), &Field(editor, "Address"));
    Fill(editor, {{"Address", "192.0.2.7"}, {"Port", "4352"}, {"Password", " open "}});
    EXPECT_TRUE(Accept(editor));
  });
  Answer(Find<QAction>(window, "Edit"), [](QDialog& editor) { EXPECT_TRUE(Accept(editor)); });
  EXPECT_EQ(AddressOf(inFile()[2]), ProjectorAddress(PjLinkAddress{"192.0.2.7", 4352, " open "}));

  list.Select(0);
  Answer(Find<QAction>(window, "Remove"), [](QDialog& question) {
    EXPECT_EQ(question.focusWidget()->property("text"), "Cancel") << "nothing to lose by Enter";
  });
  EXPECT_EQ(inFile().size(), before.size() + 2) << "asked, and answered with Esc";
  Answer(Find<QAction>(window, "Remove"),
         [](QDialog& question) { Find<QPushButton>(question, "Remove").click(); });
  EXPECT_EQ(inFile()[0].Name, "A \"大厅\"");
  EXPECT_EQ(list.Model().rowCount(), static_cast<int>(before.size()) + 1);
}

TEST(MainWindow, RemembersWhereItWasAndWhatWasOpenAndWaitsForNobody) {
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
    window.findChild<ProjectorView*>()->Current()->SetFault({}, {Fault::Kind::DropOut});
    QElapsedTimer timer;
    timer.start();
    QTimer::singleShot(0, dialog, [dialog] { dialog->DispTabScreen(); });
    QTimer::singleShot(50, &window, &QWidget::close);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_LT(timer.elapsed(), 1000);
    EXPECT_FALSE(dialog->isVisible());
  }
  MainWindow window(Shipped(folder), &settings);
  window.show();
  EXPECT_EQ(window.geometry(), place);
  EXPECT_EQ(Table(window).columnWidth(0), 123);
  EXPECT_EQ(window.findChild<ProjectorView*>()->CurrentRow(), 5);
  EXPECT_EQ(window.OpenDialog(5)->findChild<QTabBar*>()->currentIndex(), 2);
}

TEST(MainWindow, IsChineseThroughout) {
  const auto speak = [](const char* locale) {
    qputenv("LC_ALL", locale);
    LoadCatalog();
    InstallTranslations();
  };
  speak("zh_CN.UTF-8");
  {
    const QTemporaryDir folder;
    const ProfileDocument document = Shipped(folder);
    MainWindow window(Shipped(folder));
    const ProfileEditor editor(document, {}, {});
    EXPECT_LE(window.minimumSizeHint().width(), 940) << "1920 pixels at 200 %";
    EXPECT_LE(window.minimumSizeHint().height(), 500);
    QStringList texts{window.windowTitle(), editor.windowTitle()};
    for (const auto* child : window.findChildren<QObject*>() + editor.findChildren<QObject*>()) {
      for (const char* name : {"text", "title", "toolTip", "placeholderText", "accessibleName"}) {
        // What is typed and what comes from the profiles is not translated.
        if (qobject_cast<const QLineEdit*>(child) && qstrcmp(name, "text") == 0) continue;
        if (!child->property("separator").toBool()) texts += child->property(name).toString();
      }
    }
    texts.removeAll(QString());
    EXPECT_GT(texts.size(), 80);
    static const QRegularExpression chinese("\\p{Han}");
    for (const QString& text : texts) EXPECT_TRUE(text.contains(chinese)) << text.toStdString();
  }
  speak("en_US.UTF-8");
}

}  // namespace
