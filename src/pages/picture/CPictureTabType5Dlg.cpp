#include "pages/picture/CPictureTabType5Dlg.h"

#include <functional>

#include <QAbstractButton>

#include "device/CommandCode.h"
#include "pages/common/CodeList.h"
#include "pages/common/ModelRows.h"
#include "pages/common/ValueTable.h"
#include "pages/picture/CColorDlg.h"
#include "pages/picture/CGammaDlg.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/CComboBox.h"

namespace {

constexpr ModelCodes kCodesWithActiveIris{30, 31, 41, 43, 46, 51, 52, 54};

constexpr int kBias = 128;
// Sharpness has a zero point of its own.
constexpr int kSharpnessBias = 124;

constexpr Range kDefaultRange{-32, 32};
constexpr Range kDefaultSharpnessRange{1, 7};
constexpr int kInitialSharpness = 4;
constexpr int kTicks = 4;
constexpr int kSharpnessTicks = 1;

// Up to here a gamma, and from here a colour temperature, is one that the user can shape.
constexpr int kLastCustomGamma = 21;
constexpr int kFirstCustomColorTemp = 17;

constexpr std::uint16_t kActiveIrisValues[] = {0x00, 0x10, 0x11, ValueTable::kEnd};
constexpr ValueTable kActiveIris{kActiveIrisValues};
constexpr int kActiveIrisTexts[] = {ListText::Off, ListText::IrisTheater,
                                    ListText::IrisPresentation};

// Load 1..4, then save 1..4.
constexpr int kMyMemories = 8;

struct Reset {
  int text;
  int (CPjtInterface::*execute)();
};
constexpr Reset kResets[] = {
    {ListText::Brightness, &CPjtInterface::ExecBrightnessReset},
    {ListText::Contrast, &CPjtInterface::ExecContrastReset},
    {ListText::Color, &CPjtInterface::ExecColorReset},
    {ListText::Tint, &CPjtInterface::ExecTintReset},
    {ListText::Sharpness, &CPjtInterface::ExecSharpnessReset},
};

}  // namespace

CPictureTabType5Dlg::CPictureTabType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::PictureType5, parent) {}

void CPictureTabType5Dlg::DoDataExchange() {
  brightness_.Bind(*this, {.minus = 20134, .slider = 20136, .plus = 20135, .field = 20329},
                   {CommandCode::Brightness, kBias, ErrorText::BrightnessRefused});
  contrast_.Bind(*this, {.minus = 20137, .slider = 20138, .plus = 20139, .field = 20330},
                 {CommandCode::Contrast, kBias, ErrorText::ContrastRefused});
  color_.Bind(*this, {.minus = 20147, .slider = 20151, .plus = 20149, .field = 20331},
              {CommandCode::Color, kBias, ErrorText::ColorRefused});
  tint_.Bind(*this, {.minus = 21061, .slider = 21062, .plus = 21063, .field = 20332},
             {CommandCode::Tint, kBias, ErrorText::TintRefused});
  sharpness_.Bind(*this, {.minus = 20148, .slider = 20152, .plus = 20150, .field = 20333},
                  {CommandCode::Sharpness, kSharpnessBias, ErrorText::SharpnessRefused});
  gamma_ = &Item<CComboBox>(20142);
  customGamma_ = &Item<QAbstractButton>(20133);
  colorTemp_ = &Item<CComboBox>(20144);
  customColorTemp_ = &Item<QAbstractButton>(20143);
  activeIris_ = &Item<CComboBox>(20293);
  myMemory_ = &Item<CComboBox>(21064);
  reset_ = &Item<CComboBox>(20157);
}

