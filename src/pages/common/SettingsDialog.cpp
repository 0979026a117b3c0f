#include "pages/common/SettingsDialog.h"

#include "device/ModelDataSource.h"
#include "toolkit/MessageBox.h"

const ModelData& SettingsDialog::Model() const {
  const QWidget* window = this;
  while (window != nullptr) {
    if (const auto* source = dynamic_cast<const ModelDataSource*>(window)) return source->Model();
    const auto* dialog = qobject_cast<const CDialog*>(window);
    window = dialog != nullptr ? dialog->Owner() : window->parentWidget();
  }
  static const ModelData none;
  return none;
}

void SettingsDialog::ShowError(int errorNumber) {
  if (!window()->isVisible() || projector->IsAbandoned()) return;
  ShowStopMessage(this, CatalogString(kErrorCategory, errorNumber));
}

void SettingsDialog::OnLeave() {
  abandoned_ = projector;
  abandoned_->Abandon();
}

void SettingsDialog::OnReturn() { abandoned_->Resume(); }

CPjtInterface& SettingsDialog::Unconnected() {
  static CPjtInterface projector;
  return projector;
}
