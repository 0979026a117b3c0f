#pragma once

#include "Namespace.h"
#include "pages/rows/RowView.h"

class QCheckBox;

namespace AdvancedControl {

/// A switch with a check box. A refused change is read back.
class CheckRowView final : public RowView {
 public:
  CheckRowView(const PageTable& table, const PageRow& row, RowHost& host)
      : RowView(table, row, host), row_(std::get<CheckRow>(row)) {}

  std::vector<OperatedControl> OperatedControls() const override;
  void Bind() override;
  void Read(Source source) override;
  void Act(int control) override;
  std::optional<int> Position() const override;
  QString TextAt(int position) const override;
  bool CanMoveTo(int position) const override;
  void MoveTo(int position) override;

 private:
  const CheckRow& row_;
  QCheckBox* check_ = nullptr;
};

}  // namespace AdvancedControl
