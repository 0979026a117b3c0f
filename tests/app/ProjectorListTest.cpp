// The list of projectors, its search, and the profile editor.

#include <memory>
#include <tuple>

#include <QDialogButtonBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QTest>
#include <QUndoStack>

#include "app/desktop/details/DetailsPanel.h"
#include "app/desktop/groups/GroupList.h"
#include "app/desktop/profiles/ProfileEditor.h"
#include "app/desktop/projectors/StateTexts.h"
#include "host/CAdvanceDlg.h"
#include "tests/app/Windows.h"
#include "tests/support/Programs.h"

namespace {

QString Selected(const QWidget& window) {
  const QTableView& table = Table(window);
  return table.currentIndex().siblingAtColumn(0).data().toString();
}

/// A desktop on which a single click activates.
struct SingleClickStyle : QProxyStyle {
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    return hint == SH_ItemView_ActivateItemOnSingleClick
               ? 1
               : QProxyStyle::styleHint(hint, option, widget, result);
  }
};

TEST(ProjectorList, OnlyADoubleClickOpensADialog) {
  MainWindow window({Profile("no tabs", MakeModel(9, 30)), Profile("A"), Profile("B")});
  EXPECT_EQ(Selected(window), "A") << "the first with rows on every tab";
  SingleClickStyle style;
  QTableView& table = Table(window);
  table.setStyle(&style);
  window.show();
  const QPoint third = table.visualRect(table.model()->index(2, 0)).center();
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, third);
  EXPECT_EQ(Selected(window), "B");
  EXPECT_EQ(window.Dialog(2), nullptr);
  QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, third);
  EXPECT_NE(window.Dialog(2), nullptr);

  auto& simulation = *window.findChild<QDockWidget*>("simulation");
  simulation.show();
  const auto& details = *window.findChild<DetailsPanel*>();
  const QPoint second = table.visualRect(table.model()->index(1, 0)).center();
  for (const char* shown : {"2 projectors selected", "B"}) {
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier, second);
    EXPECT_EQ(Selected(window), "A") << "the current one, selected or not";
    EXPECT_TRUE(Find<QLabel>(details, shown).isVisible());
    Find<QPushButton>(simulation, "Set Fault").click();
  }
  simulation.hide();
  EXPECT_EQ(window.Session(1)->Faults().size(), 0U);
  EXPECT_EQ(window.Session(2)->Faults().size(), 1U);
}

