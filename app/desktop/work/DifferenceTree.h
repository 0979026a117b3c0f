#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <QTreeWidget>

#include "app/desktop/work/UsualSettings.h"
#include "app/desktop/work/WorkRun.h"
#include "snapshots/SettingTexts.h"

/// A projector whose settings are compared with a snapshot.
struct ComparedProjector {
  FleetTarget target;
  QString name;
  std::shared_ptr<const Snapshot> wanted;
};

/// What differs between projectors and their snapshots: a branch for each projector, with a line
/// for each setting that differs, and one for all that do not apply. Lines can be checked.
class DifferenceTree : public QTreeWidget {
  Q_OBJECT

 public:
  /// `column` is the title of the snapshots' values. `texts` must outlive it.
  DifferenceTree(const QString& column, bool isCheckable, const SettingTexts& texts,
                 QWidget* parent = nullptr);

  /// Replaces all lines; those that were unchecked stay so. Projectors that have all settings of
  /// their snapshots are left out. `lines` are the results, in the projectors' order.
  void Show(const std::vector<ComparedProjector>& projectors, const std::vector<WorkLine>& lines);

  /// The checked part of each projector's snapshot; none for a projector without checked lines.
  SnapshotsById Checked(const std::vector<ComparedProjector>& projectors,
                        const std::vector<WorkLine>& lines) const;
  bool HasChecked() const;

 Q_SIGNALS:
  void CheckedChanged();

 private:
  void AddProjector(std::size_t index, const ComparedProjector& projector, const WorkLine& line);
  void AddDifference(QTreeWidgetItem& branch, const ComparedProjector& projector,
                     const SettingDifference& difference, int place);
  void AddRemark(QTreeWidgetItem& branch, const QString& text);
  QString NameOf(const std::shared_ptr<const ModelData>& model, const SavedSetting& saved);
  void TakeCheck(QTreeWidgetItem* item);

  const bool isCheckable_;
  const SettingTexts& texts_;
  UsualSettings models_;
  std::map<std::pair<const ModelData*, std::string>, QString> names_;  ///< By key and source.
};
