#pragma once

#include <vector>

#include <QWidget>

#include "app/desktop/projectors/ProjectorTableModel.h"

class ProjectorSelection;
class QHeaderView;
class QLabel;
class QLineEdit;
class QTableView;

/// The list of projectors with a search box above it.
class ProjectorView : public QWidget {
  Q_OBJECT

 public:
  explicit ProjectorView(QWidget* parent = nullptr);

  /// Shows these projectors. Those that are selected stay so.
  void SetRows(std::vector<ProjectorRow> rows);

  ProjectorTableModel& Model() const { return *model_; }

  /// The position of the current projector in the file; −1 if there is none.
  int CurrentPosition() const;
  /// Null if there is none.
  const ProjectorRow* Current() const;
  /// The positions of all selected projectors, in the order of the list.
  std::vector<int> Selected() const;
  std::size_t SelectedCount() const;
  /// The positions of those that can be seen.
  std::vector<int> InSight() const;

  /// Selects one projector. Shows all of them first if it is hidden.
  void Select(int position);

  /// The width at which all shown columns have room.
  int UsualWidth() const;
  /// Narrows columns whose texts can be cut off, so that all columns have room in this width, if
  /// that is possible without cutting off their titles.
  void FitColumns(int width);

  void FocusSearch();
  void FocusTable();

  QHeaderView& Columns() const;
  /// Sets the list's context menu.
  void AddContextActions(const QList<QAction*>& actions);

 Q_SIGNALS:
  /// The user asked for the dialogs of the selected projectors.
  void Activated();
  void SelectionChanged();
  /// A projector was shown that is not in the chosen group.
  void GroupLeft();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeColumns();
  int TitleWidth(int column) const;
  int WidthOf(int column, const QStringList& samples) const;
  void AskForColumns(const QPoint& place);
  void TakeSearch(const QString& text);
  void SelectOnly(const QModelIndex& index);

  ProjectorTableModel* model_;
  QLineEdit* search_;
  QLabel* found_;
  QTableView* table_;
  ProjectorSelection* selection_;
};
