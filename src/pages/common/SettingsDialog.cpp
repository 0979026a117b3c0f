#include "pages/common/SettingsDialog.h"

#include "device/ModelDataSource.h"
#include "pages/common/StatusLine.h"
#include "toolkit/MessageBox.h"

namespace AdvancedControl {

namespace {

// The dialog itself or its nearest owner that implements `Interface`; null if there is none.
template <class Interface>
const Interface* NearestOwner(const QWidget& dialog) {
  const QWidget* window = &dialog;
  while (window != nullptr) {
    if (const auto* found = dynamic_cast<const Interface*>(window)) return found;
    const auto* owned = qobject_cast<const CDialog*>(window);
    window = owned != nullptr ? owned->Owner() : window->parentWidget();
  }
  return nullptr;
}

// If the catalog lacks these texts, the message boxes use Qt's.
BoxTexts TextsOfBoxes(const SettingsDialog& dialog) {
  const auto text = [](int number) {
    static constexpr int kUnknown = 0;
    const QString found = CatalogString(kCaptionCategory, number);
    return found == CatalogString(kCaptionCategory, kUnknown) ? QString() : found;
  };
  return {.title = NamedTitle(dialog, dialog.window()->windowTitle()),
          .ok = text(Caption::Ok),
          .yes = text(Caption::Yes),
          .no = text(Caption::No)};
}

}  // namespace

QString NamedTitle(const SettingsDialog& dialog, const QString& title) {
  const QString name = QString::fromStdString(dialog.Context().ProjectorName());
  return name.isEmpty() ? title : name + QStringLiteral(" \u2014 ") + title;
}

const ModelData& SettingsDialog::Model() const {
  static const ModelData none;
  const auto* source = NearestOwner<ModelDataSource>(*this);
  return source != nullptr ? source->Model() : none;
}

const DialogContext& SettingsDialog::Context() const {
  static const DialogContext none;
  const auto* context = NearestOwner<DialogContext>(*this);
  return context != nullptr ? *context : none;
}

void SettingsDialog::Say(const QString& text) const {
  if (projector->IsAbandoned()) return;
  if (auto* line = window()->findChild<StatusLine*>()) line->Say(text);
}

void SettingsDialog::Enable(int control, bool usable, int reason) {
  QWidget& widget = *GetDlgItem(control);
  const QString why = usable ? QString() : CatalogString(kListCategory, reason);
  widget.setEnabled(usable);
  widget.setToolTip(why);
  widget.setAccessibleDescription(why);
}

void SettingsDialog::ShowError(int errorNumber) {
  if (!window()->isVisible() || projector->IsAbandoned()) return;
  ShowStopMessage(*this, CatalogString(kErrorCategory, errorNumber), TextsOfBoxes(*this));
}

bool SettingsDialog::Ask(const QString& question) {
  return AskYesNo(*this, question, TextsOfBoxes(*this));
}

CPjtInterface& SettingsDialog::Unconnected() {
  static CPjtInterface projector;
  return projector;
}

}  // namespace AdvancedControl