TEST(ProjectorList, IsSearchedAndSorted) {
  ShippedWindow window;
  QTableView& table = Table(window);
  const QAbstractItemModel& found = *table.model();
  const int all = found.rowCount();
  Find<QAction>(window, "Find").trigger();
  auto* search = window.findChild<ProjectorView*>()->findChild<QLineEdit*>();
  // Words, how many are found, and the first one.
  const std::tuple<const char*, int, const char*> searches[] = {
      {"projector 5-3", 10, "Projector 5-30"},  {"SCREEN 5-30", 1, "Projector 5-30"},
      {"qd-m7450", 1, "Projector 4-11"},        {"192.0.2.17", 1, "Projector 3-47"},
      {"library 3-47", 1, "Projector 3-47"},    {"projector 4-11", 2, "Projector 4-11"},
      {"active iris 5-41", 1, "Projector 5-41"}};
  for (const auto& [words, count, first] : searches) {
    search->clear();
    QTest::keyClicks(search, words);
    EXPECT_EQ(found.rowCount(), count) << words;
    EXPECT_EQ(found.index(0, 0).data(), first) << words;
    EXPECT_TRUE(table.selectionModel()->isSelected(table.currentIndex())) << words;
    Find<QLabel>(window, QStringLiteral("%1 found").arg(count));
  }
  QTest::keyClick(search, Qt::Key_Return);
  EXPECT_TRUE(window.findChild<ProjectorView*>()->Current()->isOpen) << "the best one";
  QTest::keyClicks(search, "zz");
  EXPECT_EQ(found.rowCount(), 0);
  Find<QLabel>(window, "Nothing found");
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
  ShippedWindow window;
  const QTemporaryDir& folder = window.folder;
  auto& list = *window.findChild<ProjectorView*>();
  const auto inFile = [&folder] { return Shipped(folder).Projectors(); };
  const auto before = inFile();
  const QByteArray text = Shipped(folder).Text();

  AnswerQuestionOf(Find<QAction>(window, "Add"), [](QDialog& editor) {
    EXPECT_FALSE(Accept(editor)) << "without a name";
    Fill(editor, {{"Model", "QD-M7450"}, {"Model code", "12"}});
    Fill(editor, {{"Model", "QD-M7450-2"}});  // not what the file knows as QD-M7450
    EXPECT_FALSE(Accept(editor));
    Find<QLabel>(editor, "Still to be filled in: Name, Dialog type, and Address");
    EXPECT_GE(Find<QComboBox>(editor, "Model").findText("QD-M7450"), 0);
    Fill(editor, {{"Name", "Hall"}, {"Model", "QD-M7450"}, {"Address", "192.0.2."}});
    Find<QLabel>(editor, "192.0.2. is not an address.");
    Choose(editor, "Reached through", "Serial port");
    Find<QPushButton>(editor, "Test Connection").click();
    const auto& result = Find<QLabel>(editor, "A serial line is tried when its dialog opens.");
    QCoreApplication::processEvents();
    EXPECT_GE(result.visibleRegion().boundingRect().height(),
              result.heightForWidth(result.width()));
    Choose(editor, "Reached through", "PJLink");
    Fill(editor, {{"Address", "hall.example"}});
    EXPECT_EQ(Field(editor, "Port").text(), "4352") << "the protocol's own";
    EXPECT_TRUE(Accept(editor));
  });
  EXPECT_EQ(inFile().size(), before.size() + 1);
  EXPECT_EQ(Selected(window), "Hall");
  const auto added = static_cast<std::size_t>(list.CurrentPosition());
  EXPECT_EQ(inFile()[added].model->info.ModelCode, 11) << "the model says it";

  CAdvanceDlg* open = window.OpenDialog(0);
  list.Select(1);
  AnswerQuestionOf(Find<QAction>(window, "Edit"), [](QDialog& editor) {
    Field(editor, "Name").setText("A\n\"大厅\"\n");
    EXPECT_TRUE(Accept(editor));
  });
  auto others = inFile();
  EXPECT_EQ(others[1].name, "A \"大厅\"");
  EXPECT_EQ(Selected(window), "A \"大厅\"");
  EXPECT_EQ(window.Dialog(0), open) << "nothing changed for it";
  AnswerQuestionOf(Find<QAction>(window, "Duplicate"), [](QDialog& editor) {
    EXPECT_EQ(Field(editor, "Name").text(), "A \"大厅\" (2)");
    EXPECT_FALSE(Accept(editor)) << "the copy has no address yet";
    Choose(editor, "Reached through", "Serial port");
    EXPECT_FALSE(Field(editor, "Address").isVisible()) << "the connection follows";
    Fill(editor, {{"Device", "ttyUSB0"}, {"Baud", "9600"}});
    EXPECT_FALSE(Accept(editor)) << "no path";
    Fill(editor, {{"Device", "/dev/ttyUSB0"}});
    EXPECT_TRUE(Accept(editor));
  });
  EXPECT_EQ(AddressOf(inFile()[2]), ProjectorAddress(SerialAddress{"/dev/ttyUSB0", 9600}));
  window.OpenDialog(2);
  EXPECT_TRUE(Rows(window)[2].isOpen);
  AnswerQuestionOf(Find<QAction>(window, "Edit"), [](QDialog& editor) {
    Choose(editor, "Reached through", "PJLink");
    Fill(editor, {{"Address", "192.0.2.7"}, {"Port", "4352"}});
    Field(editor, "Password").setText("\t open \n");  // as pasted
    EXPECT_TRUE(Accept(editor));
  });
  EXPECT_FALSE(Rows(window)[2].isOpen) << "its connection is another one";
  AnswerQuestionOf(Find<QAction>(window, "Edit"),
                   [](QDialog& editor) { EXPECT_TRUE(Accept(editor)); });
  EXPECT_EQ(AddressOf(inFile()[2]), ProjectorAddress(PjLinkAddress{"192.0.2.7", 4352, " open "}));

  Table(window).selectAll();
  const QByteArray untagged = Shipped(folder).Text();
  for (const char* tags : {"", ", -, -Nowhere", "new, -Library"}) {
    EXPECT_EQ(Shipped(folder).Text(), untagged) << "inherited tags are left alone";
    AnswerQuestionOf(Find<QAction>(window, "Tag"), [tags](QDialog& question) {
      question.findChild<QLineEdit*>()->setText(tags);
      question.accept();
    });
  }
  const ProfileDocument tagged = Shipped(folder);
  for (const FleetProfile& profile : tagged.Projectors()) {
    EXPECT_EQ(profile.tags.back(), "new");
    EXPECT_EQ(std::ranges::count(profile.tags, "Library"), 0);
  }
  list.Select(0);
  AnswerQuestionOf(Find<QAction>(window, "Remove"), [](QDialog& question) {
    EXPECT_EQ(question.focusWidget()->property("text"), "Cancel") << "nothing to lose by Enter";
  });
  EXPECT_EQ(inFile().size(), before.size() + 2) << "asked, and answered with Esc";
  AnswerQuestionOf(Find<QAction>(window, "Remove"),
                   [](QDialog& question) { Find<QPushButton>(question, "Remove").click(); });
  EXPECT_EQ(inFile()[0].name, "A \"大厅\"");
  EXPECT_EQ(list.Model().rowCount(), static_cast<int>(before.size()) + 1);

  auto* undo = window.findChild<QUndoStack*>();
  const auto all = [&](bool (QUndoStack::*can)() const, void (QUndoStack::*act)()) {
    const QByteArray now = Shipped(folder).Text();
    Write(folder.filePath("p.json"), now + "\n");  // as another program
    (undo->*act)();
    Modal<QMessageBox>().close();
    Write(folder.filePath("p.json"), now);
    while ((undo->*can)()) (undo->*act)();
  };
  all(&QUndoStack::canUndo, &QUndoStack::undo);
  EXPECT_EQ(Shipped(folder).Text(), text);
  all(&QUndoStack::canRedo, &QUndoStack::redo);
  EXPECT_EQ(inFile().size(), before.size() + 1);
}

