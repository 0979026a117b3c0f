#include "pages/rows/RowView.h"

#include <QLabel>

#include "i18n/LocalizeControlTexts.h"
#include "pages/rows/EntryTexts.h"
#include "settings/CatalogNumbers.h"
#include "settings/RowUse.h"

// One that is the same in every language is no text of the catalog.
QString RowView::CaptionText(const PageRow& row) {
  const int number = CaptionOf(row);
  if (number != 0) return CatalogString(kCaptionCategory, number);
  return PlainText(KeyOf(row)).section(QLatin1Char('.'), -1).toUpper();
}

std::vector<int> RowView::Controls() const { return {ControlOf(row_)}; }

QString RowView::Text() const {
  const auto position = Position();
  return position ? TextAt(*position) : QString();
}

bool RowView::IsUsable() const {
  const CDialog& dialog = Dialog();
  return dialog.GetDlgItem(ControlOf(row_))->isEnabledTo(&dialog);
}

void RowView::SetPresent(bool present) {
  present_ = present;
  opened_.reset();
}

std::optional<int> RowView::ReadSetting(Source source) const {
  return source ? ::ReadRow(Projector(), row_, Model(), source) : std::nullopt;
}

void RowView::ReadAgainAfter(Rereads rereads, bool done) {
  if (rereads == Rereads::Always || (rereads == Rereads::WhenDone && done)) host_.ReadAgain();
}

void RowView::RememberOpened() {
  if (!opened_) opened_ = Position();
}

void RowView::SetSource(int source) {
  if (source_ == source) return;
  source_ = source;
  opened_.reset();
}

RowView::Note RowView::NoteAfter(const CPjtInterface::Tally& before) const {
  if (HasNoEntries()) return Note::NoEntries;
  const CPjtInterface::Tally after = Projector().Sent();
  if (after.unanswered > before.unanswered) return Note::Unanswered;
  if (after.notOffered > before.notOffered) return Note::NotOffered;
  if (after.refused > before.refused || !IsUsable()) return Note::Refused;
  return Numbers() ? Note::Range : Note::None;
}

QString RowView::NoteText() const {
  switch (note_) {
    case Note::Refused:
      return CatalogString(kListCategory, ListText::ReadRefused);
    case Note::NotOffered:
      return CatalogString(kListCategory, ListText::NotOffered);
    case Note::Unanswered:
      return CatalogString(kListCategory, ListText::ReadUnanswered);
    case Note::NoEntries:
      return CatalogString(kListCategory, ListText::NoEntries);
    case Note::Range: {
      const Range range = *Numbers();
      if (range.minimum <= kUnbounded.minimum || range.minimum >= range.maximum) return {};
      return CatalogString(kListCategory, ListText::RangeNote, std::int64_t{range.minimum},
                           std::int64_t{range.maximum});
    }
    case Note::None:
      break;
  }
  return {};
}

void RowView::Tell(Note note) {
  if (note_ == note) return;
  note_ = note;
  const QString text = NoteText();
  const CDialog& dialog = Dialog();
  for (const int id : ControlsOf(row_)) dialog.GetDlgItem(id)->setToolTip(text);
  // A text that is only shown is described by its caption.
  if (qobject_cast<QLabel*>(dialog.GetDlgItem(ControlOf(row_))) != nullptr) return;
  for (const int id : ControlsOf(row_)) dialog.GetDlgItem(id)->setAccessibleDescription(text);
  GreyCaption();
}

void RowView::GreyCaption() {
  if (!table_.captionsStay) Dialog().GreyCaption(ControlOf(row_));
}
