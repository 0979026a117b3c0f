#include "pages/setup/CSetupType5TabDlg.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <QAbstractButton>
#include <QLineEdit>

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"
#include "resources/ArrowBitmap.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/MessageBox.h"

using enum SetupRow;

namespace {

constexpr int kBias = 128;

constexpr Range kDefaultKeystoneRange{-128, 127};
constexpr Range kDefaultVolumeRange{0, 32};
constexpr int kTickCount = 8;
constexpr int kInitialVolume = 16;
constexpr Range kDZoomRange{80, 100};
constexpr int kDZoomTicks = 2;

// The model whose HDMI sound is sent with the flag set.
constexpr int kCodeWithHdmiFlag = 42;

constexpr int kSaving = 1;

// A control of each row, by which the row is found; in the order of SetupRow.
constexpr std::array<int, kSetupRowCount> kRowControls{
    20305, 20310, 20311, 20315, 20316, 20317, 20321, 20332, 20335,         // left column
    20320, 20369, 20322, 20370, 20329, 20323, 20324, 20325, 20326, 20330,  // audio
    20371, 20360, 20372, 20361, 20362, 20363, 20364, 20365, 20366, 20367,  // monitor out
    20368};                                                                // standby mode
constexpr int kCurrentInput = 20337;
constexpr int kSecondShiftRow = 20334;

struct WhisperName {
  std::string_view name;
  int text;
};
constexpr WhisperName kWhisperNames[] = {{"Normal", ListText::WhisperNormal},
                                         {"Whisper", ListText::WhisperWhisper},
                                         {"Bright", ListText::WhisperBright}};

struct ArrowButton {
  int control;
  int bitmap;
};
constexpr ArrowButton kArrowButtons[] = {{20335, BitmapId::ArrowUp},
                                         {20336, BitmapId::ArrowDown},
                                         {20334, BitmapId::ArrowLeft},
                                         {20350, BitmapId::ArrowRight}};

// In the order of SetupReset.
constexpr int kResetTexts[] = {ListText::KeystoneV, ListText::KeystoneH, ListText::DZoom,
                               ListText::DShiftV, ListText::DShiftH};

using Pjt = CPjtInterface;

struct ListOperations {
  SetupRow row;
  int (Pjt::*get)(short* value);
  int (Pjt::*set)(int value);
  bool tellText = false;  // the connection gets the chosen entry's text before the setting
};

// Lists stand in the order in which they are read.
constexpr ListOperations kModeLists[] = {
    {Whisper, &Pjt::GetWhisper, &Pjt::SetWhisper},
    {Mirror, &Pjt::GetMirror, &Pjt::SetMirror},
    {Speaker, &Pjt::GetSpeaker, &Pjt::SetSpeaker, true},
};

// A Computer row is the RGB input under its newer name: the projector reports both in one way.
constexpr ListOperations kRoutingLists[] = {
    {AudioRGB1, &Pjt::GetAudioRGB1, &Pjt::SetAudioRGB1},
    {AudioComputer1, &Pjt::GetAudioRGB1, &Pjt::SetAudioComputer1, true},
    {AudioRGB2, &Pjt::GetAudioRGB2, &Pjt::SetAudioRGB2},
    {AudioComputer2, &Pjt::GetAudioRGB2, &Pjt::SetAudioComputer2, true},
    {AudioHDMI, &Pjt::GetAudioM1D, nullptr, true},  // set with a flag, by its handler
    {AudioComponent, &Pjt::GetAudioComponent, &Pjt::SetAudioComponent},
    {AudioSVideo, &Pjt::GetAudioSVideo, &Pjt::SetAudioSVideo},
    {AudioVideo, &Pjt::GetAudioVideo, &Pjt::SetAudioVideo},
    {AudioMIU, &Pjt::GetAudioMIU, &Pjt::SetAudioMIU},
    {HDMIAudio, &Pjt::GetHDMIAudio, &Pjt::SetHDMIAudio},
    {StandbyMode, &Pjt::GetStandbyMode, &Pjt::SetStandbyMode},
    {MonitorOutRGB1, &Pjt::GetMonitorOutComputer1, &Pjt::SetMonitorOutComputer1},
    {MonitorOutComputer1, &Pjt::GetMonitorOutComputer1, &Pjt::SetMonitorOutComputer1},
    {MonitorOutRGB2, &Pjt::GetMonitorOutComputer2, &Pjt::SetMonitorOutComputer2},
    {MonitorOutComputer2, &Pjt::GetMonitorOutComputer2, &Pjt::SetMonitorOutComputer2},
    {MonitorOutHDMI, &Pjt::GetMonitorOutHDMI, &Pjt::SetMonitorOutHDMI},
    {MonitorOutComponent, &Pjt::GetMonitorOutComponent, &Pjt::SetMonitorOutComponent},
    {MonitorOutSVideo, &Pjt::GetMonitorOutSVideo, &Pjt::SetMonitorOutSVideo},
    {MonitorOutVideo, &Pjt::GetMonitorOutVideo, &Pjt::SetMonitorOutVideo},
    {MonitorOutMIU, &Pjt::GetMonitorOutMIU, &Pjt::SetMonitorOutMIU},
    {MonitorOutStandby, &Pjt::GetMonitorOutStandby, &Pjt::SetMonitorOutStandby},
};

bool IsMode(SetupRow row) {
  return std::ranges::find(kModeLists, row, &ListOperations::row) != std::end(kModeLists);
}

const ListOperations& OperationsOf(SetupRow row) {
  const auto* mode = std::ranges::find(kModeLists, row, &ListOperations::row);
  return mode != std::end(kModeLists)
             ? *mode
             : *std::ranges::find(kRoutingLists, row, &ListOperations::row);
}

int ControlOf(SetupRow row) { return kRowControls[static_cast<std::size_t>(row)]; }

void SetRange(SliderRow& row, const std::string& text, int bias, Range fallback) {
  const Range range = ParseRange(text, bias, fallback);
  row.SetRange(range, range.maximum / kTickCount);
}

}  // namespace

