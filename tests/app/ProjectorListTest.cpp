// The list, its search, the profile editor and what the window remembers, used as a person does.

#include <functional>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTabBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/host/MainWindow.h"
#include "app/host/ProfileEditor.h"
#include "app/host/ProjectorFilter.h"
#include "app/host/ProjectorView.h"
#include "app/host/Translations.h"
#include "host/CAdvanceDlg.h"
#include "i18n/Catalog.h"
#include "tests/support/Models.h"

namespace {

ProfileDocument Shipped(const QTemporaryDir& folder) {
  const QString name = folder.filePath("p.json");
  if (!QFile::exists(name)) QFile::copy(TEST_CATALOG_DIR "/projectors.json", name);
  ProfileDocument document;
  EXPECT_EQ(document.Load(name), "");
  return document;
}

QAction& Action(const QWidget& window, const QString& text) {
  for (auto* action : window.findChildren<QAction*>()) {
    if (action->text().remove('&').remove("…") == text && !action->shortcut().isEmpty())
      return *action;
  }
  ADD_FAILURE() << "there is no action " << text.toStdString();
  std::abort();
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

QTableView& Table(const QWidget& window) {
  return *window.findChild<ProjectorView*>()->findChild<QTableView*>();
}

QString Selected(const QWidget& window) {
  const QTableView& table = Table(window);
  return table.currentIndex().siblingAtColumn(0).data().toString();
}

TEST(ProjectorList, AtFirstOneWithRowsOnEveryTabIsSelected) {
  std::vector<ProjectorProfile> profiles;
  for (const auto& [type, code] : {std::pair(9, 30), {1, 99}, {5, 30}, {5, 31}}) {
    const std::string name = std::to_string(type) + '-' + std::to_string(code);
    profiles.push_back({name, MakeModel(type, code), {}});
  }
  EXPECT_EQ(Selected(MainWindow(profiles)), HasRowsOnEveryTab(profiles[1].Model) ? "1-99" : "5-30");
}

TEST(ProjectorList, IsSearchedAndSorted) {
  const QTemporaryDir folder;
  MainWindow window(Shipped(folder));
  window.show();
  QTableView& table = Table(window);
  const int all = table.model()->rowCount();
  Action(window, "Find Projectors").trigger();
  auto* search = window.findChild<ProjectorView*>()->findChild<QLineEdit*>();
  const auto& found = *table.model();
  for (const QString words : {"audio", "5-3 SCREEN", "qd-m7450"}) {
    search->clear();
    QTest::keyClicks(search, words);
    EXPECT_TRUE(found.rowCount() > 0 && found.rowCount() < all) << words.toStdString();
    EXPECT_TRUE(table.currentIndex().isValid());
    for (int row = 0; row < found.rowCount(); ++row) {
      const QModelIndex index = found.index(row, 0);
      const QString tabs = index.data(ProjectorTableModel::kTabsRole).toString();
      EXPECT_TRUE(words == "audio" ? tabs.contains("Audio")
                  : words == "5-3 SCREEN"
                      ? index.data().toString().contains("5-3") && tabs.contains("Screen")
                      : index.siblingAtColumn(ProjectorTableModel::Model).data() == "QD-M7450");
    }
  }
  QTest::keyClicks(search, "zz");
  EXPECT_EQ(table.model()->rowCount(), 0);
  QTest::keyClick(search, Qt::Key_Return);
  EXPECT_FALSE(window.findChild<QPushButton*>()->isEnabled());
  QTest::keyClick(search, Qt::Key_Escape);
  EXPECT_EQ(table.model()->rowCount(), all);

  const auto row = [&table](const char* name) {
    return table.model()->match(table.model()->index(0, 0), Qt::DisplayRole, name)[0].row();
  };
  const int inFile = row("Projector 4-9");
  table.sortByColumn(0, Qt::DescendingOrder);
  EXPECT_GT(row("Projector 4-9"), row("Projector 4-11"));
  table.sortByColumn(-1, Qt::AscendingOrder);
  EXPECT_EQ(row("Projector 4-9"), inFile);
}

QLineEdit& Field(QDialog& editor, const QString& caption) {
  for (auto* label : editor.findChildren<QLabel*>()) {
    if (label->text().remove('&') == caption) return *qobject_cast<QLineEdit*>(label->buddy());
  }
  ADD_FAILURE() << "there is no field " << caption.toStdString();
  std::abort();
}

void Accept(QDialog& editor) {
  auto* buttons = editor.findChild<QDialogButtonBox*>();
  QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

TEST(ProjectorList, ProjectorsAreAddedEditedDuplicatedAndRemoved) {
  const QTemporaryDir folder;
  MainWindow window(Shipped(folder));
  window.show();
  const auto inFile = [&folder] { return Shipped(folder).Projectors(); };
  const auto before = inFile();
  const std::size_t count = before.size();

  Answer(Action(window, "Add"), [&](QDialog& editor) {
    Accept(editor);
    EXPECT_TRUE(editor.isVisible()) << "without a name";
    QTest::keyClicks(&Field(editor, "Name"), "Hall");
    for (auto* list : editor.findChildren<QComboBox*>()) {
      if (list->findText("type5") > 0) list->setCurrentText("type5");
    }
    QTest::keyClicks(&Field(editor, "Model"), "M");
    QTest::keyClicks(&Field(editor, "Model code"), "30");
    QTest::keyClicks(&Field(editor, "Address"), "192.0.2.200");
    Accept(editor);
    EXPECT_TRUE(editor.isVisible()) << "without a port";
    QTest::keyClicks(&Field(editor, "Port"), "4352");
    Accept(editor);
    EXPECT_FALSE(editor.isVisible());
  });
  EXPECT_EQ(inFile().size(), count + 1);
  EXPECT_EQ(Selected(window), "Hall");

  CAdvanceDlg* open = window.OpenDialog(0);
  window.findChild<ProjectorView*>()->Select(1);
  Answer(Action(window, "Edit"), [](QDialog& editor) {
    Field(editor, "Name").setText("A \"大厅\"");
    Accept(editor);
  });
  EXPECT_EQ(inFile()[1].Name, "A \"大厅\"");
  EXPECT_EQ(Selected(window), "A \"大厅\"");
  auto others = inFile();
  others.erase(others.begin() + 1);
  EXPECT_EQ(others, before);
  EXPECT_EQ(window.Dialog(0), open) << "nothing changed for it";
  Action(window, "Duplicate").trigger();
  EXPECT_EQ(inFile()[2].Name, "A \"大厅\" (2)");
  EXPECT_EQ(Selected(window), "A \"大厅\" (2)");
  Answer(Action(window, "Remove"), [](QDialog&) {});
  EXPECT_EQ(inFile().size(), count + 2) << "asked, and answered with Esc";

  const auto choose = [](QDialog& editor, const QString& link) {
    for (auto* list : editor.findChildren<QComboBox*>()) {
      if (list->findText("PJLink") < 0) continue;
      list->setCurrentText(link);
      Q_EMIT list->activated(list->currentIndex());
    }
  };
  Answer(Action(window, "Edit"), [&choose](QDialog& editor) {
    choose(editor, "Serial port");
    EXPECT_FALSE(Field(editor, "Address").isVisible()) << "the connection follows";
    QTest::keyClicks(&Field(editor, "Device"), "ttyUSB0");
    QTest::keyClicks(&Field(editor, "Baud"), "9600");
    Accept(editor);
    EXPECT_TRUE(editor.isVisible()) << "no path";
    Field(editor, "Device").setText("/dev/ttyUSB0");
    Accept(editor);
  });
  EXPECT_EQ(AddressOf(inFile()[2]), ProjectorAddress(SerialAddress{"/dev/ttyUSB0", 9600}));
  Answer(Action(window, "Edit"), [&choose](QDialog& editor) {
    choose(editor, "PJLink");
    Field(editor, "Address").setText("192.0.2.7");
    Field(editor, "Port").setText("4352");
    Field(editor, "Password").setText("open");
    Accept(editor);
  });
  EXPECT_EQ(AddressOf(inFile()[2]), ProjectorAddress(PjLinkAddress{"192.0.2.7", 4352, "open"}));

  window.findChild<ProjectorView*>()->Select(0);
  Answer(Action(window, "Remove"), [](QDialog& question) {
    for (auto* button : question.findChildren<QPushButton*>()) {
      if (button->text() == "Remove") button->click();
    }
  });
  EXPECT_EQ(inFile().size(), count + 1);
  EXPECT_EQ(inFile()[0].Name, "A \"大厅\"");
  EXPECT_EQ(window.findChild<ProjectorView*>()->Model().rowCount(), static_cast<int>(count) + 1);
}

TEST(MainWindow, RemembersWhereItWasAndWhatWasOpen) {
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
    dialog->close();
    place = window.geometry();
    QTimer::singleShot(0, &window, &QWidget::close);
    EXPECT_EQ(QApplication::exec(), 0);
  }
  MainWindow window(Shipped(folder), &settings);
  window.show();
  EXPECT_EQ(window.geometry(), place);
  EXPECT_EQ(Table(window).columnWidth(0), 123);
  EXPECT_EQ(window.findChild<ProjectorView*>()->CurrentRow(), 5);
  EXPECT_EQ(window.OpenDialog(5)->findChild<QTabBar*>()->currentIndex(), 2);
}

TEST(MainWindow, IsChineseThroughout) {
  qputenv("LC_ALL", "zh_CN.UTF-8");
  LoadCatalog();
  InstallTranslations();
  {
    const QTemporaryDir folder;
    const ProfileDocument document = Shipped(folder);
    MainWindow window(Shipped(folder));
    const ProfileEditor editor(document, {}, {});
    EXPECT_LE(window.minimumSizeHint().width(), 940) << "1920 pixels at 200 %";
    EXPECT_LE(window.minimumSizeHint().height(), 500);
    QStringList texts{window.windowTitle(), editor.windowTitle()};
    for (const QWidget* top :
         {static_cast<const QWidget*>(&window), static_cast<const QWidget*>(&editor)}) {
      for (auto* child : top->findChildren<QObject*>()) {
        if (auto* action = qobject_cast<QAction*>(child); action && action->isSeparator()) continue;
        for (const char* name : {"text", "title", "toolTip", "placeholderText", "accessibleName"}) {
          // What is typed and what comes from the profiles is not translated.
          if (qobject_cast<QLineEdit*>(child) && qstrcmp(name, "text") == 0) continue;
          texts += child->property(name).toString();
        }
      }
    }
    texts.removeAll(QString());
    EXPECT_GT(texts.size(), 80);
    static const QRegularExpression chinese("\\p{Han}");
    for (const QString& text : texts) EXPECT_TRUE(text.contains(chinese)) << text.toStdString();
  }
  qputenv("LC_ALL", "en_US.UTF-8");
  LoadCatalog();
  InstallTranslations();
}

}  // namespace