const NotificationMap& CPictureTabType5Dlg::Notifications() const {
  using Self = CPictureTabType5Dlg;
  static const NotificationMap map{
      Clicked(20135, &Self::OnBnClickedPicBgpBtn),
      Clicked(20134, &Self::OnBnClickedPicBgnBtn),
      Clicked(20139, &Self::OnBnClickedPicCnpBtn),
      Clicked(20137, &Self::OnBnClickedPicCnnBtn),
      Clicked(20149, &Self::OnBnClickedPicClrpBtn),
      Clicked(20147, &Self::OnBnClickedPicClrnBtn),
      Clicked(21063, &Self::OnBnClickedPicTintpBtn),
      Clicked(21061, &Self::OnBnClickedPicTintnBtn),
      Clicked(20150, &Self::OnBnClickedPicShppBtn),
      Clicked(20148, &Self::OnBnClickedPicShpnBtn),
      Clicked(20133, &Self::OnBnClickedPicGammaBtn),
      Clicked(20143, &Self::OnBnClickedPicColorBtn),
      Clicked(21065, &Self::OnBnClickedPicMyldBtn),
      SelChange(20142, &Self::OnCbnSelchangePicGammaComb),
      SelChange(20144, &Self::OnCbnSelchangePicCctComb),
      SelChange(20293, &Self::OnCbnSelchangePic5ActilisCombo),
      Passive(21064),
      Passive(20157),
      Clicked(21070, &Self::OnBnClickedPicRstBtn),
      HScroll(&Self::OnHScroll),
  };
  return map;
}

bool CPictureTabType5Dlg::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  hasActiveIris_ = kCodesWithActiveIris.Contains(Model().ModelCode);
  ShowRow(20293, hasActiveIris_);

  const auto& ranges = Model().RangeTexts;
  brightness_.SetRange(ParseRange(ranges[RangeIndex::Brightness], kBias, kDefaultRange), kTicks);
  contrast_.SetRange(ParseRange(ranges[RangeIndex::Contrast], kBias, kDefaultRange), kTicks);
  color_.SetRange(ParseRange(ranges[RangeIndex::Color], kBias, kDefaultRange), kTicks);
  tint_.SetRange(ParseRange(ranges[RangeIndex::Tint], kBias, kDefaultRange), kTicks);
  sharpness_.SetRange(
      ParseRange(ranges[RangeIndex::Sharpness], kSharpnessBias, kDefaultSharpnessRange),
      kSharpnessTicks);
  sharpness_.current = kInitialSharpness;
  sharpness_.MoveSlider(kInitialSharpness);

  FillList(*gamma_, Model().GammaList, ListText::GammaBase);
  FillList(*colorTemp_, Model().ColorTempList, ListText::ColorTempBase);
  FillList(*activeIris_, kActiveIrisTexts);
  myMemory_->clear();
  for (int i = 0; i < kMyMemories; ++i) {
    myMemory_->Add(ListString(ListText::MyMemoryBase + i));
  }
  reset_->clear();
  for (const Reset& reset : kResets) reset_->Add(ListString(reset.text));
  return true;
}

void CPictureTabType5Dlg::InitDisp() {
  for (GenericSliderRow* row : {&brightness_, &contrast_, &color_, &tint_, &sharpness_}) {
    row->Refresh(*projector);
  }
  RefreshList(*gamma_, *projector, CommandCode::Gamma);
  RefreshList(*colorTemp_, *projector, CommandCode::ColorTemp);
  EnableCustomButtons();
  if (hasActiveIris_) {
    unsigned short value = 0;
    if (projector->Get(CommandCode::ActiveIris, 0, projector, &value) != 1) {
      activeIris_->setEnabled(false);
    } else if (const int position = kActiveIris.PositionOf(value); position >= 0) {
      activeIris_->setEnabled(true);
      activeIris_->Select(position);
    }  // a mode that the list does not know leaves the row as it was
  }
  for (CComboBox* list : {myMemory_, reset_}) {
    if (list->currentIndex() < 0) list->Select(0);
  }
}

short CPictureTabType5Dlg::ActIrisIdxToValue(short index) {
  return static_cast<short>(kActiveIris.ValueAt(index));
}

short CPictureTabType5Dlg::ActIrisValueToIdx(short value) {
  return static_cast<short>(kActiveIris.PositionOf(value));
}

void CPictureTabType5Dlg::EnableCustomButtons() {
  const auto gamma = gamma_->SelectedValue();
  customGamma_->setEnabled(gamma && *gamma <= kLastCustomGamma);
  const auto colorTemp = colorTemp_->SelectedValue();
  customColorTemp_->setEnabled(colorTemp && *colorTemp >= kFirstCustomColorTemp);
}

void CPictureTabType5Dlg::StepUp(GenericSliderRow& row) {
  if (row.StepUp(*projector, row.Bounds()) == Outcome::Refused) ShowError(row.ErrorNumber());
}

