#include "pages/status/CStatusTabDlg.h"

#include <chrono>

#include <QApplication>

#include "pages/common/StatusLine.h"
#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/SharedRows.h"
#include "toolkit/CComboBox.h"
#include "toolkit/StateLabel.h"

namespace {

namespace Id = ControlId::Status;

constexpr std::chrono::seconds kPause{5};

constexpr int kNoError = 0;
constexpr int kLampError = 3;
constexpr int kLampTimeError = 6;
constexpr double kNearlyDue = 0.9;

StateLabel::Mark PowerMark(int value) {
  if (value == shared::kRunning) return StateLabel::Mark::Good;
  return value == shared::kCoolingDown ? StateLabel::Mark::Attention : StateLabel::Mark::Idle;
}

}  // namespace

CStatusTabDlg::CStatusTabDlg(CWnd* parent) : CTabPage(TemplateId::Status, kStatusRows, parent) {
  keepsUpToDate_.setCheckable(true);
  connect(&keepsUpToDate_, &QAction::toggled, this,
          [this](bool on) { on ? next_.start(kPause) : next_.stop(); });
  next_.callOnTimeout(this, &CStatusTabDlg::ReadIfQuiet);
}

bool CStatusTabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  keepsUpToDate_.setText(ListString(ListText::KeepUpToDate));
  for (const RowTemplate& row : Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      if (control.kind != ControlKind::Text) continue;
      Item<StateLabel>(control.id).SetMark(StateLabel::Mark::None);  // aligns the texts
    }
  }
  Item<CComboBox>(ControlId::Status::Reset).Select(0);
  return true;
}

// The pause begins when the page has been read, however long that takes.
void CStatusTabDlg::ReadIfQuiet() {
  const auto* dialog = qobject_cast<const CDialog*>(window());
  const bool isBusy = dialog == nullptr || dialog->IsBusy() || projector->IsWaiting();
  if (!isVisible() || isBusy || QApplication::activePopupWidget() != nullptr) return;
  next_.stop();
  // What the line says about the user's last action must not vanish by itself.
  if (auto* line = window()->findChild<StatusLine*>()) line->Repeat();
  ReadAgain();
  if (keepsUpToDate_.isChecked()) next_.start(kPause);
}

void CStatusTabDlg::ShowState(int control, std::optional<int> value) {
  using enum StateLabel::Mark;
  if (control == Id::Power) {
    Item<StateLabel>(control).SetMark(value ? PowerMark(*value) : None);
  } else if (control == Id::Error) {
    error_ = value;
    Item<StateLabel>(control).SetMark(!value ? None : *value == kNoError ? Good : Bad);
  } else if (control == Id::LampTime) {
    ShowLampTime(value);
  }
}

// The error status is read before the lamp time.
void CStatusTabDlg::ShowLampTime(std::optional<int> hours) {
  using enum StateLabel::Mark;
  auto& label = Item<StateLabel>(Id::LampTime);
  const bool isRated = hours && ratedLampHours_ > 0;
  const double share = isRated ? static_cast<double>(*hours) / ratedLampHours_ : 0;
  label.SetShare(isRated ? std::optional(share) : std::nullopt);
  const auto text = [](int number) {
    return CatalogString(kListCategory, ListText::Hours, std::int64_t{number});
  };
  label.setToolTip(isRated ? text(*hours) + QStringLiteral(" / ") + text(ratedLampHours_)
                           : QString());
  const bool isDue = error_ == kLampTimeError || share >= kNearlyDue;
  label.SetMark(error_ == kLampError ? Bad : isDue ? Attention : isRated ? Good : None);
}
