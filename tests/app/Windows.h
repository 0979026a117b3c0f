#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <utility>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QTableView>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "app/desktop/MainWindow.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/projectors/ProjectorView.h"
#include "tests/support/Models.h"
#include "tests/support/Soon.h"

// Operates the host application's windows as a user does.

inline FleetProfile Profile(const char* name, CModelInfo2 model = MakeModel(5, 30)) {
  model.ModelName = name;
  return {.name = name,
          .model = std::make_shared<const ProfileModel>(
              ProfileModel{.info = model, .lacks = {}, .data = MakeModelData(model)}),
          .connection = {}};
}

/// The profile of one that is served on this machine.
inline FleetProfile Profile(const char* name, ProjectorLink link, std::int32_t port) {
  FleetProfile profile = Profile(name);
  profile.link = link;
  profile.connection = {.address = "127.0.0.1", .port = port, .secret = "secret"};
  return profile;
}

/// Finds a widget by its text or accessible name, ignoring its mnemonic and a trailing "...".
template <typename Part>
Part& Find(const QObject& window, const QString& name) {
  for (auto* part : window.findChildren<Part*>()) {
    const QString text = part->property("text").toString().remove('&').remove(u'…');
    if (text == name || part->property("accessibleName") == name) return *part;
  }
  ADD_FAILURE() << "there is no " << name.toStdString();
  std::abort();
}

/// The modal dialog that is open.
template <typename Dialog>
Dialog& Modal() {
  if (auto* open = qobject_cast<Dialog*>(QApplication::activeModalWidget())) return *open;
  ADD_FAILURE() << "there is no " << Dialog::staticMetaObject.className();
  std::abort();
}

inline QTableView& Table(const QWidget& window) {
  return *window.findChild<ProjectorView*>()->findChild<QTableView*>();
}

inline const std::vector<ProjectorRow>& Rows(const QWidget& window) {
  return window.findChild<ProjectorView*>()->Model().All();
}

/// Whether all projectors have been asked, and jobs can reach them.
inline bool AreWatched(const QWidget& window) {
  return Soon([&] {
    return std::ranges::all_of(
        Rows(window), [](const ProjectorRow& row) { return HealthOf(row) != Health::NotAsked; });
  });
}

/// Chooses an entry as an assistive technology does, which finds a list by its name.
inline void Choose(const QWidget& window, const QString& name, const QString& entry) {
  auto* list = qobject_cast<QComboBox*>(Find<QLabel>(window, name).buddy());
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(list);
  EXPECT_EQ(accessible->text(QAccessible::Name), name);
  QAccessibleInterface* chosen = accessible->child(0)->child(list->findText(entry));
  chosen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
  EXPECT_EQ(accessible->text(QAccessible::Value), entry);
}

inline ProfileDocument Shipped(const QTemporaryDir& folder) {
  const QString name = folder.filePath("p.json");
  if (!QFile::exists(name)) QFile::copy(TEST_CATALOG_DIR "/projectors.json", name);
  ProfileDocument document;
  EXPECT_EQ(document.Load(name), "");
  return document;
}

/// The main window, open.
struct ShownWindow : MainWindow {
  explicit ShownWindow(std::vector<FleetProfile> profiles, const FleetPolicy& policy = {})
      : MainWindow(std::move(profiles), policy) {
    show();
  }
};

struct OwnFolder {
  const QTemporaryDir folder{};
};

/// The main window with the shipped projectors, open.
struct ShippedWindow : OwnFolder, MainWindow {
  ShippedWindow() : MainWindow(Shipped(folder)) { show(); }
};

/// Triggers an action that opens a modal dialog, and answers the dialog.
inline void AnswerQuestionOf(QAction& action, const std::function<void(QDialog&)>& answer) {
  action.trigger();
  const QPointer dialog = &Modal<QDialog>();
  answer(*dialog);
  if (dialog != nullptr && dialog->isVisible()) dialog->reject();
  QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
  EXPECT_EQ(dialog, nullptr);
}