void CPictureTabType5Dlg::StepDown(GenericSliderRow& row) {
  if (row.StepDown(*projector, row.Bounds()) == Outcome::Refused) ShowError(row.ErrorNumber());
}

void CPictureTabType5Dlg::OnBnClickedPicBgpBtn() { StepUp(brightness_); }
void CPictureTabType5Dlg::OnBnClickedPicBgnBtn() { StepDown(brightness_); }
void CPictureTabType5Dlg::OnBnClickedPicCnpBtn() { StepUp(contrast_); }
void CPictureTabType5Dlg::OnBnClickedPicCnnBtn() { StepDown(contrast_); }
void CPictureTabType5Dlg::OnBnClickedPicClrpBtn() { StepUp(color_); }
void CPictureTabType5Dlg::OnBnClickedPicClrnBtn() { StepDown(color_); }
void CPictureTabType5Dlg::OnBnClickedPicTintpBtn() { StepUp(tint_); }
void CPictureTabType5Dlg::OnBnClickedPicTintnBtn() { StepDown(tint_); }
void CPictureTabType5Dlg::OnBnClickedPicShppBtn() { StepUp(sharpness_); }
void CPictureTabType5Dlg::OnBnClickedPicShpnBtn() { StepDown(sharpness_); }

void CPictureTabType5Dlg::OnHScroll(CSliderCtrl& slider) {
  // A refused drag stays quiet on this page: the slider keeps the place the user gave it and only
  // the number field tells the projector's value.
  const auto finish = [](GenericSliderRow& row, int position, int result) {
    if (result != 0) {
      row.current = static_cast<std::int16_t>(position);
      row.ShowNumber(position);
    }
    row.MoveSlider(position);
  };
  for (GenericSliderRow* row : {&brightness_, &contrast_, &color_, &tint_, &sharpness_}) {
    if (!row->Owns(slider)) continue;
    const int position = row->Position();
    const int value = position + row->Bias();
    if (row == &brightness_) {
      finish(*row, position, projector->SetBrightness(static_cast<short>(value)));
    } else if (row == &contrast_) {
      finish(*row, position, projector->SetContrast(value));
    } else if (row == &color_) {
      finish(*row, position, projector->SetColor(value));
    } else if (row == &tint_) {
      finish(*row, position, projector->SetTint(value));
    } else {
      finish(*row, position, projector->SetSharpness(value));
    }
  }
}

void CPictureTabType5Dlg::OnCbnSelchangePicGammaComb() {
  projector->SetGamma(gamma_->currentIndex());  // the projector takes the position, not the value
  EnableCustomButtons();
}

void CPictureTabType5Dlg::OnCbnSelchangePicCctComb() {
  if (const auto value = colorTemp_->SelectedValue()) {
    if (projector->Set(CommandCode::ColorTemp, static_cast<unsigned short>(*value), projector) !=
        1) {
      ShowError(ErrorText::ColorTempRefused);  // the list keeps the choice until the next refresh
    }
  }
  EnableCustomButtons();
}

void CPictureTabType5Dlg::OnCbnSelchangePic5ActilisCombo() {
  const auto value = ActIrisIdxToValue(static_cast<short>(activeIris_->currentIndex()));
  if (projector->Set(CommandCode::ActiveIris, static_cast<unsigned short>(value), projector) != 1) {
    ShowError(ErrorText::ActiveIrisRefused);
  }
}

void CPictureTabType5Dlg::OnBnClickedPicMyldBtn() {
  if (projector->SetMyMemory(myMemory_->currentIndex()) != 0) InitDisp();
}

void CPictureTabType5Dlg::OnBnClickedPicRstBtn() {
  const int position = reset_->currentIndex();
  if (position >= 0) std::invoke(kResets[position].execute, *projector);
  InitDisp();
}

void CPictureTabType5Dlg::OnBnClickedPicGammaBtn() {
  CGammaDlg dialog(false, nullptr);
  dialog.projector = projector;
  dialog.DoModal();
}

void CPictureTabType5Dlg::OnBnClickedPicColorBtn() {
  CColorDlg dialog(false, nullptr);
  dialog.projector = projector;
  dialog.DoModal();
}
