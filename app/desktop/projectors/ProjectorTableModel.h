#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include <QAbstractTableModel>

#include "app/desktop/projectors/ProjectorColumns.h"
#include "app/desktop/projectors/ProjectorRow.h"
#include "app/desktop/projectors/RowArrangement.h"

/// Whether every tab of the model's dialog has a setting.
bool HasRowsOnEveryTab(const CModelInfo2& model);

/// The projectors as a table: those of the chosen group that match the search, in the order of a
/// column or of the file. It filters and sorts by itself, with keys that are computed once, so that
/// ten thousand rows take a few milliseconds.
class ProjectorTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// Of the lamp: hours as a share of the rated hours, a number; nothing if one is not known.
  static constexpr int kShareRole = Qt::UserRole;

  explicit ProjectorTableModel(QObject* parent = nullptr);

  void SetRows(std::vector<ProjectorRow> rows);
  /// In the order of the file. A position is one in this list.
  const std::vector<ProjectorRow>& All() const { return rows_; }
  /// The position of a projector, −1 if there is none.
  int Find(const std::string& id) const;

  /// Changes what is known of a projector. The order stays as it is until `Rearrange`.
  void Change(int position, const auto& change) {
    change(rows_[static_cast<std::size_t>(position)]);
    ShowChanged(position);
  }
  /// Filters and sorts again, if a change may have made a difference.
  void Rearrange();

  /// Shows the projectors of a group in which each word occurs: in the name, model, tags, address
  /// or notes, or in the name of a tab or setting. Ignores case. One that is called like the whole
  /// text comes first.
  void Search(const QString& text);
  void SetGroup(const ProjectorGroup& group);
  const ProjectorGroup& Group() const { return arrangement_.Group(); }

  int PositionAt(int row) const { return shown_[static_cast<std::size_t>(row)]; }
  const ProjectorRow& At(const QModelIndex& index) const {
    return rows_[static_cast<std::size_t>(PositionAt(index.row()))];
  }
  /// The row that shows a projector; invalid if none does.
  QModelIndex IndexOf(int position) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

 private:
  void ShowChanged(int position);
  void Arrange();

  std::vector<ProjectorRow> rows_;
  std::unordered_map<std::string, int> positions_;
  std::vector<int> shown_;   // positions, by row
  std::vector<int> rowsOf_;  // rows, by position; −1 for one that is not shown
  RowArrangement arrangement_;
  bool isOutOfDate_ = false;  // whether filter or order may be affected
};
