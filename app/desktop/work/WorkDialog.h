#pragma once

#include <functional>
#include <memory>
#include <string>

#include <QDialog>

#include "app/desktop/work/WorkRun.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;

/// Names the projectors and asks once, then shows the progress and the result of each.
class WorkDialog : public QDialog {
  Q_OBJECT

 public:
  using NameOf = std::function<QString(const std::string& id)>;

  /// Owns `run`, which has not begun.
  WorkDialog(WorkRun* run, const NameOf& nameOf, QWidget* parent);

  WorkRun& Run() const { return *run_; }
  /// Begins without the question.
  void Begin();

  void reject() override;

 Q_SIGNALS:
  void UndoWanted(const WorkPlan& plan);

 private:
  void MakeLayout(const NameOf& nameOf);
  void Show();

  WorkRun* run_;
  bool hasBegun_ = false;
  QLabel* text_;
  QTreeWidget* list_;
  QProgressBar* progress_;
  QPushButton* begin_;
  QPushButton* rest_;
  QPushButton* undo_;
  QPushButton* close_;
};