CSetupType5TabDlg::CSetupType5TabDlg(CWnd* parent) : CTabPage(TemplateId::SetupType5, parent) {}

void CSetupType5TabDlg::DoDataExchange() {
  keystoneV_.Bind(*this, {.minus = 20308, .slider = 20310, .plus = 20309, .field = 20314});
  keystoneH_.Bind(*this, {.minus = 20312, .slider = 20311, .plus = 20313, .field = 20141});
  volume_.Bind(*this, {.minus = 20318, .slider = 20317, .plus = 20319, .field = 20142});
  dZoom_.Bind(*this, {.minus = 20331, .slider = 20332, .plus = 20333, .field = 20143},
              {CommandCode::DigitalZoom, 0, ErrorText::DZoomRefused});
  shiftV_ = {.code = CommandCode::DigitalShiftV,
             .decrement = &Item<QAbstractButton>(20336),
             .increment = &Item<QAbstractButton>(20335),
             .field = &Item<QLineEdit>(20144)};
  shiftH_ = {.code = CommandCode::DigitalShiftH,
             .decrement = &Item<QAbstractButton>(20334),
             .increment = &Item<QAbstractButton>(20350),
             .field = &Item<QLineEdit>(20145)};
  inputSource_ = &Item<QLineEdit>(kCurrentInput);
  reset_ = &Item<CComboBox>(20327);
}

