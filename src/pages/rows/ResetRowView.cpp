#include "pages/rows/ResetRowView.h"

#include <utility>

#include <QAbstractButton>
#include <QScopedValueRollback>

#include "i18n/LocalizeControlTexts.h"
#include "pages/rows/RowOutcomes.h"
#include "pages/rows/ValueRowView.h"
#include "settings/CatalogNumbers.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

std::vector<OperatedControl> ResetRowView::OperatedControls() const {
  return {{Notification::Event::Clicked, row_.control}, {Notification::Event::Passive, row_.list}};
}

void ResetRowView::Bind() { list_ = &Dialog().Item<CComboBox>(row_.list); }

void ResetRowView::Prepare() {
  list_->clear();
  const CatalogBatch batch;
  for (std::size_t i = 0; i < row_.entries.size(); ++i) {
    const ResetEntry& entry = row_.entries[i];
    const RowView* of = RowFor(entry);
    if (entry.of && (of == nullptr || !of->memory.present)) continue;
    // The value is the entry's position in the table, because the list has only the present
    // entries.
    list_->Add(CatalogString(kListCategory, entry.text), static_cast<int>(i));
  }
}

void ResetRowView::OnPageRead() {
  if (list_->currentIndex() < 0) list_->Select(0);
}

RowView* ResetRowView::RowFor(const ResetEntry& entry) const {
  return entry.of ? Host().RowOf(Dialog().GetDlgItem(*entry.of)) : nullptr;
}

std::optional<int> ResetRowView::EntryFor(const RowView& row) const {
  for (std::size_t i = 0; i < row_.entries.size(); ++i) {
    if (RowFor(row_.entries[i]) == &row) return static_cast<int>(i);
  }
  return {};
}

QString ResetRowView::TextFor(const RowView& row) const {
  const auto entry = EntryFor(row);
  if (!entry) return {};
  return CatalogString(kListCategory, row_.entries[static_cast<std::size_t>(*entry)].text);
}

void ResetRowView::Reset(const RowView& row) {
  const QScopedValueRollback instead(instead_, EntryFor(row));
  // unreachable: a row without an entry has no button. Otherwise the list's choice would be reset.
  if (!instead_) return;
  Dialog().Item<QAbstractButton>(row_.control).click();
}

void ResetRowView::Act(int) {
  const auto chosen = instead_ ? instead_ : list_->SelectedValue();
  const bool isListed = chosen && std::cmp_less(*chosen, row_.entries.size());
  const ResetEntry entry =
      isListed ? row_.entries[static_cast<std::size_t>(*chosen)] : ResetEntry{};
  const bool done = isListed && Perform(Projector(), Named(entry.operation)).accepted;
  if (done && row_.rereads == Rereads::ItsRow) {
    auto* of = dynamic_cast<ValueRowView*>(RowFor(entry));
    if (of != nullptr) of->ShowAgain();
  }
  const QString text = CatalogString(kListCategory, entry.text);
  if (ReadsAgain(row_.rereads, done)) Host().ReadAgain();
  if (!isListed) return;
  if (!done) return ShowRefusal(*this, text);
  Confirm(*this, {});
  Dialog().Say(CatalogString(kListCategory, ListText::ResetDone, text.toStdString()));
}

}  // namespace AdvancedControl
