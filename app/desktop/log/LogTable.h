#pragma once

#include <QTableView>

/// The rows of the command log, in the order of their arrival. They are aligned at the bottom, so
/// that the newest one is always at the same place. A cell that is cut off has a tool tip.
class LogTable : public QTableView {
 public:
  /// `log` is a `CommandLogModel` or a filter of one. Not owned.
  explicit LogTable(QAbstractItemModel& log, QWidget* parent = nullptr);

  /// Copies the selected rows to the clipboard, as `LogText`.
  void CopySelected() const;

 protected:
  void updateGeometries() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetColumns();

  int free_ = 0;  ///< Height of the empty part above the rows.
};