const NotificationMap& CSetupType5TabDlg::Notifications() const {
  using Self = CSetupType5TabDlg;
  static const NotificationMap map{
      Clicked(20305, &Self::OnBnClickedStu5Btnatks),
      Clicked(20308, &Self::OnBnClickedStu5Btksvneg),
      Clicked(20309, &Self::OnBnClickedStu5Btksvpos),
      Clicked(20312, &Self::OnBnClickedStu5Btkshneg),
      Clicked(20313, &Self::OnBnClickedStu5Btkshpos),
      SelChange(20315, &Self::OnCbnSelchangeStu5Wspcomb),
      SelChange(20316, &Self::OnCbnSelchangeStu5Mircomb),
      Clicked(20318, &Self::OnBnClickedStu5Btvolneg),
      Clicked(20319, &Self::OnBnClickedStu5Btvolpos),
      SelChange(20321, &Self::OnCbnSelchangeStu5Speakercomb),
      Clicked(20331, &Self::OnBnClickedDzoomDecBtn),
      Clicked(20333, &Self::OnBnClickedDzoomIncBtn),
      Clicked(20335, &Self::OnBnClickedDshiftUpBtn),
      Clicked(20336, &Self::OnBnClickedDshiftDownBtn),
      Clicked(20334, &Self::OnBnClickedDshiftLeftBtn),
      Clicked(20350, &Self::OnBnClickedDshiftRightBtn),
      Passive(20327),
      Clicked(20328, &Self::OnBnClickedStu5Btreset),
      HScroll(&Self::OnHScroll),

      SelChange(20320, &Self::OnCbnSelchangeStu5Argb1comb),
      SelChange(20369, &Self::OnCbnSelchangeStu5Acomp1comb),
      SelChange(20322, &Self::OnCbnSelchangeStu5Argb2comb),
      SelChange(20370, &Self::OnCbnSelchangeStu5Acomp2comb),
      SelChange(20329, &Self::OnCbnSelchangeStu5Ahdmicomb),
      SelChange(20323, &Self::OnCbnSelchangeStu5Avidcomb),
      SelChange(20324, &Self::OnCbnSelchangeStu5Asvidcomb),
      SelChange(20325, &Self::OnCbnSelchangeStu5Acompcomb),
      SelChange(20326, &Self::OnCbnSelchangeStu5Amiucomb),
      SelChange(20330, &Self::OnCbnSelchangeStu5HdmiaudioComb),
      SelChange(20368, &Self::OnCbnSelchangeCombStandbymode),
      SelChange(20371, &Self::OnCbnSelchangeCombMonitoroutRgb1),
      SelChange(20360, &Self::OnCbnSelchangeCombMonitoroutComputer1),
      SelChange(20372, &Self::OnCbnSelchangeCombMonitoroutRgb2),
      SelChange(20361, &Self::OnCbnSelchangeCombMonitoroutComputer2),
      SelChange(20362, &Self::OnCbnSelchangeCombMonitoroutHdmi),
      SelChange(20363, &Self::OnCbnSelchangeCombMonitoroutComponent),
      SelChange(20364, &Self::OnCbnSelchangeCombMonitoroutSvideo),
      SelChange(20365, &Self::OnCbnSelchangeCombMonitoroutVideo),
      SelChange(20366, &Self::OnCbnSelchangeCombMonitoroutMiu),
      SelChange(20367, &Self::OnCbnSelchangeCombMonitoroutStandby),
  };
  return map;
}

bool CSetupType5TabDlg::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  rows_ = SetupRowsOf(Model().ModelCode);
  ShowRows();

  const auto& ranges = Model().RangeTexts;
  SetRange(keystoneV_, ranges[RangeIndex::KeystoneV], kBias, kDefaultKeystoneRange);
  SetRange(keystoneH_, ranges[RangeIndex::KeystoneH], kBias, kDefaultKeystoneRange);
  SetRange(volume_, ranges[RangeIndex::Volume], 0, kDefaultVolumeRange);
  volume_.ShowNumber(kInitialVolume);
  dZoom_.SetRange(kDZoomRange, kDZoomTicks);

  FillLists();
  for (const ArrowButton& arrow : kArrowButtons) {
    auto& button = Item<QAbstractButton>(arrow.control);
    button.setAccessibleName(button.text());
    button.setText({});
    const int side = button.fontMetrics().height();  // as high as the buttons that bear a text
    button.setIconSize({side, side});
    button.setIcon(ArrowBitmap(arrow.bitmap));
  }
  return true;
}

void CSetupType5TabDlg::ShowRows() {
  for (std::size_t i = 0; i < kSetupRowCount; ++i) {
    ShowRow(kRowControls[i], rows_.Has(static_cast<SetupRow>(i)));
  }
  ShowRow(kCurrentInput, rows_.Has(Volume));
  ShowRow(kSecondShiftRow, rows_.Has(DShift));
}

void CSetupType5TabDlg::FillLists() {
  CComboBox& whisper = List(Whisper);
  whisper.clear();
  const CountedList& whispers = Model().WhisperList;
  for (int i = 0; i < whispers.Size(); ++i) {
    const std::string_view name = NameText(whispers.names[static_cast<std::size_t>(i)]);
    const auto* known = std::ranges::find(kWhisperNames, name, &WhisperName::name);
    // An unknown name has no entry, and the entries after it move up: the position is what is sent.
    if (known != std::end(kWhisperNames)) whisper.Add(ListString(known->text));
  }
  for (std::size_t i = 0; i < kSetupRowCount; ++i) {
    const auto row = static_cast<SetupRow>(i);
    const auto entries = SetupListOf(row, Model().ModelCode);
    if (entries.empty()) continue;
    CComboBox& list = List(row);
    list.clear();
    for (const SetupListEntry& entry : entries) {
      list.Add(entry.name != nullptr ? QString::fromUtf8(entry.name) : ListString(entry.text),
               entry.value);
    }
    list.Select(-1);  // nothing is selected before the projector says what is
  }
}

