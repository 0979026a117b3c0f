#include "pages/common/SliderRow.h"

#include <QAbstractButton>
#include <QLineEdit>

#include "toolkit/CDialog.h"
#include "toolkit/CSliderCtrl.h"

void SliderRow::Bind(const CDialog& dialog, const tmpl::SliderIds& ids) {
  minus_ = &dialog.Item<QAbstractButton>(ids.minus);
  slider_ = &dialog.Item<CSliderCtrl>(ids.slider);
  plus_ = &dialog.Item<QAbstractButton>(ids.plus);
  field_ = &dialog.Item<QLineEdit>(ids.field);
}

void SliderRow::SetRange(Range range, int tickFrequency) {
  bounds_ = range;
  slider_->SetRange(range.minimum, range.maximum, tickFrequency);
}

int SliderRow::Position() const { return slider_->value(); }

void SliderRow::Show(int value) {
  ShowNumber(value);
  MoveSlider(value);
}

void SliderRow::MoveSlider(int value) { slider_->setValue(value); }

void SliderRow::ShowNumber(int value) { field_->setText(QString::number(value)); }

void SliderRow::ClearNumber() { field_->clear(); }

void SliderRow::Enable() {
  minus_->setEnabled(true);
  slider_->setEnabled(true);
  plus_->setEnabled(true);
}

void SliderRow::Disable() {
  minus_->setEnabled(false);
  slider_->setEnabled(false);
  plus_->setEnabled(false);
  ClearNumber();
}

void SliderRow::EnableField(bool enable) { field_->setEnabled(enable); }
