// The list of projectors, its search, and the profile editor.

#include <chrono>
#include <optional>
#include <tuple>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "app/desktop/MainWindow.h"
#include "host/CAdvanceDlg.h"
#include "tests/app/Windows.h"
#include "tests/support/Soon.h"

namespace {

QString Selected(const QWidget& window) {
  const QTableView& table = Table(window);
  return table.currentIndex().siblingAtColumn(0).data().toString();
}

TEST(ProjectorList, InitiallySelectsAProjectorWithRowsOnEveryTab) {
  const MainWindow window({{"no tabs", MakeModel(9, 30), {}}, Profile("A"), Profile("B")});
  EXPECT_EQ(Selected(window), "A");
}

TEST(ProjectorList, ShowsWhenAProjectorLastAnswered) {
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
  for (const auto& [state, since, text] : cases)
    EXPECT_EQ(ConnectionStatusText(state, since), text);
  const ProjectorSession session(Profile("A"), nullptr);
  EXPECT_FALSE(session.SinceAnswer());
  session.Channel()->Execute({PjtOperation::Get, 0x2003});
  EXPECT_GE(session.SinceAnswer(), seconds(0));
}

struct Search {
  const char* words;
  int column;
  int role;
  const char* part;  // occurs in that column of each row found
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

/// Presses OK. Returns whether the editor accepted it.
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

}  // namespace
