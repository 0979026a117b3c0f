#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "pages/common/RowDialog.h"
#include "toolkit/CurveView.h"

/// What the two custom pop-ups share: a test pattern and a column of slider rows, each with a
/// button that resets it, and a picture of their values. Every change goes to the projector at
/// once.
class CustomDialog : public RowDialog {
  Q_OBJECT

 protected:
  /// The rows' reset buttons bear the numbers from `firstReset`, in the order of the table.
  CustomDialog(int templateNumber, const PageTable& table, int firstReset, bool hideResets,
               CWnd* parent);

  std::vector<Notification> OwnNotifications() const override;
  bool OnInitDialog() override;

  /// Resets the slider row at an index and gives the new device value, if the projector did it.
  virtual std::optional<int> Reset(std::size_t row) = 0;

  /// The rows' shown values, in their order; nothing for one that could not be read.
  using Values = std::vector<std::optional<int>>;
  /// The lines that a picture of the values is made of; one that is not known has no points.
  virtual std::vector<CurveView::Line> LinesOf(const Values& values) const = 0;

  /// The slider rows, by index.
  const ValueRow& RowAt(std::size_t row) const;
  std::size_t RowCount() const { return table_.rows.size() - 1; }

 private:
  void OnReset(std::size_t row);
  void AddPicture();
  void Draw();

  const PageTable& table_;  // the pattern, then the slider rows
  int firstReset_;
  bool hideResets_;
  QPointer<CurveView> picture_;
};
