#include "pages/picture/CustomDialog.h"

bool CustomDialog::OnInitDialog() {
  RowDialog::OnInitDialog();
  for (const PageRow& row : table_.rows) {
    const auto* value = std::get_if<ValueRow>(&row);
    if (value != nullptr) GetDlgItem(value->reset.button)->setVisible(!hideResets_);
  }
  ShowUnread();
  Refresh();
  return true;
}
