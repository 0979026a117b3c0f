#include "pages/rows/ListRowView.h"

#include <algorithm>

#include "pages/rows/RowOutcomes.h"
#include "pages/rows/RowTexts.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

std::vector<OperatedControl> ListRowView::OperatedControls() const {
  return {{Notification::Event::SelChange, row_.control}};
}

void ListRowView::Bind() { list_ = &Dialog().Item<CComboBox>(row_.control); }

void ListRowView::Prepare() { FillList(*list_, row_.entries.Of(Model())); }

// The entries keep their texts and get the values of the row's own entries at the same positions.
void ListRowView::UseTemplate() {
  const std::vector<ListEntry> entries = row_.entries.Of({});
  const int count = std::min(list_->count(), static_cast<int>(entries.size()));
  for (int i = 0; i < count; ++i) {
    list_->setItemData(i, entries[static_cast<std::size_t>(i)].value);
  }
}

void ListRowView::Read(Source source) {
  const auto value = ReadSetting(source);
  if (Projector().IsAbandoned()) return;
  if (!value) {
    if (row_.rules.failedReadDisables) list_->setEnabled(false);
    return;
  }
  if (row_.rules.noEntry == NoEntry::Ignored && list_->findData(*value) < 0) return;
  list_->setEnabled(true);
  Select(*value);
  if (list_->currentIndex() >= 0) return;
  if (row_.rules.placeholder.Of(Model().ModelCode)) list_->Select(list_->count() - 1);
}

void ListRowView::Select(int value) {
  if (list_->SelectValue(value)) return;
  if (row_.rules.noEntry == NoEntry::Clears) list_->Select(-1);
  if (row_.rules.noEntry == NoEntry::IsPosition) list_->Select(value);
  if (row_.rules.noEntry == NoEntry::IsOrdinal) list_->Select(value - 1);
}

void ListRowView::Act(int) {
  const auto chosen = list_->SelectedValue();
  if (!chosen) return;
  const int position = list_->currentIndex();
  const QString text = list_->currentText();
  if (!row_.send) return Dialog().Say(CatalogString(kListCategory, ListText::OnlyShown));
  const auto source = Host().AskFor(row_.of);
  if (!source) return ShowRefusal(*this, text);
  const CPjtInterface::Tally before = Projector().Sent();
  const Sending how{.text = text.toStdString(), .source = source, .position = position};
  const Sent sent = SendRow(Projector(), Row(), Model(), *chosen, how);
  const bool isRefused = IsRefusedSince(*this, before);
  if (sent == Sent::Nothing) {
    if (const auto value = ReadSetting(source)) list_->SelectValue(*value);
    return Dialog().Say(
        CatalogString(kListCategory, ListText::ChoiceGoesNowhere, text.toStdString()));
  }
  if (row_.rules.readsBackAlways) Host().ReadRow(*this, *source);
  if (sent == Sent::Accepted) {
    // After a setter that returns nothing, the value read back is the best evidence.
    const bool isOpen = Projector().Sent().pending > before.pending;
    const bool isReadBack = row_.rules.readsBackAlways && IsRead(memory.note) && !isOpen;
    const bool isAsChosen = memory.known && AreSame(*memory.known, position);
    if (isReadBack ? !isAsChosen : isRefused) return ShowRefusal(*this, text);
    if (!row_.rules.readsBackAlways) Confirm(*this, position);
    return;
  }
  if (Table().refusedIsReadBack || row_.rules.refused != Refused::Silent) ReadBack(*source);
  ShowRefusal(*this, text);
  if (row_.rules.error != 0) Dialog().ShowError(row_.rules.error);
}

void ListRowView::ReadBack() {
  if (const auto source = Host().AskFor(row_.of)) ReadBack(*source);
}

void ListRowView::ReadBack(int source) {
  const auto value = ReadSetting(source);
  if (!value) return;
  if (row_.rules.refused == Refused::ReadsBackPosition) {
    list_->Select(*value);
  } else {
    Select(*value);
  }
  memory.known = Position();
}

std::optional<int> ListRowView::Position() const {
  return list_->currentIndex() >= 0 ? std::optional(list_->currentIndex()) : std::nullopt;
}

// A host's list may have several entries with one value.
bool ListRowView::AreSame(int position, int other) const {
  return list_->itemData(position) == list_->itemData(other);
}

QString ListRowView::TextAt(int position) const { return list_->itemText(position); }

bool ListRowView::CanMoveTo(int position) const {
  const bool isNews = position != list_->currentIndex() || ShowsAnother(*this);
  return IsUsable() && isNews && position >= 0 && position < list_->count();
}

void ListRowView::MoveTo(int position) { list_->Pick(position); }

}  // namespace AdvancedControl
