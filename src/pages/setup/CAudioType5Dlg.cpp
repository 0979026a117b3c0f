#include "pages/setup/CAudioType5Dlg.h"

#include <functional>
#include <iterator>
#include <vector>

#include "device/CommandCode.h"
#include "pages/common/CodeList.h"
#include "pages/common/Reader.h"
#include "pages/common/ValueTable.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/CComboBox.h"

namespace {

enum Row : std::size_t {
  AudVolume,
  AudTreble,
  AudBass,
  AudSRSWOW,
  AudSpeaker,
  AudRGB1,
  AudComputer1,
  AudRGB2,
  AudComputer2,
  AudM1D,
  AudHDMI,
  AudVideo,
  AudSVideo,
  AudComponent,
  AudMIU,
  AudOutStandby,
  AudHDMIAudio,
};

// clang-format off
constexpr ModelRows kModelRows[] = {
    //          Volume RGB1         Video
    //          |Tre.  |Computer1   |S-Video
    //          ||Bass ||RGB2       ||Component
    //          |||SRS |||Computer2 |||MIU
    //          ||||Sp.|||| M1-D    |||| Out Standby
    //          |||||  |||| |HDMI   |||| |HDMI Audio
    {{30},     "11111  1010 10      1110 00"},
    {{31},     "11111  1010 10      1111 00"},
    {{41},     "11111  1010 01      1111 01"},
    {{43},     "11111  1010 01      1110 01"},
    {{46, 52}, "10001  1010 00      1110 00"},
    {{49, 50}, "10001  0101 00      1110 10"},
    {{51},     "11111  1010 01      1110 11"},
    {{53},     "10001  0101 01      1110 11"},
    {{54},     "11111  1010 01      1111 11"},
};
// clang-format on
static_assert(AreComplete(kModelRows, CAudioType5Dlg::kRowCount));

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
  tmpl::SliderIds ids;
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
     .bias = 128,
     .fallback = {-4, 4},
     .initial = 0,
     .ticks = 1,
     .get = &P::GetInputSrcTreble,
     .set = SetTone<&P::SetInputSrcTreble>,
     .increment = &P::IncrementInputSrcTreb,
     .decrement = &P::DecrementInputSrcTreb},
    {.ids = {.minus = 20351, .slider = 20353, .plus = 20352, .field = 20316},
     .range = RangeIndex::Bass,
     .bias = 128,
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

// One of the lists; what it sends is its position, with the exceptions told here.
struct Choice {
  int list;
  Reader read;
  int (*send)(P& projector, int value, int modelCode);
  int entry = 0;                       // catalog number of the last entry, which only this list has
  int valueOfLast = 0;                 // sent for position 5, which stands for that entry
  bool lastIsReported = false;         // a refresh shows position 5 for that value
  const ValueTable* values = nullptr;  // where the values are not the positions
};

// Position of the list's own entry where the list has all the entries before it.
constexpr int kLastPosition = 5;

template <auto operation>
int Send(P& projector, int value, int) {
  return (projector.*operation)(value);
}

// The two digital inputs share one operation; a flag tells the projector which of its inputs is
// meant, and which models want it differs by row.
constexpr ModelCodes kCodesWithM1DFlag{41, 43};
constexpr ModelCodes kCodesWithHdmiFlag{41, 43, 51, 53, 54};

template <const ModelCodes& flagged>
int SendM1D(P& projector, int value, int modelCode) {
  return projector.SetAudioM1D(static_cast<short>(value), flagged.Contains(modelCode) ? 1 : 0);
}

constexpr std::uint16_t kHdmiAudioModeValues[] = {1, 2, ValueTable::kEnd};
constexpr ValueTable kHdmiAudioModes{kHdmiAudioModeValues};

constexpr int kHdmiInput = 32;
constexpr int kMiuInput = 16;

// In the order of the rows from AudSpeaker on. A Computer row names the same input as its RGB row,
// and the projector reports both with the RGB operation.
constexpr Choice kChoices[] = {
    {20354, Read<&P::GetSpeaker>, Send<&P::SetSpeaker>},
    {20356, Read<&P::GetAudioRGB1>, Send<&P::SetAudioRGB1>},
    {20365, Read<&P::GetAudioRGB1>, Send<&P::SetAudioComputer1>},
    {20358, Read<&P::GetAudioRGB2>, Send<&P::SetAudioRGB2>},
    {20366, Read<&P::GetAudioRGB2>, Send<&P::SetAudioComputer2>},
    {20359, Read<&P::GetAudioM1D>, SendM1D<kCodesWithM1DFlag>, 0, kHdmiInput},
    {20367, Read<&P::GetAudioM1D>, SendM1D<kCodesWithHdmiFlag>, ListText::AudioHDMI, kHdmiInput,
     true},
    {20360, Read<&P::GetAudioVideo>, Send<&P::SetAudioVideo>},
    {20361, Read<&P::GetAudioSVideo>, Send<&P::SetAudioSVideo>},
    {20362, Read<&P::GetAudioComponent>, Send<&P::SetAudioComponent>},
    {20363, Read<&P::GetAudioMIU>, Send<&P::SetAudioMIU>, ListText::AudioMIU, kMiuInput, true},
    {20368, Read<&P::GetAudioOutStandby>, Send<&P::SetAudioOutStandby>},
    {20364, Read<&P::GetHDMIAudio>, Send<&P::SetHDMIAudio>, 0, 0, false, &kHdmiAudioModes},
};
static_assert(AudSpeaker + std::size(kChoices) == CAudioType5Dlg::kRowCount);

const Choice& ChoiceOf(std::size_t row) { return kChoices[row - AudSpeaker]; }

int ControlOf(std::size_t row) {
  if (row < CAudioType5Dlg::kToneCount) return kTones[row].ids.slider;
  return row == AudSRSWOW ? kSurroundList : ChoiceOf(row).list;
}

constexpr int kSpeakerTexts[] = {ListText::SwitchOff, ListText::SwitchOn};
constexpr ModelCodes kCodesWithFourthAudio{30, 31, 41, 43, 46, 51, 52, 54};

std::vector<int> InputTexts(const Choice& choice, int modelCode) {
  std::vector<int> texts{ListText::Off, ListText::Audio1, ListText::Audio2, ListText::Audio3};
  if (kCodesWithFourthAudio.Contains(modelCode)) texts.push_back(ListText::Audio4);
  if (choice.entry != 0) texts.push_back(choice.entry);
  return texts;
}

}  // namespace