TEST(ProjectorList, KeepsRoomForNamesAndATagAndShowsWhichListHasTheKeyboard) {
  const QTemporaryDir folder;
  MainWindow window(Shipped(folder));
  auto& list = *window.findChild<ProjectorView*>();
  const int less = list.UsualWidth() - 150;
  list.FitColumns(less);
  EXPECT_EQ(list.UsualWidth(), less);
  EXPECT_GT(list.Columns().sectionSize(ProjectorColumns::Place),
            list.fontMetrics().horizontalAdvance("Building A"));
  list.FitColumns(0);
  EXPECT_GT(list.Columns().sectionSize(0),
            list.fontMetrics().horizontalAdvance("Projector 4-11 b"));
  const QModelIndex first = list.Model().index(0, 0);
  EXPECT_TRUE(first.data(Qt::ToolTipRole).toString().startsWith("Projector 1-1\n"));

  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto& groups = *window.findChild<GroupList*>();
  const auto isStrong = [](QAbstractItemView& shown) {
    const QRect row = shown.visualRect(shown.currentIndex());
    return shown.viewport()->grab(row).toImage().pixelColor(row.width() - 3, 2).hsvSaturation() >
           128;
  };
  EXPECT_TRUE(isStrong(Table(window)) && !isStrong(groups));
  groups.setFocus();
  EXPECT_TRUE(!isStrong(Table(window)) && isStrong(groups));
  const QImage sign = StateTexts::Icon(Health::Good).pixmap(16, QIcon::Selected).toImage();
  EXPECT_GT(sign.pixelColor(2, 8).lightness(), 200) << "an outline";
}

