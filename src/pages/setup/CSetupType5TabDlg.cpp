#include "pages/setup/CSetupType5TabDlg.h"

#include <functional>
#include <string>

#include <QLineEdit>

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/MessageBox.h"

namespace {

constexpr int kBias = CommandCode::kZeroPoint;

constexpr Range kDefaultKeystoneRange{-128, 127};
constexpr Range kDefaultVolumeRange{0, 32};
constexpr int kTickCount = 8;
constexpr int kInitialVolume = 16;
constexpr int kSaving = 1;

constexpr int kKeystoneV = 20310;
constexpr int kKeystoneH = 20311;
constexpr int kVolume = 20317;
constexpr int kCurrentInput = 20337;
constexpr int kDZoom = 20332;
constexpr int kDShiftV = 20144;
constexpr int kDShiftH = 20145;
constexpr int kStandbyMode = 20368;
constexpr int kResetList = 20327;
constexpr int kReset = 20328;

void SetRange(ValueControls& row, const std::string& text, int bias, Range fallback) {
  const Range range = ParseRange(text, bias, fallback);
  row.SetRange(range, range.maximum / kTickCount);
}

}  // namespace

CSetupType5TabDlg::CSetupType5TabDlg(CWnd* parent)
    : CTabPage(TemplateId::SetupType5, kSetupType5Rows, parent) {}

void CSetupType5TabDlg::DoDataExchange() {
  CTabPage::DoDataExchange();
  keystoneV_.Bind(*this, {.minus = 20308, .slider = kKeystoneV, .plus = 20309, .field = 20314});
  keystoneH_.Bind(*this, {.minus = 20312, .slider = kKeystoneH, .plus = 20313, .field = 20141});
  volume_.Bind(*this, {.minus = 20318, .slider = kVolume, .plus = 20319, .field = 20142});
  inputSource_ = &Item<QLineEdit>(kCurrentInput);
}

std::vector<Notification> CSetupType5TabDlg::OwnNotifications() const {
  using Self = CSetupType5TabDlg;
  return {
      Clicked(20308, &Self::OnBnClickedStu5Btksvneg),
      Clicked(20309, &Self::OnBnClickedStu5Btksvpos),
      Clicked(20312, &Self::OnBnClickedStu5Btkshneg),
      Clicked(20313, &Self::OnBnClickedStu5Btkshpos),
      Clicked(20318, &Self::OnBnClickedStu5Btvolneg),
      Clicked(20319, &Self::OnBnClickedStu5Btvolpos),
      Clicked(20328, &Self::OnBnClickedStu5Btreset),
      SelChange(20368, &Self::OnCbnSelchangeCombStandbymode),
      HScroll(&Self::OnHScroll),
  };
}

bool CSetupType5TabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  ShowRow(kCurrentInput, Has(kVolume));
  const auto& ranges = Model().RangeTexts;
  SetRange(keystoneV_, ranges[RangeIndex::KeystoneV], kBias, kDefaultKeystoneRange);
  SetRange(keystoneH_, ranges[RangeIndex::KeystoneH], kBias, kDefaultKeystoneRange);
  SetRange(volume_, ranges[RangeIndex::Volume], 0, kDefaultVolumeRange);
  volume_.ShowNumber(kInitialVolume);
  return true;
}

void CSetupType5TabDlg::InitDisp() {
  FillResets(kResetList);
  CTabPage::InitDisp();
}

void CSetupType5TabDlg::RefreshOwn(const OwnRow& row) {
  switch (row.control) {
    case kKeystoneV:
      return RefreshKeystone(keystoneV_, row);
    case kKeystoneH:
      return RefreshKeystone(keystoneH_, row);
    case kVolume:
      return RefreshVolume();
    default:
      break;
  }
}

// Keystone. The rows remember device values, but a released slider remembers its position.

void CSetupType5TabDlg::RefreshKeystone(ValueControls& row, const OwnRow& keystone) {
  const auto value = Read(*projector, *keystone.read);
  if (value) {
    row.Enable();
    row.Show(*value - kBias);
    row.current = static_cast<std::int16_t>(*value);
  } else {
    row.Disable();
  }
  row.EnableField(value.has_value());
}

