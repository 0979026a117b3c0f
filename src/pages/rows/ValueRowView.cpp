#include "pages/rows/ValueRowView.h"

#include <utility>

#include <QAbstractButton>
#include <QLineEdit>

#include "toolkit/CSliderCtrl.h"

namespace AdvancedControl {

namespace {

std::int16_t Word(int value) { return static_cast<std::int16_t>(value); }

QString SignOf(bool upwards) { return upwards ? QStringLiteral("+") : QStringLiteral("\u2212"); }

}  // namespace

std::vector<int> ValueRowView::Controls() const {
  std::vector<int> controls = ControlsOf(Row());
  if (row_.reset.button != 0) controls.push_back(row_.reset.button);
  return controls;
}

std::vector<RowView::Operated> ValueRowView::OperatedControls() const {
  using Event = Notification::Event;
  std::vector<Operated> operated{{Event::Clicked, row_.ids.minus}, {Event::Clicked, row_.ids.plus}};
  if (row_.ids.slider != 0) operated.push_back({Event::HScroll, row_.ids.slider});
  if (row_.reset.button != 0) operated.push_back({Event::Clicked, row_.reset.button});
  return operated;
}

void ValueRowView::Bind() {
  const CDialog& dialog = Dialog();
  minus_ = &dialog.Item<QAbstractButton>(row_.ids.minus);
  slider_ = row_.ids.slider != 0 ? &dialog.Item<CSliderCtrl>(row_.ids.slider) : nullptr;
  plus_ = &dialog.Item<QAbstractButton>(row_.ids.plus);
  field_ = &dialog.Item<QLineEdit>(row_.ids.field);
  field_->setContextMenuPolicy(Qt::NoContextMenu);  // the row's own menu opens there too
  number_.reset();
  pending_ = {};
  heldBack_.reset();
}

void ValueRowView::Prepare() {
  const Range range = SliderRange(row_, Model());
  const int ticks = row_.ticks != 0 ? row_.ticks : range.maximum / 8;
  if (slider_ != nullptr) slider_->SetRange(range.minimum, range.maximum, ticks);
  if (!row_.initial) return;
  remembered_ = Word(*row_.initial);
  ShowNumber(*row_.initial);
  MoveSlider(*row_.initial);
}

void ValueRowView::Read(Source source) {
  const auto value = ReadSetting(source);
  if (Projector().IsAbandoned()) return;
  if (row_.greysField) field_->setEnabled(value.has_value());
  if (value) {
    Enable();
    const int shown = ShowDevice(*value);
    remembered_ = Word(row_.deviceMemory == DeviceMemory::OfStepsAndReads ? *value : shown);
  } else if (row_.failedReadDisables) {
    Disable();
  } else {
    ClearNumber();
  }
}

void ValueRowView::ShowAgain() {
  if (const auto value = ReadSetting(0)) Confirm(ShowDevice(*value));
}

void ValueRowView::Act(int control) {
  if (control == row_.reset.button) {
    RunReset();
  } else {
    Step(control == row_.ids.plus);
  }
}

Stepped ValueRowView::Step(bool upwards) {
  const auto asked = Host().AskFor(row_.of);
  if (Projector().IsAbandoned()) return {};
  const auto source = SteppedSource(row_.of, asked);
  if (!source) TellRefusal(SignOf(upwards));
  if (!source) return {};
  if (row_.of == OfSource::Current) Host().ShowSource(source);
  const Stepped stepped =
      ::Step(Projector(), row_, upwards, *source, StepBounds(row_, Model()), remembered_);
  if (stepped.value) {
    const int shown = ShowDevice(*stepped.value);
    remembered_ = Word(row_.deviceMemory == DeviceMemory::Never ? shown : *stepped.value);
    Confirm(shown);
  } else if (stepped.refused && row_.error != 0) {
    Refuse(remembered_, SignOf(upwards), true);
  } else if (stepped.refused || stepped.unchanged) {
    TellRefusal(SignOf(upwards));
  }
  return stepped;
}

// A refusal ends the stepping, and is shown once.
void ValueRowView::StepTo(int number) {
  const auto present = Position();
  if (!present) return;
  const CDialog::Busy busy(&Dialog());
  bool refused = false;
  const auto step = [&](bool upwards, int) {
    refused = Step(upwards).refused;
    return Stepped{.refused = refused, .value = Position()};
  };
  ::StepTo(*present, number, step, [&] { return !refused && Dialog().isVisible(); });
}

bool ValueRowView::Release() {
  const int position = slider_->value();
  const auto source = Host().AskFor(row_.of);
  if (source && row_.of == OfSource::Current) Host().ShowSource(source);
  if (!source && row_.of == OfSource::Playing) {
    TellRefusal(TextAt(position));
    return true;
  }
  if (source && SendRow(Projector(), Row(), Model(), position + row_.bias, {.source = source}) ==
                    Sent::Accepted) {
    remembered_ = Word(position);
    ShowNumber(position);
    MoveSlider(position);
    Confirm(position);
    return true;
  }
  Refuse(row_.refusedDrag == RefusedDrag::Stays ? position : remembered_, TextAt(position),
         row_.refusedDrag == RefusedDrag::ShowsError);
  if (row_.refusedDrag == RefusedDrag::Empties && !Projector().IsAbandoned()) ClearNumber();
  return false;
}

// Moves the slider to `position`, unless the value is read back.
void ValueRowView::Refuse(int position, const QString& tried, bool showMessage) {
  if (Projector().IsAbandoned()) return;
  MoveSlider(position);
  if (Table().refusedIsReadBack) {
    if (const auto value = ReadSetting(0)) {
      memory.known = ShowDevice(*value);
      remembered_ = Word(*memory.known);
    }
  }
  TellRefusal(tried);
  if (showMessage && row_.error != 0) Dialog().ShowError(row_.error);
}

// The value after a reset is shown but not remembered: the bound test of the next step uses the
// earlier value.
void ValueRowView::RunReset() {
  const auto& button = Dialog().Item<QAbstractButton>(row_.reset.button);
  if (!Perform(Projector(), row_.reset.call).accepted) return TellRefusal(button.text());
  const auto value = ::Read(Projector(), row_.reset.read);
  if (value && *value - row_.bias >= row_.range.Of(Model().ModelCode).minimum) {
    Confirm(ShowDevice(*value));
  }
  Dialog().Say(CatalogString(kListCategory, ListText::ResetDone, Name().toStdString()));
}

int ValueRowView::ShowDevice(int value) {
  const int shown = Word(value - row_.bias);
  ShowNumber(shown);
  MoveSlider(shown);
  return shown;
}

void ValueRowView::MoveSlider(int value) {
  if (slider_ == nullptr) return;
  if (pending_.keepsSlider || (memory.collects && slider_->isSliderDown())) {
    heldBack_ = value;
  } else {
    heldBack_.reset();
    slider_->setValue(value);
  }
}

void ValueRowView::ShowNumber(int value) {
  number_ = value;
  ShowField();
}

void ValueRowView::ClearNumber() {
  number_.reset();
  ShowField();
}

// A pending number is as light as a hint, because the projector does not have it yet.
void ValueRowView::ShowField() {
  const auto shown = pending_.number ? pending_.number : number_;
  QPalette palette;
  if (pending_.number) {
    palette = field_->palette();
    palette.setColor(QPalette::Text, palette.color(QPalette::PlaceholderText));
  }
  if (field_->testAttribute(Qt::WA_SetPalette) || pending_.number) field_->setPalette(palette);
  field_->setText(shown ? QString::number(*shown) : QString());
}

void ValueRowView::ShowPending(const Pending& pending) {
  if (std::exchange(pending_, pending) != pending) ShowField();
  if (!memory.collects && heldBack_) slider_->setValue(*std::exchange(heldBack_, std::nullopt));
}

void ValueRowView::Disable() {
  EnableControls(false);
  ClearNumber();
}

void ValueRowView::EnableControls(bool enable) {
  minus_->setEnabled(enable);
  if (slider_ != nullptr) slider_->setEnabled(enable);
  plus_->setEnabled(enable);
}

bool ValueRowView::ChangesNumber(const QWidget& control) const {
  return &control == minus_ || &control == plus_ || &control == slider_;
}

std::optional<Range> ValueRowView::Numbers() const {
  if (slider_ == nullptr) return StepBounds(row_, Model());
  return Range{slider_->minimum(), slider_->maximum()};
}

bool ValueRowView::IsUsable() const { return minus_->isEnabledTo(&Dialog()); }

bool ValueRowView::CanMoveTo(int position) const {
  if (!IsUsable()) return false;
  if (slider_ == nullptr) return Position() && *Position() != position;
  return position != slider_->value() && position >= slider_->minimum() &&
         position <= slider_->maximum();
}

void ValueRowView::MoveTo(int position) {
  if (slider_ == nullptr) {
    StepTo(position);
  } else if (CanMoveTo(position)) {
    slider_->ScrollTo(position);
  }
}

}  // namespace AdvancedControl
