#include "pages/input/CServiceDlg.h"

#include <algorithm>
#include <iterator>

#include <QCheckBox>

#include "pages/common/CodeList.h"
#include "pages/common/Reader.h"
#include "resources/AdvancedControlResources.h"
#include "toolkit/CComboBox.h"

namespace {

namespace Control {
constexpr int AutoAdjust = 20374;
constexpr int IrFront = 20375;
constexpr int IrRear = 20376;
constexpr int IrTop = 20377;
constexpr int IrNormal = 20378;
constexpr int IrHigh = 20379;
constexpr int FocusLock = 20381;
constexpr int Close = 20380;
}  // namespace Control

// A control of each row, by which the row is found.
constexpr int kRowControls[] = {Control::AutoAdjust, Control::IrFront, Control::IrNormal,
                                Control::IrHigh, Control::FocusLock};

// clang-format off
constexpr ModelRows kModelRows[] = {
    //                                                       Auto Adjust Enable
    //                                                       |IR Remote
    //                                                       ||IR Remote Frequency Normal
    //                                                       |||IR Remote Frequency High
    //                                                       ||||Focus Lock
    {{30, 31, 41, 43, 46, 51, 52, 54},                      "11110"},
    {{32, 33, 36, 37, 38, 39, 40, 42, 45, 49, 50, 53},      "10110"},
    {{44},                                                  "11111"},
};
// clang-format on
static_assert(AreComplete(kModelRows, std::ssize(kRowControls)));

// Has no receiver at the rear.
constexpr int kCodeWithoutRear = 44;

constexpr ModelCodes kCodesWithFineAdjust{37, 38, 39, 40, 41, 42, 43, 44,
                                          45, 49, 50, 51, 52, 53, 54};

constexpr int kEnableTexts[] = {ListText::Disable, ListText::Enable};
constexpr int kFineAdjustTexts[] = {ListText::Disable, ListText::AutoAdjustFine,
                                    ListText::AutoAdjustFast};
constexpr int kFocusLockTexts[] = {ListText::FocusLockOff, ListText::FocusLockOn};

struct Setting {
  int control;
  std::size_t row;  // index in kRowControls
  Reader read;
};

using P = CPjtInterface;
constexpr Setting kSettings[] = {
    {Control::AutoAdjust, 0, Read<&P::GetAutoAdjustEnable>},
    {Control::IrFront, 1, Read<&P::GetIRRemoteFront>},
    {Control::IrRear, 1, Read<&P::GetIRRemoteRear>},
    {Control::IrTop, 1, Read<&P::GetIRRemoteTop>},
    {Control::IrNormal, 2, Read<&P::GetIRREmoteFreqNormal>},
    {Control::IrHigh, 3, Read<&P::GetIRRemoteFreqHigh>},
    {Control::FocusLock, 4, Read<&P::GetFocusLock>},
};

}  // namespace

CServiceDlg::CServiceDlg(CWnd* parent) : SettingsDialog(TemplateId::Service, parent) {}

const NotificationMap& CServiceDlg::Notifications() const {
  using Self = CServiceDlg;
  static const NotificationMap map{
      SelChange(Control::AutoAdjust, &Self::OnCbnSelchangeSvcAtadjenbcomb),
      Clicked(Control::IrFront, &Self::OnBnClickedSvcIrfrontchk),
      Clicked(Control::IrRear, &Self::OnBnClickedSvcIrrearchk),
      Clicked(Control::IrTop, &Self::OnBnClickedSvcIrtopchk),
      SelChange(Control::IrNormal, &Self::OnCbnSelchangeSvcIrfreqncomb),
      SelChange(Control::IrHigh, &Self::OnCbnSelchangeSvcIrfreqhcomb),
      SelChange(Control::FocusLock, &Self::OnCbnSelchangeSvcFocuslockcomb),
      Clicked(Control::Close, &Self::OnBnClickedSvcBtnclose),
  };
  return map;
}

