#pragma once

#include <QByteArray>
#include <QTableView>

/// The rows of the command log, in the order of their arrival. They are aligned at the bottom, so
/// that the newest one is always at the same place. A cell that is cut off has a tool tip.
class LogTable : public QTableView {
 public:
  /// `log` is a `CommandLogModel` or a filter of one. Not owned.
  explicit LogTable(QAbstractItemModel& log, QWidget* parent = nullptr);

  /// Copies the selected rows to the clipboard, as `LogText`.
  void CopySelected() const;

  /// The columns as the user has arranged them, also while the table was never shown.
  QByteArray SaveColumns() const;
  void RestoreColumns(const QByteArray& state);

 protected:
  void updateGeometries() override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void SetColumns();

  QByteArray columns_;  ///< To be restored when the table is shown first.
  bool isSet_ = false;
  int free_ = 0;  ///< Height of the empty part above the rows.
};