CAudioType5Dlg::CAudioType5Dlg(CWnd* parent) : CTabPage(TemplateId::AudioType5, parent) {}

void CAudioType5Dlg::DoDataExchange() {
  for (std::size_t tone = 0; tone < kToneCount; ++tone) tones_[tone].Bind(*this, kTones[tone].ids);
  surround_ = &Item<CComboBox>(kSurroundList);
}

const NotificationMap& CAudioType5Dlg::Notifications() const {
  using Self = CAudioType5Dlg;
  static const NotificationMap map{
      Clicked(20345, &Self::OnBnClickedAud5Btnvolneg),
      Clicked(20346, &Self::OnBnClickedAud5Btnvolpos),
      Clicked(20348, &Self::OnBnClickedAud5Btntreneg),
      Clicked(20349, &Self::OnBnClickedAud5Btntrepos),
      Clicked(20351, &Self::OnBnClickedAud5Btnbasneg),
      Clicked(20352, &Self::OnBnClickedAud5Btnbaspos),
      SelChange(20381, &Self::OnCbnSelchangeAud5Srswcomb),
      SelChange(20354, &Self::OnCbnSelchangeAud5Spekcomb),
      SelChange(20356, &Self::OnCbnSelchangeAud5Argb1comb),
      SelChange(20365, &Self::OnCbnSelchangeAud5Acomp1comb),
      SelChange(20358, &Self::OnCbnSelchangeAud5Argb2comb),
      SelChange(20366, &Self::OnCbnSelchangeAud5Acomp2comb),
      SelChange(20359, &Self::OnCbnSelchangeAud5Am1dcomb),
      SelChange(20367, &Self::OnCbnSelchangeAud5Ahdmicomb),
      SelChange(20360, &Self::OnCbnSelchangeAud5Avidcomb),
      SelChange(20361, &Self::OnCbnSelchangeAud5Asvidcomb),
      SelChange(20362, &Self::OnCbnSelchangeAud5Acompcomb),
      SelChange(20363, &Self::OnCbnSelchangeAud5Amiucomb),
      SelChange(20368, &Self::OnCbnSelchangeAud5Aoutstbcomb),
      SelChange(20364, &Self::OnCbnSelchangeAud5Hdmiaudiocomb),
      HScroll(&Self::OnHScroll),
  };
  return map;
}

bool CAudioType5Dlg::OnInitDialog() {
  rows_ = RowSet::Of(Model().ModelCode, kModelRows);
  for (std::size_t row = 0; row < kRowCount; ++row) ShowRow(ControlOf(row), rows_.Has(row));
  if (!rows_.Known()) return true;
  LocalizeControlTexts(kCaptionCategory, *this);
  for (std::size_t tone = 0; tone < kToneCount; ++tone) {
    const Tone& spec = kTones[tone];
    tones_[tone].SetRange(ParseRange(Model().RangeTexts[spec.range], spec.bias, spec.fallback),
                          spec.ticks);
    tones_[tone].Show(spec.initial);
    tones_[tone].current = static_cast<std::int16_t>(spec.initial);
  }
  FillList(*surround_, kSurroundTexts);
  FillList(Item<CComboBox>(ControlOf(AudSpeaker)), kSpeakerTexts);
  for (std::size_t row = AudRGB1; row <= AudOutStandby; ++row) {
    const Choice& choice = ChoiceOf(row);
    FillList(Item<CComboBox>(choice.list),
             std::span<const int>(InputTexts(choice, Model().ModelCode)));
  }
  return true;
}

