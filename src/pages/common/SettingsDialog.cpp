#include "pages/common/SettingsDialog.h"

#include "device/ModelDataSource.h"
#include "toolkit/MessageBox.h"

const ModelData& SettingsDialog::Model() const {
  for (const QWidget* window = this; window != nullptr; window = window->parentWidget()) {
    if (const auto* source = dynamic_cast<const ModelDataSource*>(window)) return source->Model();
  }
  static const ModelData none;
  return none;
}

void SettingsDialog::ShowError(int errorNumber) {
  ShowStopMessage(this, CatalogString(kErrorCategory, errorNumber));
}