bool CServiceDlg::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  const RowSet rows = RowSet::Of(ModelCode, kModelRows);
  if (!rows.Known()) return true;  // the template's rows and lists stay, and nothing is read
  for (std::size_t row = 0; row < std::size(kRowControls); ++row) {
    ShowRow(kRowControls[row], rows.Has(row));
  }
  auto& rear = Item<QCheckBox>(Control::IrRear);
  if (ModelCode == kCodeWithoutRear) {
    QSizePolicy keepsItsPlace = rear.sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    rear.setSizePolicy(keepsItsPlace);
    rear.hide();
  }
  FillLists();
  Refresh();
  return true;
}

void CServiceDlg::FillLists() {
  const bool fine = kCodesWithFineAdjust.Contains(ModelCode);
  FillList(Item<CComboBox>(Control::AutoAdjust),
           fine ? std::span<const int>(kFineAdjustTexts) : std::span<const int>(kEnableTexts));
  FillList(Item<CComboBox>(Control::IrNormal), kEnableTexts);
  FillList(Item<CComboBox>(Control::IrHigh), kEnableTexts);
  FillList(Item<CComboBox>(Control::FocusLock), kFocusLockTexts);
}

void CServiceDlg::Refresh() {
  for (const Setting& setting : kSettings) {
    QWidget* control = GetDlgItem(setting.control);
    if (control->isHidden()) continue;
    const auto value = setting.read(*projector);
    control->setEnabled(value.has_value());
    if (value) Show(setting.control, *value);
  }
}

int CServiceDlg::Shown(int control) const {
  if (const auto* check = qobject_cast<QCheckBox*>(GetDlgItem(control))) {
    return check->isChecked() ? 1 : 0;
  }
  return Item<CComboBox>(control).currentIndex();
}

void CServiceDlg::Show(int control, int value) {
  if (auto* check = qobject_cast<QCheckBox*>(GetDlgItem(control))) {
    check->setChecked(value != 0);
  } else {
    Item<CComboBox>(control).Select(value);
  }
}

void CServiceDlg::UndoIfRefused(int control, int result) {
  if (result != 0) return;
  const auto setting = std::ranges::find(kSettings, control, &Setting::control);
  if (const auto value = setting->read(*projector)) Show(control, *value);
}

void CServiceDlg::OnCbnSelchangeSvcAtadjenbcomb() {
  UndoIfRefused(Control::AutoAdjust, projector->SetAutoAdjustEnable(Shown(Control::AutoAdjust)));
}

void CServiceDlg::OnBnClickedSvcIrfrontchk() {
  UndoIfRefused(Control::IrFront, projector->SetIRFront(Shown(Control::IrFront)));
}

void CServiceDlg::OnBnClickedSvcIrrearchk() {
  UndoIfRefused(Control::IrRear, projector->SetIRRear(Shown(Control::IrRear)));
}

void CServiceDlg::OnBnClickedSvcIrtopchk() {
  UndoIfRefused(Control::IrTop, projector->SetIRTop(Shown(Control::IrTop)));
}

void CServiceDlg::OnCbnSelchangeSvcIrfreqncomb() {
  const auto position = static_cast<short>(Shown(Control::IrNormal));
  UndoIfRefused(Control::IrNormal, projector->SetIRRemoteFreqNormal(position));
}

void CServiceDlg::OnCbnSelchangeSvcIrfreqhcomb() {
  const auto position = static_cast<short>(Shown(Control::IrHigh));
  UndoIfRefused(Control::IrHigh, projector->SetIRRemoteFreqHigh(position));
}

void CServiceDlg::OnCbnSelchangeSvcFocuslockcomb() {
  const auto position = static_cast<short>(Shown(Control::FocusLock));
  UndoIfRefused(Control::FocusLock, projector->SetFocusLock(position));
}

void CServiceDlg::OnBnClickedSvcBtnclose() { accept(); }