void CSetupType5TabDlg::InitDisp() {
  if (rows_.Has(KeystoneV)) RefreshKeystone(keystoneV_, &CPjtInterface::GetKeystoneV);
  if (rows_.Has(KeystoneH)) RefreshKeystone(keystoneH_, &CPjtInterface::GetKeystoneH);
  for (const ListOperations& list : kModeLists) RefreshList(list.row);
  if (rows_.Has(Volume)) RefreshVolume();
  if (rows_.Has(DZoom)) RefreshDZoom();
  if (rows_.Has(DShift)) {
    RefreshShift(shiftV_);
    RefreshShift(shiftH_);
  }
  for (const ListOperations& list : kRoutingLists) RefreshList(list.row);
  FillResets();
}

void CSetupType5TabDlg::FillResets() {
  reset_->clear();
  for (const SetupReset reset : SetupResetsOf(rows_)) {
    reset_->Add(ListString(kResetTexts[static_cast<std::size_t>(reset)]));
  }
  const bool preselected = rows_.Has(KeystoneV) || rows_.Has(KeystoneH) || rows_.Has(DShift);
  reset_->Select(preselected ? 0 : -1);
}

void CSetupType5TabDlg::OnBnClickedStu5Btnatks() { projector->ExecAutoKeyStone(); }

// Keystone. The rows remember device values, but a released slider remembers its position.

void CSetupType5TabDlg::RefreshKeystone(SliderRow& row, Getter get) {
  short value = 0;
  const bool read = std::invoke(get, *projector, &value) != 0;
  if (read) {
    row.Enable();
    row.Show(value - kBias);
    row.current = value;
  } else {
    row.Disable();
  }
  row.EnableField(read);
}

void CSetupType5TabDlg::StepKeystone(SliderRow& row, Getter get, Stepper step) {
  short value = 0;
  if (std::invoke(get, *projector, &value) == 0) return;
  if (std::invoke(step, *projector, &value) == 0) return;
  row.Show(value - kBias);
  row.current = value;
}

void CSetupType5TabDlg::ResetKeystone(SliderRow& row, int result, Getter get) {
  short value = 0;
  if (result == 0 && std::invoke(get, *projector, &value) != 0) row.Show(value - kBias);
}

void CSetupType5TabDlg::ResetKeystoneV() {
  ResetKeystone(keystoneV_, projector->ExecKeyStoneVReset(), &CPjtInterface::GetKeystoneV);
}

void CSetupType5TabDlg::ResetKeystoneH() {
  ResetKeystone(keystoneH_, projector->ExecKeyStoneHReset(), &CPjtInterface::GetKeystoneH);
}

void CSetupType5TabDlg::OnBnClickedStu5Btksvneg() {
  StepKeystone(keystoneV_, &CPjtInterface::GetKeystoneV, &CPjtInterface::DecrementKeystoneV);
}

void CSetupType5TabDlg::OnBnClickedStu5Btksvpos() {
  StepKeystone(keystoneV_, &CPjtInterface::GetKeystoneV, &CPjtInterface::IncrementKeystoneV);
}

void CSetupType5TabDlg::OnBnClickedStu5Btkshneg() {
  StepKeystone(keystoneH_, &CPjtInterface::GetKeystoneH, &CPjtInterface::DecrementKeystoneH);
}

void CSetupType5TabDlg::OnBnClickedStu5Btkshpos() {
  StepKeystone(keystoneH_, &CPjtInterface::GetKeystoneH, &CPjtInterface::IncrementKeystoneH);
}

void CSetupType5TabDlg::OnHScroll(CSliderCtrl& slider) {
  const auto finish = [](SliderRow& row, int position, bool accepted, std::int16_t fallback) {
    if (accepted) {
      row.current = static_cast<std::int16_t>(position);
      row.ShowNumber(position);
    } else {
      row.MoveSlider(fallback);
    }
  };
  const int position = slider.value();
  const auto keystone = static_cast<short>(position + kBias);
  if (keystoneV_.Owns(slider)) {
    finish(keystoneV_, position, projector->SetKeystoneV(keystone) != 0, keystoneV_.current);
  } else if (keystoneH_.Owns(slider)) {
    // Intended: a refused horizontal change falls back to the vertical memory, not to its own.
    finish(keystoneH_, position, projector->SetKeystoneH(keystone) != 0, keystoneV_.current);
  } else if (volume_.Owns(slider)) {
    finish(volume_, position, SendVolume(position), volume_.current);
  } else if (dZoom_.Owns(slider)) {
    const auto zoom = static_cast<unsigned short>(position);
    const bool accepted = projector->Set(CommandCode::DigitalZoom, zoom, projector) != 0;
    finish(dZoom_, position, accepted, dZoom_.current);
  }
}

