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
/// for each setting that differs, and one for all that do not apply. Lines can be checked. A branch
/// gets its lines when it is opened; the first ones are open.
class DifferenceTree : public QTreeWidget {
  Q_OBJECT

 public:
  /// `column` is the title of the snapshots' values. `texts` must outlive it.
  DifferenceTree(const QString& column, bool isCheckable, const SettingTexts& texts,
                 QWidget* parent = nullptr);

  /// Shows the results, which are in the projectors' order; both must outlive it. Projectors that
  /// have all settings of their snapshots are left out. What is shown of those that had been read
  /// before stays.
  void Show(const std::vector<ComparedProjector>& projectors, const std::vector<WorkLine>& lines);

  /// The checked part of each projector's snapshot; none for a projector without checked lines.
  SnapshotsById Checked() const;
  bool HasChecked() const;

 Q_SIGNALS:
  void CheckedChanged();

 private:
  /// Null if there is nothing to show of the projector at this place.
  QTreeWidgetItem* MakeBranch(std::size_t index) const;
  /// The lines of a projector that can be checked: the places of the differences, or `kBeforehand`.
  std::vector<int> PlacesOf(std::size_t index) const;
  void Fill(QTreeWidgetItem& branch);
  QTreeWidgetItem* MakeLeaf(std::size_t index, int place);
  void AddRemark(QTreeWidgetItem& branch, const QString& text);
  QString NameOf(const std::shared_ptr<const ModelData>& model, const SavedSetting& saved);
  void TakeCheck(QTreeWidgetItem* item);

  const bool isCheckable_;
  const SettingTexts& texts_;
  const std::vector<ComparedProjector>* projectors_ = nullptr;
  const std::vector<WorkLine>* lines_ = nullptr;
  std::vector<QTreeWidgetItem*> branches_;  ///< Of each projector, or null.
  UsualSettings models_;
  std::map<std::pair<const ModelData*, std::string>, QString> names_;  ///< By key and source.
};
