#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "Namespace.h"
#include "pages/common/RowDialog.h"
#include "toolkit/CurveView.h"

namespace AdvancedControl {

/// What the two custom pop-ups share: a test pattern and a column of slider rows, each with a
/// button that resets it, and a picture of their values. Every change goes to the projector at
/// once.
class CustomDialog : public RowDialog {
  Q_OBJECT

 protected:
  CustomDialog(int templateNumber, const PageTable& table, bool hideResets, CWnd* parent)
      : RowDialog(templateNumber, table, parent), table_(table), hideResets_(hideResets) {}

  bool OnInitDialog() override;

  /// The rows' shown values, in their order; nothing for one that could not be read.
  using Values = std::vector<std::optional<int>>;
  /// The lines that a picture of the values is made of; one that is not known has no points.
  virtual std::vector<CurveView::Line> LinesOf(const Values& values) const = 0;

 private:
  /// The slider rows, by index.
  const ValueRow& RowAt(std::size_t row) const;
  std::size_t RowCount() const { return table_.rows.size() - 1; }

  void AddPicture();
  void Draw();

  const PageTable& table_;  // the pattern, then the slider rows
  bool hideResets_;
  QPointer<CurveView> picture_;
};

}  // namespace AdvancedControl
