#pragma once

#include "Namespace.h"
#include "pages/rows/RowView.h"

class CComboBox;

namespace AdvancedControl {

/// The list of a page's resets and the button that runs the chosen one.
class ResetRowView final : public RowView {
 public:
  ResetRowView(const PageTable& table, const PageRow& row, RowHost& host)
      : RowView(table, row, host), row_(std::get<ResetRow>(row)) {}

  std::vector<Operated> OperatedControls() const override;
  void Bind() override;
  /// Lists the resets of the present rows. Nothing is selected afterwards.
  void Prepare() override;
  void OnPageRead() override;
  void Act(int control) override;

 private:
  const ResetRow& row_;
  CComboBox* list_ = nullptr;
};

}  // namespace AdvancedControl
