#include "pages/setup/CAudioType5Dlg.h"

#include <functional>
#include <iterator>

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"

namespace {

// These play the standby source while they do not run.
constexpr ModelCodes kCodesWithStandbySource{49, 50, 51, 52, 53, 54};
constexpr int kStandbySource = 15;
constexpr int kUnknown = -1;
// Running states in which the standby source plays.
constexpr int kStandby = 0;
constexpr int kCoolingDown = 2;

using P = CPjtInterface;

// One of the three settings with a slider, kept by the projector for each source.
struct Tone {
  ValueIds ids;
  std::size_t range;  // index of the model's range text
  int bias;
  Range fallback;
  int initial;
  int ticks;
  int (P::*get)(int source, short* value);
  int (*set)(P& projector, int source, int value);
  int (P::*increment)(int source, short* value);
  int (P::*decrement)(int source, short* value);
};

template <auto operation>
int SetTone(P& projector, int source, int value) {
  return (projector.*operation)(static_cast<short>(source), static_cast<short>(value));
}

// In the order of the first rows.
constexpr Tone kTones[] = {
    {.ids = {.minus = 20345, .slider = 20347, .plus = 20346, .field = 20355},
     .range = RangeIndex::Volume,
     .bias = 0,
     .fallback = {0, 48},
     .initial = 24,
     .ticks = 4,
     .get = &P::GetInputSrcVolume,
     .set = SetTone<&P::SetVolumeEachSrc>,
     .increment = &P::IncrementInputSrcVol,
     .decrement = &P::DecrementInputSrcVol},
    {.ids = {.minus = 20348, .slider = 20350, .plus = 20349, .field = 20315},
     .range = RangeIndex::Treble,
     .bias = CommandCode::kZeroPoint,
     .fallback = {-4, 4},
     .initial = 0,
     .ticks = 1,
     .get = &P::GetInputSrcTreble,
     .set = SetTone<&P::SetInputSrcTreble>,
     .increment = &P::IncrementInputSrcTreb,
     .decrement = &P::DecrementInputSrcTreb},
    {.ids = {.minus = 20351, .slider = 20353, .plus = 20352, .field = 20316},
     .range = RangeIndex::Bass,
     .bias = CommandCode::kZeroPoint,
     .fallback = {-4, 4},
     .initial = 0,
     .ticks = 1,
     .get = &P::GetInputSrcBass,
     .set = SetTone<&P::SetInputSrcBass>,
     .increment = &P::IncrementInputSrcBass,
     .decrement = &P::DecrementInputSrcBass},
};
static_assert(std::size(kTones) == CAudioType5Dlg::kToneCount);

constexpr int kSurroundList = 20381;
constexpr int kSurroundTexts[] = {ListText::SwitchOff, ListText::SurroundMid,
                                  ListText::SurroundHigh};

// The projector knows a surround 1 that the list does not offer: Off 0, Mid 2, High 3.
constexpr int SurroundValue(int position) { return position == 0 ? 0 : position + 1; }
constexpr int SurroundPosition(int value) { return value == 0 ? 0 : value - 1; }

}  // namespace

CAudioType5Dlg::CAudioType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::AudioType5, kAudioType5Rows, parent) {}

void CAudioType5Dlg::DoDataExchange() {
  CTabPage::DoDataExchange();
  for (std::size_t tone = 0; tone < kToneCount; ++tone) tones_[tone].Bind(*this, kTones[tone].ids);
}

std::vector<Notification> CAudioType5Dlg::OwnNotifications() const {
  using Self = CAudioType5Dlg;
  return {
      Clicked(20345, &Self::OnBnClickedAud5Btnvolneg),
      Clicked(20346, &Self::OnBnClickedAud5Btnvolpos),
      Clicked(20348, &Self::OnBnClickedAud5Btntreneg),
      Clicked(20349, &Self::OnBnClickedAud5Btntrepos),
      Clicked(20351, &Self::OnBnClickedAud5Btnbasneg),
      Clicked(20352, &Self::OnBnClickedAud5Btnbaspos),
      SelChange(20381, &Self::OnCbnSelchangeAud5Srswcomb),
      HScroll(&Self::OnHScroll),
  };
}

bool CAudioType5Dlg::OnInitDialog() {
  PrepareRows();
  if (!Has(kTones[0].ids.slider)) return true;  // not a model of this page: it stays unlocalized
  LocalizeControlTexts(kCaptionCategory, *this);
  for (std::size_t tone = 0; tone < kToneCount; ++tone) {
    const Tone& spec = kTones[tone];
    tones_[tone].SetRange(ParseRange(Model().RangeTexts[spec.range], spec.bias, spec.fallback),
                          spec.ticks);
    tones_[tone].Show(spec.initial);
    tones_[tone].current = static_cast<std::int16_t>(spec.initial);
  }
  CComboBox& surround = List(kSurroundList);
  surround.clear();
  for (const int text : kSurroundTexts) surround.Add(ListString(text));
  return true;
}

