#pragma once

#include <memory>
#include <vector>

#include <QDialog>
#include <QSize>
#include <QString>
#include <QStringList>

#include "host/CAdvanceDlg.h"

/// What a dialog consists of, ready to be built again without the library.
struct PlainBlueprint {
  struct Control {
    ControlKind kind;
    QString text;
    QStringList entries = {};  ///< Of a combo box.
    int minimum = 0;           ///< Of a slider, as its maximum and value.
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

/// Reads the blueprint off an open dialog.
PlainBlueprint BlueprintOf(CAdvanceDlg& dialog);

/// The same dialog made with nothing but Qt: a tab widget, a page for each page, a grid for each of
/// its columns, the same widgets with the same texts. It reads no projector and handles nothing.
/// Without `framed` the pages have no frame around them, which some styles draw slowly.
std::unique_ptr<QDialog> MakePlainDialog(const PlainBlueprint& blueprint, bool framed);

/// Widgets of each kind in a dialog, for telling that two dialogs hold the same.
std::vector<qsizetype> WidgetCounts(const QWidget& dialog);
