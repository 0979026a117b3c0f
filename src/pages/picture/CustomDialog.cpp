#include "pages/picture/CustomDialog.h"

CustomDialog::CustomDialog(int templateNumber, const PageTable& table, int firstReset,
                           bool hideResets, CWnd* parent)
    : RowDialog(templateNumber, table, parent),
      table_(table),
      firstReset_(firstReset),
      hideResets_(hideResets) {}

const ValueRow& CustomDialog::RowAt(std::size_t row) const {
  return std::get<ValueRow>(table_.rows[row + 1]);
}

std::vector<Notification> CustomDialog::OwnNotifications() const {
  std::vector<Notification> entries;
  for (std::size_t row = 0; row < RowCount(); ++row) {
    const int button = firstReset_ + static_cast<int>(row);
    entries.push_back(Clicked(button, &CustomDialog::OnReset, row));
  }
  return entries;
}

bool CustomDialog::OnInitDialog() {
  RowDialog::OnInitDialog();
  for (std::size_t row = 0; row < RowCount(); ++row) {
    GetDlgItem(firstReset_ + static_cast<int>(row))->setVisible(!hideResets_);
  }
  ShowUnread();
  Refresh();
  return true;
}

// A reset shows its value, if it is one that the row can have. The remembered value stays as it
// was, so the next step's bound test still uses the value from before the reset.
void CustomDialog::OnReset(std::size_t row) {
  const ValueRow& target = RowAt(row);
  const auto value = Reset(row);
  if (value && *value >= target.range.value.minimum + target.bias) {
    Value(target.Control()).Show(*value - target.bias);
  }
}
