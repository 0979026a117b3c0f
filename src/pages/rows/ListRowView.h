#pragma once

#include "Namespace.h"
#include "pages/rows/RowView.h"

class CComboBox;

namespace AdvancedControl {

/// A setting with a list of values. A choice is sent at once.
class ListRowView final : public RowView {
 public:
  ListRowView(const PageTable& table, const PageRow& row, RowHost& host)
      : RowView(table, row, host), row_(std::get<ListRow>(row)) {}

  std::vector<OperatedControl> OperatedControls() const override;
  void Bind() override;
  void Prepare() override;
  void UseTemplate() override;
  void Read(Source source) override;
  void Act(int control) override;
  std::optional<int> Position() const override;
  bool AreSame(int position, int other) const override;
  QString TextAt(int position) const override;
  bool CanMoveTo(int position) const override;
  void MoveTo(int position) override;

  /// Reads the setting as after a refused choice; a failed read changes nothing.
  void ReadBack();

 private:
  void ReadBack(int source);
  void Select(int value);

  const ListRow& row_;
  CComboBox* list_ = nullptr;
};

}  // namespace AdvancedControl
