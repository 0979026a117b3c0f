#include "pages/rows/NumberControls.h"

#include <utility>

#include <QAbstractButton>

#include "pages/common/SettingsDialog.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/NumberField.h"

namespace AdvancedControl {

NumberControls::NumberControls(const SettingsDialog& dialog, const ValueRow& row)
    : minus_(&dialog.Item<QAbstractButton>(row.ids.minus)),
      slider_(row.stepsOnly ? nullptr : &dialog.Item<CSliderCtrl>(row.ids.slider)),
      plus_(&dialog.Item<QAbstractButton>(row.ids.plus)),
      field_(&dialog.Item<NumberField>(row.ids.field)) {
  field_->setContextMenuPolicy(Qt::NoContextMenu);  // the row's own menu opens there too
}

bool NumberControls::Change(const QWidget& control) const {
  return &control == minus_ || &control == plus_ || &control == slider_;
}

bool NumberControls::IsPlus(const QWidget& control) const { return &control == plus_; }

// An arrow is a picture, but the name of each button ends with its sign.
QString NumberControls::SignOf(bool plus) const {
  return (plus ? plus_ : minus_)->accessibleName().right(1);
}

bool NumberControls::AreEnabled() const { return minus_->isEnabledTo(minus_->window()); }

void NumberControls::Enable() { EnableAll(true); }

void NumberControls::Disable() {
  EnableAll(false);
  ShowNumber({});
}

void NumberControls::EnableAll(bool enable) {
  minus_->setEnabled(enable);
  if (slider_ != nullptr) slider_->setEnabled(enable);
  plus_->setEnabled(enable);
}

void NumberControls::ShowNumber(std::optional<int> number) {
  number_ = number;
  ShowField();
}

void NumberControls::MoveSlider(int value) {
  if (slider_ == nullptr) return;
  if (pending_.keepsSlider || (collects_ && slider_->isSliderDown())) {
    heldBack_ = value;
  } else {
    heldBack_.reset();
    slider_->setValue(value);
  }
}

void NumberControls::ReturnSlider() {
  if (const auto position = heldBack_ ? heldBack_ : number_) MoveSlider(*position);
}

// A pending number is as light as a hint, because the projector does not have it yet.
void NumberControls::ShowField() {
  QPalette palette;
  if (pending_.number) {
    palette = field_->palette();
    palette.setColor(QPalette::Text, palette.color(QPalette::PlaceholderText));
  }
  if (field_->testAttribute(Qt::WA_SetPalette) || pending_.number) field_->setPalette(palette);
  const auto shown = pending_.number ? pending_.number : number_;
  field_->setText(shown ? QString::number(*shown) : QString());
}

void NumberControls::ShowPending(const Pending& pending) {
  if (std::exchange(pending_, pending) != pending) ShowField();
}

// A handle that is being dragged stays where the user has it: its release sends that position.
void NumberControls::Collect(bool collects) {
  collects_ = collects;
  if (!collects && heldBack_ && !slider_->isSliderDown()) {
    slider_->setValue(*std::exchange(heldBack_, std::nullopt));
  }
}

}  // namespace AdvancedControl