TEST(ProjectorList, OffersToAddRealOnesWhileAllAreSimulated) {
  const QTemporaryDir folder;
  MainWindow window(Shipped(folder));
  window.Demonstrate();
  window.show();
  const auto& text =
      Find<QLabel>(window, "All these projectors are simulated, for trying the program.");
  EXPECT_TRUE(text.isVisible());
  Find<QPushButton>(window, "Add").click();
  auto& editor = Modal<ProfileEditor>();
  Fill(editor, {{"Name", "Hall"}, {"Model", "QD-M7450"}, {"Address", "192.0.2.7"}});
  EXPECT_TRUE(Accept(editor));
  EXPECT_FALSE(text.isVisible());
}

TEST(ProjectorList, AFileThatCannotBeWrittenIsSaidBeforeAnybodyTypes) {
  auto gone = std::make_unique<QTemporaryDir>();
  MainWindow window(Shipped(*gone));
  window.show();
  gone.reset();
  const QTemporaryDir folder;
  for (const char* edit :
       {"Add", "Edit", "Duplicate", "Remove", "Tag", "Import Table", "Find on the Network"}) {
    AnswerQuestionOf(Find<QAction>(window, edit), [](QDialog& question) {
      EXPECT_EQ(question.windowTitle(), "Read-Only File");
    });
  }
  AnswerQuestionOf(Find<QAction>(window, "Edit"), [&](QDialog& question) {
    Find<QPushButton>(question, "Save Profiles As").click();
    window.findChild<GroupList*>()->Choose({ProjectorGroup::Kind::Off});  // it leaves the list
    Modal<QFileDialog>().selectFile(folder.filePath("p.json"));
    QMetaObject::invokeMethod(&Modal<QFileDialog>(), "accept");
  });
  auto& editor = Modal<ProfileEditor>();  // the edit goes on
  Field(editor, "Name").setText("Hall");
  EXPECT_TRUE(Accept(editor));
  EXPECT_EQ(Selected(window), "Hall");
  Find<QAction>(window, "Undo Edit").trigger();
  EXPECT_NE(Selected(window), "Hall");
}

TEST(ProjectorList, OrdersAndFindsOnlyWhatChanged) {
  ProjectorTableModel model;
  std::vector<ProjectorRow> rows;
  for (const char* name : {"B", "A", "C"}) rows.push_back({.id = name, .profile = Profile(name)});
  model.SetRows(rows);
  int arranged = 0;
  QObject::connect(&model, &QAbstractItemModel::layoutChanged, &model, [&] { ++arranged; });
  const auto heat = [&](int position) {
    model.Change(position, [](ProjectorRow& row) {
      row.state.reachability = Reachability::Answers;
      row.state.lamps = {{.hours = 100, .isOn = true}};
    });
    model.Rearrange();
  };
  heat(2);
  EXPECT_EQ(arranged, 0) << "the order of the file depends on nothing";
  model.sort(ProjectorColumns::Lamp, Qt::DescendingOrder);
  EXPECT_EQ(model.index(0, 0).data(), "C");
  heat(0);
  EXPECT_EQ(model.index(0, 0).data(), "B") << "as before among equals";
  EXPECT_EQ(arranged, 2);
  model.Search("gamma");
  const std::weak_ptr searched = rows[0].profile.model;
  rows.clear();
  model.SetRows({});
  EXPECT_TRUE(searched.expired()) << "nobody has it any more";
}

}  // namespace
