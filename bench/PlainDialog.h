#pragma once

#include <memory>
#include <vector>

#include <QDialog>
#include <QSize>
#include <QString>
#include <QStringList>

#include "host/CAdvanceDlg.h"

/// The parts of a dialog, for building the same dialog without the library.
struct PlainBlueprint {
  struct Control {
    ControlKind kind;
    QString text;
    QStringList entries = {};  ///< Of a combo box.
    int minimum = 0;           ///< Of a slider, like `maximum` and `value`.
    int maximum = 0;
    int value = 0;
    bool enabled = true;
    bool hidden = false;
  };
  struct Row {
    RowPlace place;
    std::vector<Control> controls = {};
  };
  struct Page {
    std::vector<Row> rows;
  };

  QString title;
  QSize size;
  QStringList tabs = {};
  QString closeText = {};
  std::vector<Page> pages = {};  ///< Every page created, the shown one first.
};

/// Makes the blueprint of an open dialog.
PlainBlueprint BlueprintOf(CAdvanceDlg& dialog);

/// Builds the same dialog with Qt only: a tab widget with the same pages, a grid for each of their
/// columns, and the same widgets with the same texts. It reads no projector and handles no events.
/// Without `framed`, the pages have no frame, which some styles draw slowly.
std::unique_ptr<QDialog> MakePlainDialog(const PlainBlueprint& blueprint, bool framed);

/// Number of widgets of each kind in a dialog, for comparing two dialogs.
std::vector<qsizetype> WidgetCounts(const QWidget& dialog);
