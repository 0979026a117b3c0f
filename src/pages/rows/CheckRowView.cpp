#include "pages/rows/CheckRowView.h"

#include <QCheckBox>

#include "i18n/LocalizeControlTexts.h"
#include "pages/rows/RowOutcomes.h"
#include "settings/CatalogNumbers.h"
#include "settings/RowUse.h"

namespace AdvancedControl {

std::vector<OperatedControl> CheckRowView::OperatedControls() const {
  return {{Notification::Event::Clicked, row_.control}};
}

void CheckRowView::Bind() { check_ = &Dialog().Item<QCheckBox>(row_.control); }

void CheckRowView::Read(Source source) {
  const auto value = ReadSetting(source);
  if (Projector().IsAbandoned()) return;
  check_->setEnabled(value.has_value());
  if (value) check_->setChecked(*value != 0);
}

void CheckRowView::Act(int) {
  const int value = check_->isChecked() ? 1 : 0;
  const CPjtInterface::Tally before = Projector().Sent();
  if (SendRow(Projector(), Row(), Model(), value) == Sent::Accepted) {
    return IsRefusedSince(*this, before) ? ShowRefusal(*this, TextAt(value))
                                         : Confirm(*this, value);
  }
  if (const auto present = ReadSetting(0)) {
    check_->setChecked(*present != 0);
    memory.known = Position();
  }
  ShowRefusal(*this, TextAt(value));
}

std::optional<int> CheckRowView::Position() const { return check_->isChecked() ? 1 : 0; }

QString CheckRowView::TextAt(int position) const {
  return CatalogString(kListCategory, position != 0 ? ListText::On : ListText::Off);
}

bool CheckRowView::CanMoveTo(int position) const {
  return IsUsable() && (Position() != position || ShowsAnother(*this));
}

void CheckRowView::MoveTo(int position) {
  check_->setChecked(position == 0);
  check_->click();
}

}  // namespace AdvancedControl