void CSetupType5TabDlg::StepKeystone(ValueControls& row, Getter get, Stepper step) {
  short value = 0;
  if (std::invoke(get, *projector, &value) == 0) return;
  if (std::invoke(step, *projector, &value) == 0) return;
  row.Show(value - kBias);
  row.current = value;
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
  const auto finish = [](ValueControls& row, int position, bool accepted, std::int16_t fallback) {
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
  } else {
    CTabPage::OnHScroll(slider);
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

// Resets show what they gave, without a question and without remembering it.

void CSetupType5TabDlg::OnBnClickedStu5Btreset() {
  const ResetEntry* const reset = ChosenReset(kReset);
  if (reset == nullptr) return;
  switch (reset->of) {
    case kKeystoneV:
      return ResetKeystoneV();
    case kKeystoneH:
      return ResetKeystoneH();
    case kDZoom:
      return ResetDZoom();
    case kDShiftV:
      return ResetDShiftV();
    default:
      return ResetDShiftH();
  }
}

void CSetupType5TabDlg::ShowReset(ValueControls& row, int bias, int result, const Call& read) {
  if (result != 0) return;
  if (const auto value = Read(*projector, read)) {
    row.Show(static_cast<std::int16_t>(*value) - bias);
  }
}

void CSetupType5TabDlg::ResetKeystoneV() {
  ShowReset(keystoneV_, kBias, projector->ExecKeyStoneVReset(), Named(PjtOperation::GetKeystoneV));
}

void CSetupType5TabDlg::ResetKeystoneH() {
  ShowReset(keystoneH_, kBias, projector->ExecKeyStoneHReset(), Named(PjtOperation::GetKeystoneH));
}

void CSetupType5TabDlg::ResetDZoom() {
  ShowReset(Value(kDZoom), 0, projector->ExecDZoomReset(),
            AnyResult(Get(CommandCode::DigitalZoom)));
}

void CSetupType5TabDlg::ResetDShiftV() {
  ShowReset(Value(kDShiftV), kBias, projector->ExecDShiftVReset(),
            AnyResult(Get(CommandCode::DigitalShiftV)));
}

void CSetupType5TabDlg::ResetDShiftH() {
  ShowReset(Value(kDShiftH), kBias, projector->ExecDShiftHReset(),
            AnyResult(Get(CommandCode::DigitalShiftH)));
}

void CSetupType5TabDlg::OnCbnSelchangeCombStandbymode() {
  if (List(kStandbyMode).SelectedValue() == kSaving && !Ask(ErrorText::StandbySavingQuestion)) {
    ReadBack(kStandbyMode);
    return;
  }
  Act(kStandbyMode);
}

void CSetupType5TabDlg::OnBnClickedStu5Btnatks() { Act(20305); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Wspcomb() { Act(20315); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Mircomb() { Act(20316); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Speakercomb() { Act(20321); }
void CSetupType5TabDlg::OnBnClickedDzoomDecBtn() { Act(20331); }
void CSetupType5TabDlg::OnBnClickedDzoomIncBtn() { Act(20333); }
void CSetupType5TabDlg::OnBnClickedDshiftUpBtn() { Act(20335); }
void CSetupType5TabDlg::OnBnClickedDshiftDownBtn() { Act(20336); }
void CSetupType5TabDlg::OnBnClickedDshiftLeftBtn() { Act(20334); }
void CSetupType5TabDlg::OnBnClickedDshiftRightBtn() { Act(20350); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb1comb() { Act(20320); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp1comb() { Act(20369); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb2comb() { Act(20322); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp2comb() { Act(20370); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Ahdmicomb() { Act(20329); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Avidcomb() { Act(20323); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Asvidcomb() { Act(20324); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acompcomb() { Act(20325); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Amiucomb() { Act(20326); }
void CSetupType5TabDlg::OnCbnSelchangeStu5HdmiaudioComb() { Act(20330); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb1() { Act(20371); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer1() { Act(20360); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb2() { Act(20372); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer2() { Act(20361); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutHdmi() { Act(20362); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComponent() { Act(20363); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutSvideo() { Act(20364); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutVideo() { Act(20365); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutMiu() { Act(20366); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutStandby() { Act(20367); }
