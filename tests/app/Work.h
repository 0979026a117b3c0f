#pragma once

#include <QTreeWidget>

#include "app/desktop/simulation/FaultPanel.h"
#include "app/desktop/work/ComparisonDialog.h"
#include "app/desktop/work/WorkDialog.h"
#include "tests/app/Windows.h"

// Work on many projectors, as the windows show it.

inline void SetFault(const MainWindow& window, std::size_t projector, const Fault& fault) {
  ProjectorSession& session = *window.Session(projector);
  session.SetFault({}, fault);
  Q_EMIT window.findChild<FaultPanel*>()->Changed(&session);
}

/// The window of the work, when it is done.
inline WorkDialog& Done(const MainWindow& window) {
  WorkDialog* dialog = nullptr;
  EXPECT_TRUE(Soon([&] {
    dialog = window.findChild<WorkDialog*>();
    return dialog != nullptr && dialog->isVisible() && !dialog->Run().IsRunning();
  }));
  return *dialog;
}

/// "A: done" for each projector.
inline QStringList Results(const WorkDialog& dialog) {
  QStringList results;
  const auto& list = *dialog.findChild<QTreeWidget*>();
  for (int i = 0; i < list.topLevelItemCount(); ++i) {
    const QTreeWidgetItem& item = *list.topLevelItem(i);
    results += item.text(0) + ": " + item.text(1);
  }
  return results;
}

inline bool HasCompared(const ComparisonDialog& dialog) {
  return Soon([&] { return dialog.findChild<QTreeWidget*>()->isEnabled(); });
}

/// All lines of a tree, the columns divided by bars.
inline QStringList Lines(const QTreeWidget& tree) {
  QStringList lines;
  const auto add = [&](const QTreeWidgetItem& item, const QString& indent) {
    QStringList columns;
    for (int column = 0; column < tree.columnCount(); ++column) columns += item.text(column);
    lines += indent + columns.join('|');
  };
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    const QTreeWidgetItem& branch = *tree.topLevelItem(i);
    add(branch, {});
    for (int j = 0; j < branch.childCount(); ++j) add(*branch.child(j), "  ");
  }
  return lines;
}