int CSetupType5TabDlg::DisableVolumeCtrl(bool disable) {
  if (disable) {
    volume_.Disable();
  } else {
    volume_.Enable();
  }
  return 0;
}

std::optional<short> CSetupType5TabDlg::ReadInputSource() {
  short source = 0;
  if (projector->GetInputSource(&source) == 0) return {};
  inputSource_->setText(QString::number(source));
  return source;
}

void CSetupType5TabDlg::RefreshVolume() {
  short value = 0;
  const auto source = ReadInputSource();
  if (!source) inputSource_->clear();
  const bool read = source && projector->GetInputSrcVolume(*source, &value) != 0;
  DisableVolumeCtrl(!read);
  if (!read) return;
  volume_.Show(value);
  volume_.current = value;
}

bool CSetupType5TabDlg::SendVolume(int position) {
  const auto source = ReadInputSource();
  return source && projector->SetVolumeEachSrc(*source, static_cast<short>(position)) != 0;
}

void CSetupType5TabDlg::StepVolume(SourceStepper step) {
  short source = 0;
  projector->GetInputSource(&source);  // a failed read steps source 0, and shows that it does
  inputSource_->setText(QString::number(source));
  short value = 0;
  if (std::invoke(step, *projector, source, &value) == 0) return;
  volume_.Show(value);
  volume_.current = value;
}

void CSetupType5TabDlg::OnBnClickedStu5Btvolneg() {
  StepVolume(&CPjtInterface::DecrementInputSrcVol);
}

void CSetupType5TabDlg::OnBnClickedStu5Btvolpos() {
  StepVolume(&CPjtInterface::IncrementInputSrcVol);
}

// Digital zoom and shift. Only the zoom buttons are strict, as the generic operations are meant:
// everything else takes any result but 0 for success.

bool CSetupType5TabDlg::ReadGeneric(std::uint16_t code, std::int16_t& value) {
  auto read = static_cast<unsigned short>(value);
  if (projector->Get(code, 0, projector, &read) == 0) return false;
  value = static_cast<std::int16_t>(read);
  return true;
}

void CSetupType5TabDlg::RefreshDZoom() {
  if (ReadGeneric(CommandCode::DigitalZoom, dZoom_.current)) {
    dZoom_.Enable();
    dZoom_.Show(dZoom_.current);
  } else {
    dZoom_.Disable();
  }
}

void CSetupType5TabDlg::OnBnClickedDzoomDecBtn() {
  TellDZoom(dZoom_.StepDown(*projector, kDZoomRange));
}

void CSetupType5TabDlg::OnBnClickedDzoomIncBtn() {
  TellDZoom(dZoom_.StepUp(*projector, kDZoomRange));
}

void CSetupType5TabDlg::TellDZoom(Outcome outcome) {
  if (outcome == Outcome::Refused) ShowError(dZoom_.ErrorNumber());
}

void CSetupType5TabDlg::ResetDZoom() {
  std::int16_t value = dZoom_.current;
  if (projector->ExecDZoomReset() == 0 && ReadGeneric(CommandCode::DigitalZoom, value)) {
    dZoom_.Show(value);
  }
}

void CSetupType5TabDlg::ShiftAxis::Show(int deviceValue) {
  field->setText(QString::number(deviceValue - kBias));
}

void CSetupType5TabDlg::RefreshShift(ShiftAxis& axis) {
  const bool read = ReadGeneric(axis.code, axis.current);
  axis.decrement->setEnabled(read);
  axis.increment->setEnabled(read);
  if (read) {
    axis.Show(axis.current);
  } else {
    axis.field->clear();
  }
}

void CSetupType5TabDlg::StepShift(ShiftAxis& axis, GenericStepper step) {
  if (std::invoke(step, *projector, axis.code, 0, projector) == 0) {
    ShowError(ErrorText::DShiftRefused);
  } else if (ReadGeneric(axis.code, axis.current)) {
    axis.Show(axis.current);
  }
}

void CSetupType5TabDlg::OnBnClickedDshiftUpBtn() { StepShift(shiftV_, &CPjtInterface::Inc); }
void CSetupType5TabDlg::OnBnClickedDshiftDownBtn() { StepShift(shiftV_, &CPjtInterface::Dec); }
void CSetupType5TabDlg::OnBnClickedDshiftLeftBtn() { StepShift(shiftH_, &CPjtInterface::Dec); }
void CSetupType5TabDlg::OnBnClickedDshiftRightBtn() { StepShift(shiftH_, &CPjtInterface::Inc); }

