// What a dialog does with the value rows of its table.

#include "pages/common/RowDialog.h"
#include "settings/RowUse.h"

namespace {

std::int16_t Word(int value) { return static_cast<std::int16_t>(value); }

// Shows a device value, and gives the shown one.
int Show(const ValueRow& row, ValueControls& controls, int value) {
  const int shown = Word(value - row.bias);
  controls.Show(shown);
  return shown;
}

}  // namespace

void RowDialog::Prepare(const ValueRow& row, Bound& bound) {
  const Range range = SliderRange(row, Model());
  bound.value.SetRange(range, row.ticks != 0 ? row.ticks : range.maximum / 8);
  if (!row.initial) return;
  bound.value.current = Word(*row.initial);
  bound.value.Show(*row.initial);
}

void RowDialog::Refresh(const ValueRow& row, Bound& bound, Source source) {
  ValueControls& controls = bound.value;
  std::optional<int> value;
  if (source) value = Read(*projector, row.Reading(*source));
  if (projector->IsAbandoned()) return;
  if (row.greysField) controls.EnableField(value.has_value());
  if (value) {
    controls.Enable();
    const int shown = Show(row, controls, *value);
    controls.current = Word(row.deviceMemory == DeviceMemory::OfStepsAndReads ? *value : shown);
  } else if (row.failedReadDisables) {
    controls.Disable();
  } else {
    controls.ClearNumber();
  }
}

void RowDialog::Operate(const ValueRow& row, Bound& bound, int control) {
  if (control == row.reset.button) {
    RunReset(row, bound.value);
  } else {
    Step(row, bound.value, control == row.ids.plus);
  }
}

void RowDialog::Step(const ValueRow& row, ValueControls& controls, bool upwards) {
  auto source = AskFor(row.of);
  if (projector->IsAbandoned()) return;
  if (row.of == OfSource::Current) {
    source = source.value_or(0);
    ShowSource(source);
  }
  if (!source) return;
  const Range bounds = StepBounds(row, Model(), controls.Bounds());
  const Stepped stepped = ::Step(*projector, row, upwards, *source, bounds, controls.current);
  if (stepped.value) {
    const int shown = Show(row, controls, *stepped.value);
    controls.current = Word(row.deviceMemory == DeviceMemory::Never ? shown : *stepped.value);
  } else if (stepped.refused && row.error != 0) {
    Refuse(row, controls, controls.current, true);
  }
}

void RowDialog::StepTo(const ValueRow& row, ValueControls& controls, int number) {
  const Busy busy(this);
  for (auto before = controls.Number(); before && *before != number;) {
    const bool upwards = *before < number;
    Step(row, controls, upwards);
    const auto now = controls.Number();
    const bool isNearer = now && (upwards ? *now > *before : *now < *before);
    const bool isPast = now && (upwards ? *now > number : *now < number);
    if (!isNearer || isPast || !isVisible()) return;
    before = now;
  }
}

bool RowDialog::Drag(const ValueRow& row, ValueControls& controls) {
  const int position = controls.Position();
  const auto source = AskFor(row.of);
  if (source && row.of == OfSource::Current) ShowSource(source);
  if (!source && row.of == OfSource::Playing) return true;
  if (source &&
      Perform(*projector, row.Setting(*source), position + row.bias, Model().ModelCode).accepted) {
    controls.current = Word(position);
    controls.Show(position);
    return true;
  }
  Refuse(row, controls, row.refusedDrag == RefusedDrag::Stays ? position : controls.current,
         row.refusedDrag == RefusedDrag::Told);
  if (row.refusedDrag == RefusedDrag::Empties && !projector->IsAbandoned()) controls.ClearNumber();
  return false;
}

// The slider stands at `position` afterwards, unless the value is read again.
void RowDialog::Refuse(const ValueRow& row, ValueControls& controls, int position, bool told) {
  if (projector->IsAbandoned()) return;
  controls.MoveSlider(position);
  if (table_.refusedIsReadBack) {
    if (const auto value = Read(*projector, row.Reading())) {
      controls.current = Word(Show(row, controls, *value));
    }
  }
  if (told && row.error != 0) ShowError(row.error);
}

// What resets show is not remembered: the next step's bound test still uses the value from before.
void RowDialog::RunReset(const ValueRow& row, ValueControls& controls) {
  if (!Perform(*projector, row.reset.call).accepted) return;
  const auto value = Read(*projector, row.reset.read);
  if (value && *value - row.bias >= row.range.Of(Model().ModelCode).minimum) {
    Show(row, controls, *value);
  }
}

void RowDialog::ShowAgain(int control) {
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    const auto* row = std::get_if<ValueRow>(&table_.rows[i]);
    if (row == nullptr || row->Control() != control) continue;
    if (const auto value = Read(*projector, row->Reading())) Show(*row, bound_[i].value, *value);
  }
}
