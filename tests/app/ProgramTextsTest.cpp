// The host application's windows in a language made from English, with accents, brackets and 40 %
// more letters: each text is translated and has room.

#include <set>

#include <QAbstractButton>
#include <QBitmap>
#include <QCheckBox>
#include <QDockWidget>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSettings>
#include <QTest>
#include <QTextBrowser>
#include <QTimeEdit>
#include <QTranslator>

#include "app/desktop/Preferences.h"
#include "app/desktop/details/DetailsPanel.h"
#include "app/desktop/presets/PresetManager.h"
#include "app/desktop/profiles/ProfileEditor.h"
#include "app/desktop/profiles/SearchDialog.h"
#include "app/profiles/Translations.h"
#include "i18n/Catalog.h"
#include "i18n/CatalogLanguages.h"
#include "i18n/SystemLanguage.h"
#include "tests/app/Windows.h"
#include "tests/support/Ink.h"
#include "tests/support/Programs.h"

namespace {

// Without what is in brackets.
bool IsTranslated(QString text) {
  static const QRegularExpression known(QStringLiteral("\\[[^\\]]*\\]"));
  static const QStringList kUntranslated{"OK", "Cancel", "Apply", "Close"};  // Qt's own
  text.remove(known).remove('&');
  return kUntranslated.contains(text) ||
         std::ranges::none_of(text, [](QChar character) { return character.isLetter(); });
}

/// Names of projectors and languages, addresses and what a user types are the same in every
/// language.
bool HasOwnText(const QWidget& widget) {
  return widget.objectName() == "value" || widget.inherits("QLineEdit") ||
         widget.inherits("QTimeEdit") || widget.objectName() == "qt_toolbar_ext_button";
}

void ExpectTranslated(const QWidget& window) {
  EXPECT_TRUE(IsTranslated(window.windowTitle())) << window.windowTitle().toStdString();
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    const char* const text = HasOwnText(*widget) ? "title" : "text";
    for (const char* const name : {text, "title", "placeholderText", "accessibleName", "toolTip"}) {
      const QString shown = widget->property(name).toString();
      EXPECT_TRUE(IsTranslated(shown))
          << widget->metaObject()->className() << ": " << qPrintable(shown);
    }
  }
}

void ExpectRoom(const QWidget& window) {
  constexpr int kMargin = 2;  // beside a label's text
  const QRect all = window.rect();
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    const bool isText = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                        qobject_cast<const QComboBox*>(widget) != nullptr ||
                        (label != nullptr && !label->wordWrap());
    if (!isText || !widget->isVisible() || HasOwnText(*widget)) continue;
    const std::string name = widget->metaObject()->className() + std::string(" ") +
                             widget->property("text").toString().toStdString();
    EXPECT_GE(widget->width() + kMargin, widget->minimumSizeHint().width()) << name;
    EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << name;
    EXPECT_TRUE(all.contains(QRect(widget->mapTo(&window, QPoint()), widget->size()))) << name;
  }
}

/// Each letter that is pressed with Alt has one caption in the window, and one entry in a menu.
void ExpectOwnLetters(const QWidget& window) {
  std::set<std::pair<const QWidget*, QKeySequence>> letters;
  const auto expectOwn = [&letters](const QWidget& place, const QString& caption) {
    const QKeySequence letter = QKeySequence::mnemonic(caption);
    EXPECT_TRUE(letter.isEmpty() || letters.emplace(&place, letter).second) << qPrintable(caption);
  };
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const bool isMenu = widget->inherits("QMenu");
    if (isMenu || widget->inherits("QMenuBar"))
      for (const QAction* entry : widget->actions())
        expectOwn(isMenu ? *widget : window, entry->text());
    else if (widget->isVisible())
      for (const char* const name : {"text", "title"})
        expectOwn(window, widget->property(name).toString());
  }
}

/// The window and the dialogs that need no projector.
void ForEachWindow(const std::function<void(QWidget&)>& look) {
  const QTemporaryDir folder;
  const auto show = [&look](QWidget& window) {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    SCOPED_TRACE(window.metaObject()->className());
    look(window);
    window.hide();
  };
  const ProfileDocument document = Shipped(folder);
  MainWindow window(Shipped(folder));
  show(window);
  ProfileEditor editor(document, {}, {});
  show(editor);
  QSettings settings(folder.filePath("settings"), QSettings::IniFormat);
  Preferences preferences(settings);
  show(preferences);
  SearchDialog search(document.Projectors(), nullptr);
  show(search);
  const SettingTexts texts(CatalogFolders(), kEnglishUnitedStates);
  PresetManager presets(
      {.users = [](const QString&) { return QStringList(); },
       .model =
           [&](const Snapshot&) { return ModelSettings(document.Projectors()[0].model->data); },
       .rename = {},
       .remove = {},
       .texts = texts},
      nullptr);
  show(presets);
}

struct ProgramTexts : testing::Test {
  ~ProgramTexts() override { InstallTranslations(kEnglishUnitedStates); }
};

