#include "pages/picture/CColorDlg.h"

#include <functional>
#include <iterator>

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"

namespace {

// The − and + buttons stop here whatever range the model gives its sliders.
constexpr Range kRange{-32, 32};
constexpr int kTicks = 4;

constexpr CustomDialog::RowSpec Gain(int channel, const tmpl::SliderIds& ids, int resetId) {
  return {ids,
          resetId,
          {static_cast<std::uint16_t>(CommandCode::ColorTempGainR + channel), 128,
           ErrorText::ColorTempGainRRefused + channel}};
}

constexpr CustomDialog::RowSpec Offset(int channel, const tmpl::SliderIds& ids, int resetId) {
  return {ids,
          resetId,
          {static_cast<std::uint16_t>(CommandCode::ColorTempOffsetR + channel), 128,
           ErrorText::ColorTempOffsetRRefused + channel}};
}

constexpr CustomDialog::RowSpec kRows[] = {
    Gain(0, {.minus = 20182, .slider = 20181, .plus = 20188, .field = 20194}, 20334),
    Gain(1, {.minus = 20183, .slider = 21024, .plus = 20189, .field = 20195}, 20335),
    Gain(2, {.minus = 20184, .slider = 21025, .plus = 20190, .field = 20196}, 20336),
    Offset(0, {.minus = 20185, .slider = 21026, .plus = 20191, .field = 20197}, 20337),
    Offset(1, {.minus = 20186, .slider = 21027, .plus = 20192, .field = 20198}, 20338),
    Offset(2, {.minus = 20187, .slider = 21028, .plus = 20193, .field = 20199}, 20339),
};

// How the projector steps and resets each row, in the order of the rows.
struct Operations {
  int channel;
  short (CPjtInterface::*increment)(int channel, short value);
  short (CPjtInterface::*decrement)(int channel, short value);
  int (CPjtInterface::*reset)();
  short (CPjtInterface::*get)();
};

constexpr Operations kOperations[] = {
    {0, &CPjtInterface::IncrementColorTempGain, &CPjtInterface::DecrementColorTempGain,
     &CPjtInterface::ExecColorTempGainRReset, &CPjtInterface::GetColorTempGainR},
    {1, &CPjtInterface::IncrementColorTempGain, &CPjtInterface::DecrementColorTempGain,
     &CPjtInterface::ExecColorTempGainGReset, &CPjtInterface::GetColorTempGainG},
    {2, &CPjtInterface::IncrementColorTempGain, &CPjtInterface::DecrementColorTempGain,
     &CPjtInterface::ExecColorTempGainBReset, &CPjtInterface::GetColorTempGainB},
    {0, &CPjtInterface::IncrementColorTempOffset, &CPjtInterface::DecrementColorTempOffset,
     &CPjtInterface::ExecColorTempOffsetRReset, &CPjtInterface::GetColorTempOffsetR},
    {1, &CPjtInterface::IncrementColorTempOffset, &CPjtInterface::DecrementColorTempOffset,
     &CPjtInterface::ExecColorTempOffsetGReset, &CPjtInterface::GetColorTempOffsetG},
    {2, &CPjtInterface::IncrementColorTempOffset, &CPjtInterface::DecrementColorTempOffset,
     &CPjtInterface::ExecColorTempOffsetBReset, &CPjtInterface::GetColorTempOffsetB},
};
static_assert(std::size(kOperations) == std::size(kRows));

}  // namespace

CColorDlg::CColorDlg(bool hideResets, CWnd* parent)
    : CustomDialog(TemplateId::ColorTemp, hideResets, parent, kRows, RangeIndex::ColorTempAdjust,
                   kRange, kTicks) {}

const NotificationMap& CColorDlg::Notifications() const {
  static const NotificationMap map = MakeNotifications(kRows);
  return map;
}

void CColorDlg::StepUp(std::size_t row) {
  if (RowAt(row).current < ButtonBounds().maximum) Step(row, kOperations[row].increment);
}

void CColorDlg::StepDown(std::size_t row) {
  if (RowAt(row).current > ButtonBounds().minimum) Step(row, kOperations[row].decrement);
}

// These steppers answer with the shown value; a refusal is an unchanged value and stays quiet.
void CColorDlg::Step(std::size_t row, Stepper stepper) {
  GenericSliderRow& target = RowAt(row);
  const short stepped = std::invoke(stepper, *projector, kOperations[row].channel, target.current);
  if (stepped == target.current) return;
  target.current = stepped;
  target.Show(stepped);
}

void CColorDlg::Reset(std::size_t row) {
  if (std::invoke(kOperations[row].reset, *projector) == 0) return;
  ShowReset(row, std::invoke(kOperations[row].get, *projector));
}
