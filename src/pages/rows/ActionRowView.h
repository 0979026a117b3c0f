#pragma once

#include "Namespace.h"
#include "pages/rows/RowView.h"

class CComboBox;

namespace AdvancedControl {

/// A button that makes the projector do something, with or without a list beside it.
class ActionRowView final : public RowView {
 public:
  ActionRowView(const PageTable& table, const PageRow& row, RowHost& host)
      : RowView(table, row, host), row_(std::get<ActionRow>(row)) {}

  std::vector<OperatedControl> OperatedControls() const override;
  void Bind() override;
  void Prepare() override;
  void OnPageRead() override;
  void Act(int control) override;

 private:
  QString DoneText(int position, const QString& entry) const;

  const ActionRow& row_;
  CComboBox* list_ = nullptr;
};

}  // namespace AdvancedControl