TEST_F(ProgramTexts, AreAllTranslatedAndHaveRoomWhenTheyAreLonger) {
  for (const auto& [name, direction] :
       {std::pair("qps_ploc", Qt::LeftToRight), {"qps_plocm", Qt::RightToLeft}}) {
    SCOPED_TRACE(name);
    QTranslator pseudo;
    ASSERT_TRUE(pseudo.load(name, TEST_PSEUDO_DIR "/translations"));
    QCoreApplication::installTranslator(&pseudo);
    QApplication::setLayoutDirection(direction);
    ForEachWindow([](QWidget& window) {
      ExpectTranslated(window);
      ExpectRoom(window);
    });
  }
  QApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

TEST_F(ProgramTexts, TurnTheMainWindowLeaveItRoomAndHaveOwnLettersInEveryLanguage) {
  const QTemporaryDir folder;
  for (const CatalogLanguage& language : CatalogLanguages(CatalogFolders())) {
    SCOPED_TRACE(language.tag);
    InstallTranslations(language.id);
    EXPECT_EQ(QApplication::isRightToLeft(), IsRightToLeft(language.id));
    const MainWindow window(Shipped(folder));
    EXPECT_LE(window.minimumSizeHint().width(), 940) << "1920 pixels at 200 %";
    EXPECT_LE(window.minimumSizeHint().height(), 500);
    int width = 0;
    for (const QAction* entry : window.menuBar()->actions())
      width += window.menuBar()->fontMetrics().horizontalAdvance(entry->text()) + 16;
    EXPECT_LE(width, 940) << "the menus do not fit in one line";
    const DetailsPanel panel({});
    for (auto* label : panel.findChildren<QLabel*>()) {
      label->resize(label->sizeHint());
      const QRect ink = InkOf(*label);
      EXPECT_TRUE(ink.isEmpty() || label->rect().contains(ink)) << label->text().toStdString();
    }
    ForEachWindow([](QWidget& shown) {
      shown.resize(1900, 900);
      const auto docks = shown.findChildren<QDockWidget*>();
      for (const auto* dock : docks) dock->toggleViewAction()->trigger();
      QCoreApplication::processEvents();
      for (const auto* dock : docks) {
        const auto* area = qobject_cast<QScrollArea*>(dock->widget());
        EXPECT_GE(dock->width(), area == nullptr ? 700 : area->widget()->minimumSizeHint().width());
      }
      if (auto* connection = shown.findChild<QComboBox*>("connection")) {
        shown.findChild<QCheckBox*>()->click();
        ExpectOwnLetters(shown);
        connection->setCurrentIndex(connection->findData("serial"));
      }
      ExpectOwnLetters(shown);
    });
  }
}

TEST_F(ProgramTexts, HaveHoursFirstAndFactsInLatinLettersAtTheRightFromRightToLeftToo) {
  InstallTranslations(LanguageIdOf("he").value());
  const QTemporaryDir folder;
  QSettings settings(folder.filePath("settings"), QSettings::IniFormat);
  Preferences preferences(settings);
  const auto times = preferences.findChildren<QTimeEdit*>();
  ASSERT_EQ(times.size(), 2);
  times.front()->setTime(QTime(22, 30));
  EXPECT_EQ(times.front()->text(), "22:30");
  const ShippedWindow window;
  QAction& shortcuts = *window.menuBar()->actions().back()->menu()->actions().front();
  AnswerQuestionOf(shortcuts, [](QDialog& table) {
    auto* text = table.findChild<QTextBrowser*>();
    EXPECT_TRUE(text->find("F5"));
    EXPECT_GT(text->cursorRect().x(), text->width() / 2) << "in the first column";
  });
  DetailsPanel panel({});
  const ProjectorRow row{.id = "a", .profile = Profile("A")};
  panel.Show(&row, 1, {});
  for (auto* label : panel.findChildren<QLabel*>("value")) {
    label->resize(400, 60);
    QImage image(label->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    label->render(&image, {}, {}, {});
    const QImage drawn = image.createMaskFromColor(0xFFFFFFFF, Qt::MaskInColor);
    EXPECT_GE(QRegion(QBitmap::fromImage(drawn)).boundingRect().left(), 200)
        << qPrintable(label->text());
  }
}

TEST_F(ProgramTexts, OfQtAreInTheLanguageOfTheProgramForARegionToo) {
  const auto inQt = [](const char* context, const char* text) {
    return QCoreApplication::translate(context, text).toStdString();
  };
  for (const auto& [tag, cancel] : {std::pair("de-AT", "Abbrechen"),
                                    {"pt-PT", "Cancelar"},
                                    {"zh-HK", "取消"},
                                    {"he", "ביטול"}}) {
    SCOPED_TRACE(tag);
    InstallTranslations(LanguageIdOf(tag).value());
    EXPECT_EQ(inQt("QPlatformTheme", "Cancel"), cancel);
    EXPECT_NE(inQt("QCommandLineParser", "Options:"), "Options:");
  }
  InstallTranslations(0x042A);  // Vietnamese, which has no texts: none of the last language stays
  EXPECT_EQ(inQt("QPlatformTheme", "Cancel"), "Cancel");
  const QTemporaryDir folder;
  const std::string folders[] = {"", folder.path().toStdString()};
  ASSERT_TRUE(QDir(folder.path()).mkdir("translations"));
  for (const char* const name : {"nobodys", "en"}) {
    Write(folder.filePath(QStringLiteral("translations/%1.qm").arg(name)), "");
    InstallTranslations(LanguageIdOf("de").value(), folders);
    EXPECT_EQ(inQt("QPlatformTheme", "Cancel"), "Abbrechen") << "from Qt";
    EXPECT_EQ(inQt("SettingsFile", "standard input"), "standard input") << "there are no texts";
  }
}

}  // namespace
