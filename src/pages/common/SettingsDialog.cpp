#include "pages/common/SettingsDialog.h"

#include "device/ModelDataSource.h"
#include "toolkit/MessageBox.h"

namespace AdvancedControl {

namespace {

// If the catalog lacks these texts, the message boxes use Qt's.
ButtonTexts BoxButtons() {
  const auto text = [](int number) {
    static constexpr int kUnknown = 0;
    const QString found = CatalogString(kCaptionCategory, number);
    return found == CatalogString(kCaptionCategory, kUnknown) ? QString() : found;
  };
  return {text(Caption::Ok), text(Caption::Yes), text(Caption::No)};
}

}  // namespace

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
  ShowStopMessage(this, CatalogString(kErrorCategory, errorNumber), BoxButtons());
}

bool SettingsDialog::Ask(int questionNumber) {
  return AskYesNo(this, CatalogString(kErrorCategory, questionNumber), BoxButtons());
}

CPjtInterface& SettingsDialog::Unconnected() {
  static CPjtInterface projector;
  return projector;
}

}  // namespace AdvancedControl
