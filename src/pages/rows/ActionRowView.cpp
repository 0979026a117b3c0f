#include "pages/rows/ActionRowView.h"

#include "pages/rows/RowOutcomes.h"
#include "pages/rows/RowTexts.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

std::vector<OperatedControl> ActionRowView::OperatedControls() const {
  std::vector<OperatedControl> operated{{Notification::Event::Clicked, row_.control}};
  if (row_.list) operated.push_back({Notification::Event::Passive, row_.list->control});
  return operated;
}

void ActionRowView::Bind() {
  list_ = row_.list ? &Dialog().Item<CComboBox>(row_.list->control) : nullptr;
}

void ActionRowView::Prepare() {
  if (list_ != nullptr) FillList(*list_, row_.list->entries.Of(Model()));
}

void ActionRowView::OnPageRead() {
  if (list_ != nullptr && list_->currentIndex() < 0) list_->Select(0);
}

void ActionRowView::Act(int) {
  const int position = list_ != nullptr ? list_->currentIndex() : 0;
  if (position < 0) return;
  const CPjtInterface::Tally before = Projector().Sent();
  const bool done = Perform(Projector(), row_.call, position).accepted;
  const bool isRefused = IsRefusedSince(*this, before);
  const QString entry = list_ != nullptr ? list_->currentText() : QString();
  if (ReadsAgain(row_.rereads, done)) Host().ReadAgain();
  if (done && !isRefused) {
    Confirm(*this, {});
    Dialog().Say(DoneText(position, entry));
    return;
  }
  ShowRefusal(*this, entry);
  if (!done && row_.error != 0) Dialog().ShowError(row_.error);
}

QString ActionRowView::DoneText(int position, const QString& entry) const {
  if (row_.done != 0) return CatalogString(kListCategory, row_.done + position);
  const bool hasResult = FormOf(row_.call.operation).returns != Returns::Nothing;
  const QString what = (CaptionText(Row()) + QLatin1Char(' ') + entry).trimmed();
  return CatalogString(kListCategory, hasResult ? ListText::ActionDone : ListText::ActionSent,
                       what.toStdString());
}

}  // namespace AdvancedControl
