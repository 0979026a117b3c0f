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

  std::vector<OperatedControl> OperatedControls() const override;
  void Bind() override;
  /// Lists the resets of the present rows. Nothing is selected afterwards.
  void Prepare() override;
  void OnPageRead() override;
  void Act(int control) override;

  /// The text of the list's entry that resets a row; empty if there is none.
  QString TextFor(const RowView& row) const;
  /// Resets a row, which must have an entry, just as a user does with the list and the button. The
  /// list keeps its selection.
  void Reset(const RowView& row);

 private:
  /// The row that an entry resets; null if it resets none or this dialog does not have it.
  RowView* RowFor(const ResetEntry& entry) const;
  std::optional<int> EntryFor(const RowView& row) const;

  const ResetRow& row_;
  CComboBox* list_ = nullptr;
  std::optional<int> instead_;  // the entry to use instead of the selected one
};

}  // namespace AdvancedControl
