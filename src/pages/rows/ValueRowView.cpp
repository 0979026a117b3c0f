#include "pages/rows/ValueRowView.h"

#include <QAbstractButton>

#include "pages/rows/RowOutcomes.h"
#include "pages/rows/RowTexts.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/DragBubble.h"
#include "toolkit/NumberField.h"

namespace AdvancedControl {

namespace {

std::int16_t Word(int value) { return static_cast<std::int16_t>(value); }

}  // namespace

std::vector<int> ValueRowView::Controls() const {
  std::vector<int> controls = ControlsOf(Row());
  if (row_.reset) controls.push_back(row_.reset->button);
  return controls;
}

std::vector<OperatedControl> ValueRowView::OperatedControls() const {
  using Event = Notification::Event;
  std::vector<OperatedControl> operated{{Event::Clicked, row_.ids.minus},
                                        {Event::Clicked, row_.ids.plus}};
  if (!row_.stepsOnly) operated.push_back({Event::HScroll, row_.ids.slider});
  if (row_.reset) operated.push_back({Event::Clicked, row_.reset->button});
  return operated;
}

void ValueRowView::Bind() {
  controls_ = NumberControls(Dialog(), row_);
  if (auto* slider = controls_.Slider()) {
    AttachDragBubble(*slider, [this](int position) { return TextAt(position); });
  }
}

void ValueRowView::Prepare() {
  const Range range = SliderRange(row_, Model());
  const int ticks = row_.ticks != 0 ? row_.ticks : range.maximum / 8;
  if (auto* slider = controls_.Slider()) slider->SetRange(range.minimum, range.maximum, ticks);
  if (row_.unit != 0) {
    controls_.Field().SetUnit(UnitText(Row()), QString::number(range.maximum));
  }
  if (!row_.initial) return;
  remembered_ = Word(*row_.initial);
  controls_.ShowNumber(*row_.initial);
  controls_.MoveSlider(*row_.initial);
}

void ValueRowView::Read(Source source) {
  const auto value = ReadSetting(source);
  if (Projector().IsAbandoned()) return;
  if (row_.greysField) controls_.Field().setEnabled(value.has_value());
  if (value) {
    controls_.Enable();
    const int shown = ShowDevice(*value);
    remembered_ = Word(row_.deviceMemory == DeviceMemory::OfStepsAndReads ? *value : shown);
  } else if (row_.failedReadDisables) {
    controls_.Disable();
  } else {
    controls_.ShowNumber({});
  }
}

void ValueRowView::ShowAgain() {
  if (const auto value = ReadSetting(0)) Confirm(*this, ShowDevice(*value));
}

void ValueRowView::Act(int control) {
  if (row_.reset && control == row_.reset->button) {
    RunReset(*row_.reset);
  } else {
    Step(control == row_.ids.plus);
  }
}

Stepped ValueRowView::Step(bool upwards) {
  const auto asked = Host().AskFor(row_.of);
  if (Projector().IsAbandoned()) return {};
  const auto source = SteppedSource(row_.of, asked);
  if (!source) ShowRefusal(*this, controls_.SignOf(upwards));
  if (!source) return {};
  if (row_.of == OfSource::Current) Host().ShowSource(source);
  const Stepped stepped =
      ::Step(Projector(), row_, upwards, *source, StepBounds(row_, Model()), remembered_);
  if (stepped.value) {
    const int shown = ShowDevice(*stepped.value);
    remembered_ = Word(row_.deviceMemory == DeviceMemory::Never ? shown : *stepped.value);
    Confirm(*this, shown);
  } else if (stepped.refused && row_.error != 0) {
    Refuse(remembered_, controls_.SignOf(upwards), true);
  } else if (stepped.refused || stepped.unchanged) {
    ShowRefusal(*this, controls_.SignOf(upwards));
  }
  return stepped;
}

// A refusal ends the stepping, and is shown once.
void ValueRowView::StepTo(int number) {
  const CDialog::Busy busy(&Dialog());
  bool refused = false;
  const auto step = [&](bool upwards, int) {
    refused = Step(upwards).refused;
    return Stepped{.refused = refused, .value = Position()};
  };
  const Sent sent = ::StepTo(Position().value_or(number), number, step,
                             [&] { return !refused && Dialog().isVisible(); });
  if (sent == Sent::Nothing) ShowRefusal(*this, TextAt(number));  // too far
}

bool ValueRowView::Release() {
  const int position = controls_.Slider()->value();
  const auto source = Host().AskFor(row_.of);
  if (source && row_.of == OfSource::Current) Host().ShowSource(source);
  if (!source && row_.of == OfSource::Playing) {
    ShowRefusal(*this, TextAt(position));
    return true;
  }
  const CPjtInterface::Tally before = Projector().Sent();
  if (source && SendRow(Projector(), Row(), Model(), position + row_.bias, {.source = source}) ==
                    Sent::Accepted) {
    remembered_ = Word(position);
    controls_.ShowNumber(position);
    controls_.MoveSlider(position);
    IsRefusedSince(*this, before) ? ShowRefusal(*this, TextAt(position)) : Confirm(*this, position);
    return true;
  }
  Refuse(row_.refusedDrag == RefusedDrag::Stays ? position : remembered_, TextAt(position),
         row_.refusedDrag == RefusedDrag::ShowsError);
  if (row_.refusedDrag == RefusedDrag::Empties && !Projector().IsAbandoned())
    controls_.ShowNumber({});
  return false;
}

// Moves the slider to `position`, unless the value is read back.
void ValueRowView::Refuse(int position, const QString& tried, bool showMessage) {
  if (Projector().IsAbandoned()) return;
  controls_.MoveSlider(position);
  if (Table().refusedIsReadBack) {
    if (const auto value = ReadSetting(0)) {
      memory.known = ShowDevice(*value);
      remembered_ = Word(*memory.known);
    }
  }
  ShowRefusal(*this, tried);
  if (showMessage && row_.error != 0) Dialog().ShowError(row_.error);
}

// The value after a reset is shown but not remembered: the bound test of the next step uses the
// earlier value.
void ValueRowView::RunReset(const RowReset& reset) {
  const auto& button = Dialog().Item<QAbstractButton>(reset.button);
  if (!Perform(Projector(), reset.call).accepted) return ShowRefusal(*this, button.text());
  const auto value = ::Read(Projector(), reset.read);
  if (value && *value - row_.bias >= row_.range.Of(Model().ModelCode).minimum) {
    Confirm(*this, ShowDevice(*value));
  }
  Dialog().Say(CatalogString(kListCategory, ListText::ResetDone, NameOf(*this).toStdString()));
}

int ValueRowView::ShowDevice(int value) {
  const int shown = Word(value - row_.bias);
  controls_.ShowNumber(shown);
  controls_.MoveSlider(shown);
  return shown;
}

QString ValueRowView::TextAt(int position) const {
  return WithUnit(QString::number(position), Row());
}

std::optional<Range> ValueRowView::Numbers() const {
  const CSliderCtrl* slider = controls_.Slider();
  if (slider == nullptr) return StepBounds(row_, Model());
  return Range{slider->minimum(), slider->maximum()};
}

bool ValueRowView::CanMoveTo(int position) const {
  if (!IsUsable()) return false;
  const CSliderCtrl* slider = controls_.Slider();
  if (slider == nullptr) return Position() && *Position() != position;
  // After a refused drag, the slider may show a value that the projector does not have.
  const bool isNews = position != slider->value() || Position() != position;
  return isNews && position >= slider->minimum() && position <= slider->maximum();
}

void ValueRowView::MoveTo(int position) {
  if (controls_.Slider() == nullptr) {
    StepTo(position);
  } else {
    controls_.Slider()->DragTo(position);
    controls_.Slider()->Drop();
  }
}

}  // namespace AdvancedControl
