#include "pages/picture/CustomDialog.h"

#include <utility>

#include <QAbstractButton>

#include "device/CommandCode.h"
#include "pages/common/CodeList.h"
#include "toolkit/CComboBox.h"

namespace {

constexpr int kPatternTexts[] = {ListText::PatternOff, ListText::PatternGrayScale9,
                                 ListText::PatternGrayScale15, ListText::PatternRamp};

}  // namespace

CustomDialog::CustomDialog(int templateNumber, bool hideResets, CWnd* parent,
                           std::span<const RowSpec> rows, std::size_t firstRange,
                           Range defaultRange, int tickFrequency)
    : SettingsDialog(templateNumber, parent),
      hideResets_(hideResets),
      specs_(rows),
      firstRange_(firstRange),
      defaultRange_(defaultRange),
      tickFrequency_(tickFrequency),
      rows_(rows.size()) {}

void CustomDialog::DoDataExchange() {
  for (std::size_t i = 0; i < specs_.size(); ++i) {
    rows_[i].Bind(*this, specs_[i].ids, specs_[i].setting);
  }
  pattern_ = &Item<CComboBox>(20158);
}

NotificationMap CustomDialog::MakeNotifications(std::span<const RowSpec> rows) {
  std::vector<Notification> entries{SelChange(20158, &CustomDialog::OnPattern),
                                    HScroll(&CustomDialog::OnHScroll)};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    entries.push_back(Clicked(rows[i].ids.plus, &CustomDialog::StepUp, i));
    entries.push_back(Clicked(rows[i].ids.minus, &CustomDialog::StepDown, i));
    entries.push_back(Clicked(rows[i].resetId, &CustomDialog::Reset, i));
  }
  return NotificationMap(std::move(entries));
}

bool CustomDialog::OnInitDialog() {
  LocalizeControlTexts(kCaptionCategory, *this);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    rows_[i].SetRange(
        ParseRange(Model().RangeTexts[firstRange_ + i], rows_[i].Bias(), defaultRange_),
        tickFrequency_);
    Item<QAbstractButton>(specs_[i].resetId).setVisible(!hideResets_);
  }
  FillList(*pattern_, kPatternTexts);
  Refresh();
  return true;
}

void CustomDialog::Refresh() {
  unsigned short pattern = 0;
  if (projector->Get(CommandCode::TestPattern, 0, projector, &pattern) == 1) {
    pattern_->Select(pattern);
  }
  for (GenericSliderRow& row : rows_) row.Refresh(*projector);
}

void CustomDialog::OnPattern() {
  const auto position = static_cast<unsigned short>(pattern_->currentIndex());
  if (projector->Set(CommandCode::TestPattern, position, projector) != 1) {
    ShowError(ErrorText::TestPatternRefused);  // the list keeps the choice
  }
}

void CustomDialog::OnHScroll(CSliderCtrl& slider) {
  for (GenericSliderRow& row : rows_) {
    if (row.Owns(slider) && row.SendPosition(*projector) == Outcome::Refused) {
      ShowError(row.ErrorNumber());
    }
  }
}

void CustomDialog::ShowReset(std::size_t row, short deviceValue) {
  GenericSliderRow& target = rows_[row];
  if (deviceValue >= defaultRange_.minimum + target.Bias()) {
    target.Show(deviceValue - target.Bias());
  }
}