void CAudioType5Dlg::InitDisp() {
  if (!rows_.Known()) return;
  const auto source = ActiveSource();
  RefreshTones(source);
  if (source && rows_.Has(AudSRSWOW)) RefreshSurround(*source);
  for (std::size_t row = AudSpeaker; row < kRowCount; ++row) {
    if (!rows_.Has(row)) continue;
    const Choice& choice = ChoiceOf(row);
    const auto value = choice.read(*projector);
    if (!value) continue;
    const bool last = choice.lastIsReported && *value == choice.valueOfLast;
    ShowValue(row, last ? kLastPosition : *value);
  }
}

std::optional<int> CAudioType5Dlg::ActiveSource() const {
  unsigned short running = 0;
  const bool stateRead = projector->Get(CommandCode::RunningState, 0, projector, &running) == 1;
  const int state = stateRead ? running : kUnknown;
  const int input = Read<&CPjtInterface::GetInputSource>(*projector).value_or(kUnknown);
  if (kCodesWithStandbySource.Contains(Model().ModelCode)) {
    if (state == kStandby || state == kCoolingDown) return kStandbySource;
    if (state == kUnknown) return {};
  }
  if (input == kUnknown) return {};
  return input;
}

void CAudioType5Dlg::RefreshTones(std::optional<int> source) {
  for (std::size_t tone = 0; tone < kToneCount; ++tone) {
    if (!rows_.Has(tone)) continue;
    SliderRow& row = tones_[tone];
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
  if (projector->GetSRSWOW(source, &value) != 0) surround_->Select(SurroundPosition(value));
}

void CAudioType5Dlg::OnHScroll(CSliderCtrl& slider) {
  const auto source = ActiveSource();
  if (!source) return;
  for (std::size_t tone = 0; tone < kToneCount; ++tone) {
    SliderRow& row = tones_[tone];
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

void CAudioType5Dlg::OnBnClickedAud5Btnvolneg() { Step(AudVolume, false); }
void CAudioType5Dlg::OnBnClickedAud5Btnvolpos() { Step(AudVolume, true); }
void CAudioType5Dlg::OnBnClickedAud5Btntreneg() { Step(AudTreble, false); }
void CAudioType5Dlg::OnBnClickedAud5Btntrepos() { Step(AudTreble, true); }
void CAudioType5Dlg::OnBnClickedAud5Btnbasneg() { Step(AudBass, false); }
void CAudioType5Dlg::OnBnClickedAud5Btnbaspos() { Step(AudBass, true); }

// A value without a position leaves the selection of a list with values of its own.
void CAudioType5Dlg::ShowValue(std::size_t row, int value) {
  const Choice& choice = ChoiceOf(row);
  auto& list = Item<CComboBox>(choice.list);
  if (choice.values == nullptr) {
    list.Select(value);
  } else if (const int position = choice.values->PositionOf(value); position >= 0) {
    list.Select(position);
  }
}

void CAudioType5Dlg::TellChoice(const CComboBox& list) {
  projector->SettingText = list.currentText().toStdString();
}

void CAudioType5Dlg::OnCbnSelchangeAud5Srswcomb() {
  const auto source = ActiveSource();
  if (!source) return;
  TellChoice(*surround_);
  const auto value = static_cast<short>(SurroundValue(surround_->currentIndex()));
  if (projector->SetSRSWOW(*source, value) == 0) RefreshSurround(*source);
}

void CAudioType5Dlg::SendChoice(std::size_t row) {
  const Choice& choice = ChoiceOf(row);
  const auto& list = Item<CComboBox>(choice.list);
  const int position = list.currentIndex();
  const bool last = choice.valueOfLast != 0 && position == kLastPosition;
  const int own = choice.values != nullptr ? choice.values->ValueAt(position) : position;
  const int value = last ? choice.valueOfLast : own;
  if (row != AudHDMIAudio) TellChoice(list);
  if (choice.send(*projector, value, Model().ModelCode) != 0) return;
  // Other than in a refresh, 32 and 16 are not taken for the last entry: they leave no selection.
  if (const auto actual = choice.read(*projector)) ShowValue(row, *actual);
}

void CAudioType5Dlg::OnCbnSelchangeAud5Spekcomb() { SendChoice(AudSpeaker); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb1comb() { SendChoice(AudRGB1); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp1comb() { SendChoice(AudComputer1); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb2comb() { SendChoice(AudRGB2); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp2comb() { SendChoice(AudComputer2); }
void CAudioType5Dlg::OnCbnSelchangeAud5Am1dcomb() { SendChoice(AudM1D); }
void CAudioType5Dlg::OnCbnSelchangeAud5Ahdmicomb() { SendChoice(AudHDMI); }
void CAudioType5Dlg::OnCbnSelchangeAud5Avidcomb() { SendChoice(AudVideo); }
void CAudioType5Dlg::OnCbnSelchangeAud5Asvidcomb() { SendChoice(AudSVideo); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acompcomb() { SendChoice(AudComponent); }
void CAudioType5Dlg::OnCbnSelchangeAud5Amiucomb() { SendChoice(AudMIU); }
void CAudioType5Dlg::OnCbnSelchangeAud5Aoutstbcomb() { SendChoice(AudOutStandby); }
void CAudioType5Dlg::OnCbnSelchangeAud5Hdmiaudiocomb() { SendChoice(AudHDMIAudio); }
