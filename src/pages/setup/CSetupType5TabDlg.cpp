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
  if (const auto value = Read(*projector, read)) row.Show(*value - bias);
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
  if (List(kStandbyMode).SelectedValue() == kSaving &&
      !AskYesNo(this, CatalogString(kErrorCategory, ErrorText::StandbySavingQuestion))) {
    ReadBack(kStandbyMode);
    return;
  }
  Act(kStandbyMode);
}
