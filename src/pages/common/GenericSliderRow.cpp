#include "pages/common/GenericSliderRow.h"

void GenericSliderRow::Bind(const CDialog& dialog, const tmpl::SliderIds& ids,
                            const Setting& setting) {
  SliderRow::Bind(dialog, ids);
  setting_ = setting;
}

bool GenericSliderRow::Read(CPjtInterface& projector) {
  unsigned short value = 0;
  if (projector.Get(setting_.code, 0, &projector, &value) != 1) return false;
  current = static_cast<std::int16_t>(value - setting_.bias);
  return true;
}

void GenericSliderRow::Refresh(CPjtInterface& projector) {
  if (Read(projector)) {
    Enable();
    Show(current);
  } else {
    Disable();
  }
}

void GenericSliderRow::FinishStep(CPjtInterface& projector, bool accepted) {
  if (!accepted) {
    MoveSlider(current);
  } else if (Read(projector)) {
    Show(current);
  }
}

Outcome GenericSliderRow::StepUp(CPjtInterface& projector, Range bounds) {
  if (current >= bounds.maximum) return Outcome::NotSent;
  const bool accepted = projector.Inc(setting_.code, 0, &projector) == 1;
  FinishStep(projector, accepted);
  return accepted ? Outcome::Accepted : Outcome::Refused;
}

Outcome GenericSliderRow::StepDown(CPjtInterface& projector, Range bounds) {
  if (current <= bounds.minimum) return Outcome::NotSent;
  const bool accepted = projector.Dec(setting_.code, 0, &projector) == 1;
  FinishStep(projector, accepted);
  return accepted ? Outcome::Accepted : Outcome::Refused;
}

Outcome GenericSliderRow::SendPosition(CPjtInterface& projector) {
  const int position = Position();
  const auto value = static_cast<unsigned short>(position + setting_.bias);
  const bool accepted = projector.Set(setting_.code, value, &projector) == 1;
  if (accepted) {
    current = static_cast<std::int16_t>(position);
    ShowNumber(position);
  }
  MoveSlider(current);
  return accepted ? Outcome::Accepted : Outcome::Refused;
}
