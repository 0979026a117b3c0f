#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "Namespace.h"
#include "pages/common/RowDialog.h"
#include "toolkit/CurveView.h"

namespace AdvancedControl {

/// Base of the two custom pop-ups: a test pattern, a column of slider rows with Reset buttons, and
/// a picture of their values. Every change is sent at once; a point that is dragged in the picture
/// moves its row's slider.
class CustomDialog : public RowDialog {
  Q_OBJECT

 protected:
  CustomDialog(int templateNumber, const PageTable& table, bool hideResets, CWnd* parent)
      : RowDialog(templateNumber, table, parent), table_(table), hideResets_(hideResets) {}
  ~CustomDialog() override;

  bool OnInitDialog() override;

  /// The shown values of the rows, in their order; nothing for a row that could not be read.
  using Values = std::vector<std::optional<int>>;
  /// The lines of the picture. A line with an unknown value has no points.
  virtual std::vector<CurveView::Line> LinesOf(const Values& values) const = 0;
  /// The value of a row whose point is at this height; only for movable lines.
  virtual int ValueAt(std::size_t /*row*/, double /*height*/) const { return 0; }

 private:
  /// The slider rows, by index.
  const ValueRow& RowAt(std::size_t row) const;
  std::size_t RowCount() const { return table_.rows.size() - 1; }

  void AddPicture();
  void Draw();
  std::optional<int> FocusedRow() const;

  const PageTable& table_;  // the test pattern, then the slider rows
  bool hideResets_;
  QPointer<CurveView> picture_;
};

}  // namespace AdvancedControl
