#include "pages/picture/CColorDlg.h"

#include <functional>

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

namespace {

using P = CPjtInterface;

// How the projector steps and resets each row, in the order of the rows.
struct Operations {
  int channel;
  short (P::*increment)(int channel, short value);
  short (P::*decrement)(int channel, short value);
  int (P::*reset)();
  short (P::*get)();
};

constexpr Operations Gain(int channel, int (P::*reset)(), short (P::*get)()) {
  return {channel, &P::IncrementColorTempGain, &P::DecrementColorTempGain, reset, get};
}

constexpr Operations Offset(int channel, int (P::*reset)(), short (P::*get)()) {
  return {channel, &P::IncrementColorTempOffset, &P::DecrementColorTempOffset, reset, get};
}

constexpr Operations kOperations[] = {
    Gain(0, &P::ExecColorTempGainRReset, &P::GetColorTempGainR),
    Gain(1, &P::ExecColorTempGainGReset, &P::GetColorTempGainG),
    Gain(2, &P::ExecColorTempGainBReset, &P::GetColorTempGainB),
    Offset(0, &P::ExecColorTempOffsetRReset, &P::GetColorTempOffsetR),
    Offset(1, &P::ExecColorTempOffsetGReset, &P::GetColorTempOffsetG),
    Offset(2, &P::ExecColorTempOffsetBReset, &P::GetColorTempOffsetB),
};

}  // namespace

CColorDlg::CColorDlg(bool hideResets, CWnd* parent)
    : CustomDialog(TemplateId::ColorTemp, kColorTempRows, 20334, hideResets, parent) {}

std::vector<Notification> CColorDlg::OwnNotifications() const {
  std::vector<Notification> entries = CustomDialog::OwnNotifications();
  for (std::size_t row = 0; row < RowCount(); ++row) {
    entries.push_back(Clicked(RowAt(row).ids.plus, &CColorDlg::StepUp, row));
    entries.push_back(Clicked(RowAt(row).ids.minus, &CColorDlg::StepDown, row));
  }
  return entries;
}

void CColorDlg::StepUp(std::size_t row) {
  const ValueRow& target = RowAt(row);
  if (Value(target.Control()).current < target.bounds->value.maximum) {
    Step(row, kOperations[row].increment);
  }
}

void CColorDlg::StepDown(std::size_t row) {
  const ValueRow& target = RowAt(row);
  if (Value(target.Control()).current > target.bounds->value.minimum) {
    Step(row, kOperations[row].decrement);
  }
}

// These steppers answer with the shown value; a refusal is an unchanged value and stays quiet.
void CColorDlg::Step(std::size_t row, Stepper stepper) {
  ValueControls& target = Value(RowAt(row).Control());
  const short stepped = std::invoke(stepper, *projector, kOperations[row].channel, target.current);
  if (stepped == target.current) return;
  target.current = stepped;
  target.Show(stepped);
}

std::optional<int> CColorDlg::Reset(std::size_t row) {
  if (std::invoke(kOperations[row].reset, *projector) == 0) return {};
  return std::invoke(kOperations[row].get, *projector);
}

// A channel's offset lifts its line, its gain tilts it.
std::vector<CurveView::Line> CColorDlg::LinesOf(const Values& values) const {
  static constexpr double kStep = 1.0 / 128;
  std::vector<CurveView::Line> lines{{QStringLiteral("R"), 0, {}, {}},
                                     {QStringLiteral("G"), 120, {}, {}},
                                     {QStringLiteral("B"), 220, {}, {}}};
  for (std::size_t channel = 0; channel < lines.size(); ++channel) {
    const auto gain = values[channel];
    const auto offset = values[channel + lines.size()];
    if (!gain || !offset) continue;
    const double start = *offset * kStep / 2;
    lines[channel].accepted << QPointF(0, start) << QPointF(1, 1 + start + *gain * kStep);
  }
  return lines;
}