void CAudioType5Dlg::InitDisp() {
  if (!Has(kTones[0].ids.slider)) return;
  const auto source = ActiveSource();
  RefreshTones(source);
  if (source && Has(kSurroundList)) RefreshSurround(*source);
  CTabPage::InitDisp();
}

std::vector<PjtCommand> CAudioType5Dlg::Reads() const {
  std::vector<PjtCommand> commands = CTabPage::Reads();
  if (!Has(kTones[0].ids.slider)) return commands;
  commands.insert(commands.begin(), {Get(CommandCode::RunningState).Command(),
                                     Named(PjtOperation::GetInputSource).Command()});
  return commands;
}

std::optional<int> CAudioType5Dlg::ActiveSource() const {
  const int state = Read(*projector, Get(CommandCode::RunningState)).value_or(kUnknown);
  const int input = Read(*projector, Named(PjtOperation::GetInputSource)).value_or(kUnknown);
  if (kCodesWithStandbySource.Contains(Model().ModelCode)) {
    if (state == kStandby || state == kCoolingDown) return kStandbySource;
    if (state == kUnknown) return {};
  }
  if (input == kUnknown) return {};
  return input;
}

void CAudioType5Dlg::RefreshTones(std::optional<int> source) {
  for (std::size_t tone = 0; tone < kToneCount; ++tone) {
    if (!Has(kTones[tone].ids.slider)) continue;
    ValueControls& row = tones_[tone];
    short value = 0;
    if (source && std::invoke(kTones[tone].get, *projector, *source, &value) != 0) {
      const int shown = value - kTones[tone].bias;
      row.Show(shown);
      row.current = static_cast<std::int16_t>(shown);
    } else {
      row.ClearNumber();
    }
  }
}

void CAudioType5Dlg::RefreshSurround(int source) {
  short value = 0;
  if (projector->GetSRSWOW(source, &value) != 0)
    List(kSurroundList).Select(SurroundPosition(value));
}

void CAudioType5Dlg::OnHScroll(CSliderCtrl& slider) {
  const auto source = ActiveSource();
  if (!source) return;
  for (std::size_t tone = 0; tone < kToneCount; ++tone) {
    ValueControls& row = tones_[tone];
    if (!row.Owns(slider)) continue;
    const int position = row.Position();
    if (kTones[tone].set(*projector, *source, position + kTones[tone].bias) != 0) {
      row.ShowNumber(position);
      row.current = static_cast<std::int16_t>(position);
    } else {
      row.MoveSlider(row.current);
      row.ClearNumber();
    }
  }
}

void CAudioType5Dlg::Step(std::size_t tone, bool up) {
  const auto source = ActiveSource();
  if (!source) return;
  short value = 0;
  const auto step = up ? kTones[tone].increment : kTones[tone].decrement;
  if (std::invoke(step, *projector, *source, &value) == 0) return;
  tones_[tone].Show(value - kTones[tone].bias);
  tones_[tone].current = value;  // the device value, where a slider remembers its position
}

void CAudioType5Dlg::OnCbnSelchangeAud5Srswcomb() {
  const auto source = ActiveSource();
  if (!source) return;
  const CComboBox& surround = List(kSurroundList);
  projector->SettingText = surround.currentText().toStdString();
  const auto value = static_cast<short>(SurroundValue(surround.currentIndex()));
  if (projector->SetSRSWOW(*source, value) == 0) RefreshSurround(*source);
}

void CAudioType5Dlg::OnCbnSelchangeAud5Spekcomb() { Act(20354); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb1comb() { Act(20356); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp1comb() { Act(20365); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb2comb() { Act(20358); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp2comb() { Act(20366); }
void CAudioType5Dlg::OnCbnSelchangeAud5Am1dcomb() { Act(20359); }
void CAudioType5Dlg::OnCbnSelchangeAud5Ahdmicomb() { Act(20367); }
void CAudioType5Dlg::OnCbnSelchangeAud5Avidcomb() { Act(20360); }
void CAudioType5Dlg::OnCbnSelchangeAud5Asvidcomb() { Act(20361); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acompcomb() { Act(20362); }
void CAudioType5Dlg::OnCbnSelchangeAud5Amiucomb() { Act(20363); }
void CAudioType5Dlg::OnCbnSelchangeAud5Aoutstbcomb() { Act(20368); }
void CAudioType5Dlg::OnCbnSelchangeAud5Hdmiaudiocomb() { Act(20364); }
void CAudioType5Dlg::OnBnClickedAud5Btnvolneg() { Step(0, false); }
void CAudioType5Dlg::OnBnClickedAud5Btnvolpos() { Step(0, true); }
void CAudioType5Dlg::OnBnClickedAud5Btntreneg() { Step(1, false); }
void CAudioType5Dlg::OnBnClickedAud5Btntrepos() { Step(1, true); }
void CAudioType5Dlg::OnBnClickedAud5Btnbasneg() { Step(2, false); }
void CAudioType5Dlg::OnBnClickedAud5Btnbaspos() { Step(2, true); }
