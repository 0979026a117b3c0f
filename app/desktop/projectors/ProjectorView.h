#pragma once

#include <QWidget>

#include "app/desktop/projectors/ProjectorTableModel.h"

class ProjectorFilter;
class QHeaderView;
class QLineEdit;
class QPushButton;
class QTableView;

/// The list of projectors with a search box above it and the button that opens one.
class ProjectorView : public QWidget {
  Q_OBJECT

 public:
  explicit ProjectorView(QWidget* parent = nullptr);

  /// Shows these projectors. The selection stays if a projector with the same name is among them.
  void SetSessions(ProjectorTableModel::Sessions sessions);

  ProjectorTableModel& Model() const { return *model_; }

  /// The selected projector and its position in the model; null and −1 if none is selected.
  ProjectorSession* Current() const;
  int CurrentRow() const;

  /// All selected projectors, in the order of the list.
  ProjectorSessions Selected() const;

  /// Selects a projector of the model. Clears a search that hides it.
  void Select(int row);

  void FocusSearch();
  void FocusTable();

  QHeaderView& Columns() const;
  /// Sets the list's context menu.
  void AddContextActions(const QList<QAction*>& actions);

 Q_SIGNALS:
  /// The user asked for the selected projector's dialog.
  void Activated();
  /// The selection has changed.
  void CurrentChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeColumns();
  void SelectOnly(const QModelIndex& index);

  ProjectorTableModel* model_;
  ProjectorFilter* filter_;
  QLineEdit* search_;
  QTableView* table_;
  QPushButton* open_;
};
