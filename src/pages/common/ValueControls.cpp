#include "pages/common/ValueControls.h"

#include <QAbstractButton>
#include <QLineEdit>

#include "toolkit/CDialog.h"
#include "toolkit/CSliderCtrl.h"

void ValueControls::Bind(const CDialog& dialog, const ValueIds& ids) {
  minus_ = &dialog.Item<QAbstractButton>(ids.minus);
  slider_ = ids.slider != 0 ? &dialog.Item<CSliderCtrl>(ids.slider) : nullptr;
  plus_ = &dialog.Item<QAbstractButton>(ids.plus);
  field_ = &dialog.Item<QLineEdit>(ids.field);
  field_->setContextMenuPolicy(Qt::NoContextMenu);  // the row's comes up there too
}

void ValueControls::SetRange(Range range, int tickFrequency) {
  bounds_ = range;
  if (slider_ != nullptr) slider_->SetRange(range.minimum, range.maximum, tickFrequency);
}

int ValueControls::Position() const { return slider_->value(); }

std::optional<int> ValueControls::Number() const {
  bool known = false;
  const int number = field_->text().toInt(&known);
  return known ? std::optional(number) : std::nullopt;
}

void ValueControls::Show(int value) {
  ShowNumber(value);
  MoveSlider(value);
}

void ValueControls::MoveSlider(int value) {
  if (slider_ != nullptr) slider_->setValue(value);
}

void ValueControls::ShowNumber(int value) { field_->setText(QString::number(value)); }

void ValueControls::ClearNumber() { field_->clear(); }

void ValueControls::Enable() { EnableButtons(true); }

void ValueControls::Disable() {
  EnableButtons(false);
  ClearNumber();
}

void ValueControls::EnableButtons(bool enable) {
  minus_->setEnabled(enable);
  if (slider_ != nullptr) slider_->setEnabled(enable);
  plus_->setEnabled(enable);
}

void ValueControls::EnableField(bool enable) { field_->setEnabled(enable); }
