#include "pages/rows/RowNotes.h"

#include <utility>

#include <QLabel>

#include "pages/rows/RowView.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

namespace {

RowNote NoteOf(const RowView& row, const SettingsDialog& dialog,
               const CPjtInterface::Tally& before) {
  const auto* list = qobject_cast<const CComboBox*>(dialog.GetDlgItem(ControlOf(row.Row())));
  if (list != nullptr && list->count() == 0) return RowNote::NoEntries;
  const CPjtInterface::Tally after = dialog.projector->Sent();
  if (after.unanswered > before.unanswered) return RowNote::Unanswered;
  if (after.notOffered > before.notOffered) return RowNote::NotOffered;
  if (after.refused > before.refused || !row.IsUsable()) return RowNote::Refused;
  return row.Numbers() ? RowNote::Range : RowNote::None;
}

QString RangeText(const Range& range) {
  if (range.minimum <= kUnbounded.minimum || range.minimum >= range.maximum) return {};
  return CatalogString(kListCategory, ListText::RangeNote, std::int64_t{range.minimum},
                       std::int64_t{range.maximum});
}

}  // namespace

QString RowNotes::TextOf(const RowView& row) {
  switch (row.memory.note) {
    case RowNote::Refused:
      return CatalogString(kListCategory, ListText::ReadRefused);
    case RowNote::NotOffered:
      return CatalogString(kListCategory, ListText::NotOffered);
    case RowNote::Unanswered:
      return CatalogString(kListCategory, ListText::ReadUnanswered);
    case RowNote::NoEntries:
      return CatalogString(kListCategory, ListText::NoEntries);
    case RowNote::Range:
      return RangeText(row.Numbers().value_or(kUnbounded));
    case RowNote::None:
      break;
  }
  return {};
}

void RowNotes::SetNote(RowView& row, const CPjtInterface::Tally& before) const {
  const SettingsDialog& dialog = host_.Dialog();
  if (const RowNote note = NoteOf(row, dialog, before);
      std::exchange(row.memory.note, note) == note) {
    return;
  }
  const QString text = TextOf(row);
  for (const int id : ControlsOf(row.Row())) dialog.GetDlgItem(id)->setToolTip(text);
  // A label's accessible description is its caption.
  if (qobject_cast<QLabel*>(dialog.GetDlgItem(ControlOf(row.Row()))) != nullptr) return;
  for (const int id : ControlsOf(row.Row())) dialog.GetDlgItem(id)->setAccessibleDescription(text);
  GreyCaption(row);
}

void RowNotes::GreyCaption(const RowView& row) const {
  if (!captionsStay_) host_.Dialog().GreyCaption(ControlOf(row.Row()));
}

}  // namespace AdvancedControl