void CSetupType5TabDlg::ResetShift(ShiftAxis& axis, int result) {
  std::int16_t value = axis.current;
  if (result == 0 && ReadGeneric(axis.code, value)) axis.Show(value);
}

void CSetupType5TabDlg::ResetDShiftV() { ResetShift(shiftV_, projector->ExecDShiftVReset()); }
void CSetupType5TabDlg::ResetDShiftH() { ResetShift(shiftH_, projector->ExecDShiftHReset()); }

void CSetupType5TabDlg::OnBnClickedStu5Btreset() {
  const auto reset = SetupResetAt(rows_, reset_->currentIndex());
  if (!reset) return;
  using Self = CSetupType5TabDlg;
  static constexpr void (Self::*kRun[])() = {&Self::ResetKeystoneV, &Self::ResetKeystoneH,
                                             &Self::ResetDZoom, &Self::ResetDShiftV,
                                             &Self::ResetDShiftH};
  (this->*kRun[static_cast<std::size_t>(*reset)])();
}

CComboBox& CSetupType5TabDlg::List(SetupRow row) const { return Item<CComboBox>(ControlOf(row)); }

void CSetupType5TabDlg::RefreshList(SetupRow row) {
  if (!rows_.Has(row)) return;
  short value = 0;
  const bool read = std::invoke(OperationsOf(row).get, *projector, &value) != 0;
  List(row).setEnabled(read);
  if (read) ShowListValue(row, value);
}

void CSetupType5TabDlg::ShowListValue(SetupRow row, int value) {
  // On the routing lists a value without an entry leaves the selection; the mode lists clear it.
  if (!List(row).SelectValue(value) && IsMode(row)) List(row).Select(-1);
}

void CSetupType5TabDlg::ReadBack(SetupRow row) {
  short value = 0;
  if (std::invoke(OperationsOf(row).get, *projector, &value) != 0) ShowListValue(row, value);
}

void CSetupType5TabDlg::Send(SetupRow row) {
  Send(row,
       [this, row](int value) { return std::invoke(OperationsOf(row).set, *projector, value); });
}

void CSetupType5TabDlg::Send(SetupRow row, const std::function<int(int value)>& set) {
  const auto value = List(row).SelectedValue();
  if (!value) return;
  if (OperationsOf(row).tellText) {
    projector->SettingText = List(row).currentText().toStdString();
  }
  if (set(*value) == 0) ReadBack(row);
}

void CSetupType5TabDlg::OnCbnSelchangeStu5Wspcomb() { Send(Whisper); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Mircomb() { Send(Mirror); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Speakercomb() { Send(Speaker); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb1comb() { Send(AudioRGB1); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp1comb() { Send(AudioComputer1); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb2comb() { Send(AudioRGB2); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp2comb() { Send(AudioComputer2); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Avidcomb() { Send(AudioVideo); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Asvidcomb() { Send(AudioSVideo); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acompcomb() { Send(AudioComponent); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Amiucomb() { Send(AudioMIU); }
void CSetupType5TabDlg::OnCbnSelchangeStu5HdmiaudioComb() { Send(HDMIAudio); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb1() { Send(MonitorOutRGB1); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer1() { Send(MonitorOutComputer1); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb2() { Send(MonitorOutRGB2); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer2() { Send(MonitorOutComputer2); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutHdmi() { Send(MonitorOutHDMI); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComponent() { Send(MonitorOutComponent); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutSvideo() { Send(MonitorOutSVideo); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutVideo() { Send(MonitorOutVideo); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutMiu() { Send(MonitorOutMIU); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutStandby() { Send(MonitorOutStandby); }

void CSetupType5TabDlg::OnCbnSelchangeStu5Ahdmicomb() {
  const int flag = Model().ModelCode == kCodeWithHdmiFlag ? 1 : 0;
  Send(AudioHDMI,
       [this, flag](int value) { return projector->SetAudioM1D(static_cast<short>(value), flag); });
}

void CSetupType5TabDlg::OnCbnSelchangeCombStandbymode() {
  if (List(StandbyMode).SelectedValue() == kSaving &&
      !AskYesNo(this, CatalogString(kErrorCategory, ErrorText::StandbySavingQuestion))) {
    ReadBack(StandbyMode);
    return;
  }
  Send(StandbyMode);
}
