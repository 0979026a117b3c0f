#pragma once

#include <QDialog>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/projectors/ProjectorRow.h"
#include "app/desktop/work/DifferenceTree.h"

class QLabel;
class QProgressBar;
class QPushButton;

/// Projectors to be compared with snapshots, and the texts that describe the comparison.
struct Comparison {
  QString title;           ///< "Preset Lecture"
  QString column;          ///< Title of the snapshots' values: "Preset".
  QString source{};        ///< The file that the snapshot is from; may be empty.
  bool applies = true;     ///< Whether the differences can be sent.
  bool areWanted = false;  ///< As in `CompareSnapshots`.
  std::vector<ComparedProjector> projectors{};

  void Add(const ProjectorRow& row, const FleetWatch& watch,
           std::shared_ptr<const Snapshot> wanted);
};

/// Reads projectors, several at once, and shows what differs. The user may choose which differences
/// to send.
class ComparisonDialog : public QDialog {
  Q_OBJECT

 public:
  /// Begins at once. `watch` and `texts` must outlive it.
  ComparisonDialog(Comparison comparison, FleetWatch& watch, const SettingTexts& texts,
                   QWidget* parent);

  void reject() override;

 Q_SIGNALS:
  /// The user wants to send these settings. The dialog closes.
  void ApplyWanted(const WorkPlan& plan);

 private:
  WorkPlan Plan() const;
  void MakeLayout();
  void Show();
  void ShowResult();
  void Apply();

  const Comparison comparison_;
  WorkRun* run_;
  QLabel* text_;
  DifferenceTree* tree_;
  QProgressBar* progress_;
  QPushButton* apply_ = nullptr;
  QPushButton* again_ = nullptr;
  QPushButton* close_ = nullptr;
};
